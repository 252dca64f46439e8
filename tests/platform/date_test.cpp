#include "platform/date.h"

#include <gtest/gtest.h>

#include <ctime>

namespace bkconf {
namespace {

std::time_t SecondsOf(const Moment& moment) {
  const auto number = [](unsigned part) { return static_cast<int>(part); };
  std::tm parts{};
  parts.tm_year = number(moment.date.year) - 1900;
  parts.tm_mon = number(moment.date.month) - 1;
  parts.tm_mday = number(moment.date.day);
  parts.tm_hour = number(moment.hour);
  parts.tm_min = number(moment.minute);
  parts.tm_sec = number(moment.second);
  parts.tm_isdst = -1;
  return std::mktime(&parts);
}

TEST(DateTest, NowIsTheClockOfTheMachine) {
  const std::time_t before = std::time(nullptr);
  const Moment now = Now();
  const std::time_t after = std::time(nullptr);
  EXPECT_GE(SecondsOf(now), before);
  EXPECT_LE(SecondsOf(now), after);
}

TEST(DateTest, TheWeekdayOfNowBelongsToItsDate) {
  const Moment now = LocalNow();
  const std::time_t seconds = SecondsOf(now);
  EXPECT_EQ(now.weekday, static_cast<unsigned>(std::localtime(&seconds)->tm_wday + 1));
  EXPECT_GE(now.weekday, 1U);
  EXPECT_LE(now.weekday, 7U);
}

TEST(DateTest, TodayIsTheDateOfNow) {
  Now = [] {
    return Moment{.date = {.year = 2026, .month = 12, .day = 31}, .hour = 23, .weekday = 5};
  };
  EXPECT_EQ(Today(), (Date{.year = 2026, .month = 12, .day = 31}));
  Now = LocalNow;
}

}  // namespace
}  // namespace bkconf
