#include <gtest/gtest.h>

#include "image/module_directory.h"
#include "output/button_screen_test.h"

namespace bkconf {
namespace {

class ButtonScreenLookTest : public ButtonScreenTest {
 protected:
  static std::string Described(int button, int column) {
    ButtonScreen.buttons.Select(button, column);
    return ButtonScreen.description.caption;
  }
};

struct Captions {
  std::string list, hint, chooser, first, second, none, store, clearFirst, clearSecond, base,
      baseGroup, question, yes, no, timeLabel, seconds, help, leave, firstColumn, secondColumn,
      header;
};

const Captions Dutch = {
    "Drukknoppen:",
    "Dubbelklik om de functie te wissen !",
    "Drukknop Nr:",
    "1ste functie:",
    "2de functie:",
    "Geen",
    "<--Invoegen",
    "Wissen van alle 1ste functies!",
    "Wissen van alle 2de functies!",
    "Basisfuncties",
    "Basisfuncties:",
    "Basisfuncties aan drukknoppen toekennen?",
    "Ja",
    "Nee",
    "Tijd 2de functie:",
    "Seconden",
    "De 'tijd' dat een drukknop moet worden ingedrukt om de tweede functie te activeren (is alleen "
    "van belang als de drukknop is voorzien van deze tweede functie). Deze ingestelde tijd heeft "
    "betrekking op alle drukknoppen aangesloten op deze module.",
    "Verlaten",
    "1ste functie",
    "2de functie",
    "Nummer: ",
};

const Captions French = {
    "Boutons poussoirs:",
    "Double-clicker pour effacer la fonction !",
    "Nr. bouton:",
    "1ère fonction:",
    "2ème fonction:",
    "Pas",
    "<--Insérer",
    "Effacer tous les 1ère fonctions!",
    "Effacer tous les 2ème fonctions!",
    "Fonctions de base",
    "Fonctions de base:",
    "Fonctions de base aux boutons poussoirs?",
    "Oui",
    "Non",
    "Temps 2ème fonction:",
    "Secondes",
    "Durée de pression sur le bouton poussoir afin d'activer la 2ème fonction (si celle-ci est "
    "installée). Cette durée sera appliquée à tous les boutons poussoir connectés à ce module.",
    "Quitter",
    "1° fonction",
    "2° fonction",
    "Numéro: ",
};

void ExpectCaptions(const Captions& expected) {
  EXPECT_EQ(ButtonScreen.listLabel.caption, expected.list);
  EXPECT_EQ(ButtonScreen.listHint.caption, expected.hint);
  EXPECT_EQ(ButtonScreen.chooserLabel.caption, expected.chooser);
  EXPECT_EQ(ButtonScreen.firstGroup.caption, expected.first);
  EXPECT_EQ(ButtonScreen.secondGroup.caption, expected.second);
  EXPECT_EQ(ButtonScreen.noSecond.caption, expected.none);
  EXPECT_EQ(ButtonScreen.store.caption, expected.store);
  EXPECT_EQ(ButtonScreen.clearFirst.caption, expected.clearFirst);
  EXPECT_EQ(ButtonScreen.clearSecond.caption, expected.clearSecond);
  EXPECT_EQ(ButtonScreen.base.caption, expected.base);
  EXPECT_EQ(ButtonScreen.baseGroup.caption, expected.baseGroup);
  EXPECT_EQ(ButtonScreen.baseQuestion.caption, expected.question);
  EXPECT_EQ(ButtonScreen.baseYes.caption, expected.yes);
  EXPECT_EQ(ButtonScreen.baseNo.caption, expected.no);
  EXPECT_EQ(ButtonScreen.timeLabel.caption, expected.timeLabel);
  EXPECT_EQ(ButtonScreen.seconds.caption, expected.seconds);
  EXPECT_EQ(ButtonScreen.timeHelp.caption, expected.help);
  EXPECT_EQ(ButtonScreen.leave.caption, expected.leave);
  ASSERT_EQ(ButtonScreen.buttons.columns.size(), 3U);
  EXPECT_EQ(ButtonScreen.buttons.columns[1].caption, expected.firstColumn);
  EXPECT_EQ(ButtonScreen.buttons.columns[2].caption, expected.secondColumn);
  for (int button = 1; button <= 20; ++button) {
    EXPECT_EQ(ButtonScreen.buttons.At(button, 0), expected.header + std::to_string(button));
  }
}

TEST_F(ButtonScreenLookTest, CaptionsAreDutchOrFrench) {
  Open(0, 1);
  ExpectCaptions(Dutch);
  Open(0, 2);
  ExpectCaptions(French);
}

TEST_F(ButtonScreenLookTest, TheListHasTwentyRowsAndTheChooserTwentyItems) {
  Open(0);
  EXPECT_EQ(ButtonScreen.buttons.Rows(), 20);
  EXPECT_TRUE(ButtonScreen.buttons.rowHeader);
  ASSERT_EQ(ButtonScreen.chooser.items.size(), 20U);
  for (int button = 1; button <= 20; ++button) {
    EXPECT_EQ(ButtonScreen.chooser.items[static_cast<std::size_t>(button - 1)],
              std::to_string(button));
  }
}

TEST_F(ButtonScreenLookTest, FieldsHaveNamesOfTheirOwn) {
  std::set<std::string> names;
  for (const Field* field : ButtonScreen.fields) {
    EXPECT_TRUE(names.insert(field->name).second) << field->name;
  }
}

TEST_F(ButtonScreenLookTest, EnterStoresAndLeavingChangesNothing) {
  Open(0);
  EXPECT_EQ(ButtonScreen.enter, &ButtonScreen.store);
  PickButton(4);
  ChooseOn(ButtonScreen.first, 'A', 1);
  const Snapshot before = TakeSnapshot();
  ButtonScreen.leave.Click();
  EXPECT_FALSE(ButtonScreen.shown);
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_F(ButtonScreenLookTest, AMasterDescribesByItsListOfModules) {
  Open(9);
  DirectoryLetter(0) = int{'A'};
  DirectoryType(0) = 1;
  DirectoryLetter(1) = int{'L'};
  DirectoryType(1) = 11;
  Put(1, 1, {65, 3, 50});
  Put(1, 2, {76, 3, 50});
  Put(2, 1, {66, 0, 1});
  Put(3, 2, {83, 11, "02"});
  Put(4, 1, {90, 4, 11});
  OpenAgain();
  EXPECT_EQ(Described(1, 1), "Dimmodule 'A':  Uitgang 04 op 50%");
  EXPECT_EQ(Described(1, 2), "");  // a Lumenza module: no words for it here
  EXPECT_EQ(Described(2, 1), "");
  EXPECT_EQ(Described(3, 2), "Sfeer 12");
  EXPECT_EQ(Described(4, 1), "Corvela code: Z0512");
  EXPECT_EQ(Described(5, 1), "");
}

TEST_F(ButtonScreenLookTest, AnyOtherModuleDescribesItsOwnActions) {
  const std::map<int, std::string> sentences = {
      {0, "Relaismodule 'M':  Uitgang 01 aan"},
      {1, "Dimmodule 'M':  Uitgang 01 aan"},
      {4, "Relaismodule DC 'M':  Uitgang 01 aan"},
      {5, "Alarmmodule 'M':  Detector 01 aan"},
      {6, "Audio interface 'M':  Hoofdzone 01 aan"},
      {7, "Simulatiemodule 'M':  Simulatie aan"},
      {8, ""},
      {11, "Lumenza module 'M':  Uitgang 01 aan"},
  };
  for (const auto& [kind, sentence] : sentences) {
    StartWithImage(kind, 1, 'M');
    Put(1, 1, {77, 0, 1});
    Put(1, 2, {77, 0, 1});
    Put(2, 1, {78, 0, 1});
    Put(2, 2, {83, 6, 2});
    OpenAgain();
    EXPECT_EQ(Described(1, 1), sentence) << kind;
    EXPECT_EQ(Described(2, 1), "") << kind;
    EXPECT_EQ(Described(1, 2), sentence) << kind;
    EXPECT_EQ(Described(2, 2), "Sfeer 07") << kind;
  }
}

TEST_F(ButtonScreenLookTest, OpeningAgainForgetsTheDescription) {
  Open(0);
  Put(1, 1, {83, 6, 2});
  OpenAgain();
  EXPECT_EQ(Described(1, 1), "Sfeer 07");
  OpenAgain();
  EXPECT_EQ(ButtonScreen.description.caption, "");
  EXPECT_EQ(ButtonScreen.buttons.CurrentRow(), 0);
}

/// The other look of the screen: the press time of the second function.
class SecondFunctionTimeTest : public ButtonScreenTest, public testing::WithParamInterface<int> {
 protected:
  void OpenTime(const Cell& time, int language = 1) {
    StartWithImage(GetParam(), language);
    Cells()[122] = time;
    ShownAction(Action::SecondFunctionTime).Click();
    MainWindow.send.enabled = false;
  }
};

const std::vector<std::string> Times = {"4", "3,5", "3", "2,5", "2", "1,5", "1", "0,5"};

TEST_P(SecondFunctionTimeTest, OpensTheScreenWithTheTimeOnly) {
  OpenTime(3);
  EXPECT_TRUE(ButtonScreen.shown);
  EXPECT_TRUE(ButtonScreen.timeGroup.visible);
  EXPECT_FALSE(ButtonScreen.functionsGroup.visible);
  EXPECT_FALSE(ButtonScreen.baseGroup.visible);
  OpenAgain();
  EXPECT_FALSE(ButtonScreen.timeGroup.visible);
  EXPECT_TRUE(ButtonScreen.functionsGroup.visible);
}

TEST_P(SecondFunctionTimeTest, OffersEightTimesInThisOrder) {
  OpenTime(3);
  EXPECT_EQ(ButtonScreen.time.items, Times);
}

TEST_P(SecondFunctionTimeTest, ShowsHalfTheCell) {
  for (int halfSeconds = 1; halfSeconds <= 8; ++halfSeconds) {
    OpenTime(halfSeconds);
    EXPECT_EQ(ButtonScreen.time.Text(), Times[static_cast<std::size_t>(8 - halfSeconds)]);
  }
  OpenTime("3");
  EXPECT_EQ(ButtonScreen.time.Text(), "1,5");
}

TEST_P(SecondFunctionTimeTest, ShowsNothingOfAnyOtherCellAndLeavesIt) {
  for (const Cell& cell : {Cell(42), Cell(), Cell(0), Cell(9), Cell(-1), Cell(255), Cell(2.5),
                           Cell("*"), Cell("word")}) {
    OpenTime(cell);
    EXPECT_EQ(ButtonScreen.time.Text(), "") << cell.Text();
    EXPECT_EQ(Cells()[122], cell);
  }
}

TEST_P(SecondFunctionTimeTest, OpeningChangesNoCell) {
  OpenTime(3);
  Put(1, 1, {"*", "*", "*"});
  const Snapshot before = TakeSnapshot();
  ShownAction(Action::SecondFunctionTime).Click();
  ExpectOnlyChanged(before, {});
}

TEST_P(SecondFunctionTimeTest, APickStoresTwiceTheNumberAtOnce) {
  for (int place = 0; place < 8; ++place) {
    OpenTime(42);
    const Snapshot before = TakeSnapshot();
    ButtonScreen.time.Pick(place);
    EXPECT_EQ(Cells()[122], Cell(8 - place));
    EXPECT_TRUE(MainWindow.send.enabled);
    ExpectOnlyChanged(before, {TableName() + "[122]", "MasterBaseDirty"});
    EXPECT_EQ(MasterBaseDirty, Cell(1));
  }
}

TEST_P(SecondFunctionTimeTest, AnyOtherTextIsClearedAtOnceAndStoresNothing) {
  for (const char* text : {"5", "3.5", "0", "x", "4 ", "", "8"}) {
    OpenTime(3);
    const Snapshot before = TakeSnapshot();
    ButtonScreen.time.Type(text);
    EXPECT_EQ(ButtonScreen.time.Text(), "") << text;
    ExpectOnlyChanged(before, {});
    EXPECT_FALSE(MainWindow.send.enabled);
  }
}

TEST_P(SecondFunctionTimeTest, OneOfTheEightTextsMayBeTypedToo) {
  OpenTime(42);
  const Snapshot before = TakeSnapshot();
  ButtonScreen.time.Type("2,5");
  EXPECT_EQ(ButtonScreen.time.Text(), "2,5");
  EXPECT_EQ(Cells()[122], Cell(5));
  ExpectOnlyChanged(before, {TableName() + "[122]", "MasterBaseDirty"});
}

INSTANTIATE_TEST_SUITE_P(Kinds, SecondFunctionTimeTest, testing::ValuesIn(ButtonKinds),
                         [](const auto& kind) { return "kind" + std::to_string(kind.param); });

}  // namespace
}  // namespace bkconf
