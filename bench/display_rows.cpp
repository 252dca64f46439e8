// What the screens of the display module cost: to open each of them, and each kind of pick in them.
#include "bench/screen_measure.h"
#include "image/tables.h"
#include "shell/main_window.h"
#include "special/display_menu_screen.h"
#include "special/weekday_text_screen.h"

namespace bkconf {
namespace {

constexpr int AutomationItem = 3;

MenuLineFields& LastLine() {
  return *DisplayMenuScreen.lines.back();
}

/// No two screens of which are alike.
void FillDisplay(Table& table) {
  constexpr int firstCategory = 695;
  constexpr int firstOutput = 780;
  constexpr int letters = 18;
  for (int cell = 0; cell < table.Size(); ++cell) table[cell] = 'a' + cell / 12 % 26;
  for (int cell = firstOutput; cell < table.Size(); cell += 2) {
    table[cell] = 'A' + cell / 2 % letters;
    table[cell + 1] = cell / 2 % 4;
  }
  for (int screen = 0; screen < MenuScreens; ++screen) table[firstCategory + screen] = 2 + screen;
}

void FillImage() {
  ActiveModuleType = 3;
  LcdHeader[0] = int{'A'};
  LcdScreen1Loaded = LcdScreen2Loaded = LcdWeekdayLoaded = 1;
  FillDisplay(LcdScreen1);
  FillDisplay(LcdScreen2);
  LcdWeekdayNames.Fill(0, LcdWeekdayNames.Size() - 1, int{'x'});
}

/// From a fresh screen on one of its six.
std::function<void(int)> On(int screen) {
  return [screen](int) {
    DisplayMenuScreen.Close();
    FillImage();
    OpenDisplay1();
    DisplayMenuScreen.screens.Pick(screen);
  };
}

void Close(int) {
  DisplayMenuScreen.Close();
}

void MeasureMenus() {
  Measure("menus, opening", Close, OpenDisplay1);
  Measure("menus, picking a screen", On(0), [] { DisplayMenuScreen.screens.Pick(5); });
  Measure("menus, picking a category", On(0), [] { DisplayMenuScreen.category.Pick(5); });
  Measure("menus, picking a letter", On(0), [] { LastLine().module.Pick(17); });
  Measure("menus, picking an output", On(0), [] { LastLine().output.Pick(2); });
  Measure("menus, typing a name", On(0), [] { DisplayMenuScreen.name.Type("Ground floor"); });
  Measure("menus, outputs, opening", On(AutomationItem), [] { LastLine().outputs.Click(); });
  const auto dialog = [](int run) {
    On(AutomationItem)(run);
    LastLine().outputs.Click();
  };
  Measure("menus, outputs, a letter", dialog, [] { DisplayMenuScreen.close.module.Pick(17); });
  Measure("menus, outputs, storing", dialog, [] { DisplayMenuScreen.ok.Click(); });
}

void MeasureWeekdays() {
  const auto close = [](int) {
    WeekdayTextScreen.Close();
    FillImage();
  };
  const auto open = [&close](int run) {
    close(run);
    OpenWeekdayTexts();
  };
  Measure("weekdays, opening", close, OpenWeekdayTexts);
  Measure("weekdays, typing a name", open,
          [] { WeekdayTextScreen.days.front()->text.Type("Sun"); });
}

}  // namespace

void MeasureDisplays() {
  watch.place = QStringLiteral("DisplayMenuScreen");
  FillImage();
  RunEvent([] { ShowImage(Origin::File); });
  QApplication::processEvents();
  Print("menus, first opening", TimeOf([] { RunEvent(OpenDisplay1); }));
  MeasureMenus();
  RunEvent([] { DisplayMenuScreen.Close(); });
  watch.place = QStringLiteral("WeekdayTextScreen");
  MeasureWeekdays();
  RunEvent([] { WeekdayTextScreen.Close(); });
}

}  // namespace bkconf
