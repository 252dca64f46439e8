#include "platform/disk_files.h"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/plain_user.h"
#include "platform/runtime_error.h"

namespace bkconf {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

/// No file can be longer than this for a while, as on a disk that is nearly full.
class ShortFilesOnly {
 public:
  explicit ShortFilesOnly(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &before_), 0);
    const rlimit low{.rlim_cur = bytes, .rlim_max = before_.rlim_max};
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &low), 0);
  }
  ~ShortFilesOnly() {
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &before_), 0);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  rlimit before_{};
  void (*handler_)(int);
};

class DiskFilesTest : public testing::Test {
 protected:
  DiskFilesTest() {
    std::string path = (fs::temp_directory_path() / "disk_files_test.XXXXXX").string();
    directory_ = mkdtemp(path.data());
  }
  ~DiskFilesTest() override { fs::remove_all(directory_); }

  std::string Path(const std::string& name) const { return (directory_ / name).string(); }

  /// Lets every user make and remove files in the directory.
  void OpenForAll() const { fs::permissions(directory_, fs::perms::all); }

  static fs::perms PermissionsOf(const std::string& path) { return fs::status(path).permissions(); }

  /// The names of all that lies in the directory.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(directory_)) {
      names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  /// Expects an error that names the path, and this reason behind it.
  void ExpectNotWritten(const std::string& path, const std::string& reason) {
    try {
      files.Write(path, "new");
      FAIL() << "written";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.kind, ErrorKind::FileNotWritten);
      EXPECT_EQ(std::string(error.what()), path + ": " + reason);
    }
  }

  void ExpectNotLoaded(const std::string& path, const std::string& reason) {
    EXPECT_EQ(files.Read(path), std::nullopt);
    try {
      files.Load(path);
      FAIL() << "loaded";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.kind, ErrorKind::FileNotRead);
      EXPECT_EQ(std::string(error.what()), path + ": " + reason);
    }
  }

  DiskFiles files;

 private:
  fs::path directory_;
};

TEST_F(DiskFilesTest, AFileIsReadAsItWasWritten) {
  std::string bytes;
  for (int code = 0; code < 256; ++code) bytes += static_cast<char>(code);
  files.Write(Path("a"), bytes);
  EXPECT_EQ(files.Read(Path("a")), bytes);
  EXPECT_EQ(files.Load(Path("a")), bytes);
}

TEST_F(DiskFilesTest, ALongFileIsReadToItsEnd) {
  const std::string content(100'000, 'x');
  files.Write(Path("a"), content + "y");
  EXPECT_EQ(files.Load(Path("a")), content + "y");
}

TEST_F(DiskFilesTest, LineEndsStayAsTheyAre) {
  files.Write(Path("a"), "1\r\n2\n3");
  std::ifstream file(Path("a"), std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "1\r\n2\n3");
}

TEST_F(DiskFilesTest, AnEmptyFileIsReadAsEmptyAndNotAsMissing) {
  files.Write(Path("a"), "");
  EXPECT_EQ(files.Read(Path("a")), "");
  EXPECT_EQ(files.Load(Path("a")), "");
}

TEST_F(DiskFilesTest, AWriteReplacesTheWholeFile) {
  files.Write(Path("a"), "a long first content");
  files.Write(Path("a"), "short");
  EXPECT_EQ(files.Read(Path("a")), "short");
}

TEST_F(DiskFilesTest, AMissingFileIsNotRead) {
  ExpectNotLoaded(Path("missing"), "No such file or directory");
  ExpectNotLoaded(Path("missing/a"), "No such file or directory");
}

TEST_F(DiskFilesTest, ADirectoryIsNoFile) {
  fs::create_directory(Path("a"));
  ExpectNotLoaded(Path("a"), "Is a directory");
}

TEST_F(DiskFilesTest, APipeIsRefusedAndNotWaitedFor) {
  ASSERT_EQ(mkfifo(Path("a").c_str(), 0600), 0);
  ExpectNotLoaded(Path("a"), "Not a regular file");
  ExpectNotWritten(Path("a"), "Not a regular file");
  EXPECT_TRUE(fs::is_fifo(Path("a")));
}

TEST_F(DiskFilesTest, ADeviceIsRefused) {
  fs::create_symlink("/dev/zero", Path("a"));
  ExpectNotLoaded(Path("a"), "Not a regular file");
  ExpectNotWritten(Path("a"), "Not a regular file");
  EXPECT_TRUE(fs::is_symlink(Path("a")));
}

TEST_F(DiskFilesTest, AFileThatIsFarTooLongIsRefusedByItsSize) {
  files.Write(Path("a"), "");
  fs::resize_file(Path("a"), 256'000'001);
  ExpectNotLoaded(Path("a"), "File too large");
}

/// The system's table of all pages that a program could have tells no size, and is regular.
TEST_F(DiskFilesTest, AFileWithoutASizeIsNotReadWithoutEnd) {
  const std::string endless = "/proc/self/pagemap";
  std::error_code error;
  if (fs::file_size(endless, error) != 0 || error || !std::ifstream(endless)) {
    GTEST_SKIP() << "this system has no such file";
  }
  ExpectNotLoaded(endless, "File too large");
}

TEST_F(DiskFilesTest, AFileThatTheUserMayNotReadTellsSo) {
  OpenForAll();
  files.Write(Path("a"), "secret");
  fs::permissions(Path("a"), fs::perms::none);
  const PlainUser user;
  ExpectNotLoaded(Path("a"), "Permission denied");
}

TEST_F(DiskFilesTest, PathsAreUtf8) {
  files.Write(Path("né°.BK1"), "x");
  EXPECT_EQ(files.Read(Path("né°.BK1")), "x");
}

TEST_F(DiskFilesTest, NothingIsLeftBesideTheFile) {
  files.Write(Path("a"), "1");
  files.Write(Path("a"), "2");
  EXPECT_THAT(Names(), ElementsAre("a"));
}

TEST_F(DiskFilesTest, ANewFileHasThePermissionsThatTheUserGivesNewFiles) {
  const mode_t before = umask(027);
  files.Write(Path("a"), "1");
  umask(before);
  EXPECT_EQ(PermissionsOf(Path("a")), fs::perms(0640));
}

TEST_F(DiskFilesTest, AWriteKeepsPermissionsAndGroup) {
  files.Write(Path("a"), "1");
  fs::permissions(Path("a"), fs::perms(0662));
  const gid_t group = geteuid() == 0 ? 65534 : getgid();
  ASSERT_EQ(chown(Path("a").c_str(), geteuid(), group), 0);
  files.Write(Path("a"), "2");
  EXPECT_EQ(PermissionsOf(Path("a")), fs::perms(0662));
  struct stat now {};
  ASSERT_EQ(stat(Path("a").c_str(), &now), 0);
  EXPECT_EQ(now.st_gid, group);
}

TEST_F(DiskFilesTest, AWriteThroughALinkReplacesItsTargetAndKeepsTheLink) {
  fs::create_directory(Path("far"));
  files.Write(Path("far/target"), "old");
  fs::create_symlink("far/target", Path("second"));
  fs::create_symlink(Path("second"), Path("first"));
  files.Write(Path("first"), "new");
  EXPECT_TRUE(fs::is_symlink(Path("first")));
  EXPECT_TRUE(fs::is_symlink(Path("second")));
  EXPECT_FALSE(fs::is_symlink(Path("far/target")));
  EXPECT_EQ(files.Read(Path("far/target")), "new");
  EXPECT_THAT(Names(), ElementsAre("far", "first", "second"));
}

TEST_F(DiskFilesTest, AWriteThroughALinkToNothingMakesItsTarget) {
  fs::create_symlink("target", Path("link"));
  files.Write(Path("link"), "new");
  EXPECT_TRUE(fs::is_symlink(Path("link")));
  EXPECT_EQ(files.Read(Path("target")), "new");
}

TEST_F(DiskFilesTest, LinksInACircleAreAnError) {
  fs::create_symlink("b", Path("a"));
  fs::create_symlink("a", Path("b"));
  ExpectNotWritten(Path("a"), "Too many levels of symbolic links");
  EXPECT_EQ(files.Read(Path("a")), std::nullopt);
}

TEST_F(DiskFilesTest, AFileThatTheUserMayNotWriteIsNotReplaced) {
  OpenForAll();
  files.Write(Path("a"), "old");
  fs::permissions(Path("a"), fs::perms(0444));
  {
    const PlainUser user;
    ExpectNotWritten(Path("a"), "Permission denied");
  }
  EXPECT_EQ(files.Read(Path("a")), "old");
  EXPECT_THAT(Names(), ElementsAre("a"));
}

TEST_F(DiskFilesTest, AWriteIntoAMissingDirectoryIsAnError) {
  ExpectNotWritten(Path("missing/a"), "No such file or directory");
  EXPECT_TRUE(Names().empty());
}

TEST_F(DiskFilesTest, AWriteIntoAFileIsAnError) {
  files.Write(Path("a"), "old");
  ExpectNotWritten(Path("a/b"), "Not a directory");
}

TEST_F(DiskFilesTest, AWriteOverADirectoryIsAnErrorAndLeavesTheDirectory) {
  fs::create_directory(Path("a"));
  files.Write(Path("a/inside"), "kept");
  ExpectNotWritten(Path("a"), "Is a directory");
  EXPECT_EQ(files.Read(Path("a/inside")), "kept");
  EXPECT_THAT(Names(), ElementsAre("a"));
}

TEST_F(DiskFilesTest, AWriteThatCannotStartLeavesTheOldContent) {
  files.Write(Path("a"), "old");
  // The place beside the file is taken.
  fs::create_directory(Path("a.new"));
  ExpectNotWritten(Path("a"), "File exists");
  EXPECT_EQ(files.Read(Path("a")), "old");
  EXPECT_THAT(Names(), ElementsAre("a", "a.new"));
}

TEST_F(DiskFilesTest, WhatACrashLeftBesideTheFileIsInNobodysWay) {
  files.Write(Path("elsewhere"), "kept");
  fs::create_symlink("elsewhere", Path("a.new"));
  files.Write(Path("a"), "1");
  EXPECT_EQ(files.Read(Path("elsewhere")), "kept");
  files.Write(Path("a.new"), "a much longer content than the next");
  fs::permissions(Path("a.new"), fs::perms::none);
  files.Write(Path("a"), "2");
  EXPECT_EQ(files.Read(Path("a")), "2");
  EXPECT_NE(PermissionsOf(Path("a")), fs::perms::none);
  EXPECT_THAT(Names(), ElementsAre("a", "elsewhere"));
}

TEST_F(DiskFilesTest, AWriteOntoAFullDiskLeavesTheOldContentAndNothingBesideIt) {
  files.Write(Path("a"), "old");
  {
    const ShortFilesOnly full(2);
    ExpectNotWritten(Path("a"), "File too large");
  }
  EXPECT_EQ(files.Read(Path("a")), "old");
  EXPECT_THAT(Names(), ElementsAre("a"));
}

}  // namespace
}  // namespace bkconf
