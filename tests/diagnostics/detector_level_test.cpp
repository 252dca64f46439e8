#include "diagnostics/detector_level.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace bkconf {
namespace {

/// Three digits, as a line has them.
std::string Digits(int number) {
  const std::string text = std::to_string(1000 + number);
  return text.substr(1);
}

TEST(DetectorLevelTest, TheListGoesToFiveThousandInThreeSteps) {
  const std::vector<int> levels = DetectorLevels();
  ASSERT_EQ(levels.size(), 150U + 35U + 225U);
  for (int i = 0; i < 150; ++i) EXPECT_EQ(levels.at(static_cast<std::size_t>(i)), 1 + i);
  for (int i = 0; i < 35; ++i)
    EXPECT_EQ(levels.at(static_cast<std::size_t>(150 + i)), 160 + 10 * i);
  for (int i = 0; i < 225; ++i) {
    EXPECT_EQ(levels.at(static_cast<std::size_t>(185 + i)), 520 + 20 * i);
  }
  EXPECT_EQ(levels.back(), 5000);
}

TEST(DetectorLevelTest, TheRangesBeginAtTheirLimits) {
  for (const int level : {0, 1, 150, 154}) EXPECT_EQ(RangeOf(level), 0) << level;
  for (const int level : {155, 160, 500, 509}) EXPECT_EQ(RangeOf(level), 1) << level;
  for (const int level : {510, 520, 5000, 89'910}) EXPECT_EQ(RangeOf(level), 2) << level;
}

TEST(DetectorLevelTest, EveryLevelOfTheListGoesOverTheLineAndBack) {
  for (const int level : DetectorLevels()) {
    const int divisor = level < 155 ? 1 : level < 510 ? 10 : 20;
    const std::string wire = WireLevel(level, RangeOf(level));
    EXPECT_EQ(wire, Digits(level / divisor)) << level;
    EXPECT_EQ(ShownLevel(std::stoi(wire), RangeOf(level)), level);
  }
}

TEST(DetectorLevelTest, EveryLevelOfTheLineIsShownAndGoesBack) {
  for (int range = 0; range <= 9; ++range) {
    for (int wire = 0; wire <= 999; ++wire) {
      const int shown = ShownLevel(wire, range);
      EXPECT_EQ(shown, range == 0 ? wire : wire * 10 * range);
      EXPECT_EQ(WireLevel(shown, range), Digits(wire)) << wire << " in range " << range;
    }
  }
}

TEST(DetectorLevelTest, WhatTheDivisionLeavesOverIsDropped) {
  EXPECT_EQ(RangeOf(155), 1);
  EXPECT_EQ(WireLevel(155, 1), "015");
  EXPECT_EQ(WireLevel(150, 0), "150");
  EXPECT_EQ(WireLevel(539, 2), "026");
}

TEST(DetectorLevelTest, KnownLevels) {
  struct Row {
    int shown;
    int range;
    std::string wire;
  };
  for (const Row& row : std::vector<Row>{{1, 0, "001"},
                                         {150, 0, "150"},
                                         {160, 1, "016"},
                                         {500, 1, "050"},
                                         {520, 2, "026"},
                                         {5000, 2, "250"},
                                         {200, 2, "010"}}) {
    EXPECT_EQ(WireLevel(row.shown, row.range), row.wire);
    EXPECT_EQ(ShownLevel(std::stoi(row.wire), row.range), row.shown);
  }
}

TEST(DetectorLevelTest, ALevelOfFourDigitsKeepsTheLastThree) {
  EXPECT_EQ(WireLevel(1234, 0), "234");
}

}  // namespace
}  // namespace bkconf
