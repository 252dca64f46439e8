#include "setup/busy_loop_speed.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/machine.h"

namespace setup {
namespace {

using Clock = std::chrono::steady_clock;

double Nanoseconds(std::int64_t turns) {
  const auto start = Clock::now();
  // Counts from 0 to its argument, inclusive.
  bkconf::RunBusyLoop(turns - 1);
  return std::chrono::duration<double, std::nano>(Clock::now() - start).count();
}

}  // namespace

std::int64_t TurnsOf(std::chrono::nanoseconds pause) {
  const auto wanted = static_cast<double>(pause.count());
  std::int64_t turns = 1000;
  while (Nanoseconds(turns) < wanted) turns *= 2;
  // The median, so that a moment in which the computer did something else does not count.
  std::array<double, 15> times{};
  std::generate(times.begin(), times.end(), [turns] { return Nanoseconds(turns); });
  std::nth_element(times.begin(), times.begin() + times.size() / 2, times.end());
  const double median = times[times.size() / 2];
  return std::max<std::int64_t>(1, std::llround(static_cast<double>(turns) * wanted / median));
}

}  // namespace setup
