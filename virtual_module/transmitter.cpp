#include "virtual_module/transmitter.h"

#include <algorithm>
#include <utility>

namespace virtual_module {

void Transmitter::Queue(UnitKind kind, std::string text, Thirds now) {
  if (units_.empty()) {
    nextLeave_ = now + characterTime;
  }
  units_.push_back({kind, std::move(text)});
}

std::optional<Thirds> Transmitter::NextLeave() const {
  if (units_.empty()) {
    return std::nullopt;
  }
  return nextLeave_;
}

char Transmitter::Leave() {
  Unit& unit = units_.front();
  const char character = unit.text[position_];
  lastLeave_ = nextLeave_;
  lastByte_ = MicrosecondsOf(lastLeave_);
  if (position_ == 0) {
    firstByte_ = lastByte_;
  }
  nextLeave_ += characterTime;
  ++position_;
  if (position_ == unit.text.size()) {
    Complete(unit.kind, std::move(unit.text));
    units_.pop_front();
    position_ = 0;
  }
  return character;
}

void Transmitter::Drop() {
  if (position_ > 0) {
    Complete(units_.front().kind, units_.front().text.substr(0, position_));
  }
  units_.clear();
  position_ = 0;
}

void Transmitter::DropWaiting() {
  units_.resize(std::min<std::size_t>(units_.size(), position_ > 0 ? 1 : 0));
}

void Transmitter::EndPolls() {
  if (polls_) {
    sent_.push_back(std::move(*polls_));
    polls_.reset();
  }
}

void Transmitter::Complete(UnitKind kind, std::string text) {
  if (kind == UnitKind::Polls && polls_) {
    polls_->lastByte = lastByte_;
    ++polls_->count;
    return;
  }
  EndPolls();
  FrameRecord record;
  record.kind = kind;
  record.firstByte = firstByte_;
  record.lastByte = lastByte_;
  record.text = std::move(text);
  if (kind == UnitKind::Polls) {
    polls_ = std::move(record);
  } else {
    sent_.push_back(std::move(record));
  }
}

}  // namespace virtual_module
