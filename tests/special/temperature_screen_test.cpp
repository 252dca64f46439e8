#include "special/temperature_screen_test.h"

#include <gtest/gtest.h>

#include "image/tables.h"
#include "link/transfer.h"

namespace bkconf {
namespace {

struct Caption {
  const std::string& shown;
  std::string dutch;
  std::string french;
};

std::vector<Caption> SharedCaptions() {
  return {
      {TemperatureScreen.title, "Temperatuurmodule KR7150 <adres = C>",
       "Module température KR7150 <adresse = C>"},
      {MainWindow.title, "Temperatuurmodule KR7150 <adres = C>",
       "Module température KR7150 <adresse = C>"},
      {TemperatureScreen.leave.caption, "Verlaten", "Quitter"},
      {TemperatureScreen.status.caption, "Edit mode", "Edit mode"},
  };
}

std::vector<Caption> IdCaptions() {
  RoomIdFields& ids = TemperatureScreen.ids;
  return {
      {ids.group.caption, "ID nummers en uitgangen kleppen:", "Numéros ID et sorties des vannes:"},
      {ids.idsGroup.caption, "ID nummers:", "Numéros ID:"},
      {ids.valvesGroup.caption, "Uitgangen kleppen:", "Sorties des vannes:"},
      {ids.own.caption, "     Module:", "     Module:"},
      {ids.other.caption, "     Bus:", "     Bus:"},
      {ids.sensor.label.caption, "Temp. sensor:", "Capt. de temp:"},
      {ids.led.label.caption, "LED:", "LED:"},
      {ids.letterLabel.caption, "Adres module:", "Adresse module:"},
      {ids.outputLabel.caption, "Uitgang:", "Sortie:"},
      {ids.room.Text(), "Ruimte ?", "Pièce ?"},
      {ids.valve.Text(), "Ruimte ?", "Pièce ?"},
  };
}

std::vector<Caption> ProgramCaptions() {
  RoomProgramFields& program = TemperatureScreen.program;
  std::vector<Caption> rows = {
      {program.group.caption,
       "Instellingen periodes en temperaturen:", "Paramétrage périodes et températures:"},
      {program.periodsGroup.caption, "Periodes:", "Périodes:"},
      {program.setpointsGroup.caption, "Temperaturen:", "Températures:"},
      {program.daysGroup.caption, "Weekdag:", "Jour:"},
      {program.room.Text(), "Ruimte ?", "Pièce ?"},
  };
  const std::pair<const char*, const char*> periods[] = {
      {"'s morgens:", "aube:"},     {"voormiddag:", "matin:"}, {"middag:", "midi:"},
      {"namiddag:", "après-midi:"}, {"avond:", "soir:"},       {"nacht:", "nuit:"}};
  for (std::size_t i = 0; i < 6; ++i) {
    rows.push_back({program.periods[i]->label.caption, periods[i].first, periods[i].second});
  }
  const std::pair<const char*, const char*> days[] = {
      {"Maandag", "Lundi"},   {"Dinsdag", "Mardi"},    {"Woensdag", "Mercredi"},
      {"Donderdag", "Jeudi"}, {"Vrijdag", "Vendredi"}, {"Zaterdag", "Samedi"},
      {"Zondag", "Dimanche"}};
  for (std::size_t i = 0; i < 7; ++i) {
    rows.push_back({program.days[i]->day.caption, days[i].first, days[i].second});
  }
  return rows;
}

void ExpectCaptions(const std::vector<Caption>& rows, int language) {
  for (const Caption& row : rows) EXPECT_EQ(row.shown, language == 1 ? row.dutch : row.french);
}

TEST_F(TemperatureScreenTest, CaptionsAreDutchOrFrench) {
  for (const int language : {1, 2}) {
    OpenIds(8, language);
    ExpectCaptions(SharedCaptions(), language);
    ExpectCaptions(IdCaptions(), language);
    OpenProgram(8, language);
    ExpectCaptions(SharedCaptions(), language);
    ExpectCaptions(ProgramCaptions(), language);
    EXPECT_EQ(TemperatureScreen.live.group.caption,
              language == 1 ? "Actuele temperaturen:" : "Températures actuelles:");
  }
}

TEST_F(TemperatureScreenTest, ThreeButtonsOpenThreeLooksAlsoOfAFile) {
  StartWithRooms();
  EXPECT_EQ(VisibleActions(), (std::vector<std::string>{"ID nummers en uitgangen kleppen",
                                                        "Instellingen periodes en temperaturen",
                                                        "Actuele temperaturen (diagnose)"}));
  EXPECT_TRUE(AllVisibleActionsEnabled());
  StartWithRooms(8, 2);
  EXPECT_EQ(VisibleActions(), (std::vector<std::string>{"Numéros ID et sorties des vannes",
                                                        "Paramétrage périodes et températures",
                                                        "Températures actuelles (diagnostics)"}));
}

TEST_F(TemperatureScreenTest, OnlyTheLookThatWasOpenedIsSeen) {
  OpenIds();
  EXPECT_TRUE(Ids().group.visible);
  EXPECT_FALSE(Program().group.visible || TemperatureScreen.live.group.visible);
  TemperatureScreen.leave.Click();
  Open(Action::RoomProgram);
  EXPECT_TRUE(Program().group.visible);
  EXPECT_FALSE(Ids().group.visible || TemperatureScreen.live.group.visible);
}

TEST_F(TemperatureScreenTest, WhatIsInMemoryOpensAtOnceWithoutTheLineAndChangesNoCell) {
  for (const Action look : {Action::RoomIds, Action::RoomProgram}) {
    StartWithRooms();
    const Snapshot before = TakeSnapshot();
    line.calls.clear();
    Open(look);
    EXPECT_TRUE(TemperatureScreen.shown);
    EXPECT_TRUE(TemperatureScreen.leave.enabled);
    EXPECT_FALSE(TemperatureScreen.bar.visible);
    EXPECT_TRUE(Ids().room.enabled || look != Action::RoomIds);
    EXPECT_TRUE(Program().room.enabled || look != Action::RoomProgram);
    EXPECT_EQ(line.calls, std::vector<std::string>());
    EXPECT_FALSE(TransferUnderWay);
    ExpectOnlyChanged(before, {});
  }
}

TEST_F(TemperatureScreenTest, LeavingGivesTheMainWindowItsTitleBackAndKeepsTheTables) {
  for (const bool byButton : {true, false}) {
    StartWithRooms();
    MainWindow.title = "TREVAN BK-CONF  -  /house/Attic/heating.BK1";
    Open(Action::RoomIds);
    EXPECT_EQ(MainWindow.title, TemperatureScreen.title);
    Ids().room.Pick(0);
    SensorByte(0).Pick(200);
    const Snapshot before = TakeSnapshot();
    if (byButton) {
      TemperatureScreen.leave.Click();
    } else {
      TemperatureScreen.Close();
    }
    EXPECT_FALSE(TemperatureScreen.shown);
    EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF  -  /house/Attic/heating.BK1");
    ExpectOnlyChanged(before, {});
    EXPECT_TRUE(MainWindow.send.enabled);
    EXPECT_EQ(line.AllWritten(), "");
  }
}

TEST_F(TemperatureScreenTest, TheTitleHasTheLetterThatTheModuleHasNow) {
  StartWithRooms();
  MainWindow.displayTemperature.address.Pick(17);
  Open(Action::RoomProgram);
  EXPECT_EQ(TemperatureScreen.title, "Temperatuurmodule KR7150 <adres = R>");
}

}  // namespace
}  // namespace bkconf
