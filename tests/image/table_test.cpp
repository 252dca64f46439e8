#include "image/table.h"

#include <gtest/gtest.h>

#include "platform/runtime_error.h"

namespace bkconf {
namespace {

TEST(TableTest, StartsWithAllCellsEmpty) {
  const Table table{"Some", 5};
  EXPECT_EQ(table.Size(), 5);
  for (int index = 0; index < 5; ++index) EXPECT_TRUE(table[index].IsEmpty()) << index;
}

TEST(TableTest, KeepsEachCellForItself) {
  Table table{"Some", 3};
  table[0] = 1;
  table[2] = "last";
  EXPECT_EQ(table[0], Cell(1));
  EXPECT_TRUE(table[1].IsEmpty());
  EXPECT_EQ(table[2], Cell("last"));
}

template <typename AnyTable>
void ExpectOutside(AnyTable& table, int index, const std::string& place) {
  try {
    (void)table[index];
    FAIL() << place << " was no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.kind, ErrorKind::IndexOutsideTable);
    EXPECT_EQ(std::string(error.what()), place);
  }
}

TEST(TableTest, AnIndexBehindTheLastCellIsAnErrorThatNamesTableAndIndex) {
  Table table{"Some", 3};
  ExpectOutside(table, 3, "Some[3]");
  ExpectOutside(table, 999, "Some[999]");
  ExpectOutside(std::as_const(table), 3, "Some[3]");
}

TEST(TableTest, ANegativeIndexIsAnErrorThatNamesTableAndIndex) {
  Table table{"Some", 3};
  ExpectOutside(table, -1, "Some[-1]");
  ExpectOutside(table, -2000, "Some[-2000]");
  ExpectOutside(std::as_const(table), -1, "Some[-1]");
}

TEST(TableTest, ATableWithoutCellsHasNoFirstOne) {
  Table table{"None", 0};
  ExpectOutside(table, 0, "None[0]");
}

TEST(TableTest, FillPutsTheValueFromTheFirstCellToTheLast) {
  Table table{"Some", 5};
  table.Fill(1, 3, "full");
  EXPECT_TRUE(table[0].IsEmpty());
  for (int index = 1; index <= 3; ++index) EXPECT_EQ(table[index], Cell("full")) << index;
  EXPECT_TRUE(table[4].IsEmpty());
  table.Fill(4, 4, 7);
  EXPECT_EQ(table[4], Cell(7));
  table.Fill(0, 4, 42);
  for (int index = 0; index < 5; ++index) EXPECT_EQ(table[index], Cell(42)) << index;
}

TEST(TableTest, FillOutsideTheTableIsAnErrorAndChangesNothing) {
  struct Row {
    int first;
    int last;
    std::string place;
  };
  Table table{"Some", 3};
  for (const Row& row : {Row{0, 3, "Some[3]"}, Row{-1, 2, "Some[-1]"}, Row{3, 3, "Some[3]"}}) {
    try {
      table.Fill(row.first, row.last, 1);
      FAIL() << row.place << " was no error";
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.kind, ErrorKind::IndexOutsideTable);
      EXPECT_EQ(std::string(error.what()), row.place);
    }
    for (int index = 0; index < 3; ++index) EXPECT_TRUE(table[index].IsEmpty()) << index;
  }
}

}  // namespace
}  // namespace bkconf
