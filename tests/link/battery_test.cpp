// One battery for every kind, against the virtual module, which knows blocks and frames by itself:
// read, compare, change, send, compare; then every fault.
#include <gtest/gtest.h>

#include <map>

#include "image/tables.h"
#include "link/link_ticks.h"
#include "link/transfer.h"
#include "shell/menus.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

using virtual_module::Fault;
using virtual_module::Memory;

Table& TableNamed(std::string_view name) {
  for (Table* table : AllTables) {
    if (table->name == name) return *table;
  }
  throw std::out_of_range(std::string(name));
}

/// Compares the first `count` cells of a table with the module's.
void ExpectSameCells(const Memory& memory, std::string_view name, int count) {
  const Table& table = TableNamed(name);
  const std::vector<int>& cells = memory.Cells(name);
  for (int index = 0; index < count; ++index) {
    ASSERT_EQ(table[index].Number(), cells[static_cast<std::size_t>(index)]) << name << index;
  }
}

class EveryKindTest : public SessionTest, public testing::WithParamInterface<int> {
 protected:
  EveryKindTest() { Start(); }

  /// The base table of the kind, and how many of its cells a module sends.
  std::pair<std::string, int> Base() const {
    const std::map<int, std::pair<std::string, int>> bases = {
        {0, {"ButtonImage", 164}},     {1, {"ButtonImage", 164}}, {4, {"ButtonImage", 164}},
        {11, {"ButtonImage", 164}},    {9, {"ButtonImage", 164}}, {2, {"TempHeader", 4}},
        {3, {"LcdHeader", 2}},         {5, {"AlarmImage", 293}},  {6, {"AudioImage", 213}},
        {7, {"SimulationImage", 185}}, {8, {"IrImage", 509}},
    };
    return bases.at(GetParam());
  }
};

TEST_P(EveryKindTest, AReadBringsTheBaseTableOfTheModule) {
  const auto& module = Plug(GetParam());
  ReadModule();
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_EQ(ActiveCode(), GetParam());
  EXPECT_FALSE(MainWindow.transferBar.visible);
  ExpectSameCells(module.memory(), Base().first, Base().second);
  EXPECT_EQ(module.errors(), 0);
}

TEST_P(EveryKindTest, ASecondReadOverwritesEachCellThatComes) {
  Plug(GetParam(), std::nullopt, 1);
  ReadModule();
  const auto& module = Plug(GetParam(), std::nullopt, 2);
  ReadModule();
  ExpectSameCells(module.memory(), Base().first, Base().second);
}

TEST_P(EveryKindTest, ANewAddressReachesTheModuleAndNoOtherCellChanges) {
  if (GetParam() == 9) {
    // The master has no address; its base table goes out when it counts as changed.
    auto& master = Plug(9);
    ReadModule();
    ButtonImage[120] = 7;
    MasterBaseDirty = 1;
    Memory expected = master.memory();
    expected.Cells("ButtonImage")[120] = 7;
    SendToModule();
    EXPECT_EQ(MainWindow.status.caption, "Ready");
    EXPECT_EQ(master.memory(), expected);
    return;
  }
  auto& module = Plug(GetParam());
  ReadModule();
  Memory expected = module.memory();
  ListField& address = MainWindow.Group(ActiveKind()->group).address;
  const int letter = address.Text() == "Q" ? 'B' : 'Q';
  address.Pick(letter - 'A');
  const auto place = virtual_module::AddressCellOf(GetParam());
  ASSERT_TRUE(place);
  expected.Cells(place->table)[static_cast<std::size_t>(place->cell)] = letter;
  if (GetParam() == 5) expected.Cells("AlarmImage")[293] = 0;  // sent although it is never read
  SendToModule();
  EXPECT_EQ(MainWindow.status.caption, "Ready");
  EXPECT_EQ(module.errors(), 0);
  EXPECT_EQ(module.memory(), expected);
}

TEST_P(EveryKindTest, ASendToAModuleWithOtherContentMakesItTheSame) {
  Plug(GetParam(), std::nullopt, 1);
  ReadModule();
  TempHeaderDirty = LcdHeaderDirty = MasterBaseDirty = 1;
  auto& module = Plug(GetParam(), std::nullopt, 2);
  const Memory before = module.memory();
  SendToModule();
  // The version stays the module's own, except on the IR module.
  const auto version = virtual_module::VersionCellOf(GetParam());
  const auto& cells = module.memory().Cells(Base().first);
  const Table& table = TableNamed(Base().first);
  for (int index = 0; index < Base().second; ++index) {
    const auto at = static_cast<std::size_t>(index);
    const bool kept = index == version.cell && GetParam() != 8;
    EXPECT_EQ(cells[at], kept ? before.Cells(Base().first)[at] : table[index].Whole()) << index;
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, EveryKindTest, testing::ValuesIn(AllKinds),
                         [](const auto& kind) { return "kind" + std::to_string(kind.param); });

struct AdditionalCase {
  int kind;
  const char* command;
  std::vector<std::pair<const char*, int>> tables;  ///< name and cells that come
  Cell* loaded;
};

class AdditionalTableTest : public SessionTest {
 protected:
  AdditionalTableTest() { Start(); }
};

std::vector<AdditionalCase> AdditionalCases() {
  return {{9, "T81000", {{"ContextTable", 1000}}, &MasterContextsLoaded},
          {9, "T82000", {{"TimeProgramTable", 1000}}, &MasterTimeLoaded},
          {9, "T83000", {{"LightProgramTable", 1000}}, &MasterLightLoaded},
          {2, "T81000", {{"TempRoomIds", 64}, {"TempTail", 82}}, &TempImage1Loaded},
          {2, "T82000", {{"TempPeriods", 672}, {"TempSetpoints", 336}}, &TempImage2Loaded},
          {3, "T81000", {{"LcdScreen1", 1020}}, &LcdScreen1Loaded},
          {3, "T83000", {{"LcdScreen2", 1020}}, &LcdScreen2Loaded},
          {3, "T85000", {{"LcdWeekdayNames", 21}}, &LcdWeekdayLoaded}};
}

TEST_F(AdditionalTableTest, AReadOnDemandBringsItsTablesAndSetsItsFlagAtTheStart) {
  for (const AdditionalCase& each : AdditionalCases()) {
    ActiveModuleType = NoModule;
    const auto& module = Plug(each.kind);
    ReadModule();
    *each.loaded = 0;
    WriteInProgress = 1;  // left by a Send that never came to its end
    ASSERT_TRUE(StartRequest(each.command));
    EXPECT_EQ(*each.loaded, Cell(1)) << each.command;
    FinishTransfer();
    for (const auto& [name, count] : each.tables) ExpectSameCells(module.memory(), name, count);
    EXPECT_EQ(MainWindow.status.caption, "Edit mode");
    EXPECT_TRUE(MainWindow.connect.enabled);
    EXPECT_EQ(WriteInProgress, Cell(0));
  }
}

TEST_F(AdditionalTableTest, LiveTemperaturesArriveInTheirSlots) {
  const auto& module = Plug(2);
  ReadModule();
  TempRoomIds.Fill(0, 63, 7);
  ASSERT_TRUE(StartRequest("T83000"));
  FinishTransfer();
  for (int cell = 0; cell < 64; ++cell) EXPECT_EQ(TempRoomIds[cell], Cell(7)) << cell;
  for (int room = 0; room < 8; ++room) {
    EXPECT_EQ(TempRoomIds[64 + room].Whole(),
              module.memory().Cells("TempRoomIds")[static_cast<std::size_t>(64 + room)]);
  }
}

TEST_F(AdditionalTableTest, TheScanOfTheMasterFillsItsDirectory) {
  const auto& module = Plug(9);
  ReadModule();
  for (int cell = 123; cell <= 158; ++cell) ButtonImage[cell] = 42;
  ASSERT_TRUE(StartRequest("T80400"));
  FinishTransfer();
  ExpectSameCells(module.memory(), "ButtonImage", 164);
  EXPECT_EQ(MainWindow.status.caption, "Ready");
}

TEST_F(AdditionalTableTest, EverythingOfAKindWithSeveralTablesGoesOutInOneSend) {
  struct {
    int kind;
    std::vector<const char*> reads;
    std::vector<Cell*> dirty;
  } const cases[] = {
      {2, {"T81000", "T82000"}, {&TempHeaderDirty, &TempRoomsDirty, &TempProgramDirty}},
      {3,
       {"T81000", "T83000", "T85000"},
       {&LcdHeaderDirty, &LcdScreen1Dirty, &LcdScreen2Dirty, &LcdWeekdayDirty}},
      {9,
       {"T81000", "T82000", "T83000"},
       {&MasterBaseDirty, &MasterContextsDirty, &MasterTimeDirty, &MasterLightDirty}},
  };
  for (const auto& each : cases) {
    ActiveModuleType = NoModule;
    const Memory source = Plug(each.kind, std::nullopt, 3).memory();
    ReadModule();
    for (const char* command : each.reads) {
      ASSERT_TRUE(StartRequest(command));
      FinishTransfer();
    }
    for (Cell* flag : each.dirty) *flag = 1;
    auto& module = Plug(each.kind, std::nullopt, 4);
    const Memory before = module.memory();
    SendToModule();
    EXPECT_EQ(MainWindow.status.caption, "Ready");
    EXPECT_EQ(module.errors(), 0);
    EXPECT_EQ(module.completedWrites(), each.kind == 2 ? 1 : static_cast<int>(each.dirty.size()));
    for (Cell* flag : each.dirty) EXPECT_EQ(*flag, Cell(0));
    for (const auto& table : source.tables()) {
      const auto name = virtual_module::NameOf(table.name);
      const auto& after = module.memory().Cells(table.name);
      for (std::size_t i = 0; i < table.cells.size(); ++i) {
        // What never goes out stays the module's own.
        const bool version = (name == "TempHeader" && i == 3) || (name == "LcdHeader" && i == 1) ||
                             (name == "ButtonImage" && i == 163);
        const bool own = version || (name == "TempRoomIds" && i >= 64) || i >= 1020;
        if (each.kind == 9 && name != "ButtonImage" && after[i] != table.cells[i]) {
          // Behind the two empty marks a master table is not sent.
          EXPECT_GT(i, 1U);
          EXPECT_EQ(table.cells[i - 1], 42) << name << i;
          continue;
        }
        EXPECT_EQ(after[i], own ? before.Cells(table.name)[i] : table.cells[i]) << name << i;
      }
    }
  }
}

TEST_F(AdditionalTableTest, BaseAndLightChangesAreTwoConversations) {
  auto& module = Plug(9);
  ReadModule();
  MasterBaseDirty = MasterLightDirty = 1;
  MasterLightLoaded = 1;
  LightProgramTable[0] = LightProgramTable[1] = 42;
  SendToModule();
  std::vector<std::string> commands;
  for (const auto& record : module.received()) {
    if (record.kind == virtual_module::UnitKind::Command) commands.push_back(record.text);
  }
  EXPECT_EQ(commands, (std::vector<std::string>{"T80000\r", "T70000\r", "T73000\r"}));
}

TEST_F(AdditionalTableTest, SendWithNothingToSendRepeatsTheLastCommand) {
  for (const int kind : {2, 3, 9}) {
    ActiveModuleType = NoModule;
    auto& module = Plug(kind);
    ReadModule();
    SendToModule();
    EXPECT_EQ(module.completedReads(), 2) << kind;
    EXPECT_EQ(module.completedWrites(), 0);
    EXPECT_EQ(MainWindow.status.caption, "Edit mode");
    EXPECT_EQ(WriteInProgress, Cell(0));
    EXPECT_TRUE(MainWindow.send.enabled);
  }
}

TEST_F(AdditionalTableTest, SendOnTheTemperatureModuleRepeatsItsLastWrite) {
  auto& module = Plug(2);
  ReadModule();
  MainWindow.tolerance.Pick(20);
  SendToModule();
  SendToModule();
  EXPECT_EQ(module.completedWrites(), 2);
  EXPECT_EQ(module.errors(), 0);
}

class FaultTest : public SessionTest {
 protected:
  FaultTest() { Start(); }

  static bool WindowIsLocked() {
    return !MainWindow.bestand.enabled && !MainWindow.connect.enabled && !MainWindow.send.enabled;
  }

  /// What the window's one handler of run-time errors does.
  void RunWithHandler(std::int64_t milliseconds) {
    try {
      clock.Advance(milliseconds);
    } catch (const RuntimeError& failure) {
      error = failure.kind;
      LeaveFailedTransfer();
    }
  }

  static void ExpectFreeWindow() {
    EXPECT_EQ(MainWindow.status.caption, "Edit mode");
    EXPECT_FALSE(MainWindow.transferBar.visible);
    EXPECT_TRUE(MainWindow.bestand.enabled);
    EXPECT_TRUE(MainWindow.moduleList.enabled);
    EXPECT_TRUE(MainWindow.connect.enabled);
    EXPECT_TRUE(MainWindow.send.enabled);
    for (const Tick* tick : LinkTicks) EXPECT_FALSE(tick->Enabled()) << tick->name;
  }

  std::optional<ErrorKind> error;
};

TEST_F(FaultTest, ASilentModuleIsAwaitedForEver) {
  Plug(0, Fault::Silent);
  MainWindow.connect.Click();
  clock.Advance(60'000);
  EXPECT_EQ(MainWindow.status.caption, "Module zoeken...");
  EXPECT_TRUE(WakeUpWait.Enabled());
  EXPECT_TRUE(WindowIsLocked());
}

TEST_F(FaultTest, AModuleThatIsSilentAfterTheCommandIsAwaitedWithTheWindowAlive) {
  Plug(0, Fault::SilentAfterCommand);
  MainWindow.connect.Click();
  clock.Advance(60'000);
  EXPECT_EQ(MainWindow.status.caption, "Inladen van de gegevens...");
  EXPECT_TRUE(LinkTick.Enabled());
  EXPECT_TRUE(WindowIsLocked());
}

TEST_F(FaultTest, AModuleThatIsSilentAfterItsIdentityIsAwaited) {
  Plug(0, Fault::SilentAfterIdentity);
  MainWindow.connect.Click();
  clock.Advance(60'000);
  EXPECT_EQ(ActiveCode(), 0);
  EXPECT_TRUE(LinkTick.Enabled());
}

TEST_F(FaultTest, AModuleThatStopsWithinALineHoldsTheWindow) {
  Plug(0, Fault::StopsWithinLine);
  MainWindow.connect.Click();
  EXPECT_THROW(clock.Advance(60'000), SpinLimit);
  EXPECT_EQ(MainWindow.status.caption, "Inladen van de gegevens...");
}

TEST_F(FaultTest, AReadWithoutStopShowsTheModuleAndKeepsTheMenusLocked) {
  Plug(0, Fault::NoStop);
  MainWindow.connect.Click();
  clock.Advance(60'000);
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_TRUE(MainWindow.connect.enabled);
  EXPECT_TRUE(MainWindow.send.enabled);
  EXPECT_FALSE(MainWindow.bestand.enabled);
  EXPECT_FALSE(MainWindow.moduleList.enabled);
  // Connect still works, and ends what was left of the read.
  Plug(0);
  ReadModule();
  EXPECT_TRUE(MainWindow.bestand.enabled);
}

TEST_F(FaultTest, AShortStreamLeavesTheOldCellsAndItsStatus) {
  Plug(0);
  ReadModule();
  const double before = ButtonImage[160].Number();
  const auto& module = Plug(0, Fault::ShortStream, 2);
  ASSERT_NE(module.memory().Cells("ButtonImage")[160], static_cast<int>(before));
  ReadModule();
  EXPECT_EQ(ButtonImage[160].Number(), before);
  EXPECT_EQ(ButtonImage[0].Number(), module.memory().Cells("ButtonImage")[0]);
  EXPECT_EQ(MainWindow.status.caption, "Inladen van de gegevens...");
  EXPECT_TRUE(MainWindow.transferBar.visible);
  EXPECT_TRUE(MainWindow.bestand.enabled);  // "STOP" came
}

TEST_F(FaultTest, AShortStreamOfADisplayKeepsTheWindowLocked) {
  Plug(3);
  ReadModule();
  Plug(3, Fault::ShortStream);
  ASSERT_TRUE(StartRequest("T81000"));
  clock.Advance(60'000);
  EXPECT_EQ(MainWindow.status.caption, "Inladen LCD Display 1...");
  EXPECT_TRUE(WindowIsLocked());
}

TEST_F(FaultTest, ADisplayWhoseLastLineNeverComesLeavesNothingBehind) {
  for (const auto& leave :
       {std::function<void()>(NewModule), std::function<void()>([] { ChangePort(3); })}) {
    ActiveModuleType = NoModule;
    Plug(3);
    ReadModule();
    Plug(3, Fault::NoStop);
    ASSERT_TRUE(StartRequest("T81000"));
    FinishTransfer();
    EXPECT_TRUE(LinkTick.Enabled());
    leave();
    EXPECT_FALSE(LinkTick.Enabled());
    clock.Advance(100);
  }
}

TEST_F(FaultTest, APortThatFailsWhileTheLastLineIsAwaitedLeavesTheTransfer) {
  Plug(3);
  ReadModule();
  Plug(3, Fault::NoStop);
  ASSERT_TRUE(StartRequest("T81000"));
  FinishTransfer();
  line.failed = true;
  RunWithHandler(100);
  EXPECT_EQ(error, ErrorKind::PortFailed);
  ExpectFreeWindow();
}

TEST_F(FaultTest, AReadOnDemandWhosePortCannotBeOpenedLeavesTheWindowLocked) {
  Plug(9);
  ReadModule();
  line.canOpen = false;
  EXPECT_FALSE(StartRequest("T82000"));
  EXPECT_EQ(MasterTimeLoaded, Cell(1));
  EXPECT_FALSE(WakeUpWait.Enabled());
  EXPECT_TRUE(WindowIsLocked());
  EXPECT_EQ(MainWindow.status.caption, "Module zoeken...");
}

TEST_F(FaultTest, AScreenIsToldThatItsTransferWasLeft) {
  Plug(3);
  ReadModule();
  int left = 0;
  LinkHandlers[static_cast<std::size_t>(LinkEvent::TransferLeft)] = {[&] { ++left; }};
  Plug(3, Fault::IndexBeyondTable);
  ASSERT_TRUE(StartRequest("T81000"));
  RunWithHandler(60'000);
  EXPECT_EQ(error, ErrorKind::IndexOutsideTable);
  EXPECT_EQ(left, 1);
}

TEST_F(FaultTest, LinesOutOfOrderAreStoredByTheirIndex) {
  for (const int kind : AllKinds) {
    ActiveModuleType = NoModule;
    const auto& module = Plug(kind, Fault::OutOfOrder);
    ReadModule();
    const auto& base = module.memory().tables().front();
    ExpectSameCells(module.memory(), virtual_module::NameOf(base.name),
                    static_cast<int>(base.cells.size()) - (kind == 5 ? 1 : 0));
  }
}

TEST_F(FaultTest, CorruptDigitsAreUsedAsTheyCome) {
  const auto& module = Plug(0, Fault::CorruptDigits);
  ReadModule();
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_TRUE(messages.told.empty());
  // Every tenth line carries a value that is cut at its second character.
  int cut = 0;
  for (int index = 0; index < 164; ++index) {
    if (ButtonImage[index].Number() != module.memory().Cells("ButtonImage")[std::size_t(index)]) {
      EXPECT_LT(ButtonImage[index].Number(), 10);
      ++cut;
    }
  }
  EXPECT_GT(cut, 10);
  EXPECT_LE(cut, 16);
}

TEST_F(FaultTest, AnUnknownIdentityIsTold) {
  Plug(0, Fault::UnknownIdentity);
  ReadModule();
  EXPECT_EQ(messages.told.size(), 1U);
  EXPECT_EQ(ActiveCode(), NoModule);
  ExpectFreeWindow();
}

TEST_F(FaultTest, AnIndexBeyondTheTableLeavesTheTransferAndKeepsTheImage) {
  for (const int kind : AllKinds) {
    ActiveModuleType = NoModule;
    error.reset();
    Plug(kind, Fault::IndexBeyondTable);
    MainWindow.connect.Click();
    RunWithHandler(60'000);
    EXPECT_EQ(error, ErrorKind::IndexOutsideTable) << kind;
    EXPECT_EQ(ActiveCode(), kind);
    ExpectFreeWindow();
  }
}

TEST_F(FaultTest, MoreLinesThanTheBarHoldsLeaveTheTransfer) {
  for (const int kind : AllKinds) {
    ActiveModuleType = NoModule;
    error.reset();
    Plug(kind, Fault::TooManyLines);
    MainWindow.connect.Click();
    RunWithHandler(60'000);
    EXPECT_EQ(error, ErrorKind::BarPastMaximum) << kind;
    ExpectFreeWindow();
  }
}

TEST_F(FaultTest, APortThatVanishesInTheMiddleOfAReadLeavesTheTransferAndKeepsTheCells) {
  const auto& module = Plug(0, Fault::VanishInRead);
  MainWindow.connect.Click();
  RunWithHandler(60'000);
  EXPECT_EQ(error, ErrorKind::PortFailed);
  EXPECT_EQ(ButtonImage[0].Number(), module.memory().Cells("ButtonImage")[0]);
  ExpectFreeWindow();
}

TEST_F(FaultTest, APortThatVanishesInTheMiddleOfAWriteLeavesTheTransferAndKeepsTheImage) {
  Plug(0);
  ReadModule();
  Plug(0, Fault::VanishInWrite);
  MainWindow.send.Click();
  const Snapshot before = TakeSnapshot();
  RunWithHandler(60'000);
  EXPECT_EQ(error, ErrorKind::PortFailed);
  ExpectFreeWindow();
  ExpectOnlyChanged(before, {"SendCursor", "WriteInProgress"});
}

}  // namespace
}  // namespace bkconf
