#include "image/commands.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace bkconf {
namespace {

struct Row {
  std::string_view command;
  std::set<int> kinds;
};

const std::set<int> All = {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 11};

/// Written down apart from the vocabulary.
const Row Rows[] = {
    {"T80000", All},
    {"T81000", {9, 3, 2}},
    {"T82000", {9, 2}},
    {"T83000", {9, 3, 2}},
    {"T85000", {3}},
    {"T80100", {0, 1, 4, 5, 9, 11}},
    {"T80200", {0, 1, 4, 5, 9, 11}},
    {"T80300", {0, 1, 4, 5, 9, 11}},
    {"T80400", {9, 5}},
    {"T80500", {9}},
    {"T88888", {5}},
    {"T99999", All},
    {"T70000", All},
    {"T71000", {9, 3, 2}},
    {"T72000", {9, 2}},
    {"T73000", {9, 3, 2}},
    {"T74000", {2}},
    {"T75000", {3, 2}},
};

TEST(CommandsTest, EachCommandIsKnownByItsKindsAndByNoOthers) {
  for (const Row& row : Rows) {
    const auto found =
        std::find_if(CommandVocabulary.begin(), CommandVocabulary.end(),
                     [&row](const CommandRow& each) { return each.command == row.command; });
    ASSERT_NE(found, CommandVocabulary.end()) << row.command;
    for (int kind = -1; kind <= 100; ++kind) {
      EXPECT_EQ(found->kinds.Contains(kind), row.kinds.contains(kind))
          << row.command << " of kind " << kind;
    }
  }
}

TEST(CommandsTest, TheVocabularyHoldsEachCommandOnceAndNoOthers) {
  EXPECT_EQ(CommandVocabulary.size(), std::size(Rows));
  std::set<std::string_view> commands;
  for (const CommandRow& row : CommandVocabulary) {
    EXPECT_TRUE(commands.insert(row.command).second) << row.command;
  }
}

TEST(CommandsTest, EveryCommandIsSixCharactersLong) {
  for (const CommandRow& row : CommandVocabulary) EXPECT_EQ(row.command.size(), 6U) << row.command;
}

TEST(CommandsTest, EachNameMeansItsCommand) {
  EXPECT_EQ(ReadBase, "T80000");
  EXPECT_EQ(Read1, "T81000");
  EXPECT_EQ(Read2, "T82000");
  EXPECT_EQ(Read3, "T83000");
  EXPECT_EQ(Read5, "T85000");
  EXPECT_EQ(TestLine, "T80100");
  EXPECT_EQ(TestButtons, "T80200");
  EXPECT_EQ(Test3, "T80300");
  EXPECT_EQ(Test4, "T80400");
  EXPECT_EQ(TestLightSensor, "T80500");
  EXPECT_EQ(UpdateDetectors, "T88888");
  EXPECT_EQ(StopTest, "T99999");
  EXPECT_EQ(WriteBase, "T70000");
  EXPECT_EQ(Write1, "T71000");
  EXPECT_EQ(Write2, "T72000");
  EXPECT_EQ(Write3, "T73000");
  EXPECT_EQ(Write4, "T74000");
  EXPECT_EQ(Write5, "T75000");
}

}  // namespace
}  // namespace bkconf
