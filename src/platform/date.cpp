#include "platform/date.h"

#include <ctime>

namespace bkconf {

Date LocalToday() {
  constexpr int firstYear = 1900;
  const std::time_t now = std::time(nullptr);
  // There is one thread, so the shared result is nobody else's.
  const std::tm* local = std::localtime(&now);
  return {static_cast<unsigned>(local->tm_year + firstYear),
          static_cast<unsigned>(local->tm_mon + 1), static_cast<unsigned>(local->tm_mday)};
}

}  // namespace bkconf
