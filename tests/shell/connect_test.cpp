// The entry Connect: what it clears, what it locks, and how it ends.
#include <gtest/gtest.h>

#include "image/tables.h"
#include "link/link_ticks.h"
#include "link/transfer.h"
#include "session/settings.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

/// The value of a flag that is set.
const Cell Set = 1;

class ConnectTest : public SessionTest {
 protected:
  void SetAllFlags() {
    for (const Flag& flag : StartUpFlags) *flag.cell = Set;
  }

  /// Everything that a transfer locks is locked.
  static void ExpectLocked() {
    for (const MenuField* menu :
         {&MainWindow.bestand, &MainWindow.taal, &MainWindow.settings, &MainWindow.Info}) {
      EXPECT_FALSE(menu->enabled) << menu->name;
    }
    EXPECT_FALSE(MainWindow.moduleList.enabled);
    EXPECT_FALSE(MainWindow.connect.enabled);
    EXPECT_FALSE(MainWindow.send.enabled);
    for (const auto& button : MainWindow.actionButtons) {
      EXPECT_FALSE(button->enabled) << button->name;
    }
    for (const ListField* list :
         {&MainWindow.general.address, &MainWindow.displayTemperature.address,
          &MainWindow.alarm.address, &MainWindow.special.address, &MainWindow.roomCount,
          &MainWindow.tolerance, &MainWindow.detectorCount}) {
      EXPECT_FALSE(list->enabled) << list->name;
    }
  }

  static void ExpectFree() {
    for (const MenuField* menu :
         {&MainWindow.bestand, &MainWindow.taal, &MainWindow.settings, &MainWindow.Info}) {
      EXPECT_TRUE(menu->enabled) << menu->name;
    }
    EXPECT_TRUE(MainWindow.moduleList.enabled);
    EXPECT_TRUE(MainWindow.connect.enabled);
    EXPECT_TRUE(MainWindow.send.enabled);
  }
};

TEST_F(ConnectTest, ClearsExactlyItsNineFlagsTheLineAndSetsItsCommand) {
  Start();
  SetAllFlags();
  RxLine = "STOP";
  const Snapshot before = TakeSnapshot();
  MainWindow.connect.Click();
  ExpectOnlyChanged(
      before, {"RxLine", "PendingCommand", "WriteInProgress", "TempImage1Loaded",
               "TempImage2Loaded", "MasterContextsLoaded", "MasterTimeLoaded", "MasterLightLoaded",
               "LcdHeaderDirty", "LcdScreen1Loaded", "LcdScreen2Loaded"});
  EXPECT_EQ(PendingCommand, Cell("T80000"));
  EXPECT_EQ(RxLine, "");
  EXPECT_EQ(LcdWeekdayLoaded, Cell(1));
}

TEST_F(ConnectTest, KeepsTheKindOfTheImageInMemory) {
  Start();
  Plug(5);
  ReadModule();
  line.module = nullptr;
  MainWindow.connect.Click();
  EXPECT_EQ(ActiveModuleType, Cell(5));
}

TEST_F(ConnectTest, EmptiesTheFieldsOfTheModuleAndStoresNothing) {
  Start();
  for (const int kind : AllKinds) {
    NewModule();
    Plug(kind);
    ReadModule();
    const Snapshot before = TakeSnapshot();
    MainWindow.connect.Click();
    for (const DataGroupFields* group : {&MainWindow.general, &MainWindow.displayTemperature,
                                         &MainWindow.alarm, &MainWindow.special}) {
      EXPECT_EQ(group->address.Text(), "") << kind;
      EXPECT_FALSE(group->version.visible) << kind;
    }
    for (const ListField* list :
         {&MainWindow.roomCount, &MainWindow.tolerance, &MainWindow.detectorCount}) {
      EXPECT_EQ(list->Text(), "") << kind << " " << list->name;
    }
    ExpectOnlyChanged(before, {"RxLine"});
    FinishTransfer();
  }
}

TEST_F(ConnectTest, LocksTheWindow) {
  Start();
  Plug(5);
  ReadModule();
  MainWindow.connect.Click();
  ExpectLocked();
}

TEST_F(ConnectTest, ShowsTheSearchInDutch) {
  Start(1);
  MainWindow.connect.Click();
  EXPECT_EQ(MainWindow.status.caption, "Module zoeken...");
}

TEST_F(ConnectTest, ShowsTheSearchInFrench) {
  Start(2);
  MainWindow.connect.Click();
  EXPECT_EQ(MainWindow.status.caption, "Recherche module...");
}

TEST_F(ConnectTest, ShowsTheBarEmptyWithTheEndOfTheSearch) {
  Start();
  MainWindow.connect.Click();
  EXPECT_TRUE(MainWindow.transferBar.visible);
  EXPECT_EQ(MainWindow.transferBar.Value(), 0);
  EXPECT_EQ(MainWindow.transferBar.Maximum(), 20000);
}

TEST_F(ConnectTest, OpensThePortAndWaitsForThePoll) {
  Start();
  line.calls.clear();
  MainWindow.connect.Click();
  EXPECT_EQ(line.calls, std::vector<std::string>{"open"});
  EXPECT_TRUE(line.IsOpen());
  for (const Tick* tick : LinkTicks) EXPECT_EQ(tick->Enabled(), tick == &WakeUpWait) << tick->name;
  EXPECT_EQ(line.AllWritten(), "");
}

TEST_F(ConnectTest, ClosesThePortFirstWhenItIsOpen) {
  Start();
  Plug(0);
  ReadModule();
  line.calls.clear();
  MainWindow.connect.Click();
  EXPECT_EQ(line.calls, (std::vector<std::string>{"close", "open"}));
}

TEST_F(ConnectTest, LetsTheImageBeSavedUnderANewNameOnlyAndSetsTheTitleBack) {
  Start();
  MainWindow.title = "TREVAN BK-CONF  -  house/a.BK1";
  MainWindow.Bewaren.enabled = true;
  MainWindow.connect.Click();
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
  EXPECT_FALSE(MainWindow.Bewaren.enabled);
  EXPECT_TRUE(MainWindow.Bewaren_als.enabled);
}

TEST_F(ConnectTest, APortThatCannotBeOpenedEndsTheEventWithTheWindowLocked) {
  Start(2);
  line.canOpen = false;
  MainWindow.title = "TREVAN BK-CONF  -  house/a.BK1";
  MainWindow.connect.Click();
  ExpectLocked();
  EXPECT_EQ(MainWindow.status.caption, "Recherche module...");
  EXPECT_TRUE(MainWindow.transferBar.visible);
  EXPECT_EQ(MainWindow.transferBar.Value(), 0);
  for (const Tick* tick : LinkTicks) EXPECT_FALSE(tick->Enabled()) << tick->name;
  EXPECT_FALSE(MainWindow.Bewaren_als.enabled);
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF  -  house/a.BK1");
  EXPECT_TRUE(messages.told.empty());
}

TEST_F(ConnectTest, NothingHappensLaterAfterAPortThatCannotBeOpened) {
  Start();
  clock.Advance(100);
  line.canOpen = false;
  MainWindow.connect.Click();
  line.calls.clear();
  clock.Advance(60'000);
  EXPECT_TRUE(line.calls.empty());
  EXPECT_EQ(MainWindow.status.caption, "Module zoeken...");
}

TEST_F(ConnectTest, ClicksDuringATransferDoNothing) {
  Start();
  MainWindow.connect.Click();
  line.calls.clear();
  MainWindow.connect.Click();
  MainWindow.send.Click();
  EXPECT_TRUE(line.calls.empty());
  EXPECT_EQ(WriteInProgress, Cell(0));
}

TEST_F(ConnectTest, ASecondConnectReadsTheSameKindAgain) {
  Start();
  Plug(5);
  ReadModule();
  const Snapshot before = TakeSnapshot();
  Plug(5, std::nullopt, 2);
  ReadModule();
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  const auto& cells = line.module->memory().Cells(std::string_view("AlarmImage"));
  int changed = 0;
  for (int index = 0; index <= 292; ++index) {
    EXPECT_EQ(AlarmImage[index].Number(), cells[static_cast<std::size_t>(index)]) << index;
    if (AlarmImage[index] != before.at("AlarmImage[" + std::to_string(index) + "]")) ++changed;
  }
  EXPECT_GT(changed, 0);
}

class RefusalTest : public ConnectTest, public testing::WithParamInterface<int> {
 protected:
  /// An alarm module is in memory, and a relay module stands on the line.
  void ReadAnotherKind() {
    Start(GetParam());
    Plug(5);
    ReadModule();
    Plug(0);
    before = TakeSnapshot();
    ReadModule();
  }
  Snapshot before;
};

TEST_P(RefusalTest, AnotherKindThanTheOneInMemoryIsRefusedWithAMessage) {
  ReadAnotherKind();
  EXPECT_EQ(messages.told, std::vector<std::string>{
                               GetParam() == 1 ? "De gevonden module is niet van het juiste type !"
                                               : "Le module trouvé n'est pas du bon type !"});
}

TEST_P(RefusalTest, TheImageAndItsKindStay) {
  ReadAnotherKind();
  EXPECT_EQ(ActiveModuleType, Cell(5));
  // Only the line that was refused stands where the end of the read stood.
  ExpectOnlyChanged(before, {"RxLine"});
}

TEST_P(RefusalTest, TheWindowIsFreeAgain) {
  ReadAnotherKind();
  ExpectFree();
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_FALSE(MainWindow.transferBar.visible);
  EXPECT_TRUE(MainWindow.alarm.frame.visible);
  EXPECT_EQ(VisibleActions().size(), 4U);
  EXPECT_TRUE(AllVisibleActionsEnabled());
  for (const Tick* tick : LinkTicks) EXPECT_FALSE(tick->Enabled()) << tick->name;
}

TEST_P(RefusalTest, TheFieldsStayEmptyAndTypingShowsTheStoredLetter) {
  ReadAnotherKind();
  EXPECT_EQ(MainWindow.alarm.address.Text(), "");
  MainWindow.alarm.address.Type("x");
  EXPECT_EQ(MainWindow.alarm.address.Text(),
            std::string(1, static_cast<char>(AlarmImage[121].Whole())));
}

TEST_P(RefusalTest, TheRightKindIsAcceptedAfterwards) {
  ReadAnotherKind();
  Plug(5, std::nullopt, 3);
  ReadModule();
  EXPECT_EQ(messages.told.size(), 1U);
  EXPECT_EQ(ActiveCode(), 5);
  EXPECT_NE(MainWindow.alarm.address.Text(), "");
}

INSTANTIATE_TEST_SUITE_P(Languages, RefusalTest, testing::Values(1, 2), [](const auto& language) {
  return std::string(language.param == 1 ? "dutch" : "french");
});

TEST_F(ConnectTest, AnUnknownModuleIsRefusedWithoutAnImageToo) {
  Start();
  Plug(0, virtual_module::Fault::UnknownIdentity);
  ReadModule();
  EXPECT_EQ(messages.told.size(), 1U);
  EXPECT_EQ(ActiveModuleType, Cell(99));
  ExpectFree();
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_TRUE(VisibleActions().empty());
  EXPECT_FALSE(MainWindow.general.address.enabled);
}

TEST_F(ConnectTest, EveryKindRefusesEveryOther) {
  Start();
  for (const int inMemory : AllKinds) {
    MainWindow.nieuw.Click();
    Plug(inMemory);
    ReadModule();
    for (const int onTheLine : AllKinds) {
      messages.told.clear();
      Plug(onTheLine);
      ReadModule();
      EXPECT_EQ(messages.told.size(), inMemory == onTheLine ? 0U : 1U)
          << inMemory << " " << onTheLine;
      EXPECT_EQ(ActiveCode(), inMemory);
    }
  }
}

}  // namespace
}  // namespace bkconf
