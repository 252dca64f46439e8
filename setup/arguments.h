// The command line of bkconf_setup. Used by its main only.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace setup {

struct Arguments {
  bool help = false;
  std::filesystem::path directory;
  int language = 0;  ///< 1 Dutch, 2 French, 0 when not given
  int port = 1;
};

struct ArgumentError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// `words` without the program's name. Throws ArgumentError, whose text says which word is wrong
/// and why. With --help nothing else is looked at.
Arguments ParseArguments(const std::vector<std::string>& words);

std::string HelpText();

}  // namespace setup
