#include "session/resets.h"

#include <gtest/gtest.h>

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

TEST_F(ResetsTest, ConnectKeepsTheWeekdayNamesAsLoaded) {
  Clear(ConnectClears);
  EXPECT_EQ(LcdWeekdayLoaded, Cell(1));
}

TEST_F(ResetsTest, NewClearsExactlyItsSixCells) {
  const Snapshot before = TakeSnapshot();
  Clear(NewClears);
  ExpectOnlyChanged(before, {"LcdScreen1Dirty", "LcdScreen2Dirty", "LcdScreen1Loaded",
                             "LcdScreen2Loaded", "LcdWeekdayLoaded", "LcdWeekdayDirty"});
}

TEST_F(ResetsTest, NewKeepsTheHeaderOfTheDisplayAsChanged) {
  Clear(NewClears);
  EXPECT_EQ(LcdHeaderDirty, Cell(1));
}

TEST_F(ResetsTest, WhatIsClearedBecomesTheNumberZero) {
  for (Cell* cell : ConnectClears) *cell = "1";
  for (Cell* cell : NewClears) *cell = Cell();
  Clear(ConnectClears);
  Clear(NewClears);
  for (const Cell* cell : ConnectClears) EXPECT_EQ(*cell, Cell(0));
  for (const Cell* cell : NewClears) EXPECT_EQ(*cell, Cell(0));
}

}  // namespace
}  // namespace bkconf
