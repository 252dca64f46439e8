#include "master/program_table.h"

namespace bkconf {

bool IsFree(const ProgramTable& programs, int slot) {
  return !HoldsAction(programs.table[CellOf(programs, slot) + programs.action]);
}

std::string ActionCodeOf(const ProgramTable& programs, int slot) {
  return ProgramActionCode(programs.table, CellOf(programs, slot) + programs.action, programs.form);
}

void DeleteSlot(const ProgramTable& programs, int slot) {
  for (int from = slot + 1; from <= programs.lastMoved; ++from) {
    const int cell = CellOf(programs, from);
    const int to = cell - programs.slotSize;
    if (programs.moves(programs.table[cell + programs.action])) {
      for (int i = 0; i < programs.slotSize; ++i) programs.table[to + i] = programs.table[cell + i];
    } else {
      programs.table.Fill(to, to + programs.slotSize - 1, EmptyCell);
    }
  }
}

}  // namespace bkconf
