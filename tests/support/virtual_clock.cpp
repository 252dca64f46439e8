#include "support/virtual_clock.h"

#include <algorithm>
#include <tuple>

namespace bkconf {

void VirtualClock::Arm(Tick& tick) {
  Disarm(tick);
  alarms_.push_back({now_ + std::int64_t{1000} * tick.Period(), armed_++, &tick});
}

void VirtualClock::Disarm(Tick& tick) {
  std::erase_if(alarms_, [&tick](const Alarm& alarm) { return alarm.tick == &tick; });
}

bool VirtualClock::RunNext(std::int64_t end) {
  const auto next =
      std::min_element(alarms_.begin(), alarms_.end(), [](const Alarm& left, const Alarm& right) {
        return std::tie(left.due, left.order) < std::tie(right.due, right.order);
      });
  if (next == alarms_.end() || next->due > end) return false;
  now_ = std::max(now_, next->due);
  Tick& tick = *next->tick;
  alarms_.erase(next);
  tick.Run();
  return true;
}

void VirtualClock::Advance(std::int64_t milliseconds) {
  const std::int64_t end = now_ + milliseconds * 1000;
  while (RunNext(end)) {
  }
  now_ = std::max(now_, end);
}

bool VirtualClock::RunUntil(const std::function<bool()>& condition, std::int64_t limitMs) {
  const std::int64_t end = now_ + limitMs * 1000;
  while (!condition()) {
    if (now_ > end || !RunNext(end)) return condition();
  }
  return true;
}

}  // namespace bkconf
