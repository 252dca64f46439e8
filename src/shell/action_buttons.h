// The buttons that open the editors of a kind, as data. The main window makes a button of each row;
// a screen's folder gives its row something to do.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string_view>

#include "image/kind_set.h"
#include "image/module_kinds.h"

namespace bkconf {

/// What a button opens.
enum class Action {
  Buttons,
  SecondFunctionTime,
  OutputFunctions,
  DimStartValues,
  Contexts,
  TimePrograms,
  LightPrograms,
  Configuration,
  Detectors,
  RoomIds,
  RoomProgram,
  LiveTemperatures,
  Display1,
  Display2,
  DisplayGeneral,
  AudioSettings,
  SimulationSettings,
  IrSettings,
  Diagnostics,
};
inline constexpr std::size_t ActionCount = static_cast<std::size_t>(Action::Diagnostics) + 1;

struct ActionButtonRow {
  std::string_view name;  ///< of the button, unique in the window
  Action action;
  DataGroup group;
  KindSet kinds;
  TextId caption;
  bool testsModule = false;  ///< needs a module on the line: shown after a read only
  /// Where the caption after opening a file differs from the one after a read.
  std::optional<TextId> captionAfterOpen = std::nullopt;
};

/// In the order in which a group shows them.
inline constexpr auto ActionButtons = std::to_array<ActionButtonRow>({
    {"generalButtons",
     Action::Buttons,
     DataGroup::General,
     {0, 1, 4, 11, 9},
     TextId::ButtonsAction},
    {"generalSecondFunction",
     Action::SecondFunctionTime,
     DataGroup::General,
     {0, 1, 4, 11, 9},
     TextId::SecondFunctionAction},
    {"outputFunctions",
     Action::OutputFunctions,
     DataGroup::General,
     {0, 4, 11},
     TextId::OutputFunctionsAction},
    {"dimStartValues", Action::DimStartValues, DataGroup::General, {1}, TextId::DimStartAction},
    {"contexts", Action::Contexts, DataGroup::General, {9}, TextId::ContextsAction},
    {"timePrograms", Action::TimePrograms, DataGroup::General, {9}, TextId::TimeProgramsAction},
    {"lightPrograms", Action::LightPrograms, DataGroup::General, {9}, TextId::LightProgramsAction},
    {"configuration", Action::Configuration, DataGroup::General, {9}, TextId::ConfigurationAction},
    {"generalDiagnostics",
     Action::Diagnostics,
     DataGroup::General,
     {0, 1, 4, 9, 11},
     TextId::DiagnosticsAction,
     true},
    {"alarmButtons", Action::Buttons, DataGroup::Alarm, {5}, TextId::ButtonsAction},
    {"alarmSecondFunction",
     Action::SecondFunctionTime,
     DataGroup::Alarm,
     {5},
     TextId::SecondFunctionAction},
    {"detectors", Action::Detectors, DataGroup::Alarm, {5}, TextId::DetectorsAction},
    {"alarmDiagnostics",
     Action::Diagnostics,
     DataGroup::Alarm,
     {5},
     TextId::DiagnosticsAction,
     true},
    {"roomIds", Action::RoomIds, DataGroup::DisplayTemperature, {2}, TextId::RoomIdsAction},
    {"roomProgram",
     Action::RoomProgram,
     DataGroup::DisplayTemperature,
     {2},
     TextId::RoomProgramAction},
    {"liveTemperatures",
     Action::LiveTemperatures,
     DataGroup::DisplayTemperature,
     {2},
     TextId::LiveTemperaturesAction},
    {"display1", Action::Display1, DataGroup::DisplayTemperature, {3}, TextId::Display1Action},
    {"display2",
     Action::Display2,
     DataGroup::DisplayTemperature,
     {3},
     TextId::Display2ActionAfterRead,
     false,
     TextId::Display2ActionAfterOpen},
    {"displayGeneral",
     Action::DisplayGeneral,
     DataGroup::DisplayTemperature,
     {3},
     TextId::DisplayGeneralAction},
    {"specialButtons", Action::Buttons, DataGroup::Special, {6, 7, 8}, TextId::ButtonsAction},
    {"specialSecondFunction",
     Action::SecondFunctionTime,
     DataGroup::Special,
     {6, 7, 8},
     TextId::SecondFunctionAction},
    {"audioSettings",
     Action::AudioSettings,
     DataGroup::Special,
     {6},
     TextId::AudioActionAfterRead,
     false,
     TextId::AudioActionAfterOpen},
    {"simulationSettings",
     Action::SimulationSettings,
     DataGroup::Special,
     {7},
     TextId::SimulationAction},
    {"irSettings", Action::IrSettings, DataGroup::Special, {8}, TextId::IrAction},
    {"specialDiagnostics",
     Action::Diagnostics,
     DataGroup::Special,
     {6},
     TextId::DiagnosticsAction,
     true},
});

/// What each action does; filled by `LoadEditors`. The button of an action that nobody filled
/// in is shown disabled.
inline std::array<std::function<void()>, ActionCount> ActionHandlers;

}  // namespace bkconf
