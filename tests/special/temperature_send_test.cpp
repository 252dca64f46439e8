#include <gtest/gtest.h>

#include <map>

#include "image/tables.h"
#include "link/transfer.h"
#include "special/temperature_screen_test.h"

namespace bkconf {
namespace {

using virtual_module::UnitKind;

struct SendCase {
  bool header, rooms, program;
  const char* command;
  std::vector<int> tables;  ///< 0 header, 1 sensors, 2 periods, 3 temperatures, 4 LEDs and valves
  int frames;
  /// Some of the frames, without the line end, in the order in which they come.
  std::vector<std::string> samples;
};

const std::vector<SendCase>& SendCases() {
  static const std::vector<std::string> header = {"T000065", "T001008", "T002010"};
  static const std::vector<std::string> oldHeader = {"T000065", "T001008", "T002011"};
  static const std::vector<std::string> sensors = {"T00040", "T0015", "T063255"};
  static const std::vector<std::string> program = {"T00006", "T67105", "T33521"};
  static const std::vector<std::string> tail = {"T06465", "T0650", "T0818"};
  const auto join = [](std::initializer_list<std::vector<std::string>> parts) {
    std::vector<std::string> all;
    for (const auto& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
  };
  static const std::vector<SendCase> cases = {
      {true, false, false, "T70000", {0}, 3, header},
      {false, true, false, "T71000", {1, 4}, 146, join({sensors, tail})},
      {false, false, true, "T72000", {2, 3}, 1008, program},
      {true, true, false, "T73000", {0, 1, 4}, 149, join({header, sensors, tail})},
      {true, false, true, "T74000", {0, 2, 3}, 1011, join({header, program})},
      {false,
       true,
       true,
       "T75000",
       {0, 1, 2, 3, 4},
       1157,
       join({oldHeader, sensors, program, tail})},
      {true, true, true, "T75000", {0, 1, 2, 3, 4}, 1157, join({header, sensors, program, tail})},
  };
  return cases;
}

/// What was changed with the fields, on its way to the module.
class TemperatureSendTest : public TemperatureScreenTest {
 protected:
  /// Changes the parts of the image with the fields that a person has for them.
  static void Edit(const SendCase& row) {
    if (row.header) MainWindow.tolerance.Pick(10 - 2);
    if (row.rooms) EditRooms();
    if (row.program) EditProgram();
  }
  static void EditRooms() {
    Open(Action::RoomIds);
    Ids().room.Pick(0);
    SensorByte(0).Pick(40);
    SensorByte(1).Pick(5);
    Ids().room.Pick(7);
    SensorByte(7).Pick(255);
    Ids().valve.Pick(0);
    Ids().other.Choose();
    Ids().letter.Pick(0);
    Ids().output.Pick(0);
    Ids().valve.Pick(8);
    Ids().own.Choose();
    TemperatureScreen.leave.Click();
  }
  static void EditProgram() {
    Open(Action::RoomProgram);
    Program().room.Pick(0);
    Row(0).fromScroll.Move(390);
    Program().room.Pick(7);
    Day(6).day.Choose();
    Row(5).fromScroll.Move(1325);
    Row(5).setpointScroll.Move(21);
    TemperatureScreen.leave.Click();
  }

  /// The image that the worked frames go out of.
  void StartSending() {
    StartWithRooms(8);
    TempHeader[0] = int{'A'};
    TempHeader[2] = 11;
    TempRoomIds[0] = TempRoomIds[1] = TempRoomIds[63] = 77;
    for (const int cell : {64, 65, 80, 81}) TempTail[cell] = 82;
  }

  struct Sent {
    std::int64_t time;
    std::string text;
  };
  std::vector<Sent> FramesWritten() const {
    std::vector<Sent> frames;
    for (const FakeLine::Written& each : line.written) {
      if (each.characters.size() > 1) frames.push_back({each.time, each.characters});
    }
    return frames;
  }
};

/// A frame of a table in the form that the module expects.
std::string FrameOf(int table, int cell) {
  const Table& cells = *std::vector<Table*>{&TempHeader, &TempRoomIds, &TempPeriods, &TempSetpoints,
                                            &TempTail}[static_cast<std::size_t>(table)];
  const std::string value = std::to_string(cells[cell].Whole());
  const int width = table == 0 ? 3 : table == 2 || table == 3 ? 2 : 1;
  const std::string index = std::to_string(cell);
  return "T" + std::string(3 - index.size(), '0') + index +
         std::string(
             std::max<std::size_t>(static_cast<std::size_t>(width), value.size()) - value.size(),
             '0') +
         value + "\n\r";
}

TEST_F(TemperatureSendTest, WhatWasChangedDecidesTheCommandAndItsFrames) {
  const int counts[] = {3, 64, 672, 336, 82};
  for (const SendCase& row : SendCases()) {
    StartSending();
    auto& module = Plug(2);
    Edit(row);
    EXPECT_EQ(TempHeaderDirty.Whole(), row.header) << row.command;
    EXPECT_EQ(TempRoomsDirty.Whole(), row.rooms);
    EXPECT_EQ(TempProgramDirty.Whole(), row.program);
    line.written.clear();
    SendToModule();
    EXPECT_EQ(MainWindow.status.caption, "Ready");
    EXPECT_EQ(TempHeaderDirty.Number() + TempRoomsDirty.Number() + TempProgramDirty.Number(), 0);
    EXPECT_EQ(module.completedWrites(), 1);
    EXPECT_EQ(module.errors(), 0);
    std::vector<std::string> commands;
    for (const auto& unit : module.received()) {
      if (unit.kind == UnitKind::Command) commands.push_back(unit.text);
    }
    EXPECT_EQ(commands, std::vector<std::string>{std::string(row.command) + "\r"});

    const std::vector<Sent> sent = FramesWritten();
    ASSERT_EQ(sent.size(), static_cast<std::size_t>(row.frames)) << row.command;
    std::size_t at = 0;
    for (const int table : row.tables) {
      for (int cell = 0; cell < counts[table]; ++cell, ++at) {
        EXPECT_EQ(sent[at].text, FrameOf(table, cell)) << table << cell;
        if (at == 0) continue;
        // 20 ms a frame, and between two tables the pause of 30 ms as well.
        EXPECT_EQ(sent[at].time - sent[at - 1].time, cell == 0 ? 50'000 : 20'000) << table << cell;
      }
    }
    std::size_t from = 0;
    for (const std::string& sample : row.samples) {
      while (from < sent.size() && sent[from].text != sample + "\n\r") ++from;
      EXPECT_LT(from, sent.size()) << row.command << " " << sample;
    }
  }
}

TEST_F(TemperatureSendTest, TheModuleHoldsTheImageThenAndKeepsWhatNeverGoesOut) {
  for (const SendCase& row : SendCases()) {
    StartSending();
    auto& module = Plug(2, std::nullopt, 7);
    virtual_module::Memory expected = module.memory();
    Edit(row);
    const auto take = [&expected](const Table& table, int count) {
      for (int cell = 0; cell < count; ++cell) {
        expected.Cells(table.name)[static_cast<std::size_t>(cell)] = table[cell].Whole();
      }
    };
    for (const int table : row.tables) {
      if (table == 0) take(TempHeader, 3);
      if (table == 1) take(TempRoomIds, 64);
      if (table == 2) take(TempPeriods, 672);
      if (table == 3) take(TempSetpoints, 336);
      if (table == 4) take(TempTail, 82);
    }
    SendToModule();
    EXPECT_EQ(module.memory(), expected) << row.command;
  }
}

TEST_F(TemperatureSendTest, TheSetUpOfAWriteShowsItsOwnEndOfTheBar) {
  for (const SendCase& row : SendCases()) {
    StartSending();
    Plug(2);
    Edit(row);
    MainWindow.send.Click();
    ASSERT_TRUE(clock.RunUntil(
        [] { return MainWindow.status.caption == "Versturen van de gegevens..."; }, 60'000));
    EXPECT_EQ(MainWindow.transferBar.Maximum(), row.frames) << row.command;
    EXPECT_FALSE(TemperatureScreen.shown);
    FinishTransfer();
    EXPECT_EQ(MainWindow.transferBar.Value(), row.frames);
  }
}

TEST_F(TemperatureSendTest, LookingSendsNothingNew) {
  auto& module = Read(8);
  Open(Action::RoomIds);
  FinishTransfer();
  for (int room = 0; room < 8; ++room) Ids().room.Pick(room);
  for (int valve = 0; valve < 9; ++valve) Ids().valve.Pick(valve);
  TemperatureScreen.leave.Click();
  Open(Action::RoomProgram);
  FinishTransfer();
  for (int room = 0; room < 8; ++room) {
    Program().room.Pick(room);
    for (int day = 0; day < 7; ++day) Day(day).day.Choose();
  }
  TemperatureScreen.leave.Click();
  const virtual_module::Memory before = module.memory();
  SendToModule();
  EXPECT_EQ(module.completedWrites(), 0);
  EXPECT_EQ(module.memory(), before);
}

TEST_F(TemperatureSendTest, ADayWithAllBoundariesAlikeIsSentAsItIs) {
  StartSending();
  FillDay(0, 0, {0, 0, 0, 0, 0, 0});
  auto& module = Plug(2);
  Open(Action::RoomProgram);
  Program().room.Pick(0);
  Row(0).fromScroll.Move(300);
  TemperatureScreen.leave.Click();
  SendToModule();
  EXPECT_EQ(module.completedWrites(), 1);
  const auto& cells = module.memory().Cells("TempPeriods");
  EXPECT_EQ(std::vector<int>(cells.begin(), cells.begin() + 12), std::vector<int>(12, 0));
}

TEST_F(TemperatureSendTest, ARefusedSendHasLostItsFlagsAndTheNextSendsTheWholeChain) {
  StartSending();
  Plug(5);
  EditRooms();
  MainWindow.send.Click();
  FinishTransfer();
  EXPECT_EQ(TempRoomsDirty, Cell(0));
  auto& module = Plug(2);
  SendToModule();
  SendToModule();
  EXPECT_EQ(module.completedWrites(), 2);
  EXPECT_EQ(module.memory().Cells("TempRoomIds")[63], 255);
  EXPECT_EQ(module.memory().Cells("TempTail")[81], 8);
}

}  // namespace
}  // namespace bkconf
