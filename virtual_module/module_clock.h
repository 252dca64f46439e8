// The clock of a master module, which runs on the time of the model. Used by the module model and
// its program.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "virtual_module/transmitter.h"

namespace virtual_module {

// A moment on the clock. The default is where a module's clock starts unless told otherwise.
struct ClockTime {
  int year = 2026;  // 2000..2099: the line has two digits for it
  int month = 3;    // 1..12
  int day = 2;      // 1..31
  int hour = 8;     // 0..23
  int minute = 30;  // 0..59
  int weekday = 2;  // 1..7, 1 is Sunday; follows from the date at the start, and is set after it
  friend bool operator==(const ClockTime&, const ClockTime&) = default;
};

class ModuleClock {
 public:
  // Stands at `start`, whose weekday is not looked at, until it is switched on. Throws
  // std::invalid_argument when there is no such moment.
  explicit ModuleClock(const ClockTime& start);

  void SwitchOn(Thirds now) { setAt_ = now; }

  // `now` must not be before the moment of the last change.
  ClockTime At(Thirds now) const;

  // Sets the time, on the minute, and the weekday; the date stays. False, and nothing is set, when
  // hour, minute or weekday is out of range.
  bool SetTime(int hour, int minute, int weekday, Thirds now);

  // Sets the date of a year of 2000 + `year`; time and weekday stay. False, and nothing is set,
  // when there is no such day.
  bool SetDate(int day, int month, int year, Thirds now);

 private:
  std::chrono::sys_seconds Passed(Thirds now) const;

  std::chrono::sys_seconds set_;  // what it stood at...
  Thirds setAt_ = 0;              // ...at this time
  int weekdayShift_ = 0;          // 0..6: days that the weekday is ahead of the date's own
};

}  // namespace virtual_module
