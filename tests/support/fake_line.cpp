#include "support/fake_line.h"

#include <algorithm>
#include <limits>

#include "platform/runtime_error.h"

namespace bkconf {
namespace {

/// Ten bits at 9600 baud, in microseconds.
constexpr std::int64_t CharacterTime = 1042;
/// What a look at an empty line costs.
constexpr std::int64_t PollTime = 10;

}  // namespace

std::string FakeLine::AllWritten() const {
  std::string all;
  for (const Written& each : written) all += each.characters;
  return all;
}

void FakeLine::SetNumber(int number) {
  calls.push_back("number " + std::to_string(number));
}

std::string FakeLine::DeviceOf(int number) const {
  return "fake" + std::to_string(number);
}

bool FakeLine::Open() {
  calls.emplace_back("open");
  open_ = canOpen;
  return canOpen;
}

void FakeLine::Close() {
  calls.emplace_back("close");
  open_ = false;
}

void FakeLine::FailIfGone() {
  if (failed || (module != nullptr && module->vanished())) {
    throw RuntimeError(ErrorKind::PortFailed, "fake");
  }
}

void FakeLine::Pump() {
  while (module != nullptr) {
    constexpr std::int64_t never = std::numeric_limits<std::int64_t>::max();
    const std::int64_t arrival = onTheWay_.empty() ? never : onTheWay_.front().time;
    const std::int64_t due = module->NextDue().value_or(never);
    if (std::min(arrival, due) > clock_.Now()) break;
    if (arrival <= due) {
      module->Receive(static_cast<unsigned char>(onTheWay_.front().character), arrival);
      onTheWay_.pop_front();
    } else {
      received_ += module->Run(due);
    }
  }
}

void FakeLine::Poll() {
  clock_.Hold(PollTime);
  spinning_ += PollTime;
  if (spinning_ > spinLimit) {
    spinning_ = 0;
    throw SpinLimit();
  }
}

int FakeLine::BytesWaiting() {
  Pump();
  FailIfGone();
  if (received_.empty()) clock_.Hold(PollTime);
  return static_cast<int>(received_.size());
}

void FakeLine::FlushInput() {
  Pump();
  FailIfGone();
  calls.emplace_back("flush");
  received_.clear();
}

std::optional<char> FakeLine::Read() {
  Pump();
  FailIfGone();
  if (received_.empty()) {
    Poll();
    return std::nullopt;
  }
  spinning_ = 0;
  const char character = received_.front();
  received_.erase(0, 1);
  return character;
}

void FakeLine::Write(std::string_view characters) {
  Pump();
  FailIfGone();
  written.push_back({clock_.Now(), std::string(characters)});
  if (module == nullptr) return;
  for (const char character : characters) {
    transmitterFree_ = std::max(transmitterFree_, clock_.Now()) + CharacterTime;
    onTheWay_.push_back({transmitterFree_, character});
  }
}

}  // namespace bkconf
