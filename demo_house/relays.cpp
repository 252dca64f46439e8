// The two relay modules: lights and sockets on one, motors and locks on the other.
#include <initializer_list>

#include "demo_house/image.h"
#include "demo_house/modules.h"

namespace demo_house {
namespace {

// What an output does by itself.
enum class Function {
  OnOff = 0,
  OnOffForMinutes = 1,
  OnForMinutes = 2,
  PulseOfSeconds = 3,
  AfterOther = 4,    // runs on for some minutes when the other output goes off
  LockedByOther = 5  // cannot go on together with the other output
};

struct OutputFunction {
  Output output;
  Function function;
  int time;       // 1 to 15
  int other = 1;  // number of the output that it depends on
};

constexpr int outputCount = 12;

// Outputs without a row are plainly on or off.
void PutFunctions(Cells& cells, std::initializer_list<OutputFunction> functions) {
  PutRange(cells, 123, 122 + outputCount, static_cast<int>(Function::OnOff));
  PutRange(cells, 135, 134 + outputCount, 1);
  PutRange(cells, 147, 146 + outputCount, 1);
  for (const OutputFunction& row : functions) {
    Put(cells, 122 + row.output.number, static_cast<int>(row.function));
    Put(cells, 134 + row.output.number, row.time);
    Put(cells, 146 + row.output.number, row.other);
  }
}

}  // namespace

Memory RelayModule() {
  Memory memory(0);
  Cells& cells = memory.Cells(TableName::ButtonImage);
  PutAddressAndVersion(memory, relays, 34);
  PutButtons(cells, 2,
             {
                 {1, Toggle(hallLight), Run(everythingOff)},
                 {2, On(toiletLight)},
                 {3, Toggle(storeLight)},
                 {4, Toggle(garageLight), On(garageDoor)},
                 {5, Toggle(officeLight)},
                 {6, On(landingLight), Off(landingLight)},
                 {7, Toggle(childLight1)},
                 {8, Toggle(childLight2)},
                 {9, Toggle(bathLight), Toggle(bathMirror)},
                 {10, Toggle(tvSocket)},
                 // At the front door, on the way out and back in.
                 {11, Run(away), Run(holiday)},
                 {12, Run(home), On(frontDoorLock)},
                 {13, Toggle(driveLight)},
             });
  PutFunctions(cells, {
                          {toiletLight, Function::OnOffForMinutes, 10},
                          {storeLight, Function::OnOffForMinutes, 15},
                          {landingLight, Function::OnForMinutes, 3},
                          {bathFan, Function::AfterOther, 10, bathLight.number},
                      });
  return memory;
}

Memory MotorModule() {
  Memory memory(4);
  Cells& cells = memory.Cells(TableName::ButtonImage);
  PutAddressAndVersion(memory, motors, 21);
  PutButtons(cells, 3,
             {
                 {1, Toggle(livingShutter.up), Run(shuttersUp)},
                 {2, Toggle(livingShutter.down), Run(shuttersDown)},
                 {3, Toggle(kitchenShutter.up)},
                 {4, Toggle(kitchenShutter.down)},
                 {5, Toggle(bedroomShutter.up)},
                 {6, Toggle(bedroomShutter.down)},
                 {7, Toggle(awning.up)},
                 {8, Toggle(awning.down)},
                 {9, On(frontDoorLock)},
                 {10, On(garageDoor)},
                 {11, On(sprinkler), Off(sprinkler)},
                 {12, Off(siren), Run(panic)},
             });
  const auto locked = [](Output output, Output other) {
    return OutputFunction{output, Function::LockedByOther, 1, other.number};
  };
  PutFunctions(cells, {
                          locked(livingShutter.up, livingShutter.down),
                          locked(livingShutter.down, livingShutter.up),
                          locked(kitchenShutter.up, kitchenShutter.down),
                          locked(kitchenShutter.down, kitchenShutter.up),
                          locked(bedroomShutter.up, bedroomShutter.down),
                          locked(bedroomShutter.down, bedroomShutter.up),
                          locked(awning.up, awning.down),
                          locked(awning.down, awning.up),
                          {frontDoorLock, Function::PulseOfSeconds, 3},
                          {garageDoor, Function::PulseOfSeconds, 1},
                          {sprinkler, Function::OnOffForMinutes, 15},
                          {siren, Function::OnForMinutes, 5},
                      });
  return memory;
}

}  // namespace demo_house
