#include "session/module_title.h"

#include <gtest/gtest.h>

#include "output/button_screen.h"
#include "output/output_screen.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

struct Title {
  int kind;
  std::string dutch;
  std::string french;
};

const Title Titles[] = {
    {0, "Relaismodule KR7021 <adres = C>", "Module relais KR7021 <adresse = C>"},
    {4, "Relaismodule DC KR7023 <adres = C>", "Module relais DC KR7023 <adresse = C>"},
    {1, "Dimmodule KR73XX <adres = C>", "Module dim KR73XX <adresse = C>"},
    {11, "Lumenza module KR7061 <adres = C>", "Module Lumenza KR7061 <adresse = C>"},
    {9, "Mastermodule KR7110", "Module master KR7110"},
    {5, "Alarmmodule KR7160 <adres = C>", "Module alarme KR7160 <adresse = C>"},
    {6, "Audio interface KR7920 <adres = C>", "Interface audio KR7920 <adresse = C>"},
    {7, "Simulatiemodule KR7170 <adres = C>", "Module simulation KR7170 <adresse = C>"},
    {8, "I.R. module  KR7180 <adres = C>", "Module I.R. KR7180 <adresse = C>"},
};

class ModuleTitleTest : public SessionTest {
 protected:
  static std::string In(int language) {
    Language = language;
    return ModuleTitle();
  }
  static void PutLetter(int kind, const Cell& letter) {
    ActiveModuleType = kind;
    const CellPlace& address = ActiveKind()->address;
    if (address.table != nullptr) (*address.table)[address.index] = letter;
  }
};

TEST_F(ModuleTitleTest, NamesTheModuleAndItsLetterInBothLanguages) {
  for (const Title& title : Titles) {
    PutLetter(title.kind, int{'C'});
    EXPECT_EQ(In(1), title.dutch);
    EXPECT_EQ(In(2), title.french);
  }
}

TEST_F(ModuleTitleTest, ShowsTheCharacterOfWhateverTheAddressHolds) {
  PutLetter(0, 42);
  EXPECT_EQ(In(1), "Relaismodule KR7021 <adres = *>");
  PutLetter(0, Cell());
  EXPECT_EQ(In(1), "Relaismodule KR7021 <adres = >");
  PutLetter(0, 0);
  EXPECT_EQ(In(1), "Relaismodule KR7021 <adres = >");
  PutLetter(0, "82");
  EXPECT_EQ(In(1), "Relaismodule KR7021 <adres = R>");
}

TEST_F(ModuleTitleTest, WithoutAModuleThereIsNoTitle) {
  for (const Cell& kind : {Cell(NoModule), Cell(10), Cell(), Cell("word")}) {
    ActiveModuleType = kind;
    EXPECT_EQ(In(1), "");
  }
}

TEST_F(ModuleTitleTest, StandsOverTheScreensOfEveryKind) {
  for (const int language : {1, 2}) {
    for (const Title& title : Titles) {
      StartWithImage(title.kind, language);
      ShownAction(Action::Buttons).Click();
      EXPECT_EQ(ButtonScreen.title, language == 1 ? title.dutch : title.french);
      ShownAction(Action::SecondFunctionTime).Click();
      EXPECT_EQ(ButtonScreen.title, language == 1 ? title.dutch : title.french);
    }
    for (const int kind : {0, 1, 4, 11}) {
      StartWithImage(kind, language);
      ShownAction(kind == 1 ? Action::DimStartValues : Action::OutputFunctions).Click();
      EXPECT_EQ(OutputScreen.title, In(language));
    }
  }
}

}  // namespace
}  // namespace bkconf
