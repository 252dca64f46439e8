#include "image/module_directory.h"

#include <gtest/gtest.h>

namespace bkconf {
namespace {

class ModuleDirectoryTest : public testing::Test {
 protected:
  ModuleDirectoryTest() {
    for (int cell = 0; cell < ButtonImage.Size(); ++cell) ButtonImage[cell] = EmptyCell;
  }
  ~ModuleDirectoryTest() override {
    for (int cell = 0; cell < ButtonImage.Size(); ++cell) ButtonImage[cell] = Cell();
  }
};

TEST_F(ModuleDirectoryTest, LettersLieInCells123To140AndKindsEighteenFurtherOn) {
  EXPECT_EQ(&DirectoryLetter(0), &ButtonImage[123]);
  EXPECT_EQ(&DirectoryLetter(17), &ButtonImage[140]);
  EXPECT_EQ(&DirectoryType(0), &ButtonImage[141]);
  EXPECT_EQ(&DirectoryType(17), &ButtonImage[158]);
  EXPECT_EQ(DirectoryRows, 18);
}

TEST_F(ModuleDirectoryTest, TheKindStandsBesideTheLetter) {
  ButtonImage[123] = 65;
  ButtonImage[141] = 4;
  ButtonImage[140] = 82;
  ButtonImage[158] = 11;
  EXPECT_EQ(DirectoryTypeOf('A'), 4);
  EXPECT_EQ(DirectoryTypeOf('R'), 11);
  EXPECT_EQ(DirectoryTypeOf('B'), std::nullopt);
}

TEST_F(ModuleDirectoryTest, TheFirstRowOfALetterCounts) {
  ButtonImage[125] = ButtonImage[126] = 65;
  ButtonImage[143] = 1;
  ButtonImage[144] = 2;
  EXPECT_EQ(DirectoryTypeOf('A'), 1);
}

TEST_F(ModuleDirectoryTest, AHoleDoesNotEndTheSearch) {
  ButtonImage[123] = EmptyCell;
  ButtonImage[130] = 65;
  ButtonImage[148] = 6;
  EXPECT_EQ(DirectoryTypeOf('A'), 6);
}

TEST_F(ModuleDirectoryTest, TextsAreReadByTheirNumber) {
  ButtonImage[123] = " 65 ";
  ButtonImage[141] = "7";
  EXPECT_EQ(DirectoryTypeOf('A'), 7);
}

TEST_F(ModuleDirectoryTest, WhatIsNoWholeNumberIsNoKind) {
  ButtonImage[123] = 65;
  for (const Cell& type : {Cell(), Cell("*"), Cell("word"), Cell(0.5), Cell(1e300)}) {
    ButtonImage[141] = type;
    EXPECT_EQ(DirectoryTypeOf('A'), std::nullopt) << type.Text();
  }
}

TEST_F(ModuleDirectoryTest, CellsWithNothingAreNoLetter) {
  for (int row = 0; row < DirectoryRows; ++row) DirectoryLetter(row) = Cell();
  for (char letter = 'A'; letter <= 'Z'; ++letter) EXPECT_EQ(DirectoryTypeOf(letter), std::nullopt);
}

}  // namespace
}  // namespace bkconf
