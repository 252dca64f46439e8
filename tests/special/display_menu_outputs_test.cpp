// The dialog of the two outputs of an automation.
#include <gtest/gtest.h>

#include "special/display_menu_test.h"

namespace bkconf {
namespace {

using Texts = std::vector<std::string>;

AutomationFields& OpenRow() {
  return DisplayMenuScreen.open;
}
AutomationFields& CloseRow() {
  return DisplayMenuScreen.close;
}

Texts Shown() {
  return {OpenRow().module.Text(), OpenRow().output.Text(), CloseRow().module.Text(),
          CloseRow().output.Text()};
}

class DisplayOutputsTest : public DisplayMenuTest {
 protected:
  /// Opens a display on its automations.
  void OpenAutomations(int language = 1, int display = 1) {
    Open(language, display);
    PickScreen(AutomationScreen);
    LcdScreen1Dirty = LcdScreen2Dirty = 1;
  }
  static bool IsOpen() { return DisplayMenuScreen.outputsGroup.visible; }
  static void Ok() { DisplayMenuScreen.ok.Click(); }
};

TEST_F(DisplayOutputsTest, EveryLineShowsItsOwnTwoPairs) {
  for (const int display : {1, 2}) {
    OpenAutomations(1, display);
    const Snapshot before = TakeSnapshot();
    for (int place = 9; place >= 0; --place) {
      PressOutputs(place);
      EXPECT_TRUE(IsOpen());
      EXPECT_EQ(
          Shown(),
          (Texts{std::string(1, static_cast<char>('A' + place)), std::to_string(place % 4 + 1),
                 std::string(1, static_cast<char>('B' + place)), std::to_string(12 - place)}));
    }
    ExpectOnlyChanged(before, {});
  }
}

TEST_F(DisplayOutputsTest, ThePairsAreThoseOfTheScreenThatIsChosen) {
  Open();
  Leave();
  for (const int screen : {0, 5}) {
    LcdScreen1[695 + screen] = 5;
    for (int cell = 0; cell < 2; ++cell) {
      LcdScreen1[780 + 20 * screen + 6 + cell] = 70 + screen + cell;
      LcdScreen1[900 + 20 * screen + 6 + cell] = 75 + screen + cell;
    }
  }
  Press(1);
  for (const int screen : {5, 0}) {
    PickScreen(screen);
    PressOutputs(3);
    EXPECT_EQ(Shown(),
              (Texts{std::string(1, static_cast<char>(70 + screen)), std::to_string(72 + screen),
                     std::string(1, static_cast<char>(75 + screen)), std::to_string(77 + screen)}));
  }
}

TEST_F(DisplayOutputsTest, TheDialogOffersTheModulesAndTwelveOutputs) {
  OpenAutomations();
  PickCategory(7);
  PickCategory(5);
  PressOutputs(0);
  for (const AutomationFields* row : {&OpenRow(), &CloseRow()}) {
    EXPECT_EQ(row->module.items, LetterItems());
    EXPECT_EQ(row->output.items, NumberItems(12));
  }
}

TEST_F(DisplayOutputsTest, ConfirmingStoresFourCellsOfTheLine) {
  for (const int display : {1, 2}) {
    for (const int place : {0, 9}) {
      OpenAutomations(1, display);
      PressOutputs(place);
      const Snapshot before = TakeSnapshot();
      OpenRow().module.Pick(17);
      OpenRow().output.Pick(4);
      CloseRow().module.Pick(16);
      CloseRow().output.Pick(0);
      Ok();
      EXPECT_FALSE(IsOpen());
      Table& table = TableOf(display);
      EXPECT_EQ(CodesAt(table, 840 + 2 * place, 2), "R\x04");
      EXPECT_EQ(CodesAt(table, 960 + 2 * place, 2), std::string("Q\0", 2));
      ExpectOnlyChanged(before, {CellName(table, 840 + 2 * place, 841 + 2 * place),
                                 CellName(table, 960 + 2 * place, 961 + 2 * place)});
      EXPECT_EQ(Line(place).module.Text(), "R");
      EXPECT_EQ(Line(place).output.Text(), "5");
      Leave();
      EXPECT_EQ(CodesAt(table, 840 + 2 * place, 2), "R\x04");
    }
  }
}

TEST_F(DisplayOutputsTest, APickInTheDialogChangesNoCellUntilItIsConfirmed) {
  OpenAutomations();
  PressOutputs(3);
  const Snapshot before = TakeSnapshot();
  for (ListField* list : DialogLists()) list->Pick(6);
  ExpectOnlyChanged(before, {});
}

TEST_F(DisplayOutputsTest, ConfirmingWhatIsThereChangesAndMarksNothing) {
  OpenAutomations();
  LcdScreen1Dirty = LcdScreen2Dirty = 0;
  PressOutputs(7);
  const Snapshot before = TakeSnapshot();
  Ok();
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_F(DisplayOutputsTest, NoughtsAreShownAndStoredBackAsTheyAre) {
  OpenAutomations();
  for (const int cell : {840, 841, 960, 961}) LcdScreen1[cell] = 0;
  PressOutputs(0);
  EXPECT_EQ(Shown(), (Texts{std::string(1, '\0'), "1", std::string(1, '\0'), "1"}));
  const Snapshot before = TakeSnapshot();
  Ok();
  EXPECT_FALSE(IsOpen());
  EXPECT_TRUE(messages.told.empty());
  ExpectOnlyChanged(before, {});
}

TEST_F(DisplayOutputsTest, OutputsBelowTheFirstAreShownAndStoredBackAsTheyAre) {
  for (const int output : {-1, -2, -5, -1000}) {
    OpenAutomations();
    for (const int cell : {781, 841, 961}) LcdScreen1[cell] = output;
    PressOutputs(0);
    const std::string shown = std::to_string(output + 1);
    EXPECT_EQ(Shown(), (Texts{"A", shown, "B", shown}));
    const Snapshot before = TakeSnapshot();
    Ok();
    ExpectOnlyChanged(before, {});
    // The first screen has one output a line, and no dialog.
    PickScreen(0);
    EXPECT_EQ(Line(0).output.Text(), shown);
    Leave();
    ExpectOnlyChanged(before, {});
  }
}

TEST_F(DisplayOutputsTest, CharactersOfTheCellsAreShownWhateverTheyAre) {
  OpenAutomations();
  LcdScreen1[840] = 35;
  LcdScreen1[841] = 200;
  LcdScreen1[960] = 233;
  LcdScreen1[961] = 49;
  PressOutputs(0);
  EXPECT_EQ(Shown(), (Texts{"#", "201", "é", "50"}));
  const Snapshot before = TakeSnapshot();
  Ok();
  ExpectOnlyChanged(before, {});
}

TEST_F(DisplayOutputsTest, AnEmptyFieldIsToldOfAndNothingIsStored) {
  for (const int language : {1, 2}) {
    for (const bool goesOn : {true, false}) {
      for (std::size_t empty = 0; empty < 4; ++empty) {
        OpenAutomations(language);
        PressOutputs(2);
        for (ListField* list : DialogLists()) list->Pick(7);
        DialogLists()[empty]->Show("");
        messages.told.clear();
        const std::string before = CodesAt(LcdScreen1, 0, 1030);
        Ok();
        EXPECT_EQ(messages.told, Texts{language == 1 ? "Opgelet: Gegevens niet volledig!"
                                                     : "Attention: Données pas complet!"});
        EXPECT_TRUE(IsOpen());
        messages.asked(goesOn);
        EXPECT_EQ(IsOpen(), goesOn);
        EXPECT_EQ(DialogLists()[empty]->Text(), "");
        EXPECT_EQ(CodesAt(LcdScreen1, 0, 1030), before);
      }
    }
  }
}

TEST_F(DisplayOutputsTest, AnIncompleteDialogCanBeCompleted) {
  OpenAutomations();
  PressOutputs(2);
  OpenRow().module.Type("");
  Ok();
  messages.asked(true);
  OpenRow().module.Pick(1);
  Ok();
  EXPECT_FALSE(IsOpen());
  EXPECT_EQ(LcdScreen1[844], Cell('B'));
  EXPECT_EQ(messages.told.size(), 1U);
}

TEST_F(DisplayOutputsTest, ALetterThatIsNoModuleBecomesTheUnusedMark) {
  OpenAutomations();
  for (AutomationFields* row : {&OpenRow(), &CloseRow()}) {
    PressOutputs(0);
    for (const char* typed : {"A", "K", "R", "", "AB"}) {
      row->module.Type(typed);
      EXPECT_EQ(row->module.Text(), typed);
    }
    for (const char* typed : {"S", "Z", "@", "a", "r", "1", " ", "é", "#", "A1", "1A"}) {
      row->module.Type(typed);
      EXPECT_EQ(row->module.Text(), "#") << typed;
    }
  }
  PressOutputs(0);
  OpenRow().module.Type("x");
  CloseRow().module.Type("AB");
  Ok();
  EXPECT_EQ(LcdScreen1[840], Cell(35));
  EXPECT_EQ(LcdScreen1[960], Cell('A'));
}

TEST_F(DisplayOutputsTest, ANumberThatIsNoOutputBecomesTheFirst) {
  OpenAutomations();
  for (AutomationFields* row : {&OpenRow(), &CloseRow()}) {
    PressOutputs(0);
    for (const char* typed : {"1", "2", "11", "12"}) {
      row->output.Type(typed);
      EXPECT_EQ(row->output.Text(), typed);
    }
    for (const char* typed : {"0", "13", "-1", "", "x", " 3", "99999999999", "120"}) {
      row->output.Type(typed);
      EXPECT_EQ(row->output.Text(), "1") << typed;
    }
    row->output.Type("12");
    Ok();
  }
  EXPECT_EQ(LcdScreen1[841], Cell(11));
  EXPECT_EQ(LcdScreen1[961], Cell(11));
}

TEST_F(DisplayOutputsTest, OnlyAnAutomationHasTheDialog) {
  Open();
  for (int screen = 0; screen < 6; ++screen) {
    PickScreen(screen);
    PressOutputs(0);
    EXPECT_EQ(IsOpen(), screen == AutomationScreen);
  }
}

TEST_F(DisplayOutputsTest, ADialogThatIsNotOpenStoresNothing) {
  OpenAutomations();
  PressOutputs(0);
  Ok();
  const Snapshot before = TakeSnapshot();
  OpenRow().module.Show("Q");
  Ok();
  ExpectOnlyChanged(before, {});
}

TEST_F(DisplayOutputsTest, AnotherScreenOrCategoryClosesTheDialogAndStoresNothing) {
  for (const bool category : {true, false}) {
    OpenAutomations();
    PressOutputs(5);
    OpenRow().module.Pick(17);
    if (category) {
      PickCategory(5);
    } else {
      PickScreen(AutomationScreen);
    }
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Shown(), (Texts{"", "", "", ""}));
    Ok();
    EXPECT_EQ(LcdScreen1[850], Cell('F'));
  }
}

TEST_F(DisplayOutputsTest, LeavingWithTheDialogOpenStoresNothingOfIt) {
  OpenAutomations();
  PressOutputs(5);
  OpenRow().module.Pick(17);
  const Snapshot before = TakeSnapshot();
  OpenAgain(1);
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(IsOpen());
}

}  // namespace
}  // namespace bkconf
