#include "special/conditions.h"

#include <gtest/gtest.h>

#include "image/tables.h"
#include "support/open_screen.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

/// Where conditions lie: in an alarm module, that of the first and of the last detector, and
/// anywhere else.
struct Place {
  std::string name;
  Table* table;
  int light;
  int joining;
};

void PrintTo(const Place& place, std::ostream* out) {
  *out << place.name;
}

class ConditionsTest : public SessionTest, public testing::WithParamInterface<Place> {
 protected:
  ConditionsTest() {
    Start();
    for (int i = 0; i < Cells().Size(); ++i) Cells()[i] = 7;
    fields.Load(TextId::DarkerThan);
    MainWindow.send.enabled = false;
  }

  static Table& Cells() { return *GetParam().table; }
  static Cell& At(int offset) { return Cells()[GetParam().light + offset]; }
  static Cell& Joining() { return Cells()[GetParam().joining]; }
  static std::string Name(int cell) {
    return std::string(Cells().name) + "[" + std::to_string(cell) + "]";
  }
  /// The names of the cells with these offsets; 5 is the one that joins.
  static std::vector<std::string> CellNames(const std::vector<int>& offsets) {
    std::vector<std::string> names;
    for (const int each : offsets) {
      names.push_back(Name(each == 5 ? GetParam().joining : GetParam().light + each));
    }
    return names;
  }

  void Fill(const Cell& light, const Cell& from1, const Cell& to1, const Cell& from2,
            const Cell& to2, const Cell& joining) {
    At(0) = light;
    At(1) = from1;
    At(2) = to1;
    At(3) = from2;
    At(4) = to2;
    Joining() = joining;
    fields.Fill({&Cells(), GetParam().light, GetParam().joining});
  }
  void FillAll() { Fill(30, 8, 12, 13, 17, 0); }
  void FillNone() { Fill(60, 0, 25, 0, 25, 1); }

  void ExpectHours(int period, const std::string& from, const std::string& to, bool none) {
    const PeriodFields& shown = fields.periods.at(static_cast<std::size_t>(period));
    EXPECT_EQ(shown.from.Text(), from);
    EXPECT_EQ(shown.to.Text(), to);
    EXPECT_EQ(shown.none.checked, none);
  }
  void ExpectLight(const std::string& level, bool none) {
    EXPECT_EQ(fields.level.Text(), level);
    EXPECT_EQ(fields.noLight.checked, none);
  }
  /// "EN", "OF", or "" when neither is chosen.
  std::string Joined() const {
    return fields.both.Chosen() ? "EN" : fields.either.Chosen() ? "OF" : "";
  }
  /// The names of what can be used.
  std::vector<std::string> Enabled() const {
    std::vector<std::string> names;
    for (const Field* field : screen.fields) {
      const bool edits = field->kind == FieldKind::Check || field->kind == FieldKind::List ||
                         field->kind == FieldKind::Option;
      if (edits && field->enabled) names.push_back(field->name);
    }
    return names;
  }
  static void ExpectSignal(bool expected) {
    EXPECT_EQ(MainWindow.send.enabled, expected);
    MainWindow.send.enabled = false;
  }
  PeriodFields& First() { return fields.periods[0]; }
  PeriodFields& Second() { return fields.periods[1]; }

  OpenScreen screen;
  ConditionFields fields{screen};
};

using Names = std::vector<std::string>;
const Names Everything = {"noCondition", "noLight",   "level",       "period1None",
                          "period1From", "period1To", "period2None", "period2From",
                          "period2To",   "both",      "either"};

TEST_P(ConditionsTest, TheListsOfferLevelsAndHours) {
  const auto numbers = [](int first, int last) {
    Names items;
    for (int number = first; number <= last; ++number) items.push_back(std::to_string(number));
    return items;
  };
  EXPECT_EQ(fields.level.items, numbers(1, 50));
  for (const PeriodFields& period : fields.periods) {
    EXPECT_EQ(period.from.items, numbers(0, 23));
    EXPECT_EQ(period.to.items, numbers(1, 24));
  }
}

TEST_P(ConditionsTest, FillingShowsEveryCellAndChangesNone) {
  const Snapshot before = [this] {
    FillAll();
    return TakeSnapshot();
  }();
  fields.Fill({&Cells(), GetParam().light, GetParam().joining});
  ExpectLight("30", false);
  ExpectHours(0, "8", "12", false);
  ExpectHours(1, "13", "17", false);
  EXPECT_EQ(Joined(), "OF");
  EXPECT_FALSE(fields.noCondition.checked);
  EXPECT_TRUE(fields.lightGroup.visible && fields.timeGroup.visible);
  EXPECT_EQ(Enabled(), Everything);
  ExpectOnlyChanged(before, {});
  ExpectSignal(false);
}

TEST_P(ConditionsTest, CellsThatHoldDigitsAreShownLikeNumbers) {
  Fill("30", "8", "12", "13", "24", "1");
  ExpectLight("30", false);
  ExpectHours(0, "8", "12", false);
  ExpectHours(1, "13", "24", false);
  EXPECT_EQ(Joined(), "EN");
  Fill("60", "0", "25", "0", "25", "1");
  EXPECT_TRUE(fields.noCondition.checked);
}

TEST_P(ConditionsTest, NoConditionAtAllHidesTheFrames) {
  FillNone();
  EXPECT_TRUE(fields.noCondition.checked);
  EXPECT_FALSE(fields.lightGroup.visible || fields.timeGroup.visible);
  EXPECT_EQ(Enabled(), Names{"noCondition"});
  ExpectLight("", true);
  ExpectHours(0, "", "", true);
  ExpectHours(1, "", "", true);
  EXPECT_EQ(Joined(), "EN");
}

TEST_P(ConditionsTest, EveryOneOfTheSixCellsIsPartOfNoCondition) {
  for (int cell = 0; cell <= 5; ++cell) {
    FillNone();
    (cell == 5 ? Joining() : At(cell)) = cell == 5 ? 0 : 5;
    fields.Fill({&Cells(), GetParam().light, GetParam().joining});
    EXPECT_FALSE(fields.noCondition.checked) << cell;
    EXPECT_TRUE(fields.lightGroup.visible && fields.timeGroup.visible) << cell;
  }
}

TEST_P(ConditionsTest, ALevelOfSixtyIsNoneAlthoughTheListEndsAtFifty) {
  Fill(60, 8, 12, 13, 17, 0);
  ExpectLight("", true);
  Fill(50, 8, 12, 13, 17, 0);
  ExpectLight("50", false);
  EXPECT_EQ(fields.level.Index(), 49);
}

TEST_P(ConditionsTest, AnHourOfTwentyFiveIsNeverShown) {
  for (const int from : {0, 1, 23}) {
    Fill(30, from, 25, from, 25, 1);
    for (const int period : {0, 1}) {
      ExpectHours(period, from == 0 ? "" : std::to_string(from), "", from == 0);
    }
  }
}

TEST_P(ConditionsTest, AnHourOfTwentyFourIsShown) {
  Fill(30, 0, 24, 0, 24, 1);
  ExpectHours(0, "0", "24", false);
  ExpectHours(1, "0", "24", false);
}

TEST_P(ConditionsTest, ASecondPeriodWithoutAFirstIsShownButCannotBeChanged) {
  Fill(30, 0, 25, 13, 17, 1);
  ExpectHours(0, "", "", true);
  ExpectHours(1, "13", "17", false);
  EXPECT_EQ(Enabled(), (Names{"noCondition", "noLight", "level", "period1None"}));
}

TEST_P(ConditionsTest, WhatAModuleHoldsBeyondTheListsIsShownAsItIs) {
  Fill(42, 42, 42, 42, 42, 42);
  ExpectLight("42", false);
  ExpectHours(0, "42", "42", false);
  ExpectHours(1, "42", "42", false);
  EXPECT_EQ(Joined(), "");
  ExpectSignal(false);
}

TEST_P(ConditionsTest, AnotherJoiningThanTwoShowsNoneAndStays) {
  for (const Cell& joining : {Cell(2), Cell(42), Cell(255), Cell("7")}) {
    Fill(30, 8, 12, 0, 25, joining);
    EXPECT_EQ(Joined(), "");
    EXPECT_EQ(Joining(), joining);
  }
}

TEST_P(ConditionsTest, OneIsJoinedByAndAndNothingByOr) {
  Fill(30, 8, 12, 0, 25, 1);
  EXPECT_EQ(Joined(), "EN");
  Fill(30, 8, 12, 0, 25, 0);
  EXPECT_EQ(Joined(), "OF");
}

// --- The switches -------------------------------------------------------------------------------

TEST_P(ConditionsTest, NoConditionStoresSixNumbers) {
  FillAll();
  const Snapshot before = TakeSnapshot();
  fields.noCondition.Set(true);
  ExpectOnlyChanged(before, CellNames({0, 1, 2, 3, 4, 5}));
  EXPECT_EQ(At(0), Cell(60));
  EXPECT_EQ(At(1), Cell(0));
  EXPECT_EQ(At(2), Cell(25));
  EXPECT_EQ(At(3), Cell(0));
  EXPECT_EQ(At(4), Cell(25));
  EXPECT_EQ(Joining(), Cell(1));
  ExpectLight("", true);
  ExpectHours(0, "", "", true);
  ExpectHours(1, "", "", true);
  EXPECT_EQ(Joined(), "EN");
  EXPECT_EQ(Enabled(), Names{"noCondition"});
  EXPECT_FALSE(fields.lightGroup.visible || fields.timeGroup.visible);
  ExpectSignal(true);
}

TEST_P(ConditionsTest, NoConditionTurnedOffStoresNothingAndShowsTheFrames) {
  FillNone();
  const Snapshot before = TakeSnapshot();
  fields.noCondition.Set(false);
  ExpectOnlyChanged(before, {});
  EXPECT_TRUE(fields.lightGroup.visible && fields.timeGroup.visible);
  EXPECT_EQ(Enabled(), (Names{"noCondition", "noLight", "period1None"}));
  ExpectSignal(false);
}

TEST_P(ConditionsTest, NoLightStoresSixtyAlone) {
  FillAll();
  const Snapshot before = TakeSnapshot();
  fields.noLight.Set(true);
  ExpectOnlyChanged(before, CellNames({0}));
  EXPECT_EQ(At(0), Cell(60));
  ExpectLight("", true);
  EXPECT_FALSE(fields.level.enabled);
  ExpectSignal(true);
}

TEST_P(ConditionsTest, NoLightTurnedOffStoresNothingUntilALevelIsPicked) {
  Fill(60, 8, 12, 13, 17, 0);
  const Snapshot before = TakeSnapshot();
  fields.noLight.Set(false);
  ExpectOnlyChanged(before, {});
  ExpectSignal(false);
  EXPECT_TRUE(fields.level.enabled);
  fields.level.Pick(49);
  EXPECT_EQ(At(0), Cell("50"));
  ExpectOnlyChanged(before, CellNames({0}));
  ExpectSignal(true);
}

TEST_P(ConditionsTest, NoFirstPeriodClearsBoth) {
  FillAll();
  const Snapshot before = TakeSnapshot();
  First().none.Set(true);
  ExpectOnlyChanged(before, CellNames({1, 2, 3, 4}));
  EXPECT_EQ(At(1), Cell(0));
  EXPECT_EQ(At(2), Cell(25));
  EXPECT_EQ(At(3), Cell(0));
  EXPECT_EQ(At(4), Cell(25));
  ExpectHours(0, "", "", true);
  ExpectHours(1, "", "", true);
  EXPECT_EQ(Enabled(), (Names{"noCondition", "noLight", "level", "period1None"}));
  ExpectSignal(true);
}

TEST_P(ConditionsTest, NoSecondPeriodLeavesTheFirst) {
  FillAll();
  const Snapshot before = TakeSnapshot();
  Second().none.Set(true);
  ExpectOnlyChanged(before, CellNames({3, 4}));
  EXPECT_EQ(At(3), Cell(0));
  EXPECT_EQ(At(4), Cell(25));
  ExpectHours(0, "8", "12", false);
  ExpectHours(1, "", "", true);
  EXPECT_FALSE(Second().from.enabled || Second().to.enabled);
  EXPECT_TRUE(Second().none.enabled && First().from.enabled && First().to.enabled);
  ExpectSignal(true);
}

TEST_P(ConditionsTest, ASecondPeriodIsNotReachableWhileThereIsNoFirst) {
  Fill(30, 8, 12, 0, 25, 1);
  First().none.Set(true);
  const Snapshot before = TakeSnapshot();
  Second().none.Set(false);
  Second().from.Pick(3);
  Second().to.Pick(3);
  ExpectHours(1, "", "", true);
  ExpectOnlyChanged(before, {});
}

TEST_P(ConditionsTest, APeriodTurnedOnStoresNothingYet) {
  Fill(30, 0, 25, 0, 25, 1);
  const Snapshot before = TakeSnapshot();
  First().none.Set(false);
  EXPECT_TRUE(First().from.enabled && First().to.enabled && Second().none.enabled);
  EXPECT_FALSE(Second().from.enabled || Second().to.enabled);
  ExpectHours(0, "", "", false);
  Second().none.Set(false);
  EXPECT_TRUE(Second().from.enabled && Second().to.enabled);
  ExpectHours(1, "", "", false);
  ExpectOnlyChanged(before, {});
  ExpectSignal(false);
}

TEST_P(ConditionsTest, TheLastSingleSwitchLeavesTheOneForAllUntilTheNextFilling) {
  Fill(30, 8, 12, 0, 25, 1);
  fields.noLight.Set(true);
  First().none.Set(true);
  EXPECT_FALSE(fields.noCondition.checked);
  EXPECT_TRUE(fields.lightGroup.visible && fields.timeGroup.visible);
  fields.Fill({&Cells(), GetParam().light, GetParam().joining});
  EXPECT_TRUE(fields.noCondition.checked);
}

// --- Joining ------------------------------------------------------------------------------------

TEST_P(ConditionsTest, JoiningStoresANumber) {
  FillAll();
  Snapshot before = TakeSnapshot();
  fields.both.Choose();
  EXPECT_EQ(Joining(), Cell(1));
  ExpectOnlyChanged(before, CellNames({5}));
  ExpectSignal(true);
  before = TakeSnapshot();
  fields.either.Choose();
  EXPECT_EQ(Joining(), Cell(0));
  ExpectOnlyChanged(before, CellNames({5}));
  ExpectSignal(true);
}

TEST_P(ConditionsTest, JoiningNeedsLightAndTime) {
  struct Row {
    int light;
    int to1;
    int to2;
    bool joins;
  };
  // The second period makes no difference, since it needs the first.
  for (const Row& row : std::to_array<Row>({{30, 12, 17, true},
                                            {30, 12, 25, true},
                                            {30, 25, 25, false},
                                            {30, 25, 17, false},
                                            {60, 12, 17, false},
                                            {60, 25, 17, false}})) {
    Fill(row.light, 0, row.to1, 0, row.to2, 0);
    EXPECT_EQ(fields.both.enabled, row.joins) << row.light << " " << row.to1;
    EXPECT_EQ(fields.either.enabled, row.joins);
  }
}

TEST_P(ConditionsTest, WhatCannotBeJoinedAnyMoreKeepsItsJoining) {
  for (CheckField* none : {&fields.noLight, &First().none}) {
    FillAll();
    none->Set(true);
    EXPECT_FALSE(fields.both.enabled || fields.either.enabled);
    EXPECT_EQ(Joining(), Cell(0));
    EXPECT_EQ(Joined(), "OF");
    none->Set(false);
    EXPECT_TRUE(fields.both.enabled && fields.either.enabled);
    EXPECT_EQ(Joining(), Cell(0));
  }
}

// --- Hours --------------------------------------------------------------------------------------

TEST_P(ConditionsTest, ALevelIsStoredAsText) {
  FillAll();
  const Snapshot before = TakeSnapshot();
  fields.level.Pick(0);
  EXPECT_EQ(At(0), Cell("1"));
  ExpectOnlyChanged(before, CellNames({0}));
  ExpectSignal(true);
}

TEST_P(ConditionsTest, AFromHourWithoutAToHourEndsTheDay) {
  for (const int place : {0, 1}) {
    Fill(30, 8, 12, 13, 17, 0);
    PeriodFields& period = fields.periods.at(static_cast<std::size_t>(place));
    period.none.Set(true);
    First().none.Set(false);
    period.none.Set(false);
    MainWindow.send.enabled = false;
    const Snapshot before = TakeSnapshot();
    period.from.Pick(23);
    EXPECT_EQ(At(1 + 2 * place), Cell("23"));
    EXPECT_EQ(At(2 + 2 * place), Cell(24));
    ExpectOnlyChanged(before, CellNames({1 + 2 * place, 2 + 2 * place}));
    // The hour is seen when the conditions are shown anew.
    ExpectHours(place, "23", "", false);
    fields.Fill({&Cells(), GetParam().light, GetParam().joining});
    ExpectHours(place, "23", "24", false);
    ExpectSignal(true);
  }
}

TEST_P(ConditionsTest, AFromHourBeforeTheToHourIsStoredAlone) {
  FillAll();
  Snapshot before = TakeSnapshot();
  First().from.Pick(11);
  EXPECT_EQ(At(1), Cell("11"));
  ExpectOnlyChanged(before, CellNames({1}));
  ExpectHours(0, "11", "12", false);
  before = TakeSnapshot();
  Second().from.Pick(0);
  EXPECT_EQ(At(3), Cell("0"));
  ExpectOnlyChanged(before, CellNames({3}));
  ExpectSignal(true);
}

TEST_P(ConditionsTest, AFromHourNotBeforeTheToHourTakesTheFirstPeriodBack) {
  for (const int from : {12, 13, 23}) {
    FillAll();
    const Snapshot before = TakeSnapshot();
    First().from.Pick(from);
    // With the first period goes the second.
    ExpectOnlyChanged(before, CellNames({1, 2, 3, 4, 5}));
    EXPECT_EQ(At(1), Cell(0));
    EXPECT_EQ(At(2), Cell(25));
    EXPECT_EQ(At(3), Cell(0));
    EXPECT_EQ(At(4), Cell(25));
    EXPECT_EQ(Joining(), Cell(1));
    ExpectHours(0, "", "", true);
    ExpectHours(1, "", "", true);
    EXPECT_EQ(Joined(), "EN");
    EXPECT_FALSE(First().from.enabled || First().to.enabled || fields.both.enabled);
    ExpectSignal(true);
  }
}

TEST_P(ConditionsTest, AFromHourNotBeforeTheToHourTakesTheSecondPeriodBack) {
  FillAll();
  const Snapshot before = TakeSnapshot();
  Second().from.Pick(17);
  ExpectOnlyChanged(before, CellNames({3, 4, 5}));
  EXPECT_EQ(At(3), Cell(0));
  EXPECT_EQ(At(4), Cell(25));
  EXPECT_EQ(Joining(), Cell(1));
  ExpectHours(0, "8", "12", false);
  ExpectHours(1, "", "", true);
  EXPECT_EQ(Joined(), "EN");
  EXPECT_TRUE(fields.both.enabled);
}

TEST_P(ConditionsTest, AToHourAfterTheFromHourIsStoredAlone) {
  FillAll();
  Snapshot before = TakeSnapshot();
  First().to.Pick(8);
  EXPECT_EQ(At(2), Cell("9"));
  ExpectOnlyChanged(before, CellNames({2}));
  ExpectHours(0, "8", "9", false);
  before = TakeSnapshot();
  Second().to.Pick(23);
  EXPECT_EQ(At(4), Cell("24"));
  ExpectOnlyChanged(before, CellNames({4}));
  ExpectHours(1, "13", "24", false);
  ExpectSignal(true);
}

TEST_P(ConditionsTest, AToHourNotAfterTheFromHourIsBlankedAndEndsTheDay) {
  for (const int to : {8, 7, 1}) {
    FillAll();
    const Snapshot before = TakeSnapshot();
    First().to.Pick(to - 1);
    EXPECT_EQ(At(2), Cell(24));
    ExpectOnlyChanged(before, CellNames({2}));
    ExpectHours(0, "8", "", false);
    EXPECT_EQ(Joined(), "OF");
    ExpectSignal(true);
  }
}

TEST_P(ConditionsTest, AToHourWithoutAFromHourIsStored) {
  Fill(30, 0, 25, 0, 25, 0);
  First().none.Set(false);
  const Snapshot before = TakeSnapshot();
  First().to.Pick(0);
  EXPECT_EQ(At(2), Cell("1"));
  ExpectOnlyChanged(before, CellNames({2}));
  First().from.Pick(0);
  EXPECT_EQ(At(1), Cell("0"));
  ExpectHours(0, "0", "1", false);
}

TEST_P(ConditionsTest, EveryPairOfHoursIsTakenOrRefused) {
  for (int from = 0; from <= 23; ++from) {
    for (int to = 1; to <= 24; ++to) {
      Fill(30, 0, 24, 0, 25, 0);
      First().to.Pick(to - 1);
      First().from.Pick(from);
      EXPECT_EQ(First().none.checked, from >= to) << from << " " << to;
      EXPECT_EQ(At(1).Number(), from >= to ? 0 : from);
      EXPECT_EQ(At(2).Number(), from >= to ? 25 : to);
      Fill(30, from, 25, 0, 25, 0);
      First().none.Set(false);
      First().from.Pick(from);
      First().to.Pick(to - 1);
      EXPECT_EQ(First().to.Text(), from >= to ? "" : std::to_string(to)) << from << " " << to;
      EXPECT_EQ(At(2).Number(), from >= to ? 24 : to);
    }
  }
}

TEST_P(ConditionsTest, HoursOfAModuleBeyondTheListsAreComparedAsTheyAre) {
  Fill(30, 8, 42, 0, 25, 0);
  First().from.Pick(23);
  EXPECT_EQ(At(1), Cell("23"));
  EXPECT_EQ(At(2), Cell(42));
  Fill(30, 42, 24, 0, 25, 0);
  First().to.Pick(23);
  EXPECT_EQ(At(2), Cell(24));
  ExpectHours(0, "42", "", false);
}

// --- Closed -------------------------------------------------------------------------------------

TEST_P(ConditionsTest, ClosedThereIsNothingToSet) {
  FillAll();
  const Snapshot before = TakeSnapshot();
  fields.Close();
  EXPECT_EQ(Enabled(), Names{});
  ExpectLight("", false);
  ExpectHours(0, "", "", false);
  ExpectHours(1, "", "", false);
  EXPECT_EQ(Joined(), "");
  EXPECT_FALSE(fields.noCondition.checked);
  fields.noCondition.Set(true);
  fields.level.Pick(3);
  First().from.Pick(3);
  fields.both.Choose();
  ExpectOnlyChanged(before, {});
  ExpectSignal(false);
}

INSTANTIATE_TEST_SUITE_P(Places, ConditionsTest,
                         testing::Values(Place{"FirstDetector", &AlarmImage, 221, 281},
                                         Place{"LastDetector", &AlarmImage, 276, 292},
                                         Place{"Elsewhere", &SimulationImage, 10, 5}),
                         [](const auto& place) { return place.param.name; });

}  // namespace
}  // namespace bkconf
