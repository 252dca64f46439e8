#include "platform/disk_directories.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <system_error>
#include <utility>

#include "platform/runtime_error.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace bkconf {
namespace {

namespace fs = std::filesystem;

std::string Utf8(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

/// In small letters, those with accents of Western Europe as well.
std::string Lowered(std::string text) {
  unsigned char before = 0;
  for (char& character : text) {
    const auto code = static_cast<unsigned char>(character);
    const bool plain = code >= 'A' && code <= 'Z';
    // U+00C0 to U+00DE, but for the sign of multiplication.
    const bool accented = before == 0xC3 && code >= 0x80 && code <= 0x9E && code != 0x97;
    if (plain || accented) character = static_cast<char>(code + 0x20);
    before = code;
  }
  return text;
}

void Sort(std::vector<std::string>& names) {
  // Names that differ in case only have an order as well.
  std::sort(names.begin(), names.end(), [](const std::string& one, const std::string& other) {
    return std::pair(Lowered(one), one) < std::pair(Lowered(other), other);
  });
}

[[noreturn]] void ThrowNotRead(const std::string& path, const std::error_code& error) {
  throw RuntimeError(ErrorKind::DirectoryNotRead, path + ": " + error.message());
}

template <typename Predicate>
std::vector<std::string> NamesIn(const std::string& path, Predicate wanted) {
  std::vector<std::string> names;
  std::error_code error;
  fs::directory_iterator entry(fs::u8path(path), error);
  if (error) ThrowNotRead(path, error);
  while (entry != fs::directory_iterator()) {
    std::string name = Utf8(entry->path().filename());
    if (wanted(*entry, name)) names.push_back(std::move(name));
    entry.increment(error);
    if (error) ThrowNotRead(path, error);
  }
  Sort(names);
  return names;
}

bool LiesUnder(std::string_view path, std::string_view directory) {
  return path.starts_with(directory) &&
         (path.size() == directory.size() || path[directory.size()] == '/');
}

bool IsOctal(std::string_view digits) {
  return digits.size() == 3 && std::all_of(digits.begin(), digits.end(),
                                           [](char digit) { return digit >= '0' && digit <= '7'; });
}

/// A blank within a path of a mount table stands there as "\040".
std::string Unescaped(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const std::string_view digits = text.substr(std::min(i + 1, text.size()), 3);
    if (text[i] == '\\' && IsOctal(digits)) {
      plain += static_cast<char>((digits[0] - '0') * 64 + (digits[1] - '0') * 8 + digits[2] - '0');
      i += digits.size();
    } else {
      plain += text[i];
    }
  }
  return plain;
}

#ifndef _WIN32
void AddIfNew(std::vector<std::string>& paths, std::string path) {
  if (std::find(paths.begin(), paths.end(), path) == paths.end()) paths.push_back(std::move(path));
}

/// Empty where there is none.
std::string HomeDirectory() {
  const char* home = std::getenv("HOME");
  std::error_code ignored;
  const bool usable = home != nullptr && *home == '/' && fs::is_directory(home, ignored);
  return usable ? Utf8(fs::path(home).lexically_normal()) : std::string();
}
#endif

}  // namespace

std::vector<std::string> MountedVolumes(std::string_view mountTable) {
  constexpr auto places = std::to_array<std::string_view>({"/media", "/run/media", "/mnt"});
  std::vector<std::string> volumes;
  std::istringstream lines{std::string(mountTable)};
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line);
    std::string device;
    std::string escaped;
    words >> device >> escaped;
    const std::string path = Unescaped(escaped);
    const bool wanted = std::any_of(places.begin(), places.end(), [&path](std::string_view place) {
      return LiesUnder(path, place);
    });
    // A volume that is mounted over another stands there twice.
    if (wanted && std::find(volumes.begin(), volumes.end(), path) == volumes.end()) {
      volumes.push_back(path);
    }
  }
  Sort(volumes);
  return volumes;
}

std::vector<std::string> DiskDirectories::Drives() const {
  std::vector<std::string> drives;
#ifdef _WIN32
  const DWORD present = GetLogicalDrives();
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    if (((present >> (letter - 'A')) & 1U) != 0) drives.push_back(std::string(1, letter) + ":\\");
  }
#else
  drives.emplace_back("/");
  std::string home = HomeDirectory();
  while (home.size() > 1 && home.back() == '/') home.pop_back();
  if (!home.empty()) AddIfNew(drives, std::move(home));
  std::ifstream mounts("/proc/self/mounts");
  const std::string table{std::istreambuf_iterator<char>(mounts), std::istreambuf_iterator<char>()};
  for (std::string& volume : MountedVolumes(table)) AddIfNew(drives, std::move(volume));
#endif
  return drives;
}

std::vector<std::string> DiskDirectories::FoldersIn(const std::string& path) const {
  return NamesIn(path, [](const fs::directory_entry& entry, const std::string& name) {
    std::error_code ignored;
    return !name.starts_with('.') && entry.is_directory(ignored);
  });
}

std::vector<std::string> DiskDirectories::FilesIn(const std::string& path,
                                                  std::string_view ending) const {
  const std::string wanted = Lowered(std::string(ending));
  return NamesIn(path, [&wanted](const fs::directory_entry& entry, const std::string& name) {
    std::error_code ignored;
    return Lowered(name).ends_with(wanted) && entry.is_regular_file(ignored);
  });
}

bool DiskDirectories::Make(const std::string& path) {
  std::error_code ignored;
  return fs::create_directory(fs::u8path(path), ignored);
}

}  // namespace bkconf
