// The screen of the default directory, and the picker that it opens.
#include <gtest/gtest.h>

#include <algorithm>

#include "platform/runtime_error.h"
#include "session/settings.h"
#include "shell/directory_picker.h"
#include "shell/directory_screen.h"
#include "shell/open_dialog.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

using Names = std::vector<std::string>;

class DirectoryScreensTest : public SessionTest {
 protected:
  std::string& Stored() { return files.content[SettingsPath("directory.vdm")]; }

  void ShowScreen(int language = 1) {
    Start(language);
    MainWindow.instellingen.Click();
    ASSERT_TRUE(DirectoryScreen.shown);
  }
  void ShowPicker(int language = 1) {
    ShowScreen(language);
    DirectoryScreen.browse.Click();
    ASSERT_TRUE(DirectoryPicker.shown);
  }
  /// The same with this content of "directory.vdm".
  void ShowPickerWith(const std::string& content) {
    Start();
    Stored() = content;
    MainWindow.instellingen.Click();
    DirectoryScreen.browse.Click();
    ASSERT_TRUE(DirectoryPicker.shown);
  }
  static void Enter(const std::string& name) {
    const auto& items = DirectoryPicker.directories.Items();
    const auto item = std::find(items.begin(), items.end(), name);
    ASSERT_NE(item, items.end()) << name;
    DirectoryPicker.directories.Open(static_cast<int>(item - items.begin()));
  }
};

TEST_F(DirectoryScreensTest, TheTextsAreEnglishInBothLanguages) {
  for (const int language : {1, 2}) {
    ShowPicker(language);
    EXPECT_EQ(DirectoryScreen.title, "Preferences");
    EXPECT_EQ(DirectoryScreen.directoryLabel.caption, "BK1 Directory:");
    EXPECT_EQ(DirectoryScreen.browse.caption, "Browse...");
    EXPECT_EQ(DirectoryScreen.ok.caption, "OK");
    EXPECT_EQ(DirectoryScreen.cancel.caption, "Cancel");
    EXPECT_EQ(DirectoryPicker.title, "Browse directory");
    EXPECT_EQ(DirectoryPicker.driveLabel.caption, "Look in drive:");
    EXPECT_EQ(DirectoryPicker.currentLabel.caption, "Current Directory:");
    EXPECT_EQ(DirectoryPicker.select.caption, "Select directory");
    EXPECT_EQ(DirectoryPicker.setDefault.caption, "Default");
    EXPECT_EQ(DirectoryPicker.cancel.caption, "Cancel");
  }
}

TEST_F(DirectoryScreensTest, TheScreenShowsTheStoredDirectoryAndReadsItAnew) {
  ShowScreen();
  EXPECT_EQ(DirectoryScreen.directory.caption, "/house");
  DirectoryScreen.Close();
  Stored() = "  /media/stick\r\n";
  MainWindow.instellingen.Click();
  EXPECT_EQ(DirectoryScreen.directory.caption, "/media/stick");
  EXPECT_EQ(DefaultDirectory, Cell("/media/stick"));
}

TEST_F(DirectoryScreensTest, TheScreenShowsTheValueInMemoryWhereTheFileIsMissing) {
  Start();
  files.content.erase(SettingsPath("directory.vdm"));
  const Snapshot before = TakeSnapshot();
  MainWindow.instellingen.Click();
  EXPECT_TRUE(DirectoryScreen.shown);
  EXPECT_EQ(DirectoryScreen.directory.caption, "/house");
  ExpectOnlyChanged(before, {});
  EXPECT_TRUE(messages.told.empty());
}

TEST_F(DirectoryScreensTest, OkAndCancelJustCloseTheScreen) {
  for (const ButtonField* button : {&DirectoryScreen.ok, &DirectoryScreen.cancel}) {
    ShowScreen();
    const auto written = files.content;
    const Snapshot before = TakeSnapshot();
    button->Click();
    EXPECT_FALSE(DirectoryScreen.shown);
    EXPECT_EQ(files.content, written);
    ExpectOnlyChanged(before, {});
  }
}

TEST_F(DirectoryScreensTest, ThePickerStartsInTheDefaultDirectory) {
  ShowPicker();
  EXPECT_EQ(DirectoryPicker.current.caption, "/house");
  EXPECT_EQ(DirectoryPicker.directories.Items(), (Names{"..", "Attic", "Cellar"}));
  EXPECT_EQ(DirectoryPicker.drives.items, (Names{"/", "/home/installer", "/media/stick"}));
  EXPECT_EQ(Stored(), "/house\r\n");
}

TEST_F(DirectoryScreensTest, AnotherDirectoryIsShownAndNotStored) {
  ShowPicker();
  const Snapshot before = TakeSnapshot();
  Enter("Cellar");
  EXPECT_EQ(DirectoryPicker.current.caption, "/house/Cellar");
  DirectoryPicker.drives.Pick(2);
  EXPECT_EQ(DirectoryPicker.current.caption, "/media/stick");
  EXPECT_EQ(Stored(), "/house\r\n");
  EXPECT_EQ(DirectoryScreen.directory.caption, "/house");
  ExpectOnlyChanged(before, {});
}

TEST_F(DirectoryScreensTest, ADriveThatIsGoneIsToldAndThePickerStaysWhereItIs) {
  ShowPicker();
  directories.existing.erase("/media/stick");
  EXPECT_THROW(DirectoryPicker.drives.Pick(2), RuntimeError);
  EXPECT_EQ(DirectoryPicker.current.caption, "/house");
  DirectoryPicker.select.Click();
  EXPECT_EQ(DefaultDirectory, Cell("/house"));
}

TEST_F(DirectoryScreensTest, SelectDirectoryStoresItShowsItAndClosesThePicker) {
  ShowPicker();
  Enter("Cellar");
  const Snapshot before = TakeSnapshot();
  DirectoryPicker.select.Click();
  EXPECT_EQ(DefaultDirectory, Cell("/house/Cellar"));
  EXPECT_EQ(Stored(), "/house/Cellar\r\n");
  EXPECT_EQ(DirectoryScreen.directory.caption, "/house/Cellar");
  EXPECT_FALSE(DirectoryPicker.shown);
  EXPECT_TRUE(DirectoryScreen.shown);
  ExpectOnlyChanged(before, {"DefaultDirectory"});
}

TEST_F(DirectoryScreensTest, ASelectedDirectoryStaysStoredWhenTheScreenIsCancelled) {
  ShowPicker();
  Enter("Cellar");
  DirectoryPicker.select.Click();
  DirectoryScreen.cancel.Click();
  EXPECT_EQ(Stored(), "/house/Cellar\r\n");
  MainWindow.openen.Click();
  EXPECT_EQ(OpenDialog.path.caption, "/house/Cellar");
}

TEST_F(DirectoryScreensTest, DefaultLeadsToTheToolsOwnDirectoryAndStoresNothing) {
  ShowPicker();
  DirectoryPicker.setDefault.Click();
  EXPECT_EQ(DirectoryPicker.current.caption, "/settings");
  EXPECT_TRUE(DirectoryPicker.shown);
  EXPECT_EQ(Stored(), "/house\r\n");
  DirectoryPicker.select.Click();
  EXPECT_EQ(Stored(), "/settings\r\n");
}

TEST_F(DirectoryScreensTest, CancelLeavesTheStoredDirectory) {
  ShowPicker();
  const auto written = files.content;
  const Snapshot before = TakeSnapshot();
  Enter("Cellar");
  DirectoryPicker.cancel.Click();
  EXPECT_FALSE(DirectoryPicker.shown);
  EXPECT_TRUE(DirectoryScreen.shown);
  EXPECT_EQ(files.content, written);
  ExpectOnlyChanged(before, {});
  EXPECT_EQ(DirectoryScreen.directory.caption, "/house");
}

TEST_F(DirectoryScreensTest, ADirectoryThatIsGoneIsRepairedAndStoredAtOnce) {
  ShowPickerWith("/gone\r\n");
  EXPECT_EQ(DirectoryPicker.current.caption, "/settings");
  EXPECT_EQ(DefaultDirectory, Cell("/settings/"));
  EXPECT_EQ(Stored(), "/settings/\r\n");
  EXPECT_TRUE(messages.told.empty());
  DirectoryPicker.cancel.Click();
  EXPECT_EQ(Stored(), "/settings/\r\n");
}

TEST_F(DirectoryScreensTest, AnEmptyDirectoryIsRepairedAndStoredAtOnce) {
  for (const char* content : {"", "\r\n", "   \r\n"}) {
    ShowPickerWith(content);
    EXPECT_EQ(DirectoryPicker.current.caption, "/settings");
    EXPECT_EQ(Stored(), "/settings/\r\n");
    DirectoryPicker.Close();
    DirectoryScreen.Close();
  }
}

TEST_F(DirectoryScreensTest, ARepairedDirectoryIsOneThatTheNextPickerAndDialogGoTo) {
  ShowPickerWith("/gone\r\n");
  DirectoryPicker.cancel.Click();
  const auto written = files.content;
  DirectoryScreen.browse.Click();
  EXPECT_EQ(DirectoryPicker.current.caption, "/settings");
  EXPECT_EQ(files.content, written);
  MainWindow.openen.Click();
  EXPECT_EQ(OpenDialog.path.caption, "/settings");
}

TEST_F(DirectoryScreensTest, AChoiceThatCannotBeStoredIsToldAndThePickerStays) {
  ShowPicker();
  Enter("Cellar");
  files.full = true;
  try {
    DirectoryPicker.select.Click();
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.kind, ErrorKind::FileNotWritten);
  }
  EXPECT_TRUE(DirectoryPicker.shown);
  EXPECT_EQ(Stored(), "/house\r\n");
}

}  // namespace
}  // namespace bkconf
