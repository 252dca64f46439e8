#include "shell/qt/timer_driver.h"

#include "shell/qt/event_guard.h"

namespace bkconf {

void TimerDriver::Arm(Tick& tick) {
  Alarm& alarm = AlarmOf(tick);
  alarm.sinceArmed.start();
  alarm.timer.start(tick.Period());
}

void TimerDriver::Disarm(Tick& tick) {
  AlarmOf(tick).timer.stop();
}

TimerDriver::Alarm& TimerDriver::AlarmOf(Tick& tick) {
  std::unique_ptr<Alarm>& alarm = alarms_[&tick];
  if (alarm == nullptr) {
    alarm = std::make_unique<Alarm>();
    alarm->timer.setSingleShot(true);
    alarm->timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&alarm->timer, &QTimer::timeout, &alarm->timer,
                     [&tick, &ring = *alarm] { Ring(tick, ring); });
  }
  return *alarm;
}

void TimerDriver::Ring(Tick& tick, Alarm& alarm) {
  // Some platforms' timers count whole milliseconds and can be one short.
  if (alarm.sinceArmed.nsecsElapsed() < qint64{tick.Period()} * 1'000'000) {
    alarm.timer.start(1);
    return;
  }
  RunEvent([&tick] { tick.Run(); });
}

}  // namespace bkconf
