// Lays out a settings directory as an installation does: settings, pictures, manuals, and the speed
// of this computer.
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "setup/arguments.h"
#include "setup/installation.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace {

namespace fs = std::filesystem;

constexpr int WrongUsage = 2;

/// The directory that this program lies in.
fs::path ProgramDirectory([[maybe_unused]] const char* calledAs) {
#ifdef _WIN32
  std::wstring file(32768, L'\0');
  file.resize(GetModuleFileNameW(nullptr, file.data(), static_cast<DWORD>(file.size())));
  return fs::path(file).parent_path();
#else
  std::error_code error;
  const fs::path file = fs::read_symlink("/proc/self/exe", error);
  return (error ? fs::absolute(calledAs) : file).parent_path();
#endif
}

/// French where the environment speaks it, else Dutch.
int LanguageOfEnvironment() {
  for (const char* name : {"LC_ALL", "LANG"}) {
    const char* value = std::getenv(name);
    if (value == nullptr || *value == '\0') continue;
    return std::string_view(value).starts_with("fr") ? 2 : 1;
  }
  return 1;
}

int Run(const setup::Arguments& arguments, const fs::path& share) {
  const setup::Installation installation{
      .language = arguments.language == 0 ? LanguageOfEnvironment() : arguments.language,
      .port = arguments.port,
      .folders = {share / "pictures", share / "manuals"}};
  setup::LayOut(arguments.directory, installation);
  return EXIT_SUCCESS;
}

}  // namespace

int main(int count, char** words) {
  try {
    const auto arguments = setup::ParseArguments({words + 1, words + count});
    if (arguments.help) {
      std::fputs(setup::HelpText().c_str(), stdout);
      return EXIT_SUCCESS;
    }
    return Run(arguments, ProgramDirectory(words[0]).parent_path() / "share" / "bkconf");
  } catch (const setup::ArgumentError& error) {
    std::fprintf(stderr, "bkconf_setup: %s\n%s", error.what(), setup::HelpText().c_str());
    return WrongUsage;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "bkconf_setup: %s\n", error.what());
    return EXIT_FAILURE;
  }
}
