#include "session/state.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "support/session_test.h"

namespace bkconf {
namespace {

/// The value of a flag that is set.
const Cell Set = 1;

struct Row {
  const char* name;
  Cell* cell;
};

/// Written down apart from the catalogue.
const Row ZeroAtStart[] = {
    {"WriteInProgress", &WriteInProgress},
    {"SendCursor", &SendCursor},
    {"TableSelector", &TableSelector},
    {"MasterContextsLoaded", &MasterContextsLoaded},
    {"MasterTimeLoaded", &MasterTimeLoaded},
    {"MasterLightLoaded", &MasterLightLoaded},
    {"TempImage1Loaded", &TempImage1Loaded},
    {"TempImage2Loaded", &TempImage2Loaded},
    {"LcdScreen1Loaded", &LcdScreen1Loaded},
    {"LcdScreen2Loaded", &LcdScreen2Loaded},
    {"LcdWeekdayLoaded", &LcdWeekdayLoaded},
    {"MasterBaseDirty", &MasterBaseDirty},
    {"MasterContextsDirty", &MasterContextsDirty},
    {"MasterTimeDirty", &MasterTimeDirty},
    {"MasterLightDirty", &MasterLightDirty},
    {"TempHeaderDirty", &TempHeaderDirty},
    {"TempRoomsDirty", &TempRoomsDirty},
    {"TempProgramDirty", &TempProgramDirty},
    {"LcdHeaderDirty", &LcdHeaderDirty},
    {"LcdScreen1Dirty", &LcdScreen1Dirty},
    {"LcdScreen2Dirty", &LcdScreen2Dirty},
    {"LcdWeekdayDirty", &LcdWeekdayDirty},
    {"GeneralGroupWasVisible", &GeneralGroupWasVisible},
    {"DisplayTemperatureGroupWasVisible", &DisplayTemperatureGroupWasVisible},
    {"AlarmGroupWasVisible", &AlarmGroupWasVisible},
    {"SpecialGroupWasVisible", &SpecialGroupWasVisible},
};

class StateTest : public SessionTest {};

TEST_F(StateTest, TheCatalogueListsEveryFlagUnderItsNameOnce) {
  EXPECT_EQ(StartUpFlags.size(), std::size(ZeroAtStart));
  for (const Row& row : ZeroAtStart) {
    EXPECT_EQ(std::count_if(StartUpFlags.begin(), StartUpFlags.end(),
                            [&row](const Flag& flag) {
                              return flag.name == row.name && flag.cell == row.cell;
                            }),
              1)
        << row.name;
  }
}

TEST_F(StateTest, NoTwoCellsOfTheCataloguesAreTheSame) {
  std::set<const Cell*> cells;
  std::set<std::string_view> names;
  for (const Flag& flag : StartUpFlags) {
    EXPECT_TRUE(cells.insert(flag.cell).second) << flag.name;
    EXPECT_TRUE(names.insert(flag.name).second) << flag.name;
  }
  for (const Flag& flag : SessionValues) {
    EXPECT_TRUE(cells.insert(flag.cell).second) << flag.name;
    EXPECT_TRUE(names.insert(flag.name).second) << flag.name;
  }
}

TEST_F(StateTest, AfterTheStartEveryFlagIsTheNumberZero) {
  for (const Flag& flag : StartUpFlags) *flag.cell = Set;
  Start();
  for (const Flag& flag : StartUpFlags) EXPECT_EQ(*flag.cell, Cell(0)) << flag.name;
}

TEST_F(StateTest, AfterTheStartThereIsNoImage) {
  ActiveModuleType = 5;
  Start();
  EXPECT_EQ(ActiveModuleType, Cell(99));
  EXPECT_EQ(ActiveCode(), NoModule);
  EXPECT_EQ(ActiveKind(), nullptr);
}

TEST_F(StateTest, TheActiveKindIsTheRowOfTheKindInMemory) {
  for (const int code : AllKinds) {
    ActiveModuleType = code;
    ASSERT_NE(ActiveKind(), nullptr) << code;
    EXPECT_EQ(ActiveKind()->code, code);
  }
}

TEST_F(StateTest, ANumberThatNoModuleHasIsNoKind) {
  for (const int code : {-1, 10, 12, 99, 1000}) {
    ActiveModuleType = code;
    EXPECT_EQ(ActiveKind(), nullptr) << code;
    EXPECT_EQ(ActiveCode(), code);
  }
}

TEST_F(StateTest, ATextOrNothingIsNoKind) {
  for (const Cell& type : {Cell("5"), Cell("Relais"), Cell("")}) {
    ActiveModuleType = type;
    EXPECT_EQ(ActiveCode(), NoModule) << type.Text();
    EXPECT_EQ(ActiveKind(), nullptr) << type.Text();
  }
  ActiveModuleType = Cell();
  EXPECT_EQ(ActiveKind(), nullptr);
}

}  // namespace
}  // namespace bkconf
