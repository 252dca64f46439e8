#include "shell/qt/arguments.h"

#include <QDir>
#include <QFileInfo>

#include "shell/qt/field_view.h"

namespace bkconf {

std::string Absolute(std::string_view path) {
  return QDir::cleanPath(QFileInfo(ToQt(path)).absoluteFilePath()).toStdString();
}

Arguments ParseArguments(const std::vector<std::string>& words) {
  Arguments arguments;
  const std::string assigned = std::string(DirectoryOption) + "=";
  for (auto word = words.begin(); word != words.end(); ++word) {
    if (*word == "--help" || *word == "-h") {
      arguments.help = true;
    } else if (*word == "--version") {
      arguments.version = true;
    } else if (*word == MinimisedOption) {
      arguments.minimised = true;
    } else if (*word == DirectoryOption && word + 1 != words.end()) {
      arguments.directory = *++word;
    } else if (word->starts_with(assigned)) {
      arguments.directory = word->substr(assigned.size());
    } else if (*word == DirectoryOption) {
      throw ArgumentError(*word + " needs a directory");
    } else if (arguments.file.empty() && !word->empty() && word->front() != '-') {
      arguments.file = *word;
    } else {
      throw ArgumentError("unknown argument " + *word);
    }
  }
  return arguments;
}

std::string HelpText() {
  return "Usage: bkconf [--directory DIR] [FILE]\n"
         "\n"
         "Reads and writes the configuration of home-automation modules on a serial line.\n"
         "Starts with FILE open, where one is given.\n"
         "\n"
         "  --directory DIR  settings, pictures and manuals; laid out there if DIR does not "
         "exist.\n"
         "                   Default: $BKCONF_DIRECTORY, else the directory of the platform\n"
#ifdef Q_OS_WIN
         "                   (c:\\program files\\bkconf)\n"
#else
         "                   ($XDG_DATA_HOME/bkconf or ~/.local/share/bkconf)\n"
#endif
         "  --help           this text\n"
         "  --version        the version of the program\n"
         "\n"
         "A link comN in DIR, N from 1 to 8, is the device of serial port N.\n"
         "\n"
         "Ends with 0, with 1 when DIR could not be laid out, with 2 when an argument is wrong.\n";
}

std::string ChooseDirectory(const Arguments& arguments,
                            const std::function<std::string(const char*)>& variable) {
  if (!arguments.directory.empty()) return Absolute(arguments.directory);
  const std::string chosen = variable("BKCONF_DIRECTORY");
  if (!chosen.empty()) return Absolute(chosen);
#ifdef Q_OS_WIN
  return "c:\\program files\\bkconf";
#else
  const std::string data = variable("XDG_DATA_HOME");
  // A relative path there counts as none.
  if (data.starts_with('/')) return Absolute(data + "/bkconf");
  return Absolute(QDir::homePath().toStdString() + "/.local/share/bkconf");
#endif
}

}  // namespace bkconf
