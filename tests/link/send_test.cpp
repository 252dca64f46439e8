#include "link/send.h"

#include <gtest/gtest.h>

#include <optional>

#include "link/link_ticks.h"
#include "link/transfer.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

class SendTest : public SessionTest {
 protected:
  SendTest() { Start(); }
};

TEST_F(SendTest, KindsWithOneTableAlwaysSendIt) {
  for (const int kind : {0, 1, 4, 11, 5, 6, 7, 8}) {
    ActiveModuleType = kind;
    PendingCommand = "T80000";
    const Snapshot before = TakeSnapshot();
    EXPECT_TRUE(ChooseCommand());
    EXPECT_EQ(PendingCommand, Cell("T70000"));
    ExpectOnlyChanged(before, {"PendingCommand"});
  }
}

struct TemperatureChoice {
  int header, rooms, program;
  const char* command;  ///< null: nothing is chosen
  int firstTable;
};

TEST_F(SendTest, TheTemperatureModuleSendsWhatItsThreeFlagsSay) {
  const TemperatureChoice choices[] = {
      {0, 0, 0, nullptr, 0},  {1, 0, 0, "T70000", 0}, {0, 1, 0, "T71000", 1},
      {0, 0, 1, "T72000", 2}, {1, 1, 0, "T73000", 0}, {1, 0, 1, "T74000", 0},
      {0, 1, 1, "T75000", 0}, {1, 1, 1, "T75000", 0},
  };
  for (const TemperatureChoice& choice : choices) {
    ActiveModuleType = 2;
    PendingCommand = "T82000";
    TableSelector = 9;
    TempHeaderDirty = choice.header;
    TempRoomsDirty = choice.rooms;
    TempProgramDirty = choice.program;
    MainWindow.send.enabled = true;
    SendImage();
    if (choice.command == nullptr) {
      EXPECT_EQ(PendingCommand, Cell("T82000"));
      EXPECT_EQ(TableSelector, Cell(9));
    } else {
      EXPECT_EQ(PendingCommand, Cell(choice.command));
      EXPECT_EQ(TableSelector, Cell(choice.firstTable)) << choice.command;
    }
    EXPECT_EQ(TempHeaderDirty.Number() + TempRoomsDirty.Number() + TempProgramDirty.Number(), 0);
  }
}

struct FlagChoice {
  int kind;
  std::vector<Cell*> set;
  const char* command;  ///< null: nothing is chosen
  const char* cleared;
};

TEST_F(SendTest, DisplayAndMasterSendTheFirstDirtyTable) {
  const FlagChoice choices[] = {
      {3, {&LcdHeaderDirty}, "T70000", "LcdHeaderDirty"},
      {3, {&LcdScreen1Loaded, &LcdScreen1Dirty}, "T71000", "LcdScreen1Dirty"},
      {3, {&LcdScreen2Loaded, &LcdScreen2Dirty}, "T73000", "LcdScreen2Dirty"},
      {3, {&LcdWeekdayLoaded, &LcdWeekdayDirty}, "T75000", "LcdWeekdayDirty"},
      {3, {&LcdScreen1Dirty, &LcdScreen2Dirty, &LcdWeekdayDirty}, nullptr, nullptr},
      {3, {&LcdScreen1Loaded, &LcdScreen2Loaded, &LcdWeekdayLoaded}, nullptr, nullptr},
      {3,
       {&LcdScreen1Dirty, &LcdScreen2Loaded, &LcdScreen2Dirty, &LcdWeekdayLoaded, &LcdWeekdayDirty},
       "T73000",
       "LcdScreen2Dirty"},
      {3, {&LcdHeaderDirty, &LcdScreen1Loaded, &LcdScreen1Dirty}, "T70000", "LcdHeaderDirty"},
      {9, {&MasterBaseDirty}, "T70000", "MasterBaseDirty"},
      {9, {&MasterContextsDirty}, "T71000", "MasterContextsDirty"},
      {9, {&MasterTimeDirty}, "T72000", "MasterTimeDirty"},
      {9, {&MasterLightDirty}, "T73000", "MasterLightDirty"},
      {9, {&MasterBaseDirty, &MasterLightDirty}, "T70000", "MasterBaseDirty"},
      {9, {&MasterTimeDirty, &MasterLightDirty}, "T72000", "MasterTimeDirty"},
      {9, {&MasterContextsLoaded}, nullptr, nullptr},
  };
  for (const FlagChoice& choice : choices) {
    for (const Flag& flag : StartUpFlags) *flag.cell = 0;
    ActiveModuleType = choice.kind;
    PendingCommand = "T80000";
    for (Cell* flag : choice.set) *flag = 1;
    const Snapshot before = TakeSnapshot();
    EXPECT_EQ(ChooseCommand(), choice.command != nullptr);
    if (choice.command == nullptr) {
      ExpectOnlyChanged(before, {});
    } else {
      EXPECT_EQ(PendingCommand, Cell(choice.command));
      ExpectOnlyChanged(before, {"PendingCommand", choice.cleared});
    }
  }
}

TEST_F(SendTest, NothingIsChosenWithNoImage) {
  PendingCommand = "T80000";
  const Snapshot before = TakeSnapshot();
  EXPECT_FALSE(ChooseCommand());
  ExpectOnlyChanged(before, {});
}

TEST_F(SendTest, SendLocksTheWindowAndStartsTheSearch) {
  Plug(0);
  ReadModule();
  RxLine = "rest";
  MainWindow.send.Click();
  EXPECT_EQ(WriteInProgress, Cell(1));
  EXPECT_EQ(RxLine, "");
  EXPECT_EQ(PendingCommand, Cell("T70000"));
  EXPECT_EQ(MainWindow.status.caption, "Module zoeken...");
  EXPECT_EQ(MainWindow.transferBar.Maximum(), 20000);
  EXPECT_TRUE(WakeUpWait.Enabled());
  EXPECT_FALSE(MainWindow.connect.enabled);
  EXPECT_FALSE(MainWindow.send.enabled);
  EXPECT_FALSE(MainWindow.bestand.enabled);
  EXPECT_FALSE(MainWindow.moduleList.enabled);
  EXPECT_FALSE(MainWindow.general.address.enabled);
  EXPECT_FALSE(AllVisibleActionsEnabled());
}

TEST_F(SendTest, APortThatCannotBeOpenedLeavesTheSearchStandingWithEverythingDisabled) {
  Plug(0);
  ReadModule();
  line.canOpen = false;
  MainWindow.send.Click();
  EXPECT_FALSE(WakeUpWait.Enabled());
  EXPECT_EQ(MainWindow.status.caption, "Module zoeken...");
  EXPECT_FALSE(MainWindow.connect.enabled);
  EXPECT_FALSE(MainWindow.send.enabled);
  EXPECT_FALSE(MainWindow.bestand.enabled);
}

TEST_F(SendTest, ARefusedSendHasLostItsFlagAndKeepsItsCommandPending) {
  Plug(9);
  ReadModule();
  MasterTimeDirty = 1;
  Plug(0);
  MainWindow.send.Click();
  FinishTransfer();
  EXPECT_EQ(MasterTimeDirty, Cell(0));
  EXPECT_EQ(PendingCommand, Cell("T72000"));
  EXPECT_EQ(WriteInProgress, Cell(0));
  Plug(9);
  SendToModule();  // the command is sent again
  EXPECT_EQ(MainWindow.status.caption, "Ready");
}

}  // namespace
}  // namespace bkconf
