// Heating: six rooms with a sensor, a light and a valve each, and a programme for every day.
#include <array>

#include "demo_house/image.h"
#include "demo_house/modules.h"

namespace demo_house {
namespace {

using Identity = std::array<int, 8>;  // bytes, as printed on the part

struct Equipment {
  Room room;
  Identity sensor;
  Identity light;
  Target valve;
};

// The valve of a room on the module itself has the number of the room.
constexpr Target OwnValve(Room room) {
  return {heating, room.number};
}

constexpr Equipment equipment[] = {
    {livingRoom,
     {0x28, 0x4F, 0x12, 0xA7, 0x03, 0x00, 0x00, 0x9C},
     {0x29, 0x10, 0x5E, 0x01, 0x00, 0x00, 0x00, 0x3B},
     OwnValve(livingRoom)},
    {kitchen,
     {0x28, 0x51, 0x12, 0xA7, 0x03, 0x00, 0x00, 0x26},
     {0x29, 0x11, 0x5E, 0x01, 0x00, 0x00, 0x00, 0x81},
     OwnValve(kitchen)},
    {office,
     {0x28, 0x6A, 0x30, 0xA7, 0x03, 0x00, 0x00, 0xD5},
     {0x29, 0x12, 0x5E, 0x01, 0x00, 0x00, 0x00, 0x4E},
     OwnValve(office)},
    {bedroom,
     {0x28, 0x07, 0x77, 0xA9, 0x03, 0x00, 0x00, 0x60},
     {0x29, 0x13, 0x5E, 0x01, 0x00, 0x00, 0x00, 0xF4},
     OwnValve(bedroom)},
    {childRooms,
     {0x28, 0x19, 0x77, 0xA9, 0x03, 0x00, 0x00, 0xB8},
     {0x29, 0x14, 0x5E, 0x01, 0x00, 0x00, 0x00, 0x0A},
     OwnValve(childRooms)},
    // The bathroom has an electric radiator instead of a valve.
    {bathroom,
     {0x28, 0xE2, 0x01, 0xAA, 0x03, 0x00, 0x00, 0x17},
     {0x29, 0x15, 0x5E, 0x01, 0x00, 0x00, 0x00, 0x72},
     towelRadiator},
};

struct Clock {
  int hour;
  int minute;
};

// Six periods: morning, before noon, noon, afternoon, evening, night. Each lasts until the next
// begins, the night until the morning.
struct Day {
  std::array<Clock, 6> begins;
  std::array<int, 6> degrees;
};

constexpr std::array<Clock, 6> onWorkdays = {
    {{6, 30}, {8, 30}, {12, 0}, {13, 30}, {16, 30}, {22, 0}}};
constexpr std::array<Clock, 6> atWeekends = {
    {{8, 0}, {10, 0}, {12, 0}, {14, 0}, {17, 0}, {23, 15}}};

struct Programme {
  Room room;
  std::array<int, 6> workday;
  std::array<int, 6> weekend;
};

constexpr Programme programmes[] = {
    {livingRoom, {20, 18, 19, 18, 21, 16}, {20, 21, 21, 21, 22, 17}},
    {kitchen, {20, 17, 19, 17, 20, 15}, {20, 20, 20, 19, 20, 15}},
    {office, {17, 21, 20, 21, 18, 15}, {16, 16, 16, 16, 16, 15}},
    {bedroom, {18, 16, 16, 16, 17, 16}, {18, 16, 16, 16, 17, 16}},
    {childRooms, {19, 16, 16, 18, 20, 16}, {19, 19, 18, 19, 20, 16}},
    {bathroom, {23, 18, 18, 18, 22, 17}, {23, 21, 18, 18, 23, 17}},
    // Not in use: kept from freezing.
    {Room(7), {8, 8, 8, 8, 8, 8}, {8, 8, 8, 8, 8, 8}},
    {Room(8), {8, 8, 8, 8, 8, 8}, {8, 8, 8, 8, 8, 8}},
};

// Monday comes first.
void PutDay(Memory& memory, Room room, int weekday, const Day& day) {
  const int firstClock = 84 * (room.number - 1) + 12 * weekday;
  const int firstDegrees = 42 * (room.number - 1) + 6 * weekday;
  for (std::size_t period = 0; period < day.begins.size(); ++period) {
    const int offset = static_cast<int>(period);
    Cells& periods = memory.Cells(TableName::TempPeriods);
    Put(periods, firstClock + 2 * offset, day.begins[period].hour);
    Put(periods, firstClock + 2 * offset + 1, day.begins[period].minute);
    Put(memory.Cells(TableName::TempSetpoints), firstDegrees + offset, day.degrees[period]);
  }
}

void PutProgramme(Memory& memory, const Programme& programme) {
  for (int weekday = 0; weekday < 7; ++weekday) {
    const bool weekend = weekday > 4;
    PutDay(memory, programme.room, weekday,
           weekend ? Day{atWeekends, programme.weekend} : Day{onWorkdays, programme.workday});
  }
}

void PutTarget(Cells& cells, int first, Target target) {
  Put(cells, first, target.letter);
  Put(cells, first + 1, target.number - 1);
}

void PutEquipment(Memory& memory) {
  Cells& sensors = memory.Cells(TableName::TempRoomIds);
  Cells& tail = memory.Cells(TableName::TempTail);
  for (int room = 1; room <= 8; ++room) {
    PutTarget(tail, 62 + 2 * room, OwnValve(Room(room)));
  }
  for (const Equipment& each : equipment) {
    const int first = 8 * (each.room.number - 1);
    for (std::size_t i = 0; i < each.sensor.size(); ++i) {
      Put(sensors, first + static_cast<int>(i), each.sensor[i]);
      Put(tail, first + static_cast<int>(i), each.light[i]);
    }
    PutTarget(tail, 62 + 2 * each.room.number, each.valve);
  }
  PutTarget(tail, 80, heatingPump);
}

}  // namespace

Memory TemperatureModule() {
  Memory memory(2);
  PutAddressAndVersion(memory, heating, 23);
  Cells& header = memory.Cells(TableName::TempHeader);
  Put(header, 1, roomsInUse);
  Put(header, 2, 5);  // tolerance, in steps of the module's own
  PutEquipment(memory);
  for (const Programme& programme : programmes) {
    PutProgramme(memory, programme);
  }
  return memory;
}

}  // namespace demo_house
