#include "special/weekday_text_screen.h"

#include <gtest/gtest.h>

#include "image/tables.h"
#include "link/transfer.h"
#include "special/display_menu_test.h"

namespace bkconf {
namespace {

class WeekdayTextTest : public SessionTest {
 protected:
  /// Starts with an image whose names are in memory and need not be sent, and opens the screen.
  void Open(int language = 1, char letter = 'C') {
    StartWithImage(3, language, letter);
    Put(LcdWeekdayNames, 0, 21, "ZO MA DI WO DO VR ZA ");
    LcdWeekdayLoaded = 1;
    Press();
    ASSERT_TRUE(WeekdayTextScreen.shown);
    MainWindow.send.enabled = false;
  }
  static void Press() { ShownAction(Action::DisplayGeneral).Click(); }
  static void Leave() { WeekdayTextScreen.leave.Click(); }
  static TextField& Day(int day) {
    return WeekdayTextScreen.days[static_cast<std::size_t>(day)]->text;
  }
};

TEST_F(WeekdayTextTest, CaptionsAreDutchOrFrench) {
  const std::vector<std::vector<std::string>> names = {
      {"Zondag", "Maandag", "Dinsdag", "Woensdag", "Donderdag", "Vrijdag", "Zaterdag"},
      {"Dimanche", "Lundi", "Mardi", "Mercredi", "Jeudi", "Vendredi", "Samedi"}};
  for (const int language : {1, 2}) {
    Open(language, 'R');
    EXPECT_EQ(WeekdayTextScreen.leave.caption, language == 1 ? "Verlaten" : "Quitter");
    EXPECT_EQ(WeekdayTextScreen.title,
              language == 1
                  ? "Displaymodule KR7210 <adres = R>  -  Omschrijving weekdag"
                  : "Module display KR7210 <adresse = R>  -  Description jour de semaine");
    EXPECT_EQ(MainWindow.title, WeekdayTextScreen.title);
    ASSERT_EQ(WeekdayTextScreen.days.size(), 7U);
    for (std::size_t day = 0; day < 7; ++day) {
      EXPECT_EQ(WeekdayTextScreen.days[day]->label.caption,
                names[static_cast<std::size_t>(language) - 1][day]);
    }
    Leave();
    EXPECT_FALSE(WeekdayTextScreen.shown);
    EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
  }
}

TEST_F(WeekdayTextTest, EveryDayIsShownFromThreeCellsOfItsOwn) {
  Open();
  const char* const names[] = {"ZO ", "MA ", "DI ", "WO ", "DO ", "VR ", "ZA "};
  for (int day = 0; day < 7; ++day) EXPECT_EQ(Day(day).Text(), names[day]);
  EXPECT_EQ(WeekdayTextScreen.status.caption, "Edit mode");
  EXPECT_TRUE(WeekdayTextScreen.leave.enabled);
  EXPECT_FALSE(WeekdayTextScreen.bar.visible);
}

TEST_F(WeekdayTextTest, LookingChangesNoCellAndMarksNothing) {
  Open();
  LcdWeekdayNames[2] = 0;
  LcdWeekdayNames[3] = 233;
  Press();
  EXPECT_EQ(Day(0).Text(), std::string("ZO\0", 3));
  EXPECT_EQ(Day(1).Text(), "éA ");
  const Snapshot before = TakeSnapshot();
  Leave();
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_F(WeekdayTextTest, ATextIsStoredInItsThreeCellsOnLeaving) {
  for (int day = 0; day < 7; ++day) {
    Open();
    Day(day).Type("xyzq");
    EXPECT_EQ(Day(day).Text(), "xyzq");
    EXPECT_EQ(LcdWeekdayDirty, Cell(1));
    EXPECT_TRUE(MainWindow.send.enabled);
    EXPECT_EQ(CodesAt(LcdWeekdayNames, 0, 21), "ZO MA DI WO DO VR ZA ");
    Leave();
    std::string expected = "ZO MA DI WO DO VR ZA ";
    expected.replace(static_cast<std::size_t>(3 * day), 3, "xyz");
    EXPECT_EQ(CodesAt(LcdWeekdayNames, 0, 21), expected);
  }
}

TEST_F(WeekdayTextTest, AShortTextIsFilledUpAndCharactersAbove127AreTheirCodes) {
  Open();
  Day(0).Type("");
  Day(1).Type("é");
  Day(2).Type("€→,");
  WeekdayTextScreen.Close();
  const int codes[] = {32, 32, 32, 233, 32, 32, 128, 63, 44, 87};
  for (int i = 0; i < 10; ++i) EXPECT_EQ(LcdWeekdayNames[i], Cell(codes[i])) << i;
  Press();
  EXPECT_EQ(Day(2).Text(), "€?,");
}

TEST_F(WeekdayTextTest, OnlyTheNamesAreMarked) {
  for (const int displays : {0, 1}) {
    Open();
    LcdScreen1Loaded = LcdScreen2Loaded = displays;
    const Snapshot before = TakeSnapshot();
    for (int day = 0; day < 7; ++day) Day(day).Type("xyz");
    ExpectOnlyChanged(before, {"LcdWeekdayDirty"});
    Leave();
    ExpectOnlyChanged(before, {"LcdWeekdayDirty", "LcdWeekdayNames[0..20]"});
  }
}

// --- Reading ------------------------------------------------------------------------------------

class WeekdayReadTest : public WeekdayTextTest {
 protected:
  /// Reads the header of a module whose names are "AbcAbc..".
  virtual_module::Module& Connect(int language = 1) {
    Start(language);
    virtual_module::Options options{3, virtual_module::DefaultMemory(3, 1)};
    auto& cells = options.memory.Cells("LcdWeekdayNames");
    for (std::size_t i = 0; i < 21; i += 3) {
      cells[i] = 65;
      cells[i + 1] = 98;
      cells[i + 2] = 99;
    }
    auto& module = Plug(options);
    ReadModule();
    return module;
  }
  bool RunUntilShown() {
    return clock.RunUntil([] { return WeekdayTextScreen.shown; }, 60'000);
  }
  static bool IsUsable() {
    for (const auto& day : WeekdayTextScreen.days) {
      if (!day->text.enabled) return false;
    }
    return WeekdayTextScreen.leave.enabled;
  }
};

TEST_F(WeekdayReadTest, TheFirstOpeningReadsBehindTheScreen) {
  for (const int language : {1, 2}) {
    const std::string reading =
        language == 1 ? "Inladen van de gegevens..." : "Chargement des données...";
    LcdWeekdayLoaded = 0;
    Connect(language);
    Press();
    EXPECT_EQ(PendingCommand, Cell("T85000"));
    EXPECT_EQ(LcdWeekdayLoaded, Cell(1));
    EXPECT_EQ(MainWindow.status.caption,
              language == 1 ? "Module zoeken..." : "Recherche module...");
    EXPECT_EQ(MainWindow.transferBar.Maximum(), 20000);
    EXPECT_FALSE(ShownAction(Action::DisplayGeneral).enabled);
    EXPECT_FALSE(WeekdayTextScreen.shown);
    ASSERT_TRUE(RunUntilShown());
    EXPECT_EQ(MainWindow.status.caption, reading);
    EXPECT_EQ(WeekdayTextScreen.status.caption, reading);
    EXPECT_TRUE(WeekdayTextScreen.bar.visible);
    EXPECT_EQ(WeekdayTextScreen.bar.Maximum(), 21);
    EXPECT_EQ(WeekdayTextScreen.bar.Value(), 0);
    EXPECT_FALSE(MainWindow.transferBar.visible);
    for (int day = 0; day < 7; ++day) EXPECT_FALSE(Day(day).enabled);
    EXPECT_FALSE(WeekdayTextScreen.leave.enabled);
    EXPECT_EQ(MainWindow.title, WeekdayTextScreen.title);
    FinishTransfer();
    Leave();
  }
}

TEST_F(WeekdayReadTest, NothingCanBeUsedUntilTheLastCell) {
  const auto& module = Connect();
  Press();
  ASSERT_TRUE(RunUntilShown());
  ASSERT_TRUE(clock.RunUntil([] { return WeekdayTextScreen.bar.Value() == 20; }, 10'000));
  const Snapshot before = TakeSnapshot();
  Day(0).Type("xyz");
  Leave();
  EXPECT_TRUE(WeekdayTextScreen.shown);
  EXPECT_EQ(Day(0).Text(), "");
  ExpectOnlyChanged(before, {});
  ASSERT_TRUE(clock.RunUntil([] { return IsUsable(); }, 1'000));
  EXPECT_EQ(WeekdayTextScreen.bar.Value(), 21);
  EXPECT_FALSE(WeekdayTextScreen.bar.visible);
  EXPECT_EQ(WeekdayTextScreen.status.caption, "Edit mode");
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  for (int day = 0; day < 7; ++day) EXPECT_EQ(Day(day).Text(), "Abc");
  EXPECT_TRUE(AllVisibleActionsEnabled());
  EXPECT_TRUE(MainWindow.connect.enabled && MainWindow.send.enabled);
  // The menus wait for the module's last word.
  EXPECT_FALSE(MainWindow.bestand.enabled);
  FinishTransfer();
  EXPECT_TRUE(MainWindow.bestand.enabled && MainWindow.moduleList.enabled);
  EXPECT_EQ(module.errors(), 0);
  EXPECT_EQ(module.completedReads(), 2);
}

TEST_F(WeekdayReadTest, ClosingTheWindowLeavesAModuleThatSaysNoMoreAndStoresNothing) {
  Connect();
  Press();
  ASSERT_TRUE(RunUntilShown());
  ASSERT_TRUE(clock.RunUntil([] { return WeekdayTextScreen.bar.Value() == 10; }, 10'000));
  line.module = nullptr;
  clock.Advance(60'000);
  const std::string title = MainWindow.title;
  const Snapshot before = TakeSnapshot();
  WeekdayTextScreen.Close();
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(WeekdayTextScreen.shown || TransferUnderWay);
  EXPECT_NE(MainWindow.title, title);
  EXPECT_TRUE(MainWindow.connect.enabled && MainWindow.bestand.enabled);
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
}

TEST_F(WeekdayReadTest, AReadThatEndedShortIsClosedAndTheNextTransfersShowTheirBars) {
  Connect();
  Plug(3, virtual_module::Fault::ShortStream);
  Press();
  FinishTransfer();
  ASSERT_TRUE(WeekdayTextScreen.shown);
  EXPECT_FALSE(IsUsable());
  WeekdayTextScreen.Close();
  EXPECT_EQ(Window.bar, &MainWindow.transferBar);
  EXPECT_FALSE(WeekdayTextScreen.shown || WeekdayTextScreen.bar.visible);
  Plug(3);
  MainWindow.connect.Click();
  EXPECT_TRUE(MainWindow.transferBar.visible);
  FinishTransfer();
  ShownAction(Action::Display1).Click();
  FinishTransfer();
  EXPECT_EQ(DisplayMenuScreen.bar.Maximum(), 1020);
  EXPECT_EQ(DisplayMenuScreen.bar.Value(), 1020);
}

TEST_F(WeekdayReadTest, LeavingAtOnceKeepsWhatWasReadAndTheNextOpeningReadsNothing) {
  const auto& module = Connect();
  Press();
  FinishTransfer();
  Leave();
  EXPECT_EQ(CodesAt(LcdWeekdayNames, 0, 21), "AbcAbcAbcAbcAbcAbcAbc");
  EXPECT_EQ(LcdWeekdayDirty, Cell(0));
  Press();
  EXPECT_TRUE(WeekdayTextScreen.shown && IsUsable());
  EXPECT_FALSE(TransferUnderWay);
  EXPECT_EQ(module.completedReads(), 2);
}

TEST_F(WeekdayReadTest, WhatWasReadIsEditedAndSent) {
  auto& module = Connect();
  Press();
  FinishTransfer();
  Day(6).Type("Sâ");
  Leave();
  auto expected = module.memory();
  expected.Cells("LcdWeekdayNames")[18] = 83;
  expected.Cells("LcdWeekdayNames")[19] = 226;
  expected.Cells("LcdWeekdayNames")[20] = 32;
  SendToModule();
  EXPECT_EQ(module.memory(), expected);
  EXPECT_EQ(module.errors(), 0);
  EXPECT_EQ(MainWindow.status.caption, "Ready");
  EXPECT_EQ(LcdWeekdayDirty, Cell(0));
  EXPECT_FALSE(WeekdayTextScreen.shown);
}

TEST_F(WeekdayReadTest, AnotherModuleIsRefusedAndTheNextPressOpensWithTheCellsAsTheyAre) {
  Connect();
  Plug(3, virtual_module::Fault::WrongIdentity);
  Press();
  FinishTransfer();
  EXPECT_EQ(messages.told,
            std::vector<std::string>{"De gevonden module is niet van het juiste type !"});
  EXPECT_FALSE(WeekdayTextScreen.shown);
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
  EXPECT_TRUE(AllVisibleActionsEnabled());
  EXPECT_EQ(LcdWeekdayLoaded, Cell(1));
  Press();
  EXPECT_TRUE(WeekdayTextScreen.shown && IsUsable());
  EXPECT_EQ(Day(0).Text(), std::string(3, '\0'));
}

TEST_F(WeekdayReadTest, AReadThatIsLeftGivesTheScreenFree) {
  Connect();
  Press();
  ASSERT_TRUE(RunUntilShown());
  ASSERT_TRUE(clock.RunUntil([] { return WeekdayTextScreen.bar.Value() == 5; }, 10'000));
  LeaveFailedTransfer();
  EXPECT_TRUE(WeekdayTextScreen.shown && IsUsable());
  EXPECT_FALSE(WeekdayTextScreen.bar.visible);
  EXPECT_EQ(Day(0).Text(), "Abc");
  Leave();
  EXPECT_FALSE(WeekdayTextScreen.shown);
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
}

TEST_F(WeekdayReadTest, WhatWasTypedSinceTheLastCellSurvivesAFailureOfTheLine) {
  Connect();
  Plug(3, virtual_module::Fault::NoStop);
  Press();
  ASSERT_TRUE(clock.RunUntil([] { return WeekdayTextScreen.shown && IsUsable(); }, 60'000));
  Day(2).Type("tue");
  LeaveFailedTransfer();
  EXPECT_EQ(Day(2).Text(), "tue");
  Leave();
  EXPECT_EQ(CodesAt(LcdWeekdayNames, 6, 3), "tue");
}

TEST_F(WeekdayReadTest, ASilentModuleKeepsTheScreenUnusable) {
  Connect();
  Plug(3, virtual_module::Fault::ShortStream);
  Press();
  ASSERT_TRUE(RunUntilShown());
  clock.Advance(60'000);
  EXPECT_TRUE(WeekdayTextScreen.shown);
  EXPECT_FALSE(WeekdayTextScreen.leave.enabled);
}

TEST_F(WeekdayReadTest, ASecondConnectKeepsTheOldNames) {
  auto& module = Connect();
  Press();
  FinishTransfer();
  Leave();
  module.memory().Cells("LcdWeekdayNames")[0] = 90;
  ReadModule();
  Press();
  EXPECT_TRUE(WeekdayTextScreen.shown);
  EXPECT_EQ(Day(0).Text(), "Abc");
  EXPECT_EQ(module.completedReads(), 3);
}

TEST_F(WeekdayReadTest, AReadThatASendRepeatsOpensNoScreen) {
  const auto& module = Connect();
  Press();
  FinishTransfer();
  Leave();
  SendToModule();
  EXPECT_EQ(module.completedReads(), 3);
  EXPECT_EQ(module.completedWrites(), 0);
  EXPECT_FALSE(WeekdayTextScreen.shown);
  EXPECT_EQ(WriteInProgress, Cell(0));
}

}  // namespace
}  // namespace bkconf
