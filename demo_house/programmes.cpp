// What the master does by itself: at a time of the day, and as it gets dark or light.
#include <vector>

#include "demo_house/image.h"
#include "demo_house/modules.h"

namespace demo_house {
namespace {

enum Weekday { Sunday = 1, Monday, Tuesday, Wednesday, Thursday, Friday, Saturday };

struct Clock {
  int hour;
  int minute;  // a multiple of five
};

struct Date {
  int day = 0;
  int month = 0;
  int year = 0;  // its last two digits
};

struct Timed {
  Clock clock;
  int day;
  Date date;
  Action action;
};

constexpr int onDate = 8;
constexpr int everyDay = 9;

Timed Daily(Clock clock, Action action) {
  return {clock, everyDay, {}, action};
}

Timed Weekly(Weekday day, Clock clock, Action action) {
  return {clock, day, {}, action};
}

Timed Once(Date date, Clock clock, Action action) {
  return {clock, onDate, date, action};
}

std::vector<Timed> AllTimed() {
  return {
      Weekly(Monday, {6, 45}, Run(morning)),
      Weekly(Tuesday, {6, 45}, Run(morning)),
      Weekly(Wednesday, {6, 45}, Run(morning)),
      Weekly(Thursday, {6, 45}, Run(morning)),
      Weekly(Friday, {6, 45}, Run(morning)),
      Weekly(Saturday, {8, 30}, Run(shuttersUp)),
      Weekly(Sunday, {9, 0}, Run(shuttersUp)),
      // The bathroom is warm longer at weekends.
      Weekly(Saturday, {8, 0}, Heat(bathroom, 24)),
      Weekly(Saturday, {11, 0}, HeatAsProgrammed(bathroom)),
      Weekly(Sunday, {8, 0}, Heat(bathroom, 24)),
      Weekly(Sunday, {11, 0}, HeatAsProgrammed(bathroom)),
      // News in the kitchen.
      Daily({7, 0}, SetSource(kitchenMusic, radio)),
      Daily({7, 0}, PlayMusic(kitchenMusic)),
      Daily({8, 15}, SilenceMusic(kitchenMusic)),
      Daily({6, 0}, On(sprinkler)),
      // The garden is guarded at night.
      Daily({6, 30}, Ignore(gardenMotion)),
      Daily({23, 45}, Watch(gardenMotion)),
      Daily({23, 30}, Off(terraceLight)),
      Daily({23, 30}, Off(gardenLight)),
      Daily({23, 50}, Off(tvSocket)),
      Weekly(Wednesday, {13, 0}, Dim(worktop, 50)),
      Weekly(Sunday, {22, 0}, Corvela(5, 12)),
      Once({17, 7, 27}, {9, 0}, Run(holiday)),
      Once({1, 8, 27}, {18, 30}, Run(home)),
      Once({31, 12, 27}, {20, 0}, Run(party)),
  };
}

enum class Turn { Darker = 0, Lighter = 1 };

struct ByLight {
  Turn turn;
  int level;  // 1 is dark, 50 is light
  Action action;
};

std::vector<ByLight> AllByLight() {
  return {
      {Turn::Darker, 20, On(awning.up)},         {Turn::Darker, 12, Dim(readingLamp, 40)},
      {Turn::Darker, 8, On(driveLight)},         {Turn::Darker, 8, On(terraceLight)},
      {Turn::Darker, 5, Run(shuttersDown)},      {Turn::Darker, 3, Corvela(5, 13)},
      {Turn::Lighter, 6, On(kitchenShutter.up)}, {Turn::Lighter, 10, Off(driveLight)},
      {Turn::Lighter, 10, Off(terraceLight)},    {Turn::Lighter, 10, Off(gardenLight)},
      {Turn::Lighter, 14, Off(readingLamp)},     {Turn::Lighter, 45, On(awning.down)},
  };
}

}  // namespace

void PutTimeProgrammes(Memory& master) {
  Cells& cells = master.Cells(TableName::TimeProgramTable);
  PutRange(cells, 0, 999, emptyCell);
  int slot = 0;
  for (const Timed& timed : AllTimed()) {
    Put(cells, slot, timed.clock.hour);
    Put(cells, slot + 1, timed.clock.minute);
    Put(cells, slot + 2, timed.day);
    Put(cells, slot + 3, timed.date.day);
    Put(cells, slot + 4, timed.date.month);
    Put(cells, slot + 5, timed.date.year);
    PutAction(cells, slot + 6, timed.action);
    slot += 9;
  }
}

void PutLightProgrammes(Memory& master) {
  Cells& cells = master.Cells(TableName::LightProgramTable);
  PutRange(cells, 0, 999, emptyCell);
  int slot = 0;
  for (const ByLight& each : AllByLight()) {
    Put(cells, slot, static_cast<int>(each.turn));
    Put(cells, slot + 1, each.level);
    PutAction(cells, slot + 2, each.action);
    slot += 5;
  }
}

}  // namespace demo_house
