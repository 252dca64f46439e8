// The live tests that most kinds share: input line, push-buttons, light, outputs, and their end.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <stdexcept>

#include "virtual_module/conversation.h"
#include "virtual_module/line_log.h"

namespace virtual_module {
namespace {

constexpr int testedKinds[] = {0, 1, 4, 5, 9, 11};
constexpr int kindsWithOutputs[] = {0, 1, 4, 11};

struct Case {
  int kind;
  const char* command;
  LiveTest test;
  int version = 30;
};

std::vector<Case> Cases() {
  std::vector<Case> cases = {
      {5, "T80300", LiveTest::ShortDetectors},
      {5, "T80400", LiveTest::LongDetectors, 65},
      {9, "T80300", LiveTest::Clock},
      {9, "T80500", LiveTest::Light},
  };
  for (const int kind : testedKinds) {
    cases.push_back({kind, "T80100", LiveTest::Line});
    cases.push_back({kind, "T80200", LiveTest::Buttons});
  }
  for (const int kind : kindsWithOutputs) {
    cases.push_back({kind, "T80300", LiveTest::Outputs});
  }
  return cases;
}

Options OptionsOf(const Case& each) {
  return {.kind = each.kind, .memory = MemoryOfVersion(each.kind, each.version)};
}

// Each with the time at which its last character left.
std::vector<FrameRecord> LinesFrom(const Module& module, std::size_t first) {
  const auto begin = module.sent().begin() + static_cast<std::ptrdiff_t>(first);
  return {begin, module.sent().end()};
}

bool AllDigits(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

TEST(LiveTest, EveryCommandIsAcknowledgedAsAReadIs) {
  for (const Case& each : Cases()) {
    SCOPED_TRACE(std::to_string(each.kind) + each.command);
    Conversation line(OptionsOf(each));
    EXPECT_EQ(line.module.runningTest(), std::nullopt);
    line.Wake();
    line.Send(std::string(each.command) + "\r");
    const std::int64_t command = line.now;
    EXPECT_EQ(line.RunUntil("\r"), "M80000\r");
    EXPECT_EQ(line.now, command + 7292);  // 7 characters of 1041 2/3 us, rounded up
    EXPECT_EQ(line.module.runningTest(), each.test);
    EXPECT_FALSE(line.module.polling());
    EXPECT_EQ(line.module.errors(), 0);
  }
}

TEST(LiveTest, NoOtherKindAndNoOtherVersionKnowsTheCommands) {
  std::set<std::pair<int, std::string>> known = {{9, "T80400"}};  // a read
  for (const Case& each : Cases()) {
    if (each.version == 30) {
      known.insert({each.kind, each.command});
    }
  }
  for (const int kind : everyKind) {
    for (const char* command : {"T80100", "T80200", "T80300", "T80400", "T80500"}) {
      if (known.count({kind, command}) == 0) {
        Conversation line(Options{.kind = kind, .memory = MemoryOfVersion(kind, 30)});
        EXPECT_EQ(line.StartTest(command).find_first_not_of('M'), std::string::npos)
            << kind << command;
        EXPECT_EQ(line.module.received().back().error, "a command that this module does not know");
        EXPECT_EQ(line.module.runningTest(), std::nullopt);
      }
    }
  }
}

TEST(LiveTest, TheInputLineIsSampledTenTimesATenthOfASecondApart) {
  for (const int kind : testedKinds) {
    SCOPED_TRACE(kind);
    Conversation line(kind);
    line.StartTest("T80100");
    const std::size_t first = line.module.sent().size();
    const std::int64_t command = line.module.received().back().lastByte;
    const std::vector<std::string> lines = LinesOf(line.RunUntil("STOP\r"));
    ASSERT_EQ(lines.size(), 11U);
    std::set<char> heads;
    for (std::size_t i = 0; i < 10; ++i) {
      heads.insert(lines[i][0]);
      const std::string number = lines[i].substr(1);
      ASSERT_EQ(number.size(), 5U) << lines[i];
      EXPECT_TRUE(AllDigits(number));
      EXPECT_GT(std::stoi(number), 10000);
      EXPECT_LT(std::stoi(number), 10500);
      const FrameRecord record = LinesFrom(line.module, first).at(i);
      EXPECT_EQ(record.text, lines[i] + "\r");
      EXPECT_EQ(record.lastByte, command + (static_cast<int>(i) + 1) * 100 * millisecond + 7292);
    }
    EXPECT_GE(heads.size(), 2U);
    EXPECT_EQ(line.module.completedTests(), 1);
    EXPECT_EQ(line.module.completedReads(), 0);
    EXPECT_EQ(line.module.runningTest(), std::nullopt);
  }
}

TEST(LiveTest, PollsAgainAsAfterAReadWhenATestHasEndedByItself) {
  for (const auto& [kind, command] : {std::pair(0, "T80100"), {9, "T80300"}, {9, "T80500"}}) {
    Conversation line(kind);
    line.Read(command);
    const std::int64_t end = line.now;
    EXPECT_EQ(line.RunUntil("M"), "M");
    EXPECT_NEAR(static_cast<double>(line.now - end), 51041.7, 1.0);
  }
}

TEST(LiveTest, TheLightSensorIsSampledTenTimesWithTwoDigits) {
  Conversation line(9);
  const std::vector<std::string> lines = LinesOf(line.Read("T80500"));
  ASSERT_EQ(lines.size(), 12U);
  EXPECT_EQ(lines.front(), "M80000");
  EXPECT_EQ(lines.back(), "STOP");
  for (std::size_t i = 1; i <= 10; ++i) {
    ASSERT_EQ(lines[i].size(), 3U);
    EXPECT_TRUE(AllDigits(lines[i].substr(1)));
    EXPECT_GE(std::stoi(lines[i].substr(1)), 1);
    EXPECT_LE(std::stoi(lines[i].substr(1)), 50);
  }
}

TEST(LiveTest, SamplesDependOnTheSeedAlone) {
  const auto answer = [](std::uint32_t seed) {
    Conversation line(Options{.kind = 9, .memory = DefaultMemory(9, 1), .seed = seed});
    return line.Read("T80100") + line.Read("T80500");
  };
  EXPECT_EQ(answer(4), answer(4));
  EXPECT_NE(answer(4), answer(5));
}

TEST(LiveTest, SamplesStayInTheirDigitsWithEverySeed) {
  for (std::uint32_t seed = 0; seed < 300; ++seed) {
    Conversation line(Options{.kind = 9, .memory = DefaultMemory(9, 1), .seed = seed});
    for (const char* command : {"T80100", "T80500"}) {
      const std::vector<std::string> lines = LinesOf(line.Read(command));
      ASSERT_EQ(lines.size(), 12U);
      for (std::size_t i = 1; i <= 10; ++i) {
        ASSERT_EQ(lines[i].size(), command == std::string("T80100") ? 6U : 3U) << lines[i];
        ASSERT_TRUE(AllDigits(lines[i].substr(1))) << lines[i];
      }
    }
  }
}

TEST(LiveTest, AButtonIsALineWithItsIndexAsSoonAsItIsPressed) {
  for (const int kind : testedKinds) {
    SCOPED_TRACE(kind);
    Conversation line(kind);
    line.StartTest("T80200");
    EXPECT_EQ(line.RunFor(60 * second), "");
    EXPECT_EQ(line.module.NextDue(), std::nullopt);
    const std::int64_t pressed = line.now;
    EXPECT_TRUE(line.module.PressButton(3, pressed));
    EXPECT_EQ(line.RunUntil("\r").substr(1), "03\r");
    EXPECT_EQ(line.now, pressed + 4167);  // four characters
    EXPECT_TRUE(line.module.PressButton(0));
    EXPECT_TRUE(line.module.PressButton(99));
    EXPECT_TRUE(line.module.PressButton(19));
    const std::vector<std::string> lines = LinesOf(line.RunFor(second));
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0].substr(1), "00");
    EXPECT_EQ(lines[1].substr(1), "99");
    EXPECT_EQ(lines[2].substr(1), "19");
  }
}

TEST(LiveTest, AButtonPressedOutsideItsTestIsNotTold) {
  Conversation line(0);
  EXPECT_FALSE(line.module.PressButton(3));
  line.StartTest("T80100");
  EXPECT_FALSE(line.module.PressButton(3));
  line.RunUntil("STOP\r");
  EXPECT_FALSE(line.module.PressButton(3));
  line.StartTest("T80200");
  line.Stop();
  EXPECT_FALSE(line.module.PressButton(3));
  EXPECT_EQ(line.RunFor(second).find_first_not_of('M'), std::string::npos);
  EXPECT_EQ(line.Wake(), "DISPL0\r");
  EXPECT_FALSE(line.module.PressButton(3));
}

TEST(LiveTest, AButtonThatTheLineHasNoDigitsForIsRefused) {
  Conversation line(0);
  line.StartTest("T80200");
  EXPECT_THROW(line.module.PressButton(-1), std::out_of_range);
  EXPECT_THROW(line.module.PressButton(100), std::out_of_range);
  EXPECT_EQ(line.RunFor(second), "");
}

TEST(LiveTest, ButtonsCanPressThemselvesAtAnInterval) {
  Conversation line(
      Options{.kind = 4, .memory = DefaultMemory(4, 1), .pressEvery = 1500 * millisecond});
  EXPECT_EQ(line.RunFor(10 * second).find_first_not_of('M'), std::string::npos);
  line.StartTest("T80200");
  const std::int64_t command = line.module.received().back().lastByte;
  const std::size_t first = line.module.sent().size();
  EXPECT_EQ(LinesOf(line.RunFor(14 * second)).size(), 9U);
  line.module.PressButton(7);
  EXPECT_EQ(line.RunUntil("\r").substr(1), "07\r");
  const std::vector<FrameRecord> lines = LinesFrom(line.module, first);
  for (std::size_t i = 0; i < 9; ++i) {
    EXPECT_EQ(lines[i].text.size(), 4U);
    EXPECT_LT(std::stoi(lines[i].text.substr(1, 2)), 20);
    EXPECT_EQ(lines[i].lastByte, command + (static_cast<int>(i) + 1) * 1500 * millisecond + 4167);
  }
  line.Stop();
  EXPECT_EQ(line.RunFor(10 * second).find_first_not_of('M'), std::string::npos);
}

TEST(LiveTest, PressesAtANegativeIntervalAreRefused) {
  EXPECT_THROW(Module({.kind = 4, .memory = DefaultMemory(4, 1), .pressEvery = -1}),
               std::invalid_argument);
}

TEST(LiveTest, TheFirstStopEndsEveryTestAndTheOthersAreSwallowed) {
  for (const Case& each : Cases()) {
    SCOPED_TRACE(std::to_string(each.kind) + each.command);
    Conversation line(OptionsOf(each));
    const Memory before = line.module.memory();
    line.StartTest(each.command);
    line.Stop();
    const std::int64_t lastStop = line.now;
    EXPECT_EQ(line.module.runningTest(), std::nullopt);
    EXPECT_EQ(line.module.completedTests(), 1);
    EXPECT_TRUE(line.module.polling());
    EXPECT_EQ(line.module.errors(), 0);
    const std::vector<FrameRecord>& received = line.module.received();
    ASSERT_EQ(received.size(), 2U + 50U);
    for (std::size_t i = 2; i < received.size(); ++i) {
      EXPECT_EQ(received[i].kind, UnitKind::Frame);
      EXPECT_EQ(received[i].text, stopFrame);
      EXPECT_EQ(received[i].command, each.command);
      EXPECT_EQ(received[i].meaning, i == 2 ? "the test ends" : "nothing left to end");
    }
    // Nothing but polls from now on, the first as long after the last stop as after a read.
    line.module.Run(line.now);
    EXPECT_EQ(line.RunUntil("M"), "M");
    EXPECT_NEAR(static_cast<double>(line.now - lastStop), 51041.7, 1.0);
    EXPECT_EQ(line.RunFor(second), std::string(20, 'M'));
    EXPECT_TRUE(line.module.memory() == before);
    EXPECT_EQ(line.Wake(), "DISPL" + std::to_string(each.kind) + "\r");
  }
}

TEST(LiveTest, AStopLetsTheLineThatIsLeavingEndAndDropsTheOthers) {
  Conversation line(1);
  line.StartTest("T80200");
  line.module.PressButton(1);
  line.module.PressButton(2);
  line.module.PressButton(3);
  line.Send(stopFrame, 200);  // the first character of the line has left meanwhile
  EXPECT_EQ(line.RunFor(40 * millisecond).substr(1), "01\r");
  EXPECT_EQ(line.RunUntil("M"), "M");
  EXPECT_EQ(line.module.errors(), 0);
}

TEST(LiveTest, AStopWithoutATestIsSwallowedByKindsThatHaveTests) {
  for (const int kind : everyKind) {
    const bool tested = std::count(std::begin(testedKinds), std::end(testedKinds), kind) > 0;
    Conversation line(kind);
    line.RunUntil("M");
    line.Stop();
    EXPECT_EQ(line.module.received().size(), 50U) << kind;
    EXPECT_EQ(line.module.errors(), tested ? 0 : 50) << kind;
    EXPECT_EQ(line.module.completedTests(), 0);
    EXPECT_TRUE(line.Wake().ends_with("DISPL" + std::to_string(kind) + "\r"));
  }
}

TEST(LiveTest, AStopWithoutItsLineFeedIsNone) {
  Conversation line(0);
  line.StartTest("T80200");
  line.Send("T99999\r");
  EXPECT_EQ(line.module.runningTest(), LiveTest::Buttons);
  EXPECT_EQ(line.module.errors(), 1);
  line.Send("T99999\r\n");
  EXPECT_EQ(line.module.runningTest(), LiveTest::Buttons);
}

TEST(LiveTest, AStopThatArrivesInPiecesAndAfterNoiseIsUnderstood) {
  Conversation line(11);
  line.StartTest("T80200");
  line.Send("xyzT999");
  line.RunFor(5 * second);
  line.Send("99\n\r");
  EXPECT_EQ(line.module.runningTest(), std::nullopt);
  EXPECT_EQ(line.module.errors(), 1);  // the noise
}

TEST(LiveTest, ABurstInATestStartsOver) {
  for (const Case& each : Cases()) {
    SCOPED_TRACE(std::to_string(each.kind) + each.command);
    Conversation line(OptionsOf(each));
    line.StartTest(each.command);
    line.RunFor(70 * millisecond);
    line.Send(std::string(22, 'D'));
    EXPECT_EQ(line.module.runningTest(), std::nullopt);
    EXPECT_TRUE(line.RunUntil("\r").ends_with("DISPL" + std::to_string(each.kind) + "\r"));
    EXPECT_EQ(line.RunFor(1900 * millisecond), "");
    EXPECT_EQ(line.module.completedTests(), 0);
    EXPECT_EQ(line.StartTest(each.command), "M80000\r");
    EXPECT_EQ(line.module.runningTest(), each.test);
  }
}

TEST(LiveTest, TestsAndReadsFollowOneAnother) {
  Conversation line(0);
  EXPECT_EQ(LinesOf(line.Read("T80100")).size(), 12U);
  line.StartTest("T80200");
  line.Stop();
  EXPECT_EQ(LinesOf(line.Read("T80000")).size(), 166U);
  line.StartTest("T80300");
  line.Send("T05\n\r");
  line.Stop();
  EXPECT_EQ(LinesOf(line.Read("T80100")).size(), 12U);
  EXPECT_EQ(line.module.completedTests(), 4);
  EXPECT_EQ(line.module.completedReads(), 1);
  EXPECT_EQ(line.module.errors(), 0);
}

TEST(LiveTest, AnOutputIsSwitchedOverByEachOfItsFrames) {
  for (const int kind : kindsWithOutputs) {
    SCOPED_TRACE(kind);
    Conversation line(kind);
    std::array<bool, outputCount> wanted = {};
    EXPECT_EQ(line.module.Outputs(), wanted);
    line.StartTest("T80300");
    for (int output = 0; output < 12; ++output) {
      line.Send("T" + Digits(output, 2) + "\n\r");
      wanted[static_cast<std::size_t>(output)] = true;
      EXPECT_EQ(line.module.Outputs(), wanted);
      EXPECT_EQ(line.module.received().back().meaning,
                "output " + std::to_string(output + 1) + " on");
    }
    line.Send("T00\n\rT11\n\rT00\n\rT00\n\r");
    wanted[0] = wanted[11] = false;
    EXPECT_EQ(line.module.Outputs(), wanted);
    EXPECT_EQ(line.module.received().back().meaning, "output 1 off");
    EXPECT_EQ(line.module.errors(), 0);
    EXPECT_EQ(line.RunFor(60 * second), "");
  }
}

TEST(LiveTest, OutputsAreRememberedFromOneTestToTheNext) {
  Conversation line(4);
  line.StartTest("T80300");
  line.Send("T02\n\r");
  line.Stop();
  line.Read("T80000");
  line.StartTest("T80300");
  EXPECT_TRUE(line.module.Outputs()[2]);
  line.Send("T02\n\r");
  EXPECT_FALSE(line.module.Outputs()[2]);
}

TEST(LiveTest, TwentySlowStopsOfTheirOwnEndTheTestOfOutputs) {
  Conversation line(1);
  line.StartTest("T80300");
  for (int i = 0; i < 20; ++i) {
    line.Send("T99\n\r", 9 * millisecond);
  }
  EXPECT_EQ(line.module.runningTest(), std::nullopt);
  EXPECT_EQ(line.module.completedTests(), 1);
  EXPECT_EQ(line.module.errors(), 0);
  EXPECT_EQ(line.module.received().size(), 2U + 20U);
  EXPECT_EQ(line.RunUntil("M"), "M");
  EXPECT_EQ(line.Wake(), "DISPL1\r");
}

struct WrongFrame {
  int kind;
  const char* command;
  const char* sent;
  const char* error;
};

TEST(LiveTest, FramesThatAreNotDueAreRecordedAndTheTestGoesOn) {
  const WrongFrame wrongs[] = {
      {0, "T80300", "T12\n\r", "an output that the module does not have"},
      {0, "T80300", "T98\n\r", "an output that the module does not have"},
      {0, "T80300", "T1\n\r", "not a command"},
      {0, "T80300", "T001\n\r", "not a command"},
      {0, "T80300", "T0x\n\r", "not a command"},
      {0, "T80300", "\n\r", "not a command"},
      {0, "T80300", "T00\r", "not a command"},
      {0, "T80300", "T80200\r", "a command out of turn"},
      {0, "T80200", "T00\n\r", "an output outside the test of outputs"},
      {0, "T80200", "T99\n\r", "the end of a test of outputs that is not going on"},
      {0, "T80200", "T88888\n\r", "not a command"},
      {5, "T80200", "T00\n\r", "not a command"},
      {5, "T80200", "T99\n\r", "not a command"},
      {5, "T80200", "T88888\n\r", "an update outside the test of detectors"},
      {5, "T80200", "A0110000\n\r", "a reference that was not announced"},
      {9, "T80200", "T12302\n\r", "a clock that was not asked before"},
      {9, "T80200", "T010126\n\r", "a clock that was not asked before"},
  };
  for (const WrongFrame& wrong : wrongs) {
    SCOPED_TRACE(std::string(wrong.command) + wrong.sent);
    Conversation line(wrong.kind);
    const ClockTime clock = line.module.ClockAt(line.now);
    line.StartTest(wrong.command);
    const std::optional<LiveTest> running = line.module.runningTest();
    line.Send(wrong.sent);
    EXPECT_EQ(line.module.errors(), 1);
    EXPECT_EQ(line.module.received().back().error, wrong.error);
    EXPECT_EQ(line.module.received().back().meaning, "");
    EXPECT_EQ(line.module.runningTest(), running);
    EXPECT_EQ((line.module.Outputs() == std::array<bool, outputCount>{}), true);
    EXPECT_EQ(line.module.ClockAt(line.now), clock);
    line.Send(stopFrame);
    EXPECT_EQ(line.module.runningTest(), std::nullopt);
  }
}

TEST(LiveTest, AnOutputAfterTheEndOfItsTestIsNotSwitched) {
  Conversation line(0);
  line.StartTest("T80300");
  line.Send("T99\n\rT03\n\r");
  EXPECT_EQ(line.module.errors(), 1);
  EXPECT_FALSE(line.module.Outputs()[3]);
}

TEST(LiveTest, TheLogTellsWhatTheToolsFramesDid) {
  const std::filesystem::path path =
      std::filesystem::temp_directory_path() / "bkconf-live-log-test.txt";
  Conversation line(0);
  LineLog log(path);
  line.StartTest("T80300");
  line.Send("T02\n\rT02\n\rT99\n\rT99\n\r");
  log.Write(line.module);
  std::ifstream file(path);
  std::vector<std::string> lines;
  for (std::string text; std::getline(file, text);) {
    lines.push_back(text.substr(text.find(" tool") == std::string::npos ? 0 : text.find(" tool")));
  }
  std::filesystem::remove(path);
  ASSERT_EQ(lines.size(), 9U);
  EXPECT_EQ(lines[3], " tool T80300\\r");
  EXPECT_EQ(lines[5], " tool T02\\n\\r = output 3 on");
  EXPECT_EQ(lines[6], " tool T02\\n\\r = output 3 off");
  EXPECT_EQ(lines[7], " tool T99\\n\\r = the test ends");
  EXPECT_EQ(lines[8], " tool T99\\n\\r = nothing left to end");
}

TEST(LiveTest, NoCharactersFromTheToolKeepAModuleFromTheNextConversation) {
  constexpr std::string_view likely = "TTA0123456789D\n\r\n\r98";
  std::mt19937 source(6);
  for (const Case& each : Cases()) {
    Conversation line(OptionsOf(each));
    const Memory before = line.module.memory();
    for (int round = 0; round < 40; ++round) {
      line.Wake();
      line.Send(std::string(each.command) + "\r");
      for (int i = 0; i < 120; ++i) {
        const bool any = source() % 10 == 0;
        const char character =
            any ? static_cast<char>(source() % 256) : likely[source() % likely.size()];
        line.Send(std::string(1, character), static_cast<std::int64_t>(source() % 3000));
      }
      line.Send("\r");
      line.RunFor(12 * second);  // a command among them may have begun a write
      line.Send(stopFrame);
      line.RunFor(3 * second);
      ASSERT_TRUE(line.module.polling()) << each.kind << each.command;
    }
    EXPECT_EQ(line.Wake(), "DISPL" + std::to_string(each.kind) + "\r");
    EXPECT_TRUE(line.module.memory() == before);
  }
}

}  // namespace
}  // namespace virtual_module
