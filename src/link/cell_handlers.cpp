#include "link/cell_handlers.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "link/read_table.h"
#include "link/rx_line.h"
#include "link/transfer.h"
#include "session/language.h"
#include "session/resets.h"

namespace bkconf {
namespace {

/// The character that selects the table on the lines of kinds 2 and 3.
char TableDigit() {
  return RxLine.size() < 2 ? '\0' : RxLine[1];
}

/// The read that a line belongs to, or null. Kinds with a single table have no other lines: theirs
/// are cells whatever the command.
const ReadRow* PendingRead() {
  constexpr KindSet hasOneTable{AudioKind, SimulationKind, IrKind};
  const bool always = hasOneTable.Contains(ActiveCode());
  return FindReadRow(ActiveCode(), always ? std::string(ReadBase) : PendingCommand.Text());
}

/// The cell that ends the read of a table of kinds 2 and 3, or -1: the table's last cell ends none.
int LastIndex(const Table* table) {
  const auto row = std::find_if(ReadTable.begin(), ReadTable.end(),
                                [table](const ReadRow& each) { return each.table == table; });
  return row == ReadTable.end() ? -1 : row->lastIndex;
}

/// What only some kinds do when their base table is complete.
void FinishBaseRead() {
  if (OutputKinds.Contains(ActiveCode())) ModuleVersion = CellAt(ActiveKind()->version);
  KeepCopies();
  if (ActiveCode() == MasterKind) {
    MasterBaseDirty = MasterContextsDirty = MasterTimeDirty = MasterLightDirty = 0;
    Raise(LinkEvent::ModuleListRead);
  }
  Window.showModuleCells();
  CloseRead();
}

/// One table a command, characters 1 and 2 not looked at. The cells of the master's scan move no
/// bar. What is no read is a line of a live test.
void HandleTableLine() {
  const ReadRow* pending = PendingRead();
  if (pending == nullptr) {
    Raise(LinkEvent::TestLineReceived);
    return;
  }
  const ReadRow& row = *pending;
  const int index = NumberInLine(3, 5);
  if (row.barMaximum > 0) Window.bar->Advance();
  (*row.table)[index] = NumberInLine(6, 8);
  if (index != row.lastIndex) return;
  if (row.command == ReadBase) {
    FinishBaseRead();
  } else if (row.command == Test4) {
    Raise(LinkEvent::ModuleListRead);
  } else {
    // The master's additional tables: the window is free again when "STOP" has come, since their
    // screens open then.
    Window.bar->visible = false;
    Show(Window.status->caption, TextId::EditMode);
  }
}

struct TemperatureRow {
  char digit;
  Table* table;
  Cell* cleared;  ///< the dirty flag that each line clears, or null
};

constexpr std::array<TemperatureRow, 5> TemperatureRows = {{
    {'1', &TempHeader, &TempHeaderDirty},
    {'2', &TempRoomIds, nullptr},
    {'3', &TempPeriods, nullptr},
    {'4', &TempSetpoints, &TempProgramDirty},
    {'5', &TempTail, &TempRoomsDirty},
}};

void HandleTemperatureLine() {
  for (const TemperatureRow& row : TemperatureRows) {
    if (row.digit != TableDigit()) continue;
    const int index = NumberInLine(3, 5);
    Window.bar->Advance();
    (*row.table)[index] = NumberInLine(6, 8);
    if (row.cleared != nullptr) *row.cleared = 0;
    const bool ids = row.table == &TempRoomIds;
    const bool live = ids && PendingCommand.Text() == Read3;
    if (live && !SentByUser()) Raise(LinkEvent::LiveTemperature);
    // The identities bring the same table, and end no read.
    if (index != LastIndex(row.table) || (ids && !live)) return;
    if (row.table == &TempHeader) {
      FinishBaseRead();
    } else {
      CloseRead(LinkEvent::TemperatureRead);
    }
    return;
  }
  // A digit that names no table: nothing is stored, and the read goes on.
}

struct DisplayRow {
  char digit;
  Table* table;
  std::size_t indexFrom;  ///< the first of the characters up to 5 that tell the address
  int address;            ///< of cell 0
  std::optional<LinkEvent> complete = std::nullopt;
};

constexpr std::array<DisplayRow, 6> DisplayRows = {{
    {'1', &LcdHeader, 3, 0},
    {'2', &LcdScreen1, 2, 2000, LinkEvent::DisplayRead},
    {'3', &LcdScreen1, 2, 2000, LinkEvent::DisplayRead},
    {'4', &LcdScreen2, 2, 4000, LinkEvent::DisplayRead},
    {'5', &LcdScreen2, 2, 4000, LinkEvent::DisplayRead},
    {'6', &LcdWeekdayNames, 2, 6000, LinkEvent::WeekdayRead},
}};

/// Lines of the display module carry a four-digit address in characters 2 to 5, and the digit that
/// names the table is the first of it.
void HandleDisplayLine() {
  for (const DisplayRow& row : DisplayRows) {
    if (row.digit != TableDigit()) continue;
    const int index = NumberInLine(row.indexFrom, 5) - row.address;
    (*row.table)[index] = NumberInLine(6, 8);
    Window.bar->Advance();
    if (index != LastIndex(row.table)) return;
    if (row.table == &LcdHeader) {
      FinishBaseRead();
      return;
    }
    // "STOP" does nothing more after a display's table.
    if (row.table != &LcdWeekdayNames) UnlockMenus();
    CloseRead(row.complete);
    return;
  }
}

/// How the lines of a kind carry their cells.
enum class LineForm { Table, Temperature, Display };

struct HandlerRow {
  KindSet kinds;
  LineForm form;
};

constexpr auto Handlers = std::to_array<HandlerRow>({
    {{0, 1, 4, 5, 6, 7, 8, 9, 11}, LineForm::Table},
    {{2}, LineForm::Temperature},
    {{3}, LineForm::Display},
});

void Handle(LineForm form) {
  switch (form) {
    case LineForm::Table:
      HandleTableLine();
      break;
    case LineForm::Temperature:
      HandleTemperatureLine();
      break;
    case LineForm::Display:
      HandleDisplayLine();
      break;
  }
}

}  // namespace

bool HandleCellLine() {
  for (const HandlerRow& row : Handlers) {
    if (!row.kinds.Contains(ActiveCode())) continue;
    Handle(row.form);
    return true;
  }
  return false;
}

}  // namespace bkconf
