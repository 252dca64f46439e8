// The catalogue of module kinds: what each is called, how it answers, which cells the main window
// shows. The link, the main window and the file code look their kind up here.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "image/kind_set.h"
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

/// The cell of a place that has one.
inline Cell& CellAt(const CellPlace& place) {
  return (*place.table)[place.index];
}

/// How many detectors an alarm module watches.
inline constexpr CellPlace DetectorsInUse{&AlarmImage, 123};

struct ModuleKind {
  int code;
  std::string_view identity;  ///< what the module's identity line begins with
  std::string_view model;     ///< its entry in the selection list
  DataGroup group;
  /// The master has none: its cells 120 and 121 hold its clock correction.
  CellPlace address;
  CellPlace version;
  Table* buttons;  ///< with the functions of its buttons and their press time, or null
  TextId title;    ///< of its screens, up to the address letter, for those that have one
  /// What the name of its configuration file begins with; the address letter follows, if it has
  /// one.
  TextId filePrefix;
};

/// In the order in which an identity line is tried. "DISPL11" comes before "DISPL1", which it
/// begins with.
inline constexpr std::array<ModuleKind, 11> ModuleKinds = {{
    {0,
     "DISPL0",
     "KR7021/KR8021",
     DataGroup::General,
     {&ButtonImage, 121},
     {&ButtonImage, 163},
     &ButtonImage,
     TextId::RelayTitle,
     TextId::RelayFileName},
    {11,
     "DISPL11",
     "KR7061",
     DataGroup::General,
     {&ButtonImage, 121},
     {&ButtonImage, 163},
     &ButtonImage,
     TextId::LumenzaTitle,
     TextId::DimFileName},
    {1,
     "DISPL1",
     "KR73XX/KR8330",
     DataGroup::General,
     {&ButtonImage, 121},
     {&ButtonImage, 163},
     &ButtonImage,
     TextId::DimTitle,
     TextId::DimFileName},
    {2,
     "DISPL2",
     "KR7150",
     DataGroup::DisplayTemperature,
     {&TempHeader, 0},
     {&TempHeader, 3},
     nullptr,
     TextId::TemperatureTitle,
     TextId::TemperatureFileName},
    {3,
     "DISPL3",
     "KR721X",
     DataGroup::DisplayTemperature,
     {&LcdHeader, 0},
     {&LcdHeader, 1},
     nullptr,
     TextId::LcdTitle,
     TextId::LcdFileName},
    {9,
     "DISPL9",
     "KR7110",
     DataGroup::General,
     {},
     {&ButtonImage, 163},
     &ButtonImage,
     TextId::MasterTitle,
     TextId::MasterFileName},
    {4,
     "DISPL4",
     "KR7023/KR8335",
     DataGroup::General,
     {&ButtonImage, 121},
     {&ButtonImage, 163},
     &ButtonImage,
     TextId::RelayDcTitle,
     TextId::RelayDcFileName},
    {5,
     "DISPL5",
     "KR7160",
     DataGroup::Alarm,
     {&AlarmImage, 121},
     {&AlarmImage, 148},
     &AlarmImage,
     TextId::AlarmTitle,
     TextId::AlarmFileName},
    {6,
     "DISPL6",
     "KR7920",
     DataGroup::Special,
     {&AudioImage, 121},
     {&AudioImage, 123},
     &AudioImage,
     TextId::AudioTitle,
     TextId::AudioFileName},
    {7,
     "DISPL7",
     "KR7170",
     DataGroup::Special,
     {&SimulationImage, 121},
     {&SimulationImage, 124},
     &SimulationImage,
     TextId::SimulationTitle,
     TextId::SimulationFileName},
    {8,
     "DISPL8",
     "KR7180",
     DataGroup::Special,
     {&IrImage, 121},
     {&IrImage, 124},
     &IrImage,
     TextId::IrTitle,
     TextId::IrFileName},
}};

/// The kind of that code, or null: 99 is none, and a file may hold any number.
const ModuleKind* FindKind(int code);

/// The code that a cell holds for a module type. What only a file can put there, a text, nothing or
/// a fraction, is no kind.
int CodeOf(const Cell& type);

/// The files of a manual, in the settings directory.
struct Manual {
  std::string_view dutch;
  std::string_view french;
};

/// A model of the selection list. "KR7060" has no kind of its own: such a module identifies itself
/// as one of the others.
struct Model {
  std::string_view name;
  TextId caption;
  TextId groupCaption;
  std::string_view picture;
  /// One, or one for each of the buttons that take the place of the one for all.
  std::array<Manual, 3> manuals;

  bool HasSeveralManuals() const { return !manuals[1].dutch.empty(); }
};

/// In the order of the selection list.
inline constexpr std::array<Model, 12> Models = {{
    {"KR7021/KR8021",
     TextId::RelayModule,
     TextId::RelayFrame,
     "relais.bmp",
     {{{"relnl.pdf", "relfr.pdf"}}}},
    {"KR7023/KR8335",
     TextId::RelayDcModule,
     TextId::RelayFrame,
     "relais DC.bmp",
     {{{"relDCnl.pdf", "relDCfr.pdf"}}}},
    {"KR7110",
     TextId::MasterModule,
     TextId::MasterFrame,
     "master.bmp",
     {{{"masnl.pdf", "masfr.pdf"}}}},
    {"KR7150",
     TextId::TemperatureModule,
     TextId::TemperatureFrame,
     "temp.bmp",
     {{{"temnl.pdf", "temfr.pdf"}}}},
    {"KR721X", TextId::LcdModule, TextId::LcdFrame, "lcd.bmp", {{{"lcdnl.pdf", "lcdfr.pdf"}}}},
    {"KR73XX/KR8330",
     TextId::DimModule,
     TextId::DimFrame,
     "dimmer.bmp",
     {{{"indnl.pdf", "indfr.pdf"}, {"capnl.pdf", "capfr.pdf"}, {"010nl.pdf", "010fr.pdf"}}}},
    {"KR7160",
     TextId::AlarmModule,
     TextId::AlarmFrame,
     "alarm.bmp",
     {{{"alarmnl.pdf", "alarmfr.pdf"}}}},
    {"KR7920",
     TextId::AudioInterface,
     TextId::AudioFrame,
     "audio.bmp",
     {{{"audionl.pdf", "audiofr.pdf"}}}},
    {"KR7170",
     TextId::SimulationModule,
     TextId::SimulationFrame,
     "simu.bmp",
     {{{"simunl.pdf", "simufr.pdf"}}}},
    {"KR7060",
     TextId::RelayInterface,
     TextId::RelayInterfaceFrame,
     "modulair.bmp",
     {{{"modnl.pdf", "modfr.pdf"}}}},
    {"KR7061",
     TextId::LumenzaModule,
     TextId::LumenzaFrame,
     "lumenza.bmp",
     {{{"lumnl.pdf", "lumfr.pdf"}}}},
    {"KR7180", TextId::IrModule, TextId::IrFrame, "ir.bmp", {{{"irnl.pdf", "irfr.pdf"}}}},
}};

/// The model of that name, or null.
const Model* FindModel(std::string_view name);

/// The first and the last character of the number, with a point between: 21 gives "2.1", 7 "7.7",
/// and an empty cell "0.0".
std::string VersionText(const Cell& version);

}  // namespace bkconf
