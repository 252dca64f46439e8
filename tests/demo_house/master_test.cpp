// The master's own tables: how contexts are packed, and the fields of its programmes.
#include <gtest/gtest.h>

#include <chrono>
#include <tuple>

#include "demo_house/house_files.h"
#include "demo_house/references.h"

namespace demo_house_test {
namespace {

const ImageFile& Master() {
  return FileOfKind(9);
}

TEST(DemoHouseMaster, CorrectsItsClockOneWayAtMost) {
  EXPECT_LE(Master().At(120), 15);
  EXPECT_LE(Master().At(121), 15);
  EXPECT_TRUE(Master().At(120) == 0 || Master().At(121) == 0);
}

// One behind the other from cell 100 on, each with one empty cell behind it, and empty to the end.
TEST(DemoHouseMaster, PacksItsContexts) {
  int cell = 100;
  for (const PlacedContext& context : PlacedContexts()) {
    EXPECT_EQ(context.cell, cell) << "context " << context.number + 1;
    EXPECT_NE(Master().At(master::contexts + cell), 42) << "context " << context.number + 1;
    while (Master().At(master::contexts + cell) != 42) {
      cell += 3;
    }
    ++cell;
  }
  EXPECT_GT(cell, 100);
  for (; cell < 1000; ++cell) {
    EXPECT_EQ(Master().At(master::contexts + cell), 42) << "cell " << cell;
  }
}

TEST(DemoHouseMaster, HasContextsWithAtMostAHundredActions) {
  for (const PlacedContext& context : PlacedContexts()) {
    int actions = 0;
    while (Master().At(master::contexts + context.cell + 3 * actions) != 42) {
      ++actions;
    }
    EXPECT_LE(actions, 100) << "context " << context.number + 1;
  }
}

// Slots of `width` cells whose record stands at `action`; after the first empty one all are empty.
int FilledSlots(int first, int width, int action) {
  int slots = 0;
  while (Master().At(first + width * slots + action) != 42) {
    ++slots;
  }
  for (int cell = first + width * slots; cell < first + 1000; ++cell) {
    EXPECT_EQ(Master().At(cell), 42) << "cell " << cell;
  }
  return slots;
}

TEST(DemoHouseMaster, HasTimeProgrammesAtTimesThatItsScreenOffers) {
  const int slots = FilledSlots(master::times, 9, 6);
  EXPECT_GT(slots, 0);
  for (int slot = 0; slot < slots; ++slot) {
    const int first = master::times + 9 * slot;
    const int minutes = 60 * Master().At(first) + Master().At(first + 1);
    EXPECT_LE(Master().At(first + 1), 55) << "slot " << slot;
    EXPECT_EQ(minutes % 5, 0) << "slot " << slot;
    EXPECT_LE(minutes, 23 * 60 + 50) << "slot " << slot;
    EXPECT_GE(Master().At(first + 2), 1) << "slot " << slot;
    EXPECT_LE(Master().At(first + 2), 9) << "slot " << slot;
  }
}

TEST(DemoHouseMaster, HasADateOnlyWhereTheDayIsOne) {
  using namespace std::chrono;
  int dates = 0;
  for (int slot = 0; Master().At(master::times + 9 * slot + 6) != 42; ++slot) {
    const int first = master::times + 9 * slot;
    const year_month_day date(year(2000 + Master().At(first + 5)),
                              month(static_cast<unsigned>(Master().At(first + 4))),
                              day(static_cast<unsigned>(Master().At(first + 3))));
    if (Master().At(first + 2) == 8) {
      ++dates;
      EXPECT_TRUE(date.ok()) << "slot " << slot;
    } else {
      EXPECT_EQ(date, year(2000) / 0 / 0) << "slot " << slot;
    }
  }
  EXPECT_GT(dates, 0);
}

TEST(DemoHouseMaster, HasLightProgrammesInBothDirectionsAtLevelsOneToFifty) {
  const int slots = FilledSlots(master::lights, 5, 2);
  int directions[2] = {};
  for (int slot = 0; slot < slots; ++slot) {
    const int first = master::lights + 5 * slot;
    ASSERT_LE(Master().At(first), 1) << "slot " << slot;
    ++directions[Master().At(first)];
    EXPECT_GE(Master().At(first + 1), 1) << "slot " << slot;
    EXPECT_LE(Master().At(first + 1), 50) << "slot " << slot;
  }
  EXPECT_GT(directions[0], 0);
  EXPECT_GT(directions[1], 0);
}

// A transfer of these tables ends behind two empty cells, so there are none before the end.
TEST(DemoHouseMaster, HasNoTwoEmptyCellsBeforeTheEndOfATable) {
  for (const int table : {master::contexts, master::times, master::lights}) {
    int end = 999;
    while (Master().At(table + end) == 42) {
      --end;
    }
    for (int cell = 1; cell <= end; ++cell) {
      EXPECT_FALSE(Master().At(table + cell) == 42 && Master().At(table + cell - 1) == 42)
          << "cell " << cell;
    }
  }
}

}  // namespace
}  // namespace demo_house_test
