#include <gtest/gtest.h>

#include "image/tables.h"
#include "link/transfer.h"
#include "platform/runtime_error.h"
#include "special/temperature_screen_test.h"

namespace bkconf {
namespace {

using virtual_module::Fault;
using virtual_module::UnitKind;

struct ReadCase {
  std::string name;
  Action look;
  std::string command;
  int lines;
  std::string first;  ///< the first cell line and the last, without their values
  std::string last;
  Cell* loaded;
  Cell* other;
};

const ReadCase Reads[] = {
    {"Ids", Action::RoomIds, "T81000", 146, "2000", "5081", &TempImage1Loaded, &TempImage2Loaded},
    {"Program", Action::RoomProgram, "T82000", 1008, "3000", "4335", &TempImage2Loaded,
     &TempImage1Loaded},
};

/// What is read behind the screen when it is opened for the first time.
class TemperatureReadTest : public TemperatureScreenTest,
                            public testing::WithParamInterface<ReadCase> {
 protected:
  static bool WindowIsLocked() {
    for (const Field* field : std::initializer_list<const Field*>{
             &MainWindow.bestand, &MainWindow.taal, &MainWindow.settings, &MainWindow.Info,
             &MainWindow.moduleList}) {
      EXPECT_EQ(field->enabled, MainWindow.bestand.enabled) << field->name;
    }
    return !MainWindow.bestand.enabled && !ButtonsAreBack();
  }
  static bool ButtonsAreBack() {
    for (const Field* field : std::initializer_list<const Field*>{
             &MainWindow.send, &MainWindow.displayTemperature.address, &MainWindow.roomCount,
             &MainWindow.tolerance}) {
      EXPECT_EQ(field->enabled, MainWindow.connect.enabled) << field->name;
    }
    EXPECT_EQ(AllVisibleActionsEnabled(), MainWindow.connect.enabled);
    return MainWindow.connect.enabled;
  }

  /// The commands that the module was given, and its cell lines behind the last of them.
  static std::vector<std::string> Commands(const virtual_module::Module& module) {
    std::vector<std::string> commands;
    for (const auto& unit : module.received()) {
      if (unit.kind == UnitKind::Command) commands.push_back(unit.text);
    }
    return commands;
  }
  static std::vector<std::string> LastLines(const virtual_module::Module& module) {
    std::vector<std::string> lines;
    for (const auto& unit : module.sent()) {
      if (unit.kind != UnitKind::Line) continue;
      if (unit.text == "M80000\r") lines.clear();
      lines.push_back(unit.text);
    }
    return lines;
  }
  /// Of the look that was opened.
  static std::vector<Field*> Usable() {
    const bool ids = GetParam().look == Action::RoomIds;
    return UsableFields(ids ? Ids().group : Program().group);
  }
};

TEST_P(TemperatureReadTest, TheScreenShowsItselfBehindTheIdentityAndWorksFromTheLastCellOn) {
  auto& module = Read(3);
  TempTail[81] = TempSetpoints[335] = Cell();
  Open(GetParam().look);

  // At the press: the main window alone, locked, looks for the module.
  EXPECT_FALSE(TemperatureScreen.shown);
  EXPECT_TRUE(WindowIsLocked());
  EXPECT_EQ(MainWindow.status.caption, "Module zoeken...");
  EXPECT_EQ(*GetParam().loaded, Cell(1));
  EXPECT_NE(*GetParam().other, Cell(1));
  EXPECT_EQ(PendingCommand, Cell(GetParam().command));

  // Behind the identity: the screen, of no use yet.
  AwaitScreen();
  EXPECT_TRUE(Usable().empty());
  EXPECT_FALSE(TemperatureScreen.leave.enabled);
  TemperatureScreen.leave.Click();
  EXPECT_TRUE(TemperatureScreen.shown);
  EXPECT_EQ(TemperatureScreen.status.caption, "Inladen van de gegevens...");
  EXPECT_EQ(MainWindow.status.caption, "Inladen van de gegevens...");
  EXPECT_TRUE(TemperatureScreen.bar.visible);
  EXPECT_FALSE(MainWindow.transferBar.visible);
  EXPECT_EQ(TemperatureScreen.bar.Maximum(), GetParam().lines);
  EXPECT_EQ(TemperatureScreen.title, "Temperatuurmodule KR7150 <adres = C>");
  EXPECT_TRUE(WindowIsLocked());

  // At the last cell: all of the screen, and the window but for its menus.
  const Cell& last = GetParam().look == Action::RoomIds ? TempTail[81] : TempSetpoints[335];
  ASSERT_TRUE(clock.RunUntil([&last] { return !last.IsEmpty(); }, 120'000));
  EXPECT_EQ(TemperatureScreen.bar.Value(), GetParam().lines);
  EXPECT_FALSE(TemperatureScreen.bar.visible || MainWindow.transferBar.visible);
  EXPECT_EQ(TemperatureScreen.status.caption, "Edit mode");
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_TRUE(TemperatureScreen.leave.enabled);
  EXPECT_EQ(Usable(), GetParam().look == Action::RoomIds
                          ? (std::vector<Field*>{&Ids().room, &Ids().valve})
                          : std::vector<Field*>{&Program().room});
  EXPECT_TRUE(ButtonsAreBack());
  EXPECT_FALSE(MainWindow.bestand.enabled);

  FinishTransfer();
  EXPECT_TRUE(MainWindow.bestand.enabled);
  const auto lines = LastLines(module);
  ASSERT_EQ(lines.size(), static_cast<std::size_t>(GetParam().lines + 2));
  EXPECT_EQ(lines[1].substr(1, 4), GetParam().first);
  EXPECT_EQ(lines[lines.size() - 2].substr(1, 4), GetParam().last);
  EXPECT_EQ(lines.back(), "STOP\r");
  EXPECT_EQ(module.errors(), 0);
}

TEST_P(TemperatureReadTest, ThePhasesAreToldInFrenchToo) {
  Read(3, 2);
  Open(GetParam().look);
  EXPECT_EQ(MainWindow.status.caption, "Recherche module...");
  AwaitScreen();
  EXPECT_EQ(TemperatureScreen.status.caption, "Chargement des données...");
  FinishTransfer();
  EXPECT_EQ(TemperatureScreen.status.caption, "Edit mode");
}

TEST_P(TemperatureReadTest, WhatWasReadIsEditedAtOnceAndOpenedNextTimeWithoutTheLine) {
  auto& module = Read(3);
  Open(GetParam().look);
  FinishTransfer();
  ListField& room = GetParam().look == Action::RoomIds ? Ids().room : Program().room;
  EXPECT_EQ(room.items.size(), 3U);
  room.Pick(2);
  if (GetParam().look == Action::RoomIds) {
    EXPECT_EQ(SensorByte(7).Index(), module.memory().Cells("TempRoomIds")[23]);
    EXPECT_EQ(LedByte(0).Index(), module.memory().Cells("TempTail")[16]);
  } else {
    EXPECT_EQ(Row(5).setpointScroll.Value(), module.memory().Cells("TempSetpoints")[89]);
    EXPECT_EQ(Row(0).from.caption.substr(0, 2), Two(module.memory().Cells("TempPeriods")[168]));
  }
  TemperatureScreen.leave.Click();
  const auto commands = Commands(module);
  Open(GetParam().look);
  EXPECT_TRUE(TemperatureScreen.shown);
  EXPECT_FALSE(TransferUnderWay);
  EXPECT_EQ(Commands(module), commands);
  EXPECT_EQ(commands, (std::vector<std::string>{"T80000\r", GetParam().command + "\r"}));
}

TEST_P(TemperatureReadTest, TheOtherPairIsReadByItself) {
  auto& module = Read(3);
  Open(GetParam().look);
  FinishTransfer();
  TemperatureScreen.leave.Click();
  const bool idsFirst = GetParam().look == Action::RoomIds;
  Open(idsFirst ? Action::RoomProgram : Action::RoomIds);
  EXPECT_FALSE(TemperatureScreen.shown);
  FinishTransfer();
  EXPECT_TRUE(TemperatureScreen.shown);
  EXPECT_EQ(Program().group.visible, idsFirst);
  EXPECT_EQ(Commands(module).back(), idsFirst ? "T82000\r" : "T81000\r");
}

TEST_P(TemperatureReadTest, AReadIsAskedForAgainBehindAConnect) {
  auto& module = Read(3);
  Open(GetParam().look);
  FinishTransfer();
  TemperatureScreen.leave.Click();
  ReadModule();
  Open(GetParam().look);
  EXPECT_FALSE(TemperatureScreen.shown);
  FinishTransfer();
  EXPECT_EQ(Commands(module).size(), 4U);
}

TEST_P(TemperatureReadTest, ItsDirtyFlagIsClearedAndNoOther) {
  Read(3);
  TempHeaderDirty = TempRoomsDirty = TempProgramDirty = 1;
  Open(GetParam().look);
  FinishTransfer();
  const bool ids = GetParam().look == Action::RoomIds;
  EXPECT_EQ(TempHeaderDirty, Cell(1));
  EXPECT_EQ(TempRoomsDirty, Cell(ids ? 0 : 1));
  EXPECT_EQ(TempProgramDirty, Cell(ids ? 1 : 0));
}

TEST_P(TemperatureReadTest, ARefusedModuleShowsNoScreenAndTheNextPressOpensWhatIsThere) {
  Read(3);
  const std::string title = MainWindow.title;
  Plug(5);
  Open(GetParam().look);
  FinishTransfer();
  EXPECT_FALSE(TemperatureScreen.shown);
  EXPECT_EQ(messages.told.size(), 1U);
  EXPECT_EQ(*GetParam().loaded, Cell(1));
  EXPECT_EQ(MainWindow.title, title);
  EXPECT_TRUE(MainWindow.connect.enabled && MainWindow.bestand.enabled);
  Open(GetParam().look);
  EXPECT_TRUE(TemperatureScreen.shown);
  EXPECT_FALSE(TransferUnderWay);
  EXPECT_TRUE(TemperatureScreen.leave.enabled);
}

TEST_P(TemperatureReadTest, AnAbandonedRequestOpensNoScreenLater) {
  Read(3);
  Plug(5);
  Open(GetParam().look);
  FinishTransfer();
  Plug(2);
  ASSERT_TRUE(StartRequest(GetParam().command));
  FinishTransfer();
  EXPECT_FALSE(TemperatureScreen.shown);
}

TEST_P(TemperatureReadTest, APortThatFailsLeavesTheScreenUsableWithWhatHasCome) {
  Read(3);
  Open(GetParam().look);
  AwaitScreen();
  clock.Advance(300);
  line.failed = true;
  EXPECT_THROW(clock.Advance(10'000), RuntimeError);
  LeaveFailedTransfer();
  EXPECT_TRUE(TemperatureScreen.shown);
  EXPECT_TRUE(TemperatureScreen.leave.enabled);
  EXPECT_FALSE(TemperatureScreen.bar.visible);
  EXPECT_EQ(TemperatureScreen.status.caption, "Edit mode");
  TemperatureScreen.leave.Click();
  EXPECT_FALSE(TemperatureScreen.shown);
  EXPECT_EQ(Window.bar, &MainWindow.transferBar);
  EXPECT_TRUE(MainWindow.connect.enabled && MainWindow.bestand.enabled);
}

TEST_P(TemperatureReadTest, ClosingTheWindowLeavesAModuleThatSaysNoMore) {
  Read(3);
  Open(GetParam().look);
  AwaitScreen();
  line.module = nullptr;
  clock.Advance(60'000);
  EXPECT_FALSE(TemperatureScreen.leave.enabled);
  const Snapshot before = TakeSnapshot();
  TemperatureScreen.Close();
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(TemperatureScreen.shown || TransferUnderWay);
  EXPECT_FALSE(WindowIsLocked());
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_EQ(*GetParam().loaded, Cell(1));
}

TEST_P(TemperatureReadTest, AReadThatEndedShortIsClosedAndTheNextComesWhole) {
  Read(3);
  Plug(2, Fault::ShortStream);
  Open(GetParam().look);
  FinishTransfer();
  ASSERT_TRUE(TemperatureScreen.shown);
  EXPECT_FALSE(TemperatureScreen.leave.enabled);
  TemperatureScreen.Close();
  EXPECT_EQ(Window.bar, &MainWindow.transferBar);
  EXPECT_FALSE(TemperatureScreen.shown || TemperatureScreen.bar.visible);
  Plug(2);
  MainWindow.connect.Click();
  EXPECT_TRUE(MainWindow.transferBar.visible);
  FinishTransfer();
  Open(GetParam().look);
  FinishTransfer();
  EXPECT_EQ(TemperatureScreen.bar.Maximum(), GetParam().lines);
  EXPECT_EQ(TemperatureScreen.bar.Value(), GetParam().lines);
  EXPECT_TRUE(TemperatureScreen.leave.enabled);
}

TEST_P(TemperatureReadTest, APortThatCannotBeOpenedShowsNoScreen) {
  Read(3);
  line.canOpen = false;
  Open(GetParam().look);
  clock.Advance(60'000);
  EXPECT_FALSE(TemperatureScreen.shown);
  EXPECT_EQ(MainWindow.status.caption, "Module zoeken...");
  EXPECT_TRUE(WindowIsLocked());
}

TEST_P(TemperatureReadTest, ASendWithNothingToSendReadsAgainAndOpensNoScreen) {
  auto& module = Read(3);
  Open(GetParam().look);
  FinishTransfer();
  TemperatureScreen.leave.Click();
  const bool ids = GetParam().look == Action::RoomIds;
  module.memory().Cells(ids ? "TempTail" : "TempSetpoints")[3] = 33;
  MainWindow.send.Click();
  ASSERT_TRUE(clock.RunUntil(
      [] { return MainWindow.status.caption == "Versturen van de gegevens..."; }, 60'000));
  EXPECT_EQ(MainWindow.transferBar.Maximum(), GetParam().lines);
  EXPECT_TRUE(MainWindow.transferBar.visible);
  FinishTransfer();
  EXPECT_EQ(Commands(module).back(), GetParam().command + "\r");
  EXPECT_EQ((ids ? TempTail : TempSetpoints)[3], Cell(33));
  EXPECT_FALSE(TemperatureScreen.shown);
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_EQ(WriteInProgress, Cell(0));
  EXPECT_TRUE(MainWindow.connect.enabled && MainWindow.bestand.enabled);
}

INSTANTIATE_TEST_SUITE_P(Looks, TemperatureReadTest, testing::ValuesIn(Reads),
                         [](const auto& row) { return row.param.name; });

TEST_F(TemperatureScreenTest, TheWorkedLinesOfAModuleArriveInTheirCells) {
  auto& module = Read(8);
  virtual_module::Memory& memory = module.memory();
  memory.Cells("TempRoomIds")[0] = 40;
  memory.Cells("TempRoomIds")[10] = 255;
  memory.Cells("TempTail")[64] = 66;
  memory.Cells("TempTail")[65] = 4;
  memory.Cells("TempPeriods")[96] = 6;
  memory.Cells("TempPeriods")[97] = 30;
  memory.Cells("TempSetpoints")[48] = 21;
  Open(Action::RoomIds);
  FinishTransfer();
  Ids().room.Pick(0);
  EXPECT_EQ(SensorByte(0).Text(), "28");
  Ids().room.Pick(1);
  EXPECT_EQ(SensorByte(2).Text(), "FF");
  Ids().valve.Pick(0);
  EXPECT_EQ(Ids().letter.Text() + Ids().output.Text(), "B05");
  TemperatureScreen.leave.Click();
  Open(Action::RoomProgram);
  FinishTransfer();
  Program().room.Pick(1);
  Day(1).day.Choose();
  EXPECT_EQ(Row(0).from.caption, "06:30");
  EXPECT_EQ(Row(0).setpoint.caption, "21");
  std::string all;
  for (const auto& unit : module.sent()) all += unit.text.substr(1);
  for (const char* text :
       {"2000040\r", "2010255\r", "5064066\r", "5065004\r", "3097030\r", "4048021\r"}) {
    EXPECT_NE(all.find(text), std::string::npos) << text;
  }
}

}  // namespace
}  // namespace bkconf
