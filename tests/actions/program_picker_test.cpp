// The step-by-step chooser as the time and light programmes of a master have it.
#include <gtest/gtest.h>

#include "actions/picker_test.h"

namespace bkconf {
namespace {

/// What both have alike.
class ProgramPickerTest : public PickerTest {
 protected:
  explicit ProgramPickerTest(const PickerVariant& variant) : PickerTest(variant) {
    BeginOnMaster();
    picker.onTarget = [this] { known.push_back(picker.TargetKnown()); };
  }

  /// The letters of the house by the type that they show; "---" for one that cannot be a target.
  void ExpectTypes(const std::map<char, std::string>& types) {
    for (const auto& [letter, type] : types) {
      const bool target = type != "---";
      known.clear();
      PickLetter(letter);
      EXPECT_EQ(picker.type.Text(), type) << letter;
      EXPECT_FALSE(picker.type.enabled) << letter;
      EXPECT_EQ(Below().empty(), !target) << letter;
      EXPECT_EQ(known, std::vector<bool>{target}) << letter;
      ExpectRefused();
    }
  }
  void ExpectAskedFor(char letter, int types) {
    PickLetter(letter);
    EXPECT_EQ(picker.type.Text(), "Module type?") << letter;
    EXPECT_TRUE(picker.type.enabled) << letter;
    EXPECT_TRUE(Below().empty()) << letter;
    for (int type = 0; type < types; ++type) {
      known.clear();
      PickLetter(letter);
      picker.type.Pick(type);
      EXPECT_EQ(known, (std::vector<bool>{false, true})) << letter << type;
      EXPECT_FALSE(Below().empty()) << letter << type;
    }
  }
  void ExpectContextsAndCodes() {
    known.clear();
    PickLetter('S');
    EXPECT_EQ(picker.type.Text(), "Sfeer");
    EXPECT_EQ(picker.output.label.caption, "Sfeer:");
    Pick(picker.output.list, "50");
    ExpectCells({83, 49, "02"});
    PickLetter('Z');
    EXPECT_EQ(picker.type.Text(), "Corvela");
    EXPECT_EQ(picker.output.label.caption, "Code");
    EXPECT_EQ(picker.action.label.caption, "Code");
    Pick(picker.output.list, "05");
    ExpectRefused();
    Pick(picker.action.list, "12");
    ExpectCells({90, 4, 11});
    EXPECT_EQ(known, (std::vector<bool>{true, true}));
  }
  void ExpectLook(const std::string& heading) {
    EXPECT_TRUE(picker.heading.visible);
    EXPECT_EQ(picker.heading.caption, heading);
    EXPECT_FALSE(picker.letterLabel.visible || picker.typeLabel.visible);
    ASSERT_EQ(picker.letter.items.size(), 20U);
    EXPECT_EQ(picker.letter.items.front(), "A");
    EXPECT_EQ(picker.letter.items[18], "S");
    EXPECT_EQ(picker.letter.items[19], "Z");
    PickLetter('A');
    EXPECT_EQ(picker.output.label.caption, "Uitgang:");
    EXPECT_EQ(picker.action.label.caption, "Actie:");
    EXPECT_FALSE(picker.allOutputs.visible);
  }
  /// Numbers, not texts.
  void ExpectOutputsStoredAsNumbers(char relays, char dimmer, char lumenza) {
    PickLetter(relays);
    Pick(picker.output.list, "12");
    Pick(picker.action.list, "Toggle");
    ExpectCells({int{relays}, 11, 2});
    for (const char letter : {dimmer, lumenza}) {
      PickLetter(letter);
      Pick(picker.output.list, "4");
      Pick(picker.action.list, "90%");
      ExpectCells({int{letter}, 3, 90});
    }
  }
  std::vector<bool> known;  ///< what `TargetKnown` gave each time that `onTarget` ran
};

class TimePickerTest : public ProgramPickerTest {
 protected:
  TimePickerTest() : ProgramPickerTest(TimePicker) {}
};

TEST_F(TimePickerTest, OffersSevenTypesInBothLanguages) {
  EXPECT_EQ(picker.type.items,
            (Items{"Relaismodule", "Dimmodule", "Temp. module", "Relaismodule DC", "Alarmmodule",
                   "Audio interface", "Lumenza module"}));
  BeginOnMaster(2);
  EXPECT_EQ(picker.type.items,
            (Items{"Module relais", "Module dim", "Module temp.", "Module relais DC",
                   "Module alarme", "Interface audio", "Module Lumenza"}));
}

TEST_F(TimePickerTest, HasOneHeadingAndCaptionsWithAColon) {
  ExpectLook("Module             Type");
  PickLetter('G');
  EXPECT_EQ(picker.output.label.caption, "Detector:");
}

TEST_F(TimePickerTest, ShowsNoTypeOfADisplayAndASimulation) {
  ExpectTypes({{'A', "Relaismodule"},
               {'B', "Relaismodule DC"},
               {'C', "Dimmodule"},
               {'D', "Lumenza module"},
               {'E', "Temp. module"},
               {'F', "---"},
               {'G', "Alarmmodule"},
               {'H', "Audio interface"},
               {'I', "---"}});
}

TEST_F(TimePickerTest, AsksForATypeThatTheListOfModulesDoesNotTell) {
  ExpectAskedFor('J', 7);
  ExpectAskedFor('K', 7);
}

TEST_F(TimePickerTest, OffersContextsAndCorvelaCodes) {
  ExpectContextsAndCodes();
}

TEST_F(TimePickerTest, TheSeventhTypeIsALumenzaModule) {
  PickLetter('K');
  picker.type.Pick(6);
  EXPECT_EQ(picker.output.list.items, Numbers(1, 8));
  Pick(picker.output.list, "8");
  EXPECT_EQ(picker.action.list.items, (Items{"Uit", "Aan", "Toggle"}));
}

TEST_F(TimePickerTest, StoresNumbersButForTheFixedTexts) {
  ExpectOutputsStoredAsNumbers('B', 'C', 'D');
  PickLetter('G');
  Pick(picker.output.list, "12");
  Pick(picker.action.list, "Aan");
  ExpectCells({71, 11, 1});
  PickLetter('E');
  picker.temperatures[2].option.Choose();
  Pick(picker.temperatures[2].temperature, "21");
  ExpectCells({69, "8", 21});
  PickLetter('H');
  picker.secondaryZone.Choose();
  Pick(picker.output.list, "16");
  Pick(picker.action.list, "VOL..");
  Pick(picker.value.list, "1");
  ExpectCells({72, 47, 16});
}

class LightPickerTest : public ProgramPickerTest {
 protected:
  LightPickerTest() : ProgramPickerTest(LightPicker) {}
};

TEST_F(LightPickerTest, OffersFourTypesInBothLanguages) {
  EXPECT_EQ(picker.type.items,
            (Items{"Relaismodule", "Dimmodule", "Relaismodule DC", "Lumenza module"}));
  BeginOnMaster(2);
  EXPECT_EQ(picker.type.items,
            (Items{"Module relais", "Module dim", "Module relais DC", "Module Lumenza"}));
}

TEST_F(LightPickerTest, HasAHeadingOfItsOwnAndCaptionsWithAColon) {
  ExpectLook("Module           Type");
}

TEST_F(LightPickerTest, ShowsNoTypeOfModulesThatOfferItNothing) {
  ExpectTypes({{'A', "Relaismodule"},
               {'B', "Relaismodule DC"},
               {'C', "Dimmodule"},
               {'D', "Lumenza module"},
               {'E', "---"},
               {'F', "---"},
               {'G', "---"},
               {'H', "---"},
               {'I', "---"}});
}

TEST_F(LightPickerTest, AsksForATypeThatTheListOfModulesDoesNotTell) {
  ExpectAskedFor('J', 4);
  ExpectAskedFor('K', 4);
}

TEST_F(LightPickerTest, OffersContextsAndCorvelaCodes) {
  ExpectContextsAndCodes();
}

TEST_F(LightPickerTest, TheThirdAndFourthTypeAreOfDcRelaysAndLumenzaModules) {
  PickLetter('K');
  picker.type.Pick(2);
  EXPECT_EQ(picker.output.list.items, Numbers(1, 12));
  EXPECT_EQ(picker.action.list.items.size(), 3U);
  picker.type.Pick(3);
  EXPECT_EQ(picker.output.list.items, Numbers(1, 8));
  EXPECT_TRUE(picker.action.list.items.empty());
}

TEST_F(LightPickerTest, StoresNumbers) {
  ExpectOutputsStoredAsNumbers('B', 'C', 'D');
}

// --- What the target tells ----------------------------------------------------------------------

TEST_F(TimePickerTest, ResettingAndClosingTellThatThereIsNoTarget) {
  PickLetter('A');
  known.clear();
  picker.Reset();
  picker.Close();
  EXPECT_EQ(known, (std::vector<bool>{false, false}));
}

TEST_F(TimePickerTest, WhatIsPickedBelowDoesNotTellOfTheTarget) {
  PickLetter('H');
  known.clear();
  picker.mainZone.Choose();
  Pick(picker.output.list, "1");
  Pick(picker.action.list, "Uit");
  EXPECT_TRUE(known.empty());
}

TEST_F(TimePickerTest, AnotherLetterWhoseTypeIsAskedForTakesTheTargetBack) {
  PickLetter('S');
  EXPECT_TRUE(picker.TargetKnown());
  PickLetter('K');
  EXPECT_FALSE(picker.TargetKnown());
  picker.type.Pick(0);
  EXPECT_TRUE(picker.TargetKnown());
}

}  // namespace
}  // namespace bkconf
