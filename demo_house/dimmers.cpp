// The two dimming modules: living room and bedroom on one, kitchen and outside on the other.
#include <initializer_list>

#include "demo_house/image.h"
#include "demo_house/modules.h"

namespace demo_house {
namespace {

struct StartValue {
  Dimmed output;
  int percent;  // 10, 20, ... 90
};

void PutStartValues(Cells& cells, std::initializer_list<StartValue> values) {
  for (const StartValue& value : values) {
    Put(cells, 122 + value.output.number, value.percent / 10);
  }
}

}  // namespace

Memory DimmerModule() {
  Memory memory(1);
  Cells& cells = memory.Cells(TableName::ButtonImage);
  PutAddressAndVersion(memory, dimmers, 42);
  PutButtons(cells, 2,
             {
                 {1, Toggle(livingSpots), Dim(livingSpots, 30)},
                 {2, Toggle(diningTable), Dim(diningTable, 90)},
                 {3, Toggle(bedroomLight), Run(sleep)},
                 {4, Toggle(readingLamp), Dim(readingLamp, 50)},
                 {5, Run(evening), Run(everythingOff)},
                 {6, Run(cinema), Run(party)},
                 {7, Heat(livingRoom, 22), HeatAsProgrammed(livingRoom)},
             });
  PutStartValues(cells,
                 {{livingSpots, 50}, {diningTable, 60}, {bedroomLight, 20}, {readingLamp, 40}});
  return memory;
}

Memory LumenzaModule() {
  Memory memory(11);
  Cells& cells = memory.Cells(TableName::ButtonImage);
  PutAddressAndVersion(memory, lumenza, 12);
  PutButtons(cells, 2,
             {
                 {1, Toggle(kitchenSpots), Run(dinner)},
                 {2, Toggle(worktop)},
                 {3, Toggle(bathMirror), Dim(bathMirror, 20)},
                 {4, Toggle(tvWall), Dim(tvWall, 30)},
                 {5, Toggle(terraceLight), Toggle(awning.down)},
                 {6, Toggle(driveLight)},
                 {7, Toggle(gardenLight)},
                 {8, ToggleMusic(kitchenMusic), NextSource(kitchenMusic)},
                 {9, Louder(kitchenMusic)},
                 {10, Softer(kitchenMusic)},
             });
  PutStartValues(cells, {{kitchenSpots, 70}, {worktop, 80}, {bathMirror, 50}, {tvWall, 30}});
  return memory;
}

}  // namespace demo_house
