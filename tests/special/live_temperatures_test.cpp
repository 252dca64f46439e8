#include <gtest/gtest.h>

#include "image/tables.h"
#include "link/receive_dispatcher.h"
#include "link/transfer.h"
#include "platform/runtime_error.h"
#include "special/temperature_screen_test.h"

namespace bkconf {
namespace {

using Texts = std::vector<std::string>;
using virtual_module::Fault;

/// The look with the temperatures of this moment.
class LiveTemperaturesTest : public TemperatureScreenTest {
 protected:
  /// A module whose rooms report these values.
  virtual_module::Module& ReadWith(const std::vector<int>& values, int rooms = 8,
                                   int language = 1) {
    auto& module = Read(rooms, language);
    Report(module, values);
    return module;
  }
  static void Report(virtual_module::Module& module, const std::vector<int>& values) {
    std::copy(values.begin(), values.end(), module.memory().Cells("TempRoomIds").begin() + 64);
  }
  /// Reads a module whose temperatures end before the last room, up to the moment at which the
  /// screen shows itself.
  void BeginShortRead() {
    Read(8);
    Plug(2, Fault::ShortStream);
    Open(Action::LiveTemperatures);
    AwaitScreen();
  }
  static Texts Lines() {
    Texts lines;
    for (const auto& room : TemperatureScreen.live.rooms) lines.push_back(room->caption);
    return lines;
  }
};

TEST_F(LiveTemperaturesTest, EachRoomTellsItsTemperature) {
  ReadWith({21, 0, 7, 40, 15, 95, 100, 255});
  Open(Action::LiveTemperatures);
  FinishTransfer();
  EXPECT_EQ(Lines(),
            (Texts{"Ruimte 1 = 21°C", "Ruimte 2 = 0°C", "Ruimte 3 = 7°C", "Ruimte 4 = 40°C",
                   "Ruimte 5 = 15°C", "Ruimte 6 = 95°C", "Ruimte 7 = 100°C", "Ruimte 8 = 255°C"}));
  ReadWith({21, 0, 7, 40, 15, 95, 100, 255}, 8, 2);
  Open(Action::LiveTemperatures);
  FinishTransfer();
  EXPECT_EQ(Lines()[0], "Pièce 1 = 21°C");
  EXPECT_EQ(Lines()[7], "Pièce 8 = 255°C");
}

TEST_F(LiveTemperaturesTest, WhatIsWrongWithARoomIsTold) {
  ReadWith({99, 98, 97, 96, 99, 98, 97, 96});
  Open(Action::LiveTemperatures);
  FinishTransfer();
  EXPECT_EQ(
      Lines(),
      (Texts{"Ruimte 1 : Negatieve temperatuur !!",
             "Ruimte 2 : ID nr. van Tempsensor niet juist of niet gevonden !",
             "Ruimte 3 : ID nr. van Led niet juist of niet gevonden !",
             "Ruimte 4 : ID nr. van Tempsensor EN Led niet juist of niet gevonden !",
             "Ruimte 5 : Neg !!", "Ruimte 6 : ID nr. van Tempsensor niet juist of niet gevonden !",
             "Ruimte 7 : ID nr. van Led niet juist of niet gevonden !",
             "Ruimte 8 : ID nr. van Tempsensor EN Led niet juist of niet gevonden !"}));
  ReadWith({99, 98, 97, 96, 99, 98, 97, 96}, 8, 2);
  Open(Action::LiveTemperatures);
  FinishTransfer();
  EXPECT_EQ(
      Lines(),
      (Texts{"Pièce 1 : Température négative !!",
             "Pièce 2 : Nr. ID du capt. de temp pas correct ou pas trouvé !",
             "Pièce 3 : Nr. ID du Led pas correct ou pas trouvé !",
             "Pièce 4 : Nr. ID du capt. de temp ET Led pas correct ou pas trouvé !",
             "Pièce 5 : Neg !!", "Pièce 6 : Nr. ID du capt. de temp pas correct ou pas trouvé !",
             "Pièce 7 : Nr. ID du Led pas correct ou pas trouvé !",
             "Pièce 8 : Nr. ID du capt. de temp ET Led pas correct ou pas trouvé !"}));
}

TEST_F(LiveTemperaturesTest, TheFirstRoomTellsEachTroubleAndOnlyItTellsFrostAtLength) {
  ReadWith({98, 99, 99, 99, 99, 99, 99, 99});
  Open(Action::LiveTemperatures);
  FinishTransfer();
  EXPECT_EQ(Lines()[0], "Ruimte 1 : ID nr. van Tempsensor niet juist of niet gevonden !");
  for (std::size_t room = 1; room < 8; ++room) {
    EXPECT_EQ(Lines()[room], "Ruimte " + std::to_string(room + 1) + " : Neg !!");
  }
}

TEST_F(LiveTemperaturesTest, RoomsThatTheModuleDoesNotHaveAreDashes) {
  for (const int rooms : {1, 3, 7}) {
    ReadWith({21, 22, 23, 99, 98, 97, 96, 24}, rooms);
    Open(Action::LiveTemperatures);
    FinishTransfer();
    for (int room = 0; room < 8; ++room) {
      EXPECT_EQ(Lines()[static_cast<std::size_t>(room)] == "---", room >= rooms) << rooms << room;
    }
  }
}

TEST_F(LiveTemperaturesTest, ThePhasesAreToldInTheScreenAndInTheMainWindow) {
  for (const int language : {1, 2}) {
    const bool dutch = language == 1;
    ReadWith({21, 21, 21, 21, 21, 21, 21, 21}, 8, language);
    Open(Action::LiveTemperatures);
    const char* moment = dutch ? "Even geduld a.u.b. ..." : "Un moment s.v.p. ...";
    EXPECT_FALSE(TemperatureScreen.shown);
    EXPECT_EQ(TemperatureScreen.status.caption, moment);
    EXPECT_EQ(MainWindow.status.caption, dutch ? "Module zoeken..." : "Recherche module...");
    EXPECT_FALSE(MainWindow.connect.enabled || MainWindow.send.enabled);
    EXPECT_FALSE(MainWindow.bestand.enabled || AllVisibleActionsEnabled());
    AwaitScreen();
    EXPECT_EQ(TemperatureScreen.status.caption, moment);
    EXPECT_EQ(MainWindow.status.caption,
              dutch ? "Opvragen temperaturen..." : "Demander les températures...");
    EXPECT_TRUE(TemperatureScreen.bar.visible);
    EXPECT_FALSE(MainWindow.transferBar.visible);
    EXPECT_EQ(TemperatureScreen.bar.Maximum(), 8);
    EXPECT_EQ(Lines(), Texts(8, ""));
    TempRoomIds[71] = Cell();
    ASSERT_TRUE(clock.RunUntil([] { return !TempRoomIds[71].IsEmpty(); }, 60'000));
    EXPECT_EQ(TemperatureScreen.status.caption,
              dutch ? "Actuele temperaturen" : "Températures actuelles");
    EXPECT_EQ(MainWindow.status.caption, "Edit mode");
    EXPECT_FALSE(TemperatureScreen.bar.visible);
    EXPECT_EQ(TemperatureScreen.bar.Value(), 8);
    EXPECT_TRUE(MainWindow.connect.enabled && MainWindow.send.enabled);
    EXPECT_TRUE(AllVisibleActionsEnabled());
    EXPECT_FALSE(MainWindow.bestand.enabled);
    FinishTransfer();
    EXPECT_TRUE(MainWindow.bestand.enabled && MainWindow.moduleList.enabled);
    EXPECT_EQ(TemperatureScreen.title, dutch ? "Temperatuurmodule KR7150 <adres = C>"
                                             : "Module température KR7150 <adresse = C>");
    EXPECT_TRUE(TemperatureScreen.live.group.visible);
    EXPECT_FALSE(Ids().group.visible || Program().group.visible);
    TemperatureScreen.leave.Click();
  }
}

TEST_F(LiveTemperaturesTest, OnlyTheSlotsOfTheTemperaturesChange) {
  ReadWith({21, 22, 23, 24, 25, 26, 27, 28});
  const Snapshot before = TakeSnapshot();
  Open(Action::LiveTemperatures);
  FinishTransfer();
  ExpectOnlyChanged(before, {"TempRoomIds[64..71]", "PendingCommand"});
  for (int room = 0; room < 8; ++room) EXPECT_EQ(TempRoomIds[64 + room], Cell(21 + room));
}

TEST_F(LiveTemperaturesTest, TheModuleIsAskedEachTime) {
  auto& module = ReadWith({21, 21, 21, 21, 21, 21, 21, 21});
  Open(Action::LiveTemperatures);
  FinishTransfer();
  TemperatureScreen.leave.Click();
  Report(module, {22, 22, 22, 22, 22, 22, 22, 22});
  Open(Action::LiveTemperatures);
  AwaitScreen();
  EXPECT_EQ(Lines(), Texts(8, ""));
  FinishTransfer();
  EXPECT_EQ(Lines()[7], "Ruimte 8 = 22°C");
  EXPECT_EQ(module.completedReads(), 3);
}

TEST_F(LiveTemperaturesTest, AnImageFromAFileAsksTheModuleToo) {
  StartWithRooms(2);
  Report(Plug(2), {21, 22, 23, 24, 25, 26, 27, 28});
  Open(Action::LiveTemperatures);
  FinishTransfer();
  EXPECT_EQ(Lines(), (Texts{"Ruimte 1 = 21°C", "Ruimte 2 = 22°C", "---", "---", "---", "---", "---",
                            "---"}));
}

TEST_F(LiveTemperaturesTest, TheWayOutStaysOpenAndWhatComesLaterShowsNoScreen) {
  ReadWith({21, 21, 21, 21, 21, 21, 21, 21});
  const std::string title = MainWindow.title;
  Open(Action::LiveTemperatures);
  AwaitScreen();
  EXPECT_TRUE(TemperatureScreen.leave.enabled);
  TemperatureScreen.leave.Click();
  EXPECT_FALSE(TemperatureScreen.shown);
  EXPECT_EQ(MainWindow.title, title);
  EXPECT_FALSE(MainWindow.connect.enabled);
  FinishTransfer();
  EXPECT_FALSE(TemperatureScreen.shown);
  EXPECT_EQ(MainWindow.title, title);
  EXPECT_EQ(TempRoomIds[71], Cell(21));
  EXPECT_FALSE(TemperatureScreen.bar.visible);
  EXPECT_EQ(Window.bar, &MainWindow.transferBar);
  EXPECT_TRUE(MainWindow.connect.enabled && MainWindow.bestand.enabled);
}

TEST_F(LiveTemperaturesTest, LeavingBehindAReadThatEndedShortGivesTheBarBack) {
  BeginShortRead();
  FinishTransfer();
  ASSERT_EQ(Window.bar, &TemperatureScreen.bar);
  TemperatureScreen.leave.Click();
  EXPECT_FALSE(TemperatureScreen.shown || TemperatureScreen.bar.visible);
  EXPECT_EQ(Window.bar, &MainWindow.transferBar);
}

TEST_F(LiveTemperaturesTest, BehindAReadThatEndedShortTheNextTransfersShowTheirBars) {
  for (const bool leftBefore : {false, true}) {
    ActiveModuleType = NoModule;
    BeginShortRead();
    if (!leftBefore) FinishTransfer();
    TemperatureScreen.leave.Click();
    FinishTransfer();
    const auto& module = Plug(2);
    MainWindow.connect.Click();
    EXPECT_TRUE(MainWindow.transferBar.visible);
    EXPECT_EQ(MainWindow.transferBar.Maximum(), 20'000);
    FinishTransfer();
    Open(Action::RoomIds);
    AwaitScreen();
    EXPECT_EQ(TemperatureScreen.bar.Maximum(), 146);
    FinishTransfer();
    EXPECT_EQ(TemperatureScreen.bar.Value(), 146);
    EXPECT_TRUE(TemperatureScreen.leave.enabled);
    for (int cell = 0; cell < 82; ++cell) {
      const auto place = static_cast<std::size_t>(cell);
      EXPECT_EQ(TempTail[cell], Cell(module.memory().Cells("TempTail")[place])) << cell;
    }
    TemperatureScreen.leave.Click();
  }
}

TEST_F(LiveTemperaturesTest, ClosingTheWindowLeavesAModuleThatSaysNoMore) {
  ReadWith({21, 22, 23, 24, 25, 26, 27, 28});
  const std::string title = MainWindow.title;
  Open(Action::LiveTemperatures);
  AwaitScreen();
  ASSERT_TRUE(clock.RunUntil([&] { return !Lines()[2].empty(); }, 60'000));
  line.module = nullptr;
  clock.Advance(60'000);
  ASSERT_TRUE(TransferUnderWay);
  const Snapshot before = TakeSnapshot();
  TemperatureScreen.Close();
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(TemperatureScreen.shown || TransferUnderWay);
  EXPECT_EQ(Window.bar, &MainWindow.transferBar);
  EXPECT_TRUE(MainWindow.connect.enabled && MainWindow.bestand.enabled);
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_EQ(MainWindow.title, title);
}

TEST_F(LiveTemperaturesTest, ClosingTheWindowBehindTheLastRoomLeavesNothing) {
  ReadWith({21, 22, 23, 24, 25, 26, 27, 28});
  Open(Action::LiveTemperatures);
  AwaitScreen();
  ASSERT_TRUE(clock.RunUntil([&] { return !Lines()[7].empty(); }, 60'000));
  TemperatureScreen.Close();
  EXPECT_FALSE(TemperatureScreen.shown);
  EXPECT_TRUE(TransferUnderWay);
  FinishTransfer();
  EXPECT_TRUE(MainWindow.bestand.enabled);
}

TEST_F(LiveTemperaturesTest, ARefusedModuleShowsNoScreen) {
  Read(3);
  Plug(3);
  Open(Action::LiveTemperatures);
  FinishTransfer();
  EXPECT_FALSE(TemperatureScreen.shown);
  EXPECT_EQ(messages.told.size(), 1U);
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
}

TEST_F(LiveTemperaturesTest, APortThatFailsLeavesTheRoomsThatHaveCome) {
  ReadWith({21, 22, 23, 24, 25, 26, 27, 28});
  Open(Action::LiveTemperatures);
  AwaitScreen();
  ASSERT_TRUE(clock.RunUntil([&] { return !Lines()[2].empty(); }, 60'000));
  line.failed = true;
  EXPECT_THROW(clock.Advance(10'000), RuntimeError);
  LeaveFailedTransfer();
  EXPECT_TRUE(TemperatureScreen.shown && TemperatureScreen.leave.enabled);
  EXPECT_EQ(TemperatureScreen.status.caption, "Edit mode");
  EXPECT_EQ(Lines(),
            (Texts{"Ruimte 1 = 21°C", "Ruimte 2 = 22°C", "Ruimte 3 = 23°C", "", "", "", "", ""}));
  EXPECT_FALSE(TemperatureScreen.bar.visible);
  TemperatureScreen.leave.Click();
  EXPECT_FALSE(TemperatureScreen.shown);
}

TEST_F(LiveTemperaturesTest, TheLinesOfAnotherReadShowNoTemperature) {
  Read(8);
  Open(Action::RoomIds);
  FinishTransfer();
  EXPECT_EQ(Lines(), Texts(8, ""));
}

TEST_F(LiveTemperaturesTest, ALineOfNoRoomShowsNothing) {
  Read(8);
  PendingCommand = "T83000";
  MainWindow.transferBar.Start(100);
  for (const char* text : {"M2000021", "M2063021"}) {
    RxLine = text;
    ReceiveDispatcher();
  }
  EXPECT_EQ(Lines(), Texts(8, ""));
  EXPECT_EQ(TempRoomIds[63], Cell(21));
}

TEST_F(LiveTemperaturesTest, ASendThatRepeatsItOpensNoScreenAndStoresTheTemperatures) {
  auto& module = ReadWith({21, 21, 21, 21, 21, 21, 21, 21});
  Open(Action::LiveTemperatures);
  FinishTransfer();
  TemperatureScreen.leave.Click();
  Report(module, {22, 22, 22, 22, 22, 22, 22, 22});
  MainWindow.send.Click();
  FinishTransfer();
  EXPECT_EQ(TempRoomIds[71], Cell(22));
  EXPECT_FALSE(TemperatureScreen.shown);
  EXPECT_EQ(Lines()[0], "Ruimte 1 = 21°C");
}

}  // namespace
}  // namespace bkconf
