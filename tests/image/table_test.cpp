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

}  // namespace
}  // namespace bkconf
