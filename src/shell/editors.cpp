#include "shell/editors.h"

#include <array>

#include "diagnostics/diagnostics_screen.h"
#include "master/context_screen.h"
#include "master/light_program_screen.h"
#include "master/module_page.h"
#include "master/time_program_screen.h"
#include "output/button_screen.h"
#include "output/output_screen.h"
#include "shell/action_buttons.h"
#include "special/alarm_screen.h"
#include "special/audio_screen.h"
#include "special/display_menu_screen.h"
#include "special/ir_screen.h"
#include "special/simulation_screen.h"
#include "special/temperature_screen.h"
#include "special/weekday_text_screen.h"

namespace bkconf {
namespace {

struct Opener {
  Action action;
  void (*open)();
};

constexpr auto Openers = std::to_array<Opener>({
    {Action::Buttons, OpenButtonScreen},
    {Action::SecondFunctionTime, OpenSecondFunctionTime},
    {Action::OutputFunctions, OpenOutputScreen},
    {Action::DimStartValues, OpenOutputScreen},
    {Action::Contexts, OpenContextScreen},
    {Action::TimePrograms, OpenTimeProgramScreen},
    {Action::LightPrograms, OpenLightProgramScreen},
    {Action::Configuration, OpenModulePage},
    {Action::Detectors, OpenAlarmScreen},
    {Action::Diagnostics, OpenDiagnosticsScreen},
    {Action::RoomIds, OpenRoomIds},
    {Action::RoomProgram, OpenRoomProgram},
    {Action::LiveTemperatures, OpenLiveTemperatures},
    {Action::Display1, OpenDisplay1},
    {Action::Display2, OpenDisplay2},
    {Action::DisplayGeneral, OpenWeekdayTexts},
    {Action::AudioSettings, OpenAudioScreen},
    {Action::SimulationSettings, OpenSimulationScreen},
    {Action::IrSettings, OpenIrScreen},
});

constexpr auto Loaders = std::to_array<void (*)()>(
    {LoadButtonScreen, LoadOutputScreen, LoadContextScreen, LoadTimeProgramScreen,
     LoadLightProgramScreen, LoadAlarmScreen, LoadDiagnosticsScreen, LoadTemperatureScreen,
     LoadDisplayMenuScreen, LoadWeekdayTextScreen, LoadAudioScreen, LoadSimulationScreen,
     LoadIrScreen});

}  // namespace

void LoadEditors() {
  for (void (*load)() : Loaders) load();
  for (const Opener& row : Openers) {
    ActionHandlers[static_cast<std::size_t>(row.action)] = row.open;
  }
}

}  // namespace bkconf
