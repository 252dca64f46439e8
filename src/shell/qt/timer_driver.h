// Runs the ticks on Qt's timers. The program puts it behind `ActiveTickDriver`.
#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <memory>
#include <unordered_map>

#include "platform/tick.h"

namespace bkconf {

/// One single-shot timer for each tick, made when it is first armed. A periodic timer would fire
/// early after a late run, and no interval may be shorter than the period.
class TimerDriver : public TickDriver {
 public:
  void Arm(Tick& tick) override;
  void Disarm(Tick& tick) override;

 private:
  struct Alarm {
    QTimer timer;
    QElapsedTimer sinceArmed;
  };

  Alarm& AlarmOf(Tick& tick);
  static void Ring(Tick& tick, Alarm& alarm);

  std::unordered_map<Tick*, std::unique_ptr<Alarm>> alarms_;
};

}  // namespace bkconf
