#include "shell/save_dialog.h"

#include <gtest/gtest.h>

#include "image/configuration_file.h"
#include "image/file_lines.h"
#include "platform/runtime_error.h"
#include "session/settings.h"
#include "shell/module_file.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

using Names = std::vector<std::string>;

class SaveDialogTest : public SessionTest {
 protected:
  SaveDialogTest() {
    files.content["/house/a.BK1"] = FileOf(0);
    files.content["/house/b.bk1"] = FileOf(0);
    files.content["/house/notes.txt"] = "no module";
    files.content["/media/stick/d.BK1"] = FileOf(0);
    files.content["/settings/e.BK1"] = FileOf(0);
  }

  void ShowDialog(int language = 1) {
    Start(language);
    Plug(0).memory().Cells(std::string_view("ButtonImage"))[121] = 'K';
    ReadModule();
    MainWindow.Bewaren_als.Click();
    ASSERT_TRUE(SaveDialog.shown);
  }
  void AskForFolder(const std::string& name) {
    SaveDialog.newFolder.Click();
    SaveDialog.folderName.Type(name);
  }
  bool Exists(const std::string& path) const { return directories.existing.contains(path); }

  /// As before anybody asked for a folder.
  static void ExpectNoFolderName() {
    EXPECT_TRUE(SaveDialog.newFolder.Usable());
    EXPECT_FALSE(SaveDialog.folderName.visible);
    EXPECT_EQ(SaveDialog.folderName.Text(), "");
    EXPECT_FALSE(SaveDialog.makeFolder.Usable());
    EXPECT_FALSE(FolderRetry.Enabled());
  }
};

TEST_F(SaveDialogTest, ItsTextsAreThoseOfTheLanguage) {
  for (const int language : {1, 2}) {
    ShowDialog(language);
    EXPECT_EQ(SaveDialog.title, language == 1 ? "Opslaan" : "Sauver");
    EXPECT_EQ(SaveDialog.directoryLabel.caption, language == 1 ? "Opslaan in:" : "Sauver ds:");
    EXPECT_EQ(SaveDialog.fileNameLabel.caption, language == 1 ? "Bestandsnaam" : "Nom fichier");
    EXPECT_EQ(SaveDialog.save.caption, language == 1 ? "Bewaren" : "Sauver");
    EXPECT_EQ(SaveDialog.newFolder.caption, language == 1 ? "Nieuwe folder" : "Nouveau dossier");
    EXPECT_EQ(SaveDialog.makeFolder.caption, "OK !");
    SaveDialog.Close();
    MainWindow.nieuw.Click();
  }
}

TEST_F(SaveDialogTest, StartsInTheDefaultDirectoryWithoutANameAndAFolderName) {
  ShowDialog();
  EXPECT_EQ(SaveDialog.lists.Path(), "/house");
  EXPECT_EQ(SaveDialog.files.Items(), (Names{"a.BK1", "b.bk1"}));
  EXPECT_EQ(SaveDialog.directories.Items(), (Names{"..", "Attic", "Cellar"}));
  EXPECT_EQ(SaveDialog.fileName.Text(), "");
  ExpectNoFolderName();
}

TEST_F(SaveDialogTest, StartsInTheToolsOwnDirectoryWhereTheDefaultOneIsEmptyOrGone) {
  for (const char* directory : {"", "/gone"}) {
    ShowDialog();
    SaveDialog.Close();
    DefaultDirectory = directory;
    const auto written = files.content;
    MainWindow.Bewaren_als.Click();
    EXPECT_EQ(SaveDialog.lists.Path(), "/settings");
    EXPECT_EQ(SaveDialog.files.Items(), Names{"e.BK1"});
    EXPECT_EQ(DefaultDirectory, Cell(directory));
    EXPECT_EQ(files.content, written);
    SaveDialog.Close();
    MainWindow.nieuw.Click();
  }
}

TEST_F(SaveDialogTest, AnotherDriveShowsItsFiles) {
  ShowDialog();
  SaveDialog.drives.Pick(2);
  EXPECT_EQ(SaveDialog.lists.Path(), "/media/stick");
  EXPECT_EQ(SaveDialog.files.Items(), Names{"d.BK1"});
}

TEST_F(SaveDialogTest, ADriveThatIsGoneIsToldAndNothingMoves) {
  ShowDialog();
  SaveDialog.fileName.Type("x");
  directories.existing.erase("/media/stick");
  EXPECT_THROW(SaveDialog.drives.Pick(2), RuntimeError);
  EXPECT_EQ(SaveDialog.lists.Path(), "/house");
  EXPECT_EQ(SaveDialog.files.Items(), (Names{"a.BK1", "b.bk1"}));
  SaveDialog.save.Click();
  EXPECT_TRUE(files.content.contains("/house/x.BK1"));
}

TEST_F(SaveDialogTest, AClickOnAFileCopiesItsName) {
  ShowDialog();
  SaveDialog.fileName.Type("x");
  SaveDialog.files.Pick(0);
  EXPECT_EQ(SaveDialog.fileName.Text(), "a.BK1");
  EXPECT_TRUE(SaveDialog.shown);
}

TEST_F(SaveDialogTest, ASaveOnAClickedFileWritesItAndThePathHasTheExtensionTwice) {
  ShowDialog();
  SaveDialog.files.Pick(0);
  SaveDialog.save.Click();
  EXPECT_EQ(files.content["/house/a.BK1"], PrintConfiguration(0));
  EXPECT_FALSE(files.content.contains("/house/a.BK1.BK1"));
  EXPECT_EQ(CurrentFilePath, Cell("/house/a.BK1.BK1"));
  EXPECT_FALSE(SaveDialog.shown);
}

TEST_F(SaveDialogTest, ADoubleClickOnTheLabelProposesAName) {
  ShowDialog();
  SaveDialog.fileName.Type("something");
  SaveDialog.fileNameLabel.DoubleClick();
  EXPECT_EQ(SaveDialog.fileName.Text(), "Relais K");
  SaveDialog.save.Click();
  EXPECT_EQ(files.content["/house/Relais K.BK1"], PrintConfiguration(0));
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF  -  /house/Relais K.BK1");
}

TEST_F(SaveDialogTest, TheProposalIsInTheLanguageOfTheSession) {
  for (const int language : {1, 2}) {
    Start(language);
    Plug(5).memory().Cells(std::string_view("AlarmImage"))[121] = 'C';
    ReadModule();
    MainWindow.Bewaren_als.Click();
    SaveDialog.fileNameLabel.DoubleClick();
    EXPECT_EQ(SaveDialog.fileName.Text(), language == 1 ? "Alarm C" : "Alarme C");
    SaveDialog.Close();
    MainWindow.nieuw.Click();
  }
}

TEST_F(SaveDialogTest, SavesIntoTheDirectoryThatItShows) {
  ShowDialog();
  SaveDialog.directories.Open(1);
  SaveDialog.fileName.Type("x");
  SaveDialog.save.Click();
  EXPECT_TRUE(files.content.contains("/house/Attic/x.BK1"));
  EXPECT_EQ(DefaultDirectory, Cell("/house"));
}

TEST_F(SaveDialogTest, AnEmptyNameWritesNothingAndTheDialogStays) {
  ShowDialog();
  const auto written = files.content;
  const Snapshot before = TakeSnapshot();
  SaveDialog.save.Click();
  EXPECT_EQ(files.content, written);
  EXPECT_TRUE(SaveDialog.shown);
  ExpectOnlyChanged(before, {});
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
  EXPECT_TRUE(messages.told.empty());
}

TEST_F(SaveDialogTest, ASaveThatFailsIsToldAndTheDialogStaysWithItsName) {
  ShowDialog();
  SaveDialog.fileName.Type("x");
  files.full = true;
  const Snapshot before = TakeSnapshot();
  EXPECT_THROW(SaveDialog.save.Click(), RuntimeError);
  ExpectOnlyChanged(before, {});
  EXPECT_TRUE(SaveDialog.shown);
  EXPECT_EQ(SaveDialog.fileName.Text(), "x");
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
  EXPECT_FALSE(MainWindow.Bewaren.enabled);
  files.full = false;
  SaveDialog.save.Click();
  EXPECT_TRUE(files.content.contains("/house/x.BK1"));
  EXPECT_FALSE(SaveDialog.shown);
}

TEST_F(SaveDialogTest, ClosedItWritesNothing) {
  ShowDialog();
  SaveDialog.fileName.Type("x");
  const auto written = files.content;
  const Snapshot before = TakeSnapshot();
  SaveDialog.Close();
  EXPECT_FALSE(SaveDialog.shown);
  EXPECT_EQ(files.content, written);
  ExpectOnlyChanged(before, {});
}

TEST_F(SaveDialogTest, NewFolderShowsTheFolderNameAndHidesItself) {
  ShowDialog();
  SaveDialog.newFolder.Click();
  EXPECT_TRUE(SaveDialog.folderName.visible);
  EXPECT_FALSE(SaveDialog.newFolder.visible);
  EXPECT_FALSE(SaveDialog.makeFolder.Usable());
}

TEST_F(SaveDialogTest, AnyChangeOfTheFolderNameEnablesTheButtonThatMakesIt) {
  ShowDialog();
  SaveDialog.newFolder.Click();
  SaveDialog.folderName.Type("G");
  EXPECT_TRUE(SaveDialog.makeFolder.Usable());
}

TEST_F(SaveDialogTest, MakesTheFolderAndShowsItInTheList) {
  ShowDialog();
  AskForFolder("Garden");
  SaveDialog.makeFolder.Click();
  EXPECT_TRUE(Exists("/house/Garden"));
  EXPECT_EQ(directories.tries, Names{"/house/Garden"});
  EXPECT_EQ(SaveDialog.directories.Items(), (Names{"..", "Attic", "Cellar", "Garden"}));
  EXPECT_EQ(SaveDialog.lists.Path(), "/house");
  ExpectNoFolderName();
  EXPECT_TRUE(SaveDialog.shown);
}

TEST_F(SaveDialogTest, AFolderKeepsTheFileNameThatStandsThere) {
  ShowDialog();
  SaveDialog.fileName.Type("x");
  AskForFolder("Garden");
  SaveDialog.makeFolder.Click();
  EXPECT_EQ(SaveDialog.fileName.Text(), "x");
}

TEST_F(SaveDialogTest, AFolderThatCannotBeMadeIsTriedUntilItsNameIsTouched) {
  ShowDialog();
  AskForFolder("Attic");
  SaveDialog.makeFolder.Click();
  EXPECT_TRUE(SaveDialog.folderName.visible);
  EXPECT_FALSE(SaveDialog.newFolder.visible);
  clock.Advance(5000);
  // At once, and then every 100 ms.
  EXPECT_EQ(directories.tries.size(), 51U);
  EXPECT_TRUE(messages.told.empty());
  EXPECT_EQ(SaveDialog.folderName.Text(), "Attic");
  // Half a name makes no folder while the rest is typed.
  SaveDialog.folderName.Type("Gar");
  clock.Advance(1000);
  EXPECT_FALSE(Exists("/house/Gar"));
  SaveDialog.folderName.Type("Garage");
  SaveDialog.makeFolder.Click();
  EXPECT_TRUE(Exists("/house/Garage"));
  EXPECT_EQ(SaveDialog.directories.Items(), (Names{"..", "Attic", "Cellar", "Garage"}));
  ExpectNoFolderName();
}

TEST_F(SaveDialogTest, AFolderThatCannotBeMadeIsMadeWhenTheObstacleGoes) {
  ShowDialog();
  directories.canMake = false;
  AskForFolder("Garden");
  SaveDialog.makeFolder.Click();
  clock.Advance(1000);
  EXPECT_FALSE(Exists("/house/Garden"));
  directories.canMake = true;
  clock.Advance(1000);
  EXPECT_TRUE(Exists("/house/Garden"));
  ExpectNoFolderName();
  const std::size_t tries = directories.tries.size();
  clock.Advance(10'000);
  EXPECT_EQ(directories.tries.size(), tries);
}

TEST_F(SaveDialogTest, PressedAgainWhileItIsTriedTheFolderIsTriedAtOnceAndNoFaster) {
  ShowDialog();
  directories.canMake = false;
  AskForFolder("Garden");
  SaveDialog.makeFolder.Click();
  clock.Advance(1000);
  const std::size_t once = directories.tries.size();
  SaveDialog.makeFolder.Click();
  EXPECT_EQ(directories.tries.size(), once + 1);
  clock.Advance(1000);
  EXPECT_LE(directories.tries.size(), 2 * once + 1);
}

TEST_F(SaveDialogTest, TheTriesEndWhenAnotherDirectoryIsTouched) {
  ShowDialog();
  AskForFolder("Attic");
  SaveDialog.makeFolder.Click();
  SaveDialog.directories.Open(1);
  EXPECT_EQ(SaveDialog.lists.Path(), "/house/Attic");
  clock.Advance(1000);
  EXPECT_FALSE(Exists("/house/Attic/Attic"));
}

TEST_F(SaveDialogTest, TheTriesEndWhenAnotherDriveIsPicked) {
  ShowDialog();
  AskForFolder("Attic");
  SaveDialog.makeFolder.Click();
  SaveDialog.drives.Pick(2);
  EXPECT_EQ(SaveDialog.lists.Path(), "/media/stick");
  const std::size_t tries = directories.tries.size();
  clock.Advance(1000);
  EXPECT_EQ(directories.tries.size(), tries);
  EXPECT_FALSE(Exists("/media/stick/Attic"));
  // The name stands there still, and can be made here.
  SaveDialog.makeFolder.Click();
  EXPECT_TRUE(Exists("/media/stick/Attic"));
  ExpectNoFolderName();
}

TEST_F(SaveDialogTest, TheTriesGoOnWhileTheDirectoryStaysTheSame) {
  ShowDialog();
  directories.canMake = false;
  AskForFolder("Garden");
  SaveDialog.makeFolder.Click();
  SaveDialog.directories.Pick(1);
  directories.existing.erase("/media/stick");
  EXPECT_THROW(SaveDialog.drives.Pick(2), RuntimeError);
  EXPECT_EQ(SaveDialog.lists.Path(), "/house");
  directories.canMake = true;
  clock.Advance(1000);
  EXPECT_TRUE(Exists("/house/Garden"));
  ExpectNoFolderName();
}

TEST_F(SaveDialogTest, EnterMakesTheFolderWhileItsNameIsTypedAndSavesElsewhere) {
  ShowDialog();
  AskForFolder("Garden");
  EXPECT_EQ(SaveDialog.folderName.enter, &SaveDialog.makeFolder);
  EXPECT_EQ(SaveDialog.enter, &SaveDialog.save);
  EXPECT_EQ(SaveDialog.firstFocus, &SaveDialog.fileName);
}

TEST_F(SaveDialogTest, TheTriesEndWhenTheDialogIsClosed) {
  ShowDialog();
  AskForFolder("Attic");
  SaveDialog.makeFolder.Click();
  clock.Advance(1000);
  SaveDialog.Close();
  const std::size_t tries = directories.tries.size();
  clock.Advance(10'000);
  EXPECT_EQ(directories.tries.size(), tries);
  MainWindow.Bewaren_als.Click();
  ExpectNoFolderName();
  clock.Advance(10'000);
  EXPECT_EQ(directories.tries.size(), tries);
}

TEST_F(SaveDialogTest, TheTriesEndWhenAFileIsSaved) {
  ShowDialog();
  SaveDialog.fileName.Type("x");
  AskForFolder("Attic");
  SaveDialog.makeFolder.Click();
  clock.Advance(1000);
  SaveDialog.save.Click();
  EXPECT_FALSE(SaveDialog.shown);
  const std::size_t tries = directories.tries.size();
  clock.Advance(10'000);
  EXPECT_EQ(directories.tries.size(), tries);
}

TEST_F(SaveDialogTest, AFolderIsMadeWhereTheListStandsThen) {
  ShowDialog();
  SaveDialog.directories.Open(1);
  AskForFolder("Box");
  SaveDialog.makeFolder.Click();
  EXPECT_TRUE(Exists("/house/Attic/Box"));
  EXPECT_EQ(SaveDialog.directories.Items(), (Names{"..", "Box"}));
}

TEST_F(SaveDialogTest, AnotherShowStartsWithoutTheNamesOfTheLast) {
  ShowDialog();
  SaveDialog.directories.Open(1);
  SaveDialog.fileName.Type("x");
  AskForFolder("Box");
  SaveDialog.Close();
  MainWindow.Bewaren_als.Click();
  EXPECT_EQ(SaveDialog.lists.Path(), "/house");
  ExpectNoFolderName();
}

}  // namespace
}  // namespace bkconf
