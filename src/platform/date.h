// A day of the calendar, and which one it is today. Calendar fields use it.
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

/// Today, by the clock and the time zone of the machine.
Date LocalToday();

/// What gives the day of today. Tests put their own in its place.
inline std::function<Date()> Today = LocalToday;

}  // namespace bkconf
