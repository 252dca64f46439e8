#include "special/alarm_screen_test.h"

#include <gtest/gtest.h>

#include "image/tables.h"
#include "output/button_screen.h"

namespace bkconf {
namespace {

struct Caption {
  const std::string& shown;
  std::string dutch;
  std::string french;
};

void ExpectCaptions(const std::vector<Caption>& rows, int language) {
  for (const Caption& row : rows) EXPECT_EQ(row.shown, language == 1 ? row.dutch : row.french);
}

const std::vector<Caption>& ScreenCaptions() {
  static const std::vector<Caption> rows = {
      {AlarmScreen.title, "Alarmmodule KR7160 <adres = C>", "Module alarme KR7160 <adresse = C>"},
      {AlarmScreen.listLabel.caption, "Detectoren:", "Détecteurs:"},
      {AlarmScreen.settingsGroup.caption, "Instellingen:", "Modifications:"},
      {AlarmScreen.triggerGroup.caption,
       "Actie bij 'TRIGGER' de input.Status ROOD in diagnose! ROOD=Alarm/Trigger!",
       "Action contact ouvert:"},
      {AlarmScreen.endGroup.caption,
       "Actie bij 'EINDE TRIGGER'. Status GROEN in diagnose. GROEN=Rust!", "Action contact fermé:"},
      {AlarmScreen.triggerAction.toolTip, "Dubbelklik om te editeren !",
       "Double-clicker pour éditer !"},
      {AlarmScreen.endAction.toolTip, "Dubbelklik om te editeren !",
       "Double-clicker pour éditer !"},
      {AlarmScreen.atOnce.caption, "Onmiddellijke actie", "Action directe"},
      {AlarmScreen.delayLabel.caption, "Na een vertraging van", "Après un delai de"},
      {AlarmScreen.delayUnit.caption, "minuten", "minutes"},
      {AlarmScreen.leave.caption, "Verlaten", "Quitter"},
      {AlarmScreen.detector.Text(), "Detector ?", "Détecteur ?"},
  };
  return rows;
}

const std::vector<Caption>& ConditionCaptions() {
  static const ConditionFields& conditions = AlarmScreen.conditions;
  static const std::vector<Caption> rows = {
      {conditions.noCondition.caption, "Geen conditie", "Sans condition"},
      {conditions.lightGroup.caption, "Licht:", "Lumière:"},
      {conditions.noLight.caption, "Geen", "Pas"},
      {conditions.levelLabel.caption, "Donkerder dan:", "Luminosité"},
      {conditions.timeGroup.caption, "Tijd:", "Temps:"},
      {conditions.periods[0].label.caption, "Periode 1", "Période 1"},
      {conditions.periods[1].label.caption, "Periode 2", "Période 2"},
      {conditions.periods[0].none.caption, "Geen", "Pas"},
      {conditions.periods[1].none.caption, "Geen", "Pas"},
      {conditions.periods[0].fromLabel.caption, "Van               uur", "De                Hre"},
      {conditions.periods[1].fromLabel.caption, "Van               uur", "De                Hre"},
      {conditions.periods[0].toLabel.caption, "Tot                uur", "A                  Hre"},
      {conditions.periods[1].toLabel.caption, "Tot                uur", "A                  Hre"},
      {conditions.both.caption, "EN", "ET"},
      {conditions.either.caption, "OF", "OU"},
  };
  return rows;
}

const std::vector<Caption>& EditorCaptions() {
  static const std::vector<Caption> rows = {
      {AlarmScreen.editGroup.caption, "Editeren:", "Editer:"},
      {AlarmScreen.noAction.caption, "Geen actie", "Pas d'action"},
      {AlarmScreen.editConfirm.caption, "Bevestigen", "Confirmer"},
      {AlarmScreen.editLeave.caption, "Verlaten", "Quitter"},
      {AlarmScreen.picker.heading.caption, "Module             Type", "Module             Type"},
  };
  return rows;
}

TEST_F(AlarmScreenTest, CaptionsAreDutchOrFrench) {
  for (const int language : {1, 2}) {
    Open(language);
    ExpectCaptions(ScreenCaptions(), language);
    ExpectCaptions(ConditionCaptions(), language);
    ExpectCaptions(EditorCaptions(), language);
    for (const GridField* action : {&AlarmScreen.triggerAction, &AlarmScreen.endAction}) {
      ASSERT_EQ(action->columns.size(), 1U);
      EXPECT_EQ(action->columns[0].caption, language == 1 ? "Actie" : "Action");
      EXPECT_EQ(action->Rows(), 1);
    }
  }
}

TEST_F(AlarmScreenTest, TheServiceSwitchSaysWhatItIs) {
  for (const int language : {1, 2}) {
    Open(language);
    PickDetector(1);
    EXPECT_EQ(AlarmScreen.inService.caption, language == 1 ? "BUITEN DIENST!" : "hors service");
    AlarmScreen.inService.Set(true);
    EXPECT_EQ(AlarmScreen.inService.caption, language == 1 ? "Detector ACTIEF!" : "en service");
    AlarmScreen.inService.Set(false);
    EXPECT_EQ(AlarmScreen.inService.caption, language == 1 ? "BUITEN DIENST!" : "hors service");
  }
}

TEST_F(AlarmScreenTest, AllTwelveDetectorsAreListedWhateverTheNumberInUse) {
  for (const int inUse : {0, 1, 5, 12, 42}) {
    Open(1);
    AlarmImage[123] = inUse;
    OpenAgain();
    ASSERT_EQ(AlarmScreen.detector.items.size(), 12U);
    EXPECT_EQ(AlarmScreen.detector.items.front(), "Detector 1");
    EXPECT_EQ(AlarmScreen.detector.items.back(), "Detector 12");
    PickDetector(12);
    EXPECT_TRUE(AlarmScreen.settingsGroup.enabled);
  }
  Open(2);
  EXPECT_EQ(AlarmScreen.detector.items.front(), "Détecteur 1");
  EXPECT_EQ(AlarmScreen.detector.items.back(), "Détecteur 12");
}

TEST_F(AlarmScreenTest, TheDelaysAreMinutesUpToTwoHours) {
  Open();
  EXPECT_EQ(AlarmScreen.delay.items, NumberTexts(1, 120));
}

TEST_F(AlarmScreenTest, TheTitleHasTheLetterOfTheModule) {
  for (const char letter : {'A', 'K', 'R'}) {
    Open(1, letter);
    EXPECT_EQ(AlarmScreen.title, std::string("Alarmmodule KR7160 <adres = ") + letter + ">");
  }
}

TEST_F(AlarmScreenTest, OpeningShowsTheModelAndChangesNoCell) {
  Open();
  MainWindow.moduleList.Show("");
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  EXPECT_EQ(MainWindow.moduleList.Text(), "KR7160");
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

/// Everything that a person could use to change a cell.
std::vector<const Field*> EditingFields() {
  std::vector<const Field*> fields;
  for (const Field* field : AlarmScreen.fields) {
    const bool edits = field->kind == FieldKind::Check || field->kind == FieldKind::List ||
                       field->kind == FieldKind::Option || field->kind == FieldKind::Grid;
    const bool isEditor = field->name.starts_with("picker") || field == &AlarmScreen.noAction;
    if (edits && !isEditor && field != &AlarmScreen.detector) fields.push_back(field);
  }
  return fields;
}

TEST_F(AlarmScreenTest, WithNoDetectorChosenThereIsNothingToUse) {
  Open();
  PickDetector(1);
  AlarmScreen.inService.Set(true);
  OpenAgain();
  EXPECT_EQ(AlarmScreen.detector.Index(), -1);
  for (const Field* field : EditingFields()) EXPECT_FALSE(field->enabled) << field->name;
  for (const Field* field : std::initializer_list<const Field*>{
           &AlarmScreen.settingsGroup, &AlarmScreen.triggerGroup, &AlarmScreen.endGroup,
           &AlarmScreen.delayLabel, &AlarmScreen.delayUnit}) {
    EXPECT_FALSE(field->enabled) << field->name;
  }
  EXPECT_FALSE(AlarmScreen.inService.visible || AlarmScreen.inService.checked);
  EXPECT_EQ(TriggerText() + EndText() + AlarmScreen.delay.Text(), "");
  EXPECT_EQ(AlarmScreen.conditions.level.Text(), "");
  EXPECT_FALSE(AlarmScreen.atOnce.checked || AlarmScreen.conditions.noCondition.checked);
  EXPECT_FALSE(AlarmScreen.editGroup.visible);
  EXPECT_EQ(AlarmScreen.note.caption, "");
}

TEST_F(AlarmScreenTest, ChoosingADetectorLetsItBeEdited) {
  Open();
  PickDetector(1);
  for (const Field* field : std::initializer_list<const Field*>{
           &AlarmScreen.settingsGroup, &AlarmScreen.triggerGroup, &AlarmScreen.triggerAction,
           &AlarmScreen.endGroup, &AlarmScreen.endAction, &AlarmScreen.inService,
           &AlarmScreen.atOnce, &AlarmScreen.conditions.noCondition}) {
    EXPECT_TRUE(field->enabled && field->visible) << field->name;
  }
}

TEST_F(AlarmScreenTest, ANewImageShowsNoActionsAndItsCellsStay) {
  StartWithImage(5);
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  for (int detector = 1; detector <= 12; ++detector) {
    PickDetector(detector);
    EXPECT_EQ(TriggerText(), "***") << detector;
    EXPECT_EQ(EndText(), "***") << detector;
  }
  ExpectOnlyChanged(before, {});
}

TEST_F(AlarmScreenTest, ADetectorIsShownFromCellsOfItsOwn) {
  Open();
  for (int d = 0; d < 12; ++d) {
    AlarmImage[124 + d] = d + 1;
    AlarmImage[136 + d] = d % 2;
    Put(149 + 6 * d, {'A', d, 1});
    Put(152 + 6 * d, {'B', d, 0});
    AlarmImage[221 + 5 * d] = 20 + d;
    AlarmImage[222 + 5 * d] = d;
    AlarmImage[223 + 5 * d] = d + 1;
    AlarmImage[224 + 5 * d] = d + 2;
    AlarmImage[225 + 5 * d] = d + 3;
    AlarmImage[281 + d] = d % 2;
  }
  const Snapshot before = TakeSnapshot();
  for (int d = 11; d >= 0; --d) {
    PickDetector(d + 1);
    const std::string number = (d < 9 ? "0" : "") + std::to_string(d + 1);
    EXPECT_EQ(AlarmScreen.delay.Text(), std::to_string(d + 1));
    EXPECT_FALSE(AlarmScreen.atOnce.checked);
    EXPECT_EQ(AlarmScreen.inService.checked, d % 2 == 1);
    EXPECT_EQ(TriggerText(), "A" + number + "01");
    EXPECT_EQ(EndText(), "B" + number + "00");
    EXPECT_EQ(AlarmScreen.conditions.level.Text(), std::to_string(20 + d));
    EXPECT_EQ(AlarmScreen.conditions.periods[0].from.Text(), std::to_string(d));
    EXPECT_EQ(AlarmScreen.conditions.periods[0].to.Text(), std::to_string(d + 1));
    EXPECT_EQ(AlarmScreen.conditions.periods[1].from.Text(), std::to_string(d + 2));
    EXPECT_EQ(AlarmScreen.conditions.periods[1].to.Text(), std::to_string(d + 3));
    EXPECT_EQ(AlarmScreen.conditions.both.Chosen(), d % 2 == 1);
    EXPECT_EQ(AlarmScreen.conditions.either.Chosen(), d % 2 == 0);
  }
  ExpectOnlyChanged(before, {});
}

TEST_F(AlarmScreenTest, TheConditionsAreStoredInCellsOfTheDetector) {
  for (const int d : {0, 5, 11}) {
    Open();
    AlarmImage[221 + 5 * d] = 30;
    AlarmImage[222 + 5 * d] = 8;
    AlarmImage[223 + 5 * d] = 12;
    AlarmImage[281 + d] = 0;
    PickDetector(d + 1);
    const Snapshot before = TakeSnapshot();
    AlarmScreen.conditions.level.Pick(9);
    AlarmScreen.conditions.periods[0].from.Pick(6);
    AlarmScreen.conditions.periods[0].to.Pick(21);
    AlarmScreen.conditions.both.Choose();
    ExpectOnlyChanged(before, {NameOf(221 + 5 * d, 223 + 5 * d), NameOf(281 + d)});
    EXPECT_EQ(AlarmImage[221 + 5 * d], Cell("10"));
    EXPECT_EQ(AlarmImage[222 + 5 * d], Cell("6"));
    EXPECT_EQ(AlarmImage[223 + 5 * d], Cell("22"));
    EXPECT_EQ(AlarmImage[281 + d], Cell(1));
    EXPECT_TRUE(MainWindow.send.enabled);
  }
}

TEST_F(AlarmScreenTest, TheServiceSwitchStoresANumber) {
  for (const int d : {0, 11}) {
    Open();
    PickDetector(d + 1);
    const Snapshot before = TakeSnapshot();
    AlarmScreen.inService.Set(true);
    EXPECT_EQ(AlarmImage[136 + d], Cell(1));
    ExpectOnlyChanged(before, {NameOf(136 + d)});
    EXPECT_TRUE(MainWindow.send.enabled);
    AlarmScreen.inService.Set(false);
    EXPECT_EQ(AlarmImage[136 + d], Cell(0));
    ExpectOnlyChanged(before, {});
  }
}

TEST_F(AlarmScreenTest, AnotherValueOfTheServiceCellLooksLikeOffAndStays) {
  Open();
  for (const Cell& value : {Cell(2), Cell(42), Cell(255), Cell(), Cell("word")}) {
    AlarmImage[136] = value;
    PickDetector(1);
    EXPECT_FALSE(AlarmScreen.inService.checked);
    EXPECT_EQ(AlarmScreen.inService.caption, "BUITEN DIENST!");
    EXPECT_EQ(AlarmImage[136], value);
  }
  AlarmImage[136] = "1";
  PickDetector(1);
  EXPECT_TRUE(AlarmScreen.inService.checked);
}

TEST_F(AlarmScreenTest, ADelayIsStoredAsText) {
  for (const int d : {0, 11}) {
    Open();
    PickDetector(d + 1);
    AlarmScreen.atOnce.Set(false);
    const Snapshot before = TakeSnapshot();
    AlarmScreen.delay.Pick(119);
    EXPECT_EQ(AlarmImage[124 + d], Cell("120"));
    ExpectOnlyChanged(before, {NameOf(124 + d)});
    EXPECT_TRUE(MainWindow.send.enabled);
    AlarmScreen.delay.Pick(0);
    EXPECT_EQ(AlarmImage[124 + d], Cell("1"));
  }
}

TEST_F(AlarmScreenTest, AtOnceStoresNoughtAndDisablesTheDelay) {
  Open();
  AlarmImage[124] = "15";
  PickDetector(1);
  EXPECT_EQ(AlarmScreen.delay.Text(), "15");
  EXPECT_TRUE(AlarmScreen.delay.enabled && AlarmScreen.delayLabel.enabled &&
              AlarmScreen.delayUnit.enabled);
  const Snapshot before = TakeSnapshot();
  AlarmScreen.atOnce.Set(true);
  EXPECT_EQ(AlarmImage[124], Cell(0));
  ExpectOnlyChanged(before, {NameOf(124)});
  EXPECT_EQ(AlarmScreen.delay.Text(), "");
  EXPECT_FALSE(AlarmScreen.delay.enabled || AlarmScreen.delayLabel.enabled ||
               AlarmScreen.delayUnit.enabled);
  EXPECT_TRUE(MainWindow.send.enabled);
}

TEST_F(AlarmScreenTest, NotAtOnceStoresNothingUntilADelayIsPicked) {
  Open();
  PickDetector(1);
  ASSERT_TRUE(AlarmScreen.atOnce.checked);
  const Snapshot before = TakeSnapshot();
  AlarmScreen.atOnce.Set(false);
  EXPECT_TRUE(AlarmScreen.delay.enabled && AlarmScreen.delayLabel.enabled &&
              AlarmScreen.delayUnit.enabled);
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_F(AlarmScreenTest, PickingADetectorIsNoChange) {
  Open();
  const Snapshot before = TakeSnapshot();
  for (int detector = 1; detector <= 12; ++detector) PickDetector(detector);
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_F(AlarmScreenTest, LeavingOrClosingLeavesTheImageAsItStands) {
  for (const bool byButton : {true, false}) {
    Open();
    PickDetector(1);
    AlarmScreen.inService.Set(true);
    const Snapshot before = TakeSnapshot();
    if (byButton) {
      AlarmScreen.leave.Click();
    } else {
      AlarmScreen.Close();
    }
    EXPECT_FALSE(AlarmScreen.shown);
    ExpectOnlyChanged(before, {});
  }
}

TEST_F(AlarmScreenTest, TheOtherButtonsOfTheModuleOpenItsPushButtons) {
  for (const Action action : {Action::Buttons, Action::SecondFunctionTime}) {
    StartWithImage(5);
    ButtonScreen.shown = false;
    ShownAction(action).Click();
    EXPECT_TRUE(ButtonScreen.shown);
    EXPECT_FALSE(AlarmScreen.shown);
    EXPECT_TRUE(ButtonScreen.title.starts_with("Alarmmodule KR7160"));
  }
}

TEST_F(AlarmScreenTest, NoCellBelowItsOwnIsEverChanged) {
  Open();
  const Snapshot before = TakeSnapshot();
  for (int detector = 1; detector <= 12; ++detector) {
    PickDetector(detector);
    AlarmScreen.inService.Set(true);
    AlarmScreen.atOnce.Set(false);
    AlarmScreen.delay.Pick(4);
    AlarmScreen.conditions.noCondition.Set(false);
    AlarmScreen.conditions.noLight.Set(false);
    AlarmScreen.conditions.level.Pick(4);
    for (PeriodFields& period : AlarmScreen.conditions.periods) {
      period.none.Set(false);
      period.from.Pick(3);
      period.to.Pick(4);
    }
    AlarmScreen.conditions.either.Choose();
  }
  ExpectOnlyChanged(before, {"AlarmImage[124..147]", "AlarmImage[221..292]"});
  EXPECT_EQ(AlarmImage[293], Cell(42));
  EXPECT_EQ(AlarmImage[148], Cell(42));
}

}  // namespace
}  // namespace bkconf
