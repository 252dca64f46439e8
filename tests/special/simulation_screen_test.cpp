#include "special/simulation_screen_test.h"

#include <gtest/gtest.h>

#include "image/file_lines.h"
#include "shell/module_file.h"

namespace bkconf {
namespace {

using Names = std::vector<std::string>;

// --- What opens it, and its words ---------------------------------------------------------------

struct Caption {
  const std::string& shown;
  std::string dutch;
  std::string french;
};

void ExpectCaptions(const std::vector<Caption>& rows, int language) {
  for (const Caption& row : rows) EXPECT_EQ(row.shown, language == 1 ? row.dutch : row.french);
}

TEST_F(SimulationScreenTest, CaptionsAreDutchOrFrench) {
  for (const int language : {1, 2}) {
    Open(language);
    ExpectCaptions(
        {
            {SimulationScreen.title, "Simulatiemodule KR7170 <adres = C>",
             "Module simulation KR7170 <adresse = C>"},
            {SimulationScreen.frame.caption,
             "Simulatie instellingen:", "Confuguration simulation:"},
            {SimulationScreen.conditionsGroup.caption, "Condities:", "Conditions:"},
            {SimulationScreen.sensitivityGroup.caption, "Gevoeligheid:", "Sensibilité:"},
            {SimulationScreen.participantsGroup.caption, "Deelnemende acties", "Les actions"},
            {SimulationScreen.participants.toolTip, "Dubbelklik om te editeren !",
             "Double-clicker pour éditer !"},
            {SimulationScreen.stateGroup.caption, "Status:", "Status:"},
            {SimulationScreen.leave.caption, "Verlaten", "Quitter"},
        },
        language);
  }
}

TEST_F(SimulationScreenTest, TheConditionsHaveTheWordsOfADetectorButOne) {
  const ConditionFields& conditions = SimulationScreen.conditions;
  for (const int language : {1, 2}) {
    Open(language);
    ExpectCaptions(
        {
            {conditions.noCondition.caption, "Geen conditie", "Sans condition"},
            {conditions.lightGroup.caption, "Licht:", "Lumière:"},
            {conditions.noLight.caption, "Geen", "Pas"},
            {conditions.levelLabel.caption, "Lichtsterkte", "Luminosité"},
            {conditions.timeGroup.caption, "Tijd:", "Temps:"},
            {conditions.periods[0].label.caption, "Periode 1", "Période 1"},
            {conditions.periods[1].label.caption, "Periode 2", "Période 2"},
            {conditions.both.caption, "EN", "ET"},
            {conditions.either.caption, "OF", "OU"},
        },
        language);
    for (const PeriodFields& period : conditions.periods) {
      ExpectCaptions(
          {
              {period.none.caption, "Geen", "Pas"},
              {period.fromLabel.caption, "Van               uur", "De                Hre"},
              {period.toLabel.caption, "Tot                uur", "A                  Hre"},
          },
          language);
    }
  }
}

TEST_F(SimulationScreenTest, TheTitleHasTheLetterOfTheModule) {
  for (const char letter : {'A', 'R'}) {
    Open(1, letter);
    EXPECT_EQ(SimulationScreen.title,
              std::string("Simulatiemodule KR7170 <adres = ") + letter + ">");
  }
}

TEST_F(SimulationScreenTest, OpensOnAModuleThatWasRead) {
  Start();
  auto& cells = Plug(7).memory().Cells("SimulationImage");
  cells[123] = 1;
  cells[125] = 33;
  cells[132] = 3;
  cells[135] = 'K';
  cells[136] = 11;
  ReadModule();
  EXPECT_FALSE(SimulationScreen.shown);
  OpenAgain();
  EXPECT_TRUE(SimulationScreen.shown && SimulationScreen.state.checked);
  EXPECT_EQ(SimulationScreen.conditions.level.Text(), "33");
  EXPECT_EQ(SimulationScreen.sensitivity.Value(), 3);
  EXPECT_EQ(Shown(0), "K12");
}

TEST_F(SimulationScreenTest, OpensOnAFileAndShowsTheModel) {
  Start();
  files.content["/house/a.BK1"] = FileOf(7, [](int place) { return place == 125 ? 60 : 1; });
  OpenModule("/house/a.BK1");
  MainWindow.moduleList.Show("");
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  EXPECT_TRUE(SimulationScreen.shown && SimulationScreen.state.checked);
  EXPECT_EQ(MainWindow.moduleList.Text(), "KR7170");
  EXPECT_TRUE(SimulationScreen.conditions.noLight.checked);
  EXPECT_EQ(SimulationScreen.sensitivity.Value(), 1);
  ExpectOnlyChanged(before, {});
}

TEST_F(SimulationScreenTest, LeavingOrClosingLeavesTheImageAsItStands) {
  for (const bool byButton : {true, false}) {
    Open();
    SimulationScreen.state.Set(true);
    const Snapshot before = TakeSnapshot();
    if (byButton) {
      SimulationScreen.leave.Click();
    } else {
      SimulationScreen.Close();
    }
    EXPECT_FALSE(SimulationScreen.shown);
    ExpectOnlyChanged(before, {});
  }
}

TEST_F(SimulationScreenTest, ANewImageHasNoParticipantsAndItsCellsStay) {
  StartWithImage(7);
  MainWindow.send.enabled = false;
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  for (int participant = 0; participant < 25; ++participant) EXPECT_EQ(Shown(participant), "*");
  EXPECT_EQ(SimulationScreen.participants.Rows(), 5);
  EXPECT_EQ(SimulationScreen.participants.columns.size(), 5U);
  EXPECT_FALSE(SimulationScreen.state.checked);
  EXPECT_FALSE(SimulationScreen.editGroup.visible);
  ExpectOnlyChanged(before, {});
  ExpectSignal(false);
}

// --- State --------------------------------------------------------------------------------------

TEST_F(SimulationScreenTest, TheStateIsStoredAsOneOrNought) {
  Open();
  const Snapshot before = TakeSnapshot();
  SimulationScreen.state.Set(true);
  EXPECT_EQ(At(123), Cell(1));
  ExpectOnlyChanged(before, {NameOf(123)});
  ExpectSignal(true);
  SimulationScreen.state.Set(false);
  EXPECT_EQ(At(123), Cell(0));
  ExpectOnlyChanged(before, {});
  ExpectSignal(true);
}

TEST_F(SimulationScreenTest, TheStateSaysWhatItIs) {
  for (const int language : {1, 2}) {
    const std::string on = language == 1 ? " Simulatie aan" : " Simulation ON";
    const std::string off = language == 1 ? " Simulatie uit" : " Simulation OFF";
    Open(language);
    EXPECT_EQ(SimulationScreen.state.caption, off);
    SimulationScreen.state.Set(true);
    EXPECT_EQ(SimulationScreen.state.caption, on);
    OpenAgain();
    EXPECT_EQ(SimulationScreen.state.caption, on);
    SimulationScreen.state.Set(false);
    EXPECT_EQ(SimulationScreen.state.caption, off);
  }
}

TEST_F(SimulationScreenTest, AnotherValueOfTheStateLooksLikeOffAndStays) {
  Open();
  for (const Cell& value : {Cell(2), Cell(42), Cell(255), Cell(), Cell("word")}) {
    At(123) = value;
    OpenAgain();
    EXPECT_FALSE(SimulationScreen.state.checked);
    EXPECT_EQ(SimulationScreen.state.caption, " Simulatie uit");
    EXPECT_EQ(At(123), value);
  }
  At(123) = "1";
  OpenAgain();
  EXPECT_TRUE(SimulationScreen.state.checked);
}

// --- Sensitivity --------------------------------------------------------------------------------

const Names Sensitivities[] = {{"Zeer hoog", "Hoog", "Gemiddeld", "Laag", "Zeer laag"},
                               {"Très haute", "Haute", "Moyenne", "Bas", "Très bas"}};

TEST_F(SimulationScreenTest, TheSensitivityIsShownFromItsCell) {
  for (const int language : {1, 2}) {
    Open(language);
    EXPECT_EQ(SimulationScreen.sensitivity.lowest, 0);
    EXPECT_EQ(SimulationScreen.sensitivity.highest, 4);
    for (int place = 0; place <= 4; ++place) {
      At(132) = place % 2 == 0 ? Cell(place) : Cell(std::to_string(place));
      OpenAgain();
      EXPECT_EQ(SimulationScreen.sensitivity.Value(), place);
      EXPECT_EQ(SimulationScreen.sensitivityText.caption,
                Sensitivities[language - 1].at(static_cast<std::size_t>(place)));
    }
  }
  ExpectSignal(false);
}

TEST_F(SimulationScreenTest, TheSensitivityIsStoredWhereTheHandleIsMovedTo) {
  for (const int language : {1, 2}) {
    Open(language);
    const Snapshot before = TakeSnapshot();
    for (const int place : {4, 0, 3, 1, 2}) {
      SimulationScreen.sensitivity.Move(place);
      EXPECT_EQ(At(132), Cell(place));
      EXPECT_EQ(SimulationScreen.sensitivityText.caption,
                Sensitivities[language - 1].at(static_cast<std::size_t>(place)));
      ExpectSignal(true);
    }
    SimulationScreen.sensitivity.Move(4);
    ExpectOnlyChanged(before, {NameOf(132)});
  }
}

TEST_F(SimulationScreenTest, ASensitivityBeyondTheHandleIsShownAtTheNearestEndAndStays) {
  Open();
  for (const Cell& value : {Cell(5), Cell(42), Cell(255), Cell(-1), Cell("9")}) {
    At(132) = value;
    OpenAgain();
    const bool low = value.Number() < 0;
    EXPECT_EQ(SimulationScreen.sensitivity.Value(), low ? 0 : 4);
    EXPECT_EQ(SimulationScreen.sensitivityText.caption, low ? "Zeer hoog" : "Zeer laag");
    EXPECT_EQ(At(132), value);
  }
  ExpectSignal(false);
  SimulationScreen.sensitivity.Move(3);
  EXPECT_EQ(At(132), Cell(3));
}

// --- Conditions ---------------------------------------------------------------------------------

TEST_F(SimulationScreenTest, TheConditionsAreShownFromTheirCells) {
  Open();
  At(125) = 33;
  At(126) = "1";
  At(127) = 2;
  At(128) = 3;
  At(129) = "24";
  At(130) = 0;
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  const ConditionFields& conditions = SimulationScreen.conditions;
  EXPECT_EQ(conditions.level.Text(), "33");
  EXPECT_EQ(conditions.periods[0].from.Text(), "1");
  EXPECT_EQ(conditions.periods[0].to.Text(), "2");
  EXPECT_EQ(conditions.periods[1].from.Text(), "3");
  EXPECT_EQ(conditions.periods[1].to.Text(), "24");
  EXPECT_TRUE(conditions.either.Chosen());
  EXPECT_FALSE(conditions.noCondition.checked);
  ExpectOnlyChanged(before, {});
}

TEST_F(SimulationScreenTest, AnImageWithoutConditionsSaysSo) {
  Open();
  EXPECT_TRUE(SimulationScreen.conditions.noCondition.checked);
  EXPECT_FALSE(SimulationScreen.conditions.lightGroup.visible);
  for (int cell = 125; cell <= 130; ++cell) {
    const Cell stored = At(cell);
    At(cell) = cell == 130 ? 0 : 7;
    OpenAgain();
    EXPECT_FALSE(SimulationScreen.conditions.noCondition.checked) << cell;
    At(cell) = stored;
  }
}

TEST_F(SimulationScreenTest, ALevelOfSixtyIsNoneAlthoughTheListEndsAtFifty) {
  Open();
  At(130) = 0;
  OpenAgain();
  EXPECT_TRUE(SimulationScreen.conditions.noLight.checked);
  EXPECT_EQ(SimulationScreen.conditions.level.Text(), "");
  EXPECT_EQ(SimulationScreen.conditions.level.items.size(), 50U);
  At(125) = 50;
  OpenAgain();
  EXPECT_FALSE(SimulationScreen.conditions.noLight.checked);
  EXPECT_EQ(SimulationScreen.conditions.level.Text(), "50");
}

TEST_F(SimulationScreenTest, PicksOfTheConditionsAreStoredAsText) {
  Open();
  ConditionFields& conditions = SimulationScreen.conditions;
  const Snapshot before = TakeSnapshot();
  conditions.noCondition.Set(false);
  conditions.noLight.Set(false);
  conditions.periods[0].none.Set(false);
  conditions.periods[1].none.Set(false);
  ExpectOnlyChanged(before, {});
  ExpectSignal(false);
  conditions.level.Pick(6);
  conditions.periods[0].from.Pick(6);
  // Until a "to" is picked the period ends the day.
  EXPECT_EQ(At(127), Cell(24));
  conditions.periods[0].to.Pick(7);
  conditions.periods[1].from.Pick(21);
  conditions.periods[1].to.Pick(22);
  conditions.either.Choose();
  EXPECT_EQ(At(125), Cell("7"));
  EXPECT_EQ(At(126), Cell("6"));
  EXPECT_EQ(At(127), Cell("8"));
  EXPECT_EQ(At(128), Cell("21"));
  EXPECT_EQ(At(129), Cell("23"));
  EXPECT_EQ(At(130), Cell(0));
  ExpectOnlyChanged(before,
                    {NameOf(125), NameOf(126), NameOf(127), NameOf(128), NameOf(129), NameOf(130)});
  ExpectSignal(true);
}

TEST_F(SimulationScreenTest, TheSwitchesOfTheConditionsStoreNumbers) {
  Open();
  ConditionFields& conditions = SimulationScreen.conditions;
  const auto fill = [] {
    for (int cell = 125; cell <= 129; ++cell) At(cell) = std::to_string(cell - 120);
    At(130) = 0;
    OpenAgain();
  };
  fill();
  Snapshot before = TakeSnapshot();
  conditions.noLight.Set(true);
  ExpectOnlyChanged(before, {NameOf(125)});
  EXPECT_EQ(At(125), Cell(60));
  before = TakeSnapshot();
  conditions.periods[1].none.Set(true);
  ExpectOnlyChanged(before, {NameOf(128), NameOf(129)});
  before = TakeSnapshot();
  conditions.periods[0].none.Set(true);
  ExpectOnlyChanged(before, {NameOf(126), NameOf(127)});
  EXPECT_EQ(At(130), Cell(0));
  fill();
  before = TakeSnapshot();
  conditions.noCondition.Set(true);
  ExpectOnlyChanged(before,
                    {NameOf(125), NameOf(126), NameOf(127), NameOf(128), NameOf(129), NameOf(130)});
  const int none[] = {60, 0, 25, 0, 25, 1};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(At(125 + i), Cell(none[i])) << 125 + i;
  ExpectSignal(true);
}

TEST_F(SimulationScreenTest, AFromHourThatIsNotBeforeTheToHourIsRefused) {
  Open();
  for (int cell = 125; cell <= 129; ++cell) At(cell) = cell - 120;
  At(130) = 0;
  OpenAgain();
  const Snapshot before = TakeSnapshot();
  SimulationScreen.conditions.periods[1].from.Pick(9);
  EXPECT_EQ(At(128), Cell(0));
  EXPECT_EQ(At(129), Cell(25));
  EXPECT_EQ(At(130), Cell(1));
  ExpectOnlyChanged(before, {NameOf(128), NameOf(129), NameOf(130)});
  EXPECT_TRUE(SimulationScreen.conditions.periods[1].none.checked);
  EXPECT_TRUE(SimulationScreen.conditions.both.Chosen());
  SimulationScreen.conditions.periods[0].to.Pick(4);
  EXPECT_EQ(At(127), Cell(24));
  EXPECT_EQ(SimulationScreen.conditions.periods[0].to.Text(), "");
  EXPECT_TRUE(messages.told.empty());
}

TEST_F(SimulationScreenTest, TheConditionsTakeNoTypedText) {
  Open();
  At(125) = 30;
  At(126) = 3;
  At(127) = 7;
  At(130) = 0;
  OpenAgain();
  ConditionFields& conditions = SimulationScreen.conditions;
  const Snapshot before = TakeSnapshot();
  for (const char* text : {"5", "99", "", "x"}) {
    conditions.level.Type(text);
    conditions.periods[0].from.Type(text);
    conditions.periods[0].to.Type(text);
    EXPECT_EQ(conditions.level.Text(), "30");
    EXPECT_EQ(conditions.periods[0].from.Text(), "3");
    EXPECT_EQ(conditions.periods[0].to.Text(), "7");
  }
  ExpectOnlyChanged(before, {});
  ExpectSignal(false);
}

// --- The module ---------------------------------------------------------------------------------

/// A change of each part of the screen.
void EditEverything() {
  SimulationScreen.state.Set(true);
  SimulationScreen.sensitivity.Move(0);
  SimulationScreen.sensitivity.Move(3);
  ConditionFields& conditions = SimulationScreen.conditions;
  conditions.noCondition.Set(false);
  conditions.noLight.Set(false);
  conditions.level.Pick(6);
  conditions.periods[0].none.Set(false);
  conditions.periods[0].from.Pick(9);
  SimulationScreen.participants.DoubleClick(5, 4);
  SimulationScreen.letter.Pick(0);
  SimulationScreen.type.Pick(0);
  SimulationScreen.switches[11]->Set(true);
  SimulationScreen.editConfirm.Click();
  SimulationScreen.participants.DoubleClick(5, 4);
  SimulationScreen.letter.Pick(18);
  SimulationScreen.number.Pick(6);
  SimulationScreen.editConfirm.Click();
}

TEST_F(SimulationScreenTest, WhatWasEditedGoesToTheModuleWithTheNextSend) {
  Start();
  auto& module = Plug(7);
  auto& memory = module.memory().Cells("SimulationImage");
  memory[121] = 'K';
  std::fill(memory.begin() + 125, memory.end(), 42);
  const int none[] = {60, 0, 25, 0, 25, 1};
  std::copy(std::begin(none), std::end(none), memory.begin() + 125);
  ReadModule();
  OpenAgain();
  EditEverything();
  std::vector<int> expected;
  for (int cell = 0; cell < SimulationImage.Size(); ++cell) expected.push_back(At(cell).Whole());
  const std::size_t received = module.received().size();
  SendToModule();
  EXPECT_EQ(MainWindow.status.caption, "Ready");
  EXPECT_EQ(module.memory().Cells("SimulationImage"), expected);
  std::map<int, std::string> frames;
  for (std::size_t i = received; i < module.received().size(); ++i) {
    const auto& record = module.received()[i];
    if (record.kind == virtual_module::UnitKind::Frame) frames[record.cell] = record.text;
  }
  // The second block of cells counts its frames anew.
  const std::map<int, std::string> edited = {
      {123, "T123001\n\r"}, {125, "T000007\n\r"}, {126, "T001009\n\r"},
      {127, "T002024\n\r"}, {132, "T007003\n\r"}, {135, "T010065\n\r"},
      {136, "T011011\n\r"}, {137, "T012083\n\r"}, {138, "T013006\n\r"}};
  for (const auto& [cell, frame] : edited) EXPECT_EQ(frames[cell], frame) << cell;
}

TEST_F(SimulationScreenTest, TheFormsOfTheCellsStandInTheFile) {
  Open();
  EditEverything();
  SaveModuleAs("/house", "a");
  const Names lines = LinesOf(files.content["/house/a.BK1"]);
  const std::map<int, std::string> expected = {
      {123, " 1 "},  {125, "7"},   {126, "9"},    {127, " 24 "}, {128, " 0 "},
      {129, " 25 "}, {130, " 1 "}, {132, " 3 "},  {135, " 65 "}, {136, "11"},
      {137, " 83 "}, {138, " 6 "}, {139, " 42 "}, {140, " 42 "}};
  for (const auto& [cell, form] : expected) {
    EXPECT_EQ(lines[static_cast<std::size_t>(1 + cell)], form) << cell;
  }
  // Opened again they are numbers, and look the same.
  OpenModule("/house/a.BK1");
  OpenAgain();
  EXPECT_EQ(At(136), Cell(11));
  EXPECT_EQ(AllShown(), "A12 S07");
  EXPECT_EQ(SimulationScreen.conditions.level.Text(), "7");
  EXPECT_EQ(SimulationScreen.conditions.periods[0].from.Text(), "9");
  EXPECT_EQ(SimulationScreen.conditions.periods[0].to.Text(), "24");
}

}  // namespace
}  // namespace bkconf
