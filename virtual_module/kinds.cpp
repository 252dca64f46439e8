#include "virtual_module/kinds.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace virtual_module {
namespace {

using enum TableName;

constexpr KindRow kindRows[] = {
    {.kind = 0, .identity = "DISPL0", .caption = "relay"},
    {.kind = 1, .identity = "DISPL1", .caption = "dimmer"},
    {.kind = 2, .identity = "DISPL2", .caption = "temperature"},
    {.kind = 3, .identity = "DISPL3", .caption = "display"},
    {.kind = 4, .identity = "DISPL4", .caption = "relay, direct current"},
    {.kind = 5, .identity = "DISPL5", .caption = "alarm"},
    {.kind = 6, .identity = "DISPL6", .caption = "audio"},
    {.kind = 7, .identity = "DISPL7", .caption = "simulation"},
    {.kind = 8, .identity = "DISPL8", .caption = "infrared"},
    {.kind = 9, .identity = "DISPL9", .caption = "master"},
    {.kind = 11, .identity = "DISPL11", .caption = "dimmer with switched outputs"},
};

struct NameRow {
  TableName table;
  std::string_view name;
};

constexpr NameRow nameRows[] = {
    {ButtonImage, "ButtonImage"},
    {ContextTable, "ContextTable"},
    {TimeProgramTable, "TimeProgramTable"},
    {LightProgramTable, "LightProgramTable"},
    {TempHeader, "TempHeader"},
    {TempRoomIds, "TempRoomIds"},
    {TempPeriods, "TempPeriods"},
    {TempSetpoints, "TempSetpoints"},
    {TempTail, "TempTail"},
    {LcdHeader, "LcdHeader"},
    {LcdScreen1, "LcdScreen1"},
    {LcdScreen2, "LcdScreen2"},
    {LcdWeekdayNames, "LcdWeekdayNames"},
    {AlarmImage, "AlarmImage"},
    {AudioImage, "AudioImage"},
    {SimulationImage, "SimulationImage"},
    {IrImage, "IrImage"},
};

// Rows of a kind stand together, in the order of the file. The last cell of the alarm image and
// the live temperatures are not part of a configuration.
constexpr TableRow tableRows[] = {
    {.kind = 0, .table = ButtonImage, .cells = 164, .saved = 164},
    {.kind = 1, .table = ButtonImage, .cells = 164, .saved = 164},
    {.kind = 4, .table = ButtonImage, .cells = 164, .saved = 164},
    {.kind = 11, .table = ButtonImage, .cells = 164, .saved = 164},
    {.kind = 2, .table = TempHeader, .cells = 4, .saved = 4},
    {.kind = 2, .table = TempRoomIds, .cells = 72, .saved = 64},
    {.kind = 2, .table = TempPeriods, .cells = 672, .saved = 672},
    {.kind = 2, .table = TempSetpoints, .cells = 336, .saved = 336},
    {.kind = 2, .table = TempTail, .cells = 82, .saved = 82},
    {.kind = 3, .table = LcdHeader, .cells = 2, .saved = 2},
    {.kind = 3, .table = LcdScreen1, .cells = 1030, .saved = 1030},
    {.kind = 3, .table = LcdScreen2, .cells = 1030, .saved = 1030},
    {.kind = 3, .table = LcdWeekdayNames, .cells = 21, .saved = 21},
    {.kind = 5, .table = AlarmImage, .cells = 294, .saved = 293},
    {.kind = 6, .table = AudioImage, .cells = 213, .saved = 213},
    {.kind = 7, .table = SimulationImage, .cells = 185, .saved = 185},
    {.kind = 8, .table = IrImage, .cells = 509, .saved = 509},
    {.kind = 9, .table = ButtonImage, .cells = 164, .saved = 164},
    {.kind = 9, .table = ContextTable, .cells = 1000, .saved = 1000},
    {.kind = 9, .table = TimeProgramTable, .cells = 1000, .saved = 1000},
    {.kind = 9, .table = LightProgramTable, .cells = 1000, .saved = 1000},
};

constexpr LineForm byIndex = LineForm::Index;
constexpr LineForm byAddress = LineForm::Address;

// Rows of a command stand together. The base of the temperature module is its table digit, the
// base of the display module the place of the table in one address space.
constexpr ReadRow readRows[] = {
    {0, "T80000", ButtonImage, 0, 163, byIndex, 0},
    {1, "T80000", ButtonImage, 0, 163, byIndex, 0},
    {4, "T80000", ButtonImage, 0, 163, byIndex, 0},
    {11, "T80000", ButtonImage, 0, 163, byIndex, 0},
    {2, "T80000", TempHeader, 0, 3, byAddress, 1000},
    {2, "T81000", TempRoomIds, 0, 63, byAddress, 2000},
    {2, "T81000", TempTail, 0, 81, byAddress, 5000},
    {2, "T82000", TempPeriods, 0, 671, byAddress, 3000},
    {2, "T82000", TempSetpoints, 0, 335, byAddress, 4000},
    {2, "T83000", TempRoomIds, 64, 71, byAddress, 2000},
    {3, "T80000", LcdHeader, 0, 1, byAddress, 1000},
    {3, "T81000", LcdScreen1, 0, 1019, byAddress, 2000},
    {3, "T83000", LcdScreen2, 0, 1019, byAddress, 4000},
    {3, "T85000", LcdWeekdayNames, 0, 20, byAddress, 6000},
    {5, "T80000", AlarmImage, 0, 292, byIndex, 0},
    {6, "T80000", AudioImage, 0, 212, byIndex, 0},
    {7, "T80000", SimulationImage, 0, 184, byIndex, 0},
    {8, "T80000", IrImage, 0, 508, byIndex, 0},
    {9, "T80000", ButtonImage, 0, 163, byIndex, 0},
    {9, "T81000", ContextTable, 0, 999, byIndex, 0},
    {9, "T82000", TimeProgramTable, 0, 999, byIndex, 0},
    {9, "T83000", LightProgramTable, 0, 999, byIndex, 0},
    {9, "T80400", ButtonImage, 123, 158, byIndex, 0},  // the modules found on the bus
};

constexpr FrameForm paced = FrameForm::Paced;
constexpr FrameForm three = FrameForm::ThreeDigit;
constexpr FrameForm two = FrameForm::TwoDigit;
constexpr FrameForm plain = FrameForm::Plain;
constexpr FrameForm stored = FrameForm::AsStored;
constexpr EarlyEnd none = EarlyEnd::None;
constexpr EarlyEnd twoEmpty = EarlyEnd::TwoEmptyCells;

// Rows of a command stand together, in the order in which the module fills them. A cell in no row
// cannot be written: the version (but for kind 8), the live temperatures, the rest of a display.
constexpr WriteRow writeRows[] = {
    {0, "T70000", ButtonImage, 0, 162, paced, none},
    {1, "T70000", ButtonImage, 0, 162, paced, none},
    {4, "T70000", ButtonImage, 0, 162, paced, none},
    {11, "T70000", ButtonImage, 0, 162, paced, none},

    {2, "T70000", TempHeader, 0, 2, three, none},
    {2, "T71000", TempRoomIds, 0, 63, plain, none},
    {2, "T71000", TempTail, 0, 81, stored, none},
    {2, "T72000", TempPeriods, 0, 671, two, none},
    {2, "T72000", TempSetpoints, 0, 335, two, none},
    {2, "T73000", TempHeader, 0, 2, three, none},
    {2, "T73000", TempRoomIds, 0, 63, plain, none},
    {2, "T73000", TempTail, 0, 81, stored, none},
    {2, "T74000", TempHeader, 0, 2, three, none},
    {2, "T74000", TempPeriods, 0, 671, two, none},
    {2, "T74000", TempSetpoints, 0, 335, two, none},
    {2, "T75000", TempHeader, 0, 2, three, none},
    {2, "T75000", TempRoomIds, 0, 63, plain, none},
    {2, "T75000", TempPeriods, 0, 671, two, none},
    {2, "T75000", TempSetpoints, 0, 335, two, none},
    {2, "T75000", TempTail, 0, 81, stored, none},

    {3, "T70000", LcdHeader, 0, 0, three, none},
    {3, "T71000", LcdScreen1, 0, 71, three, none},
    {3, "T71000", LcdScreen1, 72, 700, three, none},
    {3, "T71000", LcdScreen1, 701, 779, three, none},
    {3, "T71000", LcdScreen1, 780, 1019, three, none},
    {3, "T73000", LcdScreen2, 0, 71, three, none},
    {3, "T73000", LcdScreen2, 72, 700, three, none},
    {3, "T73000", LcdScreen2, 701, 779, three, none},
    {3, "T73000", LcdScreen2, 780, 1019, three, none},
    {3, "T75000", LcdWeekdayNames, 0, 20, three, none},

    {5, "T70000", AlarmImage, 0, 147, three, none},
    {5, "T70000", AlarmImage, 149, 293, three, none},

    {6, "T70000", AudioImage, 0, 122, three, none},
    {6, "T70000", AudioImage, 124, 180, three, none},
    {6, "T70000", AudioImage, 181, 196, three, none},
    {6, "T70000", AudioImage, 197, 212, three, none},

    {7, "T70000", SimulationImage, 0, 123, three, none},
    {7, "T70000", SimulationImage, 125, 184, three, none},

    {8, "T70000", IrImage, 0, 124, three, none},
    {8, "T70000", IrImage, 125, 220, three, none},
    {8, "T70000", IrImage, 221, 316, three, none},
    {8, "T70000", IrImage, 317, 412, three, none},
    {8, "T70000", IrImage, 413, 508, three, none},

    {9, "T70000", ButtonImage, 0, 162, three, none},
    {9, "T71000", ContextTable, 0, 999, three, twoEmpty},
    {9, "T72000", TimeProgramTable, 0, 999, three, twoEmpty},
    {9, "T73000", LightProgramTable, 0, 999, three, twoEmpty},
};

constexpr int firstLongVersion = 65;  // alarm modules from here on tell more of a detector

// Rows of a kind stand together.
constexpr LiveRow liveRows[] = {
    {0, "T80100", LiveTest::Line},
    {0, "T80200", LiveTest::Buttons},
    {0, "T80300", LiveTest::Outputs},
    {1, "T80100", LiveTest::Line},
    {1, "T80200", LiveTest::Buttons},
    {1, "T80300", LiveTest::Outputs},
    {4, "T80100", LiveTest::Line},
    {4, "T80200", LiveTest::Buttons},
    {4, "T80300", LiveTest::Outputs},
    {11, "T80100", LiveTest::Line},
    {11, "T80200", LiveTest::Buttons},
    {11, "T80300", LiveTest::Outputs},

    {5, "T80100", LiveTest::Line},
    {5, "T80200", LiveTest::Buttons},
    {5, "T80300", LiveTest::ShortDetectors, 0, firstLongVersion - 1},
    {5, "T80400", LiveTest::LongDetectors, firstLongVersion},

    {9, "T80100", LiveTest::Line},
    {9, "T80200", LiveTest::Buttons},
    {9, "T80300", LiveTest::Clock},
    {9, "T80500", LiveTest::Light},
};

struct FixedRow {
  int kind;
  TableName table;
  int addressCell;  // -1: the kind has none
  int versionCell;
};

constexpr FixedRow fixedRows[] = {
    {0, ButtonImage, 121, 163}, {1, ButtonImage, 121, 163},     {2, TempHeader, 0, 3},
    {3, LcdHeader, 0, 1},       {4, ButtonImage, 121, 163},     {5, AlarmImage, 121, 148},
    {6, AudioImage, 121, 123},  {7, SimulationImage, 121, 124}, {8, IrImage, 121, 124},
    {9, ButtonImage, -1, 163},  {11, ButtonImage, 121, 163},
};

// The rows between the first and the last that `fits`; they stand together in the table.
template <typename Row, typename Fits>
std::span<const Row> RowsThat(std::span<const Row> rows, Fits fits) {
  const auto first = std::find_if(rows.begin(), rows.end(), fits);
  const auto end = std::find_if_not(first, rows.end(), fits);
  return {first, end};
}

template <typename Row>
std::span<const Row> RowsOfCommand(std::span<const Row> rows, int kind, std::string_view command) {
  return RowsThat(
      rows, [kind, command](const Row& row) { return row.kind == kind && row.command == command; });
}

const FixedRow& FixedCellsOf(int kind) {
  const auto* row = std::find_if(std::begin(fixedRows), std::end(fixedRows),
                                 [kind](const FixedRow& each) { return each.kind == kind; });
  if (row == std::end(fixedRows)) {
    throw std::invalid_argument("no module is of kind " + std::to_string(kind));
  }
  return *row;
}

}  // namespace

std::span<const KindRow> Kinds() {
  return kindRows;
}

const KindRow& KindOf(int kind) {
  const auto* row = std::find_if(std::begin(kindRows), std::end(kindRows),
                                 [kind](const KindRow& each) { return each.kind == kind; });
  if (row == std::end(kindRows)) {
    throw std::invalid_argument("no module is of kind " + std::to_string(kind));
  }
  return *row;
}

std::span<const TableRow> TablesOf(int kind) {
  return RowsThat(std::span<const TableRow>(tableRows),
                  [kind](const TableRow& row) { return row.kind == kind; });
}

std::span<const ReadRow> ReadRowsOf(int kind, std::string_view command) {
  return RowsOfCommand(std::span<const ReadRow>(readRows), kind, command);
}

std::span<const WriteRow> WriteRowsOf(int kind, std::string_view command) {
  return RowsOfCommand(std::span<const WriteRow>(writeRows), kind, command);
}

std::span<const LiveRow> LiveRowsOf(int kind) {
  return RowsThat(std::span<const LiveRow>(liveRows),
                  [kind](const LiveRow& row) { return row.kind == kind; });
}

bool HasLiveTest(int kind, LiveTest test) {
  const std::span<const LiveRow> rows = LiveRowsOf(kind);
  return std::any_of(rows.begin(), rows.end(),
                     [test](const LiveRow& row) { return row.test == test; });
}

std::string_view NameOf(TableName table) {
  for (const NameRow& row : nameRows) {
    if (row.table == table) {
      return row.name;
    }
  }
  throw std::invalid_argument("a table without a name");
}

std::optional<TableName> TableByName(std::string_view name) {
  for (const NameRow& row : nameRows) {
    if (row.name == name) {
      return row.table;
    }
  }
  return std::nullopt;
}

std::optional<FixedCell> AddressCellOf(int kind) {
  const FixedRow& row = FixedCellsOf(kind);
  if (row.addressCell < 0) {
    return std::nullopt;
  }
  return FixedCell{row.table, row.addressCell};
}

FixedCell VersionCellOf(int kind) {
  const FixedRow& row = FixedCellsOf(kind);
  return {row.table, row.versionCell};
}

}  // namespace virtual_module
