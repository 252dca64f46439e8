// One completed unit of a conversation, in either direction. Used by tests that look at what went
// over the line and by the program's log.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "virtual_module/kinds.h"

namespace virtual_module {

enum class UnitKind {
  Burst,    // from the tool: "D" without a terminator, `count` of them
  Command,  // from the tool: up to CR
  Frame,    // from the tool: one cell of a write, or what it says in a live test
  Noise,    // from the tool: characters that begin nothing
  Polls,    // from the module: `count` times "M", the characters 50 ms apart
  Line,     // from the module: up to CR, or the part of it that left before a break
};

struct FrameRecord {
  UnitKind kind = UnitKind::Noise;
  std::int64_t firstByte = 0;  // microseconds: when it arrived, or when its last bit had left
  std::int64_t lastByte = 0;
  std::string text;   // the bytes as they were; a run of polls is one "M"
  int count = 1;      // Burst, Polls: how many characters
  std::string error;  // empty when the unit is what was due here

  // Frame only.
  std::string command;  // the write or test that it belongs to
  std::string meaning;  // in a live test: what the module did on it

  // Frame of a write only.
  int wireIndex = -1;              // the three digits behind the "T", -1 when they are none
  std::optional<TableName> table;  // where its value was stored, if it was
  int cell = -1;
  int value = -1;
};

}  // namespace virtual_module
