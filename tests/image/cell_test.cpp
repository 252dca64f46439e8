#include "image/cell.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

namespace bkconf {
namespace {

constexpr int HighestInt = std::numeric_limits<int>::max();
constexpr int LowestInt = std::numeric_limits<int>::min();

TEST(CellTest, ANewCellIsEmpty) {
  const Cell cell;
  EXPECT_TRUE(cell.IsEmpty());
  EXPECT_FALSE(cell.IsNumber());
  EXPECT_FALSE(cell.IsText());
}

TEST(CellTest, AnEmptyCellIsNotTheNumberZero) {
  EXPECT_NE(Cell(), Cell(0));
  EXPECT_EQ(Cell().Number(), 0);
  EXPECT_EQ(Cell().Text(), "");
  EXPECT_EQ(Cell(0).Text(), "0");
}

TEST(CellTest, AnEmptyCellIsNotTheEmptyText) {
  EXPECT_NE(Cell(), Cell(""));
  EXPECT_TRUE(Cell("").IsText());
}

TEST(CellTest, ADigitTextIsNotTheNumberItReadsAs) {
  EXPECT_NE(Cell("7"), Cell(7));
  EXPECT_EQ(Cell("7").Number(), Cell(7).Number());
}

TEST(CellTest, AWholeNumberEqualsTheSameNumberWithAFractionOfZero) {
  EXPECT_EQ(Cell(7), Cell(7.0));
  EXPECT_NE(Cell(7), Cell(7.5));
}

TEST(CellTest, HoldsWhateverWasPutInLast) {
  Cell cell = 5;
  EXPECT_TRUE(cell.IsNumber());
  cell = "text";
  EXPECT_TRUE(cell.IsText());
  EXPECT_FALSE(cell.IsNumber());
  cell = 2.5;
  EXPECT_TRUE(cell.IsNumber());
  EXPECT_FALSE(cell.IsText());
  cell = Cell();
  EXPECT_TRUE(cell.IsEmpty());
}

TEST(CellTest, TakesTextInEveryForm) {
  const std::string text = "text";
  EXPECT_EQ(Cell(text), Cell("text"));
  EXPECT_EQ(Cell(std::string_view(text)), Cell("text"));
}

TEST(CellTest, TheMarkOfAnUnusedRecordIsTheCodeOfTheStar) {
  EXPECT_EQ(EmptyCell, '*');
}

struct CellRow {
  const char* name;
  Cell cell;
  double number;
  int whole;
  const char* text;
  const char* printForm;
};

/// In the names and messages of the tests.
void PrintTo(const CellRow& row, std::ostream* out) {
  *out << row.name;
}

class CellFormsTest : public testing::TestWithParam<CellRow> {};

TEST_P(CellFormsTest, NumberIsWhatTheCellCountsAs) {
  EXPECT_EQ(GetParam().cell.Number(), GetParam().number);
}

TEST_P(CellFormsTest, WholeIsTheNumberWithoutItsFraction) {
  EXPECT_EQ(GetParam().cell.Whole(), GetParam().whole);
}

TEST_P(CellFormsTest, TextIsPlain) {
  EXPECT_EQ(GetParam().cell.Text(), GetParam().text);
}

TEST_P(CellFormsTest, PrintFormIsTheLineOfAFile) {
  EXPECT_EQ(GetParam().cell.PrintForm(), GetParam().printForm);
}

INSTANTIATE_TEST_SUITE_P(
    Cells, CellFormsTest,
    testing::ValuesIn(std::vector<CellRow>{
        {"nothing", Cell(), 0, 0, "", ""},
        {"zero", 0, 0, 0, "0", " 0 "},
        {"one", 1, 1, 1, "1", " 1 "},
        {"emptyMark", EmptyCell, 42, 42, "42", " 42 "},
        {"threeDigits", 255, 255, 255, "255", " 255 "},
        {"noModule", 99, 99, 99, "99", " 99 "},
        {"negative", -5, -5, -5, "-5", "-5 "},
        {"negativeZero", -0.0, 0, 0, "0", " 0 "},
        {"fraction", 1.5, 1.5, 1, "1.5", " 1.5 "},
        {"negativeFraction", -1.75, -1.75, -1, "-1.75", "-1.75 "},
        {"fractionOnly", 0.25, 0.25, 0, "0.25", " 0.25 "},
        {"tenth", 0.1, 0.1, 0, "0.1", " 0.1 "},
        {"million", 1'000'000, 1e6, 1'000'000, "1000000", " 1000000 "},
        {"highestInt", HighestInt, 2147483647, HighestInt, "2147483647", " 2147483647 "},
        {"lowestInt", LowestInt, -2147483648.0, LowestInt, "-2147483648", "-2147483648 "},
        {"beyondInt", 3e9, 3e9, HighestInt, "3000000000", " 3000000000 "},
        {"belowInt", -3e9, -3e9, LowestInt, "-3000000000", "-3000000000 "},
        {"noExponent", 1e21, 1e21, HighestInt, "1000000000000000000000",
         " 1000000000000000000000 "},
        {"small", 0.00001, 0.00001, 0, "0.00001", " 0.00001 "},
        {"digitText", "07", 7, 7, "07", "07"},
        {"zeroText", "000", 0, 0, "000", "000"},
        {"blanksAround", " 12 ", 12, 12, " 12 ", " 12 "},
        {"negativeText", "-3", -3, -3, "-3", "-3"},
        {"starText", "*", 0, 0, "*", "*"},
        {"word", "abc", 0, 0, "abc", "abc"},
        {"digitsAndWord", "1x3", 0, 0, "1x3", "1x3"},
        {"emptyText", "", 0, 0, "", ""},
        {"quotes", "\"a\"", 0, 0, "\"a\"", "\"a\""},
        {"comma", "a,b", 0, 0, "a,b", "a,b"},
    }),
    [](const auto& row) { return row.param.name; });

TEST(PlainTextTest, TheHighestNumberHasAllItsDigitsAndNoExponent) {
  const std::string text = PlainText(std::numeric_limits<double>::max());
  EXPECT_EQ(text.size(), 309U);
  EXPECT_EQ(text.find_first_not_of("0123456789"), std::string::npos);
}

TEST(PlainTextTest, TheSmallestNumberHasAllItsZerosAndNoExponent) {
  const std::string text = PlainText(-std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(text.substr(0, 5), "-0.00");
  EXPECT_EQ(text.find_first_not_of("-.0123456789"), std::string::npos);
  EXPECT_GT(text.size(), 323U);
}

struct NumberRow {
  const char* text;
  double number;
};

TEST(ReadsAsNumberTest, ReadsPlainDecimalNumbersWithBlanksAround) {
  constexpr NumberRow rows[] = {
      {"0", 0},       {"12", 12},
      {"-5", -5},     {"+5", 5},
      {"1.5", 1.5},   {"-1.5", -1.5},
      {"007", 7},     {" 12", 12},
      {"12 ", 12},    {"  -12  ", -12},
      {" 1 ", 1},     {"-0", 0},
      {"0.25", 0.25}, {"999999999999", 999999999999.0},
  };
  for (const NumberRow& row : rows) {
    const auto number = ReadsAsNumber(row.text);
    ASSERT_TRUE(number.has_value()) << row.text;
    EXPECT_EQ(*number, row.number) << row.text;
  }
}

TEST(ReadsAsNumberTest, RefusesEverythingElse) {
  for (const char* text : {"",    " ",    "-",    "+",   ".",   "-.",  "*",   "abc", "1e5", "1E5",
                           "1d5", "0x10", "&H10", "1,5", "1 2", "- 5", "--5", "+-5", "-+5", "1.2.3",
                           "inf", "nan",  "12a",  "a12", "1x3", "5-",  "'5",  "\t5"}) {
    EXPECT_EQ(ReadsAsNumber(text), std::nullopt) << "'" << text << "'";
  }
}

TEST(ReadsAsNumberTest, ARunOfDigitsBeyondAllNumbersIsNone) {
  EXPECT_EQ(ReadsAsNumber(std::string(400, '9')), std::nullopt);
  EXPECT_EQ(Cell(std::string(400, '9')).Number(), 0);
}

TEST(ReadsAsNumberTest, ReadsBackWhatPrintFormPrints) {
  for (const double number : {0.0, 7.0, -7.0, 1.5, 0.1, 1e21, -2147483648.0}) {
    EXPECT_EQ(ReadsAsNumber(Cell(number).PrintForm()), number);
  }
}

TEST(CellTest, AWholeNumberIsReadFromNumbersAndDigitsOnly) {
  for (const Cell& cell : {Cell(5), Cell(5.0), Cell("5"), Cell(" 5 "), Cell("+5"), Cell("5.0")}) {
    EXPECT_EQ(cell.WholeNumber(), 5) << cell.Text();
  }
  EXPECT_EQ(Cell(0).WholeNumber(), 0);
  EXPECT_EQ(Cell(-3).WholeNumber(), -3);
  for (const Cell& cell : {Cell(), Cell(""), Cell("*"), Cell("word"), Cell(0.5), Cell("0.5"),
                           Cell("5x"), Cell(1e300), Cell(-1e300)}) {
    EXPECT_EQ(cell.WholeNumber(), std::nullopt) << cell.Text();
  }
}

struct LenientRow {
  const char* text;
  int number;
};

TEST(LenientNumberTest, ReadsTheDigitsUpToTheFirstCharacterThatIsNone) {
  constexpr LenientRow rows[] = {
      {"", 0},
      {"0", 0},
      {"7", 7},
      {"007", 7},
      {"255", 255},
      {"999", 999},
      {"1x3", 1},
      {"12 ", 12},
      {" 12", 0},
      {"-05", 0},
      {"+05", 0},
      {"x12", 0},
      {"1.5", 1},
      {"1,5", 1},
      {"\r12", 0},
      {"12\r", 12},
      {"4294967296", HighestInt},
      {"99999999999999999999", HighestInt},
  };
  for (const LenientRow& row : rows) {
    EXPECT_EQ(LenientNumber(row.text), row.number) << "'" << row.text << "'";
  }
}

}  // namespace
}  // namespace bkconf
