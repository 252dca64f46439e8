// How far a boundary between two periods of a day can be moved. The screen of the room programmes
// uses it.
#pragma once

#include <array>

namespace bkconf {

inline constexpr int PeriodsOfDay = 6;
inline constexpr int MinutesOfDay = 24 * 60;

/// The boundaries of a day in minutes, in the order of the periods that begin there.
using DayBoundaries = std::array<int, PeriodsOfDay>;

/// Both included. Below 0 is the day before, and above 1440 the day after.
struct BoundaryRange {
  int lowest = 0;
  int highest = 0;
};

/// Between the boundaries before and behind it. The first and the last of a day meet across
/// midnight.
BoundaryRange RangeOfBoundary(const DayBoundaries& day, int boundary);

}  // namespace bkconf
