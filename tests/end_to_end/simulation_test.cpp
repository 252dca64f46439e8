// The screen of the simulation module: its state and conditions, its sensitivity, and what takes
// part. Changed, sent, and kept in a file.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "end_to_end/special_stage.h"

namespace end_to_end {
namespace {

constexpr int simulationKind = 7;
constexpr const char* demoFile = "Simulatie I.BK1";
constexpr int participantColumns = 5;

const Writing bothBlocks = {.command = "T70000",
                            .runs = {{0, 123, 3}, {125, 184, 3}},
                            .tick = std::chrono::milliseconds(20),
                            .pause = std::chrono::seconds(1)};

class Simulation : public SpecialStage {
 protected:
  // The grid, from the first entry on; what is behind these is free.
  void AwaitParticipants(std::vector<std::string> participants) {
    constexpr std::size_t most = 25;
    participants.resize(most, "*");
    std::vector<std::string> rows;
    for (std::size_t each = 0; each < most; ++each) {
      if (each % participantColumns == 0) {
        rows.push_back(participants[each]);
      } else {
        rows.back() += "|" + participants[each];
      }
    }
    AwaitRows(rows);
  }
};

class SimulationInDutch : public Simulation {
 protected:
  static constexpr const char* title = "Simulatiemodule KR7170 <adres = I>";

  void OpenSimulation() { OpenScreen("Simulatie instellingen", title); }
  ListPlace Level() const { return {"Lichtsterkte", "Licht:"}; }
  ListPlace From(int period) const { return {"Van uur", "Tijd:", period}; }
  ListPlace To(int period) const { return {"Tot uur", "Tijd:", period}; }

  // For no second period: the last of three with that name.
  Widget NoSecondPeriod() { return AwaitField("check box", "Geen", 3); }

  void SetConditions() {
    AwaitListText(Level(), "15");
    PickItem(Level(), 6, "7");
    AwaitListText(From(2), "6");
    AwaitListText(To(2), "9");
    desktop().Click(NoSecondPeriod());
    AwaitListText(From(2), "");
    PickItem(From(1), 19, "19");
    AwaitChecked("radio button", "EN");
    ClickOn("radio button", "OF");
    AwaitChecked("radio button", "OF");
  }
  void MoveSliderByKeyboard() {
    AwaitText("Gemiddeld");
    TabTo("slider", "Gevoeligheid:");
    desktop().Press({"Right"});
    AwaitText("Laag");
    desktop().Press({"Right"});
    AwaitText("Zeer laag");
  }
  // Three outputs of a module at once, into the first entries that are free.
  void AddOutputs() {
    desktop().DoubleClick(AwaitPlace(4, 3, "*"));
    Await("panel", "Editeren:");
    PickItem({"Module:", "Editeren:"}, 1, "B");
    AwaitListText({"Type:", "Editeren:"}, "Module type?");
    EXPECT_FALSE(desktop().Find("check box", "01"));
    PickItem({"Type:", "Editeren:"}, 1, "Dimmodule");
    for (const char* output : {"12", "02", "05"}) {
      ClickOn("check box", output);
      AwaitChecked("check box", output);
    }
    AwaitChecked("check box", "01", false);
    ClickOn("push button", captions().confirm);
    AwaitGone("panel", "Editeren:");
  }
  void ExpectSet() {
    AwaitChecked("check box", "Simulatie aan");
    AwaitChecked("check box", "Geen conditie", false);
    AwaitListText(Level(), "7");
    AwaitListText(From(1), "19");
    AwaitListText(To(1), "24");
    EXPECT_TRUE(NoSecondPeriod().checked);
    AwaitChecked("radio button", "OF");
    AwaitText("Zeer laag");
    AwaitParticipants({"A01", "A07", "A08", "A09", "C01", "C02", "C03", "D01", "D03", "D05", "S02",
                       "B02", "B05", "B12"});
  }
  void PutSetCells() {
    PutCells(6, {'A', 4, 1});  // button 3
    PutCells(123, {1});        // state
    PutCells(125, {7, 19, 24, 0, 25, 0});
    PutCells(132, {4});  // sensitivity
    PutCells(135, {'A', 0,   'A', 6,   'A', 7,   'A', 8,   'C', 0,   'C', 1,   'C', 2,  'D',
                   0,   'D', 2,   'D', 4,   'S', 1,   'B', 1,   'B', 4,   'B', 11,  42, 42});
  }
};

TEST_F(SimulationInDutch, IsSetByMouseInTheModuleAndInTheFile) {
  ConnectTo(simulationKind, demoFile, dutch);
  OpenSimulation();
  ClickOn("check box", "Simulatie uit");
  SetConditions();
  MoveSliderByKeyboard();
  AddOutputs();
  AwaitParticipants({"A01", "A05", "A07", "A08", "A09", "C01", "C02", "C03", "D01", "D03", "D05",
                     "S02", "B02", "B05", "B12"});
  desktop().DoubleClick(AwaitPlace(0, 1, "A05"));
  ExpectSet();
  LeaveByButton(title);
  SetButtonByMouse(title, 3);
  PutSetCells();
  SendAndExpectWritten({bothBlocks});
  // By place among the frames: of each block what was changed.
  ExpectFrames("T70000", {{6, "T006065"},
                          {123, "T123001"},
                          {124, "T000007"},
                          {125, "T001019"},
                          {129, "T005000"},
                          {131, "T007004"},
                          {156, "T032066"},
                          {161, "T037011"},
                          {162, "T038042"},
                          {163, "T039042"}});
  const std::filesystem::path file = SaveAs("Vakantie");
  // What was picked in a list, and an output, is a text until the file is read.
  ExpectLines(file, {{125, "7"}, {126, "19"}, {158, "1"}, {160, "4"}, {162, "11"}});
  CloseTool();

  StartTool();
  OpenFile("Vakantie.BK1");
  OpenSimulation();
  ExpectSet();
  LeaveByButton(title, TitleOf(file));
  ExpectButton(title, 3, "A0501", TitleOf(file));
  ExpectLines(SaveAs("Nog"));
  CloseTool();
}

class SimulationInFrench : public Simulation {
 protected:
  static constexpr const char* title = "Module simulation KR7170 <adresse = I>";

  static std::map<int, int> OneParticipant() {
    std::map<int, int> cells = {{123, 1}};
    for (int cell = 137; cell <= 184; ++cell) cells[cell] = 42;
    return cells;
  }
  void OpenEditorByKeyboard() {
    TabTo([](const Widget& each) { return each.role == "table"; });
    desktop().Press({"Down", "Down", "Down", "Right", "Right"});
    desktop().Press({"Return"});
    Await("panel", "Editer:");
  }
  // A context and a code, which have no switches.
  void AddByKeyboard(int letter, const char* item, const char* type, const char* label, int number,
                     const char* shown) {
    OpenEditorByKeyboard();
    StepInList({"Module:", "Editer:"}, letter, item);
    AwaitListText({"Type:", "Editer:"}, type);
    EXPECT_FALSE(desktop().Find("check box", "01"));
    StepInList({label, "Editer:"}, number, shown);
    desktop().Press({"Return"});
    AwaitGone("panel", "Editer:");
  }
  void ExpectSet() {
    AwaitChecked("check box", "Simulation OFF", false);
    AwaitChecked("check box", "Sans condition");
    AwaitGone("panel", "Lumière:");
    AwaitGone("panel", "Temps:");
    AwaitText("Très haute");
    AwaitParticipants({"A01", "S07", "Z09"});
  }
  void PutSetCells() {
    PutCells(21, {'S', 6, 2});  // button 8
    PutCells(123, {0});
    PutCells(125, {60, 0, 25, 0, 25, 1});
    PutCells(132, {0});
    PutCells(137, {'S', 6, 'Z', 8});
  }
};

TEST_F(SimulationInFrench, IsSetByKeyboardKeptAndSentFromTheFile) {
  ConnectTo(simulationKind, demoFile, french, OneParticipant());
  PressButton("Configuration simulation");
  AwaitWindow(title);
  AwaitParticipants({"A01"});
  AwaitListText({"Luminosité", "Lumière:"}, "15");
  PressOn("check box", "Sans condition");
  PressOn("check box", "Simulation ON");
  TabTo("slider", "Sensibilité:");
  desktop().Press({"Home"});
  AddByKeyboard(18, "S", "Contexte", "Contexte:", 6, "7");
  AddByKeyboard(19, "Z", "Corvela", "Code:", 8, "09");
  ExpectSet();
  LeaveScreen(title);
  AwaitWindow(programName);
  SetButtonByKeyboard(title, 8);
  PutSetCells();
  const std::filesystem::path file = SaveAs("Vacances");
  ExpectLines(file, {{23, "02"}});

  ClickOnEntry(captions().fileMenu, captions().newEntry);
  AwaitWindow(programName);
  OpenFile("Vacances.BK1");
  OpenScreen("Configuration simulation", title);
  ExpectSet();
  LeaveByButton(title, TitleOf(file));
  ExpectButton(title, 8, "S0702", TitleOf(file));
  SendAndExpectWritten({bothBlocks});
  ExpectFrames("T70000", {{21, "T021083"},
                          {23, "T023002"},
                          {123, "T123000"},
                          {124, "T000060"},
                          {126, "T002025"},
                          {129, "T005001"},
                          {136, "T012083"},
                          {137, "T013006"},
                          {138, "T014090"},
                          {139, "T015008"},
                          {140, "T016042"}});
  CloseTool();
}

}  // namespace
}  // namespace end_to_end
