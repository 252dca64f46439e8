// The module's transmitter: takes texts and lets their characters leave at 9600 baud. Used by the
// module model only.
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "virtual_module/frame_record.h"

namespace virtual_module {

// Time of the model, in thirds of a microsecond: a character of ten bits at 9600 baud takes
// 1041.667 us, which is a whole number of thirds, so that a long stream does not drift.
using Thirds = std::int64_t;
inline constexpr Thirds thirdsPerMicrosecond = 3;
inline constexpr Thirds characterTime = 3125;

constexpr Thirds Milliseconds(std::int64_t count) {
  return count * 1000 * thirdsPerMicrosecond;
}

// The first whole microsecond at or after `time`.
constexpr std::int64_t MicrosecondsOf(Thirds time) {
  return (time + thirdsPerMicrosecond - 1) / thirdsPerMicrosecond;
}

class Transmitter {
 public:
  // Appends a unit. Its first character has left one character time after the one before it, or
  // after `now` when nothing is being sent.
  void Queue(UnitKind kind, std::string text, Thirds now);

  // When the next character will have left; none when nothing is queued.
  std::optional<Thirds> NextLeave() const;

  // Lets the next character leave, and gives it. NextLeave() must not be none.
  char Leave();

  // When the last character left; 0 before the first one.
  Thirds lastLeave() const { return lastLeave_; }

  // Forgets what has not left. What has left of a unit is recorded as it is.
  void Drop();

  // Forgets the units of which nothing has left: the one that is leaving is completed.
  void DropWaiting();

  // Completed units; polls that follow one another are one record, which stands here once the run
  // is over.
  const std::vector<FrameRecord>& sent() const { return sent_; }
  // The run of polls that is still going on.
  const std::optional<FrameRecord>& polls() const { return polls_; }
  void EndPolls();

 private:
  struct Unit {
    UnitKind kind;
    std::string text;
  };

  void Complete(UnitKind kind, std::string text);

  std::deque<Unit> units_;
  std::size_t position_ = 0;  // in the first unit
  Thirds nextLeave_ = 0;
  Thirds lastLeave_ = 0;
  std::int64_t firstByte_ = 0;
  std::int64_t lastByte_ = 0;
  std::vector<FrameRecord> sent_;
  std::optional<FrameRecord> polls_;
};

}  // namespace virtual_module
