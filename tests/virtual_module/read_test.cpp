#include <gtest/gtest.h>

#include <set>

#include "virtual_module/conversation.h"

namespace virtual_module {
namespace {

// A run of cells as it must come: `lead` digits in front of the index of three, or none.
struct Run {
  const char* table;
  int first;
  int last;
  int lead;  // what is added to the cell; 0: the kind numbers its lines by the cell alone
};

struct ReadCase {
  int kind;
  const char* command;
  std::vector<Run> runs;
  std::size_t lines;
};

const std::vector<ReadCase>& ReadCases() {
  static const std::vector<ReadCase> cases = {
      {0, "T80000", {{"ButtonImage", 0, 163, 0}}, 164},
      {1, "T80000", {{"ButtonImage", 0, 163, 0}}, 164},
      {4, "T80000", {{"ButtonImage", 0, 163, 0}}, 164},
      {11, "T80000", {{"ButtonImage", 0, 163, 0}}, 164},
      {9, "T80000", {{"ButtonImage", 0, 163, 0}}, 164},
      {9, "T81000", {{"ContextTable", 0, 999, 0}}, 1000},
      {9, "T82000", {{"TimeProgramTable", 0, 999, 0}}, 1000},
      {9, "T83000", {{"LightProgramTable", 0, 999, 0}}, 1000},
      {9, "T80400", {{"ButtonImage", 123, 158, 0}}, 36},
      {5, "T80000", {{"AlarmImage", 0, 292, 0}}, 293},
      {6, "T80000", {{"AudioImage", 0, 212, 0}}, 213},
      {7, "T80000", {{"SimulationImage", 0, 184, 0}}, 185},
      {8, "T80000", {{"IrImage", 0, 508, 0}}, 509},
      {2, "T80000", {{"TempHeader", 0, 3, 1000}}, 4},
      {2, "T81000", {{"TempRoomIds", 0, 63, 2000}, {"TempTail", 0, 81, 5000}}, 146},
      {2, "T82000", {{"TempPeriods", 0, 671, 3000}, {"TempSetpoints", 0, 335, 4000}}, 1008},
      {2, "T83000", {{"TempRoomIds", 64, 71, 2000}}, 8},
      {3, "T80000", {{"LcdHeader", 0, 1, 1000}}, 2},
      {3, "T81000", {{"LcdScreen1", 0, 1019, 2000}}, 1020},
      {3, "T83000", {{"LcdScreen2", 0, 1019, 4000}}, 1020},
      {3, "T85000", {{"LcdWeekdayNames", 0, 20, 6000}}, 21},
  };
  return cases;
}

// What stands behind the characters without meaning: two of them, or one.
std::vector<std::string> ExpectedLines(const ReadCase& read, const Memory& memory) {
  std::vector<std::string> lines;
  for (const Run& run : read.runs) {
    for (int cell = run.first; cell <= run.last; ++cell) {
      const int value = memory.Cells(run.table)[static_cast<std::size_t>(cell)];
      lines.push_back(Digits(run.lead + cell, run.lead == 0 ? 3 : 4) + Digits(value, 3));
    }
  }
  return lines;
}

TEST(Read, EveryCommandOfEveryKindGivesItsCellsBetweenAcknowledgementAndStop) {
  for (const ReadCase& read : ReadCases()) {
    SCOPED_TRACE(std::to_string(read.kind) + " " + read.command);
    Conversation line(read.kind);
    const std::vector<std::string> lines = LinesOf(line.Read(read.command));
    const std::vector<std::string> expected = ExpectedLines(read, line.module.memory());
    ASSERT_EQ(expected.size(), read.lines);
    ASSERT_EQ(lines.size(), read.lines + 2);
    EXPECT_EQ(lines.front(), "M80000");
    EXPECT_EQ(lines.back(), "STOP");
    for (std::size_t i = 0; i < expected.size(); ++i) {
      ASSERT_EQ(lines[i + 1].size(), 8U);
      ASSERT_TRUE(lines[i + 1].ends_with(expected[i])) << lines[i + 1] << " for " << expected[i];
    }
    EXPECT_EQ(line.module.completedReads(), 1);
    EXPECT_EQ(line.module.errors(), 0);
  }
}

TEST(Read, TheCharactersWithoutMeaningVaryAndNeverLookLikeAnotherLine) {
  for (const ReadCase& read : ReadCases()) {
    Conversation line(read.kind);
    const std::vector<std::string> lines = LinesOf(line.Read(read.command));
    const std::size_t width = read.runs.front().lead == 0 ? 2 : 1;
    std::set<std::string> heads;
    for (std::size_t i = 1; i + 1 < lines.size(); ++i) {
      heads.insert(lines[i].substr(0, width));
      for (const char* other : {"M8", "M7", "ST", "DI"}) {
        EXPECT_FALSE(lines[i].starts_with(other)) << lines[i];
      }
    }
    EXPECT_GE(heads.size(), 2U) << read.kind << " " << read.command;
  }
}

TEST(Read, TheSameModuleGivesTheSameAnswerAgain) {
  for (const ReadCase& read : ReadCases()) {
    Conversation line(read.kind);
    const std::string first = line.Read(read.command);
    EXPECT_EQ(line.Read(read.command), first);
  }
}

TEST(Read, OneHundredAndSixtyFourLinesTakeTheirLineTimeAt9600Baud) {
  Conversation line(0);
  line.Wake();
  line.Send("T80000\r");
  const std::int64_t command = line.now;
  EXPECT_EQ(line.RunUntil("\r"), "M80000\r");
  EXPECT_EQ(line.now, command + 7292);  // 7 characters of 1041 2/3 us, rounded up
  const std::vector<FrameRecord>& sent = line.module.sent();
  const std::size_t acknowledgement = sent.size() - 1;
  line.RunUntil("STOP\r");
  EXPECT_EQ(sent[acknowledgement + 164].text.substr(2, 3), "163");
  EXPECT_EQ(sent[acknowledgement + 164].lastByte - sent[acknowledgement].lastByte, 1537500);
  EXPECT_EQ(line.now, command + (7 + 164 * 9 + 5) * 3125 / 3);
}

TEST(Read, LongStreamsDoNotDrift) {
  Conversation line(9);
  line.Wake();
  line.Send("T82000\r");
  const std::int64_t command = line.now;
  line.RunUntil("STOP\r");
  EXPECT_EQ(line.now, command + (7 + 1000 * 9 + 5) * 3125 / 3);  // a whole number: 9387500
}

struct Example {
  int kind;
  const char* command;
  const char* table;
  int cell;
  int value;
  const char* text;  // the line from its second character on
};

TEST(Read, LinesOfTheTemperatureAndDisplayModulesAreTheseLiterally) {
  const Example examples[] = {
      {2, "T80000", "TempHeader", 0, 65, "1000065"},
      {2, "T80000", "TempHeader", 1, 8, "1001008"},
      {2, "T80000", "TempHeader", 3, 21, "1003021"},
      {2, "T81000", "TempRoomIds", 0, 40, "2000040"},
      {2, "T81000", "TempRoomIds", 10, 255, "2010255"},
      {2, "T81000", "TempTail", 64, 66, "5064066"},
      {2, "T81000", "TempTail", 65, 4, "5065004"},
      {2, "T81000", "TempTail", 81, 8, "5081008"},
      {2, "T82000", "TempPeriods", 0, 6, "3000006"},
      {2, "T82000", "TempPeriods", 97, 30, "3097030"},
      {2, "T82000", "TempSetpoints", 48, 21, "4048021"},
      {2, "T82000", "TempSetpoints", 335, 18, "4335018"},
      {2, "T83000", "TempRoomIds", 64, 21, "2064021"},
      {2, "T83000", "TempRoomIds", 71, 99, "2071099"},
      {3, "T80000", "LcdHeader", 0, 67, "1000067"},
      {3, "T80000", "LcdHeader", 1, 21, "1001021"},
      {3, "T81000", "LcdScreen1", 0, 76, "2000076"},
      {3, "T81000", "LcdScreen1", 695, 3, "2695003"},
      {3, "T81000", "LcdScreen1", 999, 32, "2999032"},
      {3, "T81000", "LcdScreen1", 1000, 35, "3000035"},
      {3, "T81000", "LcdScreen1", 1019, 0, "3019000"},
      {3, "T83000", "LcdScreen2", 0, 76, "4000076"},
      {3, "T83000", "LcdScreen2", 700, 7, "4700007"},
      {3, "T83000", "LcdScreen2", 1000, 35, "5000035"},
      {3, "T83000", "LcdScreen2", 1019, 0, "5019000"},
      {3, "T85000", "LcdWeekdayNames", 0, 90, "6000090"},
      {3, "T85000", "LcdWeekdayNames", 3, 77, "6003077"},
      {3, "T85000", "LcdWeekdayNames", 20, 32, "6020032"},
  };
  for (const Example& example : examples) {
    Conversation line(example.kind);
    line.module.memory().Cells(example.table)[static_cast<std::size_t>(example.cell)] =
        example.value;
    const std::string answer = line.Read(example.command);
    EXPECT_NE(answer.find(std::string(example.text) + "\r"), std::string::npos) << example.text;
  }
}

TEST(Read, TheFirstLineOfATemperatureHeaderIsTheseBytes) {
  Conversation line(2);
  line.module.memory().Cells("TempHeader") = {65, 8, 10, 21};
  EXPECT_EQ(line.Read("T80000"), "M80000\rM1000065\rC1001008\rM1002010\rC1003021\rSTOP\r");
}

TEST(Read, TheAlarmModuleNeverSendsItsLastCell) {
  Conversation line(5);
  const std::string answer = line.Read("T80000");
  EXPECT_EQ(answer.substr(answer.size() - 5 - 9 + 2, 3), "292");
}

}  // namespace
}  // namespace virtual_module
