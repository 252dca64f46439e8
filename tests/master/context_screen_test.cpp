#include "master/context_screen_test.h"

#include "image/file_lines.h"
#include "shell/module_file.h"

namespace bkconf {
namespace {

/// How the contexts are shown.
class ContextViewTest : public ContextScreenTest {};

TEST_F(ContextViewTest, CaptionsAreDutchOrFrench) {
  struct Row {
    const Field* field;
    std::string dutch;
    std::string french;
  };
  const std::vector<Row> rows = {
      {&ContextScreen.chooserLabel, "Sferen:", "Contextes:"},
      {&ContextScreen.memoryLabel, "Vrij geheugen", "Mémoire libre"},
      {&ContextScreen.hint, "Dubbelklik om te editeren !", "Double-clicker pour éditer !"},
      {&ContextScreen.descriptionGroup, "Omschrijving:", "Description:"},
      {&ContextScreen.deleteGroup, "Wissen:", "Effacer:"},
      {&ContextScreen.deleteAction, "Actie wissen", "Effacer l'action"},
      {&ContextScreen.deleteContext, "Alles wissen !!", "Effacer tout !!"},
      {&ContextScreen.deleteConfirm, "Bevestigen", "Confirmer"},
      {&ContextScreen.deleteCancel, "Annuleren", "Annuler"},
      {&ContextScreen.editGroup, "Editeren:", "Editer:"},
      {&ContextScreen.editConfirm, "Bevestigen", "Confirmer"},
      {&ContextScreen.editLeave, "Verlaten", "Quitter"},
      {&ContextScreen.leave, "Verlaten", "Quitter"},
      {&ContextScreen.picker.heading, "Module             Type", "Module             Type"},
  };
  Open({}, 1);
  EXPECT_EQ(ContextScreen.title, "Mastermodule KR7110");
  EXPECT_EQ(ContextScreen.chooser.Text(), "Sfeer ?");
  EXPECT_EQ(ContextScreen.chooser.items.front() + ContextScreen.chooser.items.back(),
            "Sfeer 1Sfeer 50");
  for (const Row& row : rows) EXPECT_EQ(row.field->caption, row.dutch);
  Open({}, 2);
  EXPECT_EQ(ContextScreen.title, "Module master KR7110");
  EXPECT_EQ(ContextScreen.chooser.Text(), "Contexte ?");
  EXPECT_EQ(ContextScreen.chooser.items.front() + ContextScreen.chooser.items.back(),
            "Contexte 1Contexte 50");
  for (const Row& row : rows) EXPECT_EQ(row.field->caption, row.french);
}

TEST_F(ContextViewTest, TheGridHasTwentyRowsOfFiveActionsAndTheChooserFiftyContexts) {
  Open();
  EXPECT_EQ(ContextScreen.actions.Rows(), 20);
  ASSERT_EQ(ContextScreen.actions.columns.size(), 5U);
  for (const GridField::Column& column : ContextScreen.actions.columns) {
    EXPECT_EQ(column.width, 1000);
    EXPECT_EQ(column.caption, "");
  }
  EXPECT_EQ(ContextScreen.chooser.items.size(), 50U);
}

TEST_F(ContextViewTest, FieldsHaveNamesOfTheirOwn) {
  std::set<std::string> names;
  for (const Field* field : ContextScreen.fields) {
    EXPECT_TRUE(names.insert(field->name).second) << field->name;
  }
}

TEST_F(ContextViewTest, OpensWithoutAContextAndWithoutAFrame) {
  OpenOn(3, {On('A')});
  Select(0);
  DoubleClick(0);
  ContextScreen.leave.Click();
  EXPECT_FALSE(ContextScreen.shown);
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  ExpectOnlyChanged(before, {});
  EXPECT_TRUE(ContextScreen.shown);
  EXPECT_EQ(ContextScreen.chooser.Text(), "Sfeer ?");
  EXPECT_EQ(ContextScreen.chooser.Index(), -1);
  EXPECT_EQ(Shown(), Codes{});
  EXPECT_EQ(ContextScreen.actions.CurrentRow(), 0);
  EXPECT_EQ(ContextScreen.description.caption, "");
  ExpectPanels(false, false);
}

TEST_F(ContextViewTest, SelectsTheMasterInTheMainWindow) {
  Open();
  MainWindow.moduleList.Pick(0);
  OpenAgain();
  EXPECT_EQ(MainWindow.moduleList.Text(), "KR7110");
}

TEST_F(ContextViewTest, OpeningSpreadsTheTableOutAndChangesNothingElse) {
  Open();
  PutContexts({{1, {On('A'), On('B')}}, {50, {On('C')}}});
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  ExpectOnlyChanged(before, {"ContextWork[0..5]", "ContextWork[14700..14702]"});
  ExpectStored(1, {On('A'), On('B')});
  ExpectStored(50, {On('C')});
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_F(ContextViewTest, TheMemoryIsTheNumberOfActionsThatStillFit) {
  Open();
  ExpectMemory("283");
  Open({{1, {On('A')}}});
  ExpectMemory("282");
  Open({{1, {On('A'), On('B')}}, {7, {On('A')}}, {50, {On('C')}}});
  ExpectMemory("279");
  // A 42 within an action ends its context: 848 cells are left here.
  Open({{1, {{70, 42, 5}}}, {2, {{70, 42, 5}}}});
  ExpectMemory("282");
  Open(
      {{1, ActionList(100, On('A'))}, {2, ActionList(100, On('A'))}, {3, ActionList(83, On('A'))}});
  ExpectMemory("0");
}

TEST_F(ContextViewTest, ActionsAreReadLineByLine) {
  ActionList actions;
  for (int place = 0; place < 6; ++place) actions.push_back({65, place, 1});
  OpenOn(2, actions);
  EXPECT_EQ(Shown(), (Codes{"A0101", "A0201", "A0301", "A0401", "A0501", "A0601"}));
  EXPECT_EQ(ContextScreen.actions.At(1, 4), "A0501");
  EXPECT_EQ(ContextScreen.actions.At(2, 0), "A0601");
  EXPECT_EQ(ContextScreen.actions.At(2, 1), "");
}

TEST_F(ContextViewTest, AHundredActionsFillTheGrid) {
  ActionList actions;
  for (int place = 0; place < 100; ++place) actions.push_back({'A' + place % 18, place % 40, 1});
  OpenOn(50, actions);
  const Codes codes = Shown();
  ASSERT_EQ(codes.size(), 100U);
  EXPECT_EQ(codes.front(), "A0101");
  EXPECT_EQ(ContextScreen.actions.At(20, 4), "J2002");
  for (const std::string& code : codes) EXPECT_EQ(code.size(), 5U);
}

TEST_F(ContextViewTest, CodesCountFromOneInAudioBlocksAndOfCorvela) {
  OpenOn(1, {{72, 15, 1},
             {72, 16, 1},
             {72, "34", "04"},
             {90, 4, 11},
             {90, "98", "98"},
             {83, 6, 2},
             {83, 19, 2},
             {67, "00", 90}});
  EXPECT_EQ(Shown(),
            (Codes{"H1601", "H1702", "H3505", "Z0512", "Z9999", "S0702", "S2002", "C0190"}));
}

TEST_F(ContextViewTest, TheDescriptionIsThatOfTheSelectedAction) {
  const ActionList actions = {{65, 2, 1}, {69, 8, 99}, {90, 4, 11}, {83, 6, 2}, {75, 0, 1}};
  OpenOn(1, actions);
  Select(0);
  EXPECT_EQ(ContextScreen.description.caption, "Relaismodule 'A':  Uitgang 03 aan");
  Select(1);
  EXPECT_EQ(ContextScreen.description.caption,
            "Temp. module 'E':  Basistemperatuur in alle ruimtes");
  Select(2);
  EXPECT_EQ(ContextScreen.description.caption, "Corvela code: Z0512");
  // A context within a context, a letter that is not in the list of modules, and nothing.
  for (const int place : {3, 4, 5}) {
    Select(0);
    Select(place);
    EXPECT_EQ(ContextScreen.description.caption, "") << place;
  }
  OpenOn(1, actions, 2);
  Select(0);
  EXPECT_EQ(ContextScreen.description.caption, "Module relais 'A':  Sortie 03 On");
}

TEST_F(ContextViewTest, AnotherContextIsDrawnAndClosesTheFrames) {
  Open({{1, {On('A'), On('B')}}, {2, {On('C')}}});
  PickContext(1);
  EXPECT_EQ(Shown(), (Codes{"A0101", "B0101"}));
  DoubleClick(1);
  ExpectPanels(true, false);
  PickContext(2);
  EXPECT_EQ(Shown(), Codes{"C0101"});
  ExpectPanels(false, false);
  EXPECT_EQ(ContextScreen.description.caption, "");
  EXPECT_EQ(ContextScreen.actions.CurrentRow(), 0);
  DoubleClick(1);
  ExpectPanels(false, true);
  PickContext(3);
  ExpectPanels(false, false);
  EXPECT_EQ(Shown(), Codes{});
}

TEST_F(ContextViewTest, WithoutAContextADoubleClickDoesNothing) {
  Open({{1, {On('A')}}});
  const Snapshot before = TakeSnapshot();
  DoubleClick(0);
  ExpectPanels(false, false);
  EXPECT_TRUE(messages.told.empty());
  ExpectOnlyChanged(before, {});
}

TEST_F(ContextViewTest, ADoubleClickAboveTheRowsDoesNothing) {
  OpenOn(1, {On('A')});
  ContextScreen.actions.DoubleClick(0, 0);
  ExpectPanels(false, false);
}

TEST_F(ContextViewTest, EnterAndEscapeAreTheButtonsOfTheFrameThatIsOpen) {
  OpenOn(1, {On('A')});
  EXPECT_EQ(ContextScreen.enter, nullptr);
  EXPECT_EQ(ContextScreen.escape, nullptr);
  DoubleClick(0);
  EXPECT_EQ(ContextScreen.enter, &ContextScreen.deleteConfirm);
  EXPECT_EQ(ContextScreen.escape, &ContextScreen.deleteCancel);
  ContextScreen.deleteCancel.Click();
  EXPECT_EQ(ContextScreen.enter, nullptr);
  DoubleClick(1);
  EXPECT_EQ(ContextScreen.enter, &ContextScreen.editConfirm);
  EXPECT_EQ(ContextScreen.escape, &ContextScreen.editLeave);
  ContextScreen.editLeave.Click();
  EXPECT_EQ(ContextScreen.enter, nullptr);
  EXPECT_EQ(ContextScreen.escape, nullptr);
}

// --- From one image to the next -----------------------------------------------------------------

/// What stood behind a list in the contexts of one image must not come up in those of the next.
class NextImageTest : public ContextScreenTest {
 protected:
  /// A master's file with that one context, the first.
  std::string File(const ActionList& actions) {
    PutContexts({{1, actions}});
    return FileOf(9, [](int place) {
      const int cell = place - 164;
      return cell < 0 || cell > 999 ? 42 : ContextTable[cell].Whole();
    });
  }
  void Add() {
    PickContext(1);
    DoubleClick(99);
    Choose(12);
    Confirm();
  }
};

TEST_F(NextImageTest, AFileForgetsTheContextsOfTheImageBefore) {
  Start();
  files.content["/house/long.BK1"] = File(ActionList(5, On('B')));
  files.content["/house/short.BK1"] = File({On('C')});
  OpenModule("/house/long.BK1");
  OpenAgain();
  OpenModule("/house/short.BK1");
  ButtonImage[123] = 'A';
  ButtonImage[141] = 0;
  OpenAgain();
  Add();
  EXPECT_EQ(Shown(), (Codes{"C0101", "A1201"}));
  ExpectStored(1, {On('C'), {65, "11", "01"}});
  for (int cell = 6; cell < 300; ++cell) ASSERT_EQ(ContextWork[cell], Cell(42)) << cell;
}

TEST_F(NextImageTest, ARepeatedUnpackOfOneImageShowsWhatStoodBehindTheListAgain) {
  OpenOn(1, {On('A'), On('B'), On('C'), On('D'), On('A')});
  PutContexts({{1, {On('A'), On('B')}}});
  OpenAgain();
  PickContext(1);
  EXPECT_EQ(Shown(), (Codes{"A0101", "B0101"}));
  ExpectMemory("281");
  Add();
  EXPECT_EQ(Shown(), (Codes{"A0101", "B0101", "A1201", "D0101", "A0101"}));
  ExpectStored(1, {On('A'), On('B'), {65, "11", "01"}, On('D'), On('A')});
  ExpectMemory("278");
}

}  // namespace
}  // namespace bkconf
