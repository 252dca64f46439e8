#include "session/resets.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "image/tables.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

/// The value of a flag that is set.
const Cell Set = 1;

class ResetsTest : public SessionTest {
 protected:
  ResetsTest() {
    for (const Flag& flag : StartUpFlags) *flag.cell = Set;
    for (Table* table : AllTables) {
      for (int index = 0; index < table->Size(); ++index) (*table)[index] = index;
    }
  }
};

TEST_F(ResetsTest, ConnectClearsExactlyItsNineCells) {
  const Snapshot before = TakeSnapshot();
  Clear(ConnectClears);
  ExpectOnlyChanged(before, {"WriteInProgress", "TempImage1Loaded", "TempImage2Loaded",
                             "MasterContextsLoaded", "MasterTimeLoaded", "MasterLightLoaded",
                             "LcdHeaderDirty", "LcdScreen1Loaded", "LcdScreen2Loaded"});
}

TEST_F(ResetsTest, NewClearsExactlyItsSixCells) {
  const Snapshot before = TakeSnapshot();
  Clear(NewClears);
  ExpectOnlyChanged(before, {"LcdScreen1Dirty", "LcdScreen2Dirty", "LcdScreen1Loaded",
                             "LcdScreen2Loaded", "LcdWeekdayLoaded", "LcdWeekdayDirty"});
}

TEST_F(ResetsTest, WhatIsClearedBecomesTheNumberZero) {
  for (Cell* cell : ConnectClears) *cell = "1";
  for (Cell* cell : NewClears) *cell = Cell();
  Clear(ConnectClears);
  Clear(NewClears);
  for (const Cell* cell : ConnectClears) EXPECT_EQ(*cell, Cell(0));
  for (const Cell* cell : NewClears) EXPECT_EQ(*cell, Cell(0));
}

TEST_F(ResetsTest, TheKindsWithTablesOnDemandHaveTheirFlags) {
  using Cells = std::vector<Cell*>;
  const std::map<int, std::pair<Cells, Cells>> rows = {
      {2,
       {{&TempImage1Loaded, &TempImage2Loaded},
        {&TempHeaderDirty, &TempRoomsDirty, &TempProgramDirty}}},
      {3,
       {{&LcdScreen1Loaded, &LcdScreen2Loaded, &LcdWeekdayLoaded},
        {&LcdScreen1Dirty, &LcdScreen2Dirty, &LcdWeekdayDirty, &LcdHeaderDirty}}},
      {9,
       {{&MasterContextsLoaded, &MasterTimeLoaded, &MasterLightLoaded},
        {&MasterBaseDirty, &MasterContextsDirty, &MasterTimeDirty, &MasterLightDirty}}},
  };
  EXPECT_EQ(OnDemandKinds.size(), rows.size());
  for (const OnDemandFlags& flags : OnDemandKinds) {
    ASSERT_TRUE(rows.contains(flags.kind)) << flags.kind;
    const auto& [loaded, dirty] = rows.at(flags.kind);
    EXPECT_EQ(Cells(flags.loaded.begin(), flags.loaded.end()), loaded) << flags.kind;
    EXPECT_EQ(Cells(flags.dirty.begin(), flags.dirty.end()), dirty) << flags.kind;
  }
}

TEST_F(ResetsTest, TheFlagsOnDemandAreThoseOfTheKindInMemory) {
  for (const int kind : AllKinds) {
    ActiveModuleType = kind;
    const OnDemandFlags* flags = ActiveOnDemandFlags();
    const bool onDemand = kind == 2 || kind == 3 || kind == 9;
    ASSERT_EQ(flags != nullptr, onDemand) << kind;
    if (onDemand) {
      EXPECT_EQ(flags->kind, kind);
    }
  }
  for (const Cell& type : {Cell(99), Cell(10), Cell("9"), Cell(2.5), Cell()}) {
    ActiveModuleType = type;
    EXPECT_EQ(ActiveOnDemandFlags(), nullptr) << type.Text();
  }
}

}  // namespace
}  // namespace bkconf
