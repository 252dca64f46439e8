// Opening the screen of the menus, its captions, and what it shows of the cells.
#include <gtest/gtest.h>

#include <limits>

#include "special/display_menu_test.h"

namespace bkconf {
namespace {

using Texts = std::vector<std::string>;

struct Caption {
  const std::string& shown;
  std::string dutch;
  std::string french;
};

TEST_F(DisplayMenuTest, CaptionsAreDutchOrFrench) {
  const DisplayMenuScreenFields& screen = DisplayMenuScreen;
  for (const int language : {1, 2}) {
    Open(language);
    for (const Caption& row : std::vector<Caption>{
             {screen.frame.caption, "Hoofdscherm:", "Ecran principale:"},
             {screen.nameLabel.caption, "Omschrijving", "Description"},
             {screen.categoryLabel.caption, "Type scherm", "Type écran"},
             {screen.scrollUp.caption, "Scroll", "Scroll"},
             {screen.scrollDown.caption, "Scroll", "Scroll"},
             {screen.mainArrowA.caption, "->", "->"},
             {screen.mainArrowB.caption, " <-", " <-"},
             {screen.arrowA.caption, "->", "->"},
             {screen.arrowB.caption, " <-", " <-"},
             {screen.outputsGroup.caption, "Uitgangen automatisatie:", "Sortie automatisation:"},
             {screen.open.label.caption, "OP/OPEN", "LEVE/OUVERT"},
             {screen.close.label.caption, "NEER/DICHT", "BAISSE/FERMER"},
             {screen.ok.caption, "OK", "OK"},
             {screen.leave.caption, "Verlaten", "Quitter"},
             {screen.status.caption, "Edit mode", "Edit mode"},
         }) {
      EXPECT_EQ(row.shown, language == 1 ? row.dutch : row.french);
    }
    for (int place = 0; place < 10; ++place) {
      EXPECT_EQ(Line(place).number.caption, std::to_string(place + 1));
      EXPECT_EQ(Line(place).outputs.caption, language == 1 ? "Uitgangen" : "Sorties");
    }
  }
}

TEST_F(DisplayMenuTest, TheListsAreDutchOrFrench) {
  Open(1);
  EXPECT_EQ(DisplayMenuScreen.screens.Items(),
            (Texts{"Scherm 1", "Scherm 2", "Scherm 3", "Scherm 4", "Scherm 5", "Scherm 6"}));
  EXPECT_EQ(DisplayMenuScreen.category.items,
            (Texts{"Verlichting DIM", "Verlichting AAN/UIT", "Verbruikers", "Automatisaties",
                   "Verwarming", "Sferen"}));
  Open(2);
  EXPECT_EQ(DisplayMenuScreen.screens.Items(),
            (Texts{"Ecran 1", "Ecran 2", "Ecran 3", "Ecran 4", "Ecran 5", "Ecran 6"}));
  EXPECT_EQ(DisplayMenuScreen.category.items, (Texts{"Eclairage DIM", "Eclairage ON/OFF", "Prises",
                                                     "Automatisation", "Chauffage", "Contexte"}));
}

TEST_F(DisplayMenuTest, TheTitleNamesTheModuleAndTheDisplayAndIsTheMainWindowsMeanwhile) {
  const Caption titles[] = {{"1", "Displaymodule KR7210 <adres = K>  -  Configuratie Display Nr1",
                             "Module display KR7210 <adresse = K>  -  Configuration Display Nr1"},
                            {"2", "Displaymodule KR7210 <adres = K>  -  Configuratie Display Nr2",
                             "Module display KR7210 <adresse = K>  -  Configuration Display Nr2"}};
  for (const int language : {1, 2}) {
    for (const Caption& row : titles) {
      Open(language, std::stoi(row.shown), 'K');
      EXPECT_EQ(DisplayMenuScreen.title, language == 1 ? row.dutch : row.french);
      EXPECT_EQ(MainWindow.title, DisplayMenuScreen.title);
      Leave();
      EXPECT_FALSE(DisplayMenuScreen.shown);
      EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
    }
  }
}

TEST_F(DisplayMenuTest, OpeningALoadedDisplaySelectsItsFirstScreenAndReadsNothing) {
  for (const int display : {1, 2}) {
    Open(1, display);
    PickScreen(4);
    Leave();
    line.calls.clear();
    const Snapshot before = TakeSnapshot();
    Press(display);
    EXPECT_TRUE(DisplayMenuScreen.shown);
    EXPECT_EQ(DisplayMenuScreen.screens.Index(), 0);
    EXPECT_EQ(DisplayMenuScreen.name.Text(), display == 1 ? "aname 0     " : "bname 0     ");
    EXPECT_TRUE(DisplayMenuScreen.leave.enabled);
    EXPECT_FALSE(DisplayMenuScreen.bar.visible);
    EXPECT_FALSE(DisplayMenuScreen.outputsGroup.visible);
    EXPECT_TRUE(line.calls.empty());
    ExpectOnlyChanged(before, {});
    EXPECT_FALSE(MainWindow.send.enabled);
  }
}

/// What the fields of a screen show, written down from the fixture's cells.
void ExpectScreen(const std::string& mark, int screen) {
  const DisplayMenuScreenFields& fields = DisplayMenuScreen;
  const std::string number = std::to_string(screen);
  EXPECT_EQ(fields.name.Text(), mark + "name " + number + "     ");
  EXPECT_EQ(fields.mainKeyA.Text(), mark + "up ");
  EXPECT_EQ(fields.mainKeyB.Text(), mark + "dn ");
  EXPECT_EQ(fields.keyA.Text(), mark + "on" + number + " ");
  EXPECT_EQ(fields.keyB.Text(), mark + "f" + number + " ");
  EXPECT_EQ(fields.category.Index(), screen);
  for (int place = 0; place < 10; ++place) {
    const MenuLineFields& row = *fields.lines[static_cast<std::size_t>(place)];
    EXPECT_EQ(row.text.Text(), mark + "line " + number + std::to_string(place) + "  ");
    EXPECT_EQ(row.module.Text(),
              screen == 5 ? "S" : std::string(1, static_cast<char>('A' + place)));
    EXPECT_EQ(row.output.Text(), std::to_string(place % 4 + 1));
    EXPECT_EQ(row.outputs.enabled, screen == AutomationScreen);
  }
}

TEST_F(DisplayMenuTest, EveryScreenOfBothDisplaysIsShownFromCellsOfItsOwn) {
  for (const int display : {1, 2}) {
    Open(1, display);
    for (const int screen : {0, 5, 3, 1, 4, 2, 0}) {
      PickScreen(screen);
      ExpectScreen(display == 1 ? "a" : "b", screen);
    }
  }
}

TEST_F(DisplayMenuTest, LookingAtTidyScreensChangesNoCellAndMarksNothing) {
  Open();
  const Snapshot before = TakeSnapshot();
  for (const int display : {1, 2, 1}) {
    OpenAgain(display);
    for (int screen = 5; screen >= 0; --screen) PickScreen(screen);
  }
  Leave();
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

struct Offer {
  int code;
  Texts letters;
  Texts numbers;
};

TEST_F(DisplayMenuTest, EveryLineOffersWhatItsCategoryHas) {
  const Offer offers[] = {{2, LetterItems(), NumberItems(4)},  {3, LetterItems(), NumberItems(12)},
                          {4, LetterItems(), NumberItems(12)}, {5, LetterItems(), NumberItems(12)},
                          {6, LetterItems(), NumberItems(8)},  {7, {"S"}, NumberItems(50)}};
  for (const int language : {1, 2}) {
    Open(language);
    for (const Offer& offer : offers) {
      PickScreen(offer.code - 2);
      for (int place = 0; place < 10; ++place) {
        EXPECT_EQ(Line(place).module.items, offer.letters) << offer.code;
        EXPECT_EQ(Line(place).output.items, offer.numbers) << offer.code;
      }
    }
  }
}

TEST_F(DisplayMenuTest, ACellOfALineIsTheItemThatIsShown) {
  Open();
  PickScreen(1);
  for (int place = 0; place < 10; ++place) {
    EXPECT_EQ(Line(place).module.Index(), place);
    EXPECT_EQ(Line(place).output.Index(), place % 4);
  }
}

TEST_F(DisplayMenuTest, AnUnusedLineShowsItsMarkAndTheFirstOutput) {
  Open();
  Leave();
  LcdScreen1[780] = 35;
  LcdScreen1[781] = 0;
  Press(1);
  EXPECT_EQ(Line(0).module.Text(), "#");
  EXPECT_EQ(Line(0).output.Text(), "1");
}

TEST_F(DisplayMenuTest, CharactersOfTheWholeSetAreShown) {
  Open();
  Leave();
  Put(LcdScreen1, 0, 12, "");
  LcdScreen1[0] = 233;
  LcdScreen1[1] = 128;
  LcdScreen1[72] = 176;
  LcdScreen1[684] = 127;
  LcdScreen1[703] = 126;
  LcdScreen1[713] = 44;
  Press(1);
  EXPECT_EQ(DisplayMenuScreen.name.Text(), "é€          ");
  EXPECT_EQ(Line(0).text.Text(), "°line 00  ");
  EXPECT_EQ(DisplayMenuScreen.mainKeyA.Text(), "\x7Fup ");
  EXPECT_EQ(DisplayMenuScreen.keyA.Text(), "~on0 ");
  EXPECT_EQ(DisplayMenuScreen.keyB.Text(), "af0,");
  const Snapshot before = TakeSnapshot();
  Leave();
  ExpectOnlyChanged(before, {});
}

TEST_F(DisplayMenuTest, ABlankModuleShowsNoCategoryUntilOneIsPicked) {
  Open();
  Leave();
  LcdScreen1.Fill(0, LcdScreen1.Size() - 1, 0);
  Press(1);
  for (const int screen : {0, 3, 5}) {
    if (screen != 0) PickScreen(screen);
    EXPECT_EQ(DisplayMenuScreen.category.Text(), "");
    EXPECT_EQ(DisplayMenuScreen.category.Index(), -1);
    EXPECT_TRUE(Line(9).module.items.empty());
    EXPECT_TRUE(Line(9).output.items.empty());
    EXPECT_FALSE(Line(9).outputs.enabled);
    EXPECT_EQ(Line(0).module.Text(), "");
    EXPECT_EQ(Line(0).output.Text(), "1");
    EXPECT_EQ(DisplayMenuScreen.name.Text(), std::string(12, '\0'));
  }
  PickCategory(6);
  EXPECT_EQ(DisplayMenuScreen.category.Text(), "Verwarming");
}

TEST_F(DisplayMenuTest, ACodeThatIsNoCategoryLeavesTheOneThatIsShown) {
  for (const Cell& code : {Cell(0), Cell(1), Cell(8), Cell(32), Cell(255), Cell(), Cell("word")}) {
    Open();
    Leave();
    LcdScreen1[695 + 1] = code;
    Press(1);
    PickScreen(3);
    PickScreen(1);
    EXPECT_EQ(DisplayMenuScreen.category.Text(), "Automatisaties") << code.Text();
    EXPECT_TRUE(Line(0).outputs.enabled);
    EXPECT_EQ(Line(0).output.items, NumberItems(12));
  }
}

TEST_F(DisplayMenuTest, TheCategoryOfAnotherDisplayIsNotTakenOver) {
  Open();
  PickScreen(5);
  LcdScreen2[695] = 0;
  OpenAgain(2);
  EXPECT_EQ(DisplayMenuScreen.category.Text(), "");
  DisplayMenuScreen.category.Type("nothing like it");
  EXPECT_EQ(DisplayMenuScreen.category.Text(), "");
}

TEST_F(DisplayMenuTest, OpeningTheOtherDisplayPacksNothingIntoIt) {
  Open();
  PickScreen(2);
  const Snapshot before = TakeSnapshot();
  OpenAgain(2);
  PickScreen(4);
  OpenAgain(1);
  Leave();
  ExpectOnlyChanged(before, {});
}

TEST_F(DisplayMenuTest, ClosingTheWindowLeavesAsTheButtonDoes) {
  Open();
  DisplayMenuScreen.name.Type("Cellar");
  DisplayMenuScreen.Close();
  EXPECT_FALSE(DisplayMenuScreen.shown);
  EXPECT_EQ(CodesAt(LcdScreen1, 0, 12), "Cellar      ");
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
}

TEST_F(DisplayMenuTest, CellsThatNoModuleHoldsDoNoHarm) {
  Open();
  Leave();
  const Cell odd[] = {999, -5, std::numeric_limits<int>::max(), 1e300, -1e300, "word", 1.5, Cell()};
  int cell = 0;
  for (const Cell& value : odd) {
    LcdScreen1[780 + 2 * cell] = value;
    LcdScreen1[781 + 2 * cell] = value;
    LcdScreen1[900 + 60 + 2 * cell] = value;
    LcdScreen1[901 + 60 + 2 * cell] = value;
    LcdScreen1[cell++] = value;
  }
  Press(1);
  EXPECT_EQ(Line(0).output.Text(), "1000");
  EXPECT_EQ(Line(2).output.Text(), "2147483648");
  EXPECT_EQ(Line(3).output.Text(), "2147483648");
  EXPECT_EQ(Line(6).output.Text(), "2");
  for (const int place : {0, 1, 2, 3, 4, 5, 7}) EXPECT_EQ(Line(place).module.Text(), "") << place;
  PickScreen(AutomationScreen);
  for (int place = 0; place < 10; ++place) {
    PressOutputs(place);
    DisplayMenuScreen.ok.Click();
  }
  Leave();
  EXPECT_TRUE(messages.told.empty());
  EXPECT_FALSE(DisplayMenuScreen.shown);
}

TEST_F(DisplayMenuTest, WithoutALanguageACategoryCanStillBePicked) {
  Open(3);
  PickCategory(7);
  EXPECT_EQ(DisplayMenuScreen.keyA.Text(), "");
  const Snapshot before = TakeSnapshot();
  Leave();
  EXPECT_EQ(TakeSnapshot().at("LcdScreen1[695]"), before.at("LcdScreen1[695]"));
}

}  // namespace
}  // namespace bkconf
