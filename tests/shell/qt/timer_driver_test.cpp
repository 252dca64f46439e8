#include "shell/qt/timer_driver.h"

#include <QElapsedTimer>
#include <QTest>
#include <vector>

using namespace bkconf;

namespace {

QElapsedTimer sinceStart;
std::vector<qint64> runs;   // nanoseconds
std::vector<qint64> armed;  // the same
void (*duringRun)() = nullptr;

void Note() {
  runs.push_back(sinceStart.nsecsElapsed());
  if (duringRun != nullptr) duringRun();
}

Tick Noted{"Noted", 4, Note};

void HoldTheThread(int milliseconds) {
  QElapsedTimer held;
  held.start();
  while (!held.hasExpired(milliseconds)) {
  }
}

/// From each start of an interval to the run at its end. The start is noted before the driver acts
/// on it and the run behind it, so that a busy machine can only make the time longer.
qint64 ShortestInterval() {
  qint64 shortest = runs.front();
  for (std::size_t i = 0; i < runs.size(); ++i) shortest = std::min(shortest, runs[i] - armed[i]);
  return shortest;
}

class NotedDriver : public TimerDriver {
 public:
  void Arm(Tick& tick) override {
    armed.push_back(sinceStart.nsecsElapsed());
    TimerDriver::Arm(tick);
  }
};

}  // namespace

class TimerDriverTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void init() {
    ActiveTickDriver = &driver_;
    Noted.SetPeriod(4);
    runs.clear();
    armed.clear();
    duringRun = nullptr;
    sinceStart.start();
  }
  void cleanup() { Noted.Disable(); }

  void AnEnabledTickRunsAgainAndAgainAndNeverEarly() {
    Noted.Enable();
    QTRY_VERIFY(runs.size() >= 40);
    QVERIFY2(ShortestInterval() >= 4'000'000, qPrintable(QString::number(ShortestInterval())));
  }

  void ALateRunDelaysTheNextOneAndNoneIsMadeUpFor() {
    static int held;
    held = 0;
    // Each third run takes longer than the period. The interval counts from the start of a run.
    duringRun = [] {
      if (++held % 3 == 0) HoldTheThread(7);
    };
    Noted.Enable();
    QTRY_VERIFY(runs.size() >= 20);
    QVERIFY(ShortestInterval() >= 4'000'000);
    QVERIFY(runs.size() * 4'000'000 <= static_cast<std::size_t>(sinceStart.nsecsElapsed()));
  }

  void ATickThatDisablesItselfRunsOnce() {
    duringRun = [] { Noted.Disable(); };
    Tick later{"Later", 30, [] { runs.push_back(-1); }};
    Noted.Enable();
    later.Enable();
    QTRY_VERIFY(!runs.empty() && runs.back() == -1);
    later.Disable();
    QCOMPARE(runs.size(), std::size_t{2});
  }

  void EnablingAnewStartsTheIntervalAnew() {
    Noted.SetPeriod(20);
    Noted.Enable();
    HoldTheThread(15);
    const qint64 again = sinceStart.nsecsElapsed();
    Noted.Enable();
    QTRY_VERIFY(!runs.empty());
    QVERIFY(runs.front() - again >= 20'000'000);
  }

 private:
  NotedDriver driver_;
};

QTEST_MAIN(TimerDriverTest)
#include "timer_driver_test.moc"
