#include "shell/menus.h"

#include <gtest/gtest.h>

#include "link/transfer.h"
#include "session/settings.h"
#include "shell/directory_screen.h"
#include "shell/module_file.h"
#include "shell/open_dialog.h"
#include "shell/save_dialog.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

using Events = std::vector<std::string>;

class MenusTest : public SessionTest {
 protected:
  const std::string& Content(const std::string& name) { return files.content[SettingsPath(name)]; }
  bool Exists(const std::string& name) const { return files.content.contains(SettingsPath(name)); }
};

/// Notes what a settings file held when the copy of the program was started.
class WatchedPrograms : public FakePrograms {
 public:
  explicit WatchedPrograms(const FakeFiles& files) : files_(files) {}
  bool StartThisProgram() override {
    countryAtStart = files_.content.at(SettingsPath("country.vdm"));
    return FakePrograms::StartThisProgram();
  }
  std::string countryAtStart;

 private:
  const FakeFiles& files_;
};

TEST_F(MenusTest, EindeEndsTheProgramWithoutAQuestion) {
  Start();
  Plug(2);
  ReadModule();
  MainWindow.displayTemperature.address.Pick(0);
  const auto content = files.content;
  programs.events.clear();
  MainWindow.Einde.Click();
  EXPECT_EQ(programs.events, Events{"end"});
  EXPECT_TRUE(messages.told.empty());
  EXPECT_EQ(files.content, content);
}

TEST_F(MenusTest, ALanguageIsStoredThenTheCopyStartsAndThenThisProgramEnds) {
  WatchedPrograms watched(files);
  watched.canStart = true;
  OtherPrograms = &watched;
  Start(1);
  MainWindow.frans.Click();
  EXPECT_EQ(watched.countryAtStart, " 2 \r\n");
  EXPECT_EQ(watched.events, (Events{"start this program", "end"}));
  EXPECT_EQ(Language, Cell(2));
  EXPECT_TRUE(messages.told.empty());
}

TEST_F(MenusTest, DutchIsStoredAsOne) {
  programs.canStart = true;
  Start(2);
  MainWindow.ned.Click();
  EXPECT_EQ(Content("country.vdm"), " 1 \r\n");
  EXPECT_EQ(programs.events, (Events{"start this program", "end"}));
}

TEST_F(MenusTest, TheLanguageThatIsSetAlreadyStartsAnewToo) {
  programs.canStart = true;
  Start(1);
  MainWindow.ned.Click();
  EXPECT_EQ(Content("country.vdm"), " 1 \r\n");
  EXPECT_EQ(programs.events, (Events{"start this program", "end"}));
}

TEST_F(MenusTest, ACopyThatCannotBeStartedIsAnErrorAndThisProgramLivesOn) {
  Start(1);
  try {
    MainWindow.frans.Click();
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.kind, ErrorKind::ProgramNotStarted);
  }
  EXPECT_EQ(programs.events, Events{"start this program"});
  EXPECT_EQ(Content("country.vdm"), " 2 \r\n");
}

TEST_F(MenusTest, ALanguageThatCannotBeStoredStartsAndEndsNothing) {
  programs.canStart = true;
  Start(1);
  files.full = true;
  EXPECT_THROW(MainWindow.frans.Click(), RuntimeError);
  EXPECT_EQ(programs.events, Events{});
  EXPECT_EQ(Content("country.vdm"), " 1 \r\n");
}

TEST_F(MenusTest, ALanguageChangeInEditModeDropsTheImageWithoutAQuestion) {
  programs.canStart = true;
  Start(1);
  Plug(0);
  ReadModule();
  SaveModuleAs("/house", "Relay");
  MainWindow.general.address.Pick(MainWindow.general.address.Text() == "C" ? 3 : 2);
  auto expected = files.content;
  ASSERT_TRUE(expected.contains("/house/Relay.BK1"));
  MainWindow.frans.Click();
  EXPECT_EQ(programs.events.back(), "end");
  EXPECT_TRUE(messages.told.empty());
  expected[SettingsPath("country.vdm")] = " 2 \r\n";
  EXPECT_EQ(files.content, expected);
}

TEST_F(MenusTest, EachPortEntryStoresItsNumberAndIsMarkedAlone) {
  Start();
  for (int number = 1; number <= 8; ++number) {
    line.calls.clear();
    MainWindow.poort.entries[static_cast<std::size_t>(number - 1)]->Click();
    EXPECT_EQ(Content("port.vdm"), std::to_string(number) + "\r\n");
    EXPECT_EQ(PortNumber, Cell(number));
    EXPECT_EQ(line.calls, Events{"number " + std::to_string(number)});
    for (int other = 1; other <= 8; ++other) {
      EXPECT_EQ(MainWindow.poort.entries[static_cast<std::size_t>(other - 1)]->checked,
                other == number);
    }
  }
}

TEST_F(MenusTest, APortChangeTouchesNothingButThePortNumber) {
  Start();
  Plug(5);
  ReadModule();
  const Snapshot before = TakeSnapshot();
  MainWindow.p3.Click();
  ExpectOnlyChanged(before, {"PortNumber"});
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
}

TEST_F(MenusTest, AnOpenPortIsClosedFirstAndTheNextConnectOpensTheNewOne) {
  Start();
  Plug(0);
  ReadModule();
  ASSERT_TRUE(line.IsOpen());
  line.calls.clear();
  MainWindow.p3.Click();
  EXPECT_EQ(line.calls, (Events{"close", "number 3"}));
  EXPECT_FALSE(line.IsOpen());
  MainWindow.connect.Click();
  EXPECT_EQ(line.calls, (Events{"close", "number 3", "open"}));
}

TEST_F(MenusTest, ThePortThatIsSetAlreadyIsClosedAndStaysMarked) {
  Start();
  Plug(0);
  ReadModule();
  MainWindow.p3.Click();
  MainWindow.connect.Click();
  FinishTransfer();
  ASSERT_TRUE(line.IsOpen());
  MainWindow.p3.Click();
  EXPECT_FALSE(line.IsOpen());
  EXPECT_TRUE(MainWindow.p3.checked);
  EXPECT_EQ(PortNumber, Cell(3));
}

TEST_F(MenusTest, APortThatCannotBeStoredIsInUseAllTheSame) {
  Start();
  files.full = true;
  line.calls.clear();
  EXPECT_THROW(MainWindow.p3.Click(), RuntimeError);
  EXPECT_TRUE(MainWindow.p3.checked);
  EXPECT_EQ(line.calls, Events{"number 3"});
  EXPECT_EQ(Content("port.vdm"), "1\r\n");
}

TEST_F(MenusTest, OpeningThePortMenuShowsTheDevicesOfThisMoment) {
  Start();
  EXPECT_EQ(MainWindow.p5.caption, "Com &5");
  for (int opening = 0; opening < 2; ++opening) {
    MainWindow.poort.onOpen();
    EXPECT_EQ(MainWindow.p5.caption, "Com &5  -  fake5");
    EXPECT_EQ(MainWindow.p8.caption, "Com &8  -  fake8");
  }
}

TEST_F(MenusTest, NoEntryIsUsableDuringATransfer) {
  Start();
  Plug(0);
  ReadModule();
  const std::vector<MenuField*> entries = {
      &MainWindow.nieuw, &MainWindow.openen, &MainWindow.Bewaren, &MainWindow.Bewaren_als,
      &MainWindow.Einde, &MainWindow.ned,    &MainWindow.frans,   &MainWindow.p1,
      &MainWindow.p2,    &MainWindow.p3,     &MainWindow.p4,      &MainWindow.p5,
      &MainWindow.p6,    &MainWindow.p7,     &MainWindow.p8,      &MainWindow.instellingen,
      &MainWindow.Web};
  int clicks = 0;
  for (MenuField* entry : entries) {
    entry->onClick = [&clicks] { ++clicks; };
    entry->enabled = true;
    EXPECT_TRUE(entry->Usable()) << entry->name;
  }
  for (ButtonField* start : {&MainWindow.connect, &MainWindow.send}) {
    start->Click();
    for (MenuField* entry : entries) {
      EXPECT_FALSE(entry->Usable()) << entry->name;
      entry->Click();
    }
    FinishTransfer();
  }
  EXPECT_EQ(clicks, 0);
}

TEST_F(MenusTest, TheEntriesOfTheFilesAndThePreferencesOpenTheirScreens) {
  Start();
  EXPECT_TRUE(MainWindow.openen.Usable());
  EXPECT_FALSE(OpenDialog.shown);
  MainWindow.openen.Click();
  EXPECT_TRUE(OpenDialog.shown);
  OpenDialog.Close();
  EXPECT_TRUE(MainWindow.instellingen.Usable());
  MainWindow.instellingen.Click();
  EXPECT_TRUE(DirectoryScreen.shown);
  DirectoryScreen.Close();
  Plug(0);
  ReadModule();
  MainWindow.Bewaren_als.Click();
  EXPECT_TRUE(SaveDialog.shown);
}

TEST_F(MenusTest, NoEntryOpensAScreenOrSavesDuringATransfer) {
  Start();
  Plug(0);
  ReadModule();
  SaveModuleAs("/house", "a");
  files.content["/house/a.BK1"] = "old";
  for (ButtonField* start : {&MainWindow.connect, &MainWindow.send}) {
    start->Click();
    for (MenuField* entry : {&MainWindow.openen, &MainWindow.Bewaren, &MainWindow.Bewaren_als,
                             &MainWindow.instellingen, &MainWindow.Web}) {
      entry->Click();
    }
    FinishTransfer();
  }
  EXPECT_FALSE(OpenDialog.shown || SaveDialog.shown || DirectoryScreen.shown);
  EXPECT_EQ(files.content["/house/a.BK1"], "old");
  EXPECT_EQ(programs.events, Events{"start upgrade.exe"});
}

TEST_F(MenusTest, TheEntryOfTheMakersPageShowsItsAddressAndThePage) {
  for (const int language : {1, 2}) {
    Start(language);
    EXPECT_FALSE(MainWindow.Web.caption.empty());
    programs.events.clear();
    const Snapshot before = TakeSnapshot();
    MainWindow.Web.Click();
    EXPECT_EQ(programs.events, Events{"show " + MainWindow.Web.caption});
    ExpectOnlyChanged(before, {});
    EXPECT_TRUE(messages.told.empty());
  }
}

TEST_F(MenusTest, TheHandOffIsTriedOnceAfter50Milliseconds) {
  Start();
  clock.Advance(49);
  EXPECT_EQ(programs.events, Events{});
  clock.Advance(1);
  EXPECT_EQ(programs.events, Events{"start upgrade.exe"});
  clock.Advance(600'000);
  EXPECT_EQ(programs.events, Events{"start upgrade.exe"});
}

TEST_F(MenusTest, TheHandOffWaitsForTheSettings) {
  StartSession(LoadMainWindow, [](const std::string&) {});
  clock.Advance(10'000);
  EXPECT_EQ(programs.events, Events{});
}

TEST_F(MenusTest, AnUpgradeProgramThatStartsTakesOver) {
  programs.canStart = true;
  Start();
  clock.Advance(50);
  EXPECT_EQ(programs.events, (Events{"start upgrade.exe", "end"}));
  EXPECT_EQ(Content("upgrade.vdm"), "1\r\n");
}

TEST_F(MenusTest, ThisProgramEndsEvenIfTheNoteOfTheHandOffCannotBeWritten) {
  programs.canStart = true;
  Start();
  files.full = true;
  EXPECT_THROW(clock.Advance(50), RuntimeError);
  EXPECT_EQ(programs.events, (Events{"start upgrade.exe", "end"}));
}

TEST_F(MenusTest, WithoutAnUpgradeProgramTheSessionGoesOnAsIfNothingHadHappened) {
  Start();
  clock.Advance(50);
  EXPECT_FALSE(Exists("upgrade.vdm"));
  EXPECT_TRUE(messages.told.empty());
  EXPECT_TRUE(MainWindow.connect.Usable());
  EXPECT_TRUE(MainWindow.upgrade.enabled);
}

TEST_F(MenusTest, TheUpgradeButtonNotesThatItsProgramDidNotStart) {
  Start();
  clock.Advance(50);
  programs.events.clear();
  MainWindow.upgrade.Click();
  EXPECT_EQ(programs.events, Events{"start upgrade.exe"});
  EXPECT_EQ(Content("upgrade.vdm"), "0\r\n");
  EXPECT_FALSE(MainWindow.upgrade.enabled);
  MainWindow.upgrade.Click();
  EXPECT_EQ(programs.events, Events{"start upgrade.exe"});
}

TEST_F(MenusTest, TheUpgradeButtonHandsOverWhereItsProgramStarts) {
  Start();
  clock.Advance(50);
  programs.events.clear();
  programs.canStart = true;
  MainWindow.upgrade.Click();
  EXPECT_EQ(programs.events, (Events{"start upgrade.exe", "end"}));
  EXPECT_EQ(Content("upgrade.vdm"), "1\r\n");
}

TEST_F(MenusTest, TheUpgradeButtonShowsTheWindowAsItIsWithoutAManual) {
  Start();
  Plug(5);
  ReadModule();
  MainWindow.moduleList.visible = MainWindow.actionGroup.visible = false;
  MainWindow.alarm.frame.visible = MainWindow.pictureGroup.visible = false;
  MainWindow.upgrade.Click();
  EXPECT_TRUE(MainWindow.moduleList.visible);
  EXPECT_TRUE(MainWindow.actionGroup.visible);
  EXPECT_TRUE(MainWindow.alarm.frame.visible);
  EXPECT_TRUE(MainWindow.pictureGroup.visible);
  EXPECT_FALSE(MainWindow.general.frame.visible);
}

TEST_F(MenusTest, TheUpgradeButtonShowsNoPictureWithoutAModel) {
  Start();
  MainWindow.upgrade.Click();
  EXPECT_FALSE(MainWindow.pictureGroup.visible);
  EXPECT_TRUE(MainWindow.general.frame.visible);
}

TEST_F(MenusTest, APortNumberWithAFractionMarksNoneAndOpensNone) {
  PutSettings();
  files.content[SettingsPath("port.vdm")] = "3.5\r\n";
  StartSession(LoadMainWindow, [](const std::string&) {});
  EXPECT_EQ(line.calls.back(), "number 0");
  EXPECT_FALSE(MainWindow.p3.checked);
}

}  // namespace
}  // namespace bkconf
