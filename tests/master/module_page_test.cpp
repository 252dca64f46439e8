#include "master/module_page_test.h"

#include <gtest/gtest.h>

#include "shell/module_file.h"

namespace bkconf {
namespace {

class MasterPageTest : public ModulePageTest {};

TEST_F(MasterPageTest, IsHiddenUntilItsButtonIsPressedAndStaysThen) {
  StartWithImage(9);
  ExpectShown(false, false, false);
  const Snapshot before = TakeSnapshot();
  OpenPage();
  ExpectShown(true, false, false);
  OpenPage();
  ExpectShown(true, false, false);
  ExpectOnlyChanged(before, {});
}

TEST_F(MasterPageTest, SelectsTheModelOfTheMaster) {
  StartWithImage(9);
  MainWindow.moduleList.Pick(0);
  EXPECT_NE(MainWindow.moduleList.Text(), "KR7110");
  OpenPage();
  EXPECT_EQ(MainWindow.moduleList.Text(), "KR7110");
  EXPECT_EQ(MainWindow.moduleCaption.caption, "Mastermodule");
  ExpectShown(true, false, false);
}

TEST_F(MasterPageTest, CaptionsAreDutchOrFrench) {
  struct Row {
    const std::string* text;
    std::string dutch;
    std::string french;
  };
  const std::vector<Row> rows = {
      {&page.page.caption, "Configuratie:", "Configuration:"},
      {&page.listLabel.caption, "Aanwezige modules:", "Modules présents:"},
      {&page.scan.caption, "Automatische scanning", "Scanning automatique"},
      {&page.modules.toolTip, "Dubbelklik om te editeren !", "Double-clicker pour éditer !"},
      {&page.clockGroup.caption, "Maandelijkse klokaanpassing:", "Horloge:"},
      {&page.clockText.caption, "Elke 15° van de maand wordt klok aangepast met",
       "Tous les mois, le 15° l'horloge est corrigée avec:"},
      {&page.downLabel.caption, "minuten aftellen", "minutes en moins"},
      {&page.upLabel.caption, "minuten bijtellen", "minutes en plus"},
      {&page.addGroup.caption, "Toevoegen:", "Ajouter:"},
      {&page.addHeading.caption, "Module             Type", "Module             Type"},
      {&page.addConfirm.caption, "Bevestigen", "Confirmer"},
      {&page.addLeave.caption, "Verlaten", "Quitter"},
      {&page.deleteGroup.caption, "Wissen:", "Effacer:"},
      {&page.deleteQuestion.caption, "Module wissen?", "Effacer le module?"},
      {&page.deleteYes.caption, "Ja", "Oui"},
      {&page.deleteNo.caption, "Nee", "Non"},
  };
  Open({}, 1);
  for (const Row& row : rows) EXPECT_EQ(*row.text, row.dutch);
  Open({}, 2);
  for (const Row& row : rows) EXPECT_EQ(*row.text, row.french);
}

/// What hides the page, with a panel open on it.
class HidingTest : public ModulePageTest, public testing::WithParamInterface<bool> {
 protected:
  void OpenWithPanel() {
    Open({{'A', 0}});
    page.modules.DoubleClick(GetParam() ? 1 : 2, 1);
    ExpectShown(true, !GetParam(), GetParam());
  }
};

TEST_P(HidingTest, PickingAModelHidesThePage) {
  OpenWithPanel();
  MainWindow.moduleList.Pick(2);
  ExpectShown(false, false, false);
}

TEST_P(HidingTest, SendHidesThePage) {
  OpenWithPanel();
  MainWindow.send.enabled = true;
  MainWindow.send.Click();
  ExpectShown(false, false, false);
}

TEST_P(HidingTest, ConnectHidesThePage) {
  OpenWithPanel();
  MainWindow.connect.Click();
  ExpectShown(false, false, false);
}

TEST_P(HidingTest, NewHidesThePage) {
  OpenWithPanel();
  MainWindow.nieuw.Click();
  ExpectShown(false, false, false);
}

TEST_P(HidingTest, OpeningAFileHidesThePage) {
  OpenWithPanel();
  SaveModuleAs("/house", "Master");
  ExpectShown(true, !GetParam(), GetParam());
  OpenModule("/house/Master.BK1");
  ExpectShown(false, false, false);
}

INSTANTIATE_TEST_SUITE_P(Panels, HidingTest, testing::Bool(),
                         [](const auto& asks) { return asks.param ? "delete" : "add"; });

/// The monthly correction of the clock.
class CorrectionTest : public ModulePageTest {
 protected:
  void OpenWith(const Cell& down, const Cell& up) {
    StartWithImage(9);
    ButtonImage[120] = down;
    ButtonImage[121] = up;
    const Snapshot before = TakeSnapshot();
    OpenPage();
    ExpectOnlyChanged(before, {});
    MainWindow.send.enabled = false;
  }
  void ExpectLists(const std::string& down, const std::string& up) const {
    EXPECT_EQ(page.down.Text(), down);
    EXPECT_EQ(page.up.Text(), up);
  }
};

TEST_F(CorrectionTest, OffersNoneToFifteenMinutes) {
  OpenWith(0, 0);
  std::vector<std::string> minutes;
  for (int each = 0; each <= 15; ++each) minutes.push_back(std::to_string(each));
  EXPECT_EQ(page.down.items, minutes);
  EXPECT_EQ(page.up.items, minutes);
}

TEST_F(CorrectionTest, ShowsTheMinutesOfTheImage) {
  for (int minutes = 0; minutes <= 15; ++minutes) {
    OpenWith(minutes, 0);
    ExpectLists(std::to_string(minutes), "0");
    OpenWith(0, std::to_string(minutes));
    ExpectLists("0", std::to_string(minutes));
  }
}

TEST_F(CorrectionTest, ShowsBothWhereAnImageHoldsBoth) {
  OpenWith(3, 7);
  ExpectLists("3", "7");
}

TEST_F(CorrectionTest, WhatIsNoCorrectionShowsAsZeroAndStays) {
  for (const Cell& cell : {Cell(42), Cell(), Cell(16), Cell(255), Cell(-1), Cell("*")}) {
    OpenWith(cell, cell);
    ExpectLists("0", "0");
  }
}

TEST_F(CorrectionTest, MinutesOffEndMinutesOn) {
  OpenWith(0, 3);
  const Snapshot before = TakeSnapshot();
  page.down.Pick(5);
  EXPECT_EQ(ButtonImage[120], Cell(5));
  EXPECT_EQ(ButtonImage[121], Cell(0));
  ExpectLists("5", "0");
  EXPECT_TRUE(MainWindow.send.enabled);
  ExpectOnlyChanged(before, {"ButtonImage[120]", "ButtonImage[121]", "MasterBaseDirty"});
  EXPECT_EQ(MasterBaseDirty, Cell(1));
}

TEST_F(CorrectionTest, MinutesOnEndMinutesOff) {
  OpenWith(3, 0);
  const Snapshot before = TakeSnapshot();
  page.up.Pick(15);
  EXPECT_EQ(ButtonImage[120], Cell(0));
  EXPECT_EQ(ButtonImage[121], Cell(15));
  ExpectLists("0", "15");
  EXPECT_TRUE(MainWindow.send.enabled);
  ExpectOnlyChanged(before, {"ButtonImage[120]", "ButtonImage[121]", "MasterBaseDirty"});
}

TEST_F(CorrectionTest, ZeroLeavesTheOtherCorrection) {
  OpenWith(3, 7);
  Snapshot before = TakeSnapshot();
  page.down.Pick(0);
  EXPECT_EQ(ButtonImage[120], Cell(0));
  ExpectLists("0", "7");
  EXPECT_TRUE(MainWindow.send.enabled);
  ExpectOnlyChanged(before, {"ButtonImage[120]", "MasterBaseDirty"});
  OpenWith(3, 7);
  before = TakeSnapshot();
  page.up.Pick(0);
  ExpectLists("3", "0");
  ExpectOnlyChanged(before, {"ButtonImage[121]", "MasterBaseDirty"});
}

TEST_F(CorrectionTest, ANewModulesCellsBecomeNumbersWithAPick) {
  OpenWith(42, 42);
  page.up.Pick(2);
  EXPECT_EQ(ButtonImage[120], Cell(0));
  EXPECT_EQ(ButtonImage[121], Cell(2));
}

}  // namespace
}  // namespace bkconf
