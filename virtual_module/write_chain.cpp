#include "virtual_module/write_chain.h"

#include <algorithm>
#include <utility>

#include "virtual_module/digits.h"

namespace virtual_module {
namespace {

constexpr std::size_t pacedLength = 7;
constexpr std::size_t longestFrame = 16;  // what goes on behind it is not a frame any more

// The number that a text of one to three digits stands for, else -1.
int NumberOf(std::string_view text) {
  return text.size() <= 3 ? NumberOfDigits(text).value_or(-1) : -1;
}

bool HasLeadingZero(std::string_view value) {
  return value.size() > 1 && value.front() == '0';
}

int BlockSize(const WriteRow& row) {
  return row.last - row.first + 1;
}

}  // namespace

WriteChain::WriteChain(std::string_view command, Memory& memory, std::vector<FrameRecord>& records)
    : command_(command),
      memory_(memory),
      records_(records),
      rows_(WriteRowsOf(memory.kind(), command)) {}

int WriteChain::frameCount() const {
  int count = 0;
  for (const WriteRow& row : rows_) {
    count += BlockSize(row);
  }
  return count;
}

void WriteChain::Receive(char character, std::int64_t now) {
  if (character == 'T' && !text_.empty()) {
    Complete("cut off by the next frame");
  }
  if (finished()) {
    return;
  }
  if (text_.empty()) {
    firstByte_ = now;
  }
  lastByte_ = now;
  text_ += character;
  if (text_.size() > longestFrame) {
    Complete("longer than a frame");
  } else if (IsComplete()) {
    Complete({});
  }
}

void WriteChain::BreakOff() {
  if (!text_.empty()) {
    Complete("broken off");
  }
}

bool WriteChain::IsComplete() const {
  if (text_.front() != 'T') {
    return false;  // noise goes on until the next "T"
  }
  if (rows_[block_].form == FrameForm::Paced) {
    return text_.size() == pacedLength;
  }
  return text_.back() == '\r';
}

void WriteChain::Complete(std::string error) {
  FrameRecord record;
  record.kind = text_.front() == 'T' ? UnitKind::Frame : UnitKind::Noise;
  record.firstByte = firstByte_;
  record.lastByte = lastByte_;
  record.text = text_;
  record.command = command_;
  record.error = std::move(error);
  if (record.kind == UnitKind::Frame) {
    ++frames_;
    Take(record);
  } else {
    record.error = "between frames";
  }
  text_.clear();
  records_.push_back(std::move(record));
}

// Stores what can be read of a frame, right or wrong, and moves on. A frame that cannot be read
// still takes the place of the one that was due.
void WriteChain::Take(FrameRecord& record) {
  std::string_view body = std::string_view(record.text).substr(1);
  const bool lineEnd = body.ends_with("\n\r");
  body = body.substr(0, body.find_last_not_of("\n\r") + 1);
  const std::string_view value = body.substr(std::min<std::size_t>(3, body.size()));
  if (body.size() > 3) {
    record.wireIndex = NumberOf(body.substr(0, 3));
    record.value = NumberOf(value);
  }
  const bool readable = record.wireIndex >= 0 && record.value >= 0;
  if (record.error.empty() && !readable) {
    record.error = "not the digits of a frame";
  }
  if (record.error.empty()) {
    record.error = FormError(value, lineEnd);
  }
  if (record.error.empty() && record.wireIndex != due_) {
    record.error =
        "index " + std::to_string(record.wireIndex) + " where " + std::to_string(due_) + " was due";
  }
  if (readable && record.wireIndex < BlockSize(rows_[block_])) {
    Store(record);
  } else {
    Advance(rows_[block_].first + due_);
  }
}

void WriteChain::Store(FrameRecord& record) {
  const WriteRow& row = rows_[block_];
  record.table = row.table;
  record.cell = row.first + record.wireIndex;
  memory_.Cells(row.table).at(static_cast<std::size_t>(record.cell)) = record.value;
  Advance(record.cell);
}

std::string WriteChain::FormError(std::string_view value, bool lineEnd) const {
  const FrameForm form = rows_[block_].form;
  if (lineEnd == (form == FrameForm::Paced)) {
    return lineEnd ? "a line end where none belongs" : "without LF and CR";
  }
  switch (form) {
    case FrameForm::Paced:
    case FrameForm::ThreeDigit:
      return value.size() == 3 ? "" : "a value that is not of three digits";
    case FrameForm::TwoDigit:
      return value.size() == 2 ? "" : "a value that is not of two digits";
    case FrameForm::Plain:
      return HasLeadingZero(value) ? "a value with leading zeros" : "";
    case FrameForm::AsStored:
      return "";
  }
  return "";
}

void WriteChain::Advance(int cell) {
  const WriteRow& row = rows_[block_];
  const std::vector<int>& cells = memory_.Cells(row.table);
  const auto at = static_cast<std::size_t>(cell);
  const bool listEnds = row.earlyEnd == EarlyEnd::TwoEmptyCells && cell > 0 &&
                        cells.at(at) == emptyCell && cells.at(at - 1) == emptyCell;
  if (listEnds) {
    block_ = rows_.size();
  } else if (cell == row.last) {
    ++block_;
    due_ = 0;
  } else {
    due_ = cell - row.first + 1;
  }
}

}  // namespace virtual_module
