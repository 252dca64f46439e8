// The contexts of the master: what happens together.
#include <vector>

#include "demo_house/image.h"
#include "demo_house/modules.h"

namespace demo_house {
namespace {

using Actions = std::vector<Action>;

struct Contents {
  Context context;
  Actions actions;
};

Actions operator+(Actions left, const Actions& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

template <typename Things, typename Verb>
Actions ForAll(const Things& things, Verb verb) {
  Actions actions;
  for (const auto& thing : things) {
    actions.push_back(verb(thing));
  }
  return actions;
}

Actions LightsOff() {
  return ForAll(allLights, Off);
}

Actions LightsOn() {
  return ForAll(allLights, On);
}

Actions MusicOff() {
  return ForAll(allMusic, SilenceMusic);
}

Actions ShuttersUp() {
  return ForAll(allShutters, [](const Motor& shutter) { return On(shutter.up); });
}

Actions ShuttersDown() {
  return ForAll(allShutters, [](const Motor& shutter) { return On(shutter.down); });
}

Actions GuardHouse() {
  return {Watch(gardenMotion), Watch(livingMotion)};
}

Actions UnguardHouse() {
  return {Ignore(gardenMotion), Ignore(livingMotion)};
}

// In the order of their numbers.
std::vector<Contents> AllContexts() {
  return {
      {everythingOff, LightsOff() + MusicOff() + Actions{Off(tvSocket)}},
      {evening,
       {Dim(livingSpots, 60), Dim(readingLamp, 50), Dim(tvWall, 30), On(hallLight),
        On(terraceLight)}},
      {cinema,
       {Dim(livingSpots, 10), Off(diningTable), Off(readingLamp), Dim(tvWall, 20),
        On(livingShutter.down), On(tvSocket), PlayMusic(livingMusic),
        SetSource(livingMusic, television), SetVolume(livingMusic, 9)}},
      {dinner,
       {Dim(diningTable, 80), Dim(livingSpots, 30), Dim(kitchenSpots, 50), Off(tvSocket),
        SetSource(livingMusic, discPlayer), SetVolume(livingMusic, 3)}},
      {morning,
       {On(bedroomShutter.up), Dim(bedroomLight, 40), Dim(kitchenSpots, 70), On(worktop),
        Heat(bathroom, 23), PlayMusic(bathMusic), SetSource(bathMusic, radio)}},
      {sleep, LightsOff() + MusicOff() + ShuttersDown() +
                  Actions{Off(tvSocket), Dim(bedroomLight, 20), Watch(livingMotion)}},
      {away, LightsOff() + MusicOff() + GuardHouse() + Actions{Off(tvSocket), HeatAllRooms(16)}},
      {home, UnguardHouse() +
                 Actions{SimulatePresence(false), HeatAllRoomsAsProgrammed(), On(hallLight)}},
      {holiday, LightsOff() + MusicOff() + ShuttersDown() + GuardHouse() +
                    Actions{Off(tvSocket), HeatAllRooms(12), SimulatePresence(true)}},
      {shuttersUp, ShuttersUp()},
      {shuttersDown, ShuttersDown()},
      {party,
       {On(livingSpots), On(diningTable), On(kitchenSpots), On(terraceLight), On(gardenLight),
        PlayMusic(livingMusic), PlaySecondary(livingMusic), SetVolume(livingMusic, 12),
        SetTreble(livingMusic, 10), SetBass(livingMusic, 12), SetBalance(livingMusic, 8),
        SetSecondaryVolume(livingMusic, 8), Heat(livingRoom, 18)}},
      {panic, LightsOn() + ShuttersUp() + Actions{On(siren), On(frontDoorLock)}},
  };
}

constexpr int firstPlace = 100;
constexpr int lastPlace = 999;

}  // namespace

// Two cells a context tell where its actions begin, in hundreds and the rest; each list of actions
// ends in an empty cell. A context without actions has no place.
void PutContexts(Memory& master) {
  Cells& cells = master.Cells(TableName::ContextTable);
  PutRange(cells, firstPlace, lastPlace, emptyCell);
  int place = firstPlace;
  for (const Contents& each : AllContexts()) {
    const int header = 2 * (each.context.number - 1);
    Put(cells, header, place / 100);
    Put(cells, header + 1, place % 100);
    for (const Action& action : each.actions) {
      PutAction(cells, place, action);
      place += 3;
    }
    Put(cells, place++, emptyCell);
  }
}

}  // namespace demo_house
