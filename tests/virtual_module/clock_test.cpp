// The clock of the master: asked by a test, set by the two frames that may follow it.
#include <gtest/gtest.h>

#include <stdexcept>

#include "virtual_module/conversation.h"

namespace virtual_module {
namespace {

constexpr std::int64_t minute = 60 * second;

Options Master(ClockTime clock) {
  return {.kind = 9, .memory = DefaultMemory(9, 1), .clock = clock};
}

// The lines between acknowledgement and end, from their second character on.
std::vector<std::string> Ask(Conversation& line) {
  std::vector<std::string> lines = LinesOf(line.Read("T80300"));
  EXPECT_EQ(lines.front(), "M80000");
  EXPECT_EQ(lines.back(), "STOP");
  lines.pop_back();
  lines.erase(lines.begin());
  for (std::string& each : lines) {
    each.erase(0, 1);
  }
  return lines;
}

using Lines = std::vector<std::string>;

TEST(ModuleClock, StartsAtAFixedMomentAndIsTwoLines) {
  Conversation line(9);
  line.now = 100 * second;  // of the caller's clock; the module is switched on here
  EXPECT_EQ(Ask(line), (Lines{"0830", "020326-2"}));
  EXPECT_EQ(line.module.completedTests(), 1);
  EXPECT_EQ(line.module.errors(), 0);
}

TEST(ModuleClock, ItsLinesFollowTheAcknowledgementWithinATenthOfASecond) {
  Conversation line(9);
  line.StartTest("T80300");
  const std::int64_t acknowledged = line.now;
  line.RunUntil("STOP\r");
  EXPECT_LT(line.now - acknowledged, 120 * millisecond);
}

TEST(ModuleClock, StartsWhereItIsToldTo) {
  Conversation line(Master({.year = 2031, .month = 12, .day = 9, .hour = 7, .minute = 5}));
  EXPECT_EQ(Ask(line), (Lines{"0705", "091231-3"}));  // a Tuesday
}

TEST(ModuleClock, RunsOnTheModulesTime) {
  Conversation line(Master({.hour = 8, .minute = 59}));
  line.RunFor(50 * second);
  EXPECT_EQ(Ask(line)[0], "0859");
  line.RunFor(10 * second);
  EXPECT_EQ(Ask(line)[0], "0900");
  line.RunFor(25 * minute);
  EXPECT_EQ(Ask(line)[0], "0925");
}

struct Midnight {
  ClockTime before;
  const char* date;  // behind it
};

TEST(ModuleClock, GoesOverMidnightIntoTheNextDayMonthAndYear) {
  const Midnight midnights[] = {
      {{.year = 2026, .month = 3, .day = 7, .hour = 23, .minute = 59}, "080326-1"},
      {{.year = 2026, .month = 2, .day = 28, .hour = 23, .minute = 59}, "010326-1"},
      {{.year = 2028, .month = 2, .day = 28, .hour = 23, .minute = 59}, "290228-3"},
      {{.year = 2028, .month = 2, .day = 29, .hour = 23, .minute = 59}, "010328-4"},
      {{.year = 2026, .month = 12, .day = 31, .hour = 23, .minute = 59}, "010127-6"},
      {{.year = 2009, .month = 12, .day = 31, .hour = 23, .minute = 59}, "010110-6"},
  };
  for (const Midnight& midnight : midnights) {
    Conversation line(Master(midnight.before));
    line.RunFor(2 * minute);
    EXPECT_EQ(Ask(line), (Lines{"0001", midnight.date}));
  }
}

TEST(ModuleClock, BothLinesTellTheMomentOfTheQuestion) {
  Conversation line(Master({.hour = 23, .minute = 59}));
  line.RunFor(minute - 400 * millisecond);
  line.Wake();
  line.RunFor(minute - 20 * millisecond - line.now);
  line.Send("T80300\r", 1042);  // ends 13 ms before midnight
  ASSERT_LT(line.now, minute);
  line.RunUntil("\r");
  EXPECT_EQ(line.RunUntil("\r").substr(1), "2359\r");
  EXPECT_EQ(line.RunUntil("\r").substr(1), "020326-2\r");
  ASSERT_GT(line.now, minute);
  EXPECT_EQ(line.module.ClockAt(line.now).day, 3);
}

TEST(ModuleClock, TakesTimeWeekdayAndDateWithoutAWakeUp) {
  Conversation line(9);
  Ask(line);
  line.RunFor(5 * second);
  line.Send("T17453\n\r");
  EXPECT_EQ(line.module.received().back().meaning, "clock set to 17:45, weekday 3");
  line.RunFor(20 * millisecond);
  line.Send("T230724\n\r");
  EXPECT_EQ(line.module.received().back().meaning, "date set to 2024-07-23");
  EXPECT_EQ(line.module.errors(), 0);
  const ClockTime wanted = {
      .year = 2024, .month = 7, .day = 23, .hour = 17, .minute = 45, .weekday = 3};
  EXPECT_EQ(line.module.ClockAt(line.now), wanted);
  EXPECT_EQ(line.RunFor(second).find_first_not_of('M'), std::string::npos);
  EXPECT_EQ(Ask(line), (Lines{"1745", "230724-3"}));
}

TEST(ModuleClock, TakesThemInTheMiddleOfItsPollsAsWell) {
  Conversation line(9);
  Ask(line);
  line.Send("T17453\n\rT230724\n\r", 11 * millisecond);  // polls go out meanwhile
  EXPECT_EQ(line.module.errors(), 0);
  EXPECT_EQ(line.module.ClockAt(line.now).day, 23);
  EXPECT_FALSE(line.module.sent().empty());
}

TEST(ModuleClock, TakesThemBeforeItsStopHasLeft) {
  Conversation line(9);
  line.StartTest("T80300");
  line.RunUntil("\r");
  line.RunUntil("\r");
  line.Send("T17453\n\rT230724\n\r", 100);
  EXPECT_EQ(line.module.errors(), 0);
  EXPECT_EQ(line.module.ClockAt(line.now).hour, 17);
  EXPECT_EQ(line.RunUntil("STOP\r").substr(0, 5), "STOP\r");
  EXPECT_EQ(line.module.completedTests(), 1);
}

TEST(ModuleClock, KeepsAWeekdayThatIsNotTheDates) {
  Conversation line(9);
  Ask(line);
  line.Send("T23597\n\rT020326\n\r");  // a Monday, told as a Saturday
  EXPECT_EQ(line.module.ClockAt(line.now).weekday, 7);
  line.RunFor(minute);
  EXPECT_EQ(Ask(line), (Lines{"0000", "030326-1"}));
}

TEST(ModuleClock, StartsTheMinuteWhenItsTimeIsSet) {
  Conversation line(9);
  Ask(line);
  line.RunFor(45 * second);
  line.Send("T10002\n\r");
  line.RunFor(59 * second);
  EXPECT_EQ(line.module.ClockAt(line.now).minute, 0);
  line.RunFor(2 * second);
  EXPECT_EQ(line.module.ClockAt(line.now).minute, 1);
}

TEST(ModuleClock, RefusesWhatIsNoTimeAndNoDate) {
  const std::pair<const char*, const char*> wrongs[] = {
      {"T24002\n\r", "not a time of a weekday"},
      {"T12602\n\r", "not a time of a weekday"},
      {"T12000\n\r", "not a time of a weekday"},
      {"T12008\n\r", "not a time of a weekday"},
      {"T000126\n\r", "not a date"},
      {"T320126\n\r", "not a date"},
      {"T010026\n\r", "not a date"},
      {"T011326\n\r", "not a date"},
      {"T290226\n\r", "not a date"},
      {"T1200\n\r", "not a command"},
      {"T0101266\n\r", "not a command"},
      {"T12x02\n\r", "not a command"},
  };
  for (const auto& [sent, error] : wrongs) {
    Conversation line(9);
    Ask(line);
    line.Send(sent);
    EXPECT_EQ(line.module.received().back().error, error) << sent;
    EXPECT_EQ(line.module.ClockAt(line.now), ClockTime{}) << sent;
  }
}

TEST(ModuleClock, IsNotSetWithoutBeingAskedSinceTheWakeUp) {
  Conversation line(9);
  line.RunUntil("M");
  line.Send("T17453\n\r");
  EXPECT_EQ(line.module.errors(), 1);
  Ask(line);
  line.Read("T80500");
  line.Send("T17453\n\r");
  EXPECT_EQ(line.module.errors(), 2);
  EXPECT_EQ(line.module.ClockAt(line.now).hour, 8);
}

TEST(ModuleClock, FiftyStopsThatLeaveItAreSwallowed) {
  Conversation line(9);
  Ask(line);
  line.RunFor(300 * millisecond);
  line.Stop();
  EXPECT_EQ(line.module.errors(), 0);
  EXPECT_EQ(line.module.received().back().meaning, "nothing left to end");
  EXPECT_EQ(line.module.completedTests(), 1);
  EXPECT_EQ(line.module.ClockAt(line.now), ClockTime{});
  EXPECT_EQ(Ask(line)[0], "0830");
}

TEST(ModuleClock, RefusesAStartThatIsNoMoment) {
  for (const ClockTime& wrong :
       {ClockTime{.year = 1999}, ClockTime{.year = 2100}, ClockTime{.month = 0},
        ClockTime{.month = 13}, ClockTime{.month = 2, .day = 29}, ClockTime{.day = 0},
        ClockTime{.day = 257}, ClockTime{.hour = 24}, ClockTime{.hour = -1},
        ClockTime{.minute = 60}}) {
    EXPECT_THROW(Module(Master(wrong)), std::invalid_argument);
  }
}

}  // namespace
}  // namespace virtual_module
