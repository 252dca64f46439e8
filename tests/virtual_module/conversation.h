// The tool's side of a conversation with a module, on explicit times. Used by the tests of the
// virtual module.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "virtual_module/module.h"

namespace virtual_module {

inline constexpr std::int64_t millisecond = 1000;
inline constexpr std::int64_t second = 1000000;
inline constexpr std::string_view stopFrame = "T99999\n\r";
inline constexpr int everyKind[] = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11};

class Conversation {
 public:
  // A module with default memory of seed 1.
  explicit Conversation(int kind, std::optional<Fault> fault = std::nullopt);
  explicit Conversation(Options options) : module(std::move(options)) {}

  // Runs the module until what it sends ends in `ending`, at most for `limit`. Gives what it sent.
  std::string RunUntil(std::string_view ending, std::int64_t limit = 20 * second);
  std::string RunFor(std::int64_t duration);

  // Characters of the tool, each `gap` after the one before it.
  void Send(std::string_view characters, std::int64_t gap = 1042);

  // Waits for a poll, sends the burst of 22 and gives what comes up to a CR: the identity.
  std::string Wake();

  // Wakes the module and gives its whole answer to a read command, acknowledgement to "STOP".
  std::string Read(std::string_view command);

  // Wakes the module, sends a write command and gives the acknowledgement.
  std::string StartWrite(std::string_view command);

  // Wakes the module, sends the command of a live test and gives the acknowledgement.
  std::string StartTest(std::string_view command) { return StartWrite(command); }

  // Fifty stops without a pause.
  void Stop();

  Module module;
  std::int64_t now = 0;
  std::int64_t lastCharacter = 0;  // when the last character of the module was handed out
};

// The lines of a text without their CR; what stands behind the last CR is a line as well.
std::vector<std::string> LinesOf(std::string_view text);

// A default memory of seed 1 with another version.
Memory MemoryOfVersion(int kind, int version);

// `number` with leading zeros.
std::string Digits(int number, int width);

}  // namespace virtual_module
