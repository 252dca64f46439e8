#include <gtest/gtest.h>

#include "image/tables.h"
#include "special/alarm_screen_test.h"
#include "special/composed_action.h"

namespace bkconf {
namespace {

/// Places in the list of types.
enum TypePlace { Relay, Dimmer, Temperature, RelayDc, Audio, Lumenza };

/// The two actions of a detector: how they are shown, edited and told in words.
class AlarmActionTest : public AlarmScreenTest {
 protected:
  /// Opens the editor of one of the two actions by a double click.
  void Edit(int detector, GridField& action = AlarmScreen.triggerAction, int language = 1) {
    Open(language);
    PickDetector(detector);
    action.DoubleClick(1, 0);
    ASSERT_TRUE(AlarmScreen.editGroup.visible);
    MainWindow.send.enabled = false;
  }
  static void PickTarget(char letter, int type) {
    AlarmScreen.picker.letter.Pick(letter - 'A');
    AlarmScreen.picker.type.Pick(type);
  }
  static void Confirm() { AlarmScreen.editConfirm.Click(); }
  /// Confirms, and expects that nothing was stored and that the editor is still open.
  static void ExpectSilence() {
    const Snapshot before = TakeSnapshot();
    Confirm();
    ExpectOnlyChanged(before, {});
    EXPECT_TRUE(AlarmScreen.editGroup.visible);
    EXPECT_FALSE(MainWindow.send.enabled);
  }
  static ActionPicker& Picker() { return AlarmScreen.picker; }
};

// --- What is shown ------------------------------------------------------------------------------

TEST_F(AlarmActionTest, AnActionIsShownAsItsCode) {
  struct Row {
    ActionCells cells;
    std::string code;
  };
  Open();
  for (const Row& row : std::vector<Row>{{{'A', 0, 0}, "A0100"},
                                         {{'R', 11, 2}, "R1202"},
                                         {{'B', 3, 90}, "B0490"},
                                         {{'E', 2, 21}, "E0321"},
                                         {{'E', "8", "99"}, "E0999"},
                                         {{'H', 15, 5}, "H1605"},
                                         {{'H', 16, 5}, "H1706"},
                                         {{'H', 33, 18}, "H3419"},
                                         {{'S', 6, 2}, "S0702"},
                                         {{'S', 20, 7}, "S2102"},
                                         {{'S', 11, "02"}, "S1202"},
                                         {{'Z', 4, 11}, "Z0512"},
                                         {{'Z', 98, 98}, "Z9999"},
                                         {{"65", "0", "1"}, "A0101"}}) {
    Put(TriggerCell(3), row.cells);
    Put(EndCell(3), {42, 42, 42});
    PickDetector(3);
    EXPECT_EQ(TriggerText(), row.code);
    EXPECT_EQ(EndText(), "***");
    Put(TriggerCell(3), {42, 42, 42});
    Put(EndCell(3), row.cells);
    PickDetector(3);
    EXPECT_EQ(TriggerText(), "***");
    EXPECT_EQ(EndText(), row.code);
  }
}

TEST_F(AlarmActionTest, WhatHoldsNoActionIsShownAsNoneAndStays) {
  Open();
  for (const Cell& target : {Cell(42), Cell(0), Cell("*"), Cell(), Cell(64), Cell(84), Cell(89),
                             Cell(91), Cell(255), Cell("word")}) {
    Put(TriggerCell(1), {target, 3, 4});
    Put(EndCell(1), {target, 3, 4});
    const Snapshot before = TakeSnapshot();
    PickDetector(1);
    EXPECT_EQ(TriggerText(), "***");
    EXPECT_EQ(EndText(), "***");
    ExpectOnlyChanged(before, {});
  }
}

// --- The editor ---------------------------------------------------------------------------------

TEST_F(AlarmActionTest, ADoubleClickOpensTheEditorIdle) {
  for (GridField* action : {&AlarmScreen.triggerAction, &AlarmScreen.endAction}) {
    Edit(1, *action);
    EXPECT_FALSE(AlarmScreen.noAction.checked);
    EXPECT_TRUE(Picker().letter.enabled && Picker().letter.visible);
    EXPECT_TRUE(Picker().type.visible);
    EXPECT_FALSE(Picker().type.enabled);
    EXPECT_EQ(Picker().letter.Text() + Picker().type.Text(), "");
    EXPECT_EQ(AlarmScreen.enter, &AlarmScreen.editConfirm);
    EXPECT_EQ(AlarmScreen.escape, &AlarmScreen.editLeave);
  }
}

TEST_F(AlarmActionTest, ADoubleClickOnTheHeadingOrWithoutADetectorOpensNothing) {
  Open();
  AlarmScreen.triggerAction.DoubleClick(1, 0);
  EXPECT_FALSE(AlarmScreen.editGroup.visible);
  PickDetector(1);
  AlarmScreen.triggerAction.DoubleClick(0, 0);
  AlarmScreen.endAction.DoubleClick(0, 0);
  EXPECT_FALSE(AlarmScreen.editGroup.visible);
  EXPECT_EQ(AlarmScreen.enter, nullptr);
}

TEST_F(AlarmActionTest, ThereAreSixTypesOfTargets) {
  Edit(1);
  EXPECT_EQ(Picker().type.items,
            (std::vector<std::string>{"Relaismodule", "Dimmodule", "Temp. module",
                                      "Relaismodule DC", "Audio interface", "Lumenza module"}));
  Edit(1, AlarmScreen.triggerAction, 2);
  EXPECT_EQ(Picker().type.items,
            (std::vector<std::string>{"Module relais", "Module dim", "Module temp.",
                                      "Module relais DC", "Interface audio", "Module Lumenza"}));
}

TEST_F(AlarmActionTest, TheLettersAreThoseOfModulesContextsAndCodes) {
  Edit(1);
  std::vector<std::string> letters;
  for (char letter = 'A'; letter <= 'S'; ++letter) letters.emplace_back(1, letter);
  letters.emplace_back("Z");
  EXPECT_EQ(Picker().letter.items, letters);
}

TEST_F(AlarmActionTest, TheModulesOwnLetterIsNoTarget) {
  Edit(1);
  Picker().letter.Pick('C' - 'A');
  EXPECT_EQ(Picker().type.Text(), "---");
  EXPECT_FALSE(Picker().type.enabled);
  EXPECT_FALSE(Picker().output.list.visible || Picker().action.list.visible);
  ExpectSilence();
}

TEST_F(AlarmActionTest, AnyOtherLetterAsksForTheType) {
  for (const int language : {1, 2}) {
    Edit(1, AlarmScreen.triggerAction, language);
    Picker().letter.Pick(0);
    EXPECT_EQ(Picker().type.Text(), language == 1 ? "Module type?" : "Type module?");
    EXPECT_TRUE(Picker().type.enabled);
  }
}

const std::vector<Composed> ComposedActions = {
    {"Relay", [](auto& p) { PickOutput(p, Relay, 11, 2); }, {'A', 11, 2}, "A1202"},
    {"RelayDc", [](auto& p) { PickOutput(p, RelayDc, 0, 0); }, {'A', 0, 0}, "A0100"},
    {"Dimmer", [](auto& p) { PickOutput(p, Dimmer, 3, 11); }, {'A', 3, 90}, "A0490"},
    {"Lumenza", [](auto& p) { PickOutput(p, Lumenza, 3, 3); }, {'A', 3, 10}, "A0410"},
    {"LumenzaSwitch", [](auto& p) { PickOutput(p, Lumenza, 7, 1); }, {'A', 7, 1}, "A0801"},
    {"Room", [](auto& p) { PickRoom(p, 0, 2, 21); }, {'R', 2, 21}, "R0321"},
    {"RoomBase", [](auto& p) { PickRoom(p, 1, 7, 0); }, {'R', 7, "99"}, "R0899"},
    {"AllRooms", [](auto& p) { PickRoom(p, 2, 0, 0); }, {'R', "8", 0}, "R0900"},
    {"AllBase", [](auto& p) { PickRoom(p, 3, 0, 0); }, {'R', "8", "99"}, "R0999"},
    {"MainZone", [](auto& p) { PickZone(p, p.mainZone, 15, 9, 0); }, {'H', 15, 9}, "H1609"},
    {"MainSource", [](auto& p) { PickZone(p, p.mainZone, 0, 10, 5); }, {'H', 16, 5}, "H1706"},
    {"MainVolume", [](auto& p) { PickZone(p, p.mainZone, 2, 11, 4); }, {'H', 34, 4}, "H3505"},
    {"SideZone", [](auto& p) { PickZone(p, p.secondaryZone, 1, 4, 0); }, {'H', 1, 20}, "H0220"},
    {"SideVolume", [](auto& p) { PickZone(p, p.secondaryZone, 1, 5, 2); }, {'H', 33, 18}, "H3419"},
    {"SideBalance",
     [](auto& p) { PickZone(p, p.secondaryZone, 15, 6, 15); },
     {'H', 95, 31},
     "H9632"},
    {"Context",
     [](auto& p) {
       p.letter.Pick(18);
       p.output.list.Pick(49);
     },
     {'S', 49, "02"},
     "S5002"},
    {"Codes",
     [](auto& p) {
       p.letter.Pick(19);
       p.output.list.Pick(4);
       p.action.list.Pick(98);
     },
     {'Z', 4, 98},
     "Z0599"},
};

class AlarmStoreTest : public AlarmActionTest, public testing::WithParamInterface<Composed> {};

TEST_P(AlarmStoreTest, IsStoredInTheActionThatIsEdited) {
  for (const int detector : {1, 6, 12}) {
    for (GridField* action : {&AlarmScreen.triggerAction, &AlarmScreen.endAction}) {
      const bool trigger = action == &AlarmScreen.triggerAction;
      const int cell = trigger ? TriggerCell(detector) : EndCell(detector);
      Edit(detector, *action);
      Put(cell, {1, 255, 255});
      const Snapshot before = TakeSnapshot();
      GetParam().pick(Picker());
      Confirm();
      ExpectCells(cell, GetParam().cells);
      ExpectOnlyChanged(before, {NameOf(cell), NameOf(cell + 1), NameOf(cell + 2)});
      EXPECT_EQ(action->At(1, 0), GetParam().code);
      EXPECT_EQ(trigger ? EndText() : TriggerText(), "***");
      EXPECT_FALSE(AlarmScreen.editGroup.visible);
      EXPECT_EQ(AlarmScreen.enter, nullptr);
      EXPECT_EQ(AlarmScreen.escape, nullptr);
      EXPECT_TRUE(MainWindow.send.enabled);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Actions, AlarmStoreTest, testing::ValuesIn(ComposedActions),
                         [](const auto& row) { return row.param.name; });

TEST_F(AlarmActionTest, WhatIsNotCompleteIsNotStored) {
  Edit(1);
  ExpectSilence();
  for (int type = Relay; type <= Lumenza; ++type) {
    Edit(1);
    Picker().letter.Pick(0);
    ExpectSilence();
    Picker().type.Pick(type);
    ExpectSilence();
    if (Picker().output.list.visible) {
      Picker().output.list.Pick(0);
      ExpectSilence();
      PickTarget('A', type);
      Picker().action.list.Pick(0);
      ExpectSilence();
    }
  }
}

TEST_F(AlarmActionTest, AnIncompleteRoomZoneContextOrCodeIsNotStored) {
  Edit(1);
  PickTarget('A', Temperature);
  Picker().temperatures[0].option.Choose();
  ExpectSilence();
  Picker().temperatures[0].room.Pick(0);
  ExpectSilence();
  Picker().temperatures[1].option.Choose();
  ExpectSilence();
  Picker().temperatures[2].option.Choose();
  ExpectSilence();
  PickTarget('A', Audio);
  Picker().mainZone.Choose();
  Picker().action.list.Pick(3);
  ExpectSilence();
  Picker().output.list.Pick(0);
  Picker().action.list.Pick(10);
  ExpectSilence();
  Picker().letter.Pick(18);
  ExpectSilence();
  Picker().letter.Pick(19);
  ExpectSilence();
  Picker().output.list.Pick(0);
  ExpectSilence();
}

TEST_F(AlarmActionTest, NoActionDisablesTheFieldsAndStoresThreeEmptyCells) {
  for (GridField* action : {&AlarmScreen.triggerAction, &AlarmScreen.endAction}) {
    const bool trigger = action == &AlarmScreen.triggerAction;
    Open();
    const int cell = trigger ? TriggerCell(12) : EndCell(12);
    Put(cell, {'A', 3, 1});
    PickDetector(12);
    EXPECT_EQ(action->At(1, 0), "A0401");
    action->DoubleClick(1, 0);
    const Snapshot before = TakeSnapshot();
    PickTarget('A', Relay);
    AlarmScreen.noAction.Set(true);
    EXPECT_FALSE(Picker().letter.enabled || Picker().type.enabled);
    EXPECT_FALSE(Picker().output.list.visible && Picker().output.list.enabled);
    EXPECT_FALSE(Picker().action.list.visible && Picker().action.list.enabled);
    EXPECT_FALSE(Picker().value.list.visible && Picker().value.list.enabled);
    Confirm();
    ExpectCells(cell, {42, 42, 42});
    ExpectOnlyChanged(before, {NameOf(cell, cell + 2)});
    EXPECT_EQ(action->At(1, 0), "***");
    EXPECT_FALSE(AlarmScreen.editGroup.visible);
  }
}

TEST_F(AlarmActionTest, NoActionTurnedOffLetsOneBeComposed) {
  Edit(1);
  AlarmScreen.noAction.Set(true);
  AlarmScreen.noAction.Set(false);
  EXPECT_TRUE(Picker().letter.enabled);
  ExpectSilence();
  PickOutput(Picker(), Relay, 0, 1);
  Confirm();
  EXPECT_EQ(TriggerText(), "A0101");
}

TEST_F(AlarmActionTest, LeavingTheEditorStoresNothing) {
  Edit(1);
  PickOutput(Picker(), Relay, 0, 1);
  const Snapshot before = TakeSnapshot();
  AlarmScreen.editLeave.Click();
  EXPECT_FALSE(AlarmScreen.editGroup.visible);
  EXPECT_TRUE(AlarmScreen.shown);
  Confirm();
  ExpectOnlyChanged(before, {});
  EXPECT_EQ(TriggerText(), "***");
}

TEST_F(AlarmActionTest, AnotherDetectorClosesTheEditor) {
  Edit(1);
  PickOutput(Picker(), Relay, 0, 1);
  const Snapshot before = TakeSnapshot();
  PickDetector(2);
  EXPECT_FALSE(AlarmScreen.editGroup.visible);
  Confirm();
  ExpectOnlyChanged(before, {});
}

TEST_F(AlarmActionTest, TheEditorOfTheOtherActionBeginsAnew) {
  Edit(1);
  AlarmScreen.noAction.Set(true);
  AlarmScreen.endAction.DoubleClick(1, 0);
  EXPECT_FALSE(AlarmScreen.noAction.checked);
  PickOutput(Picker(), Relay, 4, 1);
  Confirm();
  EXPECT_EQ(EndText(), "A0501");
  EXPECT_EQ(TriggerText(), "***");
  ExpectCells(TriggerCell(1), {42, 42, 42});
}

// --- The note -----------------------------------------------------------------------------------

/// A context in the first action of detector 1, the own letter in the second.
class AlarmNoteTest : public AlarmActionTest {
 protected:
  void Show(int language = 1) {
    Open(language);
    Put(TriggerCell(1), {'S', 11, 2});
    Put(EndCell(1), {'Z', 4, 11});
    Put(TriggerCell(2), {'C', 4, 1});
    Put(EndCell(2), {'A', 4, 1});
    PickDetector(1);
  }
  static const std::string& Note() { return AlarmScreen.note.caption; }
};

TEST_F(AlarmNoteTest, AClickTellsTheActionInWords) {
  struct Row {
    std::string context;
    std::string codes;
    std::string own;
  };
  const std::vector<Row> rows = {
      {"Sfeer 12", "Corvela code: Z0512", "Alarmmodule 'C':  Detector 05 aan"},
      {"Contexte 12", "Corvela code: Z0512", "Module alarme 'C':  Détecteur 05 On"}};
  for (const int language : {1, 2}) {
    const Row& row = rows.at(static_cast<std::size_t>(language - 1));
    Show(language);
    AlarmScreen.triggerAction.Select(1, 0);
    EXPECT_EQ(Note(), row.context);
    AlarmScreen.endAction.Select(1, 0);
    EXPECT_EQ(Note(), row.codes);
    PickDetector(2);
    AlarmScreen.triggerAction.Select(1, 0);
    EXPECT_EQ(Note(), row.own);
  }
}

TEST_F(AlarmNoteTest, AnActionOnAnotherModuleHasNoWords) {
  Show();
  PickDetector(2);
  AlarmScreen.endAction.Select(1, 0);
  EXPECT_EQ(Note(), "");
  PickDetector(3);
  AlarmScreen.endAction.Select(1, 0);
  EXPECT_EQ(Note(), "");
}

TEST_F(AlarmNoteTest, TheNoteStandsForFiveSeconds) {
  Show();
  AlarmScreen.triggerAction.Select(1, 0);
  clock.Advance(4999);
  EXPECT_EQ(Note(), "Sfeer 12");
  clock.Advance(1);
  EXPECT_EQ(Note(), "");
  EXPECT_FALSE(AlarmNote.Enabled());
}

TEST_F(AlarmNoteTest, ANewTextStartsTheFiveSecondsAnew) {
  Show();
  AlarmScreen.triggerAction.Select(1, 0);
  clock.Advance(4000);
  AlarmScreen.endAction.Select(1, 0);
  clock.Advance(4999);
  EXPECT_EQ(Note(), "Corvela code: Z0512");
  clock.Advance(1);
  EXPECT_EQ(Note(), "");
}

TEST_F(AlarmNoteTest, TheSameActionCanBeToldAgain) {
  Show();
  AlarmScreen.triggerAction.Select(1, 0);
  clock.Advance(5000);
  AlarmScreen.triggerAction.Select(1, 0);
  EXPECT_EQ(Note(), "Sfeer 12");
}

TEST_F(AlarmNoteTest, AnotherDetectorBlanksTheNote) {
  Show();
  AlarmScreen.triggerAction.Select(1, 0);
  PickDetector(2);
  EXPECT_EQ(Note(), "");
  EXPECT_FALSE(AlarmNote.Enabled());
  AlarmScreen.triggerAction.Select(1, 0);
  OpenAgain();
  EXPECT_EQ(Note(), "");
  EXPECT_FALSE(AlarmNote.Enabled());
}

TEST_F(AlarmNoteTest, ANoteChangesNoCell) {
  Show();
  const Snapshot before = TakeSnapshot();
  AlarmScreen.triggerAction.Select(1, 0);
  AlarmScreen.endAction.Select(1, 0);
  clock.Advance(6000);
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

}  // namespace
}  // namespace bkconf
