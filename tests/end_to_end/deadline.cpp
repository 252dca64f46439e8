#include "end_to_end/deadline.h"

#include <poll.h>

namespace end_to_end {

namespace {

constexpr int pollPeriod = 20;  // ms

}  // namespace

bool WaitFor(const std::function<bool()>& condition, std::chrono::milliseconds limit) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > deadline) return false;
    poll(nullptr, 0, pollPeriod);
  }
  return true;
}

}  // namespace end_to_end
