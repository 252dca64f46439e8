#include "platform/disk_files.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "platform/runtime_error.h"

#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace bkconf {
namespace {

namespace fs = std::filesystem;

/// Why something failed, in the words of the system; empty when it did not.
using Reason = std::string;

Reason ReasonOf(std::errc error) {
  return std::make_error_code(error).message();
}

Reason LastReason() {
  return errno == 0 ? ReasonOf(std::errc::io_error) : std::generic_category().message(errno);
}

Reason WhyNotRegular(const fs::path& path, std::error_code& error) {
  const fs::file_status status = fs::status(path, error);
  if (status.type() == fs::file_type::not_found) {
    error = std::make_error_code(std::errc::no_such_file_or_directory);
  }
  if (error || fs::is_regular_file(status)) return error ? error.message() : "";
  if (fs::is_directory(status)) return ReasonOf(std::errc::is_a_directory);
  return "Not a regular file";
}

/// Far beyond every file of the tool, and well within the memory of a computer.
constexpr std::uintmax_t LargestFile = 256'000'000;

Reason ReadWhole(const std::string& path, std::string& content) {
  const fs::path name = fs::u8path(path);
  std::error_code error;
  if (Reason reason = WhyNotRegular(name, error); !reason.empty()) return reason;
  const std::uintmax_t size = fs::file_size(name, error);
  if (error) return error.message();
  if (size > LargestFile) return ReasonOf(std::errc::file_too_large);
  errno = 0;
  std::ifstream file(name, std::ios::binary);
  if (!file) return LastReason();
  std::array<char, 16384> piece;
  while (file) {
    file.read(piece.data(), piece.size());
    content.append(piece.data(), static_cast<std::size_t>(file.gcount()));
    // A file may grow meanwhile, and some that the system makes up tell no size.
    if (content.size() > LargestFile) return ReasonOf(std::errc::file_too_large);
  }
  return file.bad() ? LastReason() : "";
}

/// The file that a write replaces: the target of symbolic links, also where it is not there yet.
Reason FollowLinks(fs::path& path) {
  constexpr int mostLinks = 40;
  std::error_code error;
  for (int links = 0; fs::is_symlink(fs::symlink_status(path, error)); ++links) {
    if (links == mostLinks) return ReasonOf(std::errc::too_many_symbolic_link_levels);
    const fs::path target = fs::read_symlink(path, error);
    if (error) return error.message();
    path = path.parent_path() / target;  // an absolute target stands for itself
  }
  return "";
}

#if defined(__unix__) || defined(__APPLE__)

/// A descriptor that is closed with its scope.
class Descriptor {
 public:
  Descriptor(const fs::path& path, int flags, mode_t mode = 0)
      : number_(open(path.c_str(), flags | O_CLOEXEC, mode)) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }

  bool IsOpen() const { return number_ >= 0; }
  int Number() const { return number_; }

 private:
  int number_;
};

/// Whether the user may write the file that is there: a rename over it asks the directory alone.
Reason WhyNotWritable(const fs::path& path) {
  return Descriptor(path, O_WRONLY).IsOpen() ? "" : LastReason();
}

bool WriteAll(int file, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = write(file, content.data(), content.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

/// Gives a new file the permissions of the old one, and its owner where the user may do that. Not
/// every file system keeps such things; the content counts.
void MakeLike(int file, const struct stat& old) {
  // Only an administrator may give files away; to a group of his own, any user.
  [[maybe_unused]] bool kept = fchown(file, old.st_uid, old.st_gid) == 0 ||
                               fchown(file, static_cast<uid_t>(-1), old.st_gid) == 0;
  kept = fchmod(file, old.st_mode & 0777) == 0;
}

/// Makes a file with this content that survives a crash of the machine, not only of the program.
Reason WriteBeside(const fs::path& beside, const fs::path& path, std::string_view content) {
  struct stat old {};
  const bool replaces = stat(path.c_str(), &old) == 0;
  // What an earlier crash left goes, with whatever permissions it has. A directory stays.
  unlink(beside.c_str());
  const Descriptor file(beside, O_WRONLY | O_CREAT | O_EXCL, 0666);
  if (!file.IsOpen()) return LastReason();
  if (replaces) MakeLike(file.Number(), old);
  if (!WriteAll(file.Number(), content) || fsync(file.Number()) != 0) {
    Reason reason = LastReason();
    unlink(beside.c_str());
    return reason;
  }
  return "";
}

/// Makes a rename survive a crash of the machine. Where the file system cannot do that there is
/// nothing to tell: the file is written.
void SyncDirectory(const fs::path& directory) {
  const Descriptor file(directory.empty() ? "." : directory, O_RDONLY | O_DIRECTORY);
  if (file.IsOpen()) fsync(file.Number());
}

#else

/// The rename over a file that is read-only fails by itself.
Reason WhyNotWritable(const fs::path&) {
  return "";
}

Reason WriteBeside(const fs::path& beside, const fs::path&, std::string_view content) {
  errno = 0;
  std::ofstream file(beside, std::ios::binary | std::ios::trunc);
  if (!file) return LastReason();
  file.write(content.data(), static_cast<std::streamsize>(content.size()));
  file.close();
  if (file) return "";
  Reason reason = LastReason();
  std::error_code ignored;
  fs::remove(beside, ignored);
  return reason;
}

void SyncDirectory(const fs::path&) {}

#endif

/// A file that is missing can be written; one that is there has to be the user's to write.
Reason WhyNotReplaceable(const fs::path& path) {
  std::error_code error;
  Reason reason = WhyNotRegular(path, error);
  if (error == std::errc::no_such_file_or_directory) return "";
  return reason.empty() ? WhyNotWritable(path) : reason;
}

Reason Replace(fs::path path, std::string_view content) {
  if (Reason reason = FollowLinks(path); !reason.empty()) return reason;
  if (Reason reason = WhyNotReplaceable(path); !reason.empty()) return reason;
  fs::path beside = path;
  beside += ".new";
  if (Reason reason = WriteBeside(beside, path, content); !reason.empty()) return reason;
  std::error_code error;
  fs::rename(beside, path, error);
  if (error) {
    std::error_code ignored;
    fs::remove(beside, ignored);
    return error.message();
  }
  SyncDirectory(path.parent_path());
  return "";
}

}  // namespace

std::optional<std::string> DiskFiles::Read(const std::string& path) const {
  std::string content;
  if (!ReadWhole(path, content).empty()) return std::nullopt;
  return content;
}

std::string DiskFiles::Load(const std::string& path) const {
  std::string content;
  Reason reason = ReadWhole(path, content);
  if (!reason.empty()) throw RuntimeError(ErrorKind::FileNotRead, path + ": " + reason);
  return content;
}

void DiskFiles::Write(const std::string& path, std::string_view content) {
  Reason reason = Replace(fs::u8path(path), content);
  if (!reason.empty()) throw RuntimeError(ErrorKind::FileNotWritten, path + ": " + reason);
}

}  // namespace bkconf
