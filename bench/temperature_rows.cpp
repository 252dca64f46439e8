// What the screen of the temperature module costs: to open each of its looks, and each kind of pick
// and move in them.
#include "bench/screen_measure.h"
#include "image/tables.h"
#include "link/link_events.h"
#include "link/transfer.h"
#include "shell/main_window.h"
#include "special/temperature_screen.h"

namespace bkconf {
namespace {

RoomIdFields& Ids() {
  return TemperatureScreen.ids;
}
RoomProgramFields& Program() {
  return TemperatureScreen.program;
}

/// Eight rooms, no two days of which are alike.
void FillImage() {
  constexpr int cellsOfDay = 12;
  ActiveModuleType = 2;
  TempHeader[0] = int{'A'};
  TempHeader[1] = TempRoomCount = MostRooms;
  TempImage1Loaded = TempImage2Loaded = 1;
  for (int cell = 0; cell < IdBytes * MostRooms; ++cell) {
    TempRoomIds[cell] = cell;
    TempTail[cell] = 255 - cell;
  }
  for (int valve = 0; valve <= MostRooms; ++valve) {
    TempTail[64 + 2 * valve] = 'A' + valve % 2;
    TempTail[65 + 2 * valve] = valve;
  }
  for (int cell = 0; cell < TempPeriods.Size(); ++cell) {
    const int day = cell / cellsOfDay;
    TempPeriods[cell] = cell % 2 == 1 ? day : 3 * (cell % cellsOfDay / 2) + day % 3;
  }
  for (int cell = 0; cell < TempSetpoints.Size(); ++cell) TempSetpoints[cell] = cell % 37;
}

/// From a fresh screen in that look.
std::function<void(int)> Behind(void (*open)(), const std::function<void(int)>& first) {
  return [open, first](int run) {
    TemperatureScreen.Close();
    FillImage();
    open();
    first(run);
  };
}

void Close(int) {
  TemperatureScreen.Close();
}

void MeasureIds() {
  int picked = 0;
  const auto room = [&picked](int run) {
    Ids().room.Pick(run % MostRooms);
    Ids().valve.Pick(run % MostRooms);
    picked = (run + 1) % MostRooms;
  };
  Measure("rooms, opening", Close, OpenRoomIds);
  Measure("rooms, picking a room", Behind(OpenRoomIds, room),
          [&picked] { Ids().room.Pick(picked); });
  Measure("rooms, picking a byte", Behind(OpenRoomIds, room),
          [&picked] { Ids().sensor.bytes.front()->Pick(100 + picked); });
  Measure("rooms, picking a valve", Behind(OpenRoomIds, room),
          [&picked] { Ids().valve.Pick(picked); });
  const auto own = [](int) { Ids().valve.Pick(1); };
  Measure("rooms, this module", Behind(OpenRoomIds, own), [] { Ids().own.Choose(); });
  const auto other = [](int) { Ids().valve.Pick(0); };
  Measure("rooms, another module", Behind(OpenRoomIds, other), [] { Ids().other.Choose(); });
  const auto elsewhere = [](int) {
    Ids().valve.Pick(0);
    Ids().other.Choose();
  };
  Measure("rooms, picking a letter", Behind(OpenRoomIds, elsewhere), [] { Ids().letter.Pick(5); });
  Measure("rooms, picking an output", Behind(OpenRoomIds, elsewhere), [] { Ids().output.Pick(5); });
}

void MeasureProgram() {
  const auto room = [](int) { Program().room.Pick(0); };
  Measure("periods, opening", Close, OpenRoomProgram);
  Measure("periods, picking a room", Behind(OpenRoomProgram, [](int) {}),
          [] { Program().room.Pick(3); });
  Measure("periods, picking a day", Behind(OpenRoomProgram, room),
          [] { Program().days.back()->day.Choose(); });
  Measure("periods, copying a day", Behind(OpenRoomProgram, room),
          [] { Program().days.back()->copy.Set(true); });
  const auto& row = *Program().periods[2];
  Measure("periods, moving a boundary", Behind(OpenRoomProgram, room),
          [&row] { Program().periods[2]->fromScroll.Move(row.fromScroll.Value() + 5); });
  // The longest spring: from the end of the scroll.
  Measure("periods, a spring", Behind(OpenRoomProgram, room),
          [] { Program().periods[2]->fromScroll.Move(3000); });
  Measure("periods, a temperature", Behind(OpenRoomProgram, room),
          [] { Program().periods[2]->setpointScroll.Move(33); });
}

/// No module is asked: what its answer would show is shown.
void AwaitLive() {
  OpenLiveTemperatures();
  StopLink();
}

void MeasureLive() {
  const auto await = [](int) {
    TemperatureScreen.Close();
    FillImage();
    AwaitLive();
  };
  Measure("live temperatures, opening", await, [] { Raise(LinkEvent::TemperatureReadStarted); });
  Measure(
      "live temperatures, a room",
      [&await](int run) {
        await(run);
        Raise(LinkEvent::TemperatureReadStarted);
      },
      [] {
        RxLine = "M2064098";
        Raise(LinkEvent::LiveTemperature);
      });
  RunEvent(LeaveTransfer);
}

}  // namespace

void MeasureTemperatures() {
  watch.place = QStringLiteral("TemperatureScreen");
  FillImage();
  RunEvent([] { ShowImage(Origin::File); });
  QApplication::processEvents();
  Print("rooms, first opening", TimeOf([] { RunEvent(OpenRoomIds); }));
  MeasureIds();
  MeasureProgram();
  MeasureLive();
  RunEvent([] { TemperatureScreen.Close(); });
}

}  // namespace bkconf
