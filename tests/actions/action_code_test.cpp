#include "actions/action_code.h"

#include <gtest/gtest.h>

#include <climits>

#include "support/snapshot.h"

namespace bkconf {
namespace {

struct Row {
  ActionCells cells;
  std::string code;
};

std::string CodeOf(const ActionCells& cells, ValueForm form = ValueForm::OneBasedInBlocks) {
  return ActionCode(cells[0], cells[1], cells[2], form);
}

void ExpectCodes(const std::vector<Row>& rows) {
  for (const Row& row : rows) EXPECT_EQ(CodeOf(row.cells), row.code);
}

TEST(ActionCodeTest, ModulesAndContextsAreToldFromCorvelaCodes) {
  for (int code = 'A'; code <= 'S'; ++code) {
    EXPECT_TRUE(HoldsAction(code) && HoldsModuleOrContextAction(code)) << code;
  }
  EXPECT_TRUE(HoldsAction('Z'));
  EXPECT_FALSE(HoldsModuleOrContextAction('Z'));
  for (const Cell& none : std::vector<Cell>{42, 'A' - 1, 'T', 'Y', 'Z' + 1, Cell(), "*"}) {
    EXPECT_FALSE(HoldsAction(none) || HoldsModuleOrContextAction(none)) << none.Text();
  }
}

TEST(ActionCodeTest, IsTheLetterTheNumberFromOneAndTheValue) {
  ExpectCodes({
      {{65, 0, 0}, "A0100"},
      {{65, 0, 1}, "A0101"},
      {{82, 11, 2}, "R1202"},
      {{67, 2, 21}, "C0321"},
      {{68, 3, 90}, "D0490"},
      {{69, 8, 0}, "E0900"},
      {{69, 8, 99}, "E0999"},
  });
}

TEST(ActionCodeTest, ShowsTheValueOfAContextAsItIsStoredWhateverItsNumber) {
  ExpectCodes({
      {{83, 6, 2}, "S0702"},
      {{83, 6, "02"}, "S0702"},
      {{83, 15, 2}, "S1602"},
      {{83, 19, 2}, "S2002"},
      {{83, 49, "02"}, "S5002"},
      {{83, 11, 77}, "S1277"},
  });
}

TEST(ActionCodeTest, CountsBothNumbersOfACorvelaCodeFromOne) {
  ExpectCodes({
      {{90, 4, 11}, "Z0512"},
      {{90, 0, 0}, "Z0101"},
      {{90, 98, 98}, "Z9999"},
      {{90, 15, 0}, "Z1601"},
      {{90, 16, 0}, "Z1701"},
  });
}

TEST(ActionCodeTest, CountsValuesFromOneInTheAudioBlocksOnly) {
  ExpectCodes({
      {{65, 15, 5}, "A1605"},
      {{65, 16, 5}, "A1706"},
      {{65, 33, 18}, "A3419"},
      {{65, 32, 0}, "A3301"},
      {{65, 48, 15}, "A4916"},
      {{65, 79, 15}, "A8016"},
      {{65, 95, 31}, "A9632"},
  });
}

TEST(ActionCodeTest, ReadsTextsByTheirNumber) {
  ExpectCodes({
      {{"65", "8", "99"}, "A0999"},
      {{66, "00", "00"}, "B0100"},
      {{66, "00", "01"}, "B0101"},
      {{" 67 ", " 2 ", " 21 "}, "C0321"},
      {{"90", "4", "11"}, "Z0512"},
      {{65, "16", "5"}, "A1706"},
  });
}

TEST(ActionCodeTest, CountsACellWithNothingAsZero) {
  ExpectCodes({{{65, Cell(), Cell()}, "A0100"}, {{90, Cell(), Cell()}, "Z0101"}});
}

TEST(ActionCodeTest, KeepsTheLastTwoDigitsOfLargerNumbers) {
  ExpectCodes({
      {{65, 98, 0}, "A9901"},
      {{65, 99, 0}, "A0001"},
      {{65, 100, 0}, "A0101"},
      {{65, 255, 255}, "A5656"},
      {{65, 0, 100}, "A0100"},
      {{65, 0, 255}, "A0155"},
      {{65, 16, 99}, "A1700"},
      {{65, -1, 0}, "A0000"},
  });
}

TEST(ActionCodeTest, AWordRanksAboveTheAudioBlocks) {
  EXPECT_EQ(CodeOf({65, "*", 5}), "A0106");
}

TEST(ActionCodeTest, AsStoredNeverCountsTheValueFromOne) {
  EXPECT_EQ(CodeOf({65, 16, 5}, ValueForm::AsStored), "A1705");
  EXPECT_EQ(CodeOf({65, 95, 31}, ValueForm::AsStored), "A9631");
  EXPECT_EQ(CodeOf({90, 4, 11}, ValueForm::AsStored), "Z0511");
  EXPECT_EQ(CodeOf({65, 0, 2}, ValueForm::AsStored), "A0102");
  EXPECT_EQ(CodeOf({83, 19, 2}, ValueForm::AsStored), "S2002");
}

TEST(ActionCodeTest, AskedForTwoDigitsGivesTheLastOnes) {
  EXPECT_EQ(LastTwo(107), "07");
  EXPECT_EQ(LastTwo(200), "00");
  EXPECT_EQ(LastTwo(42), "42");
  EXPECT_EQ(LastTwo(7), "7");
}

bool IsTarget(int code) {
  return (code >= 65 && code <= 83) || code == 90;
}

TEST(HoldsActionTest, TheLettersAToSAndZHoldOne) {
  for (int code = -256; code <= 512; ++code) {
    EXPECT_EQ(HoldsAction(code), IsTarget(code)) << code;
    EXPECT_EQ(HoldsAction(std::to_string(code)), IsTarget(code)) << code;
  }
}

TEST(HoldsActionTest, WordsNothingAndWhatLiesBetweenHoldNone) {
  for (const Cell& cell : {Cell(), Cell("*"), Cell("A"), Cell(""), Cell(64.5), Cell(83.5),
                           Cell(89.5), Cell(90.5), Cell(INT_MAX), Cell(INT_MIN), Cell(1e300)}) {
    EXPECT_FALSE(HoldsAction(cell)) << cell.Text();
  }
}

class NormalisedActionCodeTest : public testing::Test {
 protected:
  void Put(const ActionCells& cells) {
    for (int i = 0; i < table.Size(); ++i) table[i] = 7;
    for (int i = 0; i < 3; ++i) table[3 + i] = cells[static_cast<std::size_t>(i)];
  }
  void ExpectCells(const ActionCells& cells) const {
    for (int i = 0; i < 3; ++i) EXPECT_EQ(table[3 + i], cells[static_cast<std::size_t>(i)]);
    for (const int other : {0, 1, 2, 6, 7, 8}) EXPECT_EQ(table[other], Cell(7)) << other;
  }

  Table table{"Some", 9};
};

TEST_F(NormalisedActionCodeTest, AnActionShowsItsCodeAndKeepsItsCells) {
  Put({"65", "8", "99"});
  EXPECT_EQ(NormalisedActionCode(table, 3), "A0999");
  ExpectCells({"65", "8", "99"});
}

TEST_F(NormalisedActionCodeTest, EveryEmptyRecordShowsStarsAndBecomes42) {
  for (const Cell& target : {Cell(), Cell("*"), Cell("word"), Cell(-1), Cell(64.9), Cell("42")}) {
    Put({target, 5, "*"});
    EXPECT_EQ(NormalisedActionCode(table, 3), "***");
    ExpectCells({42, 42, 42});
  }
  for (int code = 0; code <= 255; ++code) {
    if (IsTarget(code)) continue;
    Put({code, Cell(), 1});
    EXPECT_EQ(NormalisedActionCode(table, 3), "***") << code;
    ExpectCells({42, 42, 42});
  }
}

TEST_F(NormalisedActionCodeTest, ALetterBeyondRThatIsNeitherSNorZIsEmpty) {
  for (char letter = 'T'; letter < 'Z'; ++letter) {
    Put({int{letter}, 0, 1});
    EXPECT_EQ(NormalisedActionCode(table, 3), "***") << letter;
    ExpectCells({42, 42, 42});
  }
}

TEST_F(NormalisedActionCodeTest, ErasingPuts42IntoTheThreeCells) {
  Put({65, 1, "02"});
  EraseAction(table, 3);
  ExpectCells({42, 42, 42});
}

}  // namespace
}  // namespace bkconf
