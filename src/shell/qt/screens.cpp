#include "shell/qt/screens.h"

#include <array>
#include <map>

#include "diagnostics/diagnostics_screen.h"
#include "master/context_screen.h"
#include "master/light_program_screen.h"
#include "master/time_program_screen.h"
#include "output/button_screen.h"
#include "output/output_screen.h"
#include "shell/directory_picker.h"
#include "shell/directory_screen.h"
#include "shell/main_window.h"
#include "shell/open_dialog.h"
#include "shell/qt/layouts/alarm_screen.h"
#include "shell/qt/layouts/audio_screen.h"
#include "shell/qt/layouts/button_screen.h"
#include "shell/qt/layouts/context_screen.h"
#include "shell/qt/layouts/diagnostics_screen.h"
#include "shell/qt/layouts/directory_picker.h"
#include "shell/qt/layouts/directory_screen.h"
#include "shell/qt/layouts/display_menu_screen.h"
#include "shell/qt/layouts/ir_screen.h"
#include "shell/qt/layouts/light_program_screen.h"
#include "shell/qt/layouts/main_window.h"
#include "shell/qt/layouts/open_dialog.h"
#include "shell/qt/layouts/output_screen.h"
#include "shell/qt/layouts/save_dialog.h"
#include "shell/qt/layouts/simulation_screen.h"
#include "shell/qt/layouts/temperature_screen.h"
#include "shell/qt/layouts/time_program_screen.h"
#include "shell/qt/layouts/weekday_text_screen.h"
#include "shell/save_dialog.h"
#include "special/alarm_screen.h"
#include "special/audio_screen.h"
#include "special/display_menu_screen.h"
#include "special/ir_screen.h"
#include "special/simulation_screen.h"
#include "special/temperature_screen.h"
#include "special/weekday_text_screen.h"

namespace bkconf {
namespace {

constexpr auto Rows = std::to_array<ScreenRow>({
    {&MainWindow, MainWindowLayout, nullptr},
    {&OpenDialog, OpenDialogLayout, &MainWindow},
    {&SaveDialog, SaveDialogLayout, &MainWindow},
    {&DirectoryScreen, DirectoryScreenLayout, &MainWindow},
    {&DirectoryPicker, DirectoryPickerLayout, &DirectoryScreen},
    {&ButtonScreen, ButtonScreenLayout, &MainWindow},
    {&OutputScreen, OutputScreenLayout, &MainWindow},
    {&ContextScreen, ContextScreenLayout, &MainWindow},
    {&TimeProgramScreen, TimeProgramScreenLayout, &MainWindow},
    {&LightProgramScreen, LightProgramScreenLayout, &MainWindow},
    {&AlarmScreen, AlarmScreenLayout, &MainWindow},
    {&TemperatureScreen, TemperatureScreenLayout, &MainWindow},
    {&DisplayMenuScreen, DisplayMenuScreenLayout, &MainWindow},
    {&WeekdayTextScreen, WeekdayTextScreenLayout, &MainWindow},
    {&AudioScreen, AudioScreenLayout, &MainWindow},
    {&SimulationScreen, SimulationScreenLayout, &MainWindow},
    {&IrScreen, IrScreenLayout, &MainWindow},
    {&DiagnosticsScreen, DiagnosticsScreenLayout, &MainWindow},
});

}  // namespace

std::span<const ScreenRow> AllScreens() {
  return Rows;
}

std::unique_ptr<ScreenWindow> MakeWindows() {
  auto main = std::make_unique<ScreenWindow>(*Rows.front().screen, Rows.front().layout);
  std::map<const Screen*, ScreenWindow*> windows = {{Rows.front().screen, main.get()}};
  for (const ScreenRow& row : AllScreens().subspan(1)) {
    // Deleted by its opener.
    windows[row.screen] = new ScreenWindow(*row.screen, row.layout, windows.at(row.opener));
  }
  return main;
}

}  // namespace bkconf
