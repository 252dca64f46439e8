#include <gtest/gtest.h>

#include <ctime>
#include <limits>

#include "platform/machine.h"

namespace bkconf {
namespace {

/// Processor time, in the unit of clock(): other programs on the machine do not count.
std::clock_t TimeOf(std::int64_t last) {
  const std::clock_t before = std::clock();
  RunBusyLoop(last);
  return std::clock() - before;
}

/// Far more turns than any processor makes in a millisecond.
constexpr std::int64_t Many = 30'000'000;

TEST(BusyLoopTest, NoCompilerRemovesTheTurns) {
  EXPECT_GT(TimeOf(Many), CLOCKS_PER_SEC / 1000);
}

TEST(BusyLoopTest, BelowZeroThereIsNoTurn) {
  const std::clock_t many = TimeOf(Many);
  EXPECT_LT(TimeOf(-1), many);
  EXPECT_LT(TimeOf(std::numeric_limits<std::int64_t>::min()), many);
}

TEST(BusyLoopTest, ZeroEndsAtOnce) {
  EXPECT_LT(TimeOf(0), TimeOf(Many));
}

TEST(BusyLoopTest, TheLoopInUseIsTheRealOneUntilATestReplacesIt) {
  const auto* loop = BusyLoop.target<void (*)(std::int64_t)>();
  ASSERT_NE(loop, nullptr);
  EXPECT_EQ(*loop, &RunBusyLoop);
}

}  // namespace
}  // namespace bkconf
