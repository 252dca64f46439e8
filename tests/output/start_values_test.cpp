#include <gtest/gtest.h>

#include "output/output_screen.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

/// With what value the channels of a dimmer, or of a Lumenza module, begin.
class StartValuesTest : public SessionTest, public testing::WithParamInterface<int> {
 protected:
  void Open(int language = 1) {
    StartWithImage(GetParam(), language);
    OpenAgain();
    MainWindow.send.enabled = false;
  }
  static void OpenAgain() {
    ShownAction(GetParam() == 1 ? Action::DimStartValues : Action::OutputFunctions).Click();
  }
  static std::string Shown(int row) {
    return OutputScreen.startValues.At(row, 0) + ": " + OutputScreen.startValues.At(row, 1);
  }
};

TEST_P(StartValuesTest, CaptionsAreDutchOrFrench) {
  Open(1);
  EXPECT_EQ(OutputScreen.startGroup.caption, "Beginwaarde dimmer:");
  EXPECT_EQ(OutputScreen.startEditGroup.caption, "Beginwaarde wijzigen:");
  EXPECT_EQ(OutputScreen.channelLabel.caption, "Dim kanaal:");
  EXPECT_EQ(OutputScreen.startLabel.caption, "Beginwaarde:");
  EXPECT_EQ(OutputScreen.confirmStart.caption, "Bevestigen");
  EXPECT_EQ(OutputScreen.leave.caption, "Verlaten");
  EXPECT_EQ(OutputScreen.startValues.columns[0].caption, "Dim kanaal Nr:");
  EXPECT_EQ(OutputScreen.startValues.columns[1].caption, "Waarde");
  Open(2);
  EXPECT_EQ(OutputScreen.startGroup.caption, "Valeur début dimmer");
  EXPECT_EQ(OutputScreen.startEditGroup.caption, "Editer la valeur début:");
  EXPECT_EQ(OutputScreen.channelLabel.caption, "Canal dim:");
  EXPECT_EQ(OutputScreen.startLabel.caption, "Valeur début:");
  EXPECT_EQ(OutputScreen.confirmStart.caption, "Confirmer");
  EXPECT_EQ(OutputScreen.leave.caption, "Quitter");
  EXPECT_EQ(OutputScreen.startValues.columns[0].caption, "Canal dim Nr:");
  EXPECT_EQ(OutputScreen.startValues.columns[1].caption, "Valeur");
}

TEST_P(StartValuesTest, OpensWithTheStartValuesAndEmptyFields) {
  Open();
  EXPECT_TRUE(OutputScreen.shown);
  EXPECT_TRUE(OutputScreen.startGroup.visible && OutputScreen.startEditGroup.visible);
  EXPECT_FALSE(OutputScreen.functionsGroup.visible || OutputScreen.editGroup.visible);
  EXPECT_EQ(OutputScreen.enter, &OutputScreen.confirmStart);
  OutputScreen.channel.Pick(0);
  OutputScreen.start.Pick(0);
  OpenAgain();
  EXPECT_EQ(OutputScreen.channel.Text() + OutputScreen.start.Text(), "");
}

TEST_P(StartValuesTest, OffersFourChannelsAndNineValues) {
  Open();
  EXPECT_EQ(OutputScreen.channel.items, (std::vector<std::string>{"1", "2", "3", "4"}));
  EXPECT_EQ(OutputScreen.start.items, (std::vector<std::string>{"10%", "20%", "30%", "40%", "50%",
                                                                "60%", "70%", "80%", "90%"}));
}

TEST_P(StartValuesTest, ShowsTheCellsTimesTenAndChangesNone) {
  StartWithImage(GetParam());
  ButtonImage[123] = 1;
  ButtonImage[124] = "9";
  ButtonImage[125] = 42;
  ButtonImage[126] = Cell();
  const Snapshot before = TakeSnapshot();
  OpenAgain();
  EXPECT_EQ(Shown(1), "1: 10 %");
  EXPECT_EQ(Shown(2), "2: 90 %");
  EXPECT_EQ(Shown(3), "3: 420 %");
  EXPECT_EQ(Shown(4), "4: 0 %");
  ExpectOnlyChanged(before, {});
}

TEST_P(StartValuesTest, OnlyALumenzaModuleHasFourMoreOutputsThatDoNotDim) {
  for (const int language : {1, 2}) {
    Open(language);
    EXPECT_EQ(OutputScreen.startValues.Rows(), GetParam() == 11 ? 8 : 4);
    if (GetParam() != 11) continue;
    const std::string switching = language == 1 ? "AAN/UIT" : "ON/OFF";
    for (int confirms = 0; confirms < 2; ++confirms) {
      EXPECT_EQ(Shown(5), "5: " + switching);
      EXPECT_EQ(Shown(6), "6: " + switching);
      EXPECT_EQ(Shown(7), "7: " + switching);
      EXPECT_EQ(Shown(8), "8: " + switching);
      OutputScreen.channel.Pick(3);
      OutputScreen.start.Pick(0);
      OutputScreen.confirmStart.Click();
    }
  }
}

TEST_P(StartValuesTest, AConfirmStoresTheValueInTensOfPercent) {
  for (int channel = 1; channel <= 4; ++channel) {
    for (const int tens : {1, 5, 9}) {
      Open();
      const Snapshot before = TakeSnapshot();
      OutputScreen.channel.Pick(channel - 1);
      OutputScreen.start.Pick(tens - 1);
      OutputScreen.confirmStart.Click();
      EXPECT_EQ(ButtonImage[122 + channel], Cell(tens));
      EXPECT_EQ(Shown(channel), std::to_string(channel) + ": " + std::to_string(tens) + "0 %");
      EXPECT_TRUE(MainWindow.send.enabled);
      ExpectOnlyChanged(before, {"ButtonImage[" + std::to_string(122 + channel) + "]"});
    }
  }
}

TEST_P(StartValuesTest, IncompleteFieldsStoreNothing) {
  Open(2);
  const auto expectRefused = [] {
    const Snapshot before = TakeSnapshot();
    OutputScreen.confirmStart.Click();
    ExpectOnlyChanged(before, {});
    EXPECT_FALSE(MainWindow.send.enabled);
    EXPECT_EQ(OutputScreen.startValues.columns[0].caption, "Canal dim Nr:");
  };
  expectRefused();
  OutputScreen.channel.Pick(0);
  expectRefused();
  OpenAgain();
  OutputScreen.start.Pick(0);
  expectRefused();
}

TEST_P(StartValuesTest, ConfirmWritesNothingWhileTheScreenOrItsAreaIsNotShown) {
  Open();
  OutputScreen.channel.Pick(0);
  OutputScreen.start.Pick(0);
  OutputScreen.output.Pick(0);
  OutputScreen.function.Pick(0);
  const Snapshot before = TakeSnapshot();
  // The functions of outputs are another area, of other kinds.
  OutputScreen.confirm.Click();
  OutputScreen.leave.Click();
  OutputScreen.confirmStart.Click();
  OutputScreen.shown = true;
  OutputScreen.startEditGroup.visible = false;
  OutputScreen.confirmStart.Click();
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(MainWindow.send.enabled);
}

TEST_P(StartValuesTest, AfterAConfirmTheFrenchCaptionIsAnotherOneUntilTheNextOpening) {
  Open(2);
  OutputScreen.channel.Pick(0);
  OutputScreen.start.Pick(0);
  OutputScreen.confirmStart.Click();
  EXPECT_EQ(OutputScreen.startValues.columns[0].caption, "Canal dim N°:");
  EXPECT_EQ(OutputScreen.startValues.columns[1].caption, "Valeur");
  EXPECT_EQ(OutputScreen.startValues.columns[0].width, 1200);
  EXPECT_EQ(OutputScreen.startValues.columns[1].width, 800);
  OpenAgain();
  EXPECT_EQ(OutputScreen.startValues.columns[0].caption, "Canal dim Nr:");
  Open(1);
  OutputScreen.channel.Pick(0);
  OutputScreen.start.Pick(0);
  OutputScreen.confirmStart.Click();
  EXPECT_EQ(OutputScreen.startValues.columns[0].caption, "Dim kanaal Nr:");
}

INSTANTIATE_TEST_SUITE_P(Kinds, StartValuesTest, testing::Values(1, 11),
                         [](const auto& kind) { return "kind" + std::to_string(kind.param); });

TEST(OutputScreenTest, FieldsHaveNamesOfTheirOwn) {
  std::set<std::string> names;
  for (const Field* field : OutputScreen.fields) {
    EXPECT_TRUE(names.insert(field->name).second) << field->name;
  }
}

}  // namespace
}  // namespace bkconf
