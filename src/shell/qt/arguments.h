// The command line of the desktop tool, and where its settings directory lies. Used by main, and by
// the start of a copy of the program.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace bkconf {

inline constexpr std::string_view DirectoryOption = "--directory";
/// Private: a copy that is started after a change of the language shows its window minimised.
inline constexpr std::string_view MinimisedOption = "--minimised";

struct Arguments {
  std::string directory;  ///< empty when not given
  std::string file;       ///< the configuration file to open, as it was given; empty for none
  bool minimised = false;
  bool help = false;
  bool version = false;
};

struct ArgumentError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// `words` without the program's name. Throws ArgumentError, whose text names the wrong word.
Arguments ParseArguments(const std::vector<std::string>& words);

std::string HelpText();

/// A path as given on the command line, seen from the directory in which the program was started.
std::string Absolute(std::string_view path);

/// The directory of the command line, else of the environment, else the fixed one of the platform.
/// Absolute, without a separator at its end. `variable` gives the value of an environment variable,
/// empty if there is none.
std::string ChooseDirectory(const Arguments& arguments,
                            const std::function<std::string(const char*)>& variable);

}  // namespace bkconf
