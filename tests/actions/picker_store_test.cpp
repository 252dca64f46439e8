#include <gtest/gtest.h>

#include "actions/picker_test.h"

namespace bkconf {
namespace {

/// The last step: the three cells, or nothing while a field that the type needs is empty.
class PickerStoreTest : public PickerTest {
 protected:
  void Expect(const ActionCells& cells) const { ExpectCells(cells); }

  void PickAudio(OptionField& zone, const std::string& number, const std::string& action) {
    PickTarget('H', Audio);
    zone.Choose();
    Pick(picker.output.list, number);
    Pick(picker.action.list, action);
  }
};

TEST_F(PickerStoreTest, AnOutputIsStoredFromZeroWithTheActionsPlace) {
  for (const int type : {Relay, RelayDc}) {
    PickTarget('A', type);
    Pick(picker.output.list, "12");
    Pick(picker.action.list, "Toggle");
    Expect({65, 11, 2});
    Pick(picker.output.list, "1");
    Pick(picker.action.list, "Uit");
    Expect({65, 0, 0});
  }
}

TEST_F(PickerStoreTest, ADetectorIsStoredLikeAnOutput) {
  PickTarget('G', Alarm);
  Pick(picker.output.list, "12");
  Pick(picker.action.list, "Aan");
  Expect({71, 11, 1});
}

TEST_F(PickerStoreTest, APercentageIsStoredAsItsNumber) {
  PickTarget('D', Dimmer);
  Pick(picker.output.list, "4");
  for (int place = 0; place < 12; ++place) {
    picker.action.list.Pick(place);
    Expect({68, 3, place < 3 ? place : (place - 2) * 10});
  }
}

TEST_F(PickerStoreTest, ALumenzaModuleIsStoredLikeADimmer) {
  PickTarget('L', Lumenza);
  Pick(picker.output.list, "1");
  Pick(picker.action.list, "90%");
  Expect({76, 0, 90});
  Pick(picker.action.list, "10%");
  Expect({76, 0, 10});
  Pick(picker.output.list, "8");
  Pick(picker.action.list, "Toggle");
  Expect({76, 7, 2});
}

TEST_F(PickerStoreTest, ATemperatureInARoomIsStoredAsANumber) {
  PickTarget('E', Temperature);
  picker.temperatures[0].option.Choose();
  Pick(picker.temperatures[0].temperature, "21");
  Pick(picker.temperatures[0].room, "3");
  Expect({69, 2, 21});
}

TEST_F(PickerStoreTest, TheBaseTemperatureOfARoomIsStoredAsTheText99) {
  PickTarget('E', Temperature);
  picker.temperatures[1].option.Choose();
  Pick(picker.temperatures[1].room, "8");
  Expect({69, 7, "99"});
}

TEST_F(PickerStoreTest, AllRoomsAreStoredAsTheText8) {
  PickTarget('E', Temperature);
  picker.temperatures[2].option.Choose();
  Pick(picker.temperatures[2].temperature, "0");
  Expect({69, "8", 0});
  Pick(picker.temperatures[2].temperature, "40");
  Expect({69, "8", 40});
  picker.temperatures[3].option.Choose();
  Expect({69, "8", "99"});
}

TEST_F(PickerStoreTest, OnlyTheFieldsOfTheChosenOptionCount) {
  PickTarget('E', Temperature);
  Pick(picker.temperatures[0].temperature, "21");
  Pick(picker.temperatures[0].room, "3");
  ExpectRefused();
  picker.temperatures[1].option.Choose();
  ExpectRefused();
  picker.temperatures[2].option.Choose();
  ExpectRefused();
  picker.temperatures[0].option.Choose();
  Expect({69, 2, 21});
}

TEST_F(PickerStoreTest, AnActionOfTheMainZoneIsStoredByItsPlace) {
  PickAudio(picker.mainZone, "16", "Uit");
  for (int place = 0; place < 10; ++place) {
    picker.action.list.Pick(place);
    Expect({72, 15, place});
  }
}

TEST_F(PickerStoreTest, AValueOfTheMainZoneIsStoredInTheBlockOfItsAction) {
  PickAudio(picker.mainZone, "3", "VOL..");
  Pick(picker.value.list, "5");
  Expect({72, 34, 4});
  for (int place = 10; place < 15; ++place) {
    picker.action.list.Pick(place);
    Pick(picker.value.list, "16");
    Expect({72, (place - 9) * 16 + 2, 15});
  }
}

TEST_F(PickerStoreTest, AnActionOfTheSecondaryZoneIsStoredBehind16) {
  PickAudio(picker.secondaryZone, "2", "Uit");
  for (int place = 0; place < 5; ++place) {
    picker.action.list.Pick(place);
    Expect({72, 1, place + 16});
  }
}

TEST_F(PickerStoreTest, VolumeAndBalanceOfTheSecondaryZoneShareTheBlocksOfTheMainZone) {
  PickAudio(picker.secondaryZone, "2", "VOL..");
  Pick(picker.value.list, "3");
  Expect({72, 33, 18});
  Pick(picker.action.list, "BAL..");
  Pick(picker.value.list, "16");
  Expect({72, 81, 31});
}

TEST_F(PickerStoreTest, ASimulationIsStoredAsTexts) {
  PickTarget('I', Simulation);
  picker.simulationOff.Choose();
  Expect({73, "00", "00"});
  picker.simulationOn.Choose();
  Expect({73, "00", "01"});
}

TEST_F(PickerStoreTest, AContextIsStoredFromZeroWithTheText02) {
  PickLetter('S');
  Pick(picker.output.list, "7");
  Expect({83, 6, "02"});
  Pick(picker.output.list, "50");
  Expect({83, 49, "02"});
}

TEST_F(PickerStoreTest, BothNumbersOfACorvelaCodeAreStoredFromZero) {
  PickLetter('Z');
  Pick(picker.output.list, "05");
  Pick(picker.action.list, "12");
  Expect({90, 4, 11});
  Pick(picker.output.list, "99");
  Pick(picker.action.list, "01");
  Expect({90, 98, 0});
}

TEST_F(PickerStoreTest, TheOwnDcRelayModuleStoresLikeOneThatIsNamedByHand) {
  Begin(1, 4, 'D');
  PickLetter('D');
  Pick(picker.output.list, "5");
  Pick(picker.action.list, "Aan");
  const auto own = picker.Compose();
  Begin(1, 0, 'R');
  PickTarget('D', RelayDc);
  Pick(picker.output.list, "5");
  Pick(picker.action.list, "Aan");
  ASSERT_TRUE(own);
  Expect(*own);
}

TEST_F(PickerStoreTest, ListsOfTextsStoreTwoDigits) {
  PickerVariant variant = ButtonPicker;
  variant.form = StoredForm::TwoDigitTexts;
  ActionPicker other(screen, "other", variant);
  other.Load();
  other.Reset();
  Pick(other.letter, "A");
  other.type.Pick(Relay);
  Pick(other.output.list, "5");
  Pick(other.action.list, "Toggle");
  EXPECT_EQ(other.Compose(), (ActionCells{65, "04", "02"}));
}

TEST_F(PickerStoreTest, WithoutALetterOrATypeNothingIsStored) {
  ExpectRefused();
  PickLetter('A');
  ExpectRefused();
}

TEST_F(PickerStoreTest, WithoutAnOutputOrAnActionNothingIsStored) {
  for (const int type : {Relay, Dimmer, RelayDc, Alarm}) {
    PickTarget('A', type);
    ExpectRefused();
    picker.output.list.Pick(0);
    ExpectRefused();
    PickTarget('A', type);
    picker.action.list.Pick(0);
    ExpectRefused();
    picker.output.list.Pick(0);
    Expect({65, 0, 0});
  }
}

TEST_F(PickerStoreTest, WithoutAnOutputOrAnActionOfALumenzaModuleNothingIsStored) {
  PickTarget('A', Lumenza);
  ExpectRefused();
  picker.action.list.Pick(0);
  ExpectRefused();
  picker.output.list.Pick(0);
  ExpectRefused();
}

TEST_F(PickerStoreTest, WithoutARoomOrATemperatureNothingIsStored) {
  for (std::size_t i = 0; i < 3; ++i) {
    TemperatureChoice& choice = picker.temperatures[i];
    PickTarget('E', Temperature);
    ExpectRefused();
    choice.option.Choose();
    ExpectRefused();
    if (i == 0) {
      choice.temperature.Pick(5);
      ExpectRefused();
      PickTarget('E', Temperature);
      choice.option.Choose();
      choice.room.Pick(5);
      ExpectRefused();
    }
  }
}

TEST_F(PickerStoreTest, WithoutAZoneAnActionOrAValueNothingIsStored) {
  for (OptionField* zone : {&picker.mainZone, &picker.secondaryZone}) {
    PickTarget('H', Audio);
    ExpectRefused();
    picker.output.list.Pick(0);
    ExpectRefused();
    zone->Choose();
    ExpectRefused();
    PickTarget('H', Audio);
    zone->Choose();
    picker.action.list.Pick(0);
    ExpectRefused();
    picker.output.list.Pick(0);
    EXPECT_TRUE(picker.Compose());
    const int first = zone == &picker.mainZone ? 10 : 5;
    for (int place = first; place < static_cast<int>(picker.action.list.items.size()); ++place) {
      picker.action.list.Pick(place);
      ExpectRefused();
    }
  }
}

TEST_F(PickerStoreTest, WithoutOnOrOffOfTheSimulationNothingIsStored) {
  PickTarget('I', Simulation);
  ExpectRefused();
}

TEST_F(PickerStoreTest, WithoutANumberOfAContextOrACodeNothingIsStored) {
  PickLetter('S');
  ExpectRefused();
  PickLetter('Z');
  ExpectRefused();
  picker.output.list.Pick(0);
  ExpectRefused();
  PickLetter('Z');
  picker.action.list.Pick(0);
  ExpectRefused();
}

TEST_F(PickerStoreTest, ADisplayStoresNothing) {
  Begin(1, 9, 'R');
  List(0, 'F', 3);
  PickLetter('F');
  ExpectRefused();
}

}  // namespace
}  // namespace bkconf
