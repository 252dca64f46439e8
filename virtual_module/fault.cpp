#include "virtual_module/fault.h"

namespace virtual_module {
namespace {

constexpr FaultRow faultRows[] = {
    {Fault::Silent, "silent", "never polls and never answers"},
    {Fault::SilentAfterIdentity, "silent-after-identity",
     "gives its identity and nothing after it"},
    {Fault::SilentAfterCommand, "silent-after-command", "takes a command and does not answer it"},
    {Fault::StopsWithinLine, "stops-within-line",
     "goes silent within the line in the middle of a read, or within the sixth of an endless test"},
    {Fault::NoStop, "no-stop", "sends every line of a read or a test, no STOP, and then nothing"},
    {Fault::ShortStream, "short-stream",
     "sends the first half of the lines of a read or a test, then STOP"},
    {Fault::OutOfOrder, "out-of-order",
     "shuffles the cells of a read by the seed, but for the last one"},
    {Fault::CorruptDigits, "corrupt-digits",
     "puts an \"x\" within the value of every tenth line of a read or a test"},
    {Fault::WrongIdentity, "wrong-identity", "gives the identity of another kind"},
    {Fault::UnknownIdentity, "unknown-identity", "gives the identity DISPLX"},
    {Fault::IndexBeyondTable, "index-beyond-table",
     "puts an index past the table into the line in the middle of a read (a plain table of 1000 "
     "cells has none and is read as ever), and 99 into every tenth line of buttons or detectors"},
    {Fault::TooManyLines, "too-many-lines",
     "repeats the first cell eight times before the last one of a read, or has eight samples or "
     "clock lines more"},
    {Fault::PollDuringIdentity, "poll-during-identity",
     "answers the first wake-up with one more poll, and behaves from the second on"},
    {Fault::VanishInRead, "vanish-in-read",
     "the port disappears after half of a read or a test, or the fifth line of an endless one"},
    {Fault::VanishInWrite, "vanish-in-write",
     "the port disappears after half of a write, at the latest after 20 frames"},
};

}  // namespace

std::span<const FaultRow> Faults() {
  return faultRows;
}

std::optional<Fault> FaultByName(std::string_view name) {
  for (const FaultRow& row : faultRows) {
    if (row.name == name) {
      return row.fault;
    }
  }
  return std::nullopt;
}

}  // namespace virtual_module
