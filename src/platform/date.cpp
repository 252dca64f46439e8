#include "platform/date.h"

#include <ctime>

namespace bkconf {

Moment LocalNow() {
  constexpr int firstYear = 1900;
  const std::time_t now = std::time(nullptr);
  // There is one thread, so the shared result is nobody else's.
  const std::tm* local = std::localtime(&now);
  const auto number = [](int part) { return static_cast<unsigned>(part); };
  return {.date = {.year = number(local->tm_year + firstYear),
                   .month = number(local->tm_mon + 1),
                   .day = number(local->tm_mday)},
          .hour = number(local->tm_hour),
          .minute = number(local->tm_min),
          .second = number(local->tm_sec),
          .weekday = number(local->tm_wday + 1)};
}

}  // namespace bkconf
