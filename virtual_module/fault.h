// The ways in which a module can be made to misbehave, by name. Used by the module model, by the
// program's --fault and by tests.
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace virtual_module {

enum class Fault {
  Silent,
  SilentAfterIdentity,
  SilentAfterCommand,
  StopsWithinLine,
  NoStop,
  ShortStream,
  OutOfOrder,
  CorruptDigits,
  WrongIdentity,
  UnknownIdentity,
  IndexBeyondTable,
  TooManyLines,
  PollDuringIdentity,
  VanishInRead,
  VanishInWrite,
};

struct FaultRow {
  Fault fault;
  std::string_view name;
  std::string_view description;
};

std::span<const FaultRow> Faults();
std::optional<Fault> FaultByName(std::string_view name);

}  // namespace virtual_module
