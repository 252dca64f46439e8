// The frames with which a tool speaks to a module in a live test: each ends in LF and CR. Used by
// the module model only.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace virtual_module {

enum class LiveFrameKind {
  Stop,            // "T99999"
  StopOutputs,     // "T99", of kinds that have outputs to test
  Output,          // "T", output 00..98
  Time,            // "T", hour, minute, one digit of weekday
  Date,            // "T", day, month, year of two digits
  AnnounceUpdate,  // "T88888"
  Reference,       // "A", detector of two digits, level of three, code of two
};

struct LiveFrame {
  LiveFrameKind kind;
  std::array<int, 3> numbers = {};  // as they follow one another in the frame
};

// What `text`, with its LF and CR, says to a module of `moduleKind`; none when it is no frame of a
// test that this kind has. The numbers are not looked at but for their digits.
std::optional<LiveFrame> LiveFrameOf(int moduleKind, std::string_view text);

}  // namespace virtual_module
