// What the screen of the push-buttons costs with the real window: to open it, to store a button and
// draw the list anew, and to refresh all windows after an event. Used by dev/bench. Argument: a
// settings directory.
#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QPushButton>
#include <QTableView>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
#include <vector>

#include "image/tables.h"
#include "output/button_screen.h"
#include "session/settings.h"
#include "shell/main_window.h"
#include "shell/qt/desktop_machine.h"
#include "shell/qt/event_guard.h"
#include "shell/qt/screens.h"
#include "shell/qt/serial_port.h"
#include "shell/qt/style.h"

namespace bkconf {
namespace {

constexpr int Runs = 51;
constexpr double FrameMs = 16;
constexpr int AddressCell = 121;

/// Tells when the list of buttons has been painted.
class ListWatch : public QObject {
 public:
  int paints = 0;

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() == QEvent::Paint && object->parent() != nullptr &&
        object->parent()->objectName() == QStringLiteral("buttons")) {
      ++paints;
    }
    return false;
  }
};

ListWatch watch;

/// From an event until the list has been painted after it, in ms.
double TimeOf(const std::function<void()>& event) {
  const int before = watch.paints;
  QElapsedTimer timer;
  timer.start();
  event();
  while (watch.paints == before) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

void Print(const char* what, double ms) {
  std::printf("%-28s%7.2f ms   a frame is %.0f ms\n", what, ms, FrameMs);
}

void Open() {
  RunEvent(OpenButtonScreen);
}

void Close() {
  RunEvent([] { ButtonScreen.Close(); });
  QApplication::processEvents();
}

/// Another action each time, so that the list has something to draw.
void ComposeFunction(int run) {
  RunEvent([run] {
    ButtonScreen.chooser.Pick(run % 20);
    ButtonScreen.first.letter.Pick(0);
    ButtonScreen.first.output.list.Pick(run % 12);
    ButtonScreen.first.action.list.Pick(run % 3);
  });
  QApplication::processEvents();
}

QPushButton* StoreButton() {
  for (ScreenWindow* window : ScreenWindows()) {
    if (auto* button = window->findChild<QPushButton*>(QStringLiteral("store"))) return button;
  }
  return nullptr;
}

void Run() {
  QtSerialPort port;
  const DesktopMachine machine(port);
  StartSession(LoadMainWindow, [](const std::string&) {});
  const std::unique_ptr<ScreenWindow> window = MakeWindows();
  ActiveModuleType = 0;
  ButtonImage[AddressCell] = int{'A'};
  RunEvent([] { ShowImage(Origin::File); });
  QApplication::processEvents();

  Print("buttons, first opening", TimeOf(Open));
  std::vector<double> opening;
  std::vector<double> storing;
  for (int run = 0; run < Runs; ++run) {
    Close();
    opening.push_back(TimeOf(Open));
  }
  for (int run = 0; run < Runs; ++run) {
    ComposeFunction(run);
    storing.push_back(TimeOf([] { StoreButton()->click(); }));
  }
  Print("buttons, opening", Median(opening));
  Print("buttons, store and redraw", Median(storing));

  constexpr int refreshes = 1000;
  QElapsedTimer timer;
  timer.start();
  for (int run = 0; run < refreshes; ++run) RunEvent([] {});
  Print("refresh of all windows", static_cast<double>(timer.nsecsElapsed()) / 1e6 / refreshes);
}

}  // namespace
}  // namespace bkconf

int main(int count, char** words) {
  QApplication application(count, words);
  if (count != 2) {
    std::fputs("usage: screen_bench SETTINGS_DIRECTORY\n", stderr);
    return 2;
  }
  bkconf::ApplyStyle(application);
  application.installEventFilter(&bkconf::watch);
  bkconf::SettingsDirectory = words[1];
  bkconf::Run();
}
