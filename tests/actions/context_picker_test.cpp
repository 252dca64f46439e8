// The step-by-step chooser as the contexts of a master have it.
#include <gtest/gtest.h>

#include "actions/picker_test.h"

namespace bkconf {
namespace {

class ContextPickerTest : public PickerTest {
 protected:
  ContextPickerTest() : PickerTest(ContextPicker) { BeginOnMaster(); }

  struct Captions {
    char letter;
    std::string output;
    std::string action;
    std::string all;  ///< of the box; empty where there is none
  };
  void ExpectCaptions(const std::vector<Captions>& rows) {
    for (const Captions& row : rows) {
      PickLetter(row.letter);
      EXPECT_EQ(Below(), (Items{"output", "action"})) << row.letter;
      EXPECT_EQ(picker.output.label.caption, row.output) << row.letter;
      EXPECT_EQ(picker.action.label.caption, row.action) << row.letter;
      EXPECT_EQ(picker.allOutputs.visible, !row.all.empty()) << row.letter;
      if (!row.all.empty()) {
        EXPECT_EQ(picker.allOutputs.caption, row.all) << row.letter;
      }
    }
  }
  /// The letter, no output, and all of them.
  void PickAll(char letter) {
    PickLetter(letter);
    picker.allOutputs.Set(true);
    ASSERT_TRUE(picker.allOutputs.checked);
  }
  void ExpectEach(char letter, int outputs, const Cell& value) const {
    const auto each = picker.ComposeEach();
    ASSERT_EQ(each.size(), static_cast<std::size_t>(outputs));
    for (int output = 0; output < outputs; ++output) {
      const std::string number = (output < 10 ? "0" : "") + std::to_string(output);
      EXPECT_EQ(each[static_cast<std::size_t>(output)], (ActionCells{int{letter}, number, value}));
    }
  }
};

const Items Dimming = {"Uit", "Aan", "Toggle", "10%", "20%", "30%",
                       "40%", "50%", "60%",    "70%", "80%", "90%"};

TEST_F(ContextPickerTest, OffersTheLettersOfModulesAndOfCorvelaCodesButNoContext) {
  Items letters;
  for (char letter = 'A'; letter <= 'R'; ++letter) letters.emplace_back(1, letter);
  letters.emplace_back("Z");
  EXPECT_EQ(picker.letter.items, letters);
}

TEST_F(ContextPickerTest, OneHeadingStandsOverLetterAndTypeWhateverIsPicked) {
  const auto expectHeading = [this] {
    EXPECT_TRUE(picker.heading.visible);
    EXPECT_EQ(picker.heading.caption, "Module             Type");
    EXPECT_FALSE(picker.letterLabel.visible || picker.typeLabel.visible);
  };
  expectHeading();
  PickLetter('A');
  expectHeading();
  picker.Close();
  expectHeading();
  picker.Reset();
  expectHeading();
  EXPECT_TRUE(picker.type.visible);
}

TEST_F(ContextPickerTest, TheTypeListCallsALumenzaModuleByItsName) {
  EXPECT_EQ(picker.type.items,
            (Items{"Relaismodule", "Dimmodule", "Temp. module", "Relaismodule DC", "Alarmmodule",
                   "Audio interface", "Simulatiemodule", "Lumenza module"}));
  BeginOnMaster(2);
  EXPECT_EQ(picker.type.items,
            (Items{"Module relais", "Module dim", "Module temp.", "Module relais DC",
                   "Module alarme", "Interface audio", "Module simulation", "Module Lumenza"}));
}

TEST_F(ContextPickerTest, TheListOfModulesTellsTheType) {
  const std::map<char, std::string> types = {
      {'A', "Relaismodule"},   {'B', "Relaismodule DC"}, {'C', "Dimmodule"},
      {'D', "Lumenza module"}, {'E', "Temp. module"},    {'F', "---"},
      {'G', "Alarmmodule"},    {'H', "Audio interface"}, {'I', "Simulatiemodule"}};
  for (const auto& [letter, type] : types) {
    PickLetter(letter);
    EXPECT_EQ(picker.type.Text(), type) << letter;
    EXPECT_FALSE(picker.type.enabled) << letter;
    EXPECT_EQ(picker.TargetKnown(), letter != 'F') << letter;
    EXPECT_EQ(Below().empty(), letter == 'F') << letter;
  }
}

TEST_F(ContextPickerTest, ATypeThatTheListDoesNotTellIsAskedForWithABlankBeforeTheMark) {
  // 'J' is an IR module, which is no target; 'K' is not in the list.
  for (const char letter : {'J', 'K'}) {
    BeginOnMaster(1);
    PickLetter(letter);
    EXPECT_EQ(picker.type.Text(), "Module type ?");
    EXPECT_TRUE(picker.type.enabled);
    EXPECT_TRUE(Below().empty());
    EXPECT_FALSE(picker.TargetKnown());
    picker.type.Pick(Lumenza);
    EXPECT_EQ(picker.type.Text(), "Lumenza module");
    EXPECT_EQ(Below(), (Items{"output", "action"}));
    EXPECT_TRUE(picker.TargetKnown());
    BeginOnMaster(2);
    PickLetter(letter);
    EXPECT_EQ(picker.type.Text(), "Type module ?");
  }
}

TEST_F(ContextPickerTest, CaptionsHaveNoColonInDutch) {
  ExpectCaptions({{'A', "Uitgang", "Functie", "Alle uitgangen"},
                  {'B', "Uitgang", "Functie", "Alle uitgangen"},
                  {'C', "Uitgang", "Functie", "Alle uitgangen"},
                  {'D', "Uitgang", "Functie", "Alle uitgangen"},
                  {'G', "Detector", "Functie", "Alle detectoren"},
                  {'Z', "Code", "Code", ""}});
}

TEST_F(ContextPickerTest, CaptionsHaveNoColonInFrench) {
  BeginOnMaster(2);
  ExpectCaptions({{'A', "Sortie", "Fonction", "Tout les sorties"},
                  {'B', "Sortie", "Fonction", "Tout les sorties"},
                  {'C', "Sortie", "Fonction", "Tout les sorties"},
                  {'D', "Sortie", "Fonction", "Tout les sorties"},
                  {'G', "Détecteur", "Fonction", "Tout les détecteurs"},
                  {'Z', "Code", "Code", ""}});
}

TEST_F(ContextPickerTest, CaptionsOfAudioHaveNoColonEither) {
  for (const int language : {1, 2}) {
    BeginOnMaster(language);
    PickLetter('H');
    EXPECT_EQ(picker.output.label.caption, "Zone");
    picker.mainZone.Choose();
    EXPECT_EQ(picker.action.label.caption, language == 1 ? "Functie" : "Fonction");
    Pick(picker.action.list, "VOL..");
    EXPECT_TRUE(picker.value.label.visible);
    EXPECT_EQ(picker.value.label.caption, language == 1 ? "Waarde" : "Valeur");
  }
}

TEST_F(ContextPickerTest, ZOpensTwoListsOfCodesUnderTheTypeCorvela) {
  PickLetter('Z');
  EXPECT_EQ(picker.type.Text(), "Corvela");
  EXPECT_FALSE(picker.type.enabled);
  ASSERT_EQ(picker.output.list.items.size(), 99U);
  EXPECT_EQ(picker.output.list.items.front() + picker.output.list.items.back(), "0199");
  EXPECT_EQ(picker.action.list.items, picker.output.list.items);
}

TEST_F(ContextPickerTest, OtherTargetsHaveNoBoxForAllOutputs) {
  for (const char letter : {'E', 'F', 'H', 'I', 'K', 'Z'}) {
    PickLetter('A');
    ASSERT_TRUE(picker.allOutputs.visible);
    PickLetter(letter);
    EXPECT_FALSE(picker.allOutputs.visible) << letter;
  }
}

TEST_F(ContextPickerTest, TickingTheBoxClearsAndDisablesTheOutput) {
  for (const char letter : {'A', 'B', 'C', 'D', 'G'}) {
    PickLetter(letter);
    Pick(picker.output.list, "3");
    picker.allOutputs.Set(true);
    EXPECT_FALSE(picker.output.list.enabled) << letter;
    EXPECT_EQ(picker.output.list.Text(), "") << letter;
    picker.output.list.Pick(0);
    EXPECT_EQ(picker.output.list.Text(), "") << letter;
    picker.allOutputs.Set(false);
    EXPECT_TRUE(picker.output.list.enabled) << letter;
    EXPECT_EQ(picker.output.list.Text(), "") << letter;
  }
}

TEST_F(ContextPickerTest, TheBoxLeavesTheActionOfAModuleWhoseOutputsAreAllAlike) {
  PickLetter('C');
  Pick(picker.action.list, "30%");
  picker.allOutputs.Set(true);
  EXPECT_EQ(picker.action.list.Text(), "30%");
  picker.allOutputs.Set(false);
  EXPECT_EQ(picker.action.list.Text(), "30%");
}

TEST_F(ContextPickerTest, TickingTheBoxOfALumenzaModuleOffersPercentagesAndUntickingNothing) {
  PickLetter('D');
  EXPECT_TRUE(picker.action.list.items.empty());
  picker.allOutputs.Set(true);
  EXPECT_EQ(picker.action.list.items, Dimming);
  EXPECT_EQ(picker.action.list.Text(), "");
  Pick(picker.action.list, "50%");
  picker.allOutputs.Set(false);
  EXPECT_TRUE(picker.action.list.items.empty());
  EXPECT_EQ(picker.action.list.Text(), "");
  EXPECT_TRUE(picker.action.list.visible);
  Pick(picker.output.list, "5");
  EXPECT_EQ(picker.action.list.items, (Items{"Uit", "Aan", "Toggle"}));
  picker.allOutputs.Set(true);
  EXPECT_EQ(picker.action.list.items, Dimming);
}

TEST_F(ContextPickerTest, AnotherLetterOrResettingUnticksTheBoxAndFreesTheOutput) {
  for (const bool resets : {false, true}) {
    PickAll('A');
    if (resets) {
      picker.Reset();
      EXPECT_FALSE(picker.allOutputs.visible);
    }
    PickLetter('G');
    EXPECT_FALSE(picker.allOutputs.checked);
    EXPECT_TRUE(picker.output.list.enabled);
  }
}

TEST_F(ContextPickerTest, ATypeThatIsChosenByHandUnticksTheBoxToo) {
  PickLetter('K');
  picker.type.Pick(Relay);
  picker.allOutputs.Set(true);
  picker.type.Pick(Dimmer);
  EXPECT_FALSE(picker.allOutputs.checked);
  EXPECT_TRUE(picker.output.list.enabled);
  EXPECT_TRUE(picker.allOutputs.visible);
}

// --- The stored forms ---------------------------------------------------------------------------

TEST_F(ContextPickerTest, OutputsAndPlacesInTheActionListAreStoredAsTwoDigitTexts) {
  for (const char letter : {'A', 'B'}) {
    PickLetter(letter);
    Pick(picker.output.list, "12");
    Pick(picker.action.list, "Toggle");
    ExpectCells({int{letter}, "11", "02"});
    Pick(picker.output.list, "1");
    Pick(picker.action.list, "Uit");
    ExpectCells({int{letter}, "00", "00"});
  }
  PickLetter('G');
  Pick(picker.output.list, "10");
  Pick(picker.action.list, "Aan");
  ExpectCells({71, "09", "01"});
}

TEST_F(ContextPickerTest, APercentageIsStoredAsANumberBehindATextForTheOutput) {
  for (const char letter : {'C', 'D'}) {
    PickLetter(letter);
    Pick(picker.output.list, "4");
    for (int place = 0; place < 12; ++place) {
      picker.action.list.Pick(place);
      const Cell value = place < 3 ? Cell("0" + std::to_string(place)) : Cell((place - 2) * 10);
      ExpectCells({int{letter}, "03", value});
    }
  }
}

TEST_F(ContextPickerTest, DegreesAreStoredAsANumberAndTheFixedTextsAsTheyAre) {
  PickLetter('E');
  auto& [roomDegrees, roomBase, allDegrees, allBase] = picker.temperatures;
  roomDegrees.option.Choose();
  Pick(roomDegrees.temperature, "5");
  Pick(roomDegrees.room, "3");
  ExpectCells({69, "02", 5});
  roomBase.option.Choose();
  Pick(roomBase.room, "8");
  ExpectCells({69, "07", "99"});
  allDegrees.option.Choose();
  Pick(allDegrees.temperature, "40");
  ExpectCells({69, "8", 40});
  allBase.option.Choose();
  ExpectCells({69, "8", "99"});
}

TEST_F(ContextPickerTest, ZonesBlocksAndValuesAreStoredAsTwoDigitTexts) {
  PickLetter('H');
  picker.mainZone.Choose();
  Pick(picker.output.list, "3");
  Pick(picker.action.list, "Bas -");
  ExpectCells({72, "02", "09"});
  Pick(picker.action.list, "VOL..");
  Pick(picker.value.list, "5");
  ExpectCells({72, "34", "04"});
  picker.secondaryZone.Choose();
  Pick(picker.action.list, "Aan");
  ExpectCells({72, "02", "17"});
  Pick(picker.action.list, "BAL..");
  Pick(picker.value.list, "16");
  ExpectCells({72, "82", "31"});
}

TEST_F(ContextPickerTest, SimulationsAndCorvelaCodesAreStoredAsTwoDigitTexts) {
  PickLetter('I');
  picker.simulationOn.Choose();
  ExpectCells({73, "00", "01"});
  picker.simulationOff.Choose();
  ExpectCells({73, "00", "00"});
  PickLetter('Z');
  Pick(picker.output.list, "05");
  Pick(picker.action.list, "99");
  ExpectCells({90, "04", "98"});
}

// --- All outputs --------------------------------------------------------------------------------

TEST_F(ContextPickerTest, AllOutputsMakeOneActionEach) {
  const std::map<char, int> outputs = {{'A', 12}, {'B', 12}, {'C', 4}, {'D', 8}, {'G', 12}};
  for (const auto& [letter, count] : outputs) {
    PickAll(letter);
    Pick(picker.action.list, "Aan");
    ExpectEach(letter, count, "01");
  }
}

TEST_F(ContextPickerTest, AllOutputsTakeAPercentageAlsoThoseOfALumenzaModuleThatDoNotDim) {
  PickAll('C');
  Pick(picker.action.list, "90%");
  ExpectEach('C', 4, 90);
  PickAll('D');
  Pick(picker.action.list, "10%");
  ExpectEach('D', 8, 10);
}

TEST_F(ContextPickerTest, AllOutputsNeedOnlyTheAction) {
  for (const char letter : {'A', 'B', 'C', 'D', 'G'}) {
    PickAll(letter);
    EXPECT_TRUE(picker.ComposeEach().empty()) << letter;
    ExpectRefused();
  }
}

TEST_F(ContextPickerTest, WithoutTheBoxOneActionIsMadeOrNone) {
  EXPECT_TRUE(picker.ComposeEach().empty());
  PickLetter('A');
  Pick(picker.action.list, "Aan");
  EXPECT_TRUE(picker.ComposeEach().empty());
  Pick(picker.output.list, "2");
  EXPECT_EQ(picker.ComposeEach(), (std::vector<ActionCells>{{65, "01", "01"}}));
  PickAll('A');
  picker.allOutputs.Set(false);
  Pick(picker.action.list, "Aan");
  EXPECT_TRUE(picker.ComposeEach().empty());
  PickLetter('Z');
  Pick(picker.output.list, "43");
  Pick(picker.action.list, "43");
  EXPECT_EQ(picker.ComposeEach(), (std::vector<ActionCells>{{90, "42", "42"}}));
  PickLetter('F');
  EXPECT_TRUE(picker.ComposeEach().empty());
}

}  // namespace
}  // namespace bkconf
