#include "master/context_table.h"

#include <string>

#include "actions/action_code.h"
#include "image/tables.h"

namespace bkconf {
namespace {

/// The packed form: two cells for each context that tell where it lies, and behind them its
/// actions. A 42 follows each context.
constexpr int FirstDataCell = 2 * ContextCount;
constexpr int LastDataCell = 999;
constexpr int DataCells = LastDataCell - FirstDataCell + 1;

bool IsEnd(const Cell& cell) {
  return cell.Number() == EmptyCell;
}

bool IsDataCell(double cell) {
  return cell >= FirstDataCell && cell <= LastDataCell;
}

/// Every cell is tested here, not only those that begin an action: a 42 within an action ends its
/// context. That stays so, since it is what the module reads.
int UnpackContext(int context, int from) {
  for (int cell = 0; cell < ContextCells; ++cell, ++from) {
    if (!IsDataCell(from) || IsEnd(ContextTable[from])) {
      ContextCell(context, cell) = EmptyCell;
      return cell + 1;
    }
    ContextCell(context, cell) = ContextTable[from];
  }
  return ContextCells + 1;
}

/// The three digits of the place are split behind the first: a cell of the module holds no more
/// than 255.
void PutPlace(int context, int place) {
  const std::string digits = std::to_string(place);
  ContextTable[2 * context] = digits.substr(0, 1);
  ContextTable[2 * context + 1] = digits.substr(digits.size() - 2);
}

void PutData(int place, const Cell& value) {
  if (IsDataCell(place)) ContextTable[place] = value;
}

/// Packs one context from that place on, and gives the number of cells of its actions.
int PackContext(int context, int place) {
  int cell = 0;
  while (cell < ContextCells && !IsEnd(ContextCell(context, cell))) {
    for (int i = 0; i < ActionSize; ++i) PutData(place + cell + i, ContextCell(context, cell + i));
    cell += ActionSize;
  }
  PutData(place + cell, EmptyCell);
  return cell;
}

}  // namespace

Cell& ContextCell(int context, int cell) {
  return ContextWork[context * ContextCells + cell];
}

void EmptyContext(int context) {
  const int first = context * ContextCells;
  ContextWork.Fill(first, first + ContextCells - 1, EmptyCell);
}

void ResetContextWork() {
  ContextWork.Fill(0, ContextCount * ContextCells - 1, EmptyCell);
}

void ResetContexts() {
  ContextTable.Fill(0, FirstDataCell - 1, 0);
  ContextTable.Fill(FirstDataCell, LastDataCell, EmptyCell);
  ResetContextWork();
}

int UnpackContexts() {
  int free = DataCells;
  for (int context = 0; context < ContextCount; ++context) {
    const Cell& high = ContextTable[2 * context];
    if (high.Number() == 0) {
      EmptyContext(context);
      --free;
      continue;
    }
    const double place = high.Number() * 100 + ContextTable[2 * context + 1].Number();
    // A place outside the data, as in a module that was never written, is an empty context.
    free -= UnpackContext(context, IsDataCell(place) ? static_cast<int>(place) : 0);
  }
  return free;
}

int PackContexts() {
  ContextTable.Fill(FirstDataCell, LastDataCell, EmptyCell);
  int free = DataCells - ContextCount;
  int place = FirstDataCell;
  for (int context = 0; context < ContextCount; ++context) {
    if (IsEnd(ContextCell(context, 0))) {
      ContextTable[2 * context] = ContextTable[2 * context + 1] = 0;
      continue;
    }
    PutPlace(context, place);
    const int cells = PackContext(context, place);
    free -= cells;
    place += cells + 1;
  }
  return free;
}

}  // namespace bkconf
