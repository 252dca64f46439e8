// The test of the detectors of an alarm module: short and long lines, contacts, and the update of
// the references.
#include <gtest/gtest.h>

#include <cstdlib>
#include <stdexcept>

#include "virtual_module/conversation.h"

namespace virtual_module {
namespace {

constexpr int inUseCell = 123;
constexpr std::string_view announcement = "T88888\n\r";

Options Alarm(int version, int inUse, std::uint32_t seed = 1) {
  Memory memory = MemoryOfVersion(5, version);
  memory.Cells("AlarmImage")[inUseCell] = inUse;
  return {.kind = 5, .memory = memory, .seed = seed};
}

void Announce(Conversation& line) {
  for (int i = 0; i < 50; ++i) {
    line.Send(announcement);
  }
}

// A long line, cut into its fields.
struct LongLine {
  explicit LongLine(const std::string& text)
      : index(text.substr(1, 2)),
        contact(text.substr(3, 1)),
        measured(text.substr(4, 5)),
        level(text.substr(9, 3)),
        code(text.substr(12, 2)) {
    EXPECT_EQ(text.size(), 14U);
    EXPECT_EQ(text.substr(1).find_first_not_of("0123456789"), std::string::npos) << text;
  }
  std::string index, contact, measured, level, code;
};

// The next line of every detector in use, in the order of the line.
std::vector<LongLine> Round(Conversation& line, int inUse) {
  std::vector<LongLine> lines;
  for (int i = 0; i < inUse; ++i) {
    lines.emplace_back(LinesOf(line.RunUntil("\r")).front());
  }
  return lines;
}

TEST(Detectors, TheVersionChoosesTheCommandAndTheLine) {
  for (const int version : {10, 64}) {
    Conversation line(Alarm(version, 3));
    EXPECT_EQ(line.StartTest("T80300"), "M80000\r");
    EXPECT_EQ(line.RunUntil("\r").size(), 5U);
    EXPECT_EQ(line.StartTest("T80400").find('\r'), std::string::npos);
    EXPECT_EQ(line.module.received().back().error, "a command that this module does not know");
  }
  for (const int version : {65, 99}) {
    Conversation line(Alarm(version, 3));
    EXPECT_EQ(line.StartTest("T80400"), "M80000\r");
    EXPECT_EQ(line.RunUntil("\r").size(), 15U);
    EXPECT_EQ(line.StartTest("T80300").find('\r'), std::string::npos);
    EXPECT_EQ(line.module.received().back().error, "a command that this module does not know");
  }
}

TEST(Detectors, ShortLinesTellIndexAndContactOfEachInUseInTurn) {
  Conversation line(Alarm(64, 3));
  line.StartTest("T80300");
  line.module.SetContact(1, true);
  std::vector<std::string> texts;
  for (const std::string& text : LinesOf(line.RunFor(320 * millisecond))) {
    texts.push_back(text.substr(1));
  }
  EXPECT_EQ(texts, (std::vector<std::string>{"000", "011", "020", "000", "011", "020"}));
}

TEST(Detectors, LinesComeTwentyTimesASecond) {
  Conversation line(Alarm(65, 12));
  line.StartTest("T80400");
  const std::int64_t command = line.module.received().back().lastByte;
  const std::size_t first = line.module.sent().size();
  line.RunFor(2040 * millisecond);
  ASSERT_EQ(line.module.sent().size() - first, 40U);
  for (std::size_t i = 0; i < 40; ++i) {
    const FrameRecord& record = line.module.sent()[first + i];
    EXPECT_EQ(record.text.substr(1, 2), Digits(static_cast<int>(i) % 12, 2));
    EXPECT_EQ(record.lastByte, command + (static_cast<int>(i) + 1) * 50 * millisecond + 15625);
  }
}

TEST(Detectors, AsManyAreInUseAsTheMemorySaysAndTwelveAtMost) {
  for (const auto& [cell, inUse] : {std::pair(1, 1), {2, 2}, {12, 12}, {13, 12}, {255, 12}}) {
    Conversation line(Alarm(70, cell));
    line.StartTest("T80400");
    for (int i = 0; i < 30; ++i) {
      EXPECT_EQ(line.RunUntil("\r").substr(1, 2), Digits(i % inUse, 2)) << cell;
    }
  }
}

TEST(Detectors, WithoutDetectorsATestIsSilentUntilItsStop) {
  for (const auto& [version, command] : {std::pair(64, "T80300"), {65, "T80400"}}) {
    Conversation line(Alarm(version, 0));
    line.StartTest(command);
    EXPECT_EQ(line.RunFor(60 * second), "");
    line.Send(announcement);
    EXPECT_EQ(line.RunFor(60 * second), "");
    line.Stop();
    EXPECT_EQ(line.RunUntil("M"), "M");
  }
}

TEST(Detectors, LongLinesTellLevelsAndCodesAsTheyAreSet) {
  Conversation line(Alarm(80, 12));
  line.StartTest("T80400");
  const std::vector<LongLine> lines = Round(line, 12);
  for (std::size_t i = 0; i < 12; ++i) {
    const Detector& detector = line.module.DetectorsNow()[i];
    EXPECT_EQ(lines[i].level, Digits(detector.level, 3));
    EXPECT_EQ(lines[i].code, Digits(detector.code, 2));
    EXPECT_EQ(lines[i].contact, "0");
  }
}

TEST(Detectors, LevelsAtTheStartLieInTheRangesOfTheirCodesAndDependOnTheSeed) {
  std::array<int, 3> ranges = {};
  std::array<int, 2> sides = {};
  for (std::uint32_t seed = 0; seed < 100; ++seed) {
    const Conversation line(Alarm(80, 12, seed));
    for (const Detector& detector : line.module.DetectorsNow()) {
      const int range = detector.code / 10;
      ASSERT_LE(range, 2);
      ASSERT_LE(detector.code % 10, 1);
      EXPECT_GE(detector.level, range == 0 ? 1 : range == 1 ? 16 : 26);
      EXPECT_LE(detector.level, range == 0 ? 150 : range == 1 ? 50 : 250);
      ++ranges[static_cast<std::size_t>(range)];
      ++sides[static_cast<std::size_t>(detector.code % 10)];
    }
    EXPECT_EQ(Conversation(Alarm(80, 12, seed)).module.DetectorsNow(), line.module.DetectorsNow());
  }
  for (const int count : ranges) {
    EXPECT_GT(count, 100);
  }
  for (const int count : sides) {
    EXPECT_GT(count, 100);
  }
  EXPECT_NE(Conversation(Alarm(80, 12, 1)).module.DetectorsNow(),
            Conversation(Alarm(80, 12, 2)).module.DetectorsNow());
}

TEST(Detectors, WhatIsMeasuredLiesOnTheSideOfTheReferenceThatTheContactTells) {
  for (std::uint32_t seed = 0; seed < 20; ++seed) {
    Conversation line(Alarm(80, 12, seed));
    for (int i = 0; i < 12; i += 2) {
      line.module.SetContact(i, true);
    }
    line.StartTest("T80400");
    for (int i = 0; i < 48; ++i) {
      const LongLine text(LinesOf(line.RunUntil("\r")).front());
      const int tens = std::stoi(text.code) / 10;
      const int reference = std::stoi(text.level) * (tens == 0 ? 1 : 10 * tens);
      const bool alarmBelow = text.code[1] == '0';
      const bool open = text.contact == "1";
      EXPECT_EQ(open, std::stoi(text.index) % 2 == 0);
      EXPECT_EQ(std::stoi(text.measured) < reference, alarmBelow == open) << text.index;
      EXPECT_NE(std::stoi(text.measured), reference);
    }
  }
}

TEST(Detectors, AContactIsToldByTheNextLineOfItsDetector) {
  Conversation line(Alarm(65, 2));
  line.StartTest("T80400");
  EXPECT_EQ(Round(line, 2)[1].contact, "0");
  line.module.SetContact(1, true);
  EXPECT_TRUE(line.module.DetectorsNow()[1].open);
  const std::vector<LongLine> opened = Round(line, 2);
  EXPECT_EQ(opened[0].contact, "0");
  EXPECT_EQ(opened[1].contact, "1");
  line.module.SetContact(1, false);
  EXPECT_EQ(Round(line, 2)[1].contact, "0");
}

TEST(Detectors, ContactsExistInAlarmModulesOnlyAndAreTwelve) {
  for (const int kind : everyKind) {
    Conversation line(kind);
    if (kind == 5) {
      EXPECT_NO_THROW(line.module.SetContact(11, true));
      EXPECT_THROW(line.module.SetContact(12, true), std::out_of_range);
      EXPECT_THROW(line.module.SetContact(-1, true), std::out_of_range);
    } else {
      EXPECT_THROW(line.module.SetContact(0, true), std::out_of_range) << kind;
    }
  }
}

TEST(Detectors, AnAnnouncedUpdateIsStoredAndShownByTheLinesThatFollow) {
  Conversation line(Alarm(65, 3));
  line.StartTest("T80400");
  Round(line, 3);
  Announce(line);
  const std::pair<const char*, const char*> frames[] = {
      {"A0015000\n\r", "detector 1 level 150 code 00"},
      {"A0101611\n\r", "detector 2 level 016 code 11"},
      {"A0225020\n\r", "detector 3 level 250 code 20"}};
  line.module.Run(line.now);
  for (const auto& [frame, meaning] : frames) {
    EXPECT_EQ(line.RunFor(90 * millisecond), "");
    line.Send(frame);
    EXPECT_EQ(line.module.received().back().meaning, meaning);
    EXPECT_EQ(line.module.received().back().command, "T80400");
  }
  EXPECT_EQ(line.module.errors(), 0);
  EXPECT_EQ(line.module.runningTest(), LiveTest::LongDetectors);
  std::string texts;
  for (int i = 0; i < 3; ++i) {
    texts += line.RunUntil("\r").substr(9);
  }
  EXPECT_NE(texts.find("15000\r"), std::string::npos);
  EXPECT_NE(texts.find("01611\r"), std::string::npos);
  EXPECT_NE(texts.find("25020\r"), std::string::npos);
  const std::array<Detector, detectorCount>& now = line.module.DetectorsNow();
  EXPECT_EQ(now[0], (Detector{.open = false, .level = 150, .code = 0}));
  EXPECT_EQ(now[1], (Detector{.open = false, .level = 16, .code = 11}));
  EXPECT_EQ(now[2], (Detector{.open = false, .level = 250, .code = 20}));
}

TEST(Detectors, ReferencesOutliveTheTest) {
  Conversation line(Alarm(65, 1));
  line.StartTest("T80400");
  Announce(line);
  line.Send("A0099921\n\r");
  line.Stop();
  line.StartTest("T80400");
  const LongLine text(LinesOf(line.RunUntil("\r")).front());
  EXPECT_EQ(text.level, "999");
  EXPECT_EQ(text.code, "21");
}

TEST(Detectors, NoLineIsSentBetweenTheAnnouncementAndTheLastReference) {
  Conversation line(Alarm(65, 2));
  line.StartTest("T80400");
  Round(line, 2);
  line.Send(announcement);
  line.module.Run(line.now);
  EXPECT_EQ(line.RunFor(1900 * millisecond), "");
  line.Send("A0010000\n\r");
  EXPECT_EQ(line.RunFor(1900 * millisecond), "");
  line.Send("A0110000\n\r");
  const std::int64_t last = line.now;
  line.RunUntil("\r");
  EXPECT_NEAR(static_cast<double>(line.now - last), 50000 + 15625, 1.0);
}

TEST(Detectors, AnUpdateThatIsNotGoneThroughWithHoldsUpTheTestForTwoSeconds) {
  Conversation line(Alarm(65, 2));
  line.StartTest("T80400");
  const Detector second = line.module.DetectorsNow()[1];
  line.Send(announcement);
  line.Send("A0010000\n\r");
  line.module.Run(line.now);
  EXPECT_EQ(line.RunFor(2000 * millisecond), "");
  EXPECT_FALSE(line.RunFor(100 * millisecond).empty());
  EXPECT_EQ(line.module.DetectorsNow()[0].level, 100);
  line.Send("A0110000\n\r");
  EXPECT_EQ(line.module.received().back().error, "a reference that was not announced");
  EXPECT_EQ(line.module.DetectorsNow()[1], second);
}

TEST(Detectors, ReferencesThatAreNotDueAreNotStored) {
  const std::pair<const char*, const char*> wrongs[] = {
      {"A0210000\n\r", "a detector that is not in use"},
      {"A9910000\n\r", "a detector that is not in use"},
      {"A001000\n\r", "not a command"},
      {"A001000000\n\r", "not a command"},
      {"A0x10000\n\r", "not a command"},
      {"A0010000\r", "not a command"},
      {"B0010000\n\r", "not a command"},
  };
  for (const auto& [frame, error] : wrongs) {
    Conversation line(Alarm(65, 2));
    const auto before = line.module.DetectorsNow();
    line.StartTest("T80400");
    line.Send(announcement);
    line.Send(frame);
    EXPECT_EQ(line.module.received().back().error, error) << frame;
    EXPECT_EQ(line.module.errors(), 1);
    EXPECT_EQ(line.module.DetectorsNow(), before);
  }
}

TEST(Detectors, AModuleWithShortLinesHasNoUpdate) {
  Conversation line(Alarm(64, 2));
  const auto before = line.module.DetectorsNow();
  line.StartTest("T80300");
  line.Send("T88888\n\rA0010000\n\r");
  EXPECT_EQ(line.module.errors(), 2);
  EXPECT_EQ(line.module.DetectorsNow(), before);
  EXPECT_EQ(line.module.runningTest(), LiveTest::ShortDetectors);
}

TEST(Detectors, AStopInAnUpdateEndsBoth) {
  Conversation line(Alarm(65, 2));
  line.StartTest("T80400");
  line.Send("T88888\n\rA0010000\n\r");
  line.Stop();
  EXPECT_EQ(line.RunUntil("M"), "M");
  line.Send("A0110000\n\r");
  EXPECT_EQ(line.module.received().back().error, "a reference that was not announced");
}

}  // namespace
}  // namespace virtual_module
