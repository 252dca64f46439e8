#include <gtest/gtest.h>

#include "image/tables.h"
#include "special/temperature_screen_test.h"

namespace bkconf {
namespace {

constexpr Colour Quiet{0x40, 0x40, 0x40};
constexpr Colour Changed{0xFF, 0x00, 0xFF};

/// The day on which most tests move something.
constexpr std::array<int, 6> UsualDay = {360, 540, 720, 840, 1080, 1320};

/// The two ends at which a boundary can be taken.
enum class End { From, To };

/// The boundaries between the periods of a day: how they move, and what stops them.
class RoomBoundariesTest : public TemperatureScreenTest {
 protected:
  /// Opens the first day of the first room.
  void OpenDay(const std::array<int, 6>& minutes = UsualDay) {
    OpenProgram();
    FillDay(0, 0, minutes);
    Program().room.Pick(0);
  }

  static ScrollField& Scroll(int boundary, End end) {
    return end == End::From ? Row(boundary).fromScroll : Row(boundary - 1).toScroll;
  }
  static ScrollField& Twin(int boundary, End end) {
    return Scroll(boundary, end == End::From ? End::To : End::From);
  }
  static int StoredTime(int boundary) {
    return 60 * TempPeriods[2 * boundary].Whole() + TempPeriods[2 * boundary + 1].Whole();
  }

  /// Both scrolls, both labels and both cells.
  static void ExpectPlace(int boundary, int scrolled, int stored, Colour colour) {
    const std::string text = Two(stored / 60) + ":" + Two(stored % 60);
    for (const End end : {End::From, End::To}) {
      EXPECT_EQ(Scroll(boundary, end).Value(), scrolled) << boundary;
    }
    for (const LabelField* label : {&Row(boundary).from, &Row(boundary - 1).to}) {
      EXPECT_EQ(label->caption, text) << boundary;
      EXPECT_EQ(label->textColour, colour) << boundary;
    }
    EXPECT_EQ(StoredTime(boundary), stored) << boundary;
  }
};

TEST_F(RoomBoundariesTest, ABoundaryMovesAtBothEndsAndIsStoredAsHourAndMinute) {
  for (int boundary = 0; boundary < 6; ++boundary) {
    for (const End end : {End::From, End::To}) {
      OpenDay();
      const int time = UsualDay[static_cast<std::size_t>(boundary)] + 65;
      const Snapshot before = TakeSnapshot();
      Scroll(boundary, end).Move(time);
      ExpectPlace(boundary, time, time, Changed);
      EXPECT_EQ(TempPeriods[2 * boundary], Cell(time / 60));
      EXPECT_EQ(TempPeriods[2 * boundary + 1], Cell(5));
      ExpectOnlyChanged(before, {CellName("TempPeriods", 2 * boundary),
                                 CellName("TempPeriods", 2 * boundary + 1), "TempProgramDirty"});
      EXPECT_EQ(TempProgramDirty, Cell(1));
      EXPECT_TRUE(MainWindow.send.enabled);
      for (int other = 0; other < 6; ++other) {
        if (other == boundary) continue;
        const int still = UsualDay[static_cast<std::size_t>(other)];
        ExpectPlace(other, still, still, Quiet);
      }
    }
  }
}

TEST_F(RoomBoundariesTest, TheCellsAreThoseOfTheShownRoomAndDay) {
  for (const auto& [room, day, boundary] : {std::tuple{0, 6, 5}, {5, 2, 3}, {7, 6, 5}}) {
    OpenProgram();
    Program().room.Pick(room);
    Day(day).day.Choose();
    const int cell = HourCell(room, day, boundary);
    const Snapshot before = TakeSnapshot();
    Row(boundary).fromScroll.Move(UsualDay[static_cast<std::size_t>(boundary)] + 61);
    ExpectOnlyChanged(before, {CellName("TempPeriods", cell), CellName("TempPeriods", cell + 1),
                               "TempProgramDirty"});
    EXPECT_EQ(TempPeriods[cell + 1], Cell(1));
  }
}

TEST_F(RoomBoundariesTest, OneMoveIsOneStoreTheTwinDoesNotMoveItself) {
  for (int boundary = 0; boundary < 6; ++boundary) {
    OpenDay();
    int moves = 0;
    for (const auto& row : Program().periods) {
      if (row.get() != &Row(boundary)) row->fromScroll.onMove = [&moves] { ++moves; };
      row->toScroll.onMove = [&moves] { ++moves; };
    }
    Scroll(boundary, End::From).Move(UsualDay[static_cast<std::size_t>(boundary)] + 5);
    EXPECT_EQ(moves, 0) << boundary;
  }
}

TEST_F(RoomBoundariesTest, AnotherDayShowsNoMarks) {
  OpenDay();
  Row(2).fromScroll.Move(725);
  Day(1).day.Choose();
  ExpectPlace(3, 840, 840, Quiet);
  EXPECT_EQ(Row(2).from.textColour, Quiet);
  Day(0).day.Choose();
  ExpectPlace(2, 725, 725, Quiet);
}

// --- Ends and springs ---------------------------------------------------------------------------

struct RangeCase {
  std::string name;
  std::array<int, 6> day;
  int boundary;
  int lowest;
  int highest;
};

const RangeCase Ranges[] = {
    {"First", UsualDay, 0, -120, 540},
    {"Second", UsualDay, 1, 360, 720},
    {"Third", UsualDay, 2, 540, 840},
    {"Fourth", UsualDay, 3, 720, 1080},
    {"Fifth", UsualDay, 4, 840, 1320},
    {"Last", UsualDay, 5, 1080, 1800},
    {"FirstBehindAnEarlyNight", {360, 540, 720, 840, 1080, 30}, 0, 30, 540},
    {"SecondBehindALateStart", {1380, 540, 720, 840, 1080, 1320}, 1, 0, 720},
    {"FifthBeforeAnEarlyNight", {360, 540, 720, 840, 1080, 30}, 4, 840, 1440},
    {"LastBeforeALateStart", {1380, 540, 720, 840, 1080, 1320}, 5, 1080, 1380},
};

class BoundaryRangeTest : public RoomBoundariesTest, public testing::WithParamInterface<RangeCase> {
 protected:
  /// From a fresh day to a place, and what comes of it.
  void ExpectSpring(int moved, int reached) {
    for (const End end : {End::From, End::To}) {
      OpenDay(GetParam().day);
      ScrollField& scroll = Scroll(GetParam().boundary, end);
      // One that stands there already would not move.
      if (scroll.Value() == moved) scroll.Move(moved == GetParam().lowest ? moved + 5 : moved - 5);
      scroll.Move(moved);
      EXPECT_EQ(scroll.Value(), reached) << moved;
      EXPECT_EQ(Twin(GetParam().boundary, end).Value(), reached) << moved;
      const int stored = reached < 0 ? reached + 1440 : reached;
      EXPECT_EQ(StoredTime(GetParam().boundary), stored) << moved;
      for (const LabelField* label :
           {&Row(GetParam().boundary).from, &Row(GetParam().boundary - 1).to}) {
        EXPECT_EQ(label->caption, Two(stored / 60) + ":" + Two(stored % 60)) << moved;
        EXPECT_EQ(label->textColour, Changed);
      }
      EXPECT_EQ(TempProgramDirty, Cell(1));
    }
  }
};

TEST_P(BoundaryRangeTest, BothEndsCanBeReached) {
  ExpectSpring(GetParam().lowest, GetParam().lowest);
  ExpectSpring(GetParam().lowest + 5, GetParam().lowest + 5);
  ExpectSpring(GetParam().highest, GetParam().highest);
  ExpectSpring(GetParam().highest - 5, GetParam().highest - 5);
}

TEST_P(BoundaryRangeTest, BeyondAnEndItSpringsBackInStepsOfFive) {
  ExpectSpring(GetParam().lowest - 1, GetParam().lowest + 4);
  ExpectSpring(GetParam().lowest - 5, GetParam().lowest);
  ExpectSpring(GetParam().lowest - 7, GetParam().lowest + 3);
  ExpectSpring(GetParam().lowest - 500, GetParam().lowest);
  ExpectSpring(GetParam().highest + 1, GetParam().highest - 4);
  ExpectSpring(GetParam().highest + 5, GetParam().highest);
  ExpectSpring(GetParam().highest + 12, GetParam().highest - 3);
  ExpectSpring(GetParam().highest + 500, GetParam().highest);
}

TEST_P(BoundaryRangeTest, FromTheEndsOfTheScrollItSpringsBackToo) {
  // The ends of the scroll are multiples of five, as the ends of these ranges.
  ExpectSpring(-9999, GetParam().lowest);
  ExpectSpring(9999, GetParam().highest);
}

INSTANTIATE_TEST_SUITE_P(Ranges, BoundaryRangeTest, testing::ValuesIn(Ranges),
                         [](const auto& row) { return row.param.name; });

TEST_F(RoomBoundariesTest, TheMorningCanBeginBeforeMidnight) {
  struct {
    int moved;
    int scrolled;
    int stored;
  } const cases[] = {{-5, -5, 1435},     {-60, -60, 1380},    {-115, -115, 1325},
                     {-125, -120, 1320}, {-1000, -120, 1320}, {5, 5, 5}};
  for (const auto& row : cases) {
    OpenDay({0, 540, 720, 840, 1080, 1320});
    Row(0).fromScroll.Move(row.moved);
    ExpectPlace(0, row.scrolled, row.stored, Changed);
  }
}

TEST_F(RoomBoundariesTest, AMorningBeforeMidnightIsTheEveningOfTheSameDayWhenItIsShownNext) {
  OpenDay();
  Row(0).fromScroll.Move(-60);
  Day(1).day.Choose();
  Day(0).day.Choose();
  ExpectPlace(0, 1380, 1380, Quiet);
  // From there the first touch takes it to the end of its range.
  Row(0).fromScroll.Move(1385);
  ExpectPlace(0, 540, 540, Changed);
}

TEST_F(RoomBoundariesTest, AMoveChangesTheRangeOfItsNeighbours) {
  OpenDay();
  Row(1).fromScroll.Move(600);
  Row(2).fromScroll.Move(500);
  ExpectPlace(2, 600, 600, Changed);
  Row(0).fromScroll.Move(700);
  ExpectPlace(0, 600, 600, Changed);
  Row(5).fromScroll.Move(1260);
  Row(0).fromScroll.Move(-3000);
  ExpectPlace(0, -180, 1260, Changed);
}

TEST_F(RoomBoundariesTest, ABoundaryWithoutAnyPlaceStaysWhereItIs) {
  struct {
    std::array<int, 6> day;
    int boundary;
  } const cases[] = {
      {{360, 900, 720, 840, 1080, 1320}, 2},  // the neighbours have changed places
      {{360, 540, 1100, 840, 1080, 1320}, 3},
      {{360, 541, 700, 543, 1080, 1320}, 2},  // no multiple of five between them
  };
  for (const auto& row : cases) {
    const int still = row.day[static_cast<std::size_t>(row.boundary)];
    for (const int moved : {-3000, 500, 800, 3000}) {
      for (const End end : {End::From, End::To}) {
        OpenDay(row.day);
        const Snapshot before = TakeSnapshot();
        Scroll(row.boundary, end).Move(moved);
        ExpectPlace(row.boundary, still, still, Changed);
        ExpectOnlyChanged(before, {"TempProgramDirty"});
      }
    }
  }
}

TEST_F(RoomBoundariesTest, ARangeThatNoScrollReachesLeavesTheBoundaryWhereItIs) {
  for (const Cell& hour : {Cell(255), Cell(1e15)}) {
    OpenProgram();
    TempPeriods[2] = hour;
    TempPeriods[6] = hour;
    Program().room.Pick(0);
    const Snapshot before = TakeSnapshot();
    Row(2).fromScroll.Move(725);
    EXPECT_EQ(StoredTime(2), 720);
    EXPECT_EQ(Row(2).fromScroll.Value(), 720);
    ExpectOnlyChanged(before, {"TempProgramDirty"});
  }
}

// --- Days that were never set up ----------------------------------------------------------------

TEST_F(RoomBoundariesTest, ADayWithAllBoundariesAlikeStaysHoweverTheyAreMoved) {
  for (const int time : {0, 720}) {
    for (int boundary = 0; boundary < 6; ++boundary) {
      for (const End end : {End::From, End::To}) {
        OpenDay({time, time, time, time, time, time});
        const Snapshot before = TakeSnapshot();
        for (const int moved : {time + 5, -60, 3000}) {
          Scroll(boundary, end).Move(moved);
          // The handle stays where it was put, and that is all.
          EXPECT_EQ(Scroll(boundary, end).Value(), moved);
          EXPECT_EQ(Twin(boundary, end).Value(), time);
        }
        EXPECT_EQ(Row(boundary).from.caption, Two(time / 60) + ":00");
        EXPECT_EQ(Row(boundary).from.textColour, Quiet);
        EXPECT_EQ(Row(boundary - 1).to.textColour, Quiet);
        ExpectOnlyChanged(before, {"TempProgramDirty"});
        EXPECT_TRUE(MainWindow.send.enabled);
      }
    }
  }
}

TEST_F(RoomBoundariesTest, OnlyTheHoursOfTheOtherBoundariesAreCompared) {
  // Their minutes differ, and so does the hour of the one that moves.
  for (int boundary = 0; boundary < 6; ++boundary) {
    std::array<int, 6> day = {480, 490, 500, 510, 520, 530};
    day[static_cast<std::size_t>(boundary)] = 600;
    OpenDay(day);
    Row(boundary).fromScroll.Move(605);
    EXPECT_EQ(StoredTime(boundary), 600) << boundary;
    EXPECT_EQ(Row(boundary).from.textColour, Quiet);
    EXPECT_EQ(TempProgramDirty, Cell(1));
  }
}

TEST_F(RoomBoundariesTest, OneOtherHourAmongTheOthersIsEnoughToMove) {
  for (int boundary = 0; boundary < 6; ++boundary) {
    for (int odd = 0; odd < 6; ++odd) {
      if (odd == boundary) continue;
      std::array<int, 6> day = {480, 480, 480, 480, 480, 480};
      day[static_cast<std::size_t>(odd)] = 660;
      OpenDay(day);
      Row(boundary).fromScroll.Move(485);
      EXPECT_EQ(Row(boundary).from.textColour, Changed) << boundary << odd;
    }
  }
}

TEST_F(RoomBoundariesTest, EmptyCellsCountAsMidnight) {
  OpenProgram();
  for (int cell = 0; cell < 12; ++cell) TempPeriods[cell] = cell % 4 == 0 ? Cell() : Cell(0);
  Program().room.Pick(0);
  const Snapshot before = TakeSnapshot();
  Row(1).fromScroll.Move(300);
  EXPECT_EQ(Row(1).from.caption, "00:00");
  ExpectOnlyChanged(before, {"TempProgramDirty"});
}

}  // namespace
}  // namespace bkconf
