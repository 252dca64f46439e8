// Adding actions to a context.
#include "image/tables.h"
#include "master/context_screen_test.h"

namespace bkconf {
namespace {

/// 282 actions in other contexts than the first: one more fits.
std::map<int, ActionList> NearlyFull() {
  return {{2, ActionList(100, {65, 0, 1})},
          {3, ActionList(100, {65, 0, 1})},
          {4, ActionList(82, {65, 0, 1})}};
}

class ContextEditTest : public ContextScreenTest {
 protected:
  void OpenEditor(const ActionList& actions = {}, int context = 1, int language = 1) {
    OpenOn(context, actions, language);
    DoubleClick(99);
    ExpectPanels(false, true);
  }
  /// Adds one action more behind those of the context that is picked.
  static void Add(int output) {
    DoubleClick(99);
    Choose(output);
    Confirm();
    ExpectPanels(false, false);
  }
  void ExpectAdded(const ActionCells& cells) {
    Confirm();
    ExpectStored(1, {cells});
    for (int i = 0; i < 3; ++i) EXPECT_EQ(ContextWork[i], cells[static_cast<std::size_t>(i)]);
  }
};

TEST_F(ContextEditTest, ADoubleClickOnAnEmptyPlaceOpensTheEditorWithItsPickerIdle) {
  OpenEditor({On('A')});
  EXPECT_TRUE(ContextScreen.picker.letter.enabled);
  EXPECT_EQ(ContextScreen.picker.letter.Text() + ContextScreen.picker.type.Text(), "");
  EXPECT_FALSE(ContextScreen.picker.type.enabled);
  EXPECT_FALSE(ContextScreen.picker.output.list.visible);
  EXPECT_FALSE(ContextScreen.picker.allOutputs.visible);
}

TEST_F(ContextEditTest, BeforeAnEditorWasOpenedNothingCanBePicked) {
  OpenOn(1, {});
  EXPECT_FALSE(ContextScreen.picker.letter.enabled);
}

TEST_F(ContextEditTest, OpeningTheEditorAgainForgetsWhatWasPicked) {
  OpenEditor();
  Choose(3);
  ContextScreen.picker.allOutputs.Set(true);
  ContextScreen.editLeave.Click();
  DoubleClick(7);
  EXPECT_EQ(ContextScreen.picker.letter.Text(), "");
  EXPECT_FALSE(ContextScreen.picker.allOutputs.visible || ContextScreen.picker.allOutputs.checked);
  ExpectNoChange(ContextScreen.editConfirm);
}

TEST_F(ContextEditTest, AnActionGoesIntoTheFirstEmptyPlaceWhicheverWasClicked) {
  for (const int place : {2, 3, 7, 99}) {
    OpenOn(5, {On('A'), On('B')});
    DoubleClick(place);
    Choose(12, "Toggle");
    const Snapshot before = TakeSnapshot();
    Confirm();
    EXPECT_EQ(Shown(), (Codes{"A0101", "B0101", "A1202"}));
    ExpectStored(5, {On('A'), On('B'), {65, "11", "02"}});
    ExpectPanels(false, false);
    EXPECT_TRUE(MainWindow.send.enabled);
    EXPECT_EQ(MasterContextsDirty, Cell(1));
    // The header becomes texts, and the action follows what stands there.
    ExpectOnlyChanged(before, {"ContextWork[1206..1208]", "ContextTable[0..99]",
                               "ContextTable[106..108]", "MasterContextsDirty"});
  }
}

TEST_F(ContextEditTest, TheFirstActionOfAContextGetsAPlaceAndTheMemoryShrinks) {
  OpenOn(50, {});
  Add(1);
  ExpectStored(50, {{65, "00", "01"}});
  EXPECT_EQ(ContextTable[98], Cell("1"));
  EXPECT_EQ(ContextTable[99], Cell("00"));
  ExpectMemory("282");
  Add(2);
  ExpectMemory("281");
  EXPECT_EQ(Shown(), (Codes{"A0101", "A0201"}));
}

TEST_F(ContextEditTest, ContextsBehindTheChangedOneMove) {
  Open({{1, {On('A')}}, {2, {On('B')}}, {9, {On('C'), On('D')}}});
  PickContext(2);
  Add(4);
  ExpectStored(1, {On('A')});
  ExpectStored(2, {On('B'), {65, "03", "01"}});
  ExpectStored(9, {On('C'), On('D')});
  EXPECT_EQ(ContextTable[16].Text() + ContextTable[17].Text(), "111");
}

TEST_F(ContextEditTest, TheSixthActionOpensTheSecondLine) {
  OpenOn(1, ActionList(5, On('B')));
  DoubleClick(5);
  Choose(6);
  Confirm();
  EXPECT_EQ(ContextScreen.actions.At(2, 0), "A0601");
}

TEST_F(ContextEditTest, EveryTypeReachesTheCellsInItsForm) {
  OpenEditor();
  PickLetter("C");
  Pick(ContextScreen.picker.output.list, "4");
  Pick(ContextScreen.picker.action.list, "90%");
  ExpectAdded({67, "03", 90});
  EXPECT_EQ(Shown(), Codes{"C0490"});

  OpenEditor();
  PickLetter("E");
  ContextScreen.picker.temperatures[2].option.Choose();
  Pick(ContextScreen.picker.temperatures[2].temperature, "7");
  ExpectAdded({69, "8", 7});
  EXPECT_EQ(Shown(), Codes{"E0907"});

  OpenEditor();
  PickLetter("H");
  ContextScreen.picker.mainZone.Choose();
  Pick(ContextScreen.picker.output.list, "3");
  Pick(ContextScreen.picker.action.list, "VOL..");
  Pick(ContextScreen.picker.value.list, "5");
  ExpectAdded({72, "34", "04"});
  EXPECT_EQ(Shown(), Codes{"H3505"});

  OpenEditor();
  PickLetter("I");
  ContextScreen.picker.simulationOn.Choose();
  ExpectAdded({73, "00", "01"});
  EXPECT_EQ(Shown(), Codes{"I0101"});

  OpenEditor();
  PickLetter("Z");
  Pick(ContextScreen.picker.output.list, "05");
  Pick(ContextScreen.picker.action.list, "12");
  ExpectAdded({90, "04", "11"});
  EXPECT_EQ(Shown(), Codes{"Z0512"});
}

TEST_F(ContextEditTest, WhileTheEditorIsOpenADoubleClickClearsTheDescriptionAndNothingElse) {
  OpenEditor({On('A'), On('B')});
  for (const int place : {0, 1, 50}) {
    Choose(3);
    Select(0);
    ASSERT_NE(ContextScreen.description.caption, "");
    const Snapshot before = TakeSnapshot();
    DoubleClick(place);
    EXPECT_EQ(ContextScreen.description.caption, "") << place;
    ExpectPanels(false, true);
    EXPECT_EQ(ContextScreen.picker.output.list.Text(), "3");
    ExpectOnlyChanged(before, {});
  }
  Confirm();
  ExpectStored(1, {On('A'), On('B'), {65, "02", "01"}});
}

TEST_F(ContextEditTest, LeavingTheEditorChangesNothing) {
  OpenEditor({On('A')});
  Choose(3);
  const Snapshot before = TakeSnapshot();
  ContextScreen.editLeave.Click();
  ExpectPanels(false, false);
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_F(ContextEditTest, ConfirmDoesNothingWhileTheEditorIsClosed) {
  OpenEditor();
  Choose(3);
  ContextScreen.editLeave.Click();
  ExpectNoChange(ContextScreen.editConfirm);
  EXPECT_EQ(Shown(), Codes{});
}

TEST_F(ContextEditTest, TheDescriptionFollowsTheSelectedPlace) {
  OpenOn(1, {});
  Select(0);
  EXPECT_EQ(ContextScreen.description.caption, "");
  Add(3);
  Select(0);
  Delete(0);
  EXPECT_EQ(ContextScreen.description.caption, "");
  Select(0);
  DoubleClick(0);
  Choose(2);
  Confirm();
  EXPECT_EQ(ContextScreen.description.caption, "Relaismodule 'A':  Uitgang 02 aan");
}

// --- What is refused without a word -------------------------------------------------------------

TEST_F(ContextEditTest, WithoutALetterATypeAnOutputOrAnActionNothingIsStored) {
  OpenEditor({On('A')});
  ExpectNoChange(ContextScreen.editConfirm);
  PickLetter("K");
  ExpectNoChange(ContextScreen.editConfirm);
  PickLetter("F");
  ExpectNoChange(ContextScreen.editConfirm);
  for (const char* letter : {"A", "B", "C", "D", "G"}) {
    PickLetter(letter);
    ExpectNoChange(ContextScreen.editConfirm);
    Pick(ContextScreen.picker.output.list, "1");
    ExpectNoChange(ContextScreen.editConfirm);
    if (letter[0] == 'D') continue;  // its actions wait for the output
    PickLetter(letter);
    Pick(ContextScreen.picker.action.list, "Aan");
    ExpectNoChange(ContextScreen.editConfirm);
  }
}

TEST_F(ContextEditTest, WithoutWhatTemperaturesNeedNothingIsStored) {
  OpenEditor();
  PickLetter("E");
  auto& [roomDegrees, roomBase, allDegrees, allBase] = ContextScreen.picker.temperatures;
  ExpectNoChange(ContextScreen.editConfirm);
  for (OptionField* option : {&roomDegrees.option, &roomBase.option, &allDegrees.option}) {
    option->Choose();
    ExpectNoChange(ContextScreen.editConfirm);
  }
  roomDegrees.option.Choose();
  Pick(roomDegrees.temperature, "20");
  ExpectNoChange(ContextScreen.editConfirm);
  PickLetter("E");
  roomDegrees.option.Choose();
  Pick(roomDegrees.room, "2");
  ExpectNoChange(ContextScreen.editConfirm);
}

TEST_F(ContextEditTest, WithoutWhatAudioSimulationsAndCodesNeedNothingIsStored) {
  OpenEditor();
  PickLetter("H");
  ExpectNoChange(ContextScreen.editConfirm);
  Pick(ContextScreen.picker.output.list, "3");
  ExpectNoChange(ContextScreen.editConfirm);
  for (OptionField* zone : {&ContextScreen.picker.mainZone, &ContextScreen.picker.secondaryZone}) {
    zone->Choose();
    ExpectNoChange(ContextScreen.editConfirm);
    Pick(ContextScreen.picker.action.list, "VOL..");
    ExpectNoChange(ContextScreen.editConfirm);
  }
  PickLetter("H");
  ContextScreen.picker.mainZone.Choose();
  Pick(ContextScreen.picker.action.list, "Aan");
  ExpectNoChange(ContextScreen.editConfirm);
  PickLetter("I");
  ExpectNoChange(ContextScreen.editConfirm);
  PickLetter("Z");
  ExpectNoChange(ContextScreen.editConfirm);
  Pick(ContextScreen.picker.output.list, "05");
  ExpectNoChange(ContextScreen.editConfirm);
  PickLetter("Z");
  Pick(ContextScreen.picker.action.list, "05");
  ExpectNoChange(ContextScreen.editConfirm);
}

TEST_F(ContextEditTest, AllOutputsWithoutAnActionStoreNothing) {
  OpenEditor();
  for (const char* letter : {"A", "B", "C", "D", "G"}) {
    PickLetter(letter);
    ContextScreen.picker.allOutputs.Set(true);
    ExpectNoChange(ContextScreen.editConfirm);
  }
}

// --- All outputs --------------------------------------------------------------------------------

TEST_F(ContextEditTest, AllOutputsAreAddedOneBehindTheOther) {
  const std::map<std::string, int> outputs = {{"A", 12}, {"B", 12}, {"C", 4}, {"D", 8}, {"G", 12}};
  for (const auto& [letter, count] : outputs) {
    OpenEditor({On('B')}, 3);
    PickLetter(letter);
    ContextScreen.picker.allOutputs.Set(true);
    Pick(ContextScreen.picker.action.list, "Aan");
    Confirm();
    ActionList expected = {On('B')};
    for (int output = 0; output < count; ++output) {
      const std::string number = (output < 10 ? "0" : "") + std::to_string(output);
      expected.push_back({int{letter[0]}, number, "01"});
    }
    ExpectStored(3, expected);
    EXPECT_EQ(Shown().size(), expected.size());
    ExpectMemory(std::to_string(283 - 1 - count));
  }
}

TEST_F(ContextEditTest, WhatLiesBehindTheHundredthActionIsDropped) {
  OpenOn(1, ActionList(95, On('B')));
  const Cell next = ContextWork[300];
  DoubleClick(97);
  PickLetter("A");
  ContextScreen.picker.allOutputs.Set(true);
  Pick(ContextScreen.picker.action.list, "Uit");
  Confirm();
  ActionList expected(95, On('B'));
  for (const char* output : {"00", "01", "02", "03", "04"}) {
    expected.push_back({65, output, "00"});
  }
  ExpectStored(1, expected);
  EXPECT_EQ(ContextWork[300], next);
  ExpectMemory("183");
  EXPECT_EQ(Shown().back(), "A0500");
}

TEST_F(ContextEditTest, AllOutputsMayOverrunTheMemoryAndTheEditorStaysClosedThen) {
  Open(NearlyFull());
  ExpectMemory("1");
  PickContext(5);
  DoubleClick(0);
  PickLetter("A");
  ContextScreen.picker.allOutputs.Set(true);
  Pick(ContextScreen.picker.action.list, "Aan");
  Confirm();
  EXPECT_EQ(Shown().size(), 12U);
  // 850 cells less those of 294 actions; a part of an action does not count.
  ExpectMemory("-10");
  DoubleClick(50);
  ExpectPanels(false, false);
  EXPECT_EQ(messages.told, std::vector<std::string>{"Geheugen vol !!"});
}

// --- Memory -------------------------------------------------------------------------------------

TEST_F(ContextEditTest, WithNoMemoryLeftTheEditorDoesNotOpen) {
  for (const int language : {1, 2}) {
    auto contexts = NearlyFull();
    contexts[4].push_back(On('B'));
    Open(contexts, language);
    ExpectMemory("0");
    PickContext(1);
    messages.told.clear();
    const Snapshot before = TakeSnapshot();
    DoubleClick(0);
    ExpectPanels(false, false);
    EXPECT_EQ(messages.told,
              std::vector<std::string>{language == 1 ? "Geheugen vol !!" : "Mémoire pleine !!"});
    ExpectOnlyChanged(before, {});
  }
}

TEST_F(ContextEditTest, TheLastActionThatFitsIsTaken) {
  Open(NearlyFull());
  PickContext(1);
  Add(7);
  ExpectStored(1, {{65, "06", "01"}});
  ExpectMemory("0");
  EXPECT_TRUE(messages.told.empty());
  DoubleClick(1);
  EXPECT_EQ(messages.told.size(), 1U);
}

/// The list on the screen is shorter than what still stands behind it.
TEST_F(ContextEditTest, AContextWhoseHundredthPlaceIsTakenDoesNotOpenTheEditor) {
  for (const int language : {1, 2}) {
    OpenOn(7, ActionList(100, On('B')), language);
    PutContexts({{7, {On('A')}}});
    OpenAgain();
    PickContext(7);
    ASSERT_EQ(Shown(), Codes{"A0101"});
    messages.told.clear();
    const Snapshot before = TakeSnapshot();
    DoubleClick(1);
    ExpectPanels(false, false);
    EXPECT_EQ(messages.told,
              std::vector<std::string>{language == 1 ? "Sfeer 7 : geheugen vol !!"
                                                     : "Contexte 7 mémoire pleine !!"});
    ExpectOnlyChanged(before, {});
    // The other places can be deleted all the same.
    DoubleClick(0);
    ExpectPanels(true, false);
  }
}

TEST_F(ContextEditTest, TheContextIsToldBeforeTheMemory) {
  auto contexts = NearlyFull();
  contexts[4].push_back(On('B'));
  Open(contexts);
  ContextWork[2997] = 65;
  PickContext(10);
  DoubleClick(0);
  EXPECT_EQ(messages.told, std::vector<std::string>{"Sfeer 10 : geheugen vol !!"});
}

TEST_F(ContextEditTest, AHundredActionsLeaveNoPlaceToClick) {
  OpenOn(1, ActionList(99, On('B')));
  Add(1);
  for (const int place : {0, 99}) {
    DoubleClick(place);
    ExpectPanels(true, false);
  }
  EXPECT_TRUE(messages.told.empty());
}

// --- Behind the list ----------------------------------------------------------------------------

TEST_F(ContextEditTest, CellsBehindTheListAreEmptiedUpToThe149th) {
  OpenOn(2, {On('A')});
  // From the second place on, so that the list still ends behind the first.
  for (int cell = 4; cell < 300; ++cell) ContextWork[300 + cell] = cell == 6 ? 42 : 7;
  ContextWork[300 + 297] = 42;
  DoubleClick(1);
  Choose(2);
  Confirm();
  ExpectStored(2, {On('A'), {65, "01", "01"}});
  for (int cell = 6; cell < 300; ++cell) {
    const bool kept = cell >= 150 && cell != 297;
    ASSERT_EQ(ContextWork[300 + cell], Cell(kept ? 7 : 42)) << cell;
  }
  EXPECT_EQ(ContextWork[600], Cell(42));
}

}  // namespace
}  // namespace bkconf
