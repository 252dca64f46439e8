#include "master_house.h"

#include <iterator>

#include "image/module_directory.h"
#include "image/tables.h"
#include "master/context_table.h"
#include "session/state.h"

namespace bkconf {
namespace {

/// Of the modules 'A', 'B' and so on.
constexpr int Kinds[] = {0, 1, 2, 4, 5, 6, 7, 11, 3};

}  // namespace

void FillHouse() {
  ActiveModuleType = 9;
  MasterContextsLoaded = MasterTimeLoaded = MasterLightLoaded = 1;
  for (int row = 0; row < DirectoryRows; ++row) {
    const bool used = row < static_cast<int>(std::size(Kinds));
    DirectoryLetter(row) = used ? 'A' + row : EmptyCell;
    DirectoryType(row) = used ? Kinds[row] : EmptyCell;
  }
  ResetContexts();
  TimeProgramTable.Fill(0, TimeProgramTable.Size() - 1, EmptyCell);
  LightProgramTable.Fill(0, LightProgramTable.Size() - 1, EmptyCell);
  FillContext(0, UsedPlaces);
  FillPrograms(UsedPlaces);
}

void FillContext(int context, int actions) {
  for (int action = 0; action < actions; ++action) {
    ContextCell(context, 3 * action) = int{'A'};
    ContextCell(context, 3 * action + 1) = action % 12;
    ContextCell(context, 3 * action + 2) = 2;
  }
  PackContexts();
}

void FillPrograms(int slots) {
  for (int slot = 0; slot < slots; ++slot) {
    const int time[] = {slot % 24, 55, slot % 9 + 1, 24, 12, 24, int{'A'}, slot % 12, 2};
    for (int cell = 0; cell < 9; ++cell) TimeProgramTable[9 * slot + cell] = time[cell];
    const int light[] = {slot % 2, slot % 50 + 1, int{'A'}, slot % 12, 2};
    for (int cell = 0; cell < 5; ++cell) LightProgramTable[5 * slot + cell] = light[cell];
  }
}

}  // namespace bkconf
