// Ticks: named routines with a period. The transfers are state machines made of them.
// Two drivers run them: the window's precise timers, and the tests' virtual clock.
#pragma once

#include <functional>
#include <string_view>

namespace bkconf {

class Tick;

/// Calls an armed tick's `Run` once, `Period()` milliseconds or more after `Arm`.
class TickDriver {
 public:
  virtual ~TickDriver() = default;
  /// Starts the interval anew, from now.
  virtual void Arm(Tick& tick) = 0;
  virtual void Disarm(Tick& tick) = 0;
};

/// The driver in use; set before the first tick is enabled.
inline TickDriver* ActiveTickDriver = nullptr;

/// A routine that runs every `Period()` milliseconds while it is enabled: at least the period after
/// it was enabled, and at least the period after the start of the run before. A run that takes long
/// delays the next one, and none is made up for.
class Tick {
 public:
  Tick(std::string_view tickName, int periodMs, void (*routine)())
      : name(tickName), period_(periodMs), routine_(routine) {}
  Tick(const Tick&) = delete;
  Tick& operator=(const Tick&) = delete;

  const std::string_view name;

  bool Enabled() const { return enabled_; }
  int Period() const { return period_; }

  /// Starts the interval anew, also when it is enabled already.
  void Enable();
  void Disable();
  /// The interval of an enabled tick starts anew with the new period.
  void SetPeriod(int periodMs);

  /// For drivers: arms the next run first, so that the period counts from the start of this one,
  /// then runs the routine. A disabled tick does nothing.
  void Run();

 private:
  int period_;
  void (*routine_)();
  bool enabled_ = false;
};

}  // namespace bkconf
