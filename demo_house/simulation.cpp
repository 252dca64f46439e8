// Lights that go on and off in the dark hours while nobody is at home.
#include "demo_house/image.h"
#include "demo_house/modules.h"

namespace demo_house {
namespace {

constexpr Target participants[] = {
    hallLight,   officeLight,  childLight1,  childLight2, bathLight,    livingSpots,
    diningTable, bedroomLight, kitchenSpots, bathMirror,  terraceLight, evening,
};

}  // namespace

Memory SimulationModule() {
  Memory memory(7);
  Cells& cells = memory.Cells(TableName::SimulationImage);
  PutAddressAndVersion(memory, simulation, 13);
  PutButtons(cells, 6, {{1, SimulatePresence(true), SimulatePresence(false)}});
  Put(cells, 123, 0);  // at home
  const Condition darkHours{
      .darkerThan = 15, .first = {17, 24}, .second = {6, 9}, .joining = Joining::And};
  PutCondition(cells, 125, darkHours);
  Put(cells, 130, static_cast<int>(darkHours.joining));
  Put(cells, 132, 2);  // medium sensitivity, of 0 (very high) to 4 (very low)
  PutRange(cells, 135, 184, emptyCell);
  int cell = 135;
  for (const Target& participant : participants) {
    Put(cells, cell, participant.letter);
    Put(cells, cell + 1, participant.number - 1);
    cell += 2;
  }
  return memory;
}

}  // namespace demo_house
