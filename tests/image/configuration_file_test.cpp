// What a configuration file of each kind holds, and how its lines are written.
#include "image/configuration_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "image/file_lines.h"
#include "platform/runtime_error.h"
#include "support/session_test.h"
#include "support/snapshot.h"
#include "text/windows1252.h"

namespace bkconf {
namespace {

/// What no file puts into a cell.
const Cell Mark = 7777;

void MarkEveryCell() {
  for (Table* table : AllTables) {
    for (int index = 0; index < table->Size(); ++index) (*table)[index] = Mark;
  }
}

class ConfigurationFileTest : public SessionTest {
 protected:
  /// The line of a relay file that this cell is printed as.
  static std::string PrintedAs(const Cell& cell) {
    ButtonImage[0] = cell;
    return LinesOf(PrintConfiguration(0)).at(1);
  }
};

class KindFileTest : public ConfigurationFileTest, public testing::WithParamInterface<int> {
 protected:
  const int kind = GetParam();
  const FileRow& row = FileRowOf(kind);
};

TEST_P(KindFileTest, TheRowsOfTheToolAreTheRangesOfTheKind) {
  const auto blocks = BlocksOf(kind);
  ASSERT_EQ(blocks.size(), row.parts.size());
  int lines = 0;
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    EXPECT_EQ(blocks[i].table, &TableOf(row.parts[i].table));
    EXPECT_EQ(blocks[i].last, row.parts[i].last) << row.parts[i].table;
    EXPECT_LT(blocks[i].last, blocks[i].table->Size());
    lines += blocks[i].last + 1;
  }
  EXPECT_EQ(lines, row.lines);
}

TEST_P(KindFileTest, StandsInOneRowOnly) {
  EXPECT_EQ(std::count_if(FileLayouts.begin(), FileLayouts.end(),
                          [this](const FileLayout& each) { return each.kinds.Contains(kind); }),
            1);
}

TEST_P(KindFileTest, IsTheTypeAndThenEachCellInOrder) {
  MarkEveryCell();
  const std::vector<Cell*> cells = CellsInFile(kind);
  ASSERT_EQ(static_cast<int>(cells.size()), row.lines);
  std::string expected = " " + std::to_string(kind) + " \r\n";
  for (std::size_t i = 0; i < cells.size(); ++i) {
    *cells[i] = static_cast<int>(i);
    expected += " " + std::to_string(i) + " \r\n";
  }
  EXPECT_EQ(PrintConfiguration(kind), expected);
}

TEST_P(KindFileTest, AnImageThatIsEmptyIsATypeAndEmptyLines) {
  std::string expected = " " + std::to_string(kind) + " \r\n";
  for (int i = 0; i < row.lines; ++i) expected += "\r\n";
  EXPECT_EQ(PrintConfiguration(kind), expected);
}

TEST_P(KindFileTest, WritingChangesNothing) {
  MarkEveryCell();
  const Snapshot before = TakeSnapshot();
  PrintConfiguration(kind);
  ExpectOnlyChanged(before, {});
}

TEST_P(KindFileTest, IsReadBackCellByCellAndChangesNoOtherCell) {
  MarkEveryCell();
  const Snapshot before = TakeSnapshot();
  EXPECT_EQ(ReadConfiguration(FileOf(kind)), Cell(kind));
  int number = 0;
  for (const Cell* cell : CellsInFile(kind)) {
    ASSERT_EQ(*cell, Cell(ValueInLine(number))) << number;
    ++number;
  }
  ExpectOnlyChanged(before, RangesInFile(kind));
}

TEST_P(KindFileTest, ReadAndWrittenItIsTheSameByteForByte) {
  const std::string file = FileOf(kind);
  ReadConfiguration(file);
  EXPECT_EQ(PrintConfiguration(kind), file);
}

TEST_P(KindFileTest, WhateverTheCellsHoldComesBackWithItsType) {
  const std::vector<Cell*> cells = CellsInFile(kind);
  std::vector<Cell> put;
  for (std::size_t i = 0; i < cells.size(); ++i) {
    const Cell choices[] = {Cell(), Cell(static_cast<int>(i)), Cell(-3), Cell(1.5),
                            Cell("caf\u00e9 " + std::to_string(i) + " \"x\"")};
    put.push_back(choices[i % std::size(choices)]);
    *cells[i] = put.back();
  }
  const std::string file = PrintConfiguration(kind);
  MarkEveryCell();
  ReadConfiguration(file);
  for (std::size_t i = 0; i < cells.size(); ++i) ASSERT_EQ(*cells[i], put[i]) << i;
}

TEST_P(KindFileTest, SurplusLinesAreIgnored) {
  MarkEveryCell();
  ReadConfiguration(FileOf(kind) + " 1 \r\nmore\r\n,,\r\n");
  const Snapshot withSurplus = TakeSnapshot();
  MarkEveryCell();
  ReadConfiguration(FileOf(kind));
  EXPECT_EQ(TakeSnapshot(), withSurplus);
}

TEST_P(KindFileTest, AFileThatEndsAtATableOrOneLineEarlyIsAnErrorAndChangesNothing) {
  MarkEveryCell();
  const Snapshot before = TakeSnapshot();
  std::set<int> lengths = {0, 1, row.lines - 1};
  int end = 0;
  for (const FilePart& part : row.parts) {
    lengths.insert({end, end + part.last});
    end += part.last + 1;
  }
  for (const int lines : lengths) {
    const std::string file = FileOfLines(" " + std::to_string(kind) + " ", lines);
    try {
      ReadConfiguration(file);
      FAIL() << lines << " lines are taken";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.kind, ErrorKind::FileTooShort) << lines;
      EXPECT_NE(std::string(error.what()).find(std::to_string(lines + 2)), std::string::npos)
          << error.what();
    }
  }
  ExpectOnlyChanged(before, {});
}

TEST_P(KindFileTest, AMissingLastLineEndIsNoMissingLine) {
  std::string file = FileOf(kind);
  file.resize(file.size() - 2);
  EXPECT_EQ(ReadConfiguration(file), Cell(kind));
  EXPECT_EQ(*CellsInFile(kind).back(), Cell(ValueInLine(row.lines - 1)));
}

TEST_P(KindFileTest, LinesMayEndInLfAlone) {
  std::string file = FileOf(kind);
  std::erase(file, '\r');
  EXPECT_EQ(ReadConfiguration(file), Cell(kind));
  EXPECT_EQ(PrintConfiguration(kind), FileOf(kind));
}

INSTANTIATE_TEST_SUITE_P(Kinds, KindFileTest, testing::ValuesIn(AllKinds),
                         [](const auto& test) { return "kind" + std::to_string(test.param); });

TEST_F(ConfigurationFileTest, NoRowStandsForAKindThatThereIsNot) {
  for (int code = -1; code <= 100; ++code) {
    const bool known =
        std::find(std::begin(AllKinds), std::end(AllKinds), code) != std::end(AllKinds);
    const bool listed =
        std::any_of(FileLayouts.begin(), FileLayouts.end(),
                    [code](const FileLayout& each) { return each.kinds.Contains(code); });
    EXPECT_EQ(listed, known) << code;
  }
}

TEST_F(ConfigurationFileTest, TheLastCellOfTheAlarmModuleIsInNoFile) {
  MarkEveryCell();
  EXPECT_EQ(LinesOf(PrintConfiguration(5)).size(), 294U);
  ReadConfiguration(FileOf(5));
  EXPECT_EQ(AlarmImage[292], Cell(ValueInLine(292)));
  EXPECT_EQ(AlarmImage[293], Mark);
}

TEST_F(ConfigurationFileTest, TheLiveTemperaturesAreInNoFile) {
  MarkEveryCell();
  ReadConfiguration(FileOf(2));
  EXPECT_EQ(TempRoomIds[63], Cell(ValueInLine(67)));
  for (int index = 64; index <= 71; ++index) EXPECT_EQ(TempRoomIds[index], Mark) << index;
  EXPECT_EQ(TempPeriods[0], Cell(ValueInLine(68)));
}

TEST_F(ConfigurationFileTest, AnythingThatIsNoKindIsWrittenLikeARelayModule) {
  MarkEveryCell();
  const auto relay = LinesOf(PrintConfiguration(0));
  for (const Cell& type : {Cell(99), Cell(10), Cell(-1), Cell("abc"), Cell(1.5), Cell()}) {
    const auto lines = LinesOf(PrintConfiguration(type));
    ASSERT_EQ(lines.size(), relay.size()) << type.Text();
    EXPECT_EQ(lines.front(), type.PrintForm());
    EXPECT_TRUE(std::equal(lines.begin() + 1, lines.end(), relay.begin() + 1)) << type.Text();
  }
}

TEST_F(ConfigurationFileTest, ANumberStandsBetweenBlanksAndASignTakesThePlaceOfTheFirst) {
  EXPECT_EQ(PrintedAs(12), " 12 ");
  EXPECT_EQ(PrintedAs(0), " 0 ");
  EXPECT_EQ(PrintedAs(-5), "-5 ");
  EXPECT_EQ(PrintedAs(1.5), " 1.5 ");
  EXPECT_EQ(PrintedAs(-0.25), "-0.25 ");
  EXPECT_EQ(PrintedAs(12.0), " 12 ");
}

TEST_F(ConfigurationFileTest, ATextStandsAsItIsAndNothingIsAnEmptyLine) {
  EXPECT_EQ(PrintedAs("*"), "*");
  EXPECT_EQ(PrintedAs("07"), "07");
  EXPECT_EQ(PrintedAs("  two blanks "), "  two blanks ");
  EXPECT_EQ(PrintedAs("\"quoted\""), "\"quoted\"");
  EXPECT_EQ(PrintedAs("a,b"), "a,b");
  EXPECT_EQ(PrintedAs(""), "");
  EXPECT_EQ(PrintedAs(Cell()), "");
}

TEST_F(ConfigurationFileTest, TextsAreWrittenInWindows1252) {
  EXPECT_EQ(PrintedAs("\u00e9\u00b0\u00eb"), "\xE9\xB0\xEB");
  EXPECT_EQ(PrintedAs("12\u20ac"), "12\x80");
}

TEST_F(ConfigurationFileTest, ACharacterThatTheSetDoesNotHaveIsWrittenAsAQuestionMark) {
  EXPECT_EQ(PrintedAs("a\u0416b"), "a?b");
  EXPECT_EQ(PrintedAs("\U0001F600"), "?");
}

TEST_F(ConfigurationFileTest, EveryByteOfATextSurvives) {
  for (int byte = 0; byte < 256; ++byte) {
    // A comma and a line end part values.
    if (byte == ',' || byte == '\n') continue;
    const std::string text = std::string("x") + static_cast<char>(byte) + "y";
    ReadConfiguration(FileOf(0).replace(5, 5, text + "\r\n"));
    EXPECT_EQ(ButtonImage[0], Cell(FromWindows1252(text))) << byte;
    EXPECT_EQ(LinesOf(PrintConfiguration(0)).at(1), text) << byte;
  }
}

}  // namespace
}  // namespace bkconf
