// What leaving a screen of the menus, or all of them, puts into the cells of its display.
#include <gtest/gtest.h>

#include "special/display_menu_test.h"

namespace bkconf {
namespace {

using Names = std::vector<std::string>;

struct TextCase {
  TextField& field;
  int first;
  int width;
};

std::vector<TextCase> TextCases(int screen) {
  std::vector<TextCase> cases = {{DisplayMenuScreen.name, 12 * screen, 12},
                                 {DisplayMenuScreen.mainKeyA, 684, 4},
                                 {DisplayMenuScreen.mainKeyB, 690, 4},
                                 {DisplayMenuScreen.keyA, 701 + 13 * screen + 2, 5},
                                 {DisplayMenuScreen.keyB, 701 + 13 * screen + 9, 4}};
  for (int place = 0; place < 10; ++place) {
    TextField& text = DisplayMenuScreen.lines[static_cast<std::size_t>(place)]->text;
    cases.push_back({text, 72 + 100 * screen + 10 * place, 10});
  }
  return cases;
}

TEST_F(DisplayMenuTest, EveryTextIsStoredInItsOwnCellsOfTheDisplayThatIsEdited) {
  for (const int display : {1, 2}) {
    for (int screen = 0; screen < 6; ++screen) {
      Open(1, display);
      PickScreen(screen);
      LcdScreen1Dirty = LcdScreen2Dirty = 1;
      const Snapshot before = TakeSnapshot();
      // Thirteen characters: each place holds fewer.
      std::string typed = "@ZYXWVUTSRQPO";
      for (const TextCase& each : TextCases(screen)) {
        ++typed[0];
        each.field.Type(typed);
      }
      Leave();
      Names changed;
      typed[0] = '@';
      for (const TextCase& each : TextCases(screen)) {
        ++typed[0];
        EXPECT_EQ(CodesAt(TableOf(display), each.first, each.width),
                  typed.substr(0, static_cast<std::size_t>(each.width)));
        changed.push_back(CellName(TableOf(display), each.first, each.first + each.width - 1));
      }
      ExpectOnlyChanged(before, changed);
    }
  }
}

TEST_F(DisplayMenuTest, AShorterTextIsFilledUpWithBlanks) {
  Open();
  PickScreen(2);
  for (const TextCase& each : TextCases(2)) each.field.Type("Q");
  Leave();
  for (const TextCase& each : TextCases(2)) {
    EXPECT_EQ(CodesAt(LcdScreen1, each.first, each.width),
              "Q" + std::string(static_cast<std::size_t>(each.width) - 1, ' '));
  }
}

TEST_F(DisplayMenuTest, ANameOfThirteenCharactersStoresTwelveAndSaysNothing) {
  Open();
  DisplayMenuScreen.name.Type("Gelijkvloers!");
  EXPECT_EQ(DisplayMenuScreen.name.Text(), "Gelijkvloers!");
  PickScreen(1);
  PickScreen(0);
  EXPECT_EQ(DisplayMenuScreen.name.Text(), "Gelijkvloers");
  EXPECT_EQ(CodesAt(LcdScreen1, 0, 12), "Gelijkvloers");
  EXPECT_EQ(CodesAt(LcdScreen1, 12, 12), "aname 1     ");
  EXPECT_TRUE(messages.told.empty());
}

TEST_F(DisplayMenuTest, CharactersAbove127AreStoredAsTheirCodes) {
  Open();
  DisplayMenuScreen.name.Type("Été €Ω,→");
  Line(0).text.Type("ééééééééééé");
  Leave();
  const int codes[] = {201, 116, 233, 32, 128, 63, 44, 63, 32, 32, 32, 32};
  for (int i = 0; i < 12; ++i) EXPECT_EQ(LcdScreen1[i], Cell(codes[i])) << i;
  for (int i = 72; i < 82; ++i) EXPECT_EQ(LcdScreen1[i], Cell(233)) << i;
  EXPECT_EQ(CodesAt(LcdScreen1, 82, 10), "aline 01  ");
  // A comma shifts no line of a file.
  EXPECT_EQ(LcdScreen1[6].PrintForm(), " 44 ");
}

TEST_F(DisplayMenuTest, ChoosingAnotherScreenPacksTheOneThatIsLeft) {
  Open();
  DisplayMenuScreen.name.Type("First");
  const Snapshot before = TakeSnapshot();
  PickScreen(1);
  ExpectOnlyChanged(before, {"LcdScreen1[0..11]"});
  EXPECT_EQ(CodesAt(LcdScreen1, 0, 12), "First       ");
  DisplayMenuScreen.name.Type("Second");
  PickScreen(0);
  EXPECT_EQ(CodesAt(LcdScreen1, 12, 12), "Second      ");
  EXPECT_EQ(DisplayMenuScreen.name.Text(), "First       ");
}

TEST_F(DisplayMenuTest, PickingTheSameScreenAgainKeepsWhatWasTyped) {
  Open();
  DisplayMenuScreen.name.Type("Again");
  PickScreen(0);
  EXPECT_EQ(DisplayMenuScreen.name.Text(), "Again       ");
}

TEST_F(DisplayMenuTest, TheKeysOfTheMainScreenArePackedWithEveryScreen) {
  Open();
  PickScreen(4);
  DisplayMenuScreen.mainKeyA.Type("OK");
  DisplayMenuScreen.mainKeyB.Type("Next");
  PickScreen(1);
  EXPECT_EQ(CodesAt(LcdScreen1, 682, 12), std::string(" ~OK   \x7FNext"));
  EXPECT_EQ(DisplayMenuScreen.mainKeyA.Text(), "OK  ");
  EXPECT_EQ(DisplayMenuScreen.mainKeyB.Text(), "Next");
}

TEST_F(DisplayMenuTest, BlanksAndArrowsAreMendedByPacking) {
  Open(1, 2);
  Leave();
  for (const int cell : {682, 683, 688, 689}) LcdScreen2[cell] = 0;
  for (int screen = 0; screen < 6; ++screen) {
    for (const int cell : {0, 1, 7, 8}) LcdScreen2[701 + 13 * screen + cell] = 0;
  }
  const Snapshot before = TakeSnapshot();
  Press(2);
  PickScreen(3);
  Leave();
  Names changed;
  for (const int record : {682, 701, 740}) {
    const int second = record == 682 ? record + 6 : record + 7;
    changed.push_back(CellName(LcdScreen2, record, record + 1));
    changed.push_back(CellName(LcdScreen2, second, second + 1));
    EXPECT_EQ(LcdScreen2[record], Cell(32));
    EXPECT_EQ(LcdScreen2[record + 1], Cell(126));
    EXPECT_EQ(LcdScreen2[second], Cell(32));
    EXPECT_EQ(LcdScreen2[second + 1], Cell(127));
  }
  ExpectOnlyChanged(before, changed);
  EXPECT_EQ(LcdScreen2Dirty, Cell(0));
}

TEST_F(DisplayMenuTest, ALineStoresItsLetterAndItsOutputFromNought) {
  for (const int screen : {0, 1, 2, 4}) {
    Open();
    PickScreen(screen);
    LcdScreen1Dirty = LcdScreen2Dirty = 1;
    const Snapshot before = TakeSnapshot();
    for (int place = 0; place < 10; ++place) {
      Line(place).module.Pick(17 - place);
      Line(place).output.Pick((place + 2) % 4);
    }
    PickScreen(5);
    const int pairs = 780 + 20 * screen;
    for (int place = 0; place < 10; ++place) {
      EXPECT_EQ(LcdScreen1[pairs + 2 * place], Cell('R' - place));
      EXPECT_EQ(LcdScreen1[pairs + 2 * place + 1], Cell((place + 2) % 4));
    }
    ExpectOnlyChanged(before, {CellName(LcdScreen1, pairs, pairs + 19)});
  }
}

TEST_F(DisplayMenuTest, APickChangesNoCellUntilTheScreenIsLeft) {
  Open();
  LcdScreen1Dirty = LcdScreen2Dirty = 1;
  const Snapshot before = TakeSnapshot();
  for (TextField* text : TextFields()) text->Type("changed");
  for (ListField* list : LineLists()) list->Pick(3);
  ExpectOnlyChanged(before, {});
}

TEST_F(DisplayMenuTest, AContextIsStoredWithItsLetterAndUpToFifty) {
  Open();
  PickScreen(5);
  Line(9).module.Pick(0);
  Line(9).output.Pick(49);
  Leave();
  EXPECT_EQ(LcdScreen1[780 + 100 + 18], Cell('S'));
  EXPECT_EQ(LcdScreen1[780 + 100 + 19], Cell(49));
}

TEST_F(DisplayMenuTest, TheLinesOfAnAutomationArePackedWithoutTheirOutputs) {
  Open();
  PickScreen(AutomationScreen);
  LcdScreen1Dirty = LcdScreen2Dirty = 1;
  Line(4).text.Type("Blind");
  Line(4).module.Pick(16);
  Line(4).output.Pick(11);
  EXPECT_EQ(Line(4).module.Text(), "Q");
  EXPECT_EQ(Line(4).output.Text(), "12");
  const Snapshot before = TakeSnapshot();
  Leave();
  const int text = 72 + 100 * AutomationScreen + 40;
  ExpectOnlyChanged(before, {CellName(LcdScreen1, text, text + 9)});
  EXPECT_EQ(CodesAt(LcdScreen1, text, 10), "Blind     ");
}

TEST_F(DisplayMenuTest, AScreenWhoseLinesWereNeverChosenStoresThemAsUnused) {
  for (const Cell& nothing : {Cell(0), Cell()}) {
    Open();
    Leave();
    LcdScreen1.Fill(0, LcdScreen1.Size() - 1, nothing);
    Press(1);
    PickScreen(2);
    PickCategory(4);
    Leave();
    for (const int screen : {0, 2}) {
      for (int place = 0; place < 10; ++place) {
        EXPECT_EQ(LcdScreen1[780 + 20 * screen + 2 * place], Cell(35)) << screen << place;
        EXPECT_EQ(LcdScreen1[781 + 20 * screen + 2 * place], Cell(0));
      }
    }
    for (int cell = 800; cell < 820; ++cell) EXPECT_EQ(LcdScreen1[cell], nothing) << cell;
    EXPECT_EQ(LcdScreen1[695], nothing);
    EXPECT_EQ(LcdScreen1[697], Cell(4));
  }
}

TEST_F(DisplayMenuTest, TheCategoryIsStoredAsItsCodeInBothLanguages) {
  for (const int language : {1, 2}) {
    for (int code = 2; code <= 7; ++code) {
      for (int screen = 0; screen < 6; ++screen) {
        Open(language);
        PickScreen(screen);
        PickCategory(code);
        Leave();
        for (int other = 0; other < 6; ++other) {
          EXPECT_EQ(LcdScreen1[695 + other], Cell(other == screen ? code : 2 + other));
        }
      }
    }
  }
}

TEST_F(DisplayMenuTest, WithoutACategoryItsCellStaysAndTheLinesAreStored) {
  Open();
  Leave();
  LcdScreen1[695] = 99;
  LcdScreen1[780] = 0;
  Press(1);
  EXPECT_EQ(DisplayMenuScreen.category.Text(), "");
  const Snapshot before = TakeSnapshot();
  Leave();
  EXPECT_EQ(LcdScreen1[695], Cell(99));
  EXPECT_EQ(LcdScreen1[780], Cell(35));
  ExpectOnlyChanged(before, {"LcdScreen1[780]"});
}

TEST_F(DisplayMenuTest, ACategoryThatWasOnlyLeftStandingIsStored) {
  Open();
  Leave();
  LcdScreen1[696] = 0;
  Press(1);
  PickScreen(5);
  PickScreen(1);
  Leave();
  EXPECT_EQ(LcdScreen1[696], Cell(7));
}

TEST_F(DisplayMenuTest, CellsThatAreOnlyCarriedAlongStay) {
  Open();
  for (int screen = 0; screen < 6; ++screen) {
    PickScreen(screen);
    for (TextField* field : TextFields()) field->Type("typed into every field");
    PickCategory(7 - screen);
  }
  Leave();
  for (int cell = 672; cell < 682; ++cell) EXPECT_EQ(LcdScreen1[cell], Cell(201)) << cell;
  EXPECT_EQ(LcdScreen1[694], Cell(201));
  EXPECT_EQ(LcdScreen1[779], Cell(201));
  for (int cell = 1020; cell < 1030; ++cell) EXPECT_EQ(LcdScreen1[cell], Cell(201)) << cell;
}

}  // namespace
}  // namespace bkconf
