#include "special/day_bounds.h"

#include <gtest/gtest.h>

#include <string>

namespace bkconf {
namespace {

/// 06:00, 09:00, 12:00, 14:00, 18:00 and 22:00.
constexpr DayBoundaries UsualDay = {360, 540, 720, 840, 1080, 1320};

struct BoundsCase {
  std::string name;
  DayBoundaries day;
  int boundary;
  int lowest;
  int highest;
};

class DayBoundsTest : public testing::TestWithParam<BoundsCase> {};

TEST_P(DayBoundsTest, ABoundaryLiesBetweenItsNeighbours) {
  const BoundsCase& row = GetParam();
  const BoundaryRange range = RangeOfBoundary(row.day, row.boundary);
  EXPECT_EQ(range.lowest, row.lowest);
  EXPECT_EQ(range.highest, row.highest);
}

const BoundsCase Cases[] = {
    // A day that begins at six: the night goes on across midnight, at both of its ends.
    {"UsualFirst", UsualDay, 0, -120, 540},
    {"UsualSecond", UsualDay, 1, 360, 720},
    {"UsualThird", UsualDay, 2, 540, 840},
    {"UsualFourth", UsualDay, 3, 720, 1080},
    {"UsualFifth", UsualDay, 4, 840, 1320},
    {"UsualLast", UsualDay, 5, 1080, 1800},
    {"FirstAtMidnight", {0, 540, 720, 840, 1080, 1320}, 0, -120, 540},
    // The night begins behind midnight.
    {"EarlyNightFirst", {360, 540, 720, 840, 1080, 30}, 0, 30, 540},
    {"EarlyNightFifth", {360, 540, 720, 840, 1080, 30}, 4, 840, 1440},
    {"EarlyNightLast", {360, 540, 720, 840, 1080, 30}, 5, 1080, 1800},
    {"EveningAndNightBehindMidnight", {360, 540, 720, 840, 15, 30}, 5, 15, 360},
    {"EveningBehindMidnight", {360, 540, 720, 840, 15, 30}, 4, 840, 1440},
    // The morning begins before midnight.
    {"LateStartSecond", {1380, 540, 720, 840, 1080, 1320}, 1, 0, 720},
    {"LateStartLast", {1380, 540, 720, 840, 1080, 1320}, 5, 1080, 1380},
    {"LateStartFirst", {1380, 540, 720, 840, 1080, 1320}, 0, -120, 540},
    // In the middle of the day nothing is put right.
    {"CrossedThird", {360, 900, 720, 840, 1080, 1320}, 2, 900, 840},
    {"CrossedFourth", {360, 540, 1100, 840, 1080, 1320}, 3, 1100, 1080},
    // Neighbours at the same time leave one place.
    {"EqualAroundFirst", {0, 540, 720, 840, 1080, 540}, 0, 540, 540},
    {"EqualAroundSecond", {720, 540, 720, 840, 1080, 1320}, 1, 720, 720},
    {"EqualAroundThird", {360, 840, 720, 840, 1080, 1320}, 2, 840, 840},
    {"EqualAroundFourth", {360, 540, 1080, 840, 1080, 1320}, 3, 1080, 1080},
    {"EqualAroundFifth", {360, 540, 720, 1320, 1080, 1320}, 4, 1320, 1320},
    {"EqualAroundLast", {1080, 540, 720, 840, 1080, 1320}, 5, 1080, 1080},
    // By one minute.
    {"FirstByAMinute", {0, 540, 720, 840, 1080, 541}, 0, -899, 540},
    {"SecondByAMinute", {721, 540, 720, 840, 1080, 1320}, 1, 0, 720},
    {"FifthByAMinute", {360, 540, 720, 1321, 1080, 1320}, 4, 1321, 1440},
    {"LastByAMinute", {1079, 540, 720, 840, 1080, 1320}, 5, 1080, 2519},
};

INSTANTIATE_TEST_SUITE_P(Days, DayBoundsTest, testing::ValuesIn(Cases),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace bkconf
