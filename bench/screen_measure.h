// How long the window takes from an event to the picture of it. What the benches of screens share.
#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "shell/qt/event_guard.h"

namespace bkconf {

inline constexpr int Runs = 51;
inline constexpr double FrameMs = 16;

/// Tells when a list, or anything in a window, has been painted.
class PaintWatch : public QObject {
 public:
  int paints = 0;
  QString place;  ///< the name of a list, or of a screen

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Paint && IsThere(object)) ++paints;
    return false;
  }

 private:
  bool IsThere(const QObject* object) const {
    if (object->parent() != nullptr && object->parent()->objectName() == place) return true;
    const auto* widget = qobject_cast<const QWidget*>(object);
    return widget != nullptr && widget->window()->objectName() == place;
  }
};

inline PaintWatch watch;

/// From an event until the place has been painted after it, in ms.
inline double TimeOf(const std::function<void()>& event) {
  const int before = watch.paints;
  QElapsedTimer timer;
  timer.start();
  event();
  while (watch.paints == before) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

inline double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

inline void Print(const std::string& what, double ms) {
  std::printf("%-28s%7.2f ms   a frame is %.0f ms\n", what.c_str(), ms, FrameMs);
}

/// The median of some runs, each of which begins with something that is not measured.
inline void Measure(const std::string& what, const std::function<void(int)>& before,
                    const std::function<void()>& event) {
  std::vector<double> times;
  for (int run = 0; run < Runs; ++run) {
    RunEvent([&before, run] { before(run); });
    QApplication::processEvents();
    times.push_back(TimeOf([&event] { RunEvent(event); }));
  }
  Print(what, Median(times));
}

/// The rows of the screen of the temperature module.
void MeasureTemperatures();
/// Those of the screens of the display module.
void MeasureDisplays();

}  // namespace bkconf
