#include "link/cell_handlers.h"

#include <gtest/gtest.h>

#include "image/tables.h"
#include "link/link_ticks.h"
#include "link/transfer.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

class CellHandlersTest : public SessionTest {
 protected:
  /// The setup step for this kind and command has run.
  void Begin(int kind, std::string_view command, int barMaximum) {
    Start();
    ActiveModuleType = kind;
    PendingCommand = command;
    ASSERT_TRUE(StartTransfer());
    WakeUpWait.Disable();
    Window.showModel(*ActiveKind());
    Window.showFields(*ActiveKind());
    MainWindow.transferBar.Start(barMaximum);
    MainWindow.status.caption = "reading";
  }

  static void Handle(std::string_view received) {
    RxLine = received;
    EXPECT_TRUE(HandleCellLine());
  }

  static bool ButtonsAreBack() {
    return MainWindow.connect.enabled && MainWindow.send.enabled && AllVisibleActionsEnabled();
  }

  static bool ReadIsClosed() {
    return MainWindow.status.caption == "Edit mode" && !MainWindow.transferBar.visible;
  }
};

struct BaseCase {
  int kind;
  Table* table;
  int maximum;
  int last;
};

class BaseReadTest : public CellHandlersTest, public testing::WithParamInterface<BaseCase> {};

TEST_P(BaseReadTest, EachLineStoresItsCellAndMovesTheBar) {
  const BaseCase& base = GetParam();
  Begin(base.kind, "T80000", base.maximum);
  const Snapshot before = TakeSnapshot();
  Handle("xy017255");
  EXPECT_EQ((*base.table)[17], Cell(255.0));
  ExpectOnlyChanged(before, {std::string(base.table->name) + "[17]", "RxLine"});
  EXPECT_EQ(MainWindow.transferBar.Value(), 1);
  EXPECT_EQ(MainWindow.status.caption, "reading");
  EXPECT_FALSE(MainWindow.connect.enabled);
}

TEST_P(BaseReadTest, TheLastIndexClosesTheReadAndTheMenusStayLocked) {
  const BaseCase& base = GetParam();
  Begin(base.kind, "T80000", base.maximum);
  if (base.kind != 9) (*base.table)[121] = 67;
  char received[9];
  std::snprintf(received, sizeof received, "C0%03d021", base.last);
  Handle(received);
  EXPECT_TRUE(ReadIsClosed());
  EXPECT_TRUE(ButtonsAreBack());
  EXPECT_FALSE(MainWindow.bestand.enabled);
  EXPECT_FALSE(MainWindow.moduleList.enabled);
  EXPECT_TRUE(TransferUnderWay);
  const DataGroupFields& fields = MainWindow.Group(ActiveKind()->group);
  EXPECT_TRUE(fields.version.visible);
  EXPECT_EQ(fields.address.visible, base.kind != 9);
  EXPECT_EQ(fields.address.enabled, base.kind != 9);
  EXPECT_EQ(fields.address.Text(), base.kind == 9 ? "" : "C");
}

TEST_P(BaseReadTest, CharactersOneAndTwoAreNotLookedAt) {
  const BaseCase& base = GetParam();
  for (const char* received : {"M1003007", "99003007", "  003007",
                               "\n\x01"
                               "003007"}) {
    Begin(base.kind, "T80000", base.maximum);
    (*base.table)[3] = Cell();
    Handle(received);
    EXPECT_EQ((*base.table)[3], Cell(7));
  }
}

TEST_P(BaseReadTest, ALineBeyondTheTableIsAnErrorAfterTheBarMoved) {
  const BaseCase& base = GetParam();
  Begin(base.kind, "T80000", base.maximum);
  RxLine = "C0999001";
  EXPECT_THROW(HandleCellLine(), RuntimeError);
  EXPECT_EQ(MainWindow.transferBar.Value(), 1);
}

TEST_P(BaseReadTest, ALinePastTheEndOfTheBarIsAnErrorBeforeItsStore) {
  const BaseCase& base = GetParam();
  Begin(base.kind, "T80000", base.maximum);
  for (int count = 0; count < base.maximum; ++count) Handle("C0000001");
  RxLine = "C0000002";
  EXPECT_THROW(HandleCellLine(), RuntimeError);
  EXPECT_EQ((*base.table)[0], Cell(1));
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, BaseReadTest,
    testing::Values(BaseCase{0, &ButtonImage, 164, 163}, BaseCase{1, &ButtonImage, 164, 163},
                    BaseCase{4, &ButtonImage, 164, 163}, BaseCase{11, &ButtonImage, 164, 163},
                    BaseCase{9, &ButtonImage, 164, 163}, BaseCase{5, &AlarmImage, 294, 292},
                    BaseCase{6, &AudioImage, 213, 212}, BaseCase{7, &SimulationImage, 185, 184},
                    BaseCase{8, &IrImage, 509, 508}),
    [](const auto& base) { return "kind" + std::to_string(base.param.kind); });

struct LenientCase {
  const char* line;
  int index;
  int value;
};

TEST_F(CellHandlersTest, DigitsEndAtTheFirstCharacterThatIsNone) {
  const LenientCase cases[] = {
      {"C00051x3", 5, 1}, {"C0005x13", 5, 0}, {"C0 05001", 0, 1}, {"C0-05001", 0, 1},
      {"C0005 12", 5, 0}, {"C00050", 5, 0},   {"C0005", 5, 0},    {"C0", 0, 0},
      {"", 0, 0},         {"C", 0, 0},        {"C000", 0, 0},     {"C0005999zz", 5, 999},
  };
  for (const LenientCase& each : cases) {
    Begin(0, "T80000", 164);
    ButtonImage[0] = ButtonImage[5] = "old";
    Handle(each.line);
    EXPECT_EQ(ButtonImage[each.index], Cell(each.value)) << each.line;
    EXPECT_EQ(ButtonImage[5 - each.index], Cell("old")) << each.line;
  }
}

TEST_F(CellHandlersTest, ASecondLastLineClosesTheReadAgain) {
  Begin(0, "T80000", 164);
  Handle("C0163021");
  MainWindow.status.caption = "something else";
  Handle("C0163022");
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_EQ(MainWindow.general.version.caption, "Versie: 2.2");
}

TEST_F(CellHandlersTest, RelaysAndDimmersKeepTheirVersionForTheLiveTests) {
  for (const int kind : AllKinds) {
    if (kind == 2 || kind == 3) continue;
    Begin(kind, "T80000", 600);
    ModuleVersion = Cell();
    const int last = kind == 5 ? 292 : kind == 6 ? 212 : kind == 7 ? 184 : kind == 8 ? 508 : 163;
    char received[9];
    std::snprintf(received, sizeof received, "C0%03d080", last);
    Handle(received);
    const bool keeps = kind == 0 || kind == 1 || kind == 4 || kind == 11;
    EXPECT_EQ(ModuleVersion, keeps ? Cell(80) : Cell()) << kind;
  }
}

TEST_F(CellHandlersTest, ABaseReadOfTheMasterClearsItsFourDirtyFlagsAndDrawsItsModuleList) {
  Begin(9, "T80000", 164);
  int drawn = 0;
  LinkHandlers[static_cast<std::size_t>(LinkEvent::ModuleListRead)] = {[&] { ++drawn; }};
  MasterBaseDirty = MasterContextsDirty = MasterTimeDirty = MasterLightDirty = 1;
  const Snapshot before = TakeSnapshot();
  Handle("C0163021");
  ExpectOnlyChanged(before, {"MasterBaseDirty", "MasterContextsDirty", "MasterTimeDirty",
                             "MasterLightDirty", "ButtonImage[163]", "RxLine"});
  EXPECT_EQ(drawn, 1);
}

TEST_F(CellHandlersTest, TheNumberOfDetectorsIsShownWithTheAlarmModule) {
  Begin(5, "T80000", 294);
  AlarmImage[123] = 7;
  AlarmImage[148] = 65;
  Handle("C0292001");
  EXPECT_EQ(MainWindow.detectorCount.Text(), "7");
  EXPECT_EQ(MainWindow.alarm.version.caption, "Versie: 6.5");
}

struct MasterCase {
  const char* command;
  Table* table;
};

TEST_F(CellHandlersTest, AnAdditionalMasterTableIsReadyAtCell999AndTheWindowWaitsForStop) {
  const MasterCase cases[] = {
      {"T81000", &ContextTable}, {"T82000", &TimeProgramTable}, {"T83000", &LightProgramTable}};
  for (const MasterCase& each : cases) {
    Begin(9, each.command, 1000);
    Handle("C0998007");
    EXPECT_EQ(MainWindow.status.caption, "reading");
    Handle("C0999042");
    EXPECT_EQ((*each.table)[998], Cell(7));
    EXPECT_EQ((*each.table)[999], Cell(42));
    EXPECT_TRUE(ReadIsClosed());
    EXPECT_FALSE(MainWindow.connect.enabled);
    EXPECT_EQ(MainWindow.transferBar.Value(), 2);
  }
}

TEST_F(CellHandlersTest, TheModuleScanFillsTheDirectoryWithoutABar) {
  Begin(9, "T80400", 0);
  int drawn = 0;
  LinkHandlers[static_cast<std::size_t>(LinkEvent::ModuleListRead)] = {[&] { ++drawn; }};
  const Snapshot before = TakeSnapshot();
  Handle("C0123065");
  EXPECT_EQ(drawn, 0);
  Handle("C0158002");
  EXPECT_EQ(drawn, 1);
  ExpectOnlyChanged(before, {"ButtonImage[123]", "ButtonImage[158]", "RxLine"});
  EXPECT_EQ(MainWindow.status.caption, "reading");
}

// The temperature module: the second character names the table.

struct TemperatureCase {
  const char* line;
  Table* table;
  int index;
  int value;
  const char* cleared;  ///< the dirty flag that the line clears, or null
};

TEST_F(CellHandlersTest, TheSecondCharacterOfATemperatureLineNamesItsTable) {
  const TemperatureCase cases[] = {
      {"M1000065", &TempHeader, 0, 65, "TempHeaderDirty"},
      {"M2010255", &TempRoomIds, 10, 255, nullptr},
      {"C3097030", &TempPeriods, 97, 30, nullptr},
      {"M4048021", &TempSetpoints, 48, 21, "TempProgramDirty"},
      {"M5064066", &TempTail, 64, 66, "TempRoomsDirty"},
  };
  for (const TemperatureCase& each : cases) {
    Begin(2, "T82000", 1008);
    TempHeaderDirty = TempRoomsDirty = TempProgramDirty = 1;
    (*each.table)[each.index] = Cell();
    const Snapshot before = TakeSnapshot();
    Handle(each.line);
    EXPECT_EQ((*each.table)[each.index], Cell(each.value)) << each.line;
    const std::string cell = std::string(each.table->name) + "[" + std::to_string(each.index) + "]";
    if (each.cleared != nullptr) {
      ExpectOnlyChanged(before, {cell, each.cleared, "RxLine"});
    } else {
      ExpectOnlyChanged(before, {cell, "RxLine"});
    }
    EXPECT_EQ(MainWindow.transferBar.Value(), 1);
  }
}

TEST_F(CellHandlersTest, ATemperatureLineOfNoTableStoresNothingAndMovesNoBar) {
  for (const char* received : {"M6000001", "M0000001", "Mx000001", "M", ""}) {
    Begin(2, "T81000", 146);
    const Snapshot before = TakeSnapshot();
    Handle(received);
    EXPECT_EQ(MainWindow.transferBar.Value(), 0);
    RxLine.clear();
    ExpectOnlyChanged(before, {});
  }
}

TEST_F(CellHandlersTest, TheLastHeaderCellShowsTheTemperatureModule) {
  Begin(2, "T80000", 4);
  Handle("M1000068");
  Handle("M1001008");
  Handle("M1002010");
  Handle("M1003021");
  EXPECT_TRUE(ReadIsClosed());
  EXPECT_TRUE(ButtonsAreBack());
  EXPECT_EQ(MainWindow.displayTemperature.address.Text(), "D");
  EXPECT_EQ(MainWindow.roomCount.Text(), "8");
  EXPECT_EQ(MainWindow.tolerance.Text(), "10");
  EXPECT_EQ(MainWindow.displayTemperature.version.caption, "Versie: 2.1");
  EXPECT_EQ(TempRoomCount, Cell(8));
  EXPECT_FALSE(MainWindow.bestand.enabled);
}

TEST_F(CellHandlersTest, AdditionalTemperatureTablesCloseAtTheirLastCell) {
  struct {
    const char* command;
    const char* line;
  } const cases[] = {{"T81000", "M5081008"}, {"T82000", "M4335018"}};
  for (const auto& each : cases) {
    Begin(2, each.command, 1008);
    int read = 0;
    LinkHandlers[static_cast<std::size_t>(LinkEvent::TemperatureRead)] = {[&] { ++read; }};
    Handle(each.line);
    EXPECT_TRUE(ReadIsClosed());
    EXPECT_TRUE(ButtonsAreBack());
    EXPECT_FALSE(MainWindow.bestand.enabled);
    EXPECT_EQ(read, 1);
  }
}

TEST_F(CellHandlersTest, LiveTemperaturesAreStoredAndToldAndCloseAtRoomEight) {
  Begin(2, "T83000", 8);
  int told = 0;
  LinkHandlers[static_cast<std::size_t>(LinkEvent::LiveTemperature)] = {[&] { ++told; }};
  Handle("M2064021");
  EXPECT_EQ(TempRoomIds[64], Cell(21));
  EXPECT_EQ(told, 1);
  EXPECT_EQ(MainWindow.status.caption, "reading");
  Handle("M2071099");
  EXPECT_EQ(told, 2);
  EXPECT_TRUE(ReadIsClosed());
}

TEST_F(CellHandlersTest, ATemperatureCellBeyondItsTableIsAnError) {
  for (const char* received : {"M1004001", "M2072001", "M3672001", "M4336001", "M5082001"}) {
    Begin(2, "T82000", 1008);
    RxLine = received;
    EXPECT_THROW(HandleCellLine(), RuntimeError) << received;
  }
}

// The display module: characters 2 to 5 are an address.

struct DisplayCase {
  const char* line;
  Table* table;
  int index;
  int value;
};

TEST_F(CellHandlersTest, TheAddressOfADisplayLineNamesTableAndCell) {
  const DisplayCase cases[] = {
      {"M1000067", &LcdHeader, 0, 67},     {"M2000076", &LcdScreen1, 0, 76},
      {"M2999032", &LcdScreen1, 999, 32},  {"M3000035", &LcdScreen1, 1000, 35},
      {"C2695003", &LcdScreen1, 695, 3},   {"M4700007", &LcdScreen2, 700, 7},
      {"M5000035", &LcdScreen2, 1000, 35}, {"M6003077", &LcdWeekdayNames, 3, 77},
      {"M3029001", &LcdScreen1, 1029, 1},  {"M4000076", &LcdScreen2, 0, 76},
  };
  for (const DisplayCase& each : cases) {
    Begin(3, "T81000", 1020);
    (*each.table)[each.index] = Cell();
    const Snapshot before = TakeSnapshot();
    Handle(each.line);
    EXPECT_EQ((*each.table)[each.index], Cell(each.value)) << each.line;
    ExpectOnlyChanged(
        before, {std::string(each.table->name) + "[" + std::to_string(each.index) + "]", "RxLine"});
    EXPECT_EQ(MainWindow.transferBar.Value(), 1);
  }
}

TEST_F(CellHandlersTest, TheHeaderOfTheDisplayIsFoundByCharactersThreeToFive) {
  Begin(3, "T80000", 4);
  Handle("M1x01021");  // no digit at the front of the three: 0
  EXPECT_EQ(LcdHeader[0], Cell(21));
  EXPECT_TRUE(LcdHeader[1].IsEmpty());
}

TEST_F(CellHandlersTest, AudioSimulationAndIrTakeEveryLineAsACell) {
  struct {
    int kind;
    Table* table;
  } const kinds[] = {{6, &AudioImage}, {7, &SimulationImage}, {8, &IrImage}};
  for (const auto& each : kinds) {
    Begin(each.kind, "T70000", 600);
    Handle("C0003007");
    EXPECT_EQ((*each.table)[3], Cell(7)) << each.kind;
    EXPECT_EQ(MainWindow.transferBar.Value(), 1);
  }
}

TEST_F(CellHandlersTest, ALineBeyondTheBarOfAnAdditionalTableIsAnError) {
  struct {
    int kind;
    const char* command;
    const char* line;
  } const cases[] = {{9, "T81000", "C0000001"},
                     {2, "T81000", "M2000001"},
                     {3, "T81000", "M2000001"},
                     {3, "T85000", "M6000001"}};
  for (const auto& each : cases) {
    Begin(each.kind, each.command, 2);
    Handle(each.line);
    Handle(each.line);
    RxLine = each.line;
    EXPECT_THROW(HandleCellLine(), RuntimeError) << each.command;
  }
}

TEST_F(CellHandlersTest, AReadThatASendRepeatsTellsNoScreen) {
  struct {
    int kind;
    const char* line;
  } const cases[] = {{2, "M5081008"}, {2, "M4335018"}, {3, "M3019000"}, {3, "M6020032"}};
  for (const auto& each : cases) {
    Begin(each.kind, "T81000", 1020);
    WriteInProgress = 1;
    int told = 0;
    for (auto& handlers : LinkHandlers) handlers = {[&] { ++told; }};
    Handle(each.line);
    EXPECT_EQ(told, 0) << each.line;
    EXPECT_EQ(WriteInProgress, Cell(0));
  }
}

TEST_F(CellHandlersTest, ADisplayLineOfNoTableStoresNothingAndMovesNoBar) {
  for (const char* received : {"M0000001", "M7000001", "Mx000001", ""}) {
    Begin(3, "T81000", 1020);
    const Snapshot before = TakeSnapshot();
    Handle(received);
    EXPECT_EQ(MainWindow.transferBar.Value(), 0);
    RxLine.clear();
    ExpectOnlyChanged(before, {});
  }
}

TEST_F(CellHandlersTest, ADisplayCellBeyondItsTableIsAnError) {
  for (const char* received : {"M1002001", "M3030001", "M5030001", "M6021001"}) {
    Begin(3, "T81000", 1020);
    RxLine = received;
    EXPECT_THROW(HandleCellLine(), RuntimeError) << received;
  }
}

TEST_F(CellHandlersTest, TheLastHeaderCellShowsTheDisplayModule) {
  Begin(3, "T80000", 4);
  Handle("M1000067");
  EXPECT_FALSE(ReadIsClosed());
  Handle("M1001021");
  EXPECT_TRUE(ReadIsClosed());
  EXPECT_TRUE(ButtonsAreBack());
  EXPECT_EQ(MainWindow.displayTemperature.address.Text(), "C");
  EXPECT_EQ(MainWindow.displayTemperature.version.caption, "Versie: 2.1");
  EXPECT_FALSE(MainWindow.bestand.enabled);
}

TEST_F(CellHandlersTest, ADisplayTableFreesTheWholeWindowAtItsLastCell) {
  for (const char* received : {"M3019000", "M5019000"}) {
    Begin(3, "T81000", 1020);
    int read = 0;
    LinkHandlers[static_cast<std::size_t>(LinkEvent::DisplayRead)] = {[&] { ++read; }};
    Handle(received);
    EXPECT_TRUE(ReadIsClosed());
    EXPECT_TRUE(ButtonsAreBack());
    EXPECT_TRUE(MainWindow.bestand.enabled);
    EXPECT_TRUE(MainWindow.moduleList.enabled);
    EXPECT_EQ(read, 1);
  }
}

TEST_F(CellHandlersTest, TheWeekdayNamesCloseAtTheirLastCellAndTheMenusWaitForStop) {
  Begin(3, "T85000", 21);
  int read = 0;
  LinkHandlers[static_cast<std::size_t>(LinkEvent::WeekdayRead)] = {[&] { ++read; }};
  Handle("M6020032");
  EXPECT_TRUE(ReadIsClosed());
  EXPECT_TRUE(ButtonsAreBack());
  EXPECT_FALSE(MainWindow.bestand.enabled);
  EXPECT_EQ(read, 1);
}

}  // namespace
}  // namespace bkconf
