// The fixture of the tests of the temperature module: its screen, opened as a person opens it, on
// an image that is in memory or on one that a module still has to send.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "special/temperature_screen.h"
#include "support/session_test.h"

namespace bkconf {

class TemperatureScreenTest : public SessionTest {
 protected:
  /// Starts with an image of that many rooms on the letter C, complete as from a file, in which
  /// every room and day looks alike: 06:00, 09:00, 12:00, 14:00, 18:00 and 22:00, with 15 to 20
  /// degrees. Identities count up from 0 and down from 255; valves are on this module.
  void StartWithRooms(int rooms = 8, int language = 1);
  static void FillDay(int room, int day, const std::array<int, 6>& minutes);

  void OpenIds(int rooms = 8, int language = 1);
  void OpenProgram(int rooms = 8, int language = 1);
  /// Opens the look of the image that is there.
  static void Open(Action look) { ShownAction(look).Click(); }

  /// Reads the header of a module with that many rooms, whose other cells come from the seed.
  virtual_module::Module& Read(int rooms = 8, int language = 1, std::uint32_t seed = 1);
  /// Runs a tick after the other until the screen shows itself.
  void AwaitScreen();

  static RoomIdFields& Ids() { return TemperatureScreen.ids; }
  static RoomProgramFields& Program() { return TemperatureScreen.program; }

  /// The fields of a look that a person can reach now and do something with.
  static std::vector<Field*> UsableFields(const GroupField& look);

  // Rooms, days, periods and boundaries count from 0, as in the cells.
  static PeriodRow& Row(int period) {
    return *Program().periods[static_cast<std::size_t>((period + 6) % 6)];
  }
  static DayFields& Day(int day) { return *Program().days[static_cast<std::size_t>(day)]; }
  static ListField& SensorByte(int byte) {
    return *Ids().sensor.bytes[static_cast<std::size_t>(byte)];
  }
  static ListField& LedByte(int byte) { return *Ids().led.bytes[static_cast<std::size_t>(byte)]; }
  static int HourCell(int room, int day, int boundary) {
    return 84 * room + 12 * day + 2 * boundary;
  }
  static int SetpointCell(int room, int day, int period) { return 42 * room + 6 * day + period; }
};

/// "TempTail[64]" or "TempTail[64..65]", for ExpectOnlyChanged.
std::string CellName(const std::string& table, int first, int last = -1);
/// The number in two digits.
std::string Two(int number);

}  // namespace bkconf
