#include <gtest/gtest.h>

#include <filesystem>

#include "image/module_directory.h"
#include "link/transfer.h"
#include "master/module_page_test.h"
#include "shell/module_file.h"

namespace bkconf {
namespace {

/// The scan of the bus, with the master of the demo house on the line.
class ModuleScanTest : public ModulePageTest {
 protected:
  virtual_module::Module& PlugMaster() {
    return Plug(
        {9, virtual_module::LoadImage(std::filesystem::path(BKCONF_DEMO_HOUSE) / "Master.BK1")});
  }
  /// The master is read, its list in memory is another one, and its page is open.
  void OpenOther(int language = 1) {
    Start(language);
    PlugMaster();
    ReadModule();
    ExpectHouseInMemory();
    DirectoryLetter(0) = int{'Q'};
    DirectoryType(3) = 5;
    OpenPage();
    ASSERT_EQ(Row(1), language == 1 ? "1 Q Relaismodule" : "1 Q Module relais");
  }
  static void ExpectHouseInMemory() {
    ExpectCells({{'A', 0},
                 {'B', 4},
                 {'C', 1},
                 {'D', 11},
                 {'E', 2},
                 {'F', 3},
                 {'G', 5},
                 {'H', 6},
                 {'I', 7},
                 {'J', 8}});
  }
  static std::vector<std::string> House() {
    return {"1 A Relaismodule",   "2 B Relaismodule DC",   "3 C Dimmodule",
            "4 D Lumenza module", "5 E Temperatuurmodule", "6 F LCD-TOUCH",
            "7 G Alarmmodule",    "8 H Audio interface",   "9 I Simulatiemodule",
            "10 J I.R. module"};
  }
  void ExpectUsable(bool usable) const {
    EXPECT_EQ(page.scan.Usable(), usable);
    EXPECT_EQ(page.modules.enabled, usable);
    EXPECT_EQ(page.down.enabled, usable);
    EXPECT_EQ(page.up.enabled, usable);
    EXPECT_EQ(MainWindow.moduleList.enabled, usable);
    EXPECT_EQ(MainWindow.bestand.enabled, usable);
    EXPECT_EQ(MainWindow.connect.enabled, usable);
    EXPECT_EQ(MainWindow.send.enabled, usable);
    EXPECT_EQ(ShownAction(Action::Configuration).Usable(), usable);
  }
  bool RunUntilStatus(const std::string& status) {
    return clock.RunUntil([&] { return MainWindow.status.caption == status; }, 60'000);
  }
};

TEST_F(ModuleScanTest, AReadBringsTheListThatThePageShows) {
  Start();
  PlugMaster();
  ReadModule();
  OpenPage();
  ExpectRows(House());
  EXPECT_EQ(page.down.Text() + page.up.Text(), "02");
}

TEST_F(ModuleScanTest, BringsTheModulesOfTheBus) {
  OpenOther();
  const Snapshot before = TakeSnapshot();
  page.scan.Click();
  FinishTransfer();
  ExpectRows(House());
  ExpectHouseInMemory();
  ExpectUsable(true);
  ExpectShown(true, false, false);
  // A scan is a read: nothing of it waits to be sent.
  EXPECT_EQ(MasterBaseDirty, Cell(0));
  ExpectOnlyChanged(before, {"ButtonImage[123]", "ButtonImage[144]", "PendingCommand"});
}

TEST_F(ModuleScanTest, ShowsTheModulesWithTheLastCellBeforeTheModuleSaysThatItIsDone) {
  OpenOther();
  Plug({9, virtual_module::LoadImage(std::filesystem::path(BKCONF_DEMO_HOUSE) / "Master.BK1"),
        virtual_module::Fault::NoStop});
  page.scan.Click();
  clock.Advance(60'000);
  EXPECT_TRUE(TransferUnderWay);
  ExpectRows(House());
  ExpectUsable(false);
}

TEST_F(ModuleScanTest, ShowsTheModulesInFrench) {
  OpenOther(2);
  page.scan.Click();
  ASSERT_TRUE(RunUntilStatus("Scanning des modules..."));
  FinishTransfer();
  EXPECT_EQ(Row(5), "5 E Module température");
}

TEST_F(ModuleScanTest, BeginsWithAnEmptyListAndTheSearch) {
  OpenOther();
  page.scan.Click();
  EXPECT_EQ(PendingCommand, Cell("T80400"));
  ExpectCells({});
  ExpectRows({});
  EXPECT_TRUE(page.modules.visible);
  EXPECT_TRUE(MainWindow.transferBar.visible);
  EXPECT_EQ(MainWindow.transferBar.Maximum(), 20000);
  EXPECT_EQ(MainWindow.transferBar.Value(), 0);
  EXPECT_EQ(MainWindow.status.caption, "Module zoeken...");
  EXPECT_TRUE(TransferUnderWay);
  ASSERT_GE(line.calls.size(), 2U);
  EXPECT_EQ(line.calls[line.calls.size() - 2], "close");
  EXPECT_EQ(line.calls.back(), "open");
  ASSERT_TRUE(RunUntilStatus("Scanning van de modules..."));
  EXPECT_FALSE(MainWindow.transferBar.visible);
  FinishTransfer();
}

TEST_F(ModuleScanTest, NothingOnThePageIsUsableMeanwhile) {
  OpenOther();
  page.scan.Click();
  ExpectUsable(false);
  page.modules.DoubleClick(1, 1);
  page.down.Pick(5);
  ExpectShown(true, false, false);
  ASSERT_TRUE(RunUntilStatus("Scanning van de modules..."));
  ExpectUsable(false);
  FinishTransfer();
  ExpectUsable(true);
  EXPECT_EQ(page.down.Text(), "0");
}

TEST_F(ModuleScanTest, ClosesThePanels) {
  for (const int row : {1, 18}) {
    OpenOther();
    page.modules.DoubleClick(row, 1);
    ExpectShown(true, row == 18, row == 1);
    page.scan.Click();
    ExpectShown(true, false, false);
    FinishTransfer();
  }
}

TEST_F(ModuleScanTest, AFullBusFillsAllRows) {
  Start();
  auto& cells = PlugMaster().memory().Cells("ButtonImage");
  for (int row = 0; row < 18; ++row) {
    cells[static_cast<std::size_t>(123 + row)] = 'A' + row;
    cells[static_cast<std::size_t>(141 + row)] = 1;
  }
  ReadModule();
  OpenPage();
  page.scan.Click();
  FinishTransfer();
  EXPECT_EQ(Row(1), "1 A Dimmodule");
  EXPECT_EQ(Row(18), "18 R Dimmodule");
}

TEST_F(ModuleScanTest, AnEmptyBusLeavesAnEmptyList) {
  Start();
  auto& cells = PlugMaster().memory().Cells("ButtonImage");
  for (int cell = 123; cell <= 158; ++cell) cells[static_cast<std::size_t>(cell)] = 42;
  ReadModule();
  OpenPage();
  page.scan.Click();
  FinishTransfer();
  ExpectRows({});
  page.modules.DoubleClick(1, 1);
  ExpectShown(true, true, false);
}

TEST_F(ModuleScanTest, APortThatCannotBeOpenedLeavesTheWindowLocked) {
  OpenOther();
  line.canOpen = false;
  page.scan.Click();
  ExpectUsable(false);
  ExpectRows({});
}

TEST_F(ModuleScanTest, AnAddedModuleGoesToTheMasterAndComesBack) {
  Start();
  virtual_module::Module& master = PlugMaster();
  ReadModule();
  OpenPage();
  page.modules.DoubleClick(11, 1);
  page.addLetter.Pick(0);
  ASSERT_EQ(page.addLetter.Text(), "K");
  page.addType.Pick(9);
  page.addConfirm.Click();
  SendToModule();
  EXPECT_EQ(master.memory().Cells("ButtonImage")[133], 'K');
  EXPECT_EQ(master.memory().Cells("ButtonImage")[151], 11);
  EXPECT_EQ(MasterBaseDirty, Cell(0));
  ReadModule();
  OpenPage();
  EXPECT_EQ(Row(11), "11 K Lumenza module");
}

TEST_F(ModuleScanTest, AnAddedModuleIsInAFileToo) {
  Open({{'A', 0}});
  page.modules.DoubleClick(2, 1);
  page.addLetter.Pick(0);
  page.addType.Pick(9);
  page.addConfirm.Click();
  SaveModuleAs("/house", "Master");
  MainWindow.nieuw.Click();
  ButtonImage[142] = 0;
  OpenModule("/house/Master.BK1");
  OpenPage();
  ExpectRows({"1 A Relaismodule", "2 B Lumenza module"});
}

TEST_F(ModuleScanTest, ACorrectionGoesToTheMaster) {
  Start();
  virtual_module::Module& master = PlugMaster();
  ReadModule();
  OpenPage();
  page.down.Pick(5);
  SendToModule();
  EXPECT_EQ(master.memory().Cells("ButtonImage")[120], 5);
  EXPECT_EQ(master.memory().Cells("ButtonImage")[121], 0);
}

// --- A scan that is left ------------------------------------------------------------------------

TEST_F(ModuleScanTest, AScanThatIsLeftHalfwayShowsWhatHasCome) {
  OpenOther();
  page.scan.Click();
  ASSERT_TRUE(clock.RunUntil([] { return DirectoryLetter(2) == Cell('C'); }, 60'000));
  ExpectRows({});
  LeaveTransfer();
  // The letters come before the types.
  ExpectRows({"1 A ", "2 B ", "3 C "});
  ExpectUsable(true);
  page.modules.DoubleClick(1, 1);
  ExpectShown(true, false, true);
}

TEST_F(ModuleScanTest, AScanThatEndsInARunTimeErrorShowsWhatHasCome) {
  OpenOther();
  Plug({9, virtual_module::LoadImage(std::filesystem::path(BKCONF_DEMO_HOUSE) / "Master.BK1"),
        virtual_module::Fault::IndexBeyondTable});
  page.scan.Click();
  bool failed = false;
  try {
    clock.Advance(60'000);
  } catch (const RuntimeError&) {
    failed = true;
    ExpectRows({});
    LeaveFailedTransfer();
  }
  ASSERT_TRUE(failed);
  EXPECT_EQ(Row(1).substr(0, 3), "1 A");
  ExpectUsable(true);
}

TEST_F(ModuleScanTest, AScanThatTheModuleRefusesLeavesAnEmptyList) {
  OpenOther();
  Plug(1);
  page.scan.Click();
  FinishTransfer();
  EXPECT_EQ(messages.told.size(), 1U);
  ExpectRows({});
  ExpectUsable(true);
  ExpectShown(true, false, false);
}

TEST_F(ModuleScanTest, WhatIsLeftDrawsNoListOnAPageThatIsHidden) {
  OpenOther();
  page.scan.Click();
  ASSERT_TRUE(clock.RunUntil([] { return DirectoryLetter(2) == Cell('C'); }, 60'000));
  page.page.visible = false;
  LeaveTransfer();
  ExpectRows({});
}

}  // namespace
}  // namespace bkconf
