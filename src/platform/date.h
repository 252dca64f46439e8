// A day of the calendar and a moment of it, as the clock of the machine tells them. Calendars and
// the live test of a master's clock use it.
#pragma once

#include <functional>

namespace bkconf {

/// Of the Gregorian calendar.
struct Date {
  unsigned year = 0;
  unsigned month = 0;  ///< from 1
  unsigned day = 0;    ///< from 1

  friend bool operator==(const Date&, const Date&) = default;
};

/// A second of a day.
struct Moment {
  Date date;
  unsigned hour = 0;
  unsigned minute = 0;
  unsigned second = 0;
  unsigned weekday = 0;  ///< Sunday is 1
};

/// By the clock and the time zone of the machine.
Moment LocalNow();

/// What gives the moment that it is now. Tests put their own in its place.
inline std::function<Moment()> Now = LocalNow;

inline Date Today() {
  return Now().date;
}

}  // namespace bkconf
