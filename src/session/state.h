// The global state of a session beside the tables: what kind of image is in memory, which parts of
// it are loaded or changed, and where a transfer stands. Screens and engines read and write these
// directly; there is one thread, so nothing is locked.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "image/cell.h"
#include "image/module_kinds.h"
#include "text/windows1252.h"

namespace bkconf {

/// The kind of the image in memory (the codes of ModuleKinds), or NoModule. A configuration file
/// may put anything here.
inline Cell ActiveModuleType = NoModule;
/// 1 Dutch, 2 French; from "country.vdm". Anything else sets no caption.
inline Cell Language;
/// The port number of the serial line; from "port.vdm".
inline Cell PortNumber;
/// Turns of the busy loop between two characters on the bus; from "pc.vdm".
inline Cell CharDelayCount;
/// The directory that the file screens start in; from "directory.vdm".
inline Cell DefaultDirectory;

/// The six-character bus command now being executed. The setup step after identification, the
/// receive dispatcher and the writers all branch on it.
inline Cell PendingCommand;
/// The received characters of the current line.
inline std::string RxLine;
/// The path of the open configuration file.
inline Cell CurrentFilePath;
/// 1 from the press of Send to the end of the write.
inline Cell WriteInProgress;
/// The next cell of the table that is being written.
inline Cell SendCursor;
/// The table within a write of several tables.
inline Cell TableSelector;
/// The version of the relay or dimmer module that was read last; the live tests compare with it.
inline Cell ModuleVersion;

/// 1 when the additional tables of a module are in memory, or their read was started.
inline Cell MasterContextsLoaded, MasterTimeLoaded, MasterLightLoaded;
inline Cell TempImage1Loaded, TempImage2Loaded;
inline Cell LcdScreen1Loaded, LcdScreen2Loaded, LcdWeekdayLoaded;

/// 1 when Send must write the table.
inline Cell MasterBaseDirty, MasterContextsDirty, MasterTimeDirty, MasterLightDirty;
inline Cell TempHeaderDirty, TempRoomsDirty, TempProgramDirty;
inline Cell LcdHeaderDirty, LcdScreen1Dirty, LcdScreen2Dirty, LcdWeekdayDirty;

/// 1 for the group of module data that a manual has hidden, while it is shown.
inline Cell GeneralGroupWasVisible, DisplayTemperatureGroupWasVisible, AlarmGroupWasVisible,
    SpecialGroupWasVisible;

/// A copy of cell 1 of TempHeader, for the room lists of the temperature screens.
inline Cell TempRoomCount;

struct Flag {
  std::string_view name;
  Cell* cell;
};

/// Every global cell that start-up sets to 0.
inline constexpr auto StartUpFlags = std::to_array<Flag>({
    {"WriteInProgress", &WriteInProgress},
    {"SendCursor", &SendCursor},
    {"TableSelector", &TableSelector},
    {"MasterContextsLoaded", &MasterContextsLoaded},
    {"MasterTimeLoaded", &MasterTimeLoaded},
    {"MasterLightLoaded", &MasterLightLoaded},
    {"TempImage1Loaded", &TempImage1Loaded},
    {"TempImage2Loaded", &TempImage2Loaded},
    {"LcdScreen1Loaded", &LcdScreen1Loaded},
    {"LcdScreen2Loaded", &LcdScreen2Loaded},
    {"LcdWeekdayLoaded", &LcdWeekdayLoaded},
    {"MasterBaseDirty", &MasterBaseDirty},
    {"MasterContextsDirty", &MasterContextsDirty},
    {"MasterTimeDirty", &MasterTimeDirty},
    {"MasterLightDirty", &MasterLightDirty},
    {"TempHeaderDirty", &TempHeaderDirty},
    {"TempRoomsDirty", &TempRoomsDirty},
    {"TempProgramDirty", &TempProgramDirty},
    {"LcdHeaderDirty", &LcdHeaderDirty},
    {"LcdScreen1Dirty", &LcdScreen1Dirty},
    {"LcdScreen2Dirty", &LcdScreen2Dirty},
    {"LcdWeekdayDirty", &LcdWeekdayDirty},
    {"GeneralGroupWasVisible", &GeneralGroupWasVisible},
    {"DisplayTemperatureGroupWasVisible", &DisplayTemperatureGroupWasVisible},
    {"AlarmGroupWasVisible", &AlarmGroupWasVisible},
    {"SpecialGroupWasVisible", &SpecialGroupWasVisible},
});

/// The other global cells.
inline constexpr auto SessionValues = std::to_array<Flag>({
    {"ActiveModuleType", &ActiveModuleType},
    {"Language", &Language},
    {"PortNumber", &PortNumber},
    {"CharDelayCount", &CharDelayCount},
    {"DefaultDirectory", &DefaultDirectory},
    {"PendingCommand", &PendingCommand},
    {"CurrentFilePath", &CurrentFilePath},
    {"ModuleVersion", &ModuleVersion},
    {"TempRoomCount", &TempRoomCount},
});

/// The code of the kind in memory.
inline int ActiveCode() {
  return CodeOf(ActiveModuleType);
}

/// The row of the kind in memory, or null while there is none.
inline const ModuleKind* ActiveKind() {
  return FindKind(ActiveCode());
}

/// The address letter of the module in memory, as its code; an empty cell for a master, and while
/// there is no module.
inline const Cell& OwnAddress() {
  static const Cell none;
  const ModuleKind* kind = ActiveKind();
  if (kind == nullptr || kind->address.table == nullptr) return none;
  return CellAt(kind->address);
}

/// That letter as its character; empty where there is none.
inline std::string OwnLetter() {
  return CharacterOf(OwnAddress().Whole());
}

}  // namespace bkconf
