// The temperatures of this moment, or what is wrong with the sensor or LED of a room.
#include <array>

#include "image/tables.h"
#include "link/link_events.h"
#include "link/rx_line.h"
#include "session/language.h"
#include "special/rooms.h"
#include "special/temperature_screen.h"

namespace bkconf {
namespace {

/// Of the first room, in TempRoomIds.
constexpr int FirstLiveCell = 64;

/// What a module tells in place of a temperature.
struct Report {
  int value;
  TextId text;
};
constexpr auto Reports = std::to_array<Report>({{99, TextId::BelowZero},
                                                {98, TextId::SensorMissing},
                                                {97, TextId::LedMissing},
                                                {96, TextId::SensorAndLedMissing}});

std::string TextOfRoom(int room, int value) {
  const std::string name = std::string(Text(TextId::Room)) + std::to_string(room + 1);
  for (const Report& report : Reports) {
    if (report.value != value) continue;
    // Only the first room has the long text; it is kept so.
    const bool isShort = report.text == TextId::BelowZero && room > 0;
    return name + " : " + std::string(Text(isShort ? TextId::BelowZeroShort : report.text));
  }
  return name + " = " + std::to_string(value) + "°C";
}

void ShowTemperature() {
  const int room = NumberInLine(3, 5) - FirstLiveCell;
  if (room < 0 || room >= MostRooms) return;
  LabelField& label = *TemperatureScreen.live.rooms[static_cast<std::size_t>(room)];
  const bool exists = room + 1 <= TempRoomCount.Number();
  label.caption = exists ? TextOfRoom(room, NumberInLine(6, 8)) : std::string(Text(TextId::Dashes));
}

}  // namespace

void LoadLiveTemperatures() {
  Show(TemperatureScreen.live.group.caption, TextId::LiveTemperaturesTitle);
  Listen(LinkEvent::LiveTemperature, ShowTemperature);
}

void BlankLiveTemperatures() {
  for (const auto& room : TemperatureScreen.live.rooms) room->caption.clear();
}

}  // namespace bkconf
