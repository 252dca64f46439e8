#include <gtest/gtest.h>

#include "actions/picker_test.h"

namespace bkconf {
namespace {

const Items None;

/// The codes "01" to "99".
Items Codes() {
  Items items;
  for (int code = 1; code <= 99; ++code) {
    items.push_back((code < 10 ? "0" : "") + std::to_string(code));
  }
  return items;
}

/// The first step: what follows from a letter.
class PickerLetterTest : public PickerTest {
 protected:
  void ExpectAsked(const std::string& prompt = "Module type?") const {
    EXPECT_EQ(picker.type.Text(), prompt);
    EXPECT_EQ(picker.type.Index(), -1);
    EXPECT_TRUE(picker.type.enabled);
    EXPECT_EQ(Below(), None);
  }
  void ExpectKnown(const std::string& type, int place) const {
    EXPECT_EQ(picker.type.Text(), type);
    EXPECT_EQ(picker.type.Index(), place);
    EXPECT_FALSE(picker.type.enabled);
  }
};

TEST_F(PickerLetterTest, IdleOffersTheLettersAToSAndZ) {
  Items letters;
  for (char letter = 'A'; letter <= 'S'; ++letter) letters.emplace_back(1, letter);
  letters.emplace_back("Z");
  EXPECT_EQ(picker.letter.items, letters);
  EXPECT_EQ(letters.size(), 20U);
  EXPECT_TRUE(picker.letter.enabled);
  EXPECT_EQ(picker.letter.Text(), "");
  EXPECT_EQ(picker.type.Text(), "");
  EXPECT_FALSE(picker.type.enabled);
  EXPECT_EQ(Below(), None);
}

TEST_F(PickerLetterTest, AVariantWithoutContextsOffersNoS) {
  PickerVariant variant = ButtonPicker;
  variant.offersContexts = false;
  ActionPicker other(screen, "other", variant);
  other.Load();
  Items letters;
  for (char letter = 'A'; letter <= 'R'; ++letter) letters.emplace_back(1, letter);
  letters.emplace_back("Z");
  EXPECT_EQ(other.letter.items, letters);
}

TEST_F(PickerLetterTest, TheTypeListHasEightTypesInBothLanguages) {
  EXPECT_EQ(picker.type.items,
            (Items{"Relaismodule", "Dimmodule", "Temp. module", "Relaismodule DC", "Alarmmodule",
                   "Audio interface", "Simulatiemodule", "Lumenza dimmer"}));
  Begin(2, 0, 'R');
  EXPECT_EQ(picker.type.items,
            (Items{"Module relais", "Module dim", "Module temp.", "Module relais DC",
                   "Module alarme", "Interface audio", "Module simulation", "Dimmer Lumenza"}));
  const std::vector<int> kinds = {0, 1, 2, 4, 5, 6, 7, 11};
  for (std::size_t i = 0; i < kinds.size(); ++i) EXPECT_EQ(ButtonPickerTypes[i].kind, kinds[i]);
}

TEST_F(PickerLetterTest, SAsksForAContext) {
  PickLetter('S');
  EXPECT_EQ(picker.type.Text(), "Sfeer");
  EXPECT_FALSE(picker.type.enabled);
  EXPECT_EQ(picker.output.label.caption, "Sfeer:");
  EXPECT_EQ(picker.output.list.items, Numbers(1, 50));
  EXPECT_EQ(Below(), Items{"output"});
  Begin(2, 0, 'R');
  PickLetter('S');
  EXPECT_EQ(picker.type.Text(), "Contexte");
  EXPECT_EQ(picker.output.label.caption, "Contexte:");
}

TEST_F(PickerLetterTest, ZAsksForTwoCodes) {
  for (const int language : {1, 2}) {
    Begin(language, 0, 'R');
    PickLetter('Z');
    EXPECT_EQ(picker.type.Text(), "Corvela");
    EXPECT_FALSE(picker.type.enabled);
    EXPECT_EQ(picker.output.label.caption, "Code:");
    EXPECT_EQ(picker.action.label.caption, "Code:");
    EXPECT_EQ(picker.output.list.items, Codes());
    EXPECT_EQ(picker.action.list.items, Codes());
    EXPECT_EQ(Below(), (Items{"output", "action"}));
  }
}

TEST_F(PickerLetterTest, SAndZMeanTheSameOnEveryKindOfImage) {
  for (const int kind : {0, 1, 2, 4, 5, 6, 7, 8, 9, 11}) {
    Begin(1, kind, 'S');
    PickLetter('S');
    EXPECT_EQ(picker.type.Text(), "Sfeer") << kind;
    PickLetter('Z');
    EXPECT_EQ(picker.type.Text(), "Corvela") << kind;
  }
}

struct KnownType {
  int kind;
  int place;
  std::string dutch;
  std::string french;
  Items below;
};

const std::vector<KnownType>& KnownTypes() {
  static const Items outputs = {"output", "action"};
  static const Items rooms = {"option 0", "temperature 0", "room 0",        "option 1",
                              "room 1",   "option 2",      "temperature 2", "option 3"};
  static const std::vector<KnownType> types = {
      {0, Relay, "Relaismodule", "Module relais", outputs},
      {4, RelayDc, "Relaismodule DC", "Module relais DC", outputs},
      {1, Dimmer, "Dimmodule", "Module dim", outputs},
      {11, Lumenza, "Lumenza dimmer", "Dimmer Lumenza", outputs},
      {2, Temperature, "Temp. module", "Module temp.", rooms},
      {5, Alarm, "Alarmmodule", "Module alarme", outputs},
      {6, Audio, "Audio interface", "Interface audio", {"main zone", "secondary zone", "output"}},
      {7, Simulation, "Simulatiemodule", "Module simulation", {"simulation on", "simulation off"}},
  };
  return types;
}

TEST_F(PickerLetterTest, TheListOfModulesTellsTheTypeOnAMasterAndAnIrImage) {
  for (const int image : {9, 8}) {
    for (const KnownType& type : KnownTypes()) {
      Begin(1, image, 'R');
      List(5, 'D', type.kind);
      PickLetter('D');
      ExpectKnown(type.dutch, type.place);
      EXPECT_EQ(Below(), type.below) << type.kind;
      Begin(2, image, 'R');
      List(5, "68", std::to_string(type.kind));
      PickLetter('D');
      ExpectKnown(type.french, type.place);
    }
  }
}

TEST_F(PickerLetterTest, AKnownTypeCannotBeChosenOtherwise) {
  Begin(1, 9, 'R');
  List(0, 'D', 1);
  PickLetter('D');
  picker.type.Pick(Relay);
  ExpectKnown("Dimmodule", Dimmer);
}

TEST_F(PickerLetterTest, ADisplayOffersNoActions) {
  Begin(1, 9, 'R');
  List(0, 'D', 3);
  PickLetter('D');
  EXPECT_EQ(picker.type.Text(), "---");
  EXPECT_FALSE(picker.type.enabled);
  EXPECT_EQ(Below(), None);
}

TEST_F(PickerLetterTest, AnyOtherTypeInTheListIsAskedFor) {
  for (const int image : {9, 8}) {
    for (const int kind : {8, 9, 10, 42, 99, 255, -1}) {
      Begin(1, image, 'R');
      List(0, 'D', kind);
      PickLetter('D');
      ExpectAsked();
    }
  }
}

TEST_F(PickerLetterTest, ALetterThatIsNotListedIsAskedFor) {
  for (const int image : {9, 8}) {
    Begin(1, image, 'D');
    List(0, 'E', 1);
    PickLetter('D');
    ExpectAsked();
    Begin(2, image, 'D');
    PickLetter('D');
    ExpectAsked("Type module?");
  }
}

TEST_F(PickerLetterTest, TheListIsSearchedFromItsFirstRowToItsLast) {
  Begin(1, 9, 'R');
  List(0, 'E', 0);
  List(17, 'D', 1);
  PickLetter('D');
  ExpectKnown("Dimmodule", Dimmer);
  List(2, 'D', 5);
  PickLetter('D');
  ExpectKnown("Alarmmodule", Alarm);
}

TEST_F(PickerLetterTest, ARowOfAModuleThatIsNoTargetIsPassedOver) {
  Begin(1, 9, 'R');
  List(0, 'D', 8);
  List(1, 'D', 1);
  PickLetter('D');
  ExpectKnown("Dimmodule", Dimmer);
}

TEST_F(PickerLetterTest, ARowWithoutAKindIsPassedOver) {
  Begin(1, 9, 'R');
  for (const Cell& kind : {Cell(), Cell("word"), Cell(0.5)}) {
    List(0, 'D', kind);
    PickLetter('D');
    ExpectAsked();
  }
}

TEST_F(PickerLetterTest, APlainModuleKnowsItsOwnLetter) {
  for (const KnownType& type : KnownTypes()) {
    if (type.kind == 4) continue;
    Begin(1, type.kind, 'D');
    PickLetter('D');
    ExpectKnown(type.dutch, type.place);
    EXPECT_EQ(Below(), type.below) << type.kind;
    Begin(2, type.kind, 'D');
    PickLetter('D');
    ExpectKnown(type.french, type.place);
  }
}

TEST_F(PickerLetterTest, ADcRelayModuleShowsItselfAsARelayModule) {
  Begin(1, 4, 'D');
  PickLetter('D');
  ExpectKnown("Relaismodule", Relay);
  EXPECT_EQ(Below(), (Items{"output", "action"}));
  Begin(2, 4, 'D');
  PickLetter('D');
  ExpectKnown("Module relais", Relay);
}

TEST_F(PickerLetterTest, APlainModuleAsksForTheTypeOfAnyOtherLetter) {
  for (const KnownType& type : KnownTypes()) {
    Begin(1, type.kind, 'D');
    // What a master left in memory is not the installation of this module.
    List(0, 'E', 0);
    PickLetter('E');
    ExpectAsked();
    Begin(2, type.kind, 'D');
    PickLetter('E');
    ExpectAsked("Type module?");
  }
}

TEST_F(PickerLetterTest, ALetterClearsAndHidesWhatWasChosenBelow) {
  PickTarget('A', Audio);
  picker.mainZone.Choose();
  picker.output.list.Pick(0);
  Pick(picker.action.list, "VOL..");
  picker.value.list.Pick(0);
  ASSERT_TRUE(picker.Compose());
  PickLetter('B');
  ExpectAsked();
  picker.type.Pick(Audio);
  EXPECT_FALSE(picker.mainZone.Chosen());
  EXPECT_EQ(picker.output.list.Text(), "");
  EXPECT_EQ(picker.action.list.Text(), "");
  EXPECT_EQ(picker.value.list.Text(), "");
  EXPECT_FALSE(picker.Compose());
}

TEST_F(PickerLetterTest, ResettingReturnsToIdle) {
  for (int type = Relay; type <= Lumenza; ++type) {
    PickTarget('A', type);
    picker.Reset();
    EXPECT_EQ(picker.letter.Text() + picker.type.Text(), "");
    EXPECT_TRUE(picker.letter.enabled);
    EXPECT_FALSE(picker.type.enabled);
    EXPECT_EQ(Below(), None);
    EXPECT_FALSE(picker.Compose());
  }
}

TEST_F(PickerLetterTest, ClosingLeavesNothingToPick) {
  PickTarget('A', Relay);
  picker.Close();
  EXPECT_EQ(picker.letter.Text() + picker.type.Text(), "");
  EXPECT_FALSE(picker.letter.enabled);
  EXPECT_FALSE(picker.type.enabled);
  EXPECT_EQ(Below(), None);
}

TEST_F(PickerLetterTest, PickingChangesNoCell) {
  const Snapshot before = TakeSnapshot();
  PickTarget('A', Lumenza);
  picker.output.list.Pick(0);
  picker.action.list.Pick(5);
  picker.Compose();
  PickLetter('S');
  picker.output.list.Pick(5);
  picker.Reset();
  ExpectOnlyChanged(before, {});
}

}  // namespace
}  // namespace bkconf
