#include "screens/shown_screens.h"

#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <array>
#include <stdexcept>

#include "diagnostics/diagnostics_screen.h"
#include "image/module_kinds.h"
#include "master/context_screen.h"
#include "master/light_program_screen.h"
#include "master/time_program_screen.h"
#include "output/button_screen.h"
#include "output/output_screen.h"
#include "platform/runtime_error.h"
#include "session/language.h"
#include "shell/directory_picker.h"
#include "shell/directory_screen.h"
#include "shell/main_window.h"
#include "shell/open_dialog.h"
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

// --- What a user picks --------------------------------------------------------------------------

void PickItem(ListField& list, std::string_view item) {
  const auto found = std::find(list.items.begin(), list.items.end(), item);
  if (found == list.items.end()) throw std::runtime_error("no item of " + list.name);
  list.Pick(static_cast<int>(found - list.items.begin()));
}

/// A list that is shown and still empty gets the item at that place, or its last.
void PickIn(ListField& list, int place) {
  const int last = static_cast<int>(list.items.size()) - 1;
  list.Pick(std::min(place, last));
}

/// An action of a module of that kind; -1 for letters that are none.
void Compose(ActionPicker& picker, char letter, int kind, int action = 0) {
  PickItem(picker.letter, std::string(1, letter));
  const auto isKind = [kind](const std::string& item) {
    return std::any_of(
        ButtonPickerTypes.begin(), ButtonPickerTypes.end(),
        [&](const PickerType& type) { return type.kind == kind && item == Text(type.name); });
  };
  const auto type = std::find_if(picker.type.items.begin(), picker.type.items.end(), isKind);
  if (type != picker.type.items.end() && picker.type.Index() < 0) {
    picker.type.Pick(static_cast<int>(type - picker.type.items.begin()));
  }
  picker.mainZone.visible ? picker.mainZone.Choose() : void();
  if (picker.temperatures.front().option.visible) {
    picker.temperatures.front().option.Choose();
    PickIn(picker.temperatures.front().temperature, 12);
    PickIn(picker.temperatures.front().room, 1);
  }
  if (picker.output.list.visible) PickIn(picker.output.list, 3);
  if (picker.action.list.visible) PickIn(picker.action.list, action);
  if (picker.value.list.visible) PickIn(picker.value.list, 1);
}

// --- The main window ----------------------------------------------------------------------------

void ShowMenu(int place) {
  QWidget* main = House::WindowOf(MainWindow);
  const auto menus = main->findChild<QMenuBar*>()->actions();
  menus.at(place)->menu()->popup(main->mapToGlobal(QPoint(0, 30)));
}

void ReadMaster(House& house) {
  house.Read("Master");
}

void ShowModulePage(House& house) {
  ReadMaster(house);
  house.Press(Action::Configuration);
}

/// Double-clicked in the list of modules: a row that is used is deleted, a free one filled.
void DoubleClickModule(House& house, bool used) {
  ShowModulePage(house);
  GridField& modules = MainWindow.modulePage.modules;
  int row = 1;
  while (row < modules.Rows() && modules.At(row, 1).empty() == used) ++row;
  house.Do([&] {
    modules.DoubleClick(row, 1);
    if (used) return;
    MainWindow.modulePage.addLetter.Pick(4);
    MainWindow.modulePage.addType.Pick(2);
  });
}

void ShowManualOf(House& house, int model) {
  house.Do([model] {
    MainWindow.moduleList.Pick(model);
    MainWindow.moreInfo.Click();
  });
}

// --- The push-buttons ---------------------------------------------------------------------------

void ShowButtons(House& house) {
  house.Read("Relais A");
  house.Press(Action::Buttons);
}

/// Two functions side by side in one editor.
void ComposeButton(House& house, char first, int firstKind, char second, int secondKind) {
  ShowButtons(house);
  house.Do([=] {
    ButtonScreen.buttons.Select(3, 1);
    ButtonScreen.chooser.Pick(2);
    Compose(ButtonScreen.first, first, firstKind, 5);
    Compose(ButtonScreen.second, second, secondKind, 11);
  });
}

// --- The programmes of a master -----------------------------------------------------------------

template <typename Programs>
void ComposeProgram(House& house, Action action, Programs& screen, char letter, int kind) {
  ReadMaster(house);
  house.Press(action);
  house.Do([&] {
    screen.programs.Select(2, 1);
    screen.programs.DoubleClick(screen.programs.Rows(), 1);
    Compose(screen.picker, letter, kind, 5);
  });
}

template <typename Programs>
void AskToDelete(House& house, Action action, Programs& screen) {
  ReadMaster(house);
  house.Press(action);
  house.Do([&] { screen.programs.DoubleClick(2, 1); });
}

void ComposeContext(House& house, char letter, int kind) {
  ReadMaster(house);
  house.Press(Action::Contexts);
  house.Do([=] {
    ContextScreen.chooser.Pick(2);
    ContextScreen.actions.Select(1, 1);
    GridField& actions = ContextScreen.actions;
    actions.DoubleClick(actions.Rows(), actions.rowHeader ? 1 : 0);
    Compose(ContextScreen.picker, letter, kind, 5);
  });
}

// --- The special modules ------------------------------------------------------------------------

void ShowDetector(House& house) {
  house.Read("Alarm G");
  house.Press(Action::Detectors);
  house.Do([] { AlarmScreen.detector.Pick(2); });
}

void ComposeDetector(House& house, char letter, int kind) {
  ShowDetector(house);
  house.Do([=] {
    AlarmScreen.triggerAction.DoubleClick(1, 0);
    Compose(AlarmScreen.picker, letter, kind, 5);
  });
}

void ShowDisplay(House& house, Action display, int screen) {
  house.Read("LCD F");
  house.Press(display);
  house.Do([=] { DisplayMenuScreen.screens.Pick(screen); });
}

void ComposeParticipant(House& house, char letter, int type) {
  house.Read("Simulatie I");
  house.Press(Action::SimulationSettings);
  house.Do([=] {
    SimulationScreen.participants.DoubleClick(SimulationScreen.participants.Rows(), 1);
    PickItem(SimulationScreen.letter, std::string(1, letter));
    if (SimulationScreen.type.enabled) SimulationScreen.type.Pick(type);
    if (SimulationScreen.number.visible) SimulationScreen.number.Pick(3);
  });
}

void ShowKey(House& house, int key, char letter, int kind) {
  house.Read("I.R. J");
  house.Press(Action::IrSettings);
  house.Do([=] {
    IrScreen.remote.Pick(key);
    if (letter == '\0') return;
    IrScreen.row.Pick(4);
    Compose(IrScreen.picker, letter, kind, 5);
  });
}

// --- The live tests -----------------------------------------------------------------------------

void ShowTests(House& house, const char* demoFile, const char* choice) {
  house.Read(demoFile);
  house.Press(Action::Diagnostics);
  if (*choice == '\0') return;
  house.Do([choice] {
    for (const auto& each : DiagnosticsScreen.choices) {
      if (each->name == choice) each->Click();
    }
  });
}

void RunTest(House& house, const char* demoFile, const char* choice, const ButtonField& start) {
  ShowTests(house, demoFile, choice);
  house.DoFor(6000, [&start] { start.Click(); });
}

constexpr auto Shown = std::to_array<ShownScreen>({
    {"main_start", [](House&) {}},
    {"main_model", [](House& house) { house.Do([] { MainWindow.moduleList.Pick(1); }); }},
    {"main_relay", [](House& house) { house.Read("Relais A"); }},
    {"main_relay_dc", [](House& house) { house.Read("Relais_DC B"); }},
    {"main_dimmer", [](House& house) { house.Read("Dimmer C"); }},
    {"main_temperature", [](House& house) { house.Read("Temp E"); }},
    {"main_display", [](House& house) { house.Read("LCD F"); }},
    {"main_alarm", [](House& house) { house.Read("Alarm G"); }},
    {"main_audio", [](House& house) { house.Read("Audio H"); }},
    {"main_simulation", [](House& house) { house.Read("Simulatie I"); }},
    {"main_infrared", [](House& house) { house.Read("I.R. J"); }},
    {"main_lumenza", [](House& house) { house.ReadKind(11); }},
    {"main_master", ReadMaster},
    {"main_modules", ShowModulePage},
    {"main_modules_add", [](House& house) { DoubleClickModule(house, false); }},
    {"main_modules_delete", [](House& house) { DoubleClickModule(house, true); }},
    {"main_file", [](House& house) { house.Open("Dimmer D"); }},
    {"main_searching",
     [](House& house) { house.DoFor(200, [] { MainWindow.connect.Click(); }); }},
    {"main_manual", [](House& house) { ShowManualOf(house, 0); }},
    {"menu_file",
     [](House& house) {
       house.Read("Relais A");
       ShowMenu(0);
     }},
    {"menu_language", [](House&) { ShowMenu(1); }},
    {"menu_settings", [](House&) { ShowMenu(2); }},
    {"menu_info", [](House&) { ShowMenu(3); }},
    {"message_table_missing",
     [](House& house) {
       house.Read("Temp E");
       house.Do([] { MainWindow.Bewaren_als.Click(); });
     }},
    {"message_error",
     [](House& house) {
       house.Do([] { throw RuntimeError(ErrorKind::FileNotRead, "/home/Relais A.BK1"); });
     }},

    {"open_file",
     [](House& house) {
       house.Do([] {
         MainWindow.openen.Click();
         OpenDialog.files.Pick(2);
       });
     }},
    {"save_file",
     [](House& house) {
       house.Read("Relais A");
       house.Do([] {
         MainWindow.Bewaren_als.Click();
         SaveDialog.newFolder.Click();
         SaveDialog.fileNameLabel.DoubleClick();
       });
     }},
    {"directory", [](House& house) { house.Do([] { MainWindow.instellingen.Click(); }); }},
    {"directory_picker",
     [](House& house) {
       house.Do([] {
         MainWindow.instellingen.Click();
         DirectoryScreen.browse.Click();
       });
     }},

    {"buttons", ShowButtons},
    {"buttons_relay_and_dimmer", [](House& house) { ComposeButton(house, 'A', 0, 'C', 1); }},
    {"buttons_temperature_and_audio", [](House& house) { ComposeButton(house, 'E', 2, 'H', 6); }},
    {"buttons_alarm_and_simulation", [](House& house) { ComposeButton(house, 'G', 5, 'I', 7); }},
    {"buttons_context_and_code", [](House& house) { ComposeButton(house, 'S', -1, 'Z', -1); }},
    {"buttons_base",
     [](House& house) {
       ShowButtons(house);
       house.Do([] { ButtonScreen.base.Click(); });
     }},
    {"buttons_press_time",
     [](House& house) {
       house.Read("Relais A");
       house.Press(Action::SecondFunctionTime);
     }},
    {"outputs_relay",
     [](House& house) {
       house.Read("Relais A");
       house.Press(Action::OutputFunctions);
       house.Do([] {
         OutputScreen.output.Pick(4);
         OutputScreen.function.Pick(2);
         if (OutputScreen.time.visible) OutputScreen.time.Pick(3);
       });
     }},
    {"outputs_linked",
     [](House& house) {
       house.Read("Relais A");
       house.Press(Action::OutputFunctions);
       house.Do([] {
         OutputScreen.output.Pick(4);
         int function = 0;
         while (!OutputScreen.linked.visible && function < 8) OutputScreen.function.Pick(function++);
         OutputScreen.linked.Pick(1);
       });
     }},
    {"outputs_dimmer",
     [](House& house) {
       house.Read("Dimmer C");
       house.Press(Action::DimStartValues);
       house.Do([] { OutputScreen.channel.Pick(1); });
     }},

    {"contexts",
     [](House& house) {
       ReadMaster(house);
       house.Press(Action::Contexts);
       house.Do([] {
         ContextScreen.chooser.Pick(2);
         ContextScreen.actions.Select(1, 1);
       });
     }},
    {"contexts_relay", [](House& house) { ComposeContext(house, 'A', 0); }},
    {"contexts_temperature", [](House& house) { ComposeContext(house, 'E', 2); }},
    {"contexts_audio", [](House& house) { ComposeContext(house, 'H', 6); }},
    {"contexts_delete",
     [](House& house) {
       ReadMaster(house);
       house.Press(Action::Contexts);
       house.Do([] {
         ContextScreen.chooser.Pick(2);
         ContextScreen.actions.DoubleClick(1, ContextScreen.actions.rowHeader ? 1 : 0);
       });
     }},
    {"times",
     [](House& house) {
       ReadMaster(house);
       house.Press(Action::TimePrograms);
       house.Do([] { TimeProgramScreen.programs.Select(2, 1); });
     }},
    {"times_dimmer",
     [](House& house) {
       ComposeProgram(house, Action::TimePrograms, TimeProgramScreen, 'C', 1);
       house.Do([] {
         TimeProgramScreen.time.Pick(100);
         TimeProgramScreen.day.Pick(7);
       });
     }},
    {"times_temperature",
     [](House& house) {
       ComposeProgram(house, Action::TimePrograms, TimeProgramScreen, 'E', 2);
       house.Do([] { TimeProgramScreen.day.Pick(7); });
     }},
    {"times_delete",
     [](House& house) { AskToDelete(house, Action::TimePrograms, TimeProgramScreen); }},
    {"lights",
     [](House& house) {
       ReadMaster(house);
       house.Press(Action::LightPrograms);
       house.Do([] { LightProgramScreen.programs.Select(2, 1); });
     }},
    {"lights_dimmer",
     [](House& house) {
       ComposeProgram(house, Action::LightPrograms, LightProgramScreen, 'C', 1);
       house.Do([] {
         LightProgramScreen.level.Pick(20);
         LightProgramScreen.darkToLight.Choose();
       });
     }},
    {"lights_delete",
     [](House& house) { AskToDelete(house, Action::LightPrograms, LightProgramScreen); }},

    {"detectors_none",
     [](House& house) {
       house.Read("Alarm G");
       house.Press(Action::Detectors);
     }},
    {"detectors",
     [](House& house) {
       ShowDetector(house);
       house.Do([] { AlarmScreen.triggerAction.Select(1, 0); });
     }},
    {"detectors_relay", [](House& house) { ComposeDetector(house, 'A', 0); }},
    {"detectors_temperature", [](House& house) { ComposeDetector(house, 'E', 2); }},
    {"room_ids_none",
     [](House& house) {
       house.Read("Temp E");
       house.Press(Action::RoomIds);
     }},
    {"room_ids",
     [](House& house) {
       house.Read("Temp E");
       house.Press(Action::RoomIds);
       house.Do([] {
         TemperatureScreen.ids.room.Pick(1);
         TemperatureScreen.ids.valve.Pick(1);
         TemperatureScreen.ids.other.Choose();
         TemperatureScreen.ids.letter.Pick(0);
         TemperatureScreen.ids.output.Pick(3);
       });
     }},
    {"room_program_none",
     [](House& house) {
       house.Read("Temp E");
       house.Press(Action::RoomProgram);
     }},
    {"room_program",
     [](House& house) {
       house.Read("Temp E");
       house.Press(Action::RoomProgram);
       house.Do([] {
         TemperatureScreen.program.room.Pick(0);
         TemperatureScreen.program.periods[2]->setpointScroll.Move(33);
       });
     }},
    {"live_temperatures",
     [](House& house) {
       house.Read("Temp E");
       house.Press(Action::LiveTemperatures);
     }},
    {"display_none",
     [](House& house) {
       house.Read("LCD F");
       house.Press(Action::Display1);
     }},
    {"display", [](House& house) { ShowDisplay(house, Action::Display1, 0); }},
    {"display_outputs",
     [](House& house) {
       ShowDisplay(house, Action::Display1, 3);
       house.Do([] { DisplayMenuScreen.lines.front()->outputs.Click(); });
     }},
    {"display_contexts", [](House& house) { ShowDisplay(house, Action::Display2, 5); }},
    {"weekdays",
     [](House& house) {
       house.Read("LCD F");
       house.Press(Action::DisplayGeneral);
     }},
    {"audio_none",
     [](House& house) {
       house.Read("Audio H");
       house.Press(Action::AudioSettings);
     }},
    {"audio",
     [](House& house) {
       house.Read("Audio H");
       house.Press(Action::AudioSettings);
       house.Do([] { AudioScreen.zone.list.Pick(0); });
     }},
    {"audio_second_zone",
     [](House& house) {
       house.Read("Audio H");
       house.Press(Action::AudioSettings);
       house.Do([] {
         AudioScreen.zone.list.Pick(0);
         AudioScreen.surround.Set(true);
         AudioScreen.zone.list.Pick(1);
       });
     }},
    {"simulation",
     [](House& house) {
       house.Read("Simulatie I");
       house.Press(Action::SimulationSettings);
     }},
    {"simulation_module", [](House& house) { ComposeParticipant(house, 'A', 0); }},
    {"simulation_context", [](House& house) { ComposeParticipant(house, 'S', 0); }},
    {"infrared_none",
     [](House& house) {
       house.Read("I.R. J");
       house.Press(Action::IrSettings);
     }},
    {"infrared", [](House& house) { ShowKey(house, 10, '\0', 0); }},
    {"infrared_temperature", [](House& house) { ShowKey(house, 10, 'E', 2); }},
    {"infrared_audio", [](House& house) { ShowKey(house, 10, 'H', 6); }},

    {"tests", [](House& house) { ShowTests(house, "Relais A", ""); }},
    {"tests_line",
     [](House& house) { RunTest(house, "Relais A", "lineChoice", DiagnosticsScreen.line.start); }},
    {"tests_buttons",
     [](House& house) {
       RunTest(house, "Relais A", "buttonsChoice", DiagnosticsScreen.buttons.start);
       for (const int button : {3, 4, 17}) {
         house.DoFor(1000, [&] { house.Module().PressButton(button); });
       }
     }},
    {"tests_outputs",
     [](House& house) {
       RunTest(house, "Relais A", "outputsChoice", DiagnosticsScreen.outputs.start);
       house.DoFor(1000, [] { DiagnosticsScreen.outputs.outputs[4]->Click(); });
     }},
    {"tests_light",
     [](House& house) { RunTest(house, "Master", "lightChoice", DiagnosticsScreen.light.start); }},
    {"tests_clock",
     [](House& house) { RunTest(house, "Master", "clockChoice", DiagnosticsScreen.clock.ask); }},
    {"tests_detectors",
     [](House& house) {
       RunTest(house, "Alarm G", "detectorsChoice", DiagnosticsScreen.detectors.start);
       house.DoFor(3000, [&] { house.Module().SetContact(2, true); });
       house.DoFor(0, [] { DiagnosticsScreen.detectors.detectors[3]->level.Pick(4); });
     }},
});

}  // namespace

std::span<const ShownScreen> ShownScreens() {
  return Shown;
}

}  // namespace bkconf
