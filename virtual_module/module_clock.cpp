#include "virtual_module/module_clock.h"

#include <stdexcept>

namespace virtual_module {
namespace {

using namespace std::chrono;  // a calendar without its names is hard to read

constexpr Thirds thirdsPerSecond = Milliseconds(1000);
constexpr int century = 2000;

bool IsTimeOfDay(int hour, int minute) {
  return hour >= 0 && hour <= 23 && minute >= 0 && minute <= 59;
}

// Not ok() when there is no such day.
year_month_day DateOf(int year, int month, int day) {
  if (month < 1 || month > 12 || day < 1 || day > 31) {
    return {};
  }
  return {std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
          std::chrono::day(static_cast<unsigned>(day))};
}

// 0..6, 0 is Sunday.
int OwnWeekday(sys_days date) {
  return static_cast<int>(weekday(date).c_encoding());
}

}  // namespace

ModuleClock::ModuleClock(const ClockTime& start) {
  const year_month_day date = DateOf(start.year, start.month, start.day);
  const bool inCentury = start.year >= century && start.year < century + 100;
  if (!inCentury || !date.ok() || !IsTimeOfDay(start.hour, start.minute)) {
    throw std::invalid_argument("a start of the clock that is no moment of 2000 to 2099");
  }
  set_ = sys_days(date) + hours(start.hour) + minutes(start.minute);
}

sys_seconds ModuleClock::Passed(Thirds now) const {
  return set_ + seconds((now - setAt_) / thirdsPerSecond);
}

ClockTime ModuleClock::At(Thirds now) const {
  const sys_seconds time = Passed(now);
  const sys_days date = floor<days>(time);
  const year_month_day calendar(date);
  const hh_mm_ss clock(time - date);
  return {.year = static_cast<int>(calendar.year()),
          .month = static_cast<int>(static_cast<unsigned>(calendar.month())),
          .day = static_cast<int>(static_cast<unsigned>(calendar.day())),
          .hour = static_cast<int>(clock.hours().count()),
          .minute = static_cast<int>(clock.minutes().count()),
          .weekday = (OwnWeekday(date) + weekdayShift_) % 7 + 1};
}

bool ModuleClock::SetTime(int hour, int minute, int weekday, Thirds now) {
  if (!IsTimeOfDay(hour, minute) || weekday < 1 || weekday > 7) {
    return false;
  }
  const sys_days date = floor<days>(Passed(now));
  set_ = date + hours(hour) + minutes(minute);
  setAt_ = now;
  weekdayShift_ = (weekday - 1 - OwnWeekday(date) + 7) % 7;
  return true;
}

bool ModuleClock::SetDate(int day, int month, int year, Thirds now) {
  const year_month_day wanted = DateOf(century + year, month, day);
  if (year < 0 || year > 99 || !wanted.ok()) {
    return false;
  }
  const sys_seconds time = Passed(now);
  const sys_days date = floor<days>(time);
  weekdayShift_ = (OwnWeekday(date) + weekdayShift_ - OwnWeekday(sys_days(wanted)) + 7) % 7;
  set_ = sys_days(wanted) + (time - date);
  setAt_ = now;
  return true;
}

}  // namespace virtual_module
