#include "link/rx_line.h"

#include <gtest/gtest.h>

namespace bkconf {
namespace {

/// Characters of a line count from 1.
class RxLineTest : public testing::Test {
 protected:
  RxLineTest() { RxLine = "M12x45"; }
  ~RxLineTest() override { RxLine.clear(); }
};

TEST_F(RxLineTest, CharactersAreTakenByTheirPlaces) {
  EXPECT_EQ(CharactersOfLine(1, 1), "M");
  EXPECT_EQ(CharactersOfLine(2, 3), "12");
  EXPECT_EQ(CharactersOfLine(1, 6), "M12x45");
}

TEST_F(RxLineTest, WhatTheLineDoesNotHaveIsLeftOut) {
  EXPECT_EQ(CharactersOfLine(5, 9), "45");
  EXPECT_EQ(CharactersOfLine(7, 9), "");
  EXPECT_EQ(CharactersOfLine(700, 900), "");
  RxLine.clear();
  EXPECT_EQ(CharactersOfLine(1, 6), "");
}

TEST_F(RxLineTest, ANumberEndsAtTheFirstCharacterThatIsNoDigit) {
  EXPECT_EQ(NumberInLine(2, 3), 12);
  EXPECT_EQ(NumberInLine(2, 6), 12);
  EXPECT_EQ(NumberInLine(5, 9), 45);
  EXPECT_EQ(NumberInLine(1, 6), 0);
  EXPECT_EQ(NumberInLine(4, 6), 0);
  EXPECT_EQ(NumberInLine(7, 9), 0);
}

}  // namespace
}  // namespace bkconf
