// Boxes to tick, choices of which one is taken, and tables.
#include <gtest/gtest.h>

#include "platform/field.h"
#include "support/open_screen.h"

namespace bkconf {
namespace {

using Names = std::vector<std::string>;

class CheckFieldTest : public testing::Test {
 protected:
  CheckFieldTest() {
    box.onChange = [this] { seen.push_back(box.checked); };
  }

  OpenScreen screen;
  CheckField box{screen, "box"};
  std::vector<bool> seen;
};

TEST_F(CheckFieldTest, IsNotTickedAtFirst) {
  EXPECT_FALSE(box.checked);
}

TEST_F(CheckFieldTest, TickingAndUntickingRunTheHandlerOnceEach) {
  box.Set(true);
  EXPECT_TRUE(box.checked);
  box.Set(false);
  EXPECT_FALSE(box.checked);
  EXPECT_EQ(seen, (std::vector<bool>{true, false}));
}

TEST_F(CheckFieldTest, SettingItToWhatItIsRunsNoHandler) {
  box.Set(false);
  box.Set(true);
  box.Set(true);
  EXPECT_EQ(seen, std::vector<bool>{true});
}

TEST_F(CheckFieldTest, ADisabledOrHiddenBoxStaysAsItIs) {
  box.enabled = false;
  box.Set(true);
  box.enabled = true;
  box.visible = false;
  box.Set(true);
  EXPECT_FALSE(box.checked);
  EXPECT_TRUE(seen.empty());
}

TEST_F(CheckFieldTest, WithoutAHandlerItIsTickedAllTheSame) {
  box.onChange = nullptr;
  box.Set(true);
  EXPECT_TRUE(box.checked);
}

class OptionFieldTest : public testing::Test {
 protected:
  OptionFieldTest() {
    for (OptionField* option : {&one, &two, &three, &other}) {
      option->onChoose = [this, option] { chosen.push_back(option->name); };
    }
  }

  /// Which of the group are taken, by name.
  std::vector<std::string> Taken() const {
    std::vector<std::string> names;
    for (const OptionField* option : {&one, &two, &three, &other}) {
      if (option->Chosen()) names.push_back(option->name);
    }
    return names;
  }

  OpenScreen screen;
  OptionField one{screen, "one", nullptr};
  OptionField two{screen, "two", &one};
  OptionField three{screen, "three", &one};
  OptionField other{screen, "other", nullptr};
  std::vector<std::string> chosen;
};

TEST_F(OptionFieldTest, NoneIsTakenAtFirst) {
  EXPECT_EQ(Taken(), Names{});
}

TEST_F(OptionFieldTest, AtMostOneOfAGroupIsTaken) {
  for (OptionField* option : {&one, &three, &two}) {
    option->Choose();
    EXPECT_EQ(Taken(), Names{option->name});
  }
  EXPECT_EQ(chosen, (Names{"one", "three", "two"}));
}

TEST_F(OptionFieldTest, GroupsDoNotMindEachOther) {
  two.Choose();
  other.Choose();
  EXPECT_EQ(Taken(), (Names{"two", "other"}));
  other.ClearGroup();
  EXPECT_EQ(Taken(), Names{"two"});
}

TEST_F(OptionFieldTest, TheChoiceStandsWhenItsHandlerRuns) {
  one.Choose();
  Names seen;
  two.onChoose = [&] { seen = Taken(); };
  two.Choose();
  EXPECT_EQ(seen, Names{"two"});
}

TEST_F(OptionFieldTest, ADisabledOrHiddenOptionCannotBeTaken) {
  two.Choose();
  one.enabled = false;
  three.visible = false;
  one.Choose();
  three.Choose();
  EXPECT_EQ(Taken(), Names{"two"});
  EXPECT_EQ(chosen, Names{"two"});
}

TEST_F(OptionFieldTest, OneThatIsTakenStaysSoAndRunsNoHandler) {
  two.Choose();
  two.Choose();
  EXPECT_EQ(Taken(), Names{"two"});
  EXPECT_EQ(chosen, Names{"two"});
}

TEST_F(OptionFieldTest, ShowTakesItAndRunsNoHandler) {
  one.Choose();
  three.Show();
  EXPECT_EQ(Taken(), Names{"three"});
  EXPECT_EQ(chosen, Names{"one"});
}

TEST_F(OptionFieldTest, AnyOfAGroupClearsIt) {
  for (OptionField* option : {&one, &two, &three}) {
    two.Show();
    option->ClearGroup();
    EXPECT_EQ(Taken(), Names{});
  }
}

TEST_F(OptionFieldTest, EachKnowsItsGroupInTheOrderOfDeclaration) {
  const std::vector<OptionField*> group = {&one, &two, &three};
  for (const OptionField* option : group) EXPECT_EQ(option->Group(), group);
  EXPECT_EQ(other.Group(), std::vector<OptionField*>{&other});
}

class GridFieldTest : public testing::Test {
 protected:
  GridFieldTest() {
    grid.columns = {{"number", 1}, {"first", 2}, {"second", 2}};
    grid.Resize(3);
    grid.onSelect = [this](int row, int column) { events.push_back(Place("select", row, column)); };
    grid.onDoubleClick = [this](int row, int column) {
      events.push_back(Place("double", row, column));
    };
  }

  static std::string Place(const std::string& what, int row, int column) {
    return what + " " + std::to_string(row) + " " + std::to_string(column);
  }
  std::string Current() const { return Place("at", grid.CurrentRow(), grid.CurrentColumn()); }

  OpenScreen screen;
  GridField grid{screen, "grid"};
  Names events;
};

TEST_F(GridFieldTest, HasEmptyRowsAndNoCurrentCellAtFirst) {
  EXPECT_EQ(grid.Rows(), 3);
  EXPECT_EQ(grid.CurrentRow(), 0);
  for (int row = 1; row <= 3; ++row) {
    for (int column = 0; column < 3; ++column) EXPECT_EQ(grid.At(row, column), "");
  }
}

TEST_F(GridFieldTest, KeepsATextInItsCell) {
  grid.Put(1, 0, "a");
  grid.Put(3, 2, "b");
  EXPECT_EQ(grid.At(1, 0), "a");
  EXPECT_EQ(grid.At(3, 2), "b");
  EXPECT_EQ(grid.At(2, 1), "");
}

TEST_F(GridFieldTest, OutsideThereIsNothingAndNothingHappens) {
  for (const auto& [row, column] : std::vector<std::pair<int, int>>{
           {0, 0}, {0, 1}, {4, 1}, {1, 3}, {1, -1}, {-1, 1}, {1000, 1000}}) {
    grid.Put(row, column, "x");
    EXPECT_EQ(grid.At(row, column), "");
    grid.Select(row, column);
    EXPECT_EQ(grid.CurrentRow(), 0);
  }
  EXPECT_EQ(events, Names{});
}

TEST_F(GridFieldTest, SelectMakesACellCurrentAndRunsTheHandler) {
  grid.Select(2, 1);
  EXPECT_EQ(Current(), "at 2 1");
  grid.Select(2, 1);
  grid.Select(3, 0);
  EXPECT_EQ(Current(), "at 3 0");
  EXPECT_EQ(events, (Names{"select 2 1", "select 2 1", "select 3 0"}));
}

TEST_F(GridFieldTest, ARowHeaderIsNeverCurrent) {
  grid.rowHeader = true;
  grid.Select(2, 1);
  grid.Select(3, 0);
  EXPECT_EQ(Current(), "at 2 1");
  EXPECT_EQ(events, Names{"select 2 1"});
}

TEST_F(GridFieldTest, ADoubleClickSelectsFirst) {
  grid.DoubleClick(2, 1);
  EXPECT_EQ(Current(), "at 2 1");
  EXPECT_EQ(events, (Names{"select 2 1", "double 2 1"}));
}

TEST_F(GridFieldTest, ADoubleClickOnCaptionsAndHeadersSelectsNothing) {
  grid.rowHeader = true;
  grid.DoubleClick(0, 2);
  grid.DoubleClick(3, 0);
  EXPECT_EQ(grid.CurrentRow(), 0);
  EXPECT_EQ(events, (Names{"double 0 2", "double 3 0"}));
}

TEST_F(GridFieldTest, ADoubleClickOutsideDoesNothing) {
  for (const auto& [row, column] :
       std::vector<std::pair<int, int>>{{4, 1}, {1, 3}, {-1, 1}, {1, -1}, {0, 3}}) {
    grid.DoubleClick(row, column);
  }
  EXPECT_EQ(events, Names{});
}

TEST_F(GridFieldTest, ADisabledOrHiddenGridTakesNoClicks) {
  grid.enabled = false;
  grid.Select(1, 1);
  grid.DoubleClick(1, 1);
  grid.enabled = true;
  grid.visible = false;
  grid.Select(1, 1);
  grid.DoubleClick(1, 1);
  EXPECT_EQ(grid.CurrentRow(), 0);
  EXPECT_EQ(events, Names{});
}

TEST_F(GridFieldTest, WithoutHandlersACellIsCurrentAllTheSame) {
  grid.onSelect = nullptr;
  grid.onDoubleClick = nullptr;
  grid.DoubleClick(1, 1);
  EXPECT_EQ(Current(), "at 1 1");
}

TEST_F(GridFieldTest, BlankEmptiesEveryCellAndKeepsTheCurrentOne) {
  grid.Put(1, 1, "a");
  grid.Select(1, 1);
  grid.Blank();
  EXPECT_EQ(grid.At(1, 1), "");
  EXPECT_EQ(grid.Rows(), 3);
  EXPECT_EQ(Current(), "at 1 1");
}

TEST_F(GridFieldTest, ResizeEmptiesItAndLeavesNoCurrentCell) {
  grid.Put(1, 1, "a");
  grid.Select(1, 1);
  grid.Resize(5);
  EXPECT_EQ(grid.Rows(), 5);
  EXPECT_EQ(grid.At(1, 1), "");
  EXPECT_EQ(grid.CurrentRow(), 0);
  EXPECT_EQ(grid.CurrentColumn(), 0);
}

TEST_F(GridFieldTest, ClearSelectionLeavesNoCurrentCellAndRunsNoHandler) {
  grid.Select(1, 1);
  grid.ClearSelection();
  EXPECT_EQ(Current(), "at 0 0");
  EXPECT_EQ(events, Names{"select 1 1"});
}

}  // namespace
}  // namespace bkconf
