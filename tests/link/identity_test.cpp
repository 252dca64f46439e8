#include "link/identity.h"

#include <gtest/gtest.h>

#include "link/link_ticks.h"
#include "link/transfer.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

using virtual_module::Fault;

constexpr int Unknown = -1;

struct IdentityCase {
  const char* line;
  int code;
};

class IdentityLineTest : public testing::TestWithParam<IdentityCase> {};

TEST_P(IdentityLineTest, GivesItsKind) {
  const ModuleKind* kind = KindOfIdentity(GetParam().line);
  EXPECT_EQ(kind == nullptr ? Unknown : kind->code, GetParam().code) << GetParam().line;
}

INSTANTIATE_TEST_SUITE_P(
    Lines, IdentityLineTest,
    testing::Values(IdentityCase{"DISPL0", 0}, IdentityCase{"DISPL1", 1}, IdentityCase{"DISPL2", 2},
                    IdentityCase{"DISPL3", 3}, IdentityCase{"DISPL4", 4}, IdentityCase{"DISPL5", 5},
                    IdentityCase{"DISPL6", 6}, IdentityCase{"DISPL7", 7}, IdentityCase{"DISPL8", 8},
                    IdentityCase{"DISPL9", 9}, IdentityCase{"DISPL11", 11},
                    IdentityCase{"DISPL11x", 11}, IdentityCase{"DISPL10", 1},
                    IdentityCase{"DISPL12", 1}, IdentityCase{"DISPL99", 9},
                    IdentityCase{"DISPL0 and more", 0}, IdentityCase{"DISPL", Unknown},
                    IdentityCase{"DISPLX", Unknown}, IdentityCase{"", Unknown},
                    IdentityCase{"HELLO", Unknown}, IdentityCase{"\nDISPL0", Unknown},
                    IdentityCase{"displ0", Unknown}));

class IdentityTest : public SessionTest {
 protected:
  /// The identity line of a transfer that was started with this kind in memory.
  void Identify(std::string_view identity, Cell active, int language = 1) {
    Start(language);
    ActiveModuleType = active;
    PendingCommand = command;
    ASSERT_TRUE(StartTransfer());
    WakeUpWait.Disable();
    WriteInProgress = sent;
    RxLine = identity;
    TestIdentity();
  }

  std::string command = "T80000";
  int sent = 0;  ///< 1 when a Send started the transfer
};

TEST_F(IdentityTest, AnyKindIsAcceptedWhileThereIsNoImage) {
  for (const int kind : AllKinds) {
    Identify("DISPL" + std::to_string(kind), NoModule);
    EXPECT_EQ(ActiveCode(), kind);
    EXPECT_TRUE(messages.told.empty());
  }
}

TEST_F(IdentityTest, AnotherKindThanTheOneInMemoryIsRefusedAndTheImageStays) {
  for (const int active : AllKinds) {
    for (const int found : AllKinds) {
      messages.told.clear();
      Identify("DISPL" + std::to_string(found), active);
      EXPECT_EQ(ActiveCode(), active) << found;
      EXPECT_EQ(messages.told.size(), active == found ? 0U : 1U) << active << " " << found;
    }
  }
}

TEST_F(IdentityTest, Kind11IsRefusedWhileKind1IsInMemory) {
  Identify("DISPL11", 1);
  EXPECT_EQ(messages.told.size(), 1U);
  EXPECT_EQ(ActiveCode(), 1);
}

TEST_F(IdentityTest, TheRefusalIsToldInDutch) {
  Identify("DISPLX", NoModule);
  EXPECT_EQ(messages.told,
            std::vector<std::string>{"De gevonden module is niet van het juiste type !"});
}

TEST_F(IdentityTest, TheRefusalIsToldInFrench) {
  Identify("DISPLX", NoModule, 2);
  EXPECT_EQ(messages.told, std::vector<std::string>{"Le module trouvé n'est pas du bon type !"});
}

TEST_F(IdentityTest, ARefusalLeavesTheTransferWithTheWindowFreeAndThePortOpen) {
  Identify("DISPL5", 0);
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
  EXPECT_TRUE(MainWindow.connect.enabled);
  EXPECT_TRUE(MainWindow.send.enabled);
  EXPECT_FALSE(MainWindow.transferBar.visible);
  for (const MenuField* menu :
       {&MainWindow.bestand, &MainWindow.taal, &MainWindow.settings, &MainWindow.Info}) {
    EXPECT_TRUE(menu->enabled) << menu->name;
  }
  EXPECT_TRUE(MainWindow.moduleList.enabled);
  EXPECT_TRUE(AllVisibleActionsEnabled());
  EXPECT_TRUE(line.IsOpen());
  EXPECT_EQ(line.AllWritten(), "");
  for (const Tick* tick : LinkTicks) EXPECT_FALSE(tick->Enabled()) << tick->name;
}

TEST_F(IdentityTest, ARefusedSendIsNoLongerAWrite) {
  sent = 1;
  Identify("DISPL5", 0);
  EXPECT_EQ(WriteInProgress.Number(), 0);
}

TEST_F(IdentityTest, ASendWithoutAnImageTakesAnyKindWhoseReadItRepeats) {
  sent = 1;
  for (const int kind : AllKinds) {
    Identify("DISPL" + std::to_string(kind), NoModule);
    EXPECT_EQ(ActiveCode(), kind);
    EXPECT_TRUE(messages.told.empty());
  }
}

TEST_F(IdentityTest, ASendWithoutAnImageIsRefusedWhereItsCommandIsNoReadOfTheModule) {
  sent = 1;
  // Writes, live tests, and the scan of a master, which is a test for any other.
  for (const char* each : {"", "T70000", "T71000", "T80100", "T80300", "T80400"}) {
    command = each;
    for (const int kind : AllKinds) {
      if (command == "T80400" && kind == 9) continue;
      messages.told.clear();
      Identify("DISPL" + std::to_string(kind), NoModule);
      EXPECT_EQ(ActiveCode(), NoModule) << command << " " << kind;
      EXPECT_EQ(messages.told.size(), 1U) << command << " " << kind;
    }
  }
}

TEST_F(IdentityTest, ASendBehindAConnectThatWasRefusedReadsTheRightModule) {
  Start();
  for (const int kind : AllKinds) {
    messages.told.clear();
    MainWindow.nieuw.Click();
    Plug(kind, Fault::UnknownIdentity);
    ReadModule();
    ASSERT_EQ(messages.told.size(), 1U);
    messages.told.clear();
    virtual_module::Module& module = Plug(kind);
    const auto memory = module.memory();
    SendToModule();
    EXPECT_TRUE(messages.told.empty()) << kind;
    EXPECT_EQ(MainWindow.status.caption, "Edit mode");
    ASSERT_EQ(ActiveCode(), kind);
    const CellPlace& address = ActiveKind()->address;
    if (address.table != nullptr) {
      EXPECT_EQ((*address.table)[address.index].Whole(),
                memory.Cells(address.table->name)[static_cast<std::size_t>(address.index)]);
    }
    EXPECT_EQ(module.memory(), memory) << kind;
    EXPECT_EQ(WriteInProgress.Number(), 0);
  }
}

TEST_F(IdentityTest, AnUnknownCodeWithNoImageLeavesNoImage) {
  Identify("DISPLX", NoModule);
  EXPECT_EQ(ActiveCode(), NoModule);
  EXPECT_EQ(messages.told.size(), 1U);
}

TEST_F(IdentityTest, AWrongModuleOnTheLineChangesNoCell) {
  Start();
  Plug(0);
  ReadModule();
  Plug(0, Fault::WrongIdentity);
  const Snapshot before = TakeSnapshot();
  ReadModule();
  EXPECT_EQ(messages.told.size(), 1U);
  ExpectOnlyChanged(before, {"RxLine"});
}

struct SetupCase {
  int kind;
  const char* command;
  int writeInProgress;
  int maximum;  ///< -1: the bar is hidden
  const char* dutch;
  const char* french;
};

class SetupStepTest : public IdentityTest, public testing::WithParamInterface<SetupCase> {};

TEST_P(SetupStepTest, ShowsBarAndTextOfTheCommand) {
  const SetupCase& expected = GetParam();
  for (const int language : {1, 2}) {
    Start(language);
    PendingCommand = expected.command;
    ASSERT_TRUE(StartTransfer());
    WakeUpWait.Disable();
    WriteInProgress = expected.writeInProgress;
    RxLine = "DISPL" + std::to_string(expected.kind);
    ActiveModuleType = expected.kind;
    CommandSend.SetPeriod(70);
    TestIdentity();
    EXPECT_EQ(MainWindow.status.caption, language == 1 ? expected.dutch : expected.french);
    EXPECT_EQ(MainWindow.transferBar.visible, expected.maximum >= 0);
    if (expected.maximum >= 0) {
      EXPECT_EQ(MainWindow.transferBar.Maximum(), expected.maximum);
    }
    EXPECT_EQ(MainWindow.transferBar.Value(), 0);
    EXPECT_TRUE(CommandSend.Enabled());
    EXPECT_EQ(CommandSend.Period(), 30);
  }
}

constexpr const char* ReadNl = "Inladen van de gegevens...";
constexpr const char* ReadFr = "Chargement des données...";
constexpr const char* WriteNl = "Versturen van de gegevens...";
constexpr const char* WriteFr = "Envoyer les données...";

const SetupCase SetupCases[] = {
    {0, "T80000", 0, 164, ReadNl, ReadFr},
    {1, "T80000", 0, 164, ReadNl, ReadFr},
    {4, "T80000", 0, 164, ReadNl, ReadFr},
    {11, "T80000", 0, 164, ReadNl, ReadFr},
    {9, "T80000", 0, 164, ReadNl, ReadFr},
    {9, "T81000", 0, 1000, "Inladen van sferen...", "Chargement des contextes..."},
    {9, "T82000", 0, 1000, "Inladen tijprogrammaties...", "Chargement prog. temps..."},
    {9, "T83000", 0, 1000, "Inladen lichtprogrammaties...", "Chargement prog. luminosité..."},
    {9, "T80400", 0, -1, "Scanning van de modules...", "Scanning des modules..."},
    {2, "T80000", 0, 4, ReadNl, ReadFr},
    {2, "T81000", 0, 146, ReadNl, ReadFr},
    {2, "T82000", 0, 1008, ReadNl, ReadFr},
    {2, "T83000", 0, 8, "Opvragen temperaturen...", "Demander les températures..."},
    {3, "T80000", 0, 4, ReadNl, ReadFr},
    {3, "T81000", 0, 1020, "Inladen LCD Display 1...", "Chargement LCD Display 1..."},
    {3, "T83000", 0, 1020, "Inladen LCD Display 2...", "Chargement LCD Display 2..."},
    {3, "T85000", 0, 21, ReadNl, ReadFr},
    {5, "T80000", 0, 294, ReadNl, ReadFr},
    {6, "T80000", 0, 213, ReadNl, ReadFr},
    {7, "T80000", 0, 185, ReadNl, ReadFr},
    {8, "T80000", 0, 509, ReadNl, ReadFr},
    {0, "T70000", 1, 163, WriteNl, WriteFr},
    {1, "T70000", 1, 163, WriteNl, WriteFr},
    {4, "T70000", 1, 163, WriteNl, WriteFr},
    {11, "T70000", 1, 163, WriteNl, WriteFr},
    {9, "T70000", 1, 163, WriteNl, WriteFr},
    {9, "T71000", 1, 1000, "Versturen van de sferen...", "Envoyer les contextes..."},
    {9, "T72000", 1, 1000, "Versturen tijdprogrammaties...", "Envoyer programmations temps..."},
    {9, "T73000", 1, 1000, "Versturen lichtprogrammaties...",
     "Envoyer programmations luminosité..."},
    {2, "T70000", 1, 3, WriteNl, WriteFr},
    {2, "T71000", 1, 146, WriteNl, WriteFr},
    {2, "T72000", 1, 1008, WriteNl, WriteFr},
    {2, "T73000", 1, 149, WriteNl, WriteFr},
    {2, "T74000", 1, 1011, WriteNl, WriteFr},
    {2, "T75000", 1, 1157, WriteNl, WriteFr},
    {3, "T70000", 1, 2, WriteNl, WriteFr},
    {3, "T71000", 1, 1020, "Versturen LCD Display 1...", "Envoyer LCD Display 1..."},
    {3, "T73000", 1, 1020, "Versturen LCD Display 2...", "Envoyer LCD Display 2..."},
    {3, "T75000", 1, 21, WriteNl, WriteFr},
    {5, "T70000", 1, 294, WriteNl, WriteFr},
    {6, "T70000", 1, 213, WriteNl, WriteFr},
    {7, "T70000", 1, 185, WriteNl, WriteFr},
    {8, "T70000", 1, 509, WriteNl, WriteFr},
    {0, "T80100", 0, -1, "Diagnose", "Diagnostics"},
    {1, "T80200", 0, -1, "Diagnose", "Diagnostics"},
    {4, "T80300", 0, -1, "Diagnose", "Diagnostics"},
    {5, "T80400", 0, -1, "Diagnose", "Diagnostics"},
    {9, "T80500", 0, -1, "Diagnose", "Diagnostics"},
    {9, "T80300", 0, -1, "Diagnose", "Diagnostics"},
    // A Send that repeats a read ends its bar where the read does, under the text of a Send.
    {2, "T80000", 1, 4, WriteNl, WriteFr},
    {2, "T81000", 1, 146, WriteNl, WriteFr},
    {2, "T82000", 1, 1008, WriteNl, WriteFr},
    {2, "T83000", 1, 8, WriteNl, WriteFr},
    {3, "T80000", 1, 4, WriteNl, WriteFr},
    {3, "T81000", 1, 1020, WriteNl, WriteFr},
    {3, "T83000", 1, 1020, WriteNl, WriteFr},
    {3, "T85000", 1, 21, WriteNl, WriteFr},
    {9, "T80000", 1, 164, WriteNl, WriteFr},
};

INSTANTIATE_TEST_SUITE_P(Commands, SetupStepTest, testing::ValuesIn(SetupCases),
                         [](const auto& setup) {
                           return "kind" + std::to_string(setup.param.kind) + "_" +
                                  setup.param.command +
                                  (setup.param.writeInProgress == 1 ? "_sent" : "");
                         });

TEST_F(IdentityTest, ALiveTestIsAnnouncedToItsScreen) {
  int started = 0;
  Start();
  LinkHandlers[static_cast<std::size_t>(LinkEvent::TestStarted)] = {[&] { ++started; }};
  PendingCommand = "T80100";
  ASSERT_TRUE(StartTransfer());
  RxLine = "DISPL0";
  TestIdentity();
  EXPECT_EQ(started, 1);
}

TEST_F(IdentityTest, AReadOnDemandIsAnnouncedToItsScreenAndARepeatedOneIsNot) {
  for (const int writeInProgress : {0, 1}) {
    int started = 0;
    Start();
    LinkHandlers[static_cast<std::size_t>(LinkEvent::DisplayReadStarted)] = {[&] { ++started; }};
    PendingCommand = "T81000";
    ASSERT_TRUE(StartTransfer());
    WriteInProgress = writeInProgress;
    RxLine = "DISPL3";
    TestIdentity();
    EXPECT_EQ(started, 1 - writeInProgress);
  }
}

}  // namespace
}  // namespace bkconf
