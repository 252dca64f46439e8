#include "image/tables.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "platform/runtime_error.h"

namespace bkconf {
namespace {

struct SizeRow {
  const Table& table;
  const char* name;
  int cells;
};

const SizeRow Sizes[] = {
    {ButtonImage, "ButtonImage", 164},
    {ContextTable, "ContextTable", 1000},
    {TimeProgramTable, "TimeProgramTable", 1000},
    {LightProgramTable, "LightProgramTable", 1000},
    {ContextWork, "ContextWork", 15000},
    {TempHeader, "TempHeader", 4},
    {TempRoomIds, "TempRoomIds", 72},
    {TempPeriods, "TempPeriods", 672},
    {TempSetpoints, "TempSetpoints", 336},
    {TempTail, "TempTail", 82},
    {LcdHeader, "LcdHeader", 2},
    {LcdScreen1, "LcdScreen1", 1030},
    {LcdScreen2, "LcdScreen2", 1030},
    {LcdWeekdayNames, "LcdWeekdayNames", 21},
    {AlarmImage, "AlarmImage", 294},
    {AudioImage, "AudioImage", 213},
    {SimulationImage, "SimulationImage", 185},
    {IrImage, "IrImage", 509},
    {DiagBuffer, "DiagBuffer", 24},
};

TEST(TablesTest, EachTableHasItsNameAndItsCells) {
  for (const SizeRow& row : Sizes) {
    EXPECT_EQ(row.table.name, row.name);
    EXPECT_EQ(row.table.Size(), row.cells) << row.name;
  }
}

TEST(TablesTest, EachTableEndsAtItsLastCell) {
  for (const SizeRow& row : Sizes) {
    EXPECT_NO_THROW((void)row.table[row.cells - 1]) << row.name;
    EXPECT_THROW((void)row.table[row.cells], RuntimeError) << row.name;
  }
}

TEST(TablesTest, TheListHoldsEachTableOnce) {
  EXPECT_EQ(AllTables.size(), std::size(Sizes));
  for (const SizeRow& row : Sizes) {
    EXPECT_EQ(std::count(AllTables.begin(), AllTables.end(), &row.table), 1) << row.name;
  }
}

TEST(TablesTest, NoTwoTablesHaveTheSameName) {
  std::set<std::string_view> names;
  for (const Table* table : AllTables) EXPECT_TRUE(names.insert(table->name).second) << table->name;
}

}  // namespace
}  // namespace bkconf
