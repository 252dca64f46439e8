#include <gtest/gtest.h>

#include "diagnostics/clock_panel.h"
#include "diagnostics/diagnostics_test.h"
#include "link/transfer.h"

namespace bkconf {
namespace {

/// The clock of a master beside that of the PC.
class ClockTestTest : public DiagnosticsTest {
 protected:
  ClockTestTest() { OpenClock(); }

  void OpenClock(int language = 1) {
    Open(9, language);
    Choose("clockChoice");
  }
  void Ask() { Run(panel.ask); }
  /// Asks, and the master answers: 08:30 on Monday 2 March 2026.
  void AskAndAnswer() {
    Ask();
    Tell("M0830");
    Tell("M020326-2");
    Tell("STOP");
    WritesSince();
  }
  static std::string Shown(const ClockFields& clock) {
    return clock.hour.caption + " " + clock.date.caption + " " + clock.weekday.caption;
  }
  void ExpectSynchronise(bool enabled, const std::string& caption = "Synchroniseren") const {
    EXPECT_EQ(panel.synchronise.enabled, enabled);
    EXPECT_EQ(panel.synchronise.caption, caption);
  }

  ClockPanel& panel = DiagnosticsScreen.clock;
};

// --- The clock of the PC ------------------------------------------------------------------------

TEST_F(ClockTestTest, ThePcsClockIsShownAtOnceAndEverySecond) {
  EXPECT_EQ(Shown(panel.pc), "09:05:03 07-03-2026 7");
  now.second = 4;
  clock.Advance(999);
  EXPECT_EQ(panel.pc.hour.caption, "09:05:03");
  clock.Advance(1);
  EXPECT_EQ(panel.pc.hour.caption, "09:05:04");
  now = {.date = {.year = 2026, .month = 12, .day = 31},
         .hour = 23,
         .minute = 59,
         .second = 59,
         .weekday = 5};
  clock.Advance(1000);
  EXPECT_EQ(Shown(panel.pc), "23:59:59 31-12-2026 5");
}

TEST_F(ClockTestTest, SundayIsTheFirstDay) {
  now.weekday = 1;
  clock.Advance(1000);
  EXPECT_EQ(panel.pc.weekday.caption, "1");
}

TEST_F(ClockTestTest, ThePcsClockRunsWhileTheMasterIsAsked) {
  Ask();
  now.second = 40;
  clock.Advance(1000);
  EXPECT_EQ(panel.pc.hour.caption, "09:05:40");
  EXPECT_TRUE(PcClock.Enabled());
}

TEST_F(ClockTestTest, LeavingThePanelStopsThePcsClock) {
  Choose("lineChoice");
  EXPECT_FALSE(PcClock.Enabled());
  Choose("clockChoice");
  EXPECT_TRUE(PcClock.Enabled());
  DiagnosticsScreen.leave.Click();
  EXPECT_FALSE(PcClock.Enabled());
}

// --- Asking -------------------------------------------------------------------------------------

TEST_F(ClockTestTest, BeforeAnAnswerThereIsNothingToSend) {
  ExpectSynchronise(false);
  EXPECT_EQ(Shown(panel.master), "  ");
  Ask();
  ExpectSynchronise(false);
  Tell("M0830");
  ExpectSynchronise(false);
}

TEST_F(ClockTestTest, TwoLinesFillTheMastersClock) {
  Ask();
  Tell("M0830");
  EXPECT_EQ(Shown(panel.master), "08:30  ");
  EXPECT_EQ(DiagnosticsScreen.bar.Value(), 1);
  Tell("M020326-2");
  EXPECT_EQ(Shown(panel.master), "08:30 02-03-2026 2");
  EXPECT_EQ(DiagnosticsScreen.bar.Value(), 2);
  ExpectSynchronise(true);
  Tell("STOP");
  ExpectSynchronise(true);
  ExpectFree(true);
}

TEST_F(ClockTestTest, TheLinesAreToldByTheirOrder) {
  Ask();
  Tell("x020326-2");
  EXPECT_EQ(Shown(panel.master), "02:03  ");
  Tell("x235912?7");
  EXPECT_EQ(Shown(panel.master), "02:03 23-59-2012 7");
}

TEST_F(ClockTestTest, FurtherLinesAreDropped) {
  Ask();
  Tell("M0830");
  Tell("M020326-2");
  for (const char* text : {"M2359", "M311299-7", "M10042"}) Tell(text);
  EXPECT_EQ(Shown(panel.master), "08:30 02-03-2026 2");
  EXPECT_EQ(DiagnosticsScreen.bar.Value(), 2);
}

TEST_F(ClockTestTest, AShortLineIsNeitherTimeNorDate) {
  Ask();
  for (const char* text : {"", "M", "M083"}) Tell(text);
  EXPECT_EQ(Shown(panel.master), "  ");
  Tell("M0830");
  for (const char* text : {"", "M0203", "M020326-"}) Tell(text);
  EXPECT_EQ(Shown(panel.master), "08:30  ");
  EXPECT_EQ(DiagnosticsScreen.bar.Value(), 1);
  ExpectSynchronise(false);
  Tell("M020326-2");
  EXPECT_EQ(Shown(panel.master), "08:30 02-03-2026 2");
}

TEST_F(ClockTestTest, CharactersThatAreNoDigitsAreShownAsTheyCome) {
  Ask();
  Tell("Mab:c");
  Tell("Mxx?!z1-w");
  EXPECT_EQ(Shown(panel.master), "ab::c xx-?!-2000 w");
}

TEST_F(ClockTestTest, AskingAgainEmptiesTheFields) {
  AskAndAnswer();
  panel.ask.Click();
  EXPECT_EQ(Shown(panel.master), "  ");
  ExpectSynchronise(false);
  Run(panel.ask);
  EXPECT_EQ(Shown(panel.master), "  ");
}

TEST_F(ClockTestTest, AnEndWithoutAnAnswerLeavesNothingToSend) {
  Ask();
  Tell("STOP");
  ExpectFree(true);
  ExpectSynchronise(false);
  // The next answer begins with the time again.
  Ask();
  Tell("M0830");
  EXPECT_EQ(panel.master.hour.caption, "08:30");
}

// --- Sending ------------------------------------------------------------------------------------

TEST_F(ClockTestTest, TwoTicksSendTimeAndDate) {
  AskAndAnswer();
  line.calls.clear();
  const std::int64_t start = clock.Now();
  panel.synchronise.Click();
  EXPECT_EQ(Status(), "Versturen klok...");
  EXPECT_TRUE(DiagnosticsScreen.bar.visible);
  EXPECT_EQ(DiagnosticsScreen.bar.Maximum(), 2);
  ExpectSynchronise(false);
  EXPECT_EQ(WrittenSince(), "");
  clock.Advance(19);
  EXPECT_EQ(WrittenSince(), "");
  clock.Advance(21);
  const std::vector<FakeLine::Written> writes = WritesSince();
  ASSERT_EQ(writes.size(), 2U);
  EXPECT_EQ(writes[0].characters, "T09057\n\r");
  EXPECT_EQ(writes[0].time - start, 20'000);
  EXPECT_EQ(writes[1].characters, "T070326\n\r");
  EXPECT_EQ(writes[1].time - start, 40'000);
  EXPECT_FALSE(ClockSend.Enabled());
  EXPECT_EQ(line.calls, std::vector<std::string>{});
}

TEST_F(ClockTestTest, SentTheMasterHasTheTimeOfThePc) {
  AskAndAnswer();
  panel.synchronise.Click();
  clock.Advance(20);
  EXPECT_EQ(Shown(panel.master), "08:30 02-03-2026 2");
  EXPECT_EQ(DiagnosticsScreen.bar.Value(), 1);
  clock.Advance(20);
  EXPECT_EQ(Shown(panel.master), "09:05 07-03-2026 7");
  EXPECT_EQ(Status(), "Ready");
  EXPECT_FALSE(DiagnosticsScreen.bar.visible);
  ExpectSynchronise(false, "OK");
  clock.Advance(500);
  EXPECT_EQ(WrittenSince(), "T09057\n\rT070326\n\r");
}

TEST_F(ClockTestTest, BothLinesAreOfTheSameMoment) {
  AskAndAnswer();
  now.hour = 23;
  now.minute = 59;
  now.second = 59;
  panel.synchronise.Click();
  clock.Advance(20);
  now = {.date = {.year = 2026, .month = 3, .day = 8}, .weekday = 1};
  clock.Advance(20);
  EXPECT_EQ(WrittenSince(), "T23597\n\rT070326\n\r");
  EXPECT_EQ(Shown(panel.master), "23:59 07-03-2026 7");
}

TEST_F(ClockTestTest, SendingIsToldInFrench) {
  OpenClock(2);
  AskAndAnswer();
  panel.synchronise.Click();
  EXPECT_EQ(Status(), "Envoyer horloge...");
  clock.Advance(40);
  ExpectSynchronise(false, "OK");
}

TEST_F(ClockTestTest, AnotherAnswerLetsItBeSentAgain) {
  AskAndAnswer();
  panel.synchronise.Click();
  clock.Advance(40);
  AskAndAnswer();
  ExpectSynchronise(true);
}

TEST_F(ClockTestTest, AskingWhileItIsSentEndsTheSending) {
  AskAndAnswer();
  panel.synchronise.Click();
  clock.Advance(20);
  WritesSince();
  panel.ask.Click();
  EXPECT_FALSE(ClockSend.Enabled());
  clock.Advance(30);
  EXPECT_EQ(WrittenSince(), "");
  ExpectSynchronise(false);
  LeaveTransfer();
}

TEST_F(ClockTestTest, APortThatVanishesEndsTheSending) {
  for (const std::int64_t before : {0, 20}) {
    OpenClock();
    AskAndAnswer();
    panel.synchronise.Click();
    clock.Advance(before);
    line.failed = true;
    EXPECT_THROW(clock.Advance(20), RuntimeError);
    LeaveFailedTransfer();
    EXPECT_FALSE(ClockSend.Enabled());
    EXPECT_EQ(Status(), "Ready");
    EXPECT_FALSE(DiagnosticsScreen.bar.visible);
    ExpectFree(true);
    line.failed = false;
    AskAndAnswer();
    ExpectSynchronise(true);
  }
}

// --- Leaving the panel --------------------------------------------------------------------------

class ClockLeaveTest : public ClockTestTest {
 protected:
  /// The stop goes out on a port that was opened anew, with a pause of 1000 turns behind each.
  void ExpectStop(std::int64_t start) {
    EXPECT_EQ(line.calls, (std::vector<std::string>{"close", "open"}));
    const std::vector<FakeLine::Written> writes = WritesSince();
    ASSERT_EQ(writes.size(), 50U);
    for (std::size_t i = 0; i < writes.size(); ++i) {
      EXPECT_EQ(writes[i].characters, "\x54\x39\x39\x39\x39\x39\x0A\x0D");
      EXPECT_EQ(writes[i].time - start, static_cast<std::int64_t>(i) * 1000) << i;
    }
    EXPECT_EQ(clock.Now() - start, 50'000);
  }
};

TEST_F(ClockLeaveTest, AfterAQuestionTheModuleIsTold) {
  for (const bool byChoice : {true, false}) {
    OpenClock();
    AskAndAnswer();
    line.calls.clear();
    const std::int64_t start = clock.Now();
    if (byChoice) {
      Choose("lineChoice");
    } else {
      DiagnosticsScreen.leave.Click();
      EXPECT_FALSE(DiagnosticsScreen.shown);
    }
    ExpectStop(start);
    EXPECT_FALSE(PcClock.Enabled());
  }
}

TEST_F(ClockLeaveTest, TheModuleIsToldOnce) {
  AskAndAnswer();
  Choose("lineChoice");
  WritesSince();
  Choose("clockChoice");
  Choose("lineChoice");
  EXPECT_EQ(WrittenSince(), "");
}

TEST_F(ClockLeaveTest, WithoutAQuestionNothingIsSentAndNoPortOpened) {
  line.calls.clear();
  Choose("lineChoice");
  Choose("clockChoice");
  DiagnosticsScreen.leave.Click();
  EXPECT_EQ(line.calls, std::vector<std::string>{});
  EXPECT_EQ(WrittenSince(), "");
}

TEST_F(ClockLeaveTest, ARefusedQuestionCountsAsOne) {
  Begin(panel.ask, "DISPL2");
  WritesSince();
  line.calls.clear();
  const std::int64_t start = clock.Now();
  DiagnosticsScreen.leave.Click();
  ExpectStop(start);
}

TEST_F(ClockLeaveTest, AClosedPortIsOnlyOpened) {
  AskAndAnswer();
  line.Close();
  line.calls.clear();
  Choose("lineChoice");
  EXPECT_EQ(line.calls, std::vector<std::string>{"open"});
  EXPECT_EQ(WritesSince().size(), 50U);
}

TEST_F(ClockLeaveTest, APortThatCannotBeOpenedLetsThePanelBeLeft) {
  AskAndAnswer();
  line.canOpen = false;
  DiagnosticsScreen.leave.Click();
  EXPECT_FALSE(DiagnosticsScreen.shown);
  EXPECT_EQ(WrittenSince(), "");
}

TEST_F(ClockLeaveTest, APortThatHasVanishedLetsThePanelBeLeftAtTheSecondTry) {
  AskAndAnswer();
  line.failed = true;
  EXPECT_THROW(DiagnosticsScreen.leave.Click(), RuntimeError);
  LeaveFailedTransfer();
  DiagnosticsScreen.leave.Click();
  EXPECT_FALSE(DiagnosticsScreen.shown);
}

TEST_F(ClockLeaveTest, LeavingEndsTheSending) {
  for (const bool byChoice : {true, false}) {
    OpenClock();
    AskAndAnswer();
    panel.synchronise.Click();
    clock.Advance(20);
    if (byChoice) {
      Choose("lineChoice");
      EXPECT_EQ(Status(), "Ready");
      EXPECT_FALSE(DiagnosticsScreen.bar.visible);
    } else {
      DiagnosticsScreen.leave.Click();
    }
    WritesSince();
    clock.Advance(100);
    EXPECT_EQ(WrittenSince(), "");
    EXPECT_FALSE(ClockSend.Enabled());
  }
}

}  // namespace
}  // namespace bkconf
