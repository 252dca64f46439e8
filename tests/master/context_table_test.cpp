#include "master/context_table.h"

#include <map>
#include <random>

#include "actions/action_code.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

/// By context, counted from 0.
using Contents = std::map<int, std::vector<ActionCells>>;

class ContextTableTest : public SessionTest {
 protected:
  ContextTableTest() { ResetContexts(); }

  static void Edit(const Contents& contents) {
    ResetContextWork();
    for (const auto& [context, actions] : contents) {
      int cell = 0;
      for (const ActionCells& action : actions) {
        for (const Cell& each : action) ContextCell(context, cell++) = each;
      }
    }
  }
  static std::vector<Cell> Work() {
    std::vector<Cell> cells;
    for (int cell = 0; cell < ContextWork.Size(); ++cell) cells.push_back(ContextWork[cell]);
    return cells;
  }
  static void ExpectHeader(int context, const Cell& high, const Cell& low) {
    EXPECT_EQ(ContextTable[2 * context], high) << context;
    EXPECT_EQ(ContextTable[2 * context + 1], low) << context;
  }
  static void PutHeader(int context, const Cell& high, const Cell& low) {
    ContextTable[2 * context] = high;
    ContextTable[2 * context + 1] = low;
  }
  static void ExpectCells(int context, int first, const std::vector<Cell>& cells) {
    for (const Cell& cell : cells) {
      EXPECT_EQ(ContextCell(context, first), cell) << context << ", " << first;
      ++first;
    }
  }
};

/// Contexts as a person can make them: a few, some of them long, with Corvela codes, and cells that
/// are numbers after a read and texts after an edit. None holds 42, which the packed form cannot
/// carry within an action.
class RandomContents {
 public:
  explicit RandomContents(unsigned seed) : random_(seed) {}

  Contents Make() {
    Contents contents;
    int room = 900;
    for (int context = 0; context < 50; ++context) {
      const int actions = std::min(Length(), (room - 1) / 3);
      if (actions <= 0) continue;
      room -= 3 * actions + 1;
      auto& list = contents[context];
      while (static_cast<int>(list.size()) < actions) list.push_back({Letter(), Value(), Value()});
    }
    return contents;
  }

 private:
  int Below(int end) { return std::uniform_int_distribution<>(0, end - 1)(random_); }
  int Length() {
    const int chance = Below(20);
    if (chance < 7) return 0;
    return chance == 19 ? 100 : 1 + Below(12);
  }
  Cell Letter() {
    const int letter = Below(10) == 0 ? 'Z' : 'A' + Below(19);
    return Below(8) == 0 ? Cell(std::to_string(letter)) : Cell(letter);
  }
  Cell Value() {
    const int value = Below(100);
    if (value == 42) return 0;
    if (Below(2) == 0) return value + (Below(4) == 0 ? 100 : 0);
    return (value < 10 ? "0" : "") + std::to_string(value);
  }

  std::mt19937 random_;
};

int ActionsIn(const Contents& contents) {
  int actions = 0;
  for (const auto& [context, list] : contents) actions += static_cast<int>(list.size());
  return actions;
}

/// Where each context lies: one behind the other, with one cell behind each.
void ExpectPlaces(const Contents& contents) {
  int place = 100;
  for (int context = 0; context < 50; ++context) {
    const double pointer =
        ContextTable[2 * context].Number() * 100 + ContextTable[2 * context + 1].Number();
    const auto list = contents.find(context);
    if (list == contents.end()) {
      EXPECT_EQ(pointer, 0) << context;
      continue;
    }
    EXPECT_EQ(pointer, place) << context;
    EXPECT_GE(pointer, 100) << context;
    EXPECT_LE(pointer, 999) << context;
    for (const ActionCells& action : list->second) {
      for (const Cell& cell : action) {
        ASSERT_EQ(ContextTable[place], cell) << place;
        ++place;
      }
    }
    ASSERT_EQ(ContextTable[place], Cell(42)) << place;
    ++place;
  }
  for (; place < 1000; ++place) ASSERT_EQ(ContextTable[place], Cell(42)) << place;
}

TEST_F(ContextTableTest, WhateverIsPackedComesBackCellByCell) {
  int full = 0;
  int corvela = 0;
  int empty = 0;
  for (unsigned seed = 0; seed < 60; ++seed) {
    const Contents contents = RandomContents(seed).Make();
    for (const auto& [context, list] : contents) {
      full += list.size() == 100 ? 1 : 0;
      for (const ActionCells& action : list) corvela += action[0].Number() == 'Z' ? 1 : 0;
    }
    empty += 50 - static_cast<int>(contents.size());
    Edit(contents);
    const std::vector<Cell> work = Work();
    const int free = 850 - 3 * ActionsIn(contents);
    EXPECT_EQ(PackContexts(), free) << seed;
    EXPECT_EQ(Work(), work) << seed;
    ExpectPlaces(contents);
    ResetContextWork();
    // An unpack counts the empty cell behind a list of a hundred actions as well.
    EXPECT_EQ(UnpackContexts(), free) << seed;
    ASSERT_EQ(Work(), work) << seed;
  }
  EXPECT_GT(full, 10);
  EXPECT_GT(corvela, 100);
  EXPECT_GT(empty, 500);
}

TEST_F(ContextTableTest, AModuleGivesTheSameContextsBackAsNumbers) {
  for (unsigned seed = 60; seed < 70; ++seed) {
    Edit(RandomContents(seed).Make());
    const std::vector<Cell> work = Work();
    const int free = PackContexts();
    for (int cell = 0; cell < 1000; ++cell) ContextTable[cell] = ContextTable[cell].Number();
    ResetContextWork();
    EXPECT_EQ(UnpackContexts(), free);
    for (int cell = 0; cell < ContextWork.Size(); ++cell) {
      ASSERT_EQ(ContextWork[cell], Cell(work[static_cast<std::size_t>(cell)].Number())) << cell;
    }
  }
}

TEST_F(ContextTableTest, AResetEmptiesBothForms) {
  ContextTable.Fill(0, 999, 7);
  ContextWork.Fill(0, 14999, 7);
  const Snapshot before = TakeSnapshot();
  ResetContexts();
  for (int cell = 0; cell < 1000; ++cell) ASSERT_EQ(ContextTable[cell], Cell(cell < 100 ? 0 : 42));
  for (int cell = 0; cell < 15000; ++cell) ASSERT_EQ(ContextWork[cell], Cell(42));
  ExpectOnlyChanged(before, {"ContextTable[0..999]", "ContextWork[0..14999]"});
  EXPECT_EQ(UnpackContexts(), 850);
  EXPECT_EQ(PackContexts(), 850);
}

TEST_F(ContextTableTest, EmptyingOneContextLeavesTheOthers) {
  ContextWork.Fill(0, 14999, 7);
  EmptyContext(3);
  for (int cell = 0; cell < 15000; ++cell) {
    ASSERT_EQ(ContextWork[cell], Cell(cell >= 900 && cell < 1200 ? 42 : 7)) << cell;
  }
}

TEST_F(ContextTableTest, TheFirstPlaceIsSplitIntoTheTexts1And00) {
  Edit({{0, {{65, 0, 1}}}, {1, {{66, 0, 1}}}, {49, {{67, 0, 1}}}});
  PackContexts();
  ExpectHeader(0, "1", "00");
  ExpectHeader(1, "1", "04");
  ExpectHeader(49, "1", "08");
  for (int context = 2; context < 49; ++context) ExpectHeader(context, 0, 0);
  EXPECT_EQ(ContextTable[0].PrintForm() + ContextTable[1].PrintForm(), "100");
  EXPECT_EQ(ContextTable[4].PrintForm(), " 0 ");
}

TEST_F(ContextTableTest, NumbersAndTextsOfThePlaceReadAlike) {
  for (const bool texts : {false, true}) {
    ResetContexts();
    PutHeader(7, texts ? Cell("2") : Cell(2), texts ? Cell("05") : Cell(5));
    ContextTable[205] = 65;
    ContextTable[206] = "03";
    ContextTable[207] = 1;
    EXPECT_EQ(UnpackContexts(), 847);
    ExpectCells(7, 0, {65, "03", 1, 42});
  }
}

TEST_F(ContextTableTest, AnEmptyContextEmptiesItsWholeList) {
  ContextWork.Fill(0, 14999, 7);
  EXPECT_EQ(UnpackContexts(), 850);
  for (int cell = 0; cell < 15000; ++cell) ASSERT_EQ(ContextWork[cell], Cell(42)) << cell;
}

TEST_F(ContextTableTest, OnlyTheCellBehindAListBecomesEmptyAndThoseBehindItStay) {
  Edit({{2, {{65, 0, 1}, {66, 0, 1}, {67, 0, 1}, {68, 0, 1}, {65, 1, 1}}}});
  PutHeader(2, 1, 0);
  const std::vector<int> packed = {65, 0, 1, 66, 0, 1, 42};
  for (std::size_t i = 0; i < packed.size(); ++i) {
    ContextTable[100 + static_cast<int>(i)] = packed[i];
  }
  EXPECT_EQ(UnpackContexts(), 844);
  ExpectCells(2, 0, {65, 0, 1, 66, 0, 1, 42, 0, 1, 68, 0, 1, 65, 1, 1, 42});
}

TEST_F(ContextTableTest, A42WithinAnActionEndsTheContextWhenItIsUnpacked) {
  Edit({{0, {{70, "42", "05"}, {65, "00", "01"}}}});
  EXPECT_EQ(PackContexts(), 844);
  const std::vector<Cell> packed = {70, "42", "05", 65, "00", "01", 42};
  for (std::size_t i = 0; i < packed.size(); ++i) {
    EXPECT_EQ(ContextTable[100 + static_cast<int>(i)], packed[i]);
  }
  ResetContextWork();
  EXPECT_EQ(UnpackContexts(), 849);
  ExpectCells(0, 0, {70, 42, 42, 42});
  // The second action is gone with the next pack.
  EXPECT_EQ(PackContexts(), 847);
  EXPECT_EQ(ContextTable[103], Cell(42));
  EXPECT_EQ(ContextTable[104], Cell(42));
}

TEST_F(ContextTableTest, AListOfAHundredActionsHasNoEndOfItsOwn) {
  Edit({{4, std::vector<ActionCells>(100, {65, 3, 1})}, {5, {{66, 0, 0}}}});
  EXPECT_EQ(PackContexts(), 850 - 303);
  ExpectHeader(4, "1", "00");
  ExpectHeader(5, "4", "01");
  EXPECT_EQ(ContextTable[400], Cell(42));
  ContextWork.Fill(0, 14999, 7);
  EXPECT_EQ(UnpackContexts(), 850 - 303);
  EXPECT_EQ(ContextCell(4, 299), Cell(1));
  ExpectCells(5, 0, {66, 0, 0, 42, 7});
}

/// 283 actions in fifty contexts are what there is room for.
TEST_F(ContextTableTest, TheLastActionThatFitsEndsInFrontOfTheLastCell) {
  Contents contents;
  for (int context = 0; context < 49; ++context) {
    contents[context] = std::vector<ActionCells>(5, {65, 0, 1});
  }
  contents[49] = std::vector<ActionCells>(38, {66, 0, 1});
  Edit(contents);
  EXPECT_EQ(PackContexts(), 1);
  ExpectHeader(49, "8", "84");
  EXPECT_EQ(ContextTable[997], Cell(1));
  EXPECT_EQ(ContextTable[998], Cell(42));
  EXPECT_EQ(ContextTable[999], Cell(42));
  EXPECT_EQ(UnpackContexts(), 1);
}

TEST_F(ContextTableTest, WhatDoesNotFitIsDroppedAndTheFreeCellsAreNegative) {
  Contents contents;
  for (int context = 0; context < 3; ++context) {
    contents[context] = std::vector<ActionCells>(100, {65 + context, 1, 2});
  }
  Edit(contents);
  const Snapshot before = TakeSnapshot();
  EXPECT_EQ(PackContexts(), -50);
  ExpectHeader(2, "7", "02");
  EXPECT_EQ(ContextTable[999], Cell(67));
  ExpectOnlyChanged(before, {"ContextTable[0..5]", "ContextTable[100..999]"});
  ResetContextWork();
  // What was dropped is not there, and the list ends with the table.
  UnpackContexts();
  ExpectCells(2, 294, {67, 1, 2, 67, 42, 42});
}

TEST_F(ContextTableTest, APlaceOutsideTheDataIsAnEmptyContext) {
  struct Place {
    Cell high;
    Cell low;
  };
  for (const Place& place : {Place{42, 42}, Place{0.5, 0}, Place{"0", 99}, Place{0, 100},
                             Place{10, 0}, Place{-1, 0}, Place{255, 255}, Place{1e300, 0}}) {
    ResetContexts();
    ContextTable.Fill(100, 999, 65);
    ContextWork.Fill(0, 14999, 7);
    PutHeader(1, place.high, place.low);
    const bool zero = place.high.Number() == 0;
    EXPECT_EQ(UnpackContexts(), 850) << place.high.Text();
    // Only a zero in front makes the whole list empty.
    ExpectCells(1, 0, {42, zero ? 42 : 7, zero ? 42 : 7});
  }
}

TEST_F(ContextTableTest, AListThatRunsToTheEndOfTheTableEndsThere) {
  ContextTable.Fill(100, 999, 65);
  PutHeader(1, 9, 90);
  PutHeader(2, 9, 99);
  EXPECT_EQ(UnpackContexts(), 900 - 48 - 11 - 2);
  EXPECT_EQ(ContextCell(1, 9), Cell(65));
  EXPECT_EQ(ContextCell(1, 10), Cell(42));
  ExpectCells(2, 0, {65, 42, 42});
}

TEST_F(ContextTableTest, ALongListWithoutAnEndStopsAfterAHundredActions) {
  ContextTable.Fill(100, 999, 65);
  PutHeader(0, 1, 0);
  EXPECT_EQ(UnpackContexts(), 900 - 301 - 49);
  EXPECT_EQ(ContextCell(0, 299), Cell(65));
  EXPECT_EQ(ContextCell(1, 0), Cell(42));
}

}  // namespace
}  // namespace bkconf
