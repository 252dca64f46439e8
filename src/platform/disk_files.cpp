#include "platform/disk_files.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "platform/runtime_error.h"

#if defined(__unix__) || defined(__APPLE__)
#include <unistd.h>
#endif

namespace bkconf {
namespace {

namespace fs = std::filesystem;

std::string LastReason() {
  return std::generic_category().message(errno);
}

/// Makes what was written survive a crash of the machine, not only of the program.
bool Sync(std::FILE* file) {
  if (std::fflush(file) != 0) return false;
#if defined(__unix__) || defined(__APPLE__)
  return fsync(fileno(file)) == 0;
#else
  return true;
#endif
}

}  // namespace

std::optional<std::string> DiskFiles::Read(const std::string& path) const {
  std::error_code ignored;
  if (fs::is_directory(fs::u8path(path), ignored)) return std::nullopt;
  std::ifstream file(fs::u8path(path), std::ios::binary);
  if (!file) return std::nullopt;
  std::string content{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  if (file.bad()) return std::nullopt;
  return content;
}

void DiskFiles::Write(const std::string& path, std::string_view content) {
  const std::string beside = path + ".new";
  std::FILE* file = std::fopen(beside.c_str(), "wb");
  if (file == nullptr) throw RuntimeError(ErrorKind::FileNotWritten, path + ": " + LastReason());
  const bool written =
      std::fwrite(content.data(), 1, content.size(), file) == content.size() && Sync(file);
  std::string reason = written ? "" : LastReason();
  if (std::fclose(file) != 0 && reason.empty()) reason = LastReason();
  std::error_code error;
  if (reason.empty()) {
    fs::rename(fs::u8path(beside), fs::u8path(path), error);
    if (!error) return;
    reason = error.message();
  }
  fs::remove(fs::u8path(beside), error);
  throw RuntimeError(ErrorKind::FileNotWritten, path + ": " + reason);
}

}  // namespace bkconf
