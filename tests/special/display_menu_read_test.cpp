// A display that is not in memory yet is read behind its screen.
#include <gtest/gtest.h>

#include <algorithm>

#include "link/link_ticks.h"
#include "link/transfer.h"
#include "special/display_menu_test.h"

namespace bkconf {
namespace {

using Texts = std::vector<std::string>;
using virtual_module::Fault;

class DisplayReadTest : public DisplayMenuTest {
 protected:
  /// Reads the header of a module with two tidy displays.
  virtual_module::Module& Connect(int language = 1) {
    Start(language);
    auto& module = Plug(ModuleOptions());
    ReadModule();
    return module;
  }
  static virtual_module::Options ModuleOptions() {
    virtual_module::Options options{3, virtual_module::Memory(3)};
    FillDisplay(LcdScreen1, "a");
    FillDisplay(LcdScreen2, "b");
    for (Table* table : {&LcdScreen1, &LcdScreen2}) {
      auto& cells = options.memory.Cells(table->name);
      for (std::size_t i = 0; i < cells.size(); ++i) {
        cells[i] = (*table)[static_cast<int>(i)].Whole();
        (*table)[static_cast<int>(i)] = 0;
      }
    }
    options.memory.Cells("LcdHeader") = {67, 21};
    return options;
  }
  bool RunUntilShown() {
    return clock.RunUntil([] { return DisplayMenuScreen.shown; }, 60'000);
  }
  bool RunUntilUsable() {
    return clock.RunUntil([] { return DisplayMenuScreen.shown && DisplayMenuScreen.leave.enabled; },
                          60'000);
  }
  bool RunUntilBar(int value) {
    return clock.RunUntil([value] { return DisplayMenuScreen.bar.Value() == value; }, 60'000);
  }
  void ReadDisplay(int display) {
    Press(display);
    FinishTransfer();
    // The window is free at the last cell; the module has its last word yet.
    clock.Advance(50);
    line.Settle();
  }

  /// Whether all that a person could use is usable, or none of it.
  static void ExpectUsable(bool usable) {
    const DisplayMenuScreenFields& screen = DisplayMenuScreen;
    for (const Field* field : std::initializer_list<const Field*>{
             &screen.screens, &screen.frame, &screen.leave, &screen.category}) {
      EXPECT_EQ(field->enabled, usable) << field->name;
    }
    for (const TextField* field : TextFields()) EXPECT_EQ(field->enabled, usable) << field->name;
    for (const ListField* field : LineLists()) EXPECT_EQ(field->enabled, usable) << field->name;
    for (int line = 0; line < 10; ++line) EXPECT_FALSE(Line(line).outputs.enabled);
  }
  static void ExpectNothingShown() {
    for (const TextField* field : TextFields()) EXPECT_EQ(field->Text(), "") << field->name;
    for (const ListField* field : LineLists()) EXPECT_EQ(field->Text(), "") << field->name;
    EXPECT_EQ(DisplayMenuScreen.category.Text(), "");
    EXPECT_EQ(DisplayMenuScreen.screens.Index(), -1);
  }
  static Texts LinesSent(const virtual_module::Module& module) {
    Texts lines;
    for (const auto& record : module.sent()) {
      if (record.kind == virtual_module::UnitKind::Line) lines.push_back(record.text);
    }
    return lines;
  }
};

TEST_F(DisplayReadTest, ThePressSearchesTheModuleAndCountsTheDisplayAsLoaded) {
  for (const int language : {1, 2}) {
    for (const int display : {1, 2}) {
      ActiveModuleType = NoModule;
      Connect(language);
      LcdScreen1Loaded = LcdScreen2Loaded = 0;
      const Snapshot before = TakeSnapshot();
      Press(display);
      EXPECT_EQ(PendingCommand, Cell(display == 1 ? "T81000" : "T83000"));
      ExpectOnlyChanged(before, {"PendingCommand", "RxLine",
                                 display == 1 ? "LcdScreen1Loaded" : "LcdScreen2Loaded"});
      EXPECT_EQ(RxLine, "");
      EXPECT_EQ(MainWindow.status.caption,
                language == 1 ? "Module zoeken..." : "Recherche module...");
      EXPECT_TRUE(MainWindow.transferBar.visible);
      EXPECT_EQ(MainWindow.transferBar.Maximum(), 20000);
      EXPECT_EQ(MainWindow.transferBar.Value(), 0);
      EXPECT_FALSE(ShownAction(Action::Display1).enabled);
      EXPECT_FALSE(ShownAction(Action::Display2).enabled);
      EXPECT_FALSE(MainWindow.connect.enabled || MainWindow.send.enabled);
      EXPECT_FALSE(MainWindow.bestand.enabled || MainWindow.displayTemperature.address.enabled);
      EXPECT_FALSE(DisplayMenuScreen.shown);
      EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
      FinishTransfer();
      Leave();
    }
  }
}

TEST_F(DisplayReadTest, TheScreenAppearsWithTheIdentityAndNothingOfItCanBeUsed) {
  struct {
    int language, display;
    const char* status;
    const char* title;
  } const cases[] = {{1, 1, "Inladen LCD Display 1...",
                      "Displaymodule KR7210 <adres = C>  -  Configuratie Display Nr1"},
                     {1, 2, "Inladen LCD Display 2...",
                      "Displaymodule KR7210 <adres = C>  -  Configuratie Display Nr2"},
                     {2, 1, "Chargement LCD Display 1...",
                      "Module display KR7210 <adresse = C>  -  Configuration Display Nr1"},
                     {2, 2, "Chargement LCD Display 2...",
                      "Module display KR7210 <adresse = C>  -  Configuration Display Nr2"}};
  for (const auto& each : cases) {
    ActiveModuleType = NoModule;
    Connect(each.language);
    LcdScreen1Loaded = LcdScreen2Loaded = 0;
    Press(each.display);
    ASSERT_TRUE(RunUntilShown());
    EXPECT_EQ(DisplayMenuScreen.title, each.title);
    EXPECT_EQ(MainWindow.title, each.title);
    EXPECT_EQ(DisplayMenuScreen.status.caption, each.status);
    EXPECT_EQ(MainWindow.status.caption, each.status);
    EXPECT_TRUE(DisplayMenuScreen.bar.visible);
    EXPECT_EQ(DisplayMenuScreen.bar.Maximum(), 1020);
    EXPECT_EQ(DisplayMenuScreen.bar.Value(), 0);
    EXPECT_FALSE(MainWindow.transferBar.visible);
    EXPECT_TRUE(DisplayMenuScreen.screens.Items().empty());
    EXPECT_EQ(DisplayMenuScreen.frame.caption,
              each.language == 1 ? "Hoofdscherm:" : "Ecran principale:");
    ExpectUsable(false);
    ExpectNothingShown();
    FinishTransfer();
    Leave();
  }
}

TEST_F(DisplayReadTest, NothingCanBeDoneUntilTheLastCellHasCome) {
  Connect();
  Press(1);
  ASSERT_TRUE(RunUntilBar(1019));
  const Snapshot before = TakeSnapshot();
  DisplayMenuScreen.name.Type("Too early");
  DisplayMenuScreen.category.Pick(0);
  PickScreen(0);
  PressOutputs(0);
  Leave();
  ExpectOnlyChanged(before, {});
  EXPECT_TRUE(DisplayMenuScreen.shown);
  ExpectUsable(false);
  ExpectNothingShown();
  ASSERT_TRUE(RunUntilUsable());
  EXPECT_EQ(DisplayMenuScreen.bar.Value(), 1020);
}

TEST_F(DisplayReadTest, ClosingTheWindowLeavesAModuleThatSaysNoMore) {
  Connect();
  Press(1);
  ASSERT_TRUE(RunUntilBar(500));
  line.module = nullptr;
  clock.Advance(60'000);
  ExpectUsable(false);
  const Snapshot before = TakeSnapshot();
  DisplayMenuScreen.Close();
  ExpectOnlyChanged(before, {});
  EXPECT_FALSE(DisplayMenuScreen.shown || TransferUnderWay);
  EXPECT_TRUE(MainWindow.connect.enabled && MainWindow.bestand.enabled);
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
}

TEST_F(DisplayReadTest, TheLastCellGivesEverythingBackAndChoosesNoScreen) {
  for (const int language : {1, 2}) {
    for (const int display : {1, 2}) {
      ActiveModuleType = NoModule;
      const auto& module = Connect(language);
      LcdScreen1Loaded = LcdScreen2Loaded = 0;
      Press(display);
      ASSERT_TRUE(RunUntilUsable());
      ExpectUsable(true);
      ExpectNothingShown();
      EXPECT_EQ(DisplayMenuScreen.screens.Items().size(), 6U);
      EXPECT_EQ(DisplayMenuScreen.screens.Items().back(), language == 1 ? "Scherm 6" : "Ecran 6");
      EXPECT_FALSE(DisplayMenuScreen.bar.visible || MainWindow.transferBar.visible);
      EXPECT_EQ(DisplayMenuScreen.status.caption, "Edit mode");
      EXPECT_EQ(MainWindow.status.caption, "Edit mode");
      EXPECT_TRUE(AllVisibleActionsEnabled());
      EXPECT_TRUE(MainWindow.connect.enabled && MainWindow.send.enabled);
      EXPECT_TRUE(MainWindow.bestand.enabled && MainWindow.moduleList.enabled);
      EXPECT_TRUE(MainWindow.displayTemperature.address.enabled);
      const auto& cells = module.memory().Cells(TableOf(display).name);
      for (int i = 0; i < 1020; ++i) {
        ASSERT_EQ(TableOf(display)[i], Cell(cells[static_cast<std::size_t>(i)])) << i;
      }
      for (int i = 1020; i < 1030; ++i) EXPECT_EQ(TableOf(display)[i], Cell(0)) << i;
      EXPECT_EQ(DirtyOf(display), Cell(0));
      Leave();
    }
  }
}

TEST_F(DisplayReadTest, TheModuleSendsEachDisplayByItsAddresses) {
  const auto& module = Connect();
  ReadDisplay(1);
  Leave();
  ReadDisplay(2);
  Leave();
  const Texts lines = LinesSent(module);
  const auto begin = [&lines](const char* text) {
    return std::find_if(lines.begin(), lines.end(),
                        [text](const std::string& each) { return each.substr(1) == text; }) -
           lines.begin();
  };
  // Behind the first character: address, value, end of line.
  const auto first = begin("2000097\r");
  EXPECT_EQ(begin("2695002\r"), first + 695);
  EXPECT_EQ(begin("3000066\r"), first + 1000);
  EXPECT_EQ(begin("3019002\r"), first + 1019);
  EXPECT_EQ(lines.at(static_cast<std::size_t>(first) - 1), "M80000\r");
  EXPECT_EQ(lines.at(static_cast<std::size_t>(first) + 1020), "STOP\r");
  EXPECT_EQ(begin("4700007\r"), begin("4000098\r") + 700);
  EXPECT_EQ(begin("5019002\r"), begin("4000098\r") + 1019);
}

TEST_F(DisplayReadTest, LeavingAtOnceChangesNothingOfWhatWasRead) {
  Connect();
  Press(1);
  ASSERT_TRUE(RunUntilUsable());
  const Snapshot before = TakeSnapshot();
  Leave();
  EXPECT_FALSE(DisplayMenuScreen.shown);
  EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
  ExpectOnlyChanged(before, {});
}

TEST_F(DisplayReadTest, TheSecondOpeningReadsNothing) {
  const auto& module = Connect();
  ReadDisplay(2);
  Leave();
  Press(2);
  EXPECT_TRUE(DisplayMenuScreen.shown);
  EXPECT_FALSE(TransferUnderWay);
  EXPECT_EQ(DisplayMenuScreen.name.Text(), "bname 0     ");
  EXPECT_EQ(module.completedReads(), 2);
}

TEST_F(DisplayReadTest, EachDisplayIsReadOnItsOwn) {
  const auto& module = Connect();
  ReadDisplay(2);
  Leave();
  EXPECT_EQ(LcdScreen1Loaded, Cell(0));
  EXPECT_EQ(LcdScreen1[0], Cell(0));
  ReadDisplay(1);
  EXPECT_EQ(CodesAt(LcdScreen1, 0, 7), "aname 0");
  EXPECT_EQ(module.completedReads(), 3);
  EXPECT_EQ(module.errors(), 0);
}

TEST_F(DisplayReadTest, AConnectReadsTheDisplaysAnew) {
  auto& module = Connect();
  ReadDisplay(1);
  Leave();
  module.memory().Cells("LcdScreen1")[0] = 90;
  ReadModule();
  EXPECT_EQ(LcdScreen1Loaded, Cell(0));
  ReadDisplay(1);
  EXPECT_EQ(LcdScreen1[0], Cell(90));
}

TEST_F(DisplayReadTest, WhatIsPickedBeforeAScreenIsChosenIsLostAndStillMarked) {
  Connect();
  ReadDisplay(1);
  const Snapshot before = TakeSnapshot();
  PickCategory(5);
  DisplayMenuScreen.name.Type("Lost");
  EXPECT_EQ(LcdScreen1Dirty, Cell(1));
  PickScreen(0);
  EXPECT_EQ(DisplayMenuScreen.category.Index(), 0);
  EXPECT_EQ(DisplayMenuScreen.name.Text(), "aname 0     ");
  Leave();
  ExpectOnlyChanged(before, {"LcdScreen1Dirty"});
}

TEST_F(DisplayReadTest, TheLinesOfNoScreenAreThoseOfTheFirstWhateverWasLookedAtBefore) {
  Connect();
  ReadDisplay(1);
  PickScreen(5);
  Leave();
  ReadDisplay(2);
  PickCategory(5);
  PressOutputs(0);
  EXPECT_EQ(DisplayMenuScreen.open.module.Text(), "A");
}

// --- What goes wrong ----------------------------------------------------------------------------

TEST_F(DisplayReadTest, AnotherModuleIsRefusedAndNoScreenAppears) {
  for (const int language : {1, 2}) {
    for (const Fault fault : {Fault::WrongIdentity, Fault::UnknownIdentity}) {
      ActiveModuleType = NoModule;
      Connect(language);
      LcdScreen1Loaded = 0;
      Plug(3, fault);
      messages.told.clear();
      Press(1);
      FinishTransfer();
      EXPECT_EQ(messages.told,
                Texts{language == 1 ? "De gevonden module is niet van het juiste type !"
                                    : "Le module trouvé n'est pas du bon type !"});
      EXPECT_FALSE(DisplayMenuScreen.shown);
      EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
      EXPECT_EQ(MainWindow.status.caption, "Edit mode");
      EXPECT_TRUE(AllVisibleActionsEnabled());
      EXPECT_TRUE(MainWindow.connect.enabled && MainWindow.send.enabled);
      EXPECT_EQ(LcdScreen1Loaded, Cell(1));
      // The display counts as loaded: it opens with the cells as they are.
      Press(1);
      EXPECT_TRUE(DisplayMenuScreen.shown);
      EXPECT_EQ(DisplayMenuScreen.screens.Index(), 0);
      EXPECT_EQ(DisplayMenuScreen.name.Text(), std::string(12, '\0'));
      Leave();
    }
  }
}

TEST_F(DisplayReadTest, AfterARefusalTheOtherReadsOpenTheirOwnScreens) {
  Connect();
  Plug(3, Fault::WrongIdentity);
  Press(1);
  FinishTransfer();
  Plug(ModuleOptions());
  ReadDisplay(2);
  EXPECT_TRUE(DisplayMenuScreen.shown);
  EXPECT_TRUE(DisplayMenuScreen.title.ends_with("Nr2"));
}

TEST_F(DisplayReadTest, AStreamThatStopsShortKeepsTheScreenUnusable) {
  Connect();
  Plug(3, Fault::ShortStream);
  Press(1);
  ASSERT_TRUE(RunUntilShown());
  clock.Advance(60'000);
  ExpectUsable(false);
  EXPECT_EQ(DisplayMenuScreen.status.caption, "Inladen LCD Display 1...");
  EXPECT_TRUE(TransferUnderWay);
}

TEST_F(DisplayReadTest, AStreamThatStoppedShortIsClosedAndTheNextComesWhole) {
  Connect();
  Plug(3, Fault::ShortStream);
  Press(1);
  ASSERT_TRUE(RunUntilShown());
  clock.Advance(60'000);
  DisplayMenuScreen.Close();
  EXPECT_EQ(Window.bar, &MainWindow.transferBar);
  EXPECT_FALSE(DisplayMenuScreen.shown || DisplayMenuScreen.bar.visible);
  Plug(ModuleOptions());
  MainWindow.connect.Click();
  EXPECT_TRUE(MainWindow.transferBar.visible);
  FinishTransfer();
  ReadDisplay(1);
  EXPECT_EQ(DisplayMenuScreen.bar.Maximum(), 1020);
  EXPECT_EQ(DisplayMenuScreen.bar.Value(), 1020);
  ExpectUsable(true);
}

TEST_F(DisplayReadTest, AReadThatFailsGivesTheScreenFreeWithWhatHasCome) {
  for (const Fault fault : {Fault::IndexBeyondTable, Fault::TooManyLines}) {
    ActiveModuleType = NoModule;
    Connect();
    LcdScreen1Loaded = 0;
    Plug(3, fault);
    Press(1);
    ASSERT_TRUE(RunUntilShown());
    try {
      clock.Advance(60'000);
      ADD_FAILURE() << "no error";
    } catch (const RuntimeError&) {
      LeaveFailedTransfer();
    }
    EXPECT_TRUE(DisplayMenuScreen.shown);
    ExpectUsable(true);
    EXPECT_EQ(DisplayMenuScreen.screens.Items().size(), 6U);
    EXPECT_FALSE(DisplayMenuScreen.bar.visible);
    EXPECT_EQ(DisplayMenuScreen.status.caption, "Edit mode");
    EXPECT_TRUE(MainWindow.bestand.enabled);
    Leave();
    EXPECT_FALSE(DisplayMenuScreen.shown);
    EXPECT_EQ(MainWindow.title, "TREVAN BK-CONF");
  }
}

TEST_F(DisplayReadTest, ALineThatFailsBehindTheLastCellDisturbsNoEdit) {
  Connect();
  auto options = ModuleOptions();
  options.fault = Fault::NoStop;
  Plug(options);
  Press(1);
  ASSERT_TRUE(RunUntilUsable());
  EXPECT_TRUE(LinkTick.Enabled());
  PickScreen(2);
  DisplayMenuScreen.name.Type("Attic");
  LeaveFailedTransfer();
  EXPECT_FALSE(LinkTick.Enabled());
  EXPECT_EQ(DisplayMenuScreen.screens.Index(), 2);
  EXPECT_EQ(DisplayMenuScreen.name.Text(), "Attic");
  Leave();
  EXPECT_EQ(CodesAt(LcdScreen1, 24, 12), "Attic       ");
}

TEST_F(DisplayReadTest, ThePortThatCannotBeOpenedShowsNoScreen) {
  Connect();
  line.canOpen = false;
  Press(1);
  clock.Advance(10'000);
  EXPECT_FALSE(DisplayMenuScreen.shown);
  EXPECT_EQ(MainWindow.status.caption, "Module zoeken...");
  EXPECT_EQ(LcdScreen1Loaded, Cell(1));
}

// --- Send ---------------------------------------------------------------------------------------

Texts CommandsOf(const virtual_module::Module& module) {
  Texts commands;
  for (const auto& record : module.received()) {
    if (record.kind == virtual_module::UnitKind::Command) {
      commands.push_back(record.text.substr(0, 6));
    }
  }
  return commands;
}

TEST_F(DisplayReadTest, LookingAtAllScreensSendsNoDisplayAndRepeatsTheRead) {
  const auto& module = Connect();
  ReadDisplay(1);
  for (int screen = 0; screen < 6; ++screen) PickScreen(screen);
  Leave();
  SendToModule();
  EXPECT_EQ(CommandsOf(module), (Texts{"T80000", "T81000", "T81000"}));
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_FALSE(DisplayMenuScreen.shown);
  EXPECT_EQ(WriteInProgress, Cell(0));
  EXPECT_TRUE(MainWindow.bestand.enabled && MainWindow.send.enabled);
}

TEST_F(DisplayReadTest, AnEditOfOneDisplaySendsBothWhereBothAreInMemory) {
  for (const int display : {1, 2}) {
    ActiveModuleType = NoModule;
    auto& module = Connect();
    ReadDisplay(3 - display);
    Leave();
    ReadDisplay(display);
    PickScreen(5);
    DisplayMenuScreen.name.Type("Été");
    Leave();
    auto expected = module.memory();
    auto& cells = expected.Cells(TableOf(display).name);
    const int codes[] = {201, 116, 233, 32, 32, 32, 32, 32, 32, 32, 32, 32};
    for (std::size_t i = 0; i < 12; ++i) cells[60 + i] = codes[i];
    SendToModule();
    EXPECT_EQ(CommandsOf(module).size(), 5U);
    EXPECT_EQ(CommandsOf(module)[3], "T71000");
    EXPECT_EQ(CommandsOf(module)[4], "T73000");
    EXPECT_EQ(module.memory(), expected);
    EXPECT_EQ(module.errors(), 0);
    EXPECT_EQ(MainWindow.status.caption, "Ready");
  }
}

TEST_F(DisplayReadTest, ADisplayThatWasNeverOpenedIsNotSent) {
  auto& module = Connect();
  ReadDisplay(1);
  PickScreen(AutomationScreen);
  PressOutputs(1);
  DisplayMenuScreen.close.output.Pick(8);
  DisplayMenuScreen.ok.Click();
  Leave();
  auto expected = module.memory();
  expected.Cells("LcdScreen1")[900 + 60 + 3] = 8;
  SendToModule();
  EXPECT_EQ(CommandsOf(module), (Texts{"T80000", "T81000", "T71000"}));
  EXPECT_EQ(module.memory(), expected);
}

}  // namespace
}  // namespace bkconf
