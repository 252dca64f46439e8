// The entry `nieuw`: what it empties, and what it leaves.
#include <gtest/gtest.h>

#include <algorithm>

#include "image/commands.h"
#include "image/tables.h"
#include "link/link_ticks.h"
#include "link/transfer.h"
#include "special/temperature_screen.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

/// The value of a flag that is set.
const Cell Set = 1;

class NewModuleTest : public SessionTest, public testing::WithParamInterface<int> {
 protected:
  NewModuleTest() {
    Start();
    Plug(GetParam());
    ReadModule();
  }
};

TEST_P(NewModuleTest, TouchesNoTableButTheNumberOfDetectorsAndOnlyItsSixFlags) {
  for (const Flag& flag : StartUpFlags) *flag.cell = Set;
  AlarmImage[123] = 7;
  RxLine = "STOP";
  const Snapshot before = TakeSnapshot();
  MainWindow.nieuw.Click();
  ExpectOnlyChanged(before, {"AlarmImage[123]", "ActiveModuleType", "RxLine", "LcdScreen1Dirty",
                             "LcdScreen2Dirty", "LcdScreen1Loaded", "LcdScreen2Loaded",
                             "LcdWeekdayLoaded", "LcdWeekdayDirty"});
  EXPECT_EQ(AlarmImage[123], Cell(0));
  EXPECT_EQ(ActiveModuleType, Cell(99));
  EXPECT_EQ(RxLine, "");
}

TEST_P(NewModuleTest, ShowsTheGeneralGroupEmptyAndDisabled) {
  MainWindow.nieuw.Click();
  EXPECT_TRUE(MainWindow.general.frame.visible);
  EXPECT_FALSE(MainWindow.displayTemperature.frame.visible);
  EXPECT_FALSE(MainWindow.alarm.frame.visible);
  EXPECT_FALSE(MainWindow.special.frame.visible);
  EXPECT_TRUE(MainWindow.general.address.visible);
  EXPECT_FALSE(MainWindow.general.address.enabled);
  EXPECT_EQ(MainWindow.general.address.Text(), "");
  EXPECT_TRUE(MainWindow.general.addressLabel.visible);
  EXPECT_FALSE(MainWindow.general.version.visible);
}

TEST_P(NewModuleTest, HidesTheActionButtonsAndTheFieldsOfTheKind) {
  MainWindow.nieuw.Click();
  EXPECT_TRUE(VisibleActions().empty());
  EXPECT_FALSE(MainWindow.roomCount.visible);
  EXPECT_FALSE(MainWindow.tolerance.visible);
  EXPECT_FALSE(MainWindow.detectorCount.visible);
}

TEST_P(NewModuleTest, EmptiesTheStatusAndLeavesConnectOnly) {
  MainWindow.nieuw.Click();
  EXPECT_EQ(MainWindow.status.caption, "");
  EXPECT_TRUE(MainWindow.connect.Usable());
  EXPECT_FALSE(MainWindow.send.Usable());
}

TEST_P(NewModuleTest, ClearsTheSelectionWithItsCaptionAndPicture) {
  MainWindow.nieuw.Click();
  EXPECT_EQ(MainWindow.moduleList.Text(), "");
  EXPECT_EQ(MainWindow.moduleList.Index(), -1);
  EXPECT_TRUE(MainWindow.moduleList.enabled);
  EXPECT_EQ(MainWindow.moduleCaption.caption, "");
  EXPECT_FALSE(MainWindow.pictureGroup.visible);
  EXPECT_FALSE(MainWindow.moreInfo.visible);
  EXPECT_FALSE(MainWindow.infoInductive.visible);
}

TEST_P(NewModuleTest, LeavesNothingToSaveAndSetsTheTitleBack) {
  MainWindow.Bewaren.enabled = true;
  MainWindow.title = "TREVAN BK-CONF  -  house/a.BK1";
  MainWindow.nieuw.Click();
  EXPECT_FALSE(MainWindow.Bewaren.enabled);
  EXPECT_FALSE(MainWindow.Bewaren_als.enabled);
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
}

TEST_P(NewModuleTest, HidesTheBarOfAReadThatEndedShort) {
  Plug(GetParam(), virtual_module::Fault::ShortStream);
  ReadModule();
  ASSERT_TRUE(MainWindow.transferBar.visible);
  MainWindow.nieuw.Click();
  EXPECT_FALSE(MainWindow.transferBar.visible);
}

TEST_P(NewModuleTest, TheNextConnectAcceptsAnyKind) {
  for (const int kind : AllKinds) {
    MainWindow.nieuw.Click();
    Plug(kind);
    ReadModule();
    EXPECT_EQ(ActiveCode(), kind);
    EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  }
  EXPECT_TRUE(messages.told.empty());
}

TEST_P(NewModuleTest, ASecondTimeChangesNothingMore) {
  MainWindow.nieuw.Click();
  const Snapshot before = TakeSnapshot();
  MainWindow.nieuw.Click();
  ExpectOnlyChanged(before, {});
  EXPECT_TRUE(MainWindow.general.frame.visible);
}

class NewBehindAnUnseenReadTest : public SessionTest {};

/// The temperatures are left while they come, and end short of the last room.
TEST_F(NewBehindAnUnseenReadTest, NewTakesTheBarBack) {
  Start();
  Plug(2);
  ReadModule();
  Plug(2, virtual_module::Fault::ShortStream);
  ShownAction(Action::LiveTemperatures).Click();
  ASSERT_TRUE(clock.RunUntil([] { return TemperatureScreen.shown; }, 60'000));
  TemperatureScreen.leave.Click();
  FinishTransfer();
  ASSERT_EQ(Window.bar, &TemperatureScreen.bar);
  MainWindow.nieuw.Click();
  EXPECT_EQ(Window.bar, &MainWindow.transferBar);
  EXPECT_FALSE(MainWindow.transferBar.visible || TemperatureScreen.bar.visible);
}

/// A display's table frees the window at its last cell, while the module's last line is on its way.
class NewBehindADisplayTest : public SessionTest {
 protected:
  NewBehindADisplayTest() {
    Start();
    Plug(3);
    ReadModule();
    StartRequest(Read1);
    FinishTransfer();
  }
  static bool AnyLinkTick() {
    return std::any_of(LinkTicks.begin(), LinkTicks.end(),
                       [](const Tick* tick) { return tick->Enabled(); });
  }
};

TEST_F(NewBehindADisplayTest, NewWaitsForNoLastLine) {
  ASSERT_TRUE(AnyLinkTick());
  MainWindow.nieuw.Click();
  EXPECT_FALSE(AnyLinkTick());
  const Snapshot before = TakeSnapshot();
  clock.Advance(1000);
  ExpectOnlyChanged(before, {});
}

TEST_F(NewBehindADisplayTest, APortChangeWaitsForNoLastLine) {
  ASSERT_TRUE(AnyLinkTick());
  MainWindow.p2.Click();
  EXPECT_FALSE(AnyLinkTick());
  EXPECT_FALSE(line.IsOpen());
}

INSTANTIATE_TEST_SUITE_P(Kinds, NewModuleTest, testing::ValuesIn(AllKinds),
                         [](const auto& kind) { return "kind" + std::to_string(kind.param); });

}  // namespace
}  // namespace bkconf
