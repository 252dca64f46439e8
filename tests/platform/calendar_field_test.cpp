#include <gtest/gtest.h>

#include "platform/field.h"
#include "support/open_screen.h"

namespace bkconf {
namespace {

class CalendarFieldTest : public testing::Test {
 protected:
  CalendarFieldTest() {
    calendar.visible = true;
    calendar.onPick = [this] { seen.push_back(calendar.Day()); };
  }

  OpenScreen screen;
  CalendarField calendar{screen, "calendar"};
  std::vector<Date> seen;
};

TEST_F(CalendarFieldTest, IsHiddenUntilItIsAskedFor) {
  const CalendarField fresh{screen, "fresh"};
  EXPECT_FALSE(fresh.visible);
  EXPECT_TRUE(fresh.enabled);
  EXPECT_EQ(fresh.kind, FieldKind::Calendar);
}

TEST_F(CalendarFieldTest, ShowTakesADayAndRunsNoHandler) {
  calendar.Show({2026, 2, 28});
  EXPECT_EQ(calendar.Day(), (Date{2026, 2, 28}));
  EXPECT_TRUE(seen.empty());
}

TEST_F(CalendarFieldTest, TheDayStandsWhenTheHandlerOfAPickRuns) {
  calendar.Show({2026, 2, 28});
  calendar.Pick({2026, 3, 1});
  EXPECT_EQ(seen, (std::vector<Date>{{2026, 3, 1}}));
}

TEST_F(CalendarFieldTest, TheDayThatIsShownCanBePickedToo) {
  calendar.Show({2026, 2, 28});
  calendar.Pick({2026, 2, 28});
  EXPECT_EQ(seen.size(), 1U);
}

TEST_F(CalendarFieldTest, InADisabledOrHiddenCalendarNothingIsPicked) {
  calendar.Show({2026, 2, 28});
  calendar.enabled = false;
  calendar.Pick({2026, 3, 1});
  calendar.enabled = true;
  calendar.visible = false;
  calendar.Pick({2026, 3, 1});
  EXPECT_EQ(calendar.Day(), (Date{2026, 2, 28}));
  EXPECT_TRUE(seen.empty());
}

TEST_F(CalendarFieldTest, WithoutAHandlerTheDayIsPickedAllTheSame) {
  calendar.onPick = nullptr;
  calendar.Pick({2026, 12, 31});
  EXPECT_EQ(calendar.Day(), (Date{2026, 12, 31}));
}

TEST(DateTest, TodayIsADayOfTheCalendar) {
  const Date today = LocalNow().date;
  EXPECT_GE(today.year, 2024U);
  EXPECT_GE(today.month, 1U);
  EXPECT_LE(today.month, 12U);
  EXPECT_GE(today.day, 1U);
  EXPECT_LE(today.day, 31U);
}

}  // namespace
}  // namespace bkconf
