#include "special/cell_text.h"

#include <gtest/gtest.h>

#include "text/windows1252.h"

namespace bkconf {
namespace {

constexpr int Size = 20;
constexpr int First = 4;

/// Puts a text into five cells in the middle of a table of sevens.
std::vector<int> Stored(std::string_view text) {
  Table table("Table", Size);
  table.Fill(0, Size - 1, 7);
  PutTextIntoCells(table, First, 5, text);
  std::vector<int> codes;
  for (int cell = 0; cell < Size; ++cell) {
    EXPECT_TRUE(table[cell].IsNumber()) << cell;
    if (cell < First || cell >= First + 5) {
      EXPECT_EQ(table[cell], Cell(7)) << cell;
    } else {
      codes.push_back(table[cell].Whole());
    }
  }
  return codes;
}

using Codes = std::vector<int>;

TEST(CellTextTest, ATextIsStoredAsItsCodesWithBlanksBehindIt) {
  EXPECT_EQ(Stored("Hall"), (Codes{72, 97, 108, 108, 32}));
  EXPECT_EQ(Stored(""), (Codes{32, 32, 32, 32, 32}));
  EXPECT_EQ(Stored(" a "), (Codes{32, 97, 32, 32, 32}));
}

TEST(CellTextTest, WhatIsTooLongIsCutByCharactersAndNotByBytes) {
  EXPECT_EQ(Stored("Garage"), (Codes{71, 97, 114, 97, 103}));
  EXPECT_EQ(Stored("éèàçù and more"), (Codes{233, 232, 224, 231, 249}));
}

TEST(CellTextTest, CharactersAreThoseOfWindows1252) {
  EXPECT_EQ(Stored("é€°Ÿœ"), (Codes{233, 128, 176, 159, 156}));
  // What the set does not have becomes a question mark, and a comma is a character like any other.
  EXPECT_EQ(Stored("Ω,→~\x7F"), (Codes{63, 44, 63, 126, 127}));
  EXPECT_EQ(Stored("\xFF\xC3"), (Codes{63, 63, 32, 32, 32}));
}

TEST(CellTextTest, EveryCodeIsShownAndStoredAgain) {
  Table table("Table", 256);
  for (int code = 0; code < 256; ++code) table[code] = code;
  const std::string text = TextOfCells(table, 0, 256);
  EXPECT_EQ(ToWindows1252(text).size(), 256U);
  Table again("Again", 256);
  PutTextIntoCells(again, 0, 256, text);
  for (int code = 0; code < 256; ++code) EXPECT_EQ(again[code], Cell(code));
}

TEST(CellTextTest, TextOfCellsKeepsItsBlanksAndTakesOnlyItsOwnCells) {
  Table table("Table", Size);
  table.Fill(0, Size - 1, 42);
  PutTextIntoCells(table, First, 5, "né");
  EXPECT_EQ(TextOfCells(table, First, 5), "né   ");
  EXPECT_EQ(TextOfCells(table, First, 1), "n");
  EXPECT_EQ(TextOfCells(table, First, 0), "");
}

TEST(CellTextTest, ACellThatNothingHasFilledIsTheCharacterNought) {
  Table table("Table", Size);
  EXPECT_EQ(TextOfCells(table, 0, 2), std::string(2, '\0'));
  table[0] = "word";
  EXPECT_EQ(TextOfCells(table, 0, 1), std::string(1, '\0'));
}

}  // namespace
}  // namespace bkconf
