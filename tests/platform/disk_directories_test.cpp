#include "platform/disk_directories.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/plain_user.h"
#include "platform/runtime_error.h"

namespace bkconf {
namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

/// The variable HOME, for a while.
class Home {
 public:
  explicit Home(const char* path) : before_(Current()) { Set(path); }
  ~Home() { Set(before_.empty() ? nullptr : before_.c_str()); }

 private:
  static std::string Current() {
    const char* home = std::getenv("HOME");
    return home == nullptr ? "" : home;
  }
  static void Set(const char* path) {
    if (path == nullptr) {
      unsetenv("HOME");
    } else {
      setenv("HOME", path, 1);
    }
  }

  std::string before_;
};

class DiskDirectoriesTest : public testing::Test {
 protected:
  DiskDirectoriesTest() {
    std::string path = (fs::temp_directory_path() / "disk_directories_test.XXXXXX").string();
    directory_ = mkdtemp(path.data());
  }
  ~DiskDirectoriesTest() override { fs::remove_all(directory_); }

  std::string Path(const std::string& name = "") const {
    return name.empty() ? directory_.string() : (directory_ / name).string();
  }
  void MakeFile(const std::string& name) const { std::ofstream(directory_ / name) << "x"; }
  void MakeFolder(const std::string& name) const { fs::create_directory(directory_ / name); }

  void ExpectNotRead(const std::string& path, const std::string& reason) const {
    for (const bool folders : {true, false}) {
      try {
        folders ? directories.FoldersIn(path) : directories.FilesIn(path, "");
        FAIL() << "read";
      } catch (const RuntimeError& error) {
        EXPECT_EQ(error.kind, ErrorKind::DirectoryNotRead);
        EXPECT_EQ(std::string(error.what()), path + ": " + reason);
      }
    }
  }

  DiskDirectories directories;

 private:
  fs::path directory_;
};

TEST_F(DiskDirectoriesTest, FoldersAndFilesAreToldApart) {
  MakeFolder("folder");
  MakeFile("file");
  EXPECT_THAT(directories.FoldersIn(Path()), ElementsAre("folder"));
  EXPECT_THAT(directories.FilesIn(Path(), ""), ElementsAre("file"));
}

TEST_F(DiskDirectoriesTest, NamesComeInTheOrderOfTheAlphabetWhateverTheirCase) {
  for (const char* name : {"b", "a", "C", "é", "Éa", "B", "a 2", "z"}) MakeFolder(name);
  EXPECT_THAT(directories.FoldersIn(Path()),
              ElementsAre("a", "a 2", "B", "b", "C", "z", "é", "Éa"));
}

TEST_F(DiskDirectoriesTest, HiddenFoldersAreLeftOut) {
  MakeFolder(".hidden");
  MakeFolder("seen");
  EXPECT_THAT(directories.FoldersIn(Path()), ElementsAre("seen"));
}

TEST_F(DiskDirectoriesTest, FilesAreChosenByTheirEndingWhateverItsCase) {
  for (const char* name : {"a.BK1", "b.bk1", "c.Bk1", "d.BK1.txt", "BK1", "e.BK12"}) MakeFile(name);
  MakeFolder("f.BK1");
  EXPECT_THAT(directories.FilesIn(Path(), ".BK1"), ElementsAre("a.BK1", "b.bk1", "c.Bk1"));
}

TEST_F(DiskDirectoriesTest, LinksAreWhatTheyLeadTo) {
  MakeFolder("folder");
  MakeFile("file");
  fs::create_symlink("folder", Path("to folder"));
  fs::create_symlink("file", Path("to file"));
  fs::create_symlink("nothing", Path("to nothing"));
  fs::create_symlink("circle", Path("circle"));
  EXPECT_THAT(directories.FoldersIn(Path()), ElementsAre("folder", "to folder"));
  EXPECT_THAT(directories.FilesIn(Path(), ""), ElementsAre("file", "to file"));
}

TEST_F(DiskDirectoriesTest, WhatIsNeitherFileNorFolderIsLeftOut) {
  ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
  EXPECT_THAT(directories.FoldersIn(Path()), IsEmpty());
  EXPECT_THAT(directories.FilesIn(Path(), ""), IsEmpty());
}

TEST_F(DiskDirectoriesTest, ADirectoryThatCannotBeReadIsAnErrorWithPathAndReason) {
  ExpectNotRead(Path("missing"), "No such file or directory");
  ExpectNotRead("", "No such file or directory");
  MakeFile("file");
  ExpectNotRead(Path("file"), "Not a directory");
}

TEST_F(DiskDirectoriesTest, ADirectoryThatTheUserMayNotReadIsAnError) {
  fs::permissions(Path(), fs::perms(0755));
  MakeFolder("closed");
  fs::permissions(Path("closed"), fs::perms::none);
  const PlainUser user;
  ExpectNotRead(Path("closed"), "Permission denied");
  EXPECT_THAT(directories.FoldersIn(Path()), ElementsAre("closed"));
}

TEST_F(DiskDirectoriesTest, AFolderIsMadeOneLevelDeep) {
  EXPECT_TRUE(directories.Make(Path("één")));
  EXPECT_TRUE(fs::is_directory(Path("één")));
  EXPECT_FALSE(directories.Make(Path("two/levels")));
  EXPECT_FALSE(fs::exists(Path("two")));
}

TEST_F(DiskDirectoriesTest, WhatIsThereIsNotMade) {
  MakeFile("file");
  MakeFolder("folder");
  EXPECT_FALSE(directories.Make(Path("file")));
  EXPECT_FALSE(directories.Make(Path("folder")));
  EXPECT_FALSE(directories.Make(""));
}

TEST_F(DiskDirectoriesTest, TheDrivesAreTheRootAndTheUsersOwnDirectory) {
  const Home home((Path() + "/").c_str());
  const std::vector<std::string> drives = directories.Drives();
  ASSERT_GE(drives.size(), 2U);
  EXPECT_EQ(drives[0], "/");
  EXPECT_EQ(drives[1], Path());
}

TEST_F(DiskDirectoriesTest, AUserWithoutADirectoryOfHisOwnHasTheRoot) {
  for (const char* path : {static_cast<const char*>(nullptr), "", "relative", "/missing", "/"}) {
    const Home home(path);
    const std::vector<std::string> drives = directories.Drives();
    EXPECT_EQ(std::count(drives.begin(), drives.end(), "/"), 1);
    EXPECT_EQ(drives.front(), "/");
    EXPECT_THAT(drives, testing::Not(Contains("")));
    EXPECT_THAT(drives, testing::Not(Contains("/missing")));
  }
}

TEST(MountedVolumes, AreThoseThatUsersLookFor) {
  EXPECT_THAT(MountedVolumes("/dev/sda1 / ext4 rw 0 0\n"
                             "proc /proc proc rw 0 0\n"
                             "/dev/sdc1 /run/media/jan/STICK vfat rw 0 0\n"
                             "/dev/sdb1 /media/jan/Disk ext4 rw 0 0\n"
                             "tmpfs /run tmpfs rw 0 0\n"
                             "server:/share /mnt nfs rw 0 0\n"
                             "/dev/sdd1 /mnt2 ext4 rw 0 0\n"
                             "/dev/sde1 /home/mnt ext4 rw 0 0\n"),
              ElementsAre("/media/jan/Disk", "/mnt", "/run/media/jan/STICK"));
}

TEST(MountedVolumes, HaveBlanksInTheirNames) {
  EXPECT_THAT(MountedVolumes("/dev/sdb1 /media/jan/USB\\040\\0402\\134x\\1 vfat rw 0 0\n"),
              ElementsAre("/media/jan/USB  2\\x\\1"));
}

TEST(MountedVolumes, StandOnceEvenIfMountedOverEachOther) {
  EXPECT_THAT(MountedVolumes("systemd-1 /mnt/nas autofs rw 0 0\nserver:/x /mnt/nas nfs rw 0 0\n"),
              ElementsAre("/mnt/nas"));
}

TEST(MountedVolumes, AreNoneInWhatIsNoTable) {
  EXPECT_THAT(MountedVolumes(""), IsEmpty());
  EXPECT_THAT(MountedVolumes("\n\nword\n/dev/sdb1 /media/cut\\04"), ElementsAre("/media/cut\\04"));
}

}  // namespace
}  // namespace bkconf
