// The way to a master's lists over the line: a press reads the list, and the module's last line
// opens the screen.
#include "link/link_ticks.h"
#include "master/master_line_test.h"

namespace bkconf {
namespace {

class MasterEntryTest : public MasterLineTest, public testing::WithParamInterface<MasterList> {
 protected:
  const MasterList& entry = GetParam();
};

INSTANTIATE_TEST_SUITE_P(Lists, MasterEntryTest, testing::ValuesIn(MasterLists),
                         [](const auto& each) { return each.param.name; });

TEST_P(MasterEntryTest, TheFirstPressEmptiesTheTableAndBeginsTheRead) {
  virtual_module::Module& module = ReadMaster();
  for (int cell = 0; cell < 1000; ++cell) (*entry.table)[cell] = 7;
  EXPECT_EQ(*entry.loaded, Cell(0));
  const std::size_t calls = line.calls.size();
  MainWindow.moduleList.Pick(0);
  Press(entry);
  EXPECT_FALSE(entry.screen->shown);
  EXPECT_EQ(PendingCommand, Cell(entry.command));
  EXPECT_EQ(*entry.loaded, Cell(1));
  ExpectEmpty(entry);
  EXPECT_EQ(MainWindow.moduleList.Text(), "KR7110");
  EXPECT_EQ(MainWindow.status.caption, "Module zoeken...");
  EXPECT_TRUE(MainWindow.transferBar.visible);
  EXPECT_EQ(MainWindow.transferBar.Maximum(), 20000);
  EXPECT_EQ(MainWindow.transferBar.Value(), 0);
  EXPECT_EQ(RxLine, "");
  ExpectUsable(false);
  EXPECT_EQ(Names(line.calls.begin() + static_cast<std::ptrdiff_t>(calls), line.calls.end()),
            (Names{"close", "open"}));
  FinishTransfer();
  EXPECT_EQ(Commands(module), (Names{"T80000", entry.command}));
}

TEST_P(MasterEntryTest, TheScreenOpensAtTheModulesLastLineOnly) {
  virtual_module::Module& module = ReadMaster();
  const Snapshot before = TakeSnapshot();
  Press(entry);
  ASSERT_TRUE(RunUntilStatus(entry.dutch));
  EXPECT_EQ(MainWindow.transferBar.Maximum(), 1000);
  EXPECT_TRUE(MainWindow.transferBar.visible);
  EXPECT_FALSE(entry.screen->shown);
  // The last cell ends the read for the eye.
  ASSERT_TRUE(RunUntilStatus("Edit mode"));
  EXPECT_FALSE(MainWindow.transferBar.visible);
  ExpectUsable(false);
  EXPECT_FALSE(entry.screen->shown);
  EXPECT_EQ((*entry.table)[999], Cell(42));
  FinishTransfer();
  EXPECT_TRUE(entry.screen->shown);
  ExpectSameCells(entry, module);
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_EQ(RxLine, "");
  ExpectUsable(true);
  for (const Tick* tick : LinkTicks) EXPECT_FALSE(tick->Enabled()) << tick->name;
  // A read: nothing of it waits to be sent.
  Names changed = {std::string(entry.table->name) + "[0..999]", entry.loadedName, "PendingCommand",
                   "RxLine"};
  if (entry.table == &ContextTable) changed.emplace_back("ContextWork[0..14999]");
  ExpectOnlyChanged(before, changed);
}

TEST_P(MasterEntryTest, TheStatusIsFrenchToo) {
  ReadMaster(2);
  Press(entry);
  EXPECT_EQ(MainWindow.status.caption, "Recherche module...");
  EXPECT_TRUE(RunUntilStatus(entry.french));
  FinishTransfer();
  EXPECT_TRUE(entry.screen->shown);
}

TEST_P(MasterEntryTest, APressDuringTheReadDoesNothing) {
  ReadMaster();
  Press(entry);
  for (const char* status : {entry.dutch, "Edit mode"}) {
    for (const MasterList& each : MasterLists) Press(each);
    ASSERT_TRUE(RunUntilStatus(status));
    for (const MasterList& each : MasterLists) {
      Press(each);
      EXPECT_FALSE(each.screen->shown) << each.name;
    }
  }
  FinishTransfer();
  for (const MasterList& each : MasterLists)
    EXPECT_EQ(each.screen->shown, each.action == entry.action);
}

TEST_P(MasterEntryTest, ASecondPressOpensAtOnce) {
  ReadMaster();
  PressAndWait(entry);
  entry.screen->Close();
  const std::size_t written = line.written.size();
  const Snapshot before = TakeSnapshot();
  Press(entry);
  EXPECT_TRUE(entry.screen->shown);
  EXPECT_FALSE(TransferUnderWay);
  EXPECT_EQ(line.written.size(), written);
  ExpectOnlyChanged(before, {});
}

TEST_P(MasterEntryTest, AnotherConnectMakesTheNextPressReadAgain) {
  ReadMaster();
  PressAndWait(entry);
  entry.screen->Close();
  ReadModule();
  EXPECT_EQ(*entry.loaded, Cell(0));
  Press(entry);
  EXPECT_FALSE(entry.screen->shown);
  FinishTransfer();
  EXPECT_TRUE(entry.screen->shown);
}

TEST_P(MasterEntryTest, AFileBringsTheListAndNothingIsRead) {
  Start();
  OpenFile();
  line.calls.clear();
  const Snapshot before = TakeSnapshot();
  Press(entry);
  EXPECT_TRUE(entry.screen->shown);
  EXPECT_FALSE(TransferUnderWay);
  EXPECT_TRUE(line.calls.empty());
  EXPECT_TRUE(line.written.empty());
  Names changed;
  if (entry.table == &ContextTable) changed.emplace_back("ContextWork[0..14999]");
  ExpectOnlyChanged(before, changed);
}

// --- Reads that go wrong ------------------------------------------------------------------------

TEST_P(MasterEntryTest, ARefusedModuleLeavesAnEmptyListThatOpensAtTheNextPress) {
  ReadMaster();
  Plug(1);
  PressAndWait(entry);
  EXPECT_EQ(messages.told.size(), 1U);
  EXPECT_FALSE(entry.screen->shown);
  EXPECT_EQ(*entry.loaded, Cell(1));
  ExpectEmpty(entry);
  ExpectUsable(true);
  Press(entry);
  EXPECT_TRUE(entry.screen->shown);
  EXPECT_FALSE(TransferUnderWay);
}

TEST_P(MasterEntryTest, ASilentModuleLeavesAnEmptyListAndTheScreenClosed) {
  ReadMaster();
  PlugMaster(Fault::SilentAfterCommand);
  Press(entry);
  clock.Advance(60'000);
  EXPECT_TRUE(TransferUnderWay);
  EXPECT_FALSE(entry.screen->shown);
  EXPECT_EQ(*entry.loaded, Cell(1));
  ExpectEmpty(entry);
  ExpectUsable(false);
}

TEST_P(MasterEntryTest, AReadThatStopsWithinALineKeepsTheScreenClosed) {
  ReadMaster();
  PlugMaster(Fault::StopsWithinLine);
  Press(entry);
  EXPECT_THROW(clock.Advance(60'000), SpinLimit);
  EXPECT_TRUE(TransferUnderWay);
  EXPECT_FALSE(entry.screen->shown);
  EXPECT_EQ(*entry.loaded, Cell(1));
  EXPECT_EQ((*entry.table)[999], Cell(42));
}

TEST_P(MasterEntryTest, WithoutALastLineTheScreenNeverOpensThoughEveryCellHasCome) {
  ReadMaster();
  const auto& module = PlugMaster(Fault::NoStop);
  Press(entry);
  clock.Advance(60'000);
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_TRUE(TransferUnderWay);
  EXPECT_FALSE(entry.screen->shown);
  ExpectSameCells(entry, module);
  ExpectUsable(false);
}

TEST_P(MasterEntryTest, HalfOfTheCellsAndALastLineOpenTheScreenOnThatHalf) {
  ReadMaster();
  auto& module = PlugMaster(Fault::ShortStream);
  auto& cells = module.memory().Cells(entry.table->name);
  std::fill(cells.begin() + 500, cells.end(), 7);
  PressAndWait(entry);
  EXPECT_TRUE(entry.screen->shown);
  for (int cell = 0; cell < 1000; ++cell) {
    const int expected = cell < 500 ? cells[static_cast<std::size_t>(cell)] : 42;
    ASSERT_EQ((*entry.table)[cell], Cell(expected)) << cell;
  }
}

TEST_P(MasterEntryTest, APortThatCannotBeOpenedLeavesAnEmptyListAndTheWindowLocked) {
  ReadMaster();
  line.canOpen = false;
  Press(entry);
  EXPECT_FALSE(entry.screen->shown);
  EXPECT_EQ(*entry.loaded, Cell(1));
  ExpectEmpty(entry);
  ExpectUsable(false);
}

// --- What the screens show of a read ------------------------------------------------------------

using MasterReadTest = MasterLineTest;

std::string ProgramRow(const ProgramScreen& screen, int row) {
  std::string text;
  for (int column = 0; column < 4; ++column) {
    text += (column == 0 ? "" : ", ") + screen.programs.At(row, column);
  }
  return text;
}

TEST_F(MasterReadTest, TheContextsOfTheHouseAreShown) {
  ReadMaster();
  PressAndWait(MasterLists[0]);
  EXPECT_EQ(ContextScreen.chooser.Text(), "Sfeer ?");
  ContextScreen.chooser.Pick(1);
  Names codes;
  for (int column = 0; column < 5; ++column) codes.push_back(ContextScreen.actions.At(1, column));
  EXPECT_EQ(codes, (Names{"C0160", "C0450", "D0430", "A0101", "D0501"}));
  EXPECT_EQ(ContextScreen.actions.At(2, 0), "");
  int free = 850;
  for (int cell = 100; cell < 1000; ++cell) free -= ContextTable[cell] == Cell(42) ? 0 : 1;
  EXPECT_EQ(ContextScreen.memory.caption, std::to_string(free / 3));
}

TEST_F(MasterReadTest, TheTimeProgrammesOfTheHouseAreShown) {
  ReadMaster();
  PressAndWait(MasterLists[1]);
  EXPECT_EQ(ProgramRow(TimeProgramScreen, 1), "1, S0502, 06:45, Maandag");
  EXPECT_EQ(ProgramRow(TimeProgramScreen, 25).substr(0, 3), "25,");
  EXPECT_EQ(ProgramRow(TimeProgramScreen, 26), "26, , , ");
  EXPECT_EQ(TimeProgramScreen.memory.caption, "85");
}

TEST_F(MasterReadTest, ADateOfAModuleHasTwoDigitsAfterTheRead) {
  Start();
  virtual_module::Module& module = PlugMaster();
  auto& cells = module.memory().Cells("TimeProgramTable");
  const int slot[] = {7, 5, 8, 5, 3, 9, 65, 0, 1};
  std::copy(std::begin(slot), std::end(slot), cells.begin());
  ReadModule();
  PressAndWait(MasterLists[1]);
  EXPECT_EQ(ProgramRow(TimeProgramScreen, 1), "1, A0101, 07:05, 05-03-09");
}

TEST_F(MasterReadTest, DirectionsHaveOtherTextsAfterTheReadUntilTheNextDrawing) {
  for (const int language : {1, 2}) {
    ReadMaster(language);
    const auto expect = [](const std::string& first, const std::string& seventh) {
      EXPECT_EQ(ProgramRow(LightProgramScreen, 1), "1, B0701, " + first + ", 20");
      EXPECT_EQ(ProgramRow(LightProgramScreen, 7), "7, B0301, " + seventh + ", 06");
    };
    const bool dutch = language == 1;
    const std::string dark = dutch ? "Licht -> Donker" : "Clair -> Sombre";
    const std::string light = dutch ? "Donker -> Licht" : "Sombre -> Clair";
    PressAndWait(MasterLists[2]);
    expect(dutch ? "Licht > Donker" : "Clair > Sombre",
           dutch ? "Licht < Donker" : "Clair < Sombre");
    EXPECT_EQ(LightProgramScreen.memory.caption, "188");
    LightProgramScreen.programs.DoubleClick(12, 1);
    LightProgramScreen.deleteYes.Click();
    expect(dark, light);

    ReadModule();
    PressAndWait(MasterLists[2]);
    Press(MasterLists[2]);
    expect(dark, light);
    EXPECT_EQ(LightProgramScreen.memory.caption, "188");

    ReadModule();
    PressAndWait(MasterLists[2]);
    LightProgramScreen.programs.DoubleClick(200, 1);
    LightProgramScreen.picker.letter.Pick(0);
    LightProgramScreen.picker.output.list.Pick(0);
    LightProgramScreen.picker.action.list.Pick(0);
    LightProgramScreen.lightToDark.Choose();
    LightProgramScreen.level.Pick(0);
    LightProgramScreen.editConfirm.Click();
    expect(dark, light);
    EXPECT_EQ(ProgramRow(LightProgramScreen, 13), "13, A0100, " + dark + ", 01");
  }
}

/// What stood behind a list of the master before does not come up in the next one's.
TEST_F(MasterReadTest, AnotherMastersContextsBeginClean) {
  ReadMaster();
  PressAndWait(MasterLists[0]);
  virtual_module::Module& other = PlugMaster();
  auto& cells = other.memory().Cells("ContextTable");
  std::fill(cells.begin(), cells.begin() + 100, 0);
  std::fill(cells.begin() + 100, cells.end(), 42);
  const int packed[] = {66, 1, 1, 42};
  std::copy(std::begin(packed), std::end(packed), cells.begin() + 100);
  cells[0] = 1;
  ReadModule();
  PressAndWait(MasterLists[0]);
  for (int cell = 3; cell < 15000; ++cell) ASSERT_EQ(ContextWork[cell], Cell(42)) << cell;
  EXPECT_EQ(ContextScreen.memory.caption, "282");
}

}  // namespace
}  // namespace bkconf
