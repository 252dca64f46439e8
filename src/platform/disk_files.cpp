#include "platform/disk_files.h"

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "platform/runtime_error.h"

#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#include <unistd.h>
#endif

namespace bkconf {
namespace {

namespace fs = std::filesystem;

std::string LastReason() {
  return std::generic_category().message(errno);
}

/// Makes what was written survive a crash of the machine, not only of the program.
bool Sync([[maybe_unused]] const std::string& path) {
#if defined(__unix__) || defined(__APPLE__)
  const int file = open(path.c_str(), O_WRONLY | O_CLOEXEC);
  if (file < 0) return false;
  const bool synced = fsync(file) == 0;
  return close(file) == 0 && synced;
#else
  return true;
#endif
}

/// Empty when the content is on the disk, else the reason why it is not.
std::string WriteWhole(const std::string& path, std::string_view content) {
  std::ofstream file(fs::u8path(path), std::ios::binary | std::ios::trunc);
  file.write(content.data(), static_cast<std::streamsize>(content.size()));
  file.close();
  return file && Sync(path) ? "" : LastReason();
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
  std::string reason = WriteWhole(beside, content);
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
