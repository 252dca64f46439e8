// The remote control of the living room.
#include <initializer_list>
#include <vector>

#include "demo_house/image.h"
#include "demo_house/modules.h"

namespace demo_house {
namespace {

// Digits are their own number.
constexpr int onOff = 10;
constexpr int channelUp = 11;
constexpr int channelDown = 12;

constexpr int rows = 8;
constexpr int keysPerRow = 16;  // thirteen of them exist

struct Key {
  int key;
  std::vector<Action> actions;  // up to four
};

int PlaceOf(int row, int key) {
  return 125 + 3 * (keysPerRow * row + key);
}

void PutKeys(Cells& cells, const std::vector<Key>& keys) {
  PutRange(cells, PlaceOf(0, 0), PlaceOf(rows, 0) - 1, emptyCell);
  for (const Key& key : keys) {
    int row = 0;
    for (const Action& action : key.actions) {
      PutAction(cells, PlaceOf(row++, key.key), action);
    }
  }
}

}  // namespace

Memory InfraredModule() {
  Memory memory(8);
  Cells& cells = memory.Cells(TableName::IrImage);
  PutAddressAndVersion(memory, infrared, 24);
  PutButtons(cells, 2, {{1, Run(cinema), Run(evening)}, {2, Toggle(tvSocket)}});
  PutKeys(cells, {
                     {0, {Run(everythingOff)}},
                     {1, {Toggle(livingSpots)}},
                     {2, {Toggle(diningTable)}},
                     {3, {Toggle(readingLamp), Toggle(tvWall)}},
                     {4, {Run(evening)}},
                     {5, {Run(cinema)}},
                     {6, {Run(dinner)}},
                     {7, {PlayMusic(livingMusic), SetSource(livingMusic, radio)}},
                     {8, {On(tvSocket), SetSource(livingMusic, television)}},
                     {9, {On(livingShutter.down), On(kitchenShutter.down), Corvela(7, 21)}},
                     {onOff,
                      {Toggle(tvSocket), ToggleMusic(livingMusic), HeatAsProgrammed(livingRoom),
                       SimulatePresence(false)}},
                     {channelUp, {Louder(livingMusic)}},
                     {channelDown, {Softer(livingMusic)}},
                 });
  return memory;
}

}  // namespace demo_house
