// What the reader makes of lines that no tool wrote.
#include <gtest/gtest.h>

#include <ostream>

#include "image/configuration_file.h"
#include "image/file_lines.h"
#include "platform/runtime_error.h"
#include "support/session_test.h"
#include "support/snapshot.h"

namespace bkconf {
namespace {

using Cells = std::vector<Cell>;

constexpr std::size_t Huge = 100'000'000;

class ConfigurationReaderTest : public SessionTest {
 protected:
  /// The first `count` cells of a relay file with these bytes behind its type line; a whole file's
  /// lines follow.
  static Cells FirstCells(const std::string& bytes, int count) {
    ReadConfiguration(" 0 \r\n" + bytes + FileOfLines("9", 164));
    Cells cells;
    for (int index = 0; index < count; ++index) cells.push_back(ButtonImage[index]);
    return cells;
  }

  static void ExpectTooShort(const std::string& file) {
    const Snapshot before = TakeSnapshot();
    try {
      ReadConfiguration(file);
      FAIL() << "the file is taken";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.kind, ErrorKind::FileTooShort);
    }
    ExpectOnlyChanged(before, {});
  }
};

struct LineRow {
  const char* name;
  std::string line;
  Cell cell;
};

/// In the names and messages of the tests.
void PrintTo(const LineRow& row, std::ostream* out) {
  *out << row.name;
}

class LineTest : public ConfigurationReaderTest, public testing::WithParamInterface<LineRow> {};

TEST_P(LineTest, BecomesItsCellAndTheNextLineTheNext) {
  for (const char* end : {"\r\n", "\n"}) {
    EXPECT_EQ(FirstCells(GetParam().line + end + "next" + end, 2),
              (Cells{GetParam().cell, "next"}));
  }
}

INSTANTIATE_TEST_SUITE_P(Lines, LineTest,
                         testing::ValuesIn(std::vector<LineRow>{
                             {"number", " 12 ", 12},
                             {"bareNumber", "12", 12},
                             {"blanksAround", "     12      ", 12},
                             {"zero", " 0 ", 0},
                             {"leadingZero", "07", 7},
                             {"leadingZeros", " 000 ", 0},
                             {"negative", "-5 ", -5},
                             {"plus", "+5", 5},
                             {"fraction", " 1.5 ", 1.5},
                             {"negativeFraction", "-0.25 ", -0.25},
                             {"fractionOnly", ".5", 0.5},
                             {"pointBehind", "5.", 5},
                             {"manyDigits", " 100000000000000000000000 ", 1e23},
                             {"nothing", "", Cell()},
                             {"blanksOnly", "   ", Cell()},
                             {"text", "Salon", "Salon"},
                             {"textWithBlanksInFront", "   Salon", "Salon"},
                             {"textWithBlanksBehind", "Salon   ", "Salon   "},
                             {"twoWords", "Hal beneden", "Hal beneden"},
                             {"star", "*", "*"},
                             {"sign", "-", "-"},
                             {"point", ".", "."},
                             {"twoSigns", "--5", "--5"},
                             {"twoPoints", "1.2.3", "1.2.3"},
                             {"exponent", "1e3", "1e3"},
                             {"bigExponent", "1E3", "1E3"},
                             {"hexadecimal", "0x10", "0x10"},
                             {"otherHexadecimal", "&H10", "&H10"},
                             {"twoNumbers", " 1 000 ", "1 000 "},
                             {"infinity", "inf", "inf"},
                             {"noNumber", "nan", "nan"},
                             {"quotes", "\"Salon\"", "\"Salon\""},
                             {"quotedNumber", "\"12\"", "\"12\""},
                             {"oneQuote", "\"", "\""},
                             {"hash", "#TRUE#", "#TRUE#"},
                             {"accents", "\xE9\xB0\xEB", "\u00e9\u00b0\u00eb"},
                             {"euro", "\x80", "\u20ac"},
                             {"byte26", "\x1A", "\x1A"},
                             {"byte26InText", "a\x1A", "a\x1A"},
                             {"zeroByte", std::string("a\0b", 3), std::string("a\0b", 3)},
                         }),
                         [](const auto& test) { return test.param.name; });

TEST_F(ConfigurationReaderTest, ACommaPartsValuesLikeALineEnd) {
  EXPECT_EQ(FirstCells(" 1 , 2 \r\n 3 \r\n", 3), (Cells{1, 2, 3}));
  EXPECT_EQ(FirstCells("A,B\r\nC\r\n", 3), (Cells{"A", "B", "C"}));
}

TEST_F(ConfigurationReaderTest, BehindAClosingCommaStandsAnEmptyValue) {
  EXPECT_EQ(FirstCells("A,\r\nB\r\n", 3), (Cells{"A", Cell(), "B"}));
  EXPECT_EQ(FirstCells("A,\nB\n", 3), (Cells{"A", Cell(), "B"}));
}

TEST_F(ConfigurationReaderTest, BehindACommaAtTheEndOfTheFileStandsAnEmptyValueToo) {
  EXPECT_EQ(ReadConfiguration(FileOfLines(" 0 ", 162) + "A,"), Cell(0));
  EXPECT_EQ(ButtonImage[162], Cell("A"));
  EXPECT_EQ(ButtonImage[163], Cell());
  ExpectTooShort(FileOfLines(" 0 ", 161) + "A,");
}

TEST_F(ConfigurationReaderTest, CommasAloneAreEmptyValues) {
  EXPECT_EQ(FirstCells(",,\r\nB\r\n", 4), (Cells{Cell(), Cell(), Cell(), "B"}));
  EXPECT_EQ(FirstCells(",A\r\nB\r\n", 3), (Cells{Cell(), "A", "B"}));
}

TEST_F(ConfigurationReaderTest, BlanksBehindACommaAreSkippedAndThoseBehindATextKept) {
  EXPECT_EQ(FirstCells("A, B\r\nC\r\n", 3), (Cells{"A", "B", "C"}));
  EXPECT_EQ(FirstCells("A ,  B \r\nC\r\n", 3), (Cells{"A ", "B ", "C"}));
}

TEST_F(ConfigurationReaderTest, ACommaInQuotesPartsValuesToo) {
  EXPECT_EQ(FirstCells("\"A,B\"\r\nC\r\n", 3), (Cells{"\"A", "B\"", "C"}));
}

TEST_F(ConfigurationReaderTest, ACommaInATextOfADisplayMovesAllLaterCells) {
  std::vector<std::string> lines = LinesOf(FileOf(3));
  lines[1 + 2 + 10] = "Licht, zacht";
  std::string file;
  for (const std::string& each : lines) file += each + "\r\n";
  EXPECT_EQ(ReadConfiguration(file), Cell(3));
  const std::vector<Cell*> cells = CellsInFile(3);
  EXPECT_EQ(*cells[11], Cell(ValueInLine(11)));
  EXPECT_EQ(LcdScreen1[10], Cell("Licht"));
  EXPECT_EQ(LcdScreen1[11], Cell("zacht"));
  for (std::size_t i = 14; i < cells.size(); ++i) {
    ASSERT_EQ(*cells[i], Cell(ValueInLine(static_cast<int>(i) - 1))) << i;
  }
}

TEST_F(ConfigurationReaderTest, ATextWithACommaThatTheToolWroteMovesAllLaterCellsToo) {
  ReadConfiguration(FileOf(0));
  ButtonImage[3] = "a,b";
  ReadConfiguration(PrintConfiguration(0));
  EXPECT_EQ(ButtonImage[3], Cell("a"));
  EXPECT_EQ(ButtonImage[4], Cell("b"));
  EXPECT_EQ(ButtonImage[5], Cell(ValueInLine(4)));
  EXPECT_EQ(ButtonImage[163], Cell(ValueInLine(162)));
}

TEST_F(ConfigurationReaderTest, AValueOfDigitsWithoutEndHarmsNothing) {
  const Cell cell = FirstCells(std::string(100'000, '9') + "\r\n", 1).front();
  EXPECT_FALSE(cell.IsEmpty());
  const std::string printed = LinesOf(PrintConfiguration(0)).at(1);
  EXPECT_EQ(printed.find_first_not_of(" 0123456789"), std::string::npos) << printed.substr(0, 40);
  ReadConfiguration(PrintConfiguration(0));
  EXPECT_EQ(ButtonImage[0], cell);
}

struct TypeRow {
  const char* name;
  std::string line;
  Cell type;
  int layout;  ///< of the kind whose tables follow
};

/// In the names and messages of the tests.
void PrintTo(const TypeRow& row, std::ostream* out) {
  *out << row.name;
}

class TypeLineTest : public ConfigurationReaderTest, public testing::WithParamInterface<TypeRow> {};

TEST_P(TypeLineTest, SaysWhichTablesFollow) {
  const Snapshot before = TakeSnapshot();
  const std::string file = FileOfLines(GetParam().line, FileRowOf(GetParam().layout).lines);
  EXPECT_EQ(ReadConfiguration(file), GetParam().type);
  ExpectOnlyChanged(before, RangesInFile(GetParam().layout));
}

TEST_P(TypeLineTest, OneLineLessIsTooShort) {
  ExpectTooShort(FileOfLines(GetParam().line, FileRowOf(GetParam().layout).lines - 1));
}

INSTANTIATE_TEST_SUITE_P(Types, TypeLineTest,
                         testing::ValuesIn(std::vector<TypeRow>{
                             {"bare", "9", 9, 9},
                             {"blankBehind", "9 ", 9, 9},
                             {"blanksInFront", "    5", 5, 5},
                             {"leadingZero", "07", 7, 7},
                             {"eleven", " 11 ", 11, 0},
                             {"fractionOfZero", "2.0", 2, 2},
                             {"ten", " 10 ", 10, 0},
                             {"twelve", " 12 ", 12, 0},
                             {"none", " 99 ", 99, 0},
                             {"negative", "-1 ", -1, 0},
                             {"beyondInt", "99999999999", 99999999999.0, 0},
                             {"fraction", "1.5", 1.5, 0},
                             {"word", "abc", "abc", 0},
                             {"quoted", "\"9\"", "\"9\"", 0},
                             {"empty", "", Cell(), 0},
                         }),
                         [](const auto& test) { return test.param.name; });

TEST_F(ConfigurationReaderTest, ACommaInTheTypeLineIsTheEndOfTheType) {
  EXPECT_EQ(ReadConfiguration("7, 1 \r\n" + FileOfLines(" 2 ", 183)), Cell(7));
  EXPECT_EQ(SimulationImage[0], Cell(1));
  EXPECT_EQ(SimulationImage[1], Cell(2));
  EXPECT_EQ(SimulationImage[184], Cell(ValueInLine(182)));
}

TEST_F(ConfigurationReaderTest, AnEmptyFileIsTooShortAtItsFirstLine) {
  const Snapshot before = TakeSnapshot();
  try {
    ReadConfiguration("");
    FAIL() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.kind, ErrorKind::FileTooShort);
    EXPECT_EQ(std::string(error.what()), "1");
  }
  ExpectOnlyChanged(before, {});
}

TEST_F(ConfigurationReaderTest, AFileOfOneLineEndIsTooShort) {
  ExpectTooShort("\r\n");
  ExpectTooShort("\n");
  ExpectTooShort("\x1A");
}

TEST_F(ConfigurationReaderTest, AWholeFileInOneLineIsReadLikeAnyOther) {
  std::string file = "7";
  for (int i = 0; i < 185; ++i) file += "," + std::to_string(ValueInLine(i));
  EXPECT_EQ(ReadConfiguration(file), Cell(7));
  EXPECT_EQ(PrintConfiguration(7), FileOf(7));
  ExpectTooShort(file.substr(0, file.rfind(',')));
}

TEST_F(ConfigurationReaderTest, HugeSurplusIsIgnored) {
  std::string file = FileOf(9);
  file.reserve(Huge + 10);
  while (file.size() < Huge) file += " 12345678 \r\n";
  EXPECT_EQ(ReadConfiguration(file), Cell(9));
  EXPECT_EQ(PrintConfiguration(9), FileOf(9));
}

TEST_F(ConfigurationReaderTest, AHugeLineWithoutAnEndIsTooShort) {
  ExpectTooShort(std::string(Huge, ' '));
  ExpectTooShort(" 9 \r\n" + std::string(Huge, 'x'));
}

TEST_F(ConfigurationReaderTest, AHugeRunOfCommasIsAnImageOfEmptyCells) {
  ReadConfiguration(FileOf(0));
  EXPECT_EQ(ReadConfiguration(std::string(Huge, ',')), Cell());
  EXPECT_TRUE(ButtonImage[0].IsEmpty());
  EXPECT_TRUE(ButtonImage[163].IsEmpty());
}

}  // namespace
}  // namespace bkconf
