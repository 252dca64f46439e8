#include <gtest/gtest.h>

#include "actions/picker_test.h"

namespace bkconf {
namespace {

const Items SwitchDutch = {"Uit", "Aan", "Toggle"};
const Items SwitchFrench = {"OFF", "ON", "Toggle"};

Items WithPercentages(Items items) {
  for (const char* percent : {"10%", "20%", "30%", "40%", "50%", "60%", "70%", "80%", "90%"}) {
    items.emplace_back(percent);
  }
  return items;
}

/// The second and third step: what follows from a type, and from an output.
class PickerTypeTest : public PickerTest {
 protected:
  void ExpectOutputs(int type, const std::string& caption, const Items& outputs,
                     const std::string& actionCaption, const Items& actions) {
    PickTarget('A', type);
    EXPECT_EQ(Below(), (Items{"output", "action"}));
    EXPECT_EQ(picker.output.label.caption, caption);
    EXPECT_EQ(picker.output.list.items, outputs);
    EXPECT_EQ(picker.output.list.Text(), "");
    EXPECT_EQ(picker.action.label.caption, actionCaption);
    EXPECT_EQ(picker.action.list.items, actions);
    EXPECT_EQ(picker.action.list.Text(), "");
  }
};

TEST_F(PickerTypeTest, ModulesWithOutputsOfferThemInDutch) {
  ExpectOutputs(Relay, "Uitgang:", Numbers(1, 12), "Actie:", SwitchDutch);
  ExpectOutputs(RelayDc, "Uitgang:", Numbers(1, 12), "Actie:", SwitchDutch);
  ExpectOutputs(Dimmer, "Uitgang:", Numbers(1, 4), "Actie:", WithPercentages(SwitchDutch));
  ExpectOutputs(Alarm, "Detector:", Numbers(1, 12), "Actie:", {"Uit", "Aan"});
  ExpectOutputs(Lumenza, "Uitgang:", Numbers(1, 8), "Actie:", {});
}

TEST_F(PickerTypeTest, ModulesWithOutputsOfferThemInFrench) {
  Begin(2, 0, 'R');
  ExpectOutputs(Relay, "Sortie:", Numbers(1, 12), "Action:", SwitchFrench);
  ExpectOutputs(RelayDc, "Sortie:", Numbers(1, 12), "Action:", SwitchFrench);
  ExpectOutputs(Dimmer, "Sortie:", Numbers(1, 4), "Action:", WithPercentages(SwitchFrench));
  ExpectOutputs(Alarm, "Détecteur:", Numbers(1, 12), "Action:", {"OFF", "ON"});
  ExpectOutputs(Lumenza, "Sortie:", Numbers(1, 8), "Action:", {});
}

TEST_F(PickerTypeTest, ATemperatureModuleOffersFourChoices) {
  PickTarget('A', Temperature);
  EXPECT_EQ(Below(), (Items{"option 0", "temperature 0", "room 0", "option 1", "room 1", "option 2",
                            "temperature 2", "option 3"}));
  for (const std::size_t i : {0U, 2U})
    EXPECT_EQ(picker.temperatures[i].temperature.items, Numbers(0, 40));
  for (const std::size_t i : {0U, 1U}) EXPECT_EQ(picker.temperatures[i].room.items, Numbers(1, 8));
  for (const TemperatureChoice& choice : picker.temperatures) {
    EXPECT_FALSE(choice.option.Chosen());
    EXPECT_EQ(choice.temperature.Text() + choice.room.Text(), "");
  }
}

TEST_F(PickerTypeTest, TheFourChoicesOfATemperatureModuleAreCalled) {
  const Items dutch = {"              °C in ruimte:", "Basis in ruimte:",
                       "              °C in alle ruimtes", "Basis in alle ruimtes"};
  const Items french = {"              °C ds pièce:", "Base ds pièce:",
                        "              °C ds toutes les pièces", "Base ds toutes les pièces"};
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(picker.temperatures[i].option.caption, dutch[i]);
  Begin(2, 0, 'R');
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(picker.temperatures[i].option.caption, french[i]);
}

TEST_F(PickerTypeTest, OneChoiceOfATemperatureModuleExcludesTheOthers) {
  PickTarget('A', Temperature);
  for (TemperatureChoice& chosen : picker.temperatures) {
    chosen.option.Choose();
    for (const TemperatureChoice& choice : picker.temperatures) {
      EXPECT_EQ(choice.option.Chosen(), &choice == &chosen);
    }
  }
}

TEST_F(PickerTypeTest, AnAudioInterfaceOffersZonesAndWaitsForOneOfTwo) {
  PickTarget('A', Audio);
  EXPECT_EQ(Below(), (Items{"main zone", "secondary zone", "output"}));
  EXPECT_EQ(picker.output.list.items, Numbers(1, 16));
  EXPECT_FALSE(picker.mainZone.Chosen());
  EXPECT_FALSE(picker.secondaryZone.Chosen());
  EXPECT_EQ(picker.mainZone.caption, "Hoofdzone");
  EXPECT_EQ(picker.secondaryZone.caption, "Nevenzone");
  Begin(2, 0, 'R');
  EXPECT_EQ(picker.mainZone.caption, "Zone principale");
  EXPECT_EQ(picker.secondaryZone.caption, "Zone secondaire");
}

TEST_F(PickerTypeTest, TheMainZoneOffersFifteenActions) {
  PickTarget('A', Audio);
  picker.mainZone.Choose();
  EXPECT_EQ(Below(), (Items{"main zone", "secondary zone", "output", "action"}));
  EXPECT_EQ(picker.action.list.items,
            (Items{"Uit", "Aan", "Toggle", "Vol +", "Vol -", "Bron +", "Treb +", "Treb -", "Bas +",
                   "Bas -", "BRON..", "VOL..", "TRE..", "BAS..", "BAL.."}));
  Begin(2, 0, 'R');
  PickTarget('A', Audio);
  picker.mainZone.Choose();
  EXPECT_EQ(picker.action.list.items,
            (Items{"Off", "On", "Toggle", "Vol +", "Vol -", "Source +", "Treb +", "Treb -", "Bas +",
                   "Bas -", "SOURCE..", "VOL..", "TRE..", "BAS..", "BAL.."}));
}

TEST_F(PickerTypeTest, TheSecondaryZoneOffersSevenActions) {
  PickTarget('A', Audio);
  picker.secondaryZone.Choose();
  EXPECT_EQ(picker.action.list.items,
            (Items{"Uit", "Aan", "Toggle", "Vol +", "Vol -", "VOL..", "BAL.."}));
  Begin(2, 0, 'R');
  PickTarget('A', Audio);
  picker.secondaryZone.Choose();
  EXPECT_EQ(picker.action.list.items,
            (Items{"Off", "On", "Toggle", "Vol +", "Vol -", "VOL..", "BAL.."}));
}

TEST_F(PickerTypeTest, AnActionWithTwoDotsNeedsAValue) {
  for (OptionField* zone : {&picker.mainZone, &picker.secondaryZone}) {
    PickTarget('A', Audio);
    zone->Choose();
    for (int i = 0; i < static_cast<int>(picker.action.list.items.size()); ++i) {
      picker.action.list.Pick(i);
      EXPECT_EQ(picker.value.list.visible, picker.action.list.Text().ends_with(".."))
          << picker.action.list.Text();
    }
    EXPECT_EQ(picker.value.list.items, Numbers(1, 16));
  }
}

TEST_F(PickerTypeTest, TheListsOfAnAudioInterfaceAreCalled) {
  for (const int language : {1, 2}) {
    Begin(language, 0, 'R');
    PickTarget('A', Audio);
    EXPECT_EQ(picker.output.label.caption, "Zone:");
    for (OptionField* zone : {&picker.mainZone, &picker.secondaryZone}) {
      zone->Choose();
      EXPECT_EQ(picker.action.label.caption, language == 1 ? "Actie:" : "Action:");
      Pick(picker.action.list, "VOL..");
      EXPECT_TRUE(picker.value.label.visible);
      EXPECT_EQ(picker.value.label.caption, language == 1 ? "Waarde:" : "Valeur:");
    }
  }
}

TEST_F(PickerTypeTest, AnotherActionClearsTheValue) {
  PickTarget('A', Audio);
  picker.mainZone.Choose();
  Pick(picker.action.list, "VOL..");
  picker.value.list.Pick(7);
  Pick(picker.action.list, "BAL..");
  EXPECT_TRUE(picker.value.list.visible);
  EXPECT_EQ(picker.value.list.Text(), "");
  picker.value.list.Pick(7);
  Pick(picker.action.list, "Toggle");
  EXPECT_FALSE(picker.value.list.visible);
  EXPECT_EQ(picker.value.list.Text(), "");
}

TEST_F(PickerTypeTest, TheOtherZoneClearsActionAndValue) {
  PickTarget('A', Audio);
  picker.output.list.Pick(2);
  picker.mainZone.Choose();
  Pick(picker.action.list, "VOL..");
  picker.value.list.Pick(7);
  picker.secondaryZone.Choose();
  EXPECT_FALSE(picker.mainZone.Chosen());
  EXPECT_EQ(picker.action.list.Text(), "");
  EXPECT_FALSE(picker.value.list.visible);
  EXPECT_EQ(picker.value.list.Text(), "");
  EXPECT_EQ(picker.output.list.Text(), "3");
}

TEST_F(PickerTypeTest, ASimulationOffersOnAndOff) {
  PickTarget('A', Simulation);
  EXPECT_EQ(Below(), (Items{"simulation on", "simulation off"}));
  EXPECT_FALSE(picker.simulationOn.Chosen());
  EXPECT_FALSE(picker.simulationOff.Chosen());
  EXPECT_EQ(picker.simulationOn.caption, "Simulatie aan");
  EXPECT_EQ(picker.simulationOff.caption, "Simulatie uit");
  picker.simulationOn.Choose();
  picker.simulationOff.Choose();
  EXPECT_FALSE(picker.simulationOn.Chosen());
  Begin(2, 0, 'R');
  EXPECT_EQ(picker.simulationOn.caption, "Simulation ON");
  EXPECT_EQ(picker.simulationOff.caption, "Simulation OFF");
}

TEST_F(PickerTypeTest, AnotherTypeHidesTheFieldsOfTheOneBefore) {
  for (int before = Relay; before <= Lumenza; ++before) {
    for (int after = Relay; after <= Lumenza; ++after) {
      PickTarget('A', after);
      const Items alone = Below();
      PickTarget('A', before);
      picker.type.Pick(after);
      EXPECT_EQ(Below(), alone) << before << " " << after;
      EXPECT_EQ(picker.output.list.Text() + picker.action.list.Text(), "");
    }
  }
}

TEST_F(PickerTypeTest, AnotherTypeClearsWhatWasChosen) {
  PickTarget('A', Relay);
  picker.output.list.Pick(3);
  picker.action.list.Pick(1);
  picker.type.Pick(RelayDc);
  EXPECT_FALSE(picker.Compose());
  picker.type.Pick(Simulation);
  picker.simulationOn.Choose();
  picker.type.Pick(Temperature);
  picker.type.Pick(Simulation);
  EXPECT_FALSE(picker.simulationOn.Chosen());
}

TEST_F(PickerTypeTest, TheFirstFourOutputsOfALumenzaModuleDim) {
  PickTarget('A', Lumenza);
  for (int output = 0; output < 8; ++output) {
    picker.output.list.Pick(output);
    EXPECT_EQ(picker.action.list.items, output < 4 ? WithPercentages(SwitchDutch) : SwitchDutch)
        << output;
    EXPECT_TRUE(picker.action.list.visible);
  }
  Begin(2, 0, 'R');
  PickTarget('A', Lumenza);
  for (int output = 0; output < 8; ++output) {
    picker.output.list.Pick(output);
    EXPECT_EQ(picker.action.list.items, output < 4 ? WithPercentages(SwitchFrench) : SwitchFrench);
  }
}

TEST_F(PickerTypeTest, AnOutputOfALumenzaModuleThatDoesNotDimCannotKeepAPercentage) {
  PickTarget('A', Lumenza);
  picker.output.list.Pick(3);
  Pick(picker.action.list, "50%");
  picker.output.list.Pick(4);
  EXPECT_EQ(picker.action.list.Text(), "");
  EXPECT_FALSE(picker.Compose());
  picker.action.list.Pick(7);
  EXPECT_FALSE(picker.Compose());
}

TEST_F(PickerTypeTest, AnOutputOfAnyOtherModuleLeavesTheActionAsItIs) {
  for (const int type : {Relay, Dimmer, RelayDc, Alarm}) {
    PickTarget('A', type);
    const Items actions = picker.action.list.items;
    picker.action.list.Pick(1);
    picker.output.list.Pick(2);
    EXPECT_EQ(picker.action.list.items, actions);
    EXPECT_EQ(picker.action.list.Index(), 1);
  }
}

TEST_F(PickerTypeTest, ACodeLeavesTheOtherOne) {
  PickLetter('Z');
  picker.action.list.Pick(11);
  picker.output.list.Pick(4);
  EXPECT_EQ(picker.action.list.Text(), "12");
  EXPECT_EQ(picker.output.list.Text(), "05");
}

TEST_F(PickerTypeTest, TheSameOutputOfALumenzaModuleAgainKeepsTheAction) {
  PickTarget('A', Lumenza);
  Pick(picker.output.list, "2");
  Pick(picker.action.list, "30%");
  Pick(picker.output.list, "2");
  EXPECT_EQ(picker.action.list.Text(), "30%");
  Pick(picker.output.list, "4");
  EXPECT_EQ(picker.action.list.Text(), "30%");
  Pick(picker.output.list, "6");
  EXPECT_EQ(picker.action.list.Text(), "");
  Pick(picker.action.list, "Toggle");
  Pick(picker.output.list, "6");
  EXPECT_EQ(picker.action.list.Text(), "Toggle");
}

TEST_F(PickerTypeTest, TheSameActionWithTwoDotsAgainKeepsTheValue) {
  PickTarget('A', Audio);
  picker.mainZone.Choose();
  Pick(picker.action.list, "VOL..");
  Pick(picker.value.list, "5");
  Pick(picker.action.list, "VOL..");
  EXPECT_EQ(picker.value.list.Text(), "5");
  Pick(picker.action.list, "TRE..");
  EXPECT_EQ(picker.value.list.Text(), "");
  Pick(picker.value.list, "6");
  Pick(picker.action.list, "Uit");
  Pick(picker.action.list, "TRE..");
  EXPECT_EQ(picker.value.list.Text(), "");
  EXPECT_TRUE(picker.value.list.visible);
}

}  // namespace
}  // namespace bkconf
