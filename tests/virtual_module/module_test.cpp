#include "virtual_module/module.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <stdexcept>
#include <utility>

#include "virtual_module/conversation.h"

namespace virtual_module {
namespace {

TEST(Module, PollsEveryFiftyMillisecondsFromTheMomentItIsSwitchedOn) {
  Conversation line(0);
  line.now = 7 * second;
  EXPECT_EQ(line.module.NextDue(), 0);
  EXPECT_EQ(line.module.Run(line.now), "");
  EXPECT_EQ(line.RunUntil("M"), "M");
  EXPECT_EQ(line.now, 7 * second + 1042);
  EXPECT_EQ(line.RunUntil("M"), "M");
  EXPECT_EQ(line.now, 7 * second + 51042);
  EXPECT_EQ(line.RunFor(second).size(), 20U);
}

TEST(Module, AnswersABurstOnceTheLineHasBeenQuietForLong) {
  Conversation line(9);
  line.RunUntil("M");
  line.Send(std::string(22, 'D'));
  const std::int64_t burstEnd = line.now;
  EXPECT_EQ(line.RunUntil("\r"), "DISPL9\r");
  // Seven characters of 1041 2/3 us behind the pause.
  EXPECT_EQ(line.now, burstEnd + 150 * millisecond + 7292);
  ASSERT_EQ(line.module.received().size(), 1U);
  const FrameRecord& burst = line.module.received().front();
  EXPECT_EQ(burst.kind, UnitKind::Burst);
  EXPECT_EQ(burst.count, 22);
  EXPECT_EQ(burst.text, std::string(22, 'D'));
  EXPECT_EQ(burst.lastByte - burst.firstByte, 21 * 1042);
  EXPECT_EQ(burst.error, "");
}

TEST(Module, EveryKindGivesItsOwnIdentity) {
  for (const int kind : everyKind) {
    Conversation line(kind);
    EXPECT_EQ(line.Wake(), "DISPL" + std::to_string(kind) + "\r");
  }
}

TEST(Module, DoesNotPollBetweenTheBurstAndTheEndOfTheConversation) {
  Conversation line(7);
  const std::string answer = line.Read("T80000");
  EXPECT_EQ(answer.substr(0, 7), "M80000\r");
  EXPECT_EQ(LinesOf(answer).size(), 1U + 185U + 1U);
  const std::int64_t end = line.now;
  EXPECT_EQ(line.RunUntil("M"), "M");
  EXPECT_NEAR(static_cast<double>(line.now - end), 51041.7, 1.0);
}

TEST(Module, ABurstInTheMiddleOfAReadStartsOver) {
  Conversation line(0);
  line.Wake();
  line.Send("T80000\r");
  line.RunUntil("\r");
  line.RunFor(100 * millisecond);
  line.Send("DDDD");
  // One more character leaves before the first "D" has arrived.
  EXPECT_EQ(line.RunUntil("\r").substr(1), "DISPL0\r");
  line.Send("T80000\r");
  EXPECT_EQ(LinesOf(line.RunUntil("STOP\r")).size(), 166U);
  EXPECT_EQ(line.module.completedReads(), 1);
}

TEST(Module, ABurstInTheMiddleOfAWriteStartsOver) {
  Conversation line(6);
  line.StartWrite("T70000");
  line.Send("T000007\n\rT0010");
  line.Send("DDDD");
  EXPECT_EQ(line.RunUntil("\r"), "DISPL6\r");
  EXPECT_EQ(line.module.memory().Cells("AudioImage")[0], 7);
  EXPECT_EQ(line.module.completedWrites(), 0);
  EXPECT_EQ(line.module.errors(), 1);
}

TEST(Module, ABurstDuringTheIdentityIsAnsweredAnew) {
  Conversation line(11);
  line.RunUntil("M");
  line.Send("DD");
  EXPECT_EQ(line.RunFor(153 * millisecond), "DI");
  line.Send("D");
  EXPECT_EQ(line.RunUntil("\r"), "SDISPL11\r");
}

TEST(Module, PollsAgainWhenNoCommandFollowsTheIdentity) {
  Conversation line(0);
  line.Wake();
  EXPECT_EQ(line.RunFor(9900 * millisecond), "");
  EXPECT_EQ(line.RunFor(200 * millisecond).substr(0, 1), "M");
}

TEST(Module, IgnoresACommandThatItsKindDoesNotKnowAndPollsAgain) {
  const std::pair<int, const char*> unknown[] = {
      {0, "T81000\r"}, {0, "T71000\r"},  {2, "T85000\r"}, {3, "T82000\r"},
      {3, "T72000\r"}, {9, "T74000\r"},  {5, "T80400\r"}, {8, "T99999\r"},
      {6, "T8000\r"},  {6, "T800000\r"}, {1, "\r"},       {1, "X80000\r"}};
  for (const auto& [kind, command] : unknown) {
    Conversation line(kind);
    const Memory before = line.module.memory();
    line.Wake();
    line.Send(command);
    const std::int64_t sent = line.now;
    EXPECT_EQ(line.RunUntil("M"), "M") << command;
    EXPECT_NEAR(static_cast<double>(line.now - sent), 51041.7, 1.0) << command;
    EXPECT_EQ(line.module.errors(), 1) << command;
    EXPECT_EQ(line.module.memory(), before) << command;
  }
}

TEST(Module, ACommandWithoutABurstIsNotHeard) {
  Conversation line(0);
  line.RunUntil("M");
  line.Send("T80000\r");
  EXPECT_EQ(line.RunFor(30 * millisecond), "");
  EXPECT_EQ(line.module.received().back().error, "a command out of turn");
  EXPECT_EQ(line.Wake(), "DISPL0\r");
}

TEST(Module, ANewCommandBeginsWithItsT) {
  Conversation line(0);
  line.Wake();
  line.Send("xT80T80000\r");
  EXPECT_EQ(line.RunUntil("\r"), "M80000\r");
  EXPECT_EQ(line.module.errors(), 2);
  EXPECT_EQ(line.module.received().back().text, "T80000\r");
  EXPECT_EQ(line.module.received().back().kind, UnitKind::Command);
}

TEST(Module, ManyConversationsFollowOneAnother) {
  Conversation line(3);
  const std::string first = line.Read("T80000");
  EXPECT_EQ(line.StartWrite("T70000"), "M70000\r");
  line.Send("T000082\n\r");
  EXPECT_EQ(line.module.completedWrites(), 1);
  const std::string second = line.Read("T80000");
  EXPECT_EQ(LinesOf(second)[1].substr(1), "1000082");
  EXPECT_EQ(LinesOf(second)[2], LinesOf(first)[2]);
  EXPECT_EQ(line.module.errors(), 0);
}

TEST(Module, RecordsWhatItSentWithPollsAsOneRun) {
  Conversation line(3);
  line.RunFor(220 * millisecond);
  ASSERT_TRUE(line.module.openPolls());
  EXPECT_EQ(line.module.openPolls()->count, 5);
  line.Read("T80000");
  std::vector<std::string> texts;
  for (const FrameRecord& record : line.module.sent()) {
    texts.push_back(record.text);
  }
  ASSERT_EQ(texts.size(), 6U);
  EXPECT_EQ(line.module.sent()[0].count, 6);
  EXPECT_EQ(line.module.sent()[0].firstByte, 1042);
  EXPECT_EQ(line.module.sent()[0].lastByte, 251042);
  EXPECT_EQ(texts[0], "M");
  EXPECT_EQ(texts[1], "DISPL3\r");
  EXPECT_EQ(texts[2], "M80000\r");
  EXPECT_EQ(texts[5], "STOP\r");
}

TEST(Module, RefusesAMemoryOfAnotherKind) {
  EXPECT_THROW(Module({.kind = 1, .memory = Memory(0)}), std::invalid_argument);
  EXPECT_THROW(Module({.kind = 10, .memory = Memory(0)}), std::invalid_argument);
  EXPECT_THROW(Memory(10), std::invalid_argument);
}

TEST(Module, NoCharactersFromTheToolKeepItFromTheNextConversation) {
  constexpr std::string_view likely = "T0123456789D\n\rMx";
  const char* const commands[] = {"T70000\r", "T71000\r", "T80000\r", "T81000\r", "T72000\r"};
  std::mt19937 source(5);
  for (const int kind : everyKind) {
    Conversation line(kind);
    for (int round = 0; round < 60; ++round) {
      line.Wake();
      line.Send(commands[source() % std::size(commands)]);
      for (int i = 0; i < 80; ++i) {
        const bool any = source() % 8 == 0;
        const char character =
            any ? static_cast<char>(source() % 256) : likely[source() % likely.size()];
        line.Send(std::string(1, character), static_cast<std::int64_t>(source() % 3000));
      }
    }
    line.RunFor(15 * second);
    EXPECT_EQ(line.Wake(), "DISPL" + std::to_string(kind) + "\r");
    for (const Memory::Table& table : line.module.memory().tables()) {
      EXPECT_LE(*std::max_element(table.cells.begin(), table.cells.end()), 999);
      EXPECT_GE(*std::min_element(table.cells.begin(), table.cells.end()), 0);
    }
  }
}

TEST(Module, RunningLateChangesNothingOfWhatLeaves) {
  Conversation early(8);
  Conversation late(8);
  const std::string answer = early.Read("T80000");
  late.Wake();
  late.Send("T80000\r");
  std::string lumps;
  for (int i = 0; i < 50; ++i) {
    late.now += 100 * millisecond;
    lumps += late.module.Run(late.now);
  }
  EXPECT_EQ(lumps, answer + lumps.substr(answer.size()));
  EXPECT_EQ(lumps.substr(answer.size()).find_first_not_of('M'), std::string::npos);
  EXPECT_EQ(late.module.sent().back().lastByte, early.module.sent().back().lastByte);
}

}  // namespace
}  // namespace virtual_module
