// The command line of the program virtual_module. Used by its main only.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "virtual_module/fault.h"
#include "virtual_module/module_clock.h"

namespace virtual_module {

struct Arguments {
  bool help = false;
  int kind = -1;
  std::filesystem::path link;
  std::optional<std::filesystem::path> image;
  std::optional<std::filesystem::path> save;
  std::optional<std::filesystem::path> log;
  std::optional<Fault> fault;
  std::uint32_t seed = 1;
  ClockTime clock;
  std::int64_t pressEvery = 0;  // us; 0: never
};

struct ArgumentError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// `words` without the program's name. Throws ArgumentError, whose text says which word is wrong and
// why. With --help nothing else is looked at.
Arguments ParseArguments(const std::vector<std::string>& words);

// What --help prints: options, standard input, kinds, faults.
std::string HelpText();

}  // namespace virtual_module
