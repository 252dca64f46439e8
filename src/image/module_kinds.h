// The catalogue of module kinds: what each is called, how it answers, which cells the main window
// shows. The link, the main window and the file code look their kind up here.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "image/tables.h"
#include "text/text.h"

namespace bkconf {

/// The kind of the image in memory while there is none.
inline constexpr int NoModule = 99;

/// Which of the four module data groups of the main window a kind is shown in.
enum class DataGroup { General, DisplayTemperature, Alarm, Special };

/// A cell of a table; `table` is null where a kind has no such cell.
struct CellPlace {
  Table* table = nullptr;
  int index = 0;
};

struct ModuleKind {
  int code;
  std::string_view identity;  ///< what the module's identity line begins with
  std::string_view model;     ///< its entry in the selection list
  DataGroup group;
  /// The master has none: its cells 120 and 121 hold its clock correction.
  CellPlace address;
  CellPlace version;
};

/// In the order in which an identity line is tried. "DISPL11" comes before "DISPL1", which it
/// begins with.
inline constexpr std::array<ModuleKind, 11> ModuleKinds = {{
    {0, "DISPL0", "KR7021/KR8021", DataGroup::General, {&ButtonImage, 121}, {&ButtonImage, 163}},
    {11, "DISPL11", "KR7061", DataGroup::General, {&ButtonImage, 121}, {&ButtonImage, 163}},
    {1, "DISPL1", "KR73XX/KR8330", DataGroup::General, {&ButtonImage, 121}, {&ButtonImage, 163}},
    {2, "DISPL2", "KR7150", DataGroup::DisplayTemperature, {&TempHeader, 0}, {&TempHeader, 3}},
    {3, "DISPL3", "KR721X", DataGroup::DisplayTemperature, {&LcdHeader, 0}, {&LcdHeader, 1}},
    {9, "DISPL9", "KR7110", DataGroup::General, {}, {&ButtonImage, 163}},
    {4, "DISPL4", "KR7023/KR8335", DataGroup::General, {&ButtonImage, 121}, {&ButtonImage, 163}},
    {5, "DISPL5", "KR7160", DataGroup::Alarm, {&AlarmImage, 121}, {&AlarmImage, 148}},
    {6, "DISPL6", "KR7920", DataGroup::Special, {&AudioImage, 121}, {&AudioImage, 123}},
    {7, "DISPL7", "KR7170", DataGroup::Special, {&SimulationImage, 121}, {&SimulationImage, 124}},
    {8, "DISPL8", "KR7180", DataGroup::Special, {&IrImage, 121}, {&IrImage, 124}},
}};

/// The kind of that code, or null: 99 is none, and a file may hold any number.
const ModuleKind* FindKind(int code);

/// A model of the selection list. "KR7060" has no kind of its own: such a module identifies itself
/// as one of the others.
struct Model {
  std::string_view name;
  TextId caption;
  TextId groupCaption;
  std::string_view picture;
  bool severalManuals = false;  ///< one button for each instead of one for all
};

/// In the order of the selection list.
inline constexpr std::array<Model, 12> Models = {{
    {"KR7021/KR8021", TextId::RelayModule, TextId::RelayFrame, "relais.bmp"},
    {"KR7023/KR8335", TextId::RelayDcModule, TextId::RelayFrame, "relais DC.bmp"},
    {"KR7110", TextId::MasterModule, TextId::MasterFrame, "master.bmp"},
    {"KR7150", TextId::TemperatureModule, TextId::TemperatureFrame, "temp.bmp"},
    {"KR721X", TextId::LcdModule, TextId::LcdFrame, "lcd.bmp"},
    {"KR73XX/KR8330", TextId::DimModule, TextId::DimFrame, "dimmer.bmp", true},
    {"KR7160", TextId::AlarmModule, TextId::AlarmFrame, "alarm.bmp"},
    {"KR7920", TextId::AudioInterface, TextId::AudioFrame, "audio.bmp"},
    {"KR7170", TextId::SimulationModule, TextId::SimulationFrame, "simu.bmp"},
    {"KR7060", TextId::RelayInterface, TextId::RelayInterfaceFrame, "modulair.bmp"},
    {"KR7061", TextId::LumenzaModule, TextId::LumenzaFrame, "lumenza.bmp"},
    {"KR7180", TextId::IrModule, TextId::IrFrame, "ir.bmp"},
}};

/// The model of that name, or null.
const Model* FindModel(std::string_view name);

/// The first and the last character of the number, with a point between: 21 gives "2.1", 7 "7.7",
/// and an empty cell "0.0".
std::string VersionText(const Cell& version);

}  // namespace bkconf
