#include "shell/open_dialog.h"

#include <gtest/gtest.h>

#include "image/file_lines.h"
#include "platform/runtime_error.h"
#include "session/settings.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

using Names = std::vector<std::string>;

class OpenDialogTest : public SessionTest {
 protected:
  OpenDialogTest() {
    files.content["/house/a.BK1"] = FileOf(0);
    files.content["/house/b.bk1"] = FileOf(7);
    files.content["/house/notes.txt"] = "no module";
    files.content["/house/Attic/c.BK1"] = FileOf(5);
    files.content["/media/stick/d.BK1"] = FileOf(8);
    files.content["/settings/e.BK1"] = FileOf(3);
  }

  /// Starts with this content of "directory.vdm", and opens the dialog.
  void ShowWith(const std::string& directory) {
    PutSettings();
    files.content[SettingsPath("directory.vdm")] = directory;
    StartSession(LoadMainWindow, [](const std::string&) {});
    MainWindow.openen.Click();
  }
  void ShowDialog() {
    Start();
    MainWindow.openen.Click();
  }
  /// Double-clicks a directory of the list.
  static void Enter(const std::string& name) {
    const auto& items = OpenDialog.directories.Items();
    const auto item = std::find(items.begin(), items.end(), name);
    ASSERT_NE(item, items.end()) << name;
    OpenDialog.directories.Open(static_cast<int>(item - items.begin()));
  }
};

TEST_F(OpenDialogTest, ItsTextsAreThoseOfTheLanguage) {
  for (const int language : {1, 2}) {
    Start(language);
    MainWindow.openen.Click();
    EXPECT_TRUE(OpenDialog.shown);
    EXPECT_EQ(OpenDialog.title, language == 1 ? "Openen" : "Ouvrir");
    EXPECT_EQ(OpenDialog.directoryLabel.caption, language == 1 ? "Zoeken in:" : "Ouvrir dans:");
    EXPECT_EQ(OpenDialog.open.caption, language == 1 ? "Openen" : "Ouvrir");
    EXPECT_EQ(OpenDialog.defaultDirectory.caption, "Default directory");
  }
}

TEST_F(OpenDialogTest, StartsInTheDefaultDirectoryWithItsFilesInEitherCase) {
  ShowDialog();
  EXPECT_EQ(OpenDialog.path.caption, "/house");
  EXPECT_EQ(OpenDialog.files.Items(), (Names{"a.BK1", "b.bk1"}));
  EXPECT_EQ(OpenDialog.files.Index(), -1);
  EXPECT_EQ(OpenDialog.directories.Items(), (Names{"..", "Attic", "Cellar"}));
}

TEST_F(OpenDialogTest, StartsInTheToolsOwnDirectoryWhereTheSettingIsEmpty) {
  ShowWith("");
  EXPECT_EQ(OpenDialog.path.caption, "/settings");
  EXPECT_EQ(OpenDialog.files.Items(), Names{"e.BK1"});
}

TEST_F(OpenDialogTest, StartsInTheToolsOwnDirectoryWhereTheDefaultOneIsGoneAndStoresNothing) {
  ShowWith("/gone\r\n");
  EXPECT_TRUE(OpenDialog.shown);
  EXPECT_EQ(OpenDialog.path.caption, "/settings");
  EXPECT_EQ(DefaultDirectory, Cell("/gone"));
  EXPECT_EQ(files.content[SettingsPath("directory.vdm")], "/gone\r\n");
  EXPECT_TRUE(messages.told.empty());
}

TEST_F(OpenDialogTest, EveryTimeItIsShownItStartsInTheDefaultDirectory) {
  ShowDialog();
  Enter("Attic");
  OpenDialog.Close();
  files.content["/house/new.BK1"] = FileOf(0);
  MainWindow.openen.Click();
  EXPECT_EQ(OpenDialog.path.caption, "/house");
  EXPECT_EQ(OpenDialog.files.Items(), (Names{"a.BK1", "b.bk1", "new.BK1"}));
}

TEST_F(OpenDialogTest, AnotherDirectoryShowsItsPathAndFiles) {
  ShowDialog();
  Enter("Attic");
  EXPECT_EQ(OpenDialog.path.caption, "/house/Attic");
  EXPECT_EQ(OpenDialog.files.Items(), Names{"c.BK1"});
  Enter("..");
  EXPECT_EQ(OpenDialog.path.caption, "/house");
  Enter("..");
  EXPECT_EQ(OpenDialog.path.caption, "/");
  EXPECT_EQ(OpenDialog.directories.Items(), (Names{"home", "house", "media", "settings"}));
  Enter("media");
  Enter("stick");
  EXPECT_EQ(OpenDialog.path.caption, "/media/stick");
  EXPECT_EQ(OpenDialog.files.Items(), Names{"d.BK1"});
}

TEST_F(OpenDialogTest, AHiddenDirectoryIsListedAfterItWasLeft) {
  directories.existing.insert("/house/Cellar/.tool");
  ShowDialog();
  OpenDialog.lists.GoTo("/house/Cellar/.tool");
  OpenDialog.directories.Open(0);
  EXPECT_EQ(OpenDialog.lists.Path(), "/house/Cellar");
  EXPECT_EQ(OpenDialog.directories.Items(), (std::vector<std::string>{"..", ".tool"}));
  OpenDialog.directories.Open(1);
  EXPECT_EQ(OpenDialog.lists.Path(), "/house/Cellar/.tool");
}

TEST_F(OpenDialogTest, ADefaultDirectoryThatIsNoWholePathIsNone) {
  ShowDialog();
  EXPECT_FALSE(OpenDialog.lists.TryGoTo("house"));
  EXPECT_EQ(OpenDialog.lists.Path(), "/house");
}

TEST_F(OpenDialogTest, AnotherDriveShowsItsPathAndFiles) {
  ShowDialog();
  EXPECT_EQ(OpenDialog.drives.items, (Names{"/", "/home/installer", "/media/stick"}));
  EXPECT_EQ(OpenDialog.drives.Text(), "/");
  OpenDialog.drives.Pick(2);
  EXPECT_EQ(OpenDialog.path.caption, "/media/stick");
  EXPECT_EQ(OpenDialog.files.Items(), Names{"d.BK1"});
  EXPECT_EQ(OpenDialog.drives.Text(), "/media/stick");
}

TEST_F(OpenDialogTest, ADriveThatIsGoneIsToldAndNothingMoves) {
  ShowDialog();
  directories.existing.erase("/media/stick");
  try {
    OpenDialog.drives.Pick(2);
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.kind, ErrorKind::DirectoryNotRead);
    EXPECT_NE(std::string(error.what()).find("/media/stick"), std::string::npos);
  }
  EXPECT_TRUE(OpenDialog.shown);
  EXPECT_EQ(OpenDialog.path.caption, "/house");
  EXPECT_EQ(OpenDialog.files.Items(), (Names{"a.BK1", "b.bk1"}));
  EXPECT_EQ(OpenDialog.drives.Text(), "/");
}

TEST_F(OpenDialogTest, ADirectoryThatIsGoneIsToldAndNothingMoves) {
  ShowDialog();
  directories.existing.erase("/house/Attic");
  EXPECT_THROW(Enter("Attic"), RuntimeError);
  EXPECT_EQ(OpenDialog.path.caption, "/house");
  EXPECT_EQ(OpenDialog.files.Items(), (Names{"a.BK1", "b.bk1"}));
}

TEST_F(OpenDialogTest, AClickOnAFileShowsItsPathAndReadsNothing) {
  ShowDialog();
  const Snapshot before = TakeSnapshot();
  OpenDialog.files.Pick(1);
  EXPECT_EQ(OpenDialog.path.caption, "/house/b.bk1");
  EXPECT_TRUE(OpenDialog.shown);
  ExpectOnlyChanged(before, {});
}

TEST_F(OpenDialogTest, ADoubleClickOnAFileReadsItAndCloses) {
  ShowDialog();
  OpenDialog.files.Open(1);
  EXPECT_EQ(ActiveModuleType, Cell(7));
  EXPECT_EQ(CurrentFilePath, Cell("/house/b.bk1"));
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF  -  /house/b.bk1");
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_FALSE(OpenDialog.shown);
}

TEST_F(OpenDialogTest, ItsButtonDoesWhatTheDoubleClickDoes) {
  ShowDialog();
  Enter("Attic");
  OpenDialog.files.Pick(0);
  OpenDialog.open.Click();
  EXPECT_EQ(ActiveModuleType, Cell(5));
  EXPECT_EQ(CurrentFilePath, Cell("/house/Attic/c.BK1"));
  EXPECT_FALSE(OpenDialog.shown);
}

TEST_F(OpenDialogTest, ItsButtonDoesNothingWithoutAFile) {
  ShowDialog();
  const Snapshot before = TakeSnapshot();
  OpenDialog.open.Click();
  ExpectOnlyChanged(before, {});
  EXPECT_TRUE(OpenDialog.shown);
  OpenDialog.files.Pick(0);
  Enter("Attic");
  OpenDialog.open.Click();
  ExpectOnlyChanged(before, {});
  EXPECT_TRUE(OpenDialog.shown);
}

TEST_F(OpenDialogTest, ADirectoryInTheRootIsJoinedAsItStands) {
  files.content["/f.BK1"] = FileOf(0);
  ShowDialog();
  OpenDialog.drives.Pick(0);
  OpenDialog.files.Pick(0);
  EXPECT_EQ(OpenDialog.path.caption, "//f.BK1");
}

TEST_F(OpenDialogTest, DefaultDirectoryLeadsToTheToolsOwn) {
  ShowDialog();
  OpenDialog.defaultDirectory.Click();
  EXPECT_EQ(OpenDialog.path.caption, "/settings");
  EXPECT_EQ(OpenDialog.files.Items(), Names{"e.BK1"});
  EXPECT_EQ(DefaultDirectory, Cell("/house"));
  EXPECT_EQ(files.content[SettingsPath("directory.vdm")], "/house\r\n");
}

TEST_F(OpenDialogTest, AFileThatIsTooShortIsToldAndTheDialogStays) {
  ShowDialog();
  files.content["/house/a.BK1"] = " 0 \r\n 1 \r\n";
  const Snapshot before = TakeSnapshot();
  EXPECT_THROW(OpenDialog.files.Open(0), RuntimeError);
  ExpectOnlyChanged(before, {});
  EXPECT_TRUE(OpenDialog.shown);
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
  EXPECT_FALSE(MainWindow.send.enabled);
  OpenDialog.files.Open(1);
  EXPECT_EQ(ActiveModuleType, Cell(7));
  EXPECT_FALSE(OpenDialog.shown);
}

TEST_F(OpenDialogTest, AFileThatHasGoneMeanwhileIsToldAndTheDialogStays) {
  ShowDialog();
  files.content.erase("/house/a.BK1");
  OpenDialog.files.Pick(0);
  EXPECT_THROW(OpenDialog.open.Click(), RuntimeError);
  EXPECT_TRUE(OpenDialog.shown);
}

TEST_F(OpenDialogTest, ClosedItChangesNothing) {
  ShowDialog();
  const Snapshot before = TakeSnapshot();
  OpenDialog.files.Pick(0);
  OpenDialog.Close();
  EXPECT_FALSE(OpenDialog.shown);
  ExpectOnlyChanged(before, {});
}

}  // namespace
}  // namespace bkconf
