// Changing the category of a screen, what can be typed into its lists, and what counts as a change.
#include <gtest/gtest.h>

#include <functional>

#include "special/display_menu_test.h"

namespace bkconf {
namespace {

using Texts = std::vector<std::string>;

struct Keys {
  int code;
  std::string dutchA, dutchB, frenchA, frenchB;
};

const Keys KeysOf[] = {{2, "+10", "-10", "+10", "-10"}, {3, "AAN", "UIT", "ON", "OFF"},
                       {4, "AAN", "UIT", "ON", "OFF"},  {5, "OP", "NEER", "HAUT", "BAS"},
                       {6, "+1", "-1", "+1", "-1"},     {7, "Act", "  ", "Act", "  "}};

TEST_F(DisplayMenuTest, AChangeOfCategoryPutsItsWordsUnderTheKeys) {
  for (const int language : {1, 2}) {
    for (const Keys& keys : KeysOf) {
      for (int screen = 0; screen < 6; ++screen) {
        Open(language);
        PickScreen(screen);
        PickCategory(keys.code);
        EXPECT_EQ(DisplayMenuScreen.keyA.Text(), language == 1 ? keys.dutchA : keys.frenchA);
        EXPECT_EQ(DisplayMenuScreen.keyB.Text(), language == 1 ? keys.dutchB : keys.frenchB);
      }
    }
  }
}

TEST_F(DisplayMenuTest, AChangeOfCategoryEmptiesTheOutputsAndOffersThoseOfTheNewOne) {
  const int highest[] = {4, 12, 12, 12, 8, 50};
  for (int screen = 0; screen < 6; ++screen) {
    for (int code = 2; code <= 7; ++code) {
      Open();
      PickScreen(screen);
      PickCategory(code);
      EXPECT_EQ(DisplayMenuScreen.category.Index(), code - 2);
      for (int place = 0; place < 10; ++place) {
        EXPECT_EQ(Line(place).module.Text() + Line(place).output.Text(), "");
        EXPECT_EQ(Line(place).module.Index(), -1);
        EXPECT_EQ(Line(place).output.Index(), -1);
        EXPECT_EQ(Line(place).module.items, code == 7 ? Texts{"S"} : LetterItems());
        EXPECT_EQ(Line(place).output.items, NumberItems(highest[code - 2]));
        EXPECT_EQ(Line(place).outputs.enabled, code == 5);
      }
      for (const ListField* list : DialogLists()) EXPECT_EQ(list->Text(), "");
      // What a line is called stays.
      EXPECT_EQ(Line(3).text.Text(), "aline " + std::to_string(screen) + "3  ");
      EXPECT_EQ(DisplayMenuScreen.name.Text(), "aname " + std::to_string(screen) + "     ");
      EXPECT_EQ(DisplayMenuScreen.mainKeyA.Text(), "aup ");
    }
  }
}

TEST_F(DisplayMenuTest, AChangeOfCategoryChangesNoCellUntilTheScreenIsLeft) {
  Open();
  LcdScreen1Dirty = LcdScreen2Dirty = 1;
  const Snapshot before = TakeSnapshot();
  PickCategory(7);
  ExpectOnlyChanged(before, {});
  Leave();
  ExpectOnlyChanged(before, {"LcdScreen1[695]", "LcdScreen1[703..707]", "LcdScreen1[710..713]",
                             "LcdScreen1[780..799]"});
  EXPECT_EQ(LcdScreen1[695], Cell(7));
  EXPECT_EQ(CodesAt(LcdScreen1, 701, 13), " ~Act   \x7F    ");
  for (int place = 0; place < 10; ++place) {
    EXPECT_EQ(LcdScreen1[780 + 2 * place], Cell(35));
    EXPECT_EQ(LcdScreen1[781 + 2 * place], Cell(0));
  }
}

TEST_F(DisplayMenuTest, ALineThatIsChosenAfterTheChangeIsStoredAndTheOthersAreUnused) {
  Open();
  PickScreen(4);
  PickCategory(2);
  Line(2).module.Pick(3);
  Line(2).output.Pick(3);
  Leave();
  EXPECT_EQ(LcdScreen1[780 + 80 + 4], Cell('D'));
  EXPECT_EQ(LcdScreen1[780 + 80 + 5], Cell(3));
  EXPECT_EQ(LcdScreen1[780 + 80 + 6], Cell(35));
}

TEST_F(DisplayMenuTest, TheWordsUnderTheKeysCanBeEditedAfterTheChange) {
  Open(2);
  PickScreen(2);
  PickCategory(5);
  EXPECT_EQ(DisplayMenuScreen.keyA.Text(), "HAUT");
  DisplayMenuScreen.keyA.Type("Ouvre!");
  DisplayMenuScreen.keyB.Type("Ferme");
  PickScreen(0);
  PickScreen(2);
  EXPECT_EQ(DisplayMenuScreen.keyA.Text(), "Ouvre");
  EXPECT_EQ(DisplayMenuScreen.keyB.Text(), "Ferm");
  EXPECT_EQ(CodesAt(LcdScreen1, 727, 13),
            " ~Ouvre \x7F"
            "Ferm");
}

TEST_F(DisplayMenuTest, AnAutomationTakesOverTheOutputsThatItsLinesHad) {
  Open();
  PickScreen(1);
  const Snapshot before = TakeSnapshot();
  LcdScreen1Dirty = LcdScreen2Dirty = 1;
  PickCategory(5);
  PickScreen(0);
  PickScreen(1);
  EXPECT_EQ(Line(4).module.Text(), "E");
  EXPECT_EQ(Line(4).output.Text(), "1");
  PressOutputs(4);
  EXPECT_EQ(DisplayMenuScreen.open.module.Text(), "E");
  EXPECT_EQ(DisplayMenuScreen.close.module.Text(), "F");
  ExpectOnlyChanged(before, {"LcdScreen1[696]", "LcdScreen1[716..720]", "LcdScreen1[723..726]",
                             "LcdScreen1Dirty", "LcdScreen2Dirty"});
}

TEST_F(DisplayMenuTest, TheSecondOutputsOfAnAutomationOutliveAnotherCategory) {
  Open();
  PickScreen(AutomationScreen);
  const std::string second = CodesAt(LcdScreen1, 960, 20);
  PickCategory(3);
  PickScreen(0);
  EXPECT_EQ(LcdScreen1[840], Cell(35));
  EXPECT_EQ(LcdScreen1[841], Cell(0));
  EXPECT_EQ(CodesAt(LcdScreen1, 960, 20), second);
}

// --- Typing -------------------------------------------------------------------------------------

TEST_F(DisplayMenuTest, ACategoryThatIsNoneIsPutBack) {
  for (const int language : {1, 2}) {
    Open(language);
    PickScreen(4);
    const std::string heating = language == 1 ? "Verwarming" : "Chauffage";
    const Snapshot before = TakeSnapshot();
    for (const char* typed : {"", " ", "V", "verwarming", "Verwarming ", "7", "5"}) {
      DisplayMenuScreen.category.Type(typed);
      EXPECT_EQ(DisplayMenuScreen.category.Text(), heating) << typed;
      EXPECT_EQ(DisplayMenuScreen.category.Index(), 4);
    }
    // The name that it has in the other language is none of the items.
    DisplayMenuScreen.category.Type(language == 1 ? "Prises" : "Verbruikers");
    EXPECT_EQ(DisplayMenuScreen.category.Text(), heating);
    EXPECT_EQ(Line(0).module.Text(), "A");
    EXPECT_EQ(DisplayMenuScreen.keyA.Text(), "aon4 ");
    ExpectOnlyChanged(before, {});
    PickCategory(2);
    DisplayMenuScreen.category.Type("?");
    EXPECT_EQ(DisplayMenuScreen.category.Index(), 0);
  }
}

TEST_F(DisplayMenuTest, ACategoryThatIsTypedInFullIsAChangeLikeAPick) {
  Open();
  DisplayMenuScreen.category.Type("Sferen");
  EXPECT_EQ(DisplayMenuScreen.category.Text(), "Sferen");
  EXPECT_EQ(DisplayMenuScreen.keyA.Text(), "Act");
  EXPECT_EQ(Line(0).module.items, Texts{"S"});
  EXPECT_EQ(LcdScreen1Dirty, Cell(1));
  DisplayMenuScreen.category.Type("Sferen and more");
  EXPECT_EQ(DisplayMenuScreen.category.Text(), "Sferen");
}

TEST_F(DisplayMenuTest, WhatIsTypedOverALineIsPutBackFromItsCells) {
  for (const int screen : {0, AutomationScreen, 5}) {
    Open();
    PickScreen(screen);
    const Snapshot before = TakeSnapshot();
    for (int place = 0; place < 10; ++place) {
      const std::string letter = Line(place).module.Text();
      const std::string output = Line(place).output.Text();
      for (const char* typed : {"", "Q", "#", "5", "é", "anything"}) {
        Line(place).module.Type(typed);
        Line(place).output.Type(typed);
        EXPECT_EQ(Line(place).module.Text(), letter) << typed;
        EXPECT_EQ(Line(place).output.Text(), output) << typed;
      }
    }
    ExpectOnlyChanged(before, {});
    EXPECT_FALSE(MainWindow.send.enabled);
  }
}

TEST_F(DisplayMenuTest, APickThatIsNotPackedYetIsLostWhenSomethingIsTyped) {
  Open();
  Line(1).module.Pick(17);
  Line(1).output.Pick(0);
  Line(1).module.Type("R");
  Line(1).output.Type("1");
  EXPECT_EQ(Line(1).module.Text(), "B");
  EXPECT_EQ(Line(1).output.Text(), "2");
}

// --- What counts as a change --------------------------------------------------------------------

/// Everything that a person can do in the editor to change a display, by name.
std::vector<std::pair<std::string, std::function<void()>>> Changes() {
  std::vector<std::pair<std::string, std::function<void()>>> changes;
  for (Field* field : DisplayMenuScreen.fields) {
    if (auto* text = dynamic_cast<TextField*>(field)) {
      changes.emplace_back(field->name, [text] { text->Type("changed"); });
    }
    if (auto* list = dynamic_cast<ListField*>(field)) {
      changes.emplace_back(field->name, [list] { list->Pick(0); });
    }
  }
  for (ListField* list : {&DisplayMenuScreen.open.module, &DisplayMenuScreen.open.output,
                          &DisplayMenuScreen.close.module, &DisplayMenuScreen.close.output}) {
    changes.emplace_back(list->name + ", typed", [list] { list->Type("2"); });
  }
  return changes;
}

TEST_F(DisplayMenuTest, EveryChangeMarksWhicheverDisplaysAreInMemory) {
  const std::size_t all = 5 + 10 + 1 + 20 + 4 + 4;
  struct {
    int first, second, edited;
  } const cases[] = {{1, 0, 1}, {0, 1, 2}, {1, 1, 1}, {1, 1, 2}};
  for (const auto& each : cases) {
    Open(1, each.edited);
    PickScreen(AutomationScreen);
    PressOutputs(0);
    LcdScreen1Loaded = each.first;
    LcdScreen2Loaded = each.second;
    const auto changes = Changes();
    ASSERT_EQ(changes.size(), all);
    for (const auto& [name, change] : changes) {
      LcdScreen1Dirty = LcdScreen2Dirty = 0;
      MainWindow.send.enabled = false;
      change();
      EXPECT_EQ(LcdScreen1Dirty, Cell(each.first)) << name;
      EXPECT_EQ(LcdScreen2Dirty, Cell(each.second)) << name;
      EXPECT_TRUE(MainWindow.send.enabled) << name;
    }
  }
}

TEST_F(DisplayMenuTest, LookingMarksNothing) {
  Open();
  for (int screen = 0; screen < 6; ++screen) PickScreen(screen);
  PickScreen(AutomationScreen);
  for (int place = 0; place < 10; ++place) {
    PressOutputs(place);
    DisplayMenuScreen.ok.Click();
  }
  OpenAgain(2);
  Leave();
  EXPECT_EQ(LcdScreen1Dirty, Cell(0));
  EXPECT_EQ(LcdScreen2Dirty, Cell(0));
  EXPECT_FALSE(MainWindow.send.enabled);
}

}  // namespace
}  // namespace bkconf
