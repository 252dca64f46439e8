// What the screens with lists cost with the real window: to open the push-buttons and to store one;
// to open a master's time and light programmes with all slots used, to store and to delete one, and
// to fill the grid of a context; to open the screens of the temperature and the display module and
// to pick in them; and to refresh all windows after an event. Used by dev/bench.
// Argument: a settings directory.
#include <QApplication>
#include <QElapsedTimer>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bench/screen_measure.h"
#include "image/tables.h"
#include "master/context_screen.h"
#include "master/light_program_screen.h"
#include "master/time_program_screen.h"
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

constexpr int AddressCell = 121;
constexpr int TimeSlots = 110;
constexpr int LightSlots = 200;

// --- Push-buttons -------------------------------------------------------------------------------

/// Another action each time, so that the list has something to draw.
void ComposeFunction(int run) {
  ButtonScreen.chooser.Pick(run % 20);
  ButtonScreen.first.letter.Pick(0);
  ButtonScreen.first.output.list.Pick(run % 12);
  ButtonScreen.first.action.list.Pick(run % 3);
}

void MeasureButtons() {
  watch.place = QStringLiteral("buttons");
  ActiveModuleType = 0;
  ButtonImage[AddressCell] = int{'A'};
  RunEvent([] { ShowImage(Origin::File); });
  QApplication::processEvents();
  Print("buttons, first opening", TimeOf([] { RunEvent(OpenButtonScreen); }));
  Measure(
      "buttons, opening", [](int) { ButtonScreen.Close(); }, OpenButtonScreen);
  Measure("buttons, store and redraw", ComposeFunction, [] { ButtonScreen.store.Click(); });
  RunEvent([] { ButtonScreen.Close(); });
}

// --- Programmes ---------------------------------------------------------------------------------

/// From one run to the next every text of the list changes. The first slots can be left free.
void FillTimePrograms(int run, int free) {
  for (int slot = 0; slot < TimeSlots; ++slot) {
    const int letter = slot < free ? EmptyCell : int{'A'};
    const int cells[] = {
        (slot + run) % 24, 5 * (run % 12), (slot + run) % 9 + 1, 24, 12, 24, letter,
        run % 12,          slot % 3};
    for (int cell = 0; cell < 9; ++cell) TimeProgramTable[9 * slot + cell] = cells[cell];
  }
}

void FillLightPrograms(int run, int free) {
  for (int slot = 0; slot < LightSlots; ++slot) {
    const int letter = slot < free ? EmptyCell : int{'A'};
    const int cells[] = {(slot + run) % 2, (slot + run) % 50 + 1, letter, run % 12, slot % 3};
    for (int cell = 0; cell < 5; ++cell) LightProgramTable[5 * slot + cell] = cells[cell];
  }
}

struct ProgramBench {
  std::string name;
  ProgramScreen& screen;
  void (*open)();
  void (*fill)(int run, int free);
  void (*pickMoment)();
};

void PickTime() {
  TimeProgramScreen.time.Pick(100);
  TimeProgramScreen.day.Pick(8);
}

void PickLevel() {
  LightProgramScreen.level.Pick(20);
  LightProgramScreen.darkToLight.Choose();
}

/// Opens the first row: the question if it is used, the editor if it is free.
void OpenFirstRow(const ProgramBench& bench, int run, int free) {
  bench.screen.Close();
  bench.fill(run, free);
  bench.open();
  bench.screen.programs.DoubleClick(1, 1);
}

void ComposeProgram(const ProgramBench& bench, int run) {
  OpenFirstRow(bench, run, 1);
  ActionPicker& picker = bench.screen.picker;
  picker.letter.Pick(0);
  picker.type.Pick(0);
  picker.output.list.Pick(run % 12);
  picker.action.list.Pick(run % 3);
  bench.pickMoment();
}

void MeasurePrograms(const ProgramBench& bench) {
  watch.place = QStringLiteral("programs");
  ActiveModuleType = 9;
  MasterTimeLoaded = MasterLightLoaded = 1;
  bench.fill(0, 0);
  Print(bench.name + ", first opening", TimeOf([&bench] { RunEvent(bench.open); }));
  const auto close = [&bench](int run) {
    bench.screen.Close();
    bench.fill(run, 0);
  };
  Measure(bench.name + ", opening", close, bench.open);
  Measure(
      bench.name + ", delete", [&bench](int run) { OpenFirstRow(bench, run, 0); },
      [&bench] { bench.screen.deleteYes.Click(); });
  Measure(
      bench.name + ", store and redraw", [&bench](int run) { ComposeProgram(bench, run); },
      [&bench] { bench.screen.editConfirm.Click(); });
  RunEvent([&bench] { bench.screen.Close(); });
}

// --- Contexts -----------------------------------------------------------------------------------

/// Two contexts of a hundred actions each, none of which is the same in both.
void FillContexts() {
  constexpr int cells = 300;
  ContextTable.Fill(0, 99, 0);
  ContextTable.Fill(100, ContextTable.Size() - 1, EmptyCell);
  for (int context = 0; context < 2; ++context) {
    const int begin = 100 + context * (cells + 1);
    ContextTable[2 * context] = begin / 100;
    ContextTable[2 * context + 1] = begin % 100;
    for (int cell = 0; cell < cells; cell += 3) {
      ContextTable[begin + cell] = 'A' + context;
      ContextTable[begin + cell + 1] = cell % 12;
      ContextTable[begin + cell + 2] = cell % 2;
    }
  }
}

/// The question where the context has actions, else the editor.
void OpenFirstAction(int context) {
  ContextScreen.Close();
  FillContexts();
  OpenContextScreen();
  ContextScreen.chooser.Pick(context);
  ContextScreen.actions.DoubleClick(1, 0);
}

/// In a context that is empty yet.
void ComposeAction(int run) {
  OpenFirstAction(2);
  ActionPicker& picker = ContextScreen.picker;
  picker.letter.Pick(0);
  picker.type.Pick(0);
  picker.output.list.Pick(run % 12);
  picker.action.list.Pick(run % 3);
}

void MeasureContexts() {
  watch.place = QStringLiteral("actions");
  ActiveModuleType = 9;
  MasterContextsLoaded = 1;
  FillContexts();
  Print("contexts, first opening", TimeOf([] { RunEvent(OpenContextScreen); }));
  int context = 0;
  Measure(
      "contexts, filling the grid", [&context](int run) { context = run % 2; },
      [&context] { ContextScreen.chooser.Pick(context); });
  Measure(
      "contexts, delete", [](int) { OpenFirstAction(0); },
      [] { ContextScreen.deleteConfirm.Click(); });
  Measure("contexts, store and redraw", ComposeAction, [] { ContextScreen.editConfirm.Click(); });
  RunEvent([] { ContextScreen.Close(); });
}

void Run() {
  QtSerialPort port;
  const DesktopMachine machine(port);
  StartSession(LoadMainWindow, [](const std::string&) {});
  const std::unique_ptr<ScreenWindow> window = MakeWindows();
  QApplication::processEvents();
  MeasureButtons();
  MeasurePrograms({"times", TimeProgramScreen, OpenTimeProgramScreen, FillTimePrograms, PickTime});
  MeasurePrograms(
      {"lights", LightProgramScreen, OpenLightProgramScreen, FillLightPrograms, PickLevel});
  MeasureContexts();
  MeasureTemperatures();
  MeasureDisplays();

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
