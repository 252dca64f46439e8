// Handles between two ends, and the band of a day.
#include <gtest/gtest.h>

#include "platform/field.h"
#include "support/open_screen.h"

namespace bkconf {
namespace {

class ScrollFieldTest : public testing::Test {
 protected:
  ScrollFieldTest() {
    scroll.lowest = -3000;
    scroll.highest = 3000;
    scroll.onMove = [this] { seen.push_back(scroll.Value()); };
  }

  OpenScreen screen;
  ScrollField scroll{screen, "scroll"};
  std::vector<int> seen;
};

TEST_F(ScrollFieldTest, StandsAtNoughtAtFirst) {
  EXPECT_EQ(scroll.Value(), 0);
  EXPECT_EQ(scroll.step, 1);
  EXPECT_EQ(scroll.kind, FieldKind::Scroll);
}

TEST_F(ScrollFieldTest, MovingRunsTheHandlerOnceWithTheNewPlace) {
  scroll.Move(-60);
  scroll.Move(125);
  EXPECT_EQ(seen, (std::vector<int>{-60, 125}));
}

TEST_F(ScrollFieldTest, MovingToWhereItIsRunsNoHandler) {
  scroll.Move(0);
  scroll.Move(5);
  scroll.Move(5);
  EXPECT_EQ(seen, std::vector<int>{5});
}

TEST_F(ScrollFieldTest, BeyondAnEndItStaysAtTheEnd) {
  scroll.Move(3001);
  scroll.Move(9999);
  scroll.Move(-3001);
  EXPECT_EQ(seen, (std::vector<int>{3000, -3000}));
  scroll.Show(4000);
  EXPECT_EQ(scroll.Value(), 3000);
  scroll.Show(-4000);
  EXPECT_EQ(scroll.Value(), -3000);
}

TEST_F(ScrollFieldTest, ShowingRunsNoHandler) {
  scroll.Show(60);
  EXPECT_EQ(scroll.Value(), 60);
  EXPECT_TRUE(seen.empty());
}

TEST_F(ScrollFieldTest, DisabledOrHiddenItCannotBeMoved) {
  scroll.enabled = false;
  scroll.Move(5);
  scroll.enabled = true;
  scroll.visible = false;
  scroll.Move(5);
  EXPECT_EQ(scroll.Value(), 0);
  EXPECT_TRUE(seen.empty());
  scroll.Show(5);
  EXPECT_EQ(scroll.Value(), 5);
}

TEST_F(ScrollFieldTest, ItMovesWithoutAHandlerToo) {
  scroll.onMove = nullptr;
  scroll.Move(5);
  EXPECT_EQ(scroll.Value(), 5);
}

TEST(DayBandFieldTest, HasNoPartsAtFirstAndPartsAreComparedWhole) {
  OpenScreen screen;
  const DayBandField band(screen, "band");
  EXPECT_EQ(band.kind, FieldKind::DayBand);
  EXPECT_TRUE(band.parts.empty());
  const DayBandField::Part part{360, 540, "21°C", {1, 2, 3}};
  EXPECT_EQ(part, (DayBandField::Part{360, 540, "21°C", {1, 2, 3}}));
  EXPECT_NE(part, (DayBandField::Part{365, 540, "21°C", {1, 2, 3}}));
  EXPECT_NE(part, (DayBandField::Part{360, 545, "21°C", {1, 2, 3}}));
  EXPECT_NE(part, (DayBandField::Part{360, 540, "20°C", {1, 2, 3}}));
  EXPECT_NE(part, (DayBandField::Part{360, 540, "21°C", {1, 2, 4}}));
}

}  // namespace
}  // namespace bkconf
