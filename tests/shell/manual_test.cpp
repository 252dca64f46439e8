#include "shell/manual.h"

#include <gtest/gtest.h>

#include <ostream>
#include <tuple>

#include "image/file_lines.h"
#include "link/transfer.h"
#include "platform/runtime_error.h"
#include "shell/module_file.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

struct ManualRow {
  const char* name;
  int model;  ///< in the selection list, from 0
  ButtonField MainWindowScreen::*button;
  const char* dutch;
  const char* french;
};

/// In the names and messages of the tests.
void PrintTo(const ManualRow& row, std::ostream* out) {
  *out << row.name;
}

/// Written down apart from the catalogue.
constexpr ManualRow Rows[] = {
    {"relay", 0, &MainWindowScreen::moreInfo, "relnl.pdf", "relfr.pdf"},
    {"relayDc", 1, &MainWindowScreen::moreInfo, "relDCnl.pdf", "relDCfr.pdf"},
    {"master", 2, &MainWindowScreen::moreInfo, "masnl.pdf", "masfr.pdf"},
    {"temperature", 3, &MainWindowScreen::moreInfo, "temnl.pdf", "temfr.pdf"},
    {"display", 4, &MainWindowScreen::moreInfo, "lcdnl.pdf", "lcdfr.pdf"},
    {"inductive", 5, &MainWindowScreen::infoInductive, "indnl.pdf", "indfr.pdf"},
    {"capacitive", 5, &MainWindowScreen::infoCapacitive, "capnl.pdf", "capfr.pdf"},
    {"analogue", 5, &MainWindowScreen::infoAnalogue, "010nl.pdf", "010fr.pdf"},
    {"alarm", 6, &MainWindowScreen::moreInfo, "alarmnl.pdf", "alarmfr.pdf"},
    {"audio", 7, &MainWindowScreen::moreInfo, "audionl.pdf", "audiofr.pdf"},
    {"simulation", 8, &MainWindowScreen::moreInfo, "simunl.pdf", "simufr.pdf"},
    {"relayInterface", 9, &MainWindowScreen::moreInfo, "modnl.pdf", "modfr.pdf"},
    {"lumenza", 10, &MainWindowScreen::moreInfo, "lumnl.pdf", "lumfr.pdf"},
    {"infrared", 11, &MainWindowScreen::moreInfo, "irnl.pdf", "irfr.pdf"},
};

struct GroupRow {
  int kind;  ///< a kind that is shown in the group
  GroupField* frame;
  Cell* flag;
  const char* flagName;
};

std::vector<GroupRow> Groups() {
  return {{0, &MainWindow.general.frame, &GeneralGroupWasVisible, "GeneralGroupWasVisible"},
          {2, &MainWindow.displayTemperature.frame, &DisplayTemperatureGroupWasVisible,
           "DisplayTemperatureGroupWasVisible"},
          {5, &MainWindow.alarm.frame, &AlarmGroupWasVisible, "AlarmGroupWasVisible"},
          {8, &MainWindow.special.frame, &SpecialGroupWasVisible, "SpecialGroupWasVisible"}};
}

/// The window as it is without a manual, with this group of module data.
void ExpectNoManual(const GroupField& shown) {
  EXPECT_FALSE(MainWindow.manual.visible);
  EXPECT_FALSE(MainWindow.closeManual.Usable());
  EXPECT_TRUE(MainWindow.moduleList.enabled);
  EXPECT_TRUE(MainWindow.actionGroup.visible);
  for (const GroupRow& row : Groups()) {
    EXPECT_EQ(row.frame->visible, row.frame == &shown) << row.flagName;
    EXPECT_EQ(*row.flag, Cell(0)) << row.flagName;
  }
}

class ManualFileTest : public SessionTest,
                       public testing::WithParamInterface<std::tuple<ManualRow, int>> {};

TEST_P(ManualFileTest, ShowsTheManualOfTheModelInTheLanguage) {
  const auto& [row, language] = GetParam();
  Start(language);
  MainWindow.moduleList.Pick(row.model);
  (MainWindow.*row.button).Click();
  EXPECT_TRUE(MainWindow.manual.visible);
  EXPECT_EQ(MainWindow.manual.file, language == 1 ? row.dutch : row.french);
  EXPECT_TRUE(MainWindow.closeManual.Usable());
  EXPECT_EQ(MainWindow.closeManual.caption, language == 1 ? "Sluiten" : "Fermer");
  EXPECT_FALSE(MainWindow.moduleList.enabled);
  EXPECT_TRUE(messages.told.empty());
}

INSTANTIATE_TEST_SUITE_P(Manuals, ManualFileTest,
                         testing::Combine(testing::ValuesIn(Rows), testing::Values(1, 2)),
                         [](const auto& test) {
                           return std::string(std::get<0>(test.param).name) +
                                  (std::get<1>(test.param) == 1 ? "Dutch" : "French");
                         });

class ManualTest : public SessionTest {
 protected:
  ManualTest() { Start(); }

  void Open(int kind) {
    files.content["/house/a.BK1"] = FileOf(kind);
    OpenModule("/house/a.BK1");
  }
};

TEST_F(ManualTest, NoneIsShownAtTheStartAndWithoutAModelNoneCanBe) {
  ExpectNoManual(MainWindow.general.frame);
  for (const ButtonField* info : {&MainWindow.moreInfo, &MainWindow.infoInductive,
                                  &MainWindow.infoCapacitive, &MainWindow.infoAnalogue}) {
    EXPECT_FALSE(info->Usable()) << info->name;
    info->Click();
  }
  ShowManual(0);
  ExpectNoManual(MainWindow.general.frame);
}

TEST_F(ManualTest, HidesTheGroupsNotesTheOneThatWasShownAndTouchesNothingElse) {
  for (const GroupRow& row : Groups()) {
    Open(row.kind);
    const Snapshot before = TakeSnapshot();
    MainWindow.moreInfo.Click();
    ExpectOnlyChanged(before, {row.flagName});
    EXPECT_EQ(*row.flag, Cell(1));
    for (const GroupRow& each : Groups()) EXPECT_FALSE(each.frame->visible) << each.flagName;
    EXPECT_FALSE(MainWindow.actionGroup.visible);
    EXPECT_FALSE(MainWindow.pictureGroup.visible);
    EXPECT_FALSE(MainWindow.moduleList.enabled);
    MainWindow.closeManual.Click();
  }
}

TEST_F(ManualTest, ClosedItLeavesEverythingAsItWas) {
  for (const GroupRow& row : Groups()) {
    Open(row.kind);
    const Snapshot before = TakeSnapshot();
    MainWindow.moreInfo.Click();
    MainWindow.closeManual.Click();
    ExpectNoManual(*row.frame);
    EXPECT_TRUE(MainWindow.pictureGroup.visible);
    ExpectOnlyChanged(before, {});
  }
}

TEST_F(ManualTest, ShownAndClosedTwiceItStillLeavesEverythingAsItWas) {
  Open(5);
  for (int time = 0; time < 2; ++time) {
    MainWindow.moreInfo.Click();
    MainWindow.closeManual.Click();
    ExpectNoManual(MainWindow.alarm.frame);
  }
}

TEST_F(ManualTest, ShownAgainWhileItIsShownTheGroupStillComesBack) {
  Open(5);
  ShowManual(0);
  ShowManual(0);
  CloseManual();
  ExpectNoManual(MainWindow.alarm.frame);
}

TEST_F(ManualTest, EveryGroupThatWasShownComesBackAndNoOther) {
  MainWindow.moduleList.Pick(0);
  MainWindow.general.frame.visible = false;
  MainWindow.alarm.frame.visible = MainWindow.special.frame.visible = true;
  MainWindow.moreInfo.Click();
  EXPECT_EQ(GeneralGroupWasVisible, Cell(0));
  EXPECT_EQ(AlarmGroupWasVisible, Cell(1));
  EXPECT_EQ(SpecialGroupWasVisible, Cell(1));
  MainWindow.closeManual.Click();
  EXPECT_FALSE(MainWindow.general.frame.visible);
  EXPECT_FALSE(MainWindow.displayTemperature.frame.visible);
  EXPECT_TRUE(MainWindow.alarm.frame.visible);
  EXPECT_TRUE(MainWindow.special.frame.visible);
}

TEST_F(ManualTest, ThePictureComesBackWhereAModelIsSelected) {
  MainWindow.moduleList.Pick(0);
  MainWindow.moreInfo.Click();
  MainWindow.closeManual.Click();
  EXPECT_TRUE(MainWindow.pictureGroup.visible);
  MainWindow.moreInfo.Click();
  MainWindow.moduleList.Clear();
  MainWindow.closeManual.Click();
  EXPECT_FALSE(MainWindow.pictureGroup.visible);
}

TEST_F(ManualTest, TheModelCannotBeChangedWhileItIsShown) {
  MainWindow.moduleList.Pick(0);
  MainWindow.moreInfo.Click();
  MainWindow.moduleList.Pick(3);
  EXPECT_EQ(MainWindow.moduleList.Text(), "KR7021/KR8021");
  MainWindow.closeManual.Click();
  MainWindow.moduleList.Pick(3);
  EXPECT_EQ(MainWindow.moduleList.Text(), "KR7150");
}

TEST_F(ManualTest, IsThatOfTheModelInTheListNotOfTheImage) {
  Open(5);
  MainWindow.moduleList.Pick(2);
  MainWindow.moreInfo.Click();
  EXPECT_EQ(MainWindow.manual.file, "masnl.pdf");
  MainWindow.closeManual.Click();
  ExpectNoManual(MainWindow.alarm.frame);
}

TEST_F(ManualTest, CannotBeShownDuringATransfer) {
  Plug(1);
  MainWindow.moduleList.Pick(5);
  MainWindow.connect.Click();
  for (const ButtonField* info : {&MainWindow.moreInfo, &MainWindow.infoInductive,
                                  &MainWindow.infoCapacitive, &MainWindow.infoAnalogue}) {
    EXPECT_FALSE(info->Usable()) << info->name;
    info->Click();
    EXPECT_FALSE(MainWindow.manual.visible);
  }
  FinishTransfer();
  MainWindow.infoAnalogue.Click();
  EXPECT_EQ(MainWindow.manual.file, "010nl.pdf");
}

TEST_F(ManualTest, AFileOpenedBehindAManualIsShownWithoutIt) {
  for (const GroupRow& first : Groups()) {
    for (const GroupRow& second : Groups()) {
      Open(first.kind);
      MainWindow.moreInfo.Click();
      MainWindow.openen.Click();
      Open(second.kind);
      ExpectNoManual(*second.frame);
      EXPECT_TRUE(MainWindow.pictureGroup.visible);
      MainWindow.closeManual.Click();
      ExpectNoManual(*second.frame);
    }
  }
}

TEST_F(ManualTest, AFileOfAnUnknownTypeOpenedBehindAManualShowsTheGroupThatWasThere) {
  Open(5);
  MainWindow.moreInfo.Click();
  files.content["/house/b.BK1"] = FileOfLines("abc", 164);
  OpenModule("/house/b.BK1");
  ExpectNoManual(MainWindow.alarm.frame);
  EXPECT_TRUE(MainWindow.pictureGroup.visible);
}

TEST_F(ManualTest, NewBehindAManualLeavesTheEmptyWindow) {
  for (const GroupRow& row : Groups()) {
    Open(row.kind);
    MainWindow.moreInfo.Click();
    MainWindow.nieuw.Click();
    ExpectNoManual(MainWindow.general.frame);
    EXPECT_FALSE(MainWindow.pictureGroup.visible);
    EXPECT_EQ(MainWindow.moduleList.Text(), "");
  }
}

TEST_F(ManualTest, AFileCanBeSavedBehindAManual) {
  Open(5);
  MainWindow.moreInfo.Click();
  files.content.erase("/house/a.BK1");
  MainWindow.Bewaren.Click();
  EXPECT_EQ(files.content["/house/a.BK1"], FileOf(5));
  EXPECT_TRUE(MainWindow.manual.visible);
  MainWindow.closeManual.Click();
  ExpectNoManual(MainWindow.alarm.frame);
}

}  // namespace
}  // namespace bkconf
