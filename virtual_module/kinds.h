// What a module of each kind knows of itself: identity, memory tables, read commands, write blocks
// and live tests. Used by the module model only; the tool has its own tables, and this one checks
// them.
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace virtual_module {

enum class TableName {
  ButtonImage,
  ContextTable,
  TimeProgramTable,
  LightProgramTable,
  TempHeader,
  TempRoomIds,
  TempPeriods,
  TempSetpoints,
  TempTail,
  LcdHeader,
  LcdScreen1,
  LcdScreen2,
  LcdWeekdayNames,
  AlarmImage,
  AudioImage,
  SimulationImage,
  IrImage,
};

// One kind of module. `identity` is its answer to a wake-up, without the closing CR.
struct KindRow {
  int kind;
  std::string_view identity;
  std::string_view caption;
};

// One table of a kind's memory, in the order of a configuration file. Of its `cells` the first
// `saved` stand in the file.
struct TableRow {
  int kind;
  TableName table;
  int cells;
  int saved;
};

// How a cell stands in an answer line.
enum class LineForm {
  Index,    // two characters of no meaning, three digits of cell, three of value
  Address,  // one character of no meaning, four digits of cell + base, three of value
};

// A run of cells that answers a read command. A command with several rows sends them in order.
struct ReadRow {
  int kind;
  std::string_view command;
  TableName table;
  int first;
  int last;
  LineForm form;
  int base;
};

// How a frame carries the value of its cell. Every frame begins "T" and three digits of index.
enum class FrameForm {
  Paced,       // three digits, and no line end: the frame is over after seven characters
  ThreeDigit,  // three digits, LF, CR
  TwoDigit,    // two digits, LF, CR
  Plain,       // one to three digits without leading zeros, LF, CR
  AsStored,    // one to three digits, leading zeros allowed, LF, CR
};

// Where a block ends before its last cell.
enum class EarlyEnd {
  None,
  TwoEmptyCells,  // after a cell above 0 that holds 42 behind another 42
};

// A block that a write command fills. The index of its frames starts at 000 on cell `first`; a
// command with several rows fills them in order.
struct WriteRow {
  int kind;
  std::string_view command;
  TableName table;
  int first;
  int last;
  FrameForm form;
  EarlyEnd earlyEnd;
};

// What a module shows of itself live, without touching its memory.
enum class LiveTest {
  Line,            // ten samples of the level of the input line
  Buttons,         // each push-button as it is pressed, until stopped
  Light,           // ten samples of the light sensor
  Clock,           // the time and the date
  Outputs,         // switches outputs as it is told, until stopped
  ShortDetectors,  // the contacts of the detectors, until stopped
  LongDetectors,   // the same with measured value, level and code
};

// A command that starts a live test, in modules of the versions `firstVersion` to `lastVersion`.
struct LiveRow {
  int kind;
  std::string_view command;
  LiveTest test;
  int firstVersion = 0;
  int lastVersion = 999;
};

inline constexpr int emptyCell = 42;  // marks a record of a list that holds nothing

std::span<const KindRow> Kinds();

// The row of `kind`; throws std::invalid_argument for a number that no module has.
const KindRow& KindOf(int kind);

// The rows of `kind`, in file order; empty for a number that no module has.
std::span<const TableRow> TablesOf(int kind);

// The rows of a command in the order of transfer; empty when the kind does not know the command.
std::span<const ReadRow> ReadRowsOf(int kind, std::string_view command);
std::span<const WriteRow> WriteRowsOf(int kind, std::string_view command);

// The live tests of `kind` in every version; empty when it has none.
std::span<const LiveRow> LiveRowsOf(int kind);
bool HasLiveTest(int kind, LiveTest test);  // in any version

std::string_view NameOf(TableName table);
std::optional<TableName> TableByName(std::string_view name);

// The cell with the module's letter on the bus, and the one with its two-digit version. The master
// has no letter.
struct FixedCell {
  TableName table;
  int cell;
};
std::optional<FixedCell> AddressCellOf(int kind);
FixedCell VersionCellOf(int kind);

}  // namespace virtual_module
