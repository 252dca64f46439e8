#include "special/day_bounds.h"

namespace bkconf {
namespace {

int At(const DayBoundaries& day, int boundary) {
  return day[static_cast<std::size_t>((boundary + PeriodsOfDay) % PeriodsOfDay)];
}

}  // namespace

BoundaryRange RangeOfBoundary(const DayBoundaries& day, int boundary) {
  BoundaryRange range{At(day, boundary - 1), At(day, boundary + 1)};
  if (range.lowest <= range.highest) return range;
  // One of the neighbours lies beyond midnight. In the middle of the day that is meant to be left
  // as it is: there is no range then.
  switch (boundary) {
    case 0:
      range.lowest -= MinutesOfDay;
      break;
    case 1:
      range.lowest = 0;
      break;
    case 4:
      range.highest = MinutesOfDay;
      break;
    case 5:
      range.highest += MinutesOfDay;
      break;
    default:
      break;
  }
  return range;
}

}  // namespace bkconf
