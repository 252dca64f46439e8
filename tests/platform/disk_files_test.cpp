#include "platform/disk_files.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "platform/runtime_error.h"

namespace bkconf {
namespace {

namespace fs = std::filesystem;

class DiskFilesTest : public testing::Test {
 protected:
  DiskFilesTest() {
    std::string path = (fs::temp_directory_path() / "disk_files_test.XXXXXX").string();
    directory_ = mkdtemp(path.data());
  }
  ~DiskFilesTest() override { fs::remove_all(directory_); }

  std::string Path(const std::string& name) const { return (directory_ / name).string(); }

  /// The names of all that lies in the directory.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(directory_)) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }

  void ExpectNotWritten(const std::string& path) {
    try {
      files.Write(path, "new");
      FAIL() << "written";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.kind, ErrorKind::FileNotWritten);
      EXPECT_EQ(std::string(error.what()).find(path + ": "), 0U) << error.what();
      EXPECT_GT(std::string(error.what()).size(), path.size() + 2) << "no reason is told";
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
}

TEST_F(DiskFilesTest, LineEndsStayAsTheyAre) {
  files.Write(Path("a"), "1\r\n2\n3");
  std::ifstream file(Path("a"), std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), "1\r\n2\n3");
}

TEST_F(DiskFilesTest, AnEmptyFileIsReadAsEmptyAndNotAsMissing) {
  files.Write(Path("a"), "");
  EXPECT_EQ(files.Read(Path("a")), "");
}

TEST_F(DiskFilesTest, AWriteReplacesTheWholeFile) {
  files.Write(Path("a"), "a long first content");
  files.Write(Path("a"), "short");
  EXPECT_EQ(files.Read(Path("a")), "short");
}

TEST_F(DiskFilesTest, AMissingFileGivesNone) {
  EXPECT_EQ(files.Read(Path("missing")), std::nullopt);
  EXPECT_EQ(files.Read(Path("missing/a")), std::nullopt);
}

TEST_F(DiskFilesTest, ADirectoryIsNoFile) {
  fs::create_directory(Path("a"));
  EXPECT_EQ(files.Read(Path("a")), std::nullopt);
}

TEST_F(DiskFilesTest, PathsAreUtf8) {
  files.Write(Path("né°.BK1"), "x");
  EXPECT_EQ(files.Read(Path("né°.BK1")), "x");
}

TEST_F(DiskFilesTest, NothingIsLeftBesideTheFile) {
  files.Write(Path("a"), "1");
  files.Write(Path("a"), "2");
  EXPECT_EQ(Names(), std::vector<std::string>{"a"});
}

TEST_F(DiskFilesTest, AWriteIntoAMissingDirectoryIsAnErrorThatNamesPathAndReason) {
  ExpectNotWritten(Path("missing/a"));
  EXPECT_TRUE(Names().empty());
}

TEST_F(DiskFilesTest, AWriteOverADirectoryIsAnErrorAndLeavesTheDirectory) {
  fs::create_directory(Path("a"));
  files.Write(Path("a/inside"), "kept");
  ExpectNotWritten(Path("a"));
  EXPECT_EQ(files.Read(Path("a/inside")), "kept");
  EXPECT_EQ(Names(), std::vector<std::string>{"a"});
}

TEST_F(DiskFilesTest, AWriteThatCannotStartLeavesTheOldContent) {
  files.Write(Path("a"), "old");
  // The place beside the file is taken.
  fs::create_directory(Path("a.new"));
  ExpectNotWritten(Path("a"));
  EXPECT_EQ(files.Read(Path("a")), "old");
}

#ifdef __linux__
TEST_F(DiskFilesTest, AWriteOntoAFullDiskLeavesTheOldContentAndNothingBesideIt) {
  files.Write(Path("a"), "old");
  fs::create_symlink("/dev/full", Path("a.new"));
  ExpectNotWritten(Path("a"));
  EXPECT_EQ(files.Read(Path("a")), "old");
  EXPECT_EQ(Names(), std::vector<std::string>{"a"});
}
#endif

}  // namespace
}  // namespace bkconf
