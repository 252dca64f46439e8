#include "platform/tick.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/virtual_clock.h"

namespace bkconf {
namespace {

/// What the ticks of these tests do; a tick's routine takes nothing, so it looks here.
struct Record {
  VirtualClock* clock = nullptr;
  std::vector<std::int64_t> times;  ///< of the runs of Probe, in milliseconds
  std::vector<std::string> order;   ///< the ticks in the order of their runs
  std::int64_t holdMs = 0;          ///< how long a run of Probe takes
  int endAfter = 0;                 ///< the run in which Probe disables itself; 0 for never
  int newPeriod = 0;                ///< what Probe sets as its period in its first run; 0 for none
};
Record record;

void RunProbe();
Tick Probe{"Probe", 10, RunProbe};
Tick First{"First", 10, [] { record.order.emplace_back("First"); }};
Tick Second{"Second", 10, [] { record.order.emplace_back("Second"); }};
Tick HandOver{"HandOver", 5, [] {
                record.order.emplace_back("HandOver");
                First.Disable();
              }};

void RunProbe() {
  record.times.push_back(record.clock->Now() / 1000);
  record.order.emplace_back("Probe");
  if (record.endAfter == static_cast<int>(record.times.size())) Probe.Disable();
  if (record.newPeriod > 0 && record.times.size() == 1) Probe.SetPeriod(record.newPeriod);
  record.clock->Hold(record.holdMs * 1000);
}

using Times = std::vector<std::int64_t>;
using Order = std::vector<std::string>;

class TickTest : public testing::Test {
 protected:
  TickTest() {
    ActiveTickDriver = &clock;
    record = {};
    record.clock = &clock;
    Probe.SetPeriod(10);
  }
  ~TickTest() override {
    for (Tick* tick : {&Probe, &First, &Second, &HandOver}) tick->Disable();
  }

  VirtualClock clock;
};

TEST_F(TickTest, ATickIsDisabledUntilItIsEnabled) {
  EXPECT_FALSE(Probe.Enabled());
  clock.Advance(100);
  EXPECT_EQ(record.times, Times{});
  Probe.Enable();
  EXPECT_TRUE(Probe.Enabled());
}

TEST_F(TickTest, TheFirstRunComesOnePeriodAfterTheTickWasEnabled) {
  clock.Advance(7);
  Probe.Enable();
  clock.Advance(9);
  EXPECT_EQ(record.times, Times{});
  clock.Advance(1);
  EXPECT_EQ(record.times, Times{17});
}

TEST_F(TickTest, ATickRunsEveryPeriodWhileItIsEnabled) {
  Probe.Enable();
  clock.Advance(45);
  EXPECT_EQ(record.times, (Times{10, 20, 30, 40}));
}

TEST_F(TickTest, ADisabledTickRunsNoMore) {
  Probe.Enable();
  clock.Advance(15);
  Probe.Disable();
  EXPECT_FALSE(Probe.Enabled());
  clock.Advance(100);
  EXPECT_EQ(record.times, Times{10});
}

TEST_F(TickTest, DisablingTwiceIsAsGoodAsOnce) {
  Probe.Enable();
  Probe.Disable();
  Probe.Disable();
  clock.Advance(100);
  EXPECT_EQ(record.times, Times{});
}

TEST_F(TickTest, EnablingAnEnabledTickStartsItsIntervalAnew) {
  Probe.Enable();
  clock.Advance(6);
  Probe.Enable();
  clock.Advance(9);
  EXPECT_EQ(record.times, Times{});
  clock.Advance(11);
  EXPECT_EQ(record.times, (Times{16, 26}));
}

TEST_F(TickTest, ADisabledAndEnabledTickStartsItsIntervalAnew) {
  Probe.Enable();
  clock.Advance(9);
  Probe.Disable();
  Probe.Enable();
  clock.Advance(9);
  EXPECT_EQ(record.times, Times{});
  clock.Advance(1);
  EXPECT_EQ(record.times, Times{19});
}

TEST_F(TickTest, ANewPeriodStartsTheIntervalAnew) {
  Probe.Enable();
  clock.Advance(6);
  Probe.SetPeriod(3);
  EXPECT_EQ(Probe.Period(), 3);
  clock.Advance(6);
  EXPECT_EQ(record.times, (Times{9, 12}));
}

TEST_F(TickTest, ANewPeriodOfADisabledTickDoesNotEnableIt) {
  Probe.SetPeriod(3);
  EXPECT_FALSE(Probe.Enabled());
  clock.Advance(100);
  EXPECT_EQ(record.times, Times{});
  Probe.Enable();
  clock.Advance(3);
  EXPECT_EQ(record.times, Times{103});
}

TEST_F(TickTest, ANewPeriodSetByTheRoutineHoldsFromTheNextInterval) {
  record.newPeriod = 25;
  Probe.Enable();
  clock.Advance(70);
  EXPECT_EQ(record.times, (Times{10, 35, 60}));
}

TEST_F(TickTest, ARoutineThatDisablesItsOwnTickRunsNoMore) {
  record.endAfter = 2;
  Probe.Enable();
  clock.Advance(100);
  EXPECT_EQ(record.times, (Times{10, 20}));
  EXPECT_FALSE(Probe.Enabled());
}

TEST_F(TickTest, ThePeriodCountsFromTheStartOfARun) {
  record.holdMs = 4;
  Probe.Enable();
  clock.Advance(45);
  EXPECT_EQ(record.times, (Times{10, 20, 30, 40}));
}

TEST_F(TickTest, ALongRunDelaysTheNextAndNoneIsMadeUpFor) {
  record.holdMs = 35;
  Probe.Enable();
  // Three periods pass during the first run; one run follows it, not three.
  EXPECT_TRUE(clock.RunUntil([] { return record.times.size() == 2; }, 1000));
  record.holdMs = 0;
  EXPECT_TRUE(clock.RunUntil([] { return record.times.size() == 4; }, 1000));
  EXPECT_EQ(record.times, (Times{10, 45, 80, 90}));
}

TEST_F(TickTest, TicksThatFallDueTogetherRunInTheOrderOfTheirArming) {
  Second.Enable();
  First.Enable();
  clock.Advance(25);
  EXPECT_EQ(record.order, (Order{"Second", "First", "Second", "First"}));
}

TEST_F(TickTest, ATickThatAnotherDisablesBeforeItIsDueDoesNotRun) {
  First.Enable();
  HandOver.Enable();
  clock.Advance(12);
  EXPECT_EQ(record.order, (Order{"HandOver", "HandOver"}));
}

TEST_F(TickTest, ALateTickDoesNotOvertakeAnEarlierOne) {
  record.holdMs = 30;
  record.endAfter = 1;
  Probe.Enable();
  clock.Advance(2);
  First.Enable();
  clock.Advance(1);
  Second.Enable();
  // Both fall due while the probe holds the thread.
  EXPECT_TRUE(clock.RunUntil([] { return record.order.size() == 3; }, 1000));
  EXPECT_EQ(record.order, (Order{"Probe", "First", "Second"}));
}

TEST_F(TickTest, RunDoesNothingWhileTheTickIsDisabled) {
  Probe.Run();
  EXPECT_EQ(record.times, Times{});
  Probe.Enable();
  Probe.Run();
  EXPECT_EQ(record.times, Times{0});
}

}  // namespace
}  // namespace bkconf
