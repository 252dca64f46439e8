#include "link/bus_link.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "image/commands.h"
#include "link/link_ticks.h"
#include "link/transfer.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

using virtual_module::Fault;

/// The line discipline with a script of characters in place of a module.
class BusLinkTest : public SessionTest {
 protected:
  BusLinkTest() {
    holdClock_ = BusyLoop;
    BusyLoop = [this](std::int64_t last) {
      loops.push_back(last);
      holdClock_(last);
    };
    Start();
  }

  /// A transfer for the command is started, and the module polls at once.
  void StartWithPoll(std::string_view command = ReadBase) {
    PendingCommand = command;
    ASSERT_TRUE(StartTransfer());
  }

  /// One tick of the wake-up with a poll on the line.
  void AnswerPoll() {
    class PollingLine : public FakeLine {
     public:
      using FakeLine::FakeLine;
      void FlushInput() override {
        FakeLine::FlushInput();
        if (!polled) Receive("xyM");
        polled = true;
      }
      bool polled = false;
    };
    PollingLine polling(clock);
    polling.Open();
    Port = &polling;
    clock.Advance(5);
    written = polling.written;
    calls = polling.calls;
    Port = &line;
    line.Open();
  }

  std::vector<std::int64_t> loops;
  std::vector<FakeLine::Written> written;
  std::vector<std::string> calls;

 private:
  std::function<void(std::int64_t)> holdClock_;
};

TEST_F(BusLinkTest, APollIsAnsweredWithTwentyTwoSingleWritesOfD) {
  StartWithPoll();
  AnswerPoll();
  ASSERT_EQ(written.size(), 22U);
  for (const auto& each : written) EXPECT_EQ(each.characters, "D");
}

TEST_F(BusLinkTest, ThePauseBetweenTwoDIsTheHundredthOfTheCharacterPause) {
  CharDelayCount = 2050;
  StartWithPoll();
  AnswerPoll();
  EXPECT_EQ(loops, std::vector<std::int64_t>(21, 20));
}

TEST_F(BusLinkTest, ACharacterPauseBelowAHundredGivesOneTurnBetweenTwoD) {
  CharDelayCount = 99;
  StartWithPoll();
  AnswerPoll();
  EXPECT_EQ(loops, std::vector<std::int64_t>(21, 0));
}

TEST_F(BusLinkTest, TheInputIsFlushedBeforeThePollAndAfterTheBurst) {
  StartWithPoll();
  AnswerPoll();
  EXPECT_EQ(calls, (std::vector<std::string>{"open", "flush", "flush"}));
}

TEST_F(BusLinkTest, AfterTheBurstTheIdentityIsAwaitedEveryTenMilliseconds) {
  IdentityWait.SetPeriod(70);
  StartWithPoll();
  AnswerPoll();
  EXPECT_FALSE(WakeUpWait.Enabled());
  EXPECT_TRUE(IdentityWait.Enabled());
  EXPECT_EQ(IdentityWait.Period(), 10);
}

TEST_F(BusLinkTest, EveryLookAtTheLineMovesTheBarUntilItOverflowsAndTheWaitStartsAgain) {
  StartWithPoll();
  int highest = 0;
  MainWindow.transferBar.draw = [&] {
    highest = std::max(highest, MainWindow.transferBar.Value());
  };
  clock.Advance(5);
  EXPECT_EQ(highest, 20000);
  EXPECT_EQ(MainWindow.transferBar.Value(), 0);
  EXPECT_TRUE(WakeUpWait.Enabled());
  EXPECT_EQ(MainWindow.status.caption, "Module zoeken...");
  EXPECT_TRUE(messages.told.empty());
  EXPECT_EQ(line.AllWritten(), "");
}

TEST_F(BusLinkTest, APollThatCameBetweenTwoTicksIsFlushed) {
  StartWithPoll();
  clock.Advance(5);  // overflows
  line.Receive("M");
  clock.Advance(5);
  EXPECT_EQ(line.AllWritten(), "");
}

/// A line on which a poll is found at the look of the given number, counted from 1.
class LatePollLine : public FakeLine {
 public:
  LatePollLine(VirtualClock& clock, int look) : FakeLine(clock), looksLeft_(look) {}
  int BytesWaiting() override {
    if (--looksLeft_ == 0) Receive("M");
    return FakeLine::BytesWaiting();
  }

 private:
  int looksLeft_;
};

TEST_F(BusLinkTest, APollAtTheLastLookBeforeTheOverflowIsAnsweredAndOneLookLaterNot) {
  for (const int look : {20000, 20001}) {
    LatePollLine late(clock, look);
    late.Open();
    Port = &late;
    StartWithPoll();
    clock.Advance(5);
    EXPECT_EQ(late.AllWritten().size(), look == 20000 ? 22U : 0U) << look;
  }
  Port = &line;
}

/// A line whose looks take no time, and that has a poll at the look of the given number.
class QuickLine : public FakeLine {
 public:
  QuickLine(VirtualClock& clock, int look) : FakeLine(clock), looksLeft_(look) {}
  int BytesWaiting() override {
    if (--looksLeft_ != 0) return 0;
    Receive("M");
    return 1;
  }
  int Flushes() const { return static_cast<int>(std::count(calls.begin(), calls.end(), "flush")); }

 private:
  int looksLeft_;
};

TEST_F(BusLinkTest, TheWaitForAPollBeginsFiveMillisecondsAfterTheStartAndAfterTheOneBefore) {
  QuickLine quick(clock, 20001);  // the first look of the second wait
  quick.Open();
  Port = &quick;
  StartWithPoll();
  clock.Advance(4);
  EXPECT_EQ(quick.Flushes(), 0);
  clock.Advance(1);
  EXPECT_EQ(quick.Flushes(), 1);
  clock.Advance(4);
  EXPECT_EQ(quick.Flushes(), 1);
  EXPECT_EQ(quick.AllWritten(), "");
  clock.Advance(1);
  // Before the poll, and behind the burst that answers it.
  EXPECT_EQ(quick.Flushes(), 3);
  EXPECT_EQ(quick.AllWritten(), std::string(22, 'D'));
  EXPECT_TRUE(IdentityWait.Enabled());
  Port = &line;
}

TEST_F(BusLinkTest, ACharacterBeforeThePollIsThrownAway) {
  StartWithPoll();
  AnswerPoll();  // "xyM"
  EXPECT_EQ(RxLine, "");
  EXPECT_TRUE(IdentityWait.Enabled());
}

TEST_F(BusLinkTest, APortThatFailsWhileThePollIsAwaitedLooksLikeNoModule) {
  StartWithPoll();
  line.failed = true;
  clock.Advance(50);
  EXPECT_TRUE(WakeUpWait.Enabled());
  EXPECT_EQ(MainWindow.transferBar.Value(), 0);
  EXPECT_EQ(MainWindow.status.caption, "Module zoeken...");
}

TEST_F(BusLinkTest, TheIdentityIsAwaitedAsLongAsNothingComes) {
  StartWithPoll();
  AnswerPoll();
  clock.Advance(10'000);
  EXPECT_TRUE(IdentityWait.Enabled());
  EXPECT_EQ(RxLine, "");
}

TEST_F(BusLinkTest, AnIdentityThatStopsWithinTheLineSpinsForEver) {
  StartWithPoll();
  AnswerPoll();
  line.Receive("DISP");
  EXPECT_THROW(clock.Advance(10), SpinLimit);
  EXPECT_EQ(RxLine, "DISP");
}

TEST_F(BusLinkTest, APollInPlaceOfTheIdentityGoesBackToTheWakeUp) {
  StartWithPoll();
  AnswerPoll();
  line.Receive("M");
  clock.Advance(10);
  EXPECT_TRUE(WakeUpWait.Enabled());
  EXPECT_FALSE(IdentityWait.Enabled());
  EXPECT_EQ(ActiveCode(), NoModule);
}

TEST_F(BusLinkTest, TheLineIsEmptyWhenTheCommandGoesOutSoThatTheAcknowledgeIsRecognised) {
  StartWithPoll();
  AnswerPoll();
  line.Receive("DISPL0\r");
  clock.Advance(10);
  EXPECT_EQ(ActiveCode(), 0);
  EXPECT_EQ(RxLine, "");
}

TEST_F(BusLinkTest, ACommandGoesOutCharacterByCharacterWithAPauseAfterEachOfItsSix) {
  CharDelayCount = 2000;
  LinkTick.SetPeriod(70);
  StartWithPoll();
  AnswerPoll();
  line.Receive("DISPL0\r");
  clock.Advance(10);
  loops.clear();
  line.written.clear();
  clock.Advance(29);
  EXPECT_TRUE(line.written.empty());  // 30 ms after the setup step
  clock.Advance(2);
  ASSERT_EQ(line.written.size(), 7U);
  EXPECT_EQ(line.AllWritten(), "T80000\r");
  EXPECT_EQ(loops, std::vector<std::int64_t>(6, 2000));
  for (std::size_t i = 1; i < 7; ++i) {
    EXPECT_EQ(line.written[i].time - line.written[i - 1].time, 2001) << i;
  }
  EXPECT_FALSE(CommandSend.Enabled());
  EXPECT_TRUE(LinkTick.Enabled());
  EXPECT_EQ(LinkTick.Period(), 1);
}

TEST_F(BusLinkTest, ASilentModuleAfterTheCommandIsAwaitedForEverAndTheWindowGoesOn) {
  StartWithPoll();
  AnswerPoll();
  line.Receive("DISPL0\r");
  clock.Advance(60'000);
  EXPECT_TRUE(LinkTick.Enabled());
  EXPECT_FALSE(MainWindow.bestand.enabled);
  EXPECT_FALSE(MainWindow.connect.enabled);
  EXPECT_EQ(MainWindow.status.caption, "Inladen van de gegevens...");
}

TEST_F(BusLinkTest, ALineThatStopsBeforeItsEndSpinsForEver) {
  StartWithPoll();
  AnswerPoll();
  line.Receive("DISPL0\r");
  clock.Advance(60);
  line.Receive("M80000\rM100");
  EXPECT_THROW(clock.Advance(1000), SpinLimit);
  EXPECT_EQ(RxLine, "M100");
}

TEST_F(BusLinkTest, OneTickTakesOneLineEvenWhenMoreWait) {
  StartWithPoll();
  AnswerPoll();
  line.Receive("DISPL0\r");
  clock.Advance(60);
  line.Receive("M80000\rC0000005\rC0001006\r");
  clock.Advance(1);
  EXPECT_TRUE(ButtonImage[0].IsEmpty());
  clock.Advance(1);
  EXPECT_EQ(ButtonImage[0], Cell(5));
  EXPECT_TRUE(ButtonImage[1].IsEmpty());
  clock.Advance(1);
  EXPECT_EQ(ButtonImage[1], Cell(6));
}

TEST_F(BusLinkTest, ATransferClosesAnOpenPortAndOpensItAgain) {
  ASSERT_TRUE(StartTransfer());
  line.calls.clear();
  ASSERT_TRUE(StartTransfer());
  EXPECT_EQ(line.calls, (std::vector<std::string>{"close", "open"}));
}

TEST_F(BusLinkTest, AStartEndsWhatTheLinkStillDoes) {
  for (Tick* tick : LinkTicks) tick->Enable();
  ASSERT_TRUE(StartTransfer());
  for (Tick* tick : LinkTicks) EXPECT_EQ(tick->Enabled(), tick == &WakeUpWait) << tick->name;
}

TEST_F(BusLinkTest, APortThatCannotBeOpenedEndsTheEventWithTheWindowLocked) {
  ActiveModuleType = 0;
  line.canOpen = false;
  EXPECT_FALSE(StartTransfer());
  EXPECT_FALSE(WakeUpWait.Enabled());
  EXPECT_EQ(MainWindow.status.caption, "Module zoeken...");
  EXPECT_TRUE(MainWindow.transferBar.visible);
  EXPECT_EQ(MainWindow.transferBar.Value(), 0);
  EXPECT_EQ(MainWindow.transferBar.Maximum(), 20000);
  EXPECT_FALSE(MainWindow.connect.enabled);
  EXPECT_FALSE(MainWindow.send.enabled);
  EXPECT_FALSE(MainWindow.bestand.enabled);
  EXPECT_FALSE(MainWindow.moduleList.enabled);
  EXPECT_TRUE(messages.told.empty());
}

TEST_F(BusLinkTest, ANegativePauseHoldsNothing) {
  CharDelayCount = -5;
  SendPaced("T000000");
  EXPECT_EQ(loops, std::vector<std::int64_t>(6, -1));
  EXPECT_EQ(line.written.front().time, line.written.back().time);
}

TEST_F(BusLinkTest, AModuleThatPollsAgainInPlaceOfItsIdentityIsReadAllTheSame) {
  Plug(0, Fault::PollDuringIdentity);
  ReadModule();
  EXPECT_EQ(MainWindow.status.caption, "Edit mode");
}

}  // namespace
}  // namespace bkconf
