// What the screens of the time and light programmes have alike.
#include "master/program_screen_test.h"

namespace bkconf {
namespace {

INSTANTIATE_TEST_SUITE_P(Lists, EachProgramTest, testing::Values(WhichList::Time, WhichList::Light),
                         [](const auto& which) {
                           return which.param == WhichList::Light ? "light" : "time";
                         });

// --- The list -----------------------------------------------------------------------------------

TEST_P(EachProgramTest, CaptionsAreDutchOrFrench) {
  struct Row {
    const Field* field;
    std::string dutch;
    std::string french;
  };
  const std::vector<Row> rows = {
      {&screen.memoryLabel, "Vrij geheugen", "Mémoire libre"},
      {&screen.descriptionGroup, "Omschrijving:", "Description:"},
      {&screen.deleteGroup, "Wissen:", "Effacer:"},
      {&screen.deleteQuestion, "Programmatie wissen?", "Effacer la programmation?"},
      {&screen.deleteYes, "Ja", "Oui"},
      {&screen.deleteNo, "Nee", "Non"},
      {&screen.editGroup, "Editeren:", "Editer:"},
      {&screen.editConfirm, "Bevestigen", "Confirmer"},
      {&screen.editLeave, "Verlaten", "Quitter"},
      {&screen.leave, "Verlaten", "Quitter"},
  };
  Open({}, 1);
  EXPECT_EQ(screen.title, "Mastermodule KR7110");
  EXPECT_EQ(screen.programs.toolTip, "Dubbelklik om te editeren !");
  EXPECT_EQ(screen.programs.columns[0].caption, "Nr");
  EXPECT_EQ(screen.programs.columns[1].caption, "Actie");
  for (const Row& row : rows) EXPECT_EQ(row.field->caption, row.dutch);
  Open({}, 2);
  EXPECT_EQ(screen.title, "Module master KR7110");
  EXPECT_EQ(screen.programs.toolTip, "Double-clicker pour éditer !");
  EXPECT_EQ(screen.programs.columns[0].caption, "Nr");
  EXPECT_EQ(screen.programs.columns[1].caption, "Action");
  for (const Row& row : rows) EXPECT_EQ(row.field->caption, row.french);
}

TEST_P(EachProgramTest, TheListHasARowForEverySlotAndFourColumns) {
  Open();
  EXPECT_EQ(screen.programs.Rows(), slots);
  ASSERT_EQ(screen.programs.columns.size(), 4U);
  const int widths[] = {500, 1500, 1500, 1600};
  for (std::size_t column = 0; column < 4; ++column) {
    EXPECT_EQ(screen.programs.columns[column].width, widths[column]);
  }
  ExpectRows({});
  ExpectMemory(slots);
}

TEST_P(EachProgramTest, FieldsHaveNamesOfTheirOwn) {
  std::set<std::string> names;
  for (const Field* field : screen.fields) {
    EXPECT_TRUE(names.insert(field->name).second) << field->name;
  }
}

TEST_P(EachProgramTest, OpeningShowsTheProgrammesAndChangesNoCell) {
  Open({On('A'), Free(), On('B')});
  ExpectRows({"A0101" + Moment(), "", "B0101" + Moment()});
  ExpectMemory(slots - 2);
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  OpenAgain();
  ExpectRows({"A0101" + Moment(), "", "B0101" + Moment()});
  ExpectMemory(slots - 2);
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_P(EachProgramTest, OpeningAgainForgetsRowsPanelsAndTheSelection) {
  Open({On('A')});
  screen.programs.Select(1, 1);
  DoubleClick(1);
  screen.leave.Click();
  EXPECT_FALSE(screen.shown);
  PutSlot(1, Free());
  OpenAgain();
  EXPECT_TRUE(screen.shown);
  ExpectRows({});
  ExpectPanels(false, false);
  EXPECT_EQ(screen.description.caption, "");
  EXPECT_EQ(screen.programs.CurrentRow(), 0);
  EXPECT_FALSE(screen.picker.letter.enabled);
}

TEST_P(EachProgramTest, SelectsTheMasterInTheMainWindow) {
  Open();
  MainWindow.moduleList.Pick(0);
  ASSERT_NE(MainWindow.moduleList.Text(), "KR7110");
  OpenAgain();
  EXPECT_EQ(MainWindow.moduleList.Text(), "KR7110");
}

/// Only the letter of the action tells; what is none is left as it is.
TEST_P(EachProgramTest, ASlotWithoutAnActionIsBlankAndStaysAsItIs) {
  std::vector<Slot> list;
  for (const Cell& letter : std::vector<Cell>{64, 84, 89, 91, 0, 42, "*", "word", Cell()}) {
    list.push_back(At({letter, 0, 1}));
  }
  Open(list);
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  ExpectRows({});
  ExpectMemory(slots);
  ExpectOnlyChanged(before, {});
}

TEST_P(EachProgramTest, LettersAtTheEndsOfTheirRangeAndCorvelaCodesAreActions) {
  Open({At({65, 0, 1}), At({82, 0, 1}), At({83, 0, 2}), At({90, 0, 0}), At({"65", "11", "02"})});
  ExpectRows({"A0101" + Moment(), "R0101" + Moment(), "S0102" + Moment(), "Z0101" + Moment(),
              "A1202" + Moment()});
  ExpectMemory(slots - 5);
}

TEST_P(EachProgramTest, AContextAlwaysEndsIn02) {
  Open({At({83, 6, 2}), At({83, 49, 7}), At({83, 0, 0})});
  ExpectRows({"S0702" + Moment(), "S5002" + Moment(), "S0102" + Moment()});
}

TEST_P(EachProgramTest, BothNumbersOfACorvelaCodeCountFromOne) {
  Open({At({90, 4, 11}), At({90, 98, 98})});
  ExpectRows({"Z0512" + Moment(), "Z9999" + Moment()});
}

TEST_P(EachProgramTest, AFullListHasNoMemoryLeftAndOnlyAsks) {
  Open(std::vector<Slot>(static_cast<std::size_t>(slots), On('B')));
  ExpectMemory(0);
  EXPECT_EQ(Row(slots), "B0101" + Moment());
  for (const int row : {1, slots}) {
    DoubleClick(row);
    ExpectPanels(true, false);
  }
}

TEST_P(EachProgramTest, TheDescriptionIsThatOfTheSelectedRow) {
  const std::vector<Slot> list = {At({65, 2, 1}), At({83, 6, 2}), At({90, 4, 11}), At({75, 0, 1})};
  Open(list);
  const std::vector<std::string> sentences = {"Relaismodule 'A':  Uitgang 03 aan", "Sfeer 07",
                                              "Corvela code: Z0512", "", ""};
  for (int row = 1; row <= 5; ++row) {
    for (int column = 0; column < 4; ++column) {
      screen.programs.Select(row, column);
      EXPECT_EQ(screen.description.caption, sentences[static_cast<std::size_t>(row - 1)]) << row;
    }
  }
  Open(list, 2);
  screen.programs.Select(1, 3);
  EXPECT_EQ(screen.description.caption, "Module relais 'A':  Sortie 03 On");
  screen.programs.Select(2, 3);
  EXPECT_EQ(screen.description.caption, "Contexte 07");
}

// --- Double click -------------------------------------------------------------------------------

TEST_P(EachProgramTest, ADoubleClickAnywhereInAUsedRowAsksBeforeItDeletes) {
  for (int column = 0; column < 4; ++column) {
    Open({On('A')});
    const Snapshot before = TakeSnapshot();
    DoubleClick(1, column);
    ExpectPanels(true, false);
    ExpectOnlyChanged(before, {});
    ExpectNoChange(screen.editConfirm);
  }
}

TEST_P(EachProgramTest, ADoubleClickAnywhereInAFreeRowOpensTheEditor) {
  for (int column = 0; column < 4; ++column) {
    Open({On('A')});
    DoubleClick(2, column);
    ExpectPanels(false, true);
    EXPECT_TRUE(screen.picker.letter.enabled);
    ExpectNoChange(screen.deleteYes);
  }
}

TEST_P(EachProgramTest, ADoubleClickOnTheCaptionsDoesNothing) {
  Open({On('A')});
  for (int column = 0; column < 4; ++column) DoubleClick(0, column);
  ExpectPanels(false, false);
}

TEST_P(EachProgramTest, WithTheQuestionOpenADoubleClickOnAFreeRowDoesNothing) {
  Open({On('A')});
  DoubleClick(1);
  DoubleClick(2);
  ExpectPanels(true, false);
}

TEST_P(EachProgramTest, TheRowOfTheLastDoubleClickIsDeletedWhateverIsSelectedThen) {
  Open({On('A'), On('B'), On('C')});
  DoubleClick(1);
  DoubleClick(2);
  ExpectPanels(true, false);
  screen.programs.Select(3, 1);
  screen.deleteYes.Click();
  ExpectSlots({On('A'), On('C')});
}

TEST_P(EachProgramTest, WithTheEditorOpenADoubleClickBeginsItAnewAndNeverAsks) {
  for (const int row : {1, 2, slots}) {
    OpenEditor({On('A')});
    Choose('B', "3", "Aan");
    FillMoment();
    DoubleClick(row);
    ExpectPanels(false, true);
    EXPECT_EQ(screen.picker.letter.Text() + screen.picker.type.Text(), "");
    ExpectRefused();
    // The moment is gone as well.
    Choose('B', "3", "Aan");
    ExpectRefused();
  }
}

TEST_P(EachProgramTest, EnterAndEscapeAreTheButtonsOfThePanelThatIsOpen) {
  Open({On('A')});
  EXPECT_EQ(screen.enter, nullptr);
  EXPECT_EQ(screen.escape, nullptr);
  DoubleClick(1);
  EXPECT_EQ(screen.enter, &screen.deleteYes);
  EXPECT_EQ(screen.escape, &screen.deleteNo);
  screen.deleteNo.Click();
  EXPECT_EQ(screen.enter, nullptr);
  DoubleClick(2);
  EXPECT_EQ(screen.enter, &screen.editConfirm);
  EXPECT_EQ(screen.escape, &screen.editLeave);
  screen.editLeave.Click();
  EXPECT_EQ(screen.enter, nullptr);
  EXPECT_EQ(screen.escape, nullptr);
}

TEST_P(EachProgramTest, NoAndLeavingTheEditorChangeNothing) {
  Open({On('A')});
  DoubleClick(1);
  const Snapshot before = TakeSnapshot();
  screen.deleteNo.Click();
  ExpectPanels(false, false);
  DoubleClick(2);
  Choose('B', "3", "Aan");
  FillMoment();
  screen.editLeave.Click();
  ExpectPanels(false, false);
  ExpectOnlyChanged(before, {});
  ExpectRows({"A0101" + Moment()});
  EXPECT_FALSE(MainWindow.send.enabled);
  // Both buttons are still there for a press that comes late.
  ExpectNoChange(screen.editConfirm);
  ExpectNoChange(screen.deleteYes);
}

// --- Store --------------------------------------------------------------------------------------

TEST_P(EachProgramTest, AProgrammeGoesIntoTheFirstFreeSlotWhicheverWasClicked) {
  for (const int row : {3, 4, slots}) {
    Open({On('A'), On('B')});
    DoubleClick(row);
    Choose('B', "12", "Toggle");
    FillMoment();
    const Snapshot before = TakeSnapshot();
    Confirm();
    ExpectSlots({On('A'), On('B'), StoredAt({66, 11, 2})});
    ExpectRows({"A0101" + Moment(), "B0101" + Moment(), "B1202" + Moment()});
    ExpectMemory(slots - 3);
    ExpectPanels(false, false);
    EXPECT_TRUE(MainWindow.send.enabled);
    EXPECT_EQ(dirty, Cell(1));
    ExpectOnlyChanged(before, {NameOf(3), light ? "MasterLightDirty" : "MasterTimeDirty"});
  }
}

TEST_P(EachProgramTest, AGapIsFilledFirst) {
  OpenEditor({On('A'), Free(), On('C')});
  Choose('B', "1", "Aan");
  FillMoment();
  Confirm();
  ExpectSlots({On('A'), StoredAt({66, 0, 1}), On('C')});
}

TEST_P(EachProgramTest, ProgrammesOfTheSameMomentStayInTheOrderOfEntry) {
  Open();
  for (const char letter : {'C', 'A', 'B'}) {
    DoubleClick(slots);
    Choose(letter, "1", "Uit");
    FillMoment();
    Confirm();
  }
  ExpectRows({"C0100" + Moment(), "A0100" + Moment(), "B0100" + Moment()});
}

TEST_P(EachProgramTest, TheLastFreeSlotIsFilledAndThenThereIsNone) {
  Open(std::vector<Slot>(static_cast<std::size_t>(slots - 1), On('B')));
  ExpectMemory(1);
  DoubleClick(slots);
  Choose('A', "1", "Aan");
  FillMoment();
  const Snapshot before = TakeSnapshot();
  Confirm();
  ExpectSlot(slots, StoredAt({65, 0, 1}));
  ExpectMemory(0);
  ExpectOnlyChanged(before, {NameOf(slots), light ? "MasterLightDirty" : "MasterTimeDirty"});
}

TEST_P(EachProgramTest, WithoutAFreeRowNothingIsStored) {
  OpenEditor();
  Choose('A', "1", "Aan");
  FillMoment();
  for (int row = 1; row <= slots; ++row) screen.programs.Put(row, 1, "A0101");
  ExpectRefused();
}

TEST_P(EachProgramTest, EveryTargetOfBothListsIsStored) {
  const auto expectStored = [this](const Slot& action) {
    FillMoment();
    Confirm();
    ExpectSlots({StoredAt(action)});
  };
  OpenEditor();
  Choose('A', "12", "Toggle");
  expectStored({65, 11, 2});
  OpenEditor();
  Choose('B', "1", "Uit");
  expectStored({66, 0, 0});
  OpenEditor();
  Choose('C', "4", "90%");
  expectStored({67, 3, 90});
  OpenEditor();
  Choose('D', "4", "10%");
  expectStored({68, 3, 10});
  OpenEditor();
  Choose('D', "8", "Toggle");
  expectStored({68, 7, 2});
  OpenEditor();
  PickLetter('S');
  PickOutput("50");
  expectStored({83, 49, "02"});
  OpenEditor();
  Choose('Z', "05", "12");
  expectStored({90, 4, 11});
}

TEST_P(EachProgramTest, AnOutputAndAnActionAreNeeded) {
  OpenEditor({On('A')});
  ExpectRefused();
  for (const char letter : {'A', 'B', 'C', 'D'}) {
    PickLetter(letter);
    FillMoment();
    ExpectRefused();
    PickOutput("1");
    ExpectRefused();
    if (letter == 'D') continue;  // its actions wait for the output
    PickLetter(letter);
    PickAction("Aan");
    ExpectRefused();
  }
}

TEST_P(EachProgramTest, AContextAndBothCodesAreNeeded) {
  OpenEditor();
  PickLetter('S');
  FillMoment();
  ExpectRefused();
  PickLetter('Z');
  ExpectRefused();
  PickOutput("05");
  ExpectRefused();
  PickLetter('Z');
  PickAction("05");
  ExpectRefused();
}

TEST_P(EachProgramTest, ATargetThatIsNotOfferedIsNotStored) {
  OpenEditor();
  for (const char letter : {'F', 'I'}) {
    PickLetter('A');
    FillMoment();
    PickLetter(letter);
    ASSERT_EQ(screen.picker.type.Text(), "---");
    ExpectRefused();
  }
  PickLetter('K');
  ExpectRefused();
  screen.picker.type.Pick(0);
  PickOutput("2");
  PickAction("Aan");
  FillMoment();
  Confirm();
  ExpectSlots({StoredAt({75, 1, 1})});
}

TEST_P(EachProgramTest, TheDescriptionFollowsTheSelectedRow) {
  Open({On('A'), On('C')});
  screen.programs.Select(1, 1);
  DoubleClick(1);
  screen.deleteYes.Click();
  EXPECT_EQ(screen.description.caption, "Dimmodule 'C':  Uitgang 01 aan");
  screen.programs.Select(2, 1);
  EXPECT_EQ(screen.description.caption, "");
  DoubleClick(2);
  Choose('A', "3", "Uit");
  FillMoment();
  Confirm();
  EXPECT_EQ(screen.description.caption, "Relaismodule 'A':  Uitgang 03 uit");
}

TEST_P(EachProgramTest, LeavingClosesTheScreenAndChangesNothing) {
  Open({On('A')});
  const Snapshot before = TakeSnapshot();
  screen.leave.Click();
  EXPECT_FALSE(screen.shown);
  ExpectOnlyChanged(before, {});
}

}  // namespace
}  // namespace bkconf
