#include "end_to_end/deadline.h"

#include <poll.h>

#include <algorithm>

namespace end_to_end {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds shortestRest(20);
constexpr milliseconds longestRest(250);
constexpr int restingPart = 8;  // of the time waited so far

// A look at the windows or at the line costs more than the rest before it, for the tool as well.
// What has not come for long is looked for less often: it comes seen a little later than it might.
int RestAfter(Clock::duration waited) {
  const auto part = std::chrono::duration_cast<milliseconds>(waited) / restingPart;
  return static_cast<int>(std::clamp(part, shortestRest, longestRest).count());
}

}  // namespace

bool WaitFor(const std::function<bool()>& condition, milliseconds limit) {
  const auto start = Clock::now();
  while (!condition()) {
    const auto waited = Clock::now() - start;
    if (waited > limit) return false;
    poll(nullptr, 0, RestAfter(waited));
  }
  return true;
}

}  // namespace end_to_end
