// What a module sends in answer to a read command, as a whole: acknowledgement, cells, end. Used
// by the module model only.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "virtual_module/fault.h"
#include "virtual_module/memory.h"

namespace virtual_module {

// What the module does when everything has been sent.
enum class ScriptEnd { Poll, FallSilent, Vanish };

struct ReadScript {
  std::vector<std::string> lines;  // each with its CR; the last one may be broken off
  ScriptEnd end = ScriptEnd::Poll;
};

// The answer to `command` out of `memory`, bent by `fault` where it concerns reads. Empty lines
// when the kind does not know the command as a read.
ReadScript ReadScriptOf(const Memory& memory, std::string_view command, std::optional<Fault> fault,
                        std::uint32_t seed);

}  // namespace virtual_module
