// Faults while a live test goes on.
#include <gtest/gtest.h>

#include "virtual_module/conversation.h"
#include "virtual_module/fault.h"

namespace virtual_module {
namespace {

struct Case {
  int kind;
  const char* command;
  std::size_t lines;  // between acknowledgement and "STOP"
};

constexpr Case endingCases[] = {
    {0, "T80100", 10}, {5, "T80100", 10}, {9, "T80500", 10}, {9, "T80300", 2}};

std::string GoodAnswer(const Case& each) {
  Conversation line(each.kind);
  return line.Read(each.command);
}

std::string AnswerWith(const Case& each, Fault fault) {
  Conversation line(each.kind, fault);
  return line.Read(each.command);
}

// An alarm module with twelve detectors and long lines.
Conversation Alarm(Fault fault) {
  Memory memory = MemoryOfVersion(5, 65);
  memory.Cells("AlarmImage")[123] = 12;
  return Conversation(Options{.kind = 5, .memory = memory, .fault = fault});
}

TEST(LiveFault, SilentAfterCommandNeverAnswersATest) {
  for (const char* command : {"T80100", "T80200", "T80300"}) {
    Conversation line(0, Fault::SilentAfterCommand);
    EXPECT_EQ(line.StartTest(command), "");
    line.Stop();
    EXPECT_EQ(line.RunFor(60 * second), "");
    EXPECT_EQ(line.module.errors(), 0);
    EXPECT_EQ(line.module.runningTest(), std::nullopt);
    EXPECT_FALSE(line.module.PressButton(1));
  }
}

TEST(LiveFault, SilentAfterIdentityHearsTheCommandOfATest) {
  Conversation line(9, Fault::SilentAfterIdentity);
  EXPECT_EQ(line.StartTest("T80500"), "");
  EXPECT_EQ(line.module.received().back().text, "T80500\r");
  EXPECT_EQ(line.module.errors(), 0);
}

TEST(LiveFault, StopsWithinLineBreaksOffInTheMiddleOfATest) {
  for (const Case& each : endingCases) {
    SCOPED_TRACE(std::to_string(each.kind) + each.command);
    const std::string good = GoodAnswer(each);
    const std::string answer = AnswerWith(each, Fault::StopsWithinLine);
    EXPECT_TRUE(good.starts_with(answer));
    EXPECT_NE(answer.back(), '\r');
    EXPECT_EQ(LinesOf(answer).size(), 1U + each.lines / 2 + 1U);
  }
}

TEST(LiveFault, StopsWithinLineBreaksOffTheSixthLineOfAnEndlessTest) {
  Conversation buttons(0, Fault::StopsWithinLine);
  buttons.StartTest("T80200");
  for (int i = 0; i < 5; ++i) {
    EXPECT_TRUE(buttons.module.PressButton(i));
    EXPECT_EQ(buttons.RunUntil("\r").substr(1), Digits(i, 2) + "\r");
  }
  EXPECT_TRUE(buttons.module.PressButton(15));
  EXPECT_EQ(buttons.RunFor(second).substr(1), "1");
  EXPECT_FALSE(buttons.module.PressButton(15));

  Conversation detectors = Alarm(Fault::StopsWithinLine);
  detectors.StartTest("T80400");
  const std::vector<std::string> lines = LinesOf(detectors.RunFor(60 * second));
  ASSERT_EQ(lines.size(), 6U);
  EXPECT_EQ(lines[4].size(), 14U);
  EXPECT_EQ(lines[5].substr(1, 2), "05");
  EXPECT_EQ(lines[5].size(), 8U);
}

TEST(LiveFault, AModuleThatFellSilentInATestHearsTheStopAndDoesNothingOnIt) {
  Conversation line = Alarm(Fault::StopsWithinLine);
  line.StartTest("T80400");
  line.RunFor(second);
  line.Stop();
  EXPECT_EQ(line.RunFor(60 * second), "");
  EXPECT_EQ(line.module.errors(), 0);
  EXPECT_EQ(line.module.received().back().text, stopFrame);
  EXPECT_EQ(line.module.received().back().meaning, "");
  EXPECT_EQ(line.module.completedTests(), 0);
}

TEST(LiveFault, NoStopSendsEveryLineOfATestAndThenNothing) {
  for (const Case& each : endingCases) {
    EXPECT_EQ(AnswerWith(each, Fault::NoStop) + "STOP\r", GoodAnswer(each));
  }
}

TEST(LiveFault, NoStopLeavesAnEndlessTestAsItIs) {
  Conversation line = Alarm(Fault::NoStop);
  line.StartTest("T80400");
  EXPECT_EQ(LinesOf(line.RunFor(5 * second)).size(), 100U);
  line.Stop();
  EXPECT_TRUE(line.RunFor(second).ends_with(std::string(18, 'M')));
}

TEST(LiveFault, ShortStreamSendsHalfOfTheLinesAndStops) {
  for (const Case& each : endingCases) {
    const std::string good = GoodAnswer(each);
    const std::string answer = AnswerWith(each, Fault::ShortStream);
    EXPECT_EQ(LinesOf(answer).size(), 1U + each.lines / 2 + 1U);
    EXPECT_TRUE(answer.ends_with("\rSTOP\r"));
    EXPECT_TRUE(good.starts_with(answer.substr(0, answer.size() - 5)));
  }
}

TEST(LiveFault, TooManyLinesHasEightMore) {
  for (const Case& each : endingCases) {
    const std::vector<std::string> lines = LinesOf(AnswerWith(each, Fault::TooManyLines));
    EXPECT_EQ(lines.size(), 1U + each.lines + 8U + 1U);
    EXPECT_EQ(lines.back(), "STOP");
    for (std::size_t i = 3; i + 1 < lines.size(); ++i) {
      EXPECT_EQ(lines[i].size(), lines[2].size());
    }
  }
}

TEST(LiveFault, CorruptDigitsSpoilsEveryTenthLine) {
  Conversation line = Alarm(Fault::CorruptDigits);
  line.StartTest("T80400");
  const std::vector<std::string> lines = LinesOf(line.RunFor(2020 * millisecond));
  ASSERT_EQ(lines.size(), 40U);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const bool spoiled = lines[i].find('x') != std::string::npos;
    EXPECT_EQ(spoiled, i % 10 == 9) << lines[i];
    EXPECT_EQ(lines[i].size(), 14U);
  }
  const std::vector<std::string> samples =
      LinesOf(AnswerWith({0, "T80100", 10}, Fault::CorruptDigits));
  EXPECT_EQ(samples[10][3], 'x');
  EXPECT_EQ(samples[9].find('x'), std::string::npos);
}

TEST(LiveFault, IndexBeyondTableIsInEveryTenthLineOfButtonsAndDetectors) {
  Conversation line = Alarm(Fault::IndexBeyondTable);
  line.StartTest("T80400");
  const std::vector<std::string> lines = LinesOf(line.RunFor(2020 * millisecond));
  ASSERT_EQ(lines.size(), 40U);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::string own = Digits(static_cast<int>(i) % 12, 2);
    EXPECT_EQ(lines[i].substr(1, 2), i % 10 == 9 ? "99" : own);
  }
  EXPECT_EQ(AnswerWith({0, "T80100", 10}, Fault::IndexBeyondTable), GoodAnswer({0, "T80100", 10}));
}

TEST(LiveFault, VanishInReadTakesThePortAwayInTheMiddleOfATest) {
  for (const Case& each : endingCases) {
    Conversation line(each.kind, Fault::VanishInRead);
    line.StartTest(each.command);
    EXPECT_EQ(LinesOf(line.RunFor(60 * second)).size(), each.lines / 2);
    EXPECT_TRUE(line.module.vanished());
  }
  Conversation endless = Alarm(Fault::VanishInRead);
  endless.StartTest("T80400");
  EXPECT_EQ(LinesOf(endless.RunFor(60 * second)).size(), 5U);
  EXPECT_TRUE(endless.module.vanished());
}

TEST(LiveFault, OtherFaultsLeaveTestsAlone) {
  for (const Fault fault : {Fault::OutOfOrder, Fault::VanishInWrite}) {
    EXPECT_EQ(AnswerWith({9, "T80500", 10}, fault), GoodAnswer({9, "T80500", 10}));
  }
}

}  // namespace
}  // namespace virtual_module
