#include "setup/arguments.h"

namespace setup {
namespace {

/// A single digit from 1 to `last`.
int Digit(const std::string& option, const std::string& value, int last) {
  if (value.size() == 1 && value[0] >= '1' && value[0] <= '0' + last) return value[0] - '0';
  throw ArgumentError(option + " takes a digit from 1 to " + std::to_string(last) + ", not \"" +
                      value + "\"");
}

void Set(Arguments& arguments, const std::string& option, const std::string& value) {
  if (option == "--directory") {
    if (value.empty()) throw ArgumentError("--directory needs a path");
    arguments.directory = value;
  } else if (option == "--language") {
    arguments.language = Digit(option, value, 2);
  } else if (option == "--port") {
    arguments.port = Digit(option, value, 8);
  } else {
    throw ArgumentError("unknown argument " + option);
  }
}

}  // namespace

Arguments ParseArguments(const std::vector<std::string>& words) {
  Arguments arguments;
  for (const std::string& word : words) {
    if (word == "--help" || word == "-h") {
      arguments.help = true;
      return arguments;
    }
  }
  for (std::size_t i = 0; i < words.size(); i += 2) {
    const bool isOption = words[i].starts_with("--");
    if (isOption && i + 1 == words.size()) throw ArgumentError(words[i] + " needs a value");
    Set(arguments, words[i], isOption ? words[i + 1] : "");
  }
  if (arguments.directory.empty()) throw ArgumentError("--directory DIR is missing");
  return arguments;
}

std::string HelpText() {
  return "Usage: bkconf_setup --directory DIR [--language 1|2] [--port N]\n"
         "\n"
         "Lays out a settings directory for bkconf: settings, pictures and manuals. Files that "
         "are\n"
         "there already are left as they are.\n"
         "\n"
         "  --directory DIR  the directory; it and those above it are made where they are missing\n"
         "  --language 1|2   Dutch or French; default: the language of the environment\n"
         "  --port N         number of the serial port, 1 to 8; default: 1\n"
         "  --help           this text\n";
}

}  // namespace setup
