#include "link/writers.h"

#include <algorithm>
#include <array>

#include "link/link_ticks.h"
#include "link/send.h"
#include "link/transfer.h"
#include "link/write_table.h"
#include "platform/runtime_error.h"
#include "session/language.h"

namespace bkconf {
namespace {

/// What the module's memory needs between two blocks; must not be shortened.
constexpr int BlockPauseMs = 1000;

struct WriterRow {
  KindSet kinds;
  Tick* writer;
  int periodMs;  ///< what the module's memory needs for a cell; must not be shortened
};

constexpr int FramePeriod = 20;
constexpr int DisplayFramePeriod = 30;

const auto Writers = std::to_array<WriterRow>({
    {OutputKinds, &ButtonWriter, FramePeriod},
    {{9}, &MasterWriter, FramePeriod},
    {{2}, &TemperatureWriter, FramePeriod},
    {{3}, &DisplayWriter, DisplayFramePeriod},
    {{5}, &AlarmWriter, FramePeriod},
    {{6}, &AudioWriter, FramePeriod},
    {{7}, &SimulationWriter, FramePeriod},
    {{8}, &IrWriter, FramePeriod},
});

const WriterRow* ActiveWriter() {
  const auto row = std::find_if(Writers.begin(), Writers.end(), [](const WriterRow& each) {
    return each.kinds.Contains(ActiveCode());
  });
  return row == Writers.end() ? nullptr : &*row;
}

/// Tables that the selector alone names are there for any command, also for one that reads.
const TableRow& ActiveTable() {
  const std::string command = PendingCommand.Text();
  const TableRow* row = FindWrittenTable(ActiveCode(), command, TableSelector.Whole());
  if (row == nullptr || FindWriteRow(ActiveCode(), command) == nullptr) {
    throw RuntimeError(ErrorKind::NoTableToWrite, command);
  }
  return *row;
}

/// The table after the current one in the pending command's chain, or -1.
int NextTable() {
  const WriteRow* row = FindWriteRow(ActiveCode(), PendingCommand.Text());
  const auto tables = row == nullptr ? std::span<const int>() : row->tables.Selectors();
  const auto current = std::find(tables.begin(), tables.end(), TableSelector.Whole());
  return tables.end() - current > 1 ? current[1] : -1;
}

void FinishWrite() {
  Show(Window.status->caption, TextId::Ready);
  if (SendsTableByTable.Contains(ActiveCode()) && ChooseCommand()) {
    // The next table goes through the whole conversation again, from the poll.
    SelectFirstTable();
    StartTransfer();
    return;
  }
  UnlockWindow();
}

/// The table is out: the next of its chain follows after a short pause of its own, or the write
/// ends.
void FinishTable(Tick& writer) {
  writer.Disable();
  if (NextTable() >= 0) {
    TablePause.Enable();
    return;
  }
  Window.bar->visible = false;
  FinishWrite();
}

/// The master's tables end early where two neighbours hold the mark of an empty record, wherever
/// that is, also where both are real values.
bool EndsHere(const TableRow& row, int cursor) {
  const auto isEmptyMark = [&row](int index) { return (*row.table)[index].Number() == EmptyCell; };
  return row.endsAtEmptyCells && cursor > 0 && isEmptyMark(cursor) && isEmptyMark(cursor - 1);
}

void RunWriter() {
  const WriterRow& writer = *ActiveWriter();
  // The pause was for one tick only.
  if (writer.writer->Period() != writer.periodMs) writer.writer->SetPeriod(writer.periodMs);
  const TableRow& row = ActiveTable();
  const int cursor = SendCursor.Whole();
  const auto block = std::find_if(row.blocks.begin(), row.blocks.end(),
                                  [cursor](const WriteBlock& each) { return cursor <= each.last; });
  Window.bar->Advance();
  SendFrame(row.form, cursor - block->wireBase, (*row.table)[cursor]);
  if (EndsHere(row, cursor) || cursor == row.blocks.back().last) {
    FinishTable(*writer.writer);
  } else if (cursor == block->last) {
    writer.writer->SetPeriod(BlockPauseMs);
    SendCursor = std::next(block)->first;
  } else {
    SendCursor = cursor + 1;
  }
}

void RunWriterSelect() {
  WriterSelect.Disable();
  SendCursor = 0;
  SelectFirstTable();
  // A command that writes nothing must not send any cell.
  ActiveTable();
  const WriterRow& writer = *ActiveWriter();
  writer.writer->SetPeriod(writer.periodMs);
  writer.writer->Enable();
}

void RunTablePause() {
  TablePause.Disable();
  SendCursor = 0;
  TableSelector = NextTable();
  ActiveWriter()->writer->Enable();
}

}  // namespace

void SelectFirstTable() {
  const WriteRow* row = FindWriteRow(ActiveCode(), PendingCommand.Text());
  if (row != nullptr && !row->tables.Selectors().empty()) {
    TableSelector = row->tables.Selectors().front();
  }
}

Tick WriterSelect{"WriterSelect", 30, RunWriterSelect};
Tick ButtonWriter{"ButtonWriter", FramePeriod, RunWriter};
Tick MasterWriter{"MasterWriter", FramePeriod, RunWriter};
Tick TemperatureWriter{"TemperatureWriter", FramePeriod, RunWriter};
Tick DisplayWriter{"DisplayWriter", DisplayFramePeriod, RunWriter};
Tick AlarmWriter{"AlarmWriter", FramePeriod, RunWriter};
Tick AudioWriter{"AudioWriter", FramePeriod, RunWriter};
Tick SimulationWriter{"SimulationWriter", FramePeriod, RunWriter};
Tick IrWriter{"IrWriter", FramePeriod, RunWriter};
Tick TablePause{"TablePause", 30, RunTablePause};

}  // namespace bkconf
