// Anything at all, done to the screens of the display module.
#include <gtest/gtest.h>

#include <optional>

#include "special/display_menu_test.h"
#include "special/random_edits.h"
#include "special/weekday_text_screen.h"

namespace bkconf {
namespace {

/// A blank, an arrow and a text, twice.
struct Keys {
  int first;
  int widthOfA;
};

std::optional<int> ArrowsOf(const Keys& keys, int cell) {
  const int at = cell - keys.first;
  if (at == 0 || at == 2 + keys.widthOfA) return 32;
  if (at == 1) return 126;
  if (at == 3 + keys.widthOfA) return 127;
  return std::nullopt;
}

/// What a cell of a tidy display holds whatever is edited; none for one that can change.
std::optional<int> Fixed(int cell) {
  if (cell >= 1020 || cell == 694 || cell == 779) return 201;
  if (cell >= 672 && cell < 682) return 201;
  if (cell >= 682 && cell < 694) return ArrowsOf({682, 4}, cell);
  if (cell >= 701 && cell < 779) return ArrowsOf({cell - (cell - 701) % 13, 5}, cell);
  return std::nullopt;
}

/// Whether a cell can hold that value after any edits of a tidy display.
bool InRange(int cell, double value) {
  if (value != static_cast<int>(value)) return false;
  if (const auto fixed = Fixed(cell)) return value == *fixed;
  if (cell >= 695 && cell <= 700) return value >= 2 && value <= 7;
  if (cell < 780) return value >= 32 && value <= 255;
  if (cell % 2 == 1) return value >= 0 && value < (cell < 900 ? 50 : 12);
  return value == 35 || (value >= 'A' && value <= (cell < 900 ? 'S' : 'R'));
}

/// The first cell that holds what it cannot, or -1.
int OutOfRange(const Table& table) {
  for (int cell = 0; cell < table.Size(); ++cell) {
    if (!table[cell].IsNumber() || !InRange(cell, table[cell].Number())) return cell;
  }
  return -1;
}

class DisplayRandomTest : public DisplayMenuTest {
 protected:
  /// One step; a question is answered now and then, and a screen that was left opens again.
  void Step(RandomEdits& edits, int step) {
    edits.Step();
    if (messages.asked && step % 3 == 0) {
      messages.asked(step % 2 == 0);
      messages.asked = nullptr;
    }
    if (!DisplayMenuScreen.shown) Press(step % 2 + 1);
  }
};

TEST_F(DisplayRandomTest, TenThousandRandomEditsChangeNoCellButThoseOfTheTwoDisplays) {
  Open();
  const Snapshot before = TakeSnapshot();
  // To see more of a display than its first screen before it is left.
  RandomEdits staying(DisplayMenuScreen, 15, {"leave"});
  RandomEdits all(DisplayMenuScreen, 6, {});
  for (int step = 0; step < 10'000; ++step) {
    Step(step % 500 < 300 ? staying : all, step);
    for (const Table* table : {&LcdScreen1, &LcdScreen2}) {
      const int cell = OutOfRange(*table);
      ASSERT_EQ(cell, -1) << table->name << " in step " << step << ": " << (*table)[cell].Text();
    }
  }
  Leave();
  std::vector<std::string> own = {"LcdScreen1Dirty", "LcdScreen2Dirty"};
  for (const Table* table : {&LcdScreen1, &LcdScreen2}) {
    for (const auto& [first, last] : {std::pair{0, 671},
                                      {684, 687},
                                      {690, 693},
                                      {695, 700},
                                      {703, 778},
                                      {780, 899},
                                      {900, 1019}}) {
      own.push_back(CellName(*table, first, last));
    }
  }
  ExpectOnlyChanged(before, own);
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
}

TEST_F(DisplayRandomTest, TenThousandRandomEditsOfABlankModuleDoNoHarm) {
  Open();
  Leave();
  for (Table* table : {&LcdScreen1, &LcdScreen2}) table->Fill(0, table->Size() - 1, 0);
  Press(1);
  const Snapshot before = TakeSnapshot();
  RandomEdits edits(DisplayMenuScreen, 7, {});
  for (int step = 0; step < 10'000; ++step) Step(edits, step);
  Leave();
  for (const Table* table : {&LcdScreen1, &LcdScreen2}) {
    for (int cell = 0; cell < table->Size(); ++cell) {
      const double value = (*table)[cell].Number();
      EXPECT_TRUE(value == 0 || InRange(cell, value)) << cell << " holds " << value;
    }
    for (int cell = 672; cell < 682; ++cell) EXPECT_EQ((*table)[cell], Cell(0));
    for (const int cell : {694, 779, 1020, 1029}) EXPECT_EQ((*table)[cell], Cell(0));
  }
  const Snapshot after = TakeSnapshot();
  for (const auto& [name, cell] : before) {
    EXPECT_TRUE(name.starts_with("LcdScreen") || after.at(name) == cell) << name;
  }
}

TEST_F(DisplayRandomTest, TenThousandRandomEditsChangeNoCellButTheNamesOfTheWeekdays) {
  StartWithImage(3);
  Put(LcdWeekdayNames, 0, 21, "zomadiwodovrzazomadiw");
  LcdWeekdayLoaded = 1;
  const Snapshot before = TakeSnapshot();
  RandomEdits edits(WeekdayTextScreen, 8, {});
  for (int step = 0; step < 10'000; ++step) {
    if (!WeekdayTextScreen.shown) ShownAction(Action::DisplayGeneral).Click();
    edits.Step();
    for (int cell = 0; cell < LcdWeekdayNames.Size(); ++cell) {
      const double code = LcdWeekdayNames[cell].Number();
      ASSERT_TRUE(LcdWeekdayNames[cell].IsNumber() && code >= 32 && code <= 255) << step;
    }
  }
  WeekdayTextScreen.Close();
  ExpectOnlyChanged(before, {"LcdWeekdayNames[0..20]", "LcdWeekdayDirty"});
  EXPECT_TRUE(messages.told.empty());
}

}  // namespace
}  // namespace bkconf
