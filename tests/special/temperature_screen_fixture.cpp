#include <algorithm>
#include <iterator>

#include "image/tables.h"
#include "special/temperature_screen_test.h"

namespace bkconf {

void TemperatureScreenTest::FillDay(int room, int day, const std::array<int, 6>& minutes) {
  for (int boundary = 0; boundary < 6; ++boundary) {
    const int time = minutes[static_cast<std::size_t>(boundary)];
    TempPeriods[HourCell(room, day, boundary)] = time / 60;
    TempPeriods[HourCell(room, day, boundary) + 1] = time % 60;
  }
}

void TemperatureScreenTest::StartWithRooms(int rooms, int language) {
  StartWithImage(2, language, 'C');
  TempHeader[1] = TempRoomCount = rooms;
  TempHeader[2] = 10;
  TempHeader[3] = 21;
  for (int cell = 0; cell < 64; ++cell) {
    TempRoomIds[cell] = cell;
    TempTail[cell] = 255 - cell;
  }
  for (int room = 0; room < 8; ++room) {
    TempTail[64 + 2 * room] = int{'C'};
    TempTail[65 + 2 * room] = room;
    for (int day = 0; day < 7; ++day) {
      FillDay(room, day, {360, 540, 720, 840, 1080, 1320});
      for (int period = 0; period < 6; ++period) {
        TempSetpoints[SetpointCell(room, day, period)] = 15 + period;
      }
    }
  }
  TempTail[80] = int{'C'};
  TempTail[81] = 8;
  TempImage1Loaded = TempImage2Loaded = 1;
  MainWindow.send.enabled = false;
}

void TemperatureScreenTest::OpenIds(int rooms, int language) {
  StartWithRooms(rooms, language);
  Open(Action::RoomIds);
  ASSERT_TRUE(TemperatureScreen.shown);
}

void TemperatureScreenTest::OpenProgram(int rooms, int language) {
  StartWithRooms(rooms, language);
  Open(Action::RoomProgram);
  ASSERT_TRUE(TemperatureScreen.shown);
}

virtual_module::Module& TemperatureScreenTest::Read(int rooms, int language, std::uint32_t seed) {
  Start(language);
  virtual_module::Memory memory = virtual_module::DefaultMemory(2, seed);
  memory.Cells("TempHeader")[0] = 'C';
  memory.Cells("TempHeader")[1] = rooms;
  virtual_module::Module& module = Plug({2, std::move(memory)});
  ReadModule();
  return module;
}

void TemperatureScreenTest::AwaitScreen() {
  ASSERT_TRUE(clock.RunUntil([] { return TemperatureScreen.shown; }, 60'000));
}

std::vector<Field*> TemperatureScreenTest::UsableFields(const GroupField& look) {
  const std::vector<Field*>& all = TemperatureScreen.fields;
  const auto begin = std::find(all.begin(), all.end(), &look);
  const auto isLook = [](const Field* field) {
    return field == &Program().group || field == &TemperatureScreen.live.group ||
           field == &TemperatureScreen.status;
  };
  // Without a room the day is not in sight, and neither is anything in it.
  const bool onlyRoom = &look == &Program().group && !Program().periodsGroup.visible;
  std::vector<Field*> usable;
  std::copy_if(
      begin, std::find_if(begin + 1, all.end(), isLook), std::back_inserter(usable),
      [onlyRoom](const Field* field) {
        const bool read = field->kind == FieldKind::Label || field->kind == FieldKind::Group ||
                          field->kind == FieldKind::DayBand;
        return !read && field->enabled && field->visible && (!onlyRoom || field == &Program().room);
      });
  return usable;
}

std::string CellName(const std::string& table, int first, int last) {
  const std::string end = last < 0 ? "" : ".." + std::to_string(last);
  return table + "[" + std::to_string(first) + end + "]";
}

std::string Two(int number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

}  // namespace bkconf
