#include "link/receive_dispatcher.h"

#include <gtest/gtest.h>

#include "link/link_ticks.h"
#include "link/transfer.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

/// What can be seen after a line was dispatched.
struct Seen {
  std::vector<LinkEvent> events;
  bool lineEmptied;
  bool awaitsNextLine;
  bool writes;        ///< WriterSelect is enabled
  bool windowIsFree;  ///< menus, selection list, Connect and Send
  friend bool operator==(const Seen&, const Seen&) = default;
};

void PrintTo(const Seen& seen, std::ostream* out) {
  *out << "events " << seen.events.size() << " emptied " << seen.lineEmptied << " next "
       << seen.awaitsNextLine << " writes " << seen.writes << " free " << seen.windowIsFree;
}

class ReceiveDispatcherTest : public SessionTest {
 protected:
  /// A line under this command and kind, in the middle of a transfer.
  Seen Dispatch(std::string_view received, int kind, std::string_view command) {
    Start();
    ActiveModuleType = kind;
    PendingCommand = command;
    EXPECT_TRUE(StartTransfer());
    WakeUpWait.Disable();
    MainWindow.transferBar.Start(2000);
    RxLine = received;
    Seen seen{};
    for (std::size_t i = 0; i < LinkEventCount; ++i) {
      LinkHandlers[i] = {[&seen, i] { seen.events.push_back(static_cast<LinkEvent>(i)); }};
    }
    ReceiveDispatcher();
    seen.lineEmptied = RxLine.empty();
    seen.awaitsNextLine = LinkTick.Enabled();
    seen.writes = WriterSelect.Enabled();
    seen.windowIsFree = MainWindow.bestand.enabled && MainWindow.taal.enabled &&
                        MainWindow.settings.enabled && MainWindow.Info.enabled &&
                        MainWindow.moduleList.enabled && MainWindow.connect.enabled &&
                        MainWindow.send.enabled && !TransferUnderWay;
    return seen;
  }
};

const Seen Rearmed{{}, true, true, false, false};
const Seen Freed{{}, false, false, false, true};

Seen RearmedWith(LinkEvent event) {
  return {{event}, true, true, false, false};
}
Seen FreedWith(LinkEvent event) {
  return {{event}, false, false, false, true};
}
Seen FreedAndEmptiedWith(LinkEvent event) {
  return {{event}, true, false, false, true};
}

TEST_F(ReceiveDispatcherTest, TheAcknowledgeOfTheOutputsTestEnablesItsStopButton) {
  for (const int kind : {0, 1, 4, 11}) {
    EXPECT_EQ(Dispatch("M80000", kind, "T80300"), RearmedWith(LinkEvent::OutputsTestReady)) << kind;
  }
}

TEST_F(ReceiveDispatcherTest, TheAcknowledgeOfTheButtonTestEnablesItsStopButton) {
  for (const int kind : {0, 1, 4, 5, 9, 11}) {
    EXPECT_EQ(Dispatch("M80000", kind, "T80200"), RearmedWith(LinkEvent::ButtonTestReady)) << kind;
  }
}

TEST_F(ReceiveDispatcherTest, TheAcknowledgeOfBothDetectorTestsEnablesTheirStopButton) {
  EXPECT_EQ(Dispatch("M80000", 5, "T80300"), RearmedWith(LinkEvent::DetectorTestReady));
  EXPECT_EQ(Dispatch("M80000", 5, "T80400"), RearmedWith(LinkEvent::DetectorTestReady));
}

TEST_F(ReceiveDispatcherTest, TheAcknowledgeOfTheLineTestEnablesItsStopButton) {
  for (const int kind : {0, 1, 4, 5, 9, 11}) {
    EXPECT_EQ(Dispatch("M80000", kind, "T80100"), RearmedWith(LinkEvent::LineTestReady)) << kind;
  }
}

TEST_F(ReceiveDispatcherTest, TheTestsOfLightAndClockHaveNoStopButton) {
  for (const char* command : {"T80300", "T80500"}) {
    EXPECT_EQ(Dispatch("M80000", 9, command), Rearmed) << command;
  }
}

TEST_F(ReceiveDispatcherTest, EveryOtherReadAcknowledgeIsPassedOver) {
  for (const int kind : AllKinds) EXPECT_EQ(Dispatch("M80000", kind, "T80000"), Rearmed) << kind;
  EXPECT_EQ(Dispatch("M80000", 9, "T80300"), Rearmed);
  EXPECT_EQ(Dispatch("M80000", 9, "T80400"), Rearmed);
  EXPECT_EQ(Dispatch("M80000", NoModule, "T80000"), Rearmed);
}

TEST_F(ReceiveDispatcherTest, OnlyTheFirstSixCharactersOfAnAcknowledgeCount) {
  EXPECT_EQ(Dispatch("M80000 and more", 0, "T80000"), Rearmed);
  EXPECT_TRUE(Dispatch("M70000 and more", 0, "T70000").writes);
}

TEST_F(ReceiveDispatcherTest, TheWriteAcknowledgeStartsTheWriterWithTheReceptionOff) {
  for (const int kind : AllKinds) {
    EXPECT_EQ(Dispatch("M70000", kind, "T70000"), (Seen{{}, true, false, true, false})) << kind;
  }
}

TEST_F(ReceiveDispatcherTest, TheEndOfAMasterTableFreesTheWindowAndOpensItsScreen) {
  EXPECT_EQ(Dispatch("STOP", 9, "T81000"), FreedAndEmptiedWith(LinkEvent::ContextsRead));
  EXPECT_EQ(Dispatch("STOP", 9, "T82000"), FreedAndEmptiedWith(LinkEvent::TimeProgramsRead));
  EXPECT_EQ(Dispatch("STOP", 9, "T83000"), FreedAndEmptiedWith(LinkEvent::LightProgramsRead));
}

TEST_F(ReceiveDispatcherTest, TheEndOfADisplayTableDoesNothing) {
  for (const char* command : {"T81000", "T83000"}) {
    EXPECT_EQ(Dispatch("STOP", 3, command), (Seen{{}, false, false, false, false})) << command;
  }
}

TEST_F(ReceiveDispatcherTest, TheEndOfALineTestIsToldToItsScreen) {
  for (const int kind : {0, 1, 4, 5, 9, 11}) {
    EXPECT_EQ(Dispatch("STOP", kind, "T80100"), FreedWith(LinkEvent::TestEnded)) << kind;
  }
}

TEST_F(ReceiveDispatcherTest, TheEndOfTheLightSensorAndClockTestsIsToldToTheirScreen) {
  EXPECT_EQ(Dispatch("STOP", 9, "T80500"), FreedWith(LinkEvent::TestEnded));
  EXPECT_EQ(Dispatch("STOP", 9, "T80300"), FreedWith(LinkEvent::TestEnded));
}

TEST_F(ReceiveDispatcherTest, TheEndOfALiveTestIsReady) {
  for (const char* command : {"T80100", "T80500", "T80300"}) {
    Dispatch("STOP", 9, command);
    EXPECT_EQ(MainWindow.status.caption, "Ready") << command;
  }
}

TEST_F(ReceiveDispatcherTest, NoRowOfACommandHoldsWhileThereIsNone) {
  EXPECT_EQ(Dispatch("STOP", 9, ""), Freed);
  EXPECT_EQ(Dispatch("M80000", 5, ""), Rearmed);
}

TEST_F(ReceiveDispatcherTest, AScreenThatStartsTheNextTransferIsNotDisturbed) {
  Start();
  ActiveModuleType = 3;
  PendingCommand = "T81000";
  ASSERT_TRUE(StartTransfer());
  WakeUpWait.Disable();
  MainWindow.transferBar.Start(2000);
  LinkHandlers[static_cast<std::size_t>(LinkEvent::DisplayRead)] = {[] { StartRequest("T83000"); }};
  RxLine = "M3019000";
  ReceiveDispatcher();
  EXPECT_FALSE(LinkTick.Enabled());
  EXPECT_TRUE(WakeUpWait.Enabled());
  EXPECT_TRUE(TransferUnderWay);
}

TEST_F(ReceiveDispatcherTest, NoScreenOpensAtTheEndOfAReadThatASendRepeats) {
  Start();
  ActiveModuleType = 9;
  PendingCommand = "T81000";
  int opened = 0;
  LinkHandlers[static_cast<std::size_t>(LinkEvent::ContextsRead)] = {[&] { ++opened; }};
  for (const int sent : {0, 1}) {
    WriteInProgress = sent;
    RxLine = "STOP";
    ReceiveDispatcher();
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(WriteInProgress.Number(), 0);
  }
}

TEST_F(ReceiveDispatcherTest, TheEndOfTheModuleScanIsReadyAndToldToNobody) {
  EXPECT_EQ(Dispatch("STOP", 9, "T80400"), Freed);
  EXPECT_EQ(MainWindow.status.caption, "Ready");
}

TEST_F(ReceiveDispatcherTest, EveryOtherEndFreesTheWindow) {
  for (const int kind : AllKinds) EXPECT_EQ(Dispatch("STOP", kind, "T80000"), Freed) << kind;
  for (const char* command : {"T81000", "T82000", "T83000"}) {
    EXPECT_EQ(Dispatch("STOP", 2, command), Freed) << command;
  }
  EXPECT_EQ(Dispatch("STOP", 3, "T80000"), Freed);
  EXPECT_EQ(Dispatch("STOP", 3, "T85000"), Freed);
  EXPECT_EQ(Dispatch("STOP", 0, "T80200"), FreedWith(LinkEvent::TestEnded));
  EXPECT_EQ(Dispatch("STOP", 5, "T80300"), FreedWith(LinkEvent::TestEnded));
  EXPECT_EQ(Dispatch("STOP", NoModule, "T80000"), Freed);
}

TEST_F(ReceiveDispatcherTest, OnlyTheFirstFourCharactersOfTheEndCount) {
  EXPECT_EQ(Dispatch("STOPPED", 0, "T80000"), Freed);
}

TEST_F(ReceiveDispatcherTest, TheEndOfAReadThatASendRepeatedIsNoWriteAnyMore) {
  Start();
  ActiveModuleType = 9;
  PendingCommand = "T80000";
  WriteInProgress = 1;
  RxLine = "STOP";
  ReceiveDispatcher();
  EXPECT_EQ(WriteInProgress.Number(), 0);
}

TEST_F(ReceiveDispatcherTest, ACellLineWithNoImageIsDroppedAndStopsTheReception) {
  const Seen seen = Dispatch("C0000005", NoModule, "T80000");
  EXPECT_EQ(seen, (Seen{{}, false, false, false, false}));
  EXPECT_TRUE(ButtonImage[0].IsEmpty());
}

TEST_F(ReceiveDispatcherTest, ALineOfALiveTestGoesToItsScreen) {
  struct {
    int kind;
    const char* command;
  } const tests[] = {{0, "T80100"}, {1, "T80200"}, {4, "T80300"}, {5, "T80400"},
                     {9, "T80300"}, {9, "T80500"}, {11, "T80200"}};
  for (const auto& test : tests) {
    EXPECT_EQ(Dispatch("X1234567", test.kind, test.command),
              RearmedWith(LinkEvent::TestLineReceived))
        << test.kind << " " << test.command;
  }
}

TEST_F(ReceiveDispatcherTest, ALineThatIsNothingElseIsTakenAsACell) {
  EXPECT_EQ(Dispatch("hello world", 0, "T80000"), Rearmed);
  EXPECT_EQ(ButtonImage[0], Cell(0));
}

}  // namespace
}  // namespace bkconf
