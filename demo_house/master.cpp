// The master: its own push-buttons, the modules of the house and the correction of its clock.
#include "demo_house/image.h"
#include "demo_house/modules.h"

namespace demo_house {
namespace {

struct Listed {
  int letter;
  int kind;
};

constexpr Listed modules[] = {
    {relays, 0},  {motors, 4}, {dimmers, 1}, {lumenza, 11},   {heating, 2},
    {display, 3}, {alarm, 5},  {audio, 6},   {simulation, 7}, {infrared, 8},
};

// Letters, and the kinds behind them in the same order.
void PutModules(Cells& cells) {
  PutRange(cells, 123, 158, emptyCell);
  int cell = 123;
  for (const Listed& module : modules) {
    Put(cells, cell, module.letter);
    Put(cells, cell + 18, module.kind);
    ++cell;
  }
}

}  // namespace

Memory MasterModule() {
  Memory memory(9);
  Cells& cells = memory.Cells(TableName::ButtonImage);
  PutButtons(cells, 4,
             {
                 {1, Run(everythingOff), Run(panic)},
                 {2, Run(evening), Run(party)},
                 {3, Run(shuttersUp)},
                 {4, Run(shuttersDown)},
                 {5, Toggle(hallLight)},
                 {6, Toggle(livingSpots), Dim(livingSpots, 50)},
                 {7, On(frontDoorLock)},
                 {8, HeatAllRooms(19), HeatAllRoomsAsProgrammed()},
                 {9, Watch(gardenMotion), Ignore(gardenMotion)},
                 {10, ToggleMusic(livingMusic), SetSource(livingMusic, radio)},
                 {11, Corvela(5, 12)},
             });
  // On the 15th of each month the clock goes on by two minutes; nothing is taken off.
  Put(cells, 120, 0);
  Put(cells, 121, 2);
  PutModules(cells);
  const virtual_module::FixedCell version = virtual_module::VersionCellOf(memory.kind());
  Put(memory.Cells(version.table), version.cell, 56);
  PutContexts(memory);
  PutTimeProgrammes(memory);
  PutLightProgrammes(memory);
  return memory;
}

}  // namespace demo_house
