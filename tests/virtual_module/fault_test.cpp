#include "virtual_module/fault.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "virtual_module/conversation.h"

namespace virtual_module {
namespace {

std::string GoodAnswer(int kind, std::string_view command) {
  Conversation line(kind);
  return line.Read(command);
}

std::string AnswerWith(int kind, std::string_view command, Fault fault) {
  Conversation line(kind, fault);
  return line.Read(command);
}

TEST(Fault, EveryFaultHasANameOfItsOwnAndADescription) {
  std::set<std::string_view> names;
  for (const FaultRow& row : Faults()) {
    EXPECT_EQ(FaultByName(row.name), row.fault);
    EXPECT_FALSE(row.description.empty());
    names.insert(row.name);
  }
  EXPECT_EQ(names.size(), 15U);
  EXPECT_EQ(FaultByName("silence"), std::nullopt);
}

TEST(Fault, SilentNeverPollsAndNeverAnswers) {
  Conversation line(0, Fault::Silent);
  EXPECT_EQ(line.RunFor(10 * second), "");
  line.Send(std::string(22, 'D'));
  EXPECT_EQ(line.RunFor(10 * second), "");
  EXPECT_EQ(line.module.NextDue(), std::nullopt);
}

TEST(Fault, SilentAfterIdentityHearsTheCommandAndDoesNotAnswer) {
  Conversation line(4, Fault::SilentAfterIdentity);
  EXPECT_EQ(line.Wake(), "DISPL4\r");
  line.Send("T80000\r");
  EXPECT_EQ(line.RunFor(60 * second), "");
  EXPECT_EQ(line.module.received().back().text, "T80000\r");
}

TEST(Fault, SilentAfterCommandNeverSaysAnythingAgain) {
  for (const char* command : {"T80000\r", "T70000\r"}) {
    Conversation line(1, Fault::SilentAfterCommand);
    EXPECT_EQ(line.Wake(), "DISPL1\r");
    line.Send(command);
    EXPECT_EQ(line.RunFor(60 * second), "");
    EXPECT_EQ(line.module.errors(), 0);
  }
}

TEST(Fault, StopsWithinLineBreaksOffInTheMiddleOfTheRead) {
  const std::string good = GoodAnswer(0, "T80000");
  const std::string answer = AnswerWith(0, "T80000", Fault::StopsWithinLine);
  EXPECT_EQ(answer, good.substr(0, 7 + 82 * 9 + 4));
  EXPECT_EQ(LinesOf(answer).back(), "K408");  // of the line with cell 82
}

TEST(Fault, StopsWithinLineEndsNoReadOfAnyKind) {
  for (const int kind : everyKind) {
    const std::string good = GoodAnswer(kind, "T80000");
    const std::string answer = AnswerWith(kind, "T80000", Fault::StopsWithinLine);
    EXPECT_TRUE(good.starts_with(answer));
    EXPECT_NE(answer.back(), '\r');
    EXPECT_LT(answer.size(), good.size());
  }
}

TEST(Fault, NoStopSendsEveryCellAndThenNothing) {
  for (const int kind : everyKind) {
    const std::string good = GoodAnswer(kind, "T80000");
    EXPECT_EQ(AnswerWith(kind, "T80000", Fault::NoStop) + "STOP\r", good);
  }
}

TEST(Fault, ShortStreamSendsHalfOfTheCellsAndStops) {
  const std::string good = GoodAnswer(9, "T82000");
  const std::string answer = AnswerWith(9, "T82000", Fault::ShortStream);
  EXPECT_EQ(answer, good.substr(0, 7 + 500 * 9) + "STOP\r");
  Conversation line(5, Fault::ShortStream);
  EXPECT_EQ(LinesOf(line.Read("T80000")).size(), 1U + 146U + 1U);
  EXPECT_EQ(line.RunUntil("M"), "M");
}

// The lines from the index on, without what varies.
std::vector<std::string> Contents(std::string_view answer, std::size_t skipped) {
  std::vector<std::string> contents;
  for (const std::string& line : LinesOf(answer)) {
    contents.push_back(line.substr(std::min(line.size(), skipped)));
  }
  return contents;
}

TEST(Fault, OutOfOrderShufflesAllCellsButTheLast) {
  const std::pair<int, const char*> reads[] = {{0, "T80000"}, {9, "T81000"}, {2, "T81000"},
                                               {2, "T82000"}, {3, "T83000"}, {8, "T80000"}};
  for (const auto& [kind, command] : reads) {
    SCOPED_TRACE(std::to_string(kind) + command);
    const std::size_t skipped = kind == 2 || kind == 3 ? 1 : 2;
    std::vector<std::string> good = Contents(GoodAnswer(kind, command), skipped);
    std::vector<std::string> answer =
        Contents(AnswerWith(kind, command, Fault::OutOfOrder), skipped);
    ASSERT_EQ(answer.size(), good.size());
    EXPECT_NE(answer, good);
    EXPECT_EQ(answer[answer.size() - 2], good[good.size() - 2]);
    std::sort(answer.begin(), answer.end());
    std::sort(good.begin(), good.end());
    EXPECT_EQ(answer, good);
  }
}

TEST(Fault, OutOfOrderDependsOnTheSeed) {
  const auto answer = [](std::uint32_t seed) {
    Conversation line(Options{
        .kind = 7, .memory = DefaultMemory(7, 1), .fault = Fault::OutOfOrder, .seed = seed});
    return line.Read("T80000");
  };
  EXPECT_EQ(answer(4), answer(4));
  EXPECT_NE(answer(4), answer(5));
}

TEST(Fault, CorruptDigitsSpoilsTheValueOfEveryTenthLine) {
  const std::vector<std::string> good = LinesOf(GoodAnswer(6, "T80000"));
  const std::vector<std::string> answer = LinesOf(AnswerWith(6, "T80000", Fault::CorruptDigits));
  ASSERT_EQ(answer.size(), good.size());
  int spoiled = 0;
  for (std::size_t i = 0; i < good.size(); ++i) {
    std::string wanted = good[i];
    if (i > 0 && i % 10 == 0 && i <= 213) {
      wanted[6] = 'x';
      ++spoiled;
    }
    EXPECT_EQ(answer[i], wanted);
  }
  EXPECT_EQ(spoiled, 21);
}

TEST(Fault, WrongIdentityIsTheOneOfAnotherKind) {
  for (const int kind : everyKind) {
    Conversation line(kind, Fault::WrongIdentity);
    const std::string identity = line.Wake();
    EXPECT_TRUE(identity.starts_with("DISPL"));
    // Nor may it be taken for the kind by its beginning.
    EXPECT_FALSE(identity.starts_with("DISPL" + std::to_string(kind)));
    EXPECT_NE(identity, "DISPLX\r");
  }
}

TEST(Fault, UnknownIdentityIsOfNoKind) {
  Conversation line(3, Fault::UnknownIdentity);
  EXPECT_EQ(line.Wake(), "DISPLX\r");
}

TEST(Fault, IndexBeyondTableStandsInTheLineInTheMiddle) {
  struct Case {
    int kind;
    const char* command;
    std::size_t cells;
    const char* index;
  };
  const Case cases[] = {
      {0, "T80000", 164, "999"},   {5, "T80000", 293, "999"},   {8, "T80000", 509, "999"},
      {9, "T80400", 36, "999"},    {2, "T80000", 4, "1999"},    {2, "T81000", 146, "5999"},
      {2, "T82000", 1008, "3999"}, {2, "T83000", 8, "2999"},    {3, "T80000", 2, "1999"},
      {3, "T81000", 1020, "3030"}, {3, "T83000", 1020, "5030"}, {3, "T85000", 21, "6999"}};
  for (const Case& each : cases) {
    SCOPED_TRACE(std::to_string(each.kind) + each.command);
    const std::vector<std::string> good = LinesOf(GoodAnswer(each.kind, each.command));
    const std::vector<std::string> answer =
        LinesOf(AnswerWith(each.kind, each.command, Fault::IndexBeyondTable));
    ASSERT_EQ(answer.size(), good.size());
    for (std::size_t i = 0; i < good.size(); ++i) {
      std::string wanted = good[i];
      if (i == 1 + each.cells / 2) {
        const std::string index = each.index;
        wanted.replace(5 - index.size(), index.size(), index);
      }
      EXPECT_EQ(answer[i], wanted);
    }
  }
}

TEST(Fault, APlainTableOfAThousandCellsHasNoIndexBeyondIt) {
  EXPECT_EQ(AnswerWith(9, "T81000", Fault::IndexBeyondTable), GoodAnswer(9, "T81000"));
}

TEST(Fault, TooManyLinesPassesTheBarOfEveryTableBeforeTheLastCell) {
  struct Case {
    int kind;
    const char* command;
    std::size_t barMaximum;
  };
  const Case cases[] = {{0, "T80000", 164},  {5, "T80000", 294}, {6, "T80000", 213},
                        {7, "T80000", 185},  {8, "T80000", 509}, {9, "T81000", 1000},
                        {2, "T80000", 4},    {2, "T81000", 146}, {2, "T82000", 1008},
                        {2, "T83000", 8},    {3, "T80000", 4},   {3, "T81000", 1020},
                        {3, "T83000", 1020}, {3, "T85000", 21},  {9, "T80400", 36}};
  for (const Case& each : cases) {
    SCOPED_TRACE(std::to_string(each.kind) + each.command);
    const std::size_t skipped = each.kind == 2 || each.kind == 3 ? 1 : 2;
    const std::vector<std::string> good = Contents(GoodAnswer(each.kind, each.command), skipped);
    const std::vector<std::string> answer =
        Contents(AnswerWith(each.kind, each.command, Fault::TooManyLines), skipped);
    const std::size_t beforeLast = answer.size() - 3;
    EXPECT_GT(beforeLast, each.barMaximum);
    EXPECT_EQ(answer[answer.size() - 2], good[good.size() - 2]);
    EXPECT_EQ(answer[answer.size() - 3], good[1]);
    EXPECT_EQ(answer.size(), good.size() + 8);
  }
}

TEST(Fault, PollDuringIdentityPollsOnceMoreAndThenBehaves) {
  Conversation line(2, Fault::PollDuringIdentity);
  line.RunUntil("M");
  line.Send(std::string(22, 'D'));
  const std::int64_t burstEnd = line.now;
  EXPECT_EQ(line.RunUntil("M"), "M");
  EXPECT_EQ(line.now, burstEnd + 150 * millisecond + 1042);
  EXPECT_EQ(line.Wake(), "DISPL2\r");
}

TEST(Fault, VanishInReadTakesThePortAwayAfterHalfOfTheCells) {
  Conversation line(0, Fault::VanishInRead);
  EXPECT_EQ(line.Wake(), "DISPL0\r");
  EXPECT_FALSE(line.module.vanished());
  line.Send("T80000\r");
  EXPECT_EQ(line.RunFor(5 * second).size(), 7U + 82U * 9U);
  EXPECT_TRUE(line.module.vanished());
  line.Send("DDDD");
  EXPECT_EQ(line.RunFor(5 * second), "");
  EXPECT_EQ(line.module.NextDue(), std::nullopt);
}

TEST(Fault, VanishInWriteTakesThePortAwayWithinTheFrames) {
  struct Case {
    int kind;
    const char* command;
    int frames;  // taken before the port goes
  };
  for (const Case& each : {Case{6, "T70000", 20}, Case{2, "T70000", 1}, Case{3, "T70000", 1},
                           Case{3, "T75000", 10}, Case{9, "T71000", 20}}) {
    Conversation line(each.kind, Fault::VanishInWrite);
    EXPECT_EQ(line.StartWrite(each.command), "M70000\r");
    for (int frame = 0; frame < each.frames; ++frame) {
      EXPECT_FALSE(line.module.vanished());
      line.Send("T" + Digits(frame, 3) + "007\n\r");
    }
    EXPECT_TRUE(line.module.vanished()) << each.kind << each.command;
    EXPECT_EQ(line.RunFor(10 * second), "");
  }
}

TEST(Fault, VanishInWriteComesAtTheLatestWithTheEndOfAList) {
  Conversation line(9, Fault::VanishInWrite);
  line.StartWrite("T72000");
  line.Send("T000042\n\rT001042\n\r");
  EXPECT_TRUE(line.module.vanished());
}

TEST(Fault, FaultsOfAReadLeaveWritesAlone) {
  for (const Fault fault :
       {Fault::StopsWithinLine, Fault::NoStop, Fault::ShortStream, Fault::OutOfOrder,
        Fault::CorruptDigits, Fault::IndexBeyondTable, Fault::TooManyLines, Fault::VanishInRead}) {
    Conversation line(3, fault);
    EXPECT_EQ(line.StartWrite("T70000"), "M70000\r");
    line.Send("T000070\n\r");
    EXPECT_EQ(line.module.completedWrites(), 1);
    EXPECT_EQ(line.RunUntil("M"), "M");
  }
}

}  // namespace
}  // namespace virtual_module
