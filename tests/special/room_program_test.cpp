#include <gtest/gtest.h>

#include "image/tables.h"
#include "special/temperature_screen_test.h"

namespace bkconf {
namespace {

constexpr Colour Quiet{0x40, 0x40, 0x40};
constexpr Colour Changed{0xFF, 0x00, 0xFF};
constexpr Colour Cold{0x00, 0x00, 0xFF};
constexpr Colour Hot{0xFF, 0x00, 0x00};

using Texts = std::vector<std::string>;

/// The look with the periods and temperatures of a week: rooms, days and temperatures.
class RoomProgramTest : public TemperatureScreenTest {
 protected:
  static bool GroupsAreShown() {
    EXPECT_EQ(Program().setpointsGroup.visible, Program().periodsGroup.visible);
    EXPECT_EQ(Program().daysGroup.visible, Program().periodsGroup.visible);
    EXPECT_EQ(Program().band.visible, Program().periodsGroup.visible);
    return Program().periodsGroup.visible;
  }
  static std::vector<bool> Ticks() {
    std::vector<bool> ticks;
    for (const auto& day : Program().days) ticks.push_back(day->copy.checked);
    return ticks;
  }
  static std::vector<bool> UsableTicks() {
    std::vector<bool> usable;
    for (const auto& day : Program().days) usable.push_back(day->copy.enabled);
    return usable;
  }
  static int ShownDay() {
    for (int day = 0; day < 7; ++day) {
      if (Day(day).day.Chosen()) return day;
    }
    return -1;
  }
};

// --- Rooms and days -----------------------------------------------------------------------------

TEST_F(RoomProgramTest, NothingIsShownUntilARoomIsPicked) {
  OpenProgram(3);
  EXPECT_EQ(Program().room.items, (Texts{"Ruimte 1", "Ruimte 2", "Ruimte 3"}));
  EXPECT_EQ(Program().room.Text(), "Ruimte ?");
  EXPECT_FALSE(GroupsAreShown());
  Program().room.Pick(2);
  EXPECT_TRUE(GroupsAreShown());
  EXPECT_EQ(ShownDay(), 0);
  OpenProgram(2, 2);
  EXPECT_EQ(Program().room.items, (Texts{"Pièce 1", "Pièce 2"}));
  EXPECT_EQ(Program().room.Text(), "Pièce ?");
}

TEST_F(RoomProgramTest, ABoxBesideADayTellsWhatItDoes) {
  for (const int language : {1, 2}) {
    OpenProgram(3, language);
    for (const auto& day : Program().days) {
      EXPECT_EQ(day->copy.toolTip,
                language == 1 ? "Neem de getoonde dag hier over" : "Reprendre ici le jour affiché");
    }
  }
}

TEST_F(RoomProgramTest, OpeningAgainForgetsTheRoom) {
  OpenProgram();
  Program().room.Pick(2);
  TemperatureScreen.leave.Click();
  Open(Action::RoomProgram);
  EXPECT_EQ(Program().room.Index(), -1);
  EXPECT_EQ(Program().room.Text(), "Ruimte ?");
  EXPECT_FALSE(GroupsAreShown());
}

TEST_F(RoomProgramTest, TypingWhatIsNoRoomBringsTheQuestionBackAndHidesTheDay) {
  for (const char* typed : {"", "2", "Ruimte 9", "RUIMTE 1"}) {
    OpenProgram();
    Program().room.Pick(2);
    const Snapshot before = TakeSnapshot();
    Program().room.Type(typed);
    EXPECT_EQ(Program().room.Text(), "Ruimte ?") << typed;
    EXPECT_FALSE(GroupsAreShown());
    ExpectOnlyChanged(before, {});
  }
}

TEST_F(RoomProgramTest, ARoomThatIsTypedInFullIsPicked) {
  OpenProgram();
  TempSetpoints[SetpointCell(3, 0, 0)] = 28;
  Program().room.Type("Ruimte 4");
  EXPECT_TRUE(GroupsAreShown());
  EXPECT_EQ(Row(0).setpoint.caption, "28");
}

TEST_F(RoomProgramTest, EachDayOfEachRoomIsShownFromItsOwnCellsAndChangesNone) {
  OpenProgram();
  // No two days have a boundary or all temperatures in common.
  const auto time = [](int room, int day, int boundary) {
    return 200 * boundary + 7 * (7 * room + day) % 200;
  };
  for (int room = 0; room < 8; ++room) {
    for (int day = 0; day < 7; ++day) {
      for (int k = 0; k < 6; ++k) {
        TempPeriods[HourCell(room, day, k)] = time(room, day, k) / 60;
        TempPeriods[HourCell(room, day, k) + 1] = time(room, day, k) % 60;
        TempSetpoints[SetpointCell(room, day, k)] = (7 * room + day + 5 * k) % 41;
      }
    }
  }
  const Snapshot before = TakeSnapshot();
  for (int room = 7; room >= 0; --room) {
    Program().room.Pick(room);
    for (const int day : {6, 5, 4, 3, 2, 1, 0}) {
      Day(day).day.Choose();
      for (int k = 0; k < 6; ++k) {
        const int minutes = time(room, day, k);
        const std::string text = Two(minutes / 60) + ":" + Two(minutes % 60);
        ASSERT_EQ(Row(k).from.caption, text) << room << day << k;
        ASSERT_EQ(Row(k - 1).to.caption, text);
        ASSERT_EQ(Row(k).fromScroll.Value(), minutes);
        ASSERT_EQ(Row(k - 1).toScroll.Value(), minutes);
        const int degrees = (7 * room + day + 5 * k) % 41;
        ASSERT_EQ(Row(k).setpoint.caption, std::to_string(degrees));
        ASSERT_EQ(Row(k).setpointScroll.Value(), degrees);
        ASSERT_EQ(Row(k).unit.caption, "°C");
      }
    }
  }
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_F(RoomProgramTest, ARoomBeginsWithItsFirstDayWhateverWasShownBefore) {
  OpenProgram();
  TempPeriods[HourCell(1, 0, 0)] = 5;
  Program().room.Pick(0);
  Day(6).day.Choose();
  Program().room.Pick(1);
  EXPECT_EQ(ShownDay(), 0);
  EXPECT_EQ(Row(0).from.caption, "05:00");
  // What is edited then is that day.
  const Snapshot before = TakeSnapshot();
  Row(0).setpointScroll.Move(22);
  ExpectOnlyChanged(before, {CellName("TempSetpoints", 42), "TempProgramDirty"});
}

TEST_F(RoomProgramTest, TheScrollsReachFarBeyondADayInStepsOfFiveMinutes) {
  OpenProgram();
  for (int period = 0; period < 6; ++period) {
    for (const ScrollField* scroll : {&Row(period).fromScroll, &Row(period).toScroll}) {
      EXPECT_EQ(scroll->lowest, -3000);
      EXPECT_EQ(scroll->highest, 3000);
      EXPECT_EQ(scroll->step, 5);
    }
    EXPECT_EQ(Row(period).setpointScroll.lowest, 0);
    EXPECT_EQ(Row(period).setpointScroll.highest, 40);
    EXPECT_EQ(Row(period).setpointScroll.step, 1);
  }
}

TEST_F(RoomProgramTest, OddCellsAreShownAsTheyAre) {
  OpenProgram();
  TempPeriods[0] = Cell();
  TempPeriods[1] = "word";
  TempPeriods[2] = 255;
  TempPeriods[3] = "07";
  TempPeriods[4] = 1e15;
  TempSetpoints[0] = Cell();
  TempSetpoints[1] = "word";
  TempSetpoints[2] = 255;
  TempSetpoints[3] = "35";
  const Snapshot before = TakeSnapshot();
  Program().room.Pick(0);
  EXPECT_EQ(Row(0).from.caption, "00:00");
  EXPECT_EQ(Row(1).from.caption, "55:07");
  EXPECT_EQ(Row(1).fromScroll.Value(), 3000);
  EXPECT_EQ(Row(0).setpoint.caption, "0");
  EXPECT_EQ(Row(1).setpoint.caption, "0");
  EXPECT_EQ(Row(2).setpoint.caption, "255");
  EXPECT_EQ(Row(2).setpointScroll.Value(), 40);
  EXPECT_EQ(Row(3).setpoint.caption, "35");
  EXPECT_EQ(Row(3).setpoint.textColour, Hot);
  ExpectOnlyChanged(before, {});
}

// --- Copying ------------------------------------------------------------------------------------

TEST_F(RoomProgramTest, ATickTakesTheShownDayOverWithinTheRoom) {
  for (const auto& [room, from, to] : {std::tuple{0, 0, 6}, {3, 2, 0}, {7, 6, 5}}) {
    OpenProgram();
    FillDay(room, from, {15, 541, 722, 843, 1024, 1385});
    for (int period = 0; period < 6; ++period) {
      TempSetpoints[SetpointCell(room, from, period)] = 30 + period;
    }
    Program().room.Pick(room);
    Day(from).day.Choose();
    const Snapshot before = TakeSnapshot();
    Day(to).copy.Set(true);
    const int times = HourCell(room, to, 0);
    const int setpoints = SetpointCell(room, to, 0);
    for (int i = 0; i < 12; ++i) {
      EXPECT_EQ(TempPeriods[times + i], TempPeriods[HourCell(room, from, 0) + i]) << i;
    }
    for (int i = 0; i < 6; ++i) EXPECT_EQ(TempSetpoints[setpoints + i], Cell(30 + i));
    ExpectOnlyChanged(before,
                      {CellName("TempPeriods", times, times + 11),
                       CellName("TempSetpoints", setpoints, setpoints + 5), "TempProgramDirty"});
    EXPECT_EQ(TempProgramDirty, Cell(1));
    EXPECT_TRUE(MainWindow.send.enabled);
    EXPECT_EQ(ShownDay(), from);
  }
}

TEST_F(RoomProgramTest, ATickIsUsedUpUntilAnotherDayOrRoomIsPicked) {
  OpenProgram();
  Program().room.Pick(0);
  EXPECT_EQ(UsableTicks(), std::vector<bool>(7, true));
  Day(4).copy.Set(true);
  EXPECT_EQ(UsableTicks(), (std::vector<bool>{true, true, true, true, false, true, true}));
  EXPECT_TRUE(Day(4).copy.checked);
  Day(4).copy.Set(false);
  EXPECT_TRUE(Day(4).copy.checked);
  Day(1).day.Choose();
  EXPECT_EQ(UsableTicks(), std::vector<bool>(7, true));
  EXPECT_EQ(Ticks(), std::vector<bool>(7, false));
  Day(2).copy.Set(true);
  Program().room.Pick(1);
  EXPECT_EQ(UsableTicks(), std::vector<bool>(7, true));
  EXPECT_EQ(Ticks(), std::vector<bool>(7, false));
}

TEST_F(RoomProgramTest, TheShownDayTakesOverItself) {
  OpenProgram();
  Program().room.Pick(2);
  Day(3).day.Choose();
  const Snapshot before = TakeSnapshot();
  Day(3).copy.Set(true);
  ExpectOnlyChanged(before, {"TempProgramDirty"});
  EXPECT_FALSE(Day(3).copy.enabled);
  EXPECT_TRUE(MainWindow.send.enabled);
}

TEST_F(RoomProgramTest, ADayThatWasCopiedIsTheOneThatIsShownNext) {
  OpenProgram();
  Program().room.Pick(0);
  Row(2).setpointScroll.Move(33);
  Day(5).copy.Set(true);
  Day(5).day.Choose();
  EXPECT_EQ(Row(2).setpoint.caption, "33");
}

// --- Temperatures -------------------------------------------------------------------------------

TEST_F(RoomProgramTest, AMovedTemperatureIsStoredInItsCell) {
  for (const auto& [room, day, period] : {std::tuple{0, 0, 0}, {4, 3, 2}, {7, 6, 5}}) {
    OpenProgram();
    Program().room.Pick(room);
    Day(day).day.Choose();
    const Snapshot before = TakeSnapshot();
    Row(period).setpointScroll.Move(25);
    EXPECT_EQ(TempSetpoints[SetpointCell(room, day, period)], Cell(25));
    EXPECT_EQ(Row(period).setpoint.caption, "25");
    ExpectOnlyChanged(
        before, {CellName("TempSetpoints", SetpointCell(room, day, period)), "TempProgramDirty"});
    EXPECT_EQ(TempProgramDirty, Cell(1));
    EXPECT_TRUE(MainWindow.send.enabled);
  }
}

TEST_F(RoomProgramTest, ATemperatureStaysBetweenNoughtAndForty) {
  OpenProgram();
  Program().room.Pick(0);
  Row(0).setpointScroll.Move(99);
  EXPECT_EQ(TempSetpoints[0], Cell(40));
  Row(0).setpointScroll.Move(-1);
  EXPECT_EQ(TempSetpoints[0], Cell(0));
  EXPECT_EQ(Row(0).setpoint.caption, "0");
}

struct ColourCase {
  int degrees;
  Colour shown;
  Colour moved;
};

TEST_F(RoomProgramTest, ATemperatureIsBlueWhenColdRedWhenHotAndElseTellsWhetherItWasMoved) {
  const ColourCase cases[] = {{0, Cold, Cold},      {10, Cold, Cold},     {11, Quiet, Changed},
                              {20, Quiet, Changed}, {29, Quiet, Changed}, {30, Hot, Hot},
                              {40, Hot, Hot}};
  for (const ColourCase& row : cases) {
    OpenProgram();
    TempSetpoints[3] = row.degrees;
    Program().room.Pick(0);
    EXPECT_EQ(Row(3).setpoint.textColour, row.shown) << row.degrees;
    EXPECT_EQ(Program().band.parts[3].colour, row.shown);
    Row(3).setpointScroll.Move(row.degrees == 21 ? 22 : 21);
    Row(3).setpointScroll.Move(row.degrees);
    EXPECT_EQ(Row(3).setpoint.textColour, row.moved) << row.degrees;
    EXPECT_EQ(Row(2).setpoint.textColour, Quiet);
    EXPECT_EQ(Program().band.parts[3].colour, row.shown);
    Day(1).day.Choose();
    Day(0).day.Choose();
    EXPECT_EQ(Row(3).setpoint.textColour, row.shown) << row.degrees;
  }
}

// --- The band of the day ------------------------------------------------------------------------

using Parts = std::vector<DayBandField::Part>;

TEST_F(RoomProgramTest, TheBandShowsEachPeriodUpToTheNextAndTheNightAcrossMidnight) {
  OpenProgram();
  TempSetpoints[0] = 10;
  TempSetpoints[5] = 30;
  Program().room.Pick(0);
  EXPECT_EQ(Program().band.parts, (Parts{{360, 540, "10°C", Cold},
                                         {540, 720, "16°C", Quiet},
                                         {720, 840, "17°C", Quiet},
                                         {840, 1080, "18°C", Quiet},
                                         {1080, 1320, "19°C", Quiet},
                                         {1320, 360, "30°C", Hot}}));
}

TEST_F(RoomProgramTest, TheBandFollowsEveryMoveAndDay) {
  OpenProgram();
  FillDay(0, 1, {420, 540, 720, 840, 1080, 1320});
  Program().room.Pick(0);
  Row(1).fromScroll.Move(545);
  EXPECT_EQ(Program().band.parts[0], (DayBandField::Part{360, 545, "15°C", Quiet}));
  EXPECT_EQ(Program().band.parts[1], (DayBandField::Part{545, 720, "16°C", Quiet}));
  Row(1).setpointScroll.Move(35);
  EXPECT_EQ(Program().band.parts[1], (DayBandField::Part{545, 720, "35°C", Hot}));
  Day(1).day.Choose();
  EXPECT_EQ(Program().band.parts.size(), 6U);
  EXPECT_EQ(Program().band.parts[0], (DayBandField::Part{420, 540, "15°C", Quiet}));
  EXPECT_EQ(Program().band.parts[5], (DayBandField::Part{1320, 420, "20°C", Quiet}));
}

TEST_F(RoomProgramTest, TheBandOfANightThatBeginsBehindMidnightStaysWithinTheDay) {
  OpenProgram();
  FillDay(0, 0, {360, 540, 720, 840, 1440, 1530});
  Program().room.Pick(0);
  EXPECT_EQ(Program().band.parts[3], (DayBandField::Part{840, 1440, "18°C", Quiet}));
  EXPECT_EQ(Program().band.parts[4], (DayBandField::Part{0, 90, "19°C", Quiet}));
  EXPECT_EQ(Program().band.parts[5], (DayBandField::Part{90, 360, "20°C", Quiet}));
}

}  // namespace
}  // namespace bkconf
