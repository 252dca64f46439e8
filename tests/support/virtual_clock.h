// A clock that only moves when a test moves it, and the tick driver on it.
// All core tests run on it: a transfer of seconds takes milliseconds.
#pragma once

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <vector>

#include "platform/tick.h"

namespace bkconf {

/// Thrown when a routine spins for longer than any healthy module lets it, so that a wait that is
/// meant to be endless is a test that ends. Not a RuntimeError: nothing in the program catches it.
struct SpinLimit : std::runtime_error {
  SpinLimit() : std::runtime_error("spin limit") {}
};

class VirtualClock : public TickDriver {
 public:
  /// Microseconds since the clock was made.
  std::int64_t Now() const { return now_; }

  /// Runs every tick that falls due within the next `milliseconds`, in the order of their due
  /// times.
  void Advance(std::int64_t milliseconds);
  /// Runs ticks until the condition holds; false when `limitMs` are over before, or no tick is
  /// armed.
  bool RunUntil(const std::function<bool()>& condition, std::int64_t limitMs);
  /// For loops that hold the thread: moves the time on while no tick can run.
  void Hold(std::int64_t microseconds) { now_ += microseconds; }

  void Arm(Tick& tick) override;
  void Disarm(Tick& tick) override;

 private:
  struct Alarm {
    std::int64_t due;
    std::int64_t order;  ///< of arming, for alarms of the same due time
    Tick* tick;
  };

  /// Runs the next tick when it is due at or before `end`.
  bool RunNext(std::int64_t end);

  std::int64_t now_ = 0;
  std::int64_t armed_ = 0;
  std::vector<Alarm> alarms_;
};

}  // namespace bkconf
