// What each read command of each kind brings: the table that it ends in, and what the user sees.
// The setup step and the cell handlers look their row up here.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "image/commands.h"
#include "link/link_events.h"
#include "session/state.h"

namespace bkconf {

struct ReadRow {
  KindSet kinds;
  std::string_view command;
  Table* table;    ///< the table that holds the last cell; no two reads of kinds 2 and 3 share one
  int lastIndex;   ///< the cell that ends the read for the eye
  int barMaximum;  ///< cell lines expected; 0 for a read without a bar
  TextId status;
  Cell* loaded = nullptr;                           ///< set when the read is asked for
  std::optional<LinkEvent> started = std::nullopt;  ///< tells the screen that shows the read
};

inline constexpr auto ReadTable = std::to_array<ReadRow>({
    {{0, 1, 4, 9, 11}, ReadBase, &ButtonImage, 163, 164, TextId::ReadingData},
    {{9}, Read1, &ContextTable, 999, 1000, TextId::ReadingContexts, &MasterContextsLoaded},
    {{9}, Read2, &TimeProgramTable, 999, 1000, TextId::ReadingTimePrograms, &MasterTimeLoaded},
    {{9}, Read3, &LightProgramTable, 999, 1000, TextId::ReadingLightPrograms, &MasterLightLoaded},
    {{9}, Test4, &ButtonImage, 158, 0, TextId::ScanningModules},
    {{2}, ReadBase, &TempHeader, 3, 4, TextId::ReadingData},
    {{2},
     Read1,
     &TempTail,
     81,
     146,
     TextId::ReadingData,
     &TempImage1Loaded,
     LinkEvent::TemperatureReadStarted},
    {{2},
     Read2,
     &TempSetpoints,
     335,
     1008,
     TextId::ReadingData,
     &TempImage2Loaded,
     LinkEvent::TemperatureReadStarted},
    {{2},
     Read3,
     &TempRoomIds,
     71,
     8,
     TextId::ReadingTemperatures,
     nullptr,
     LinkEvent::TemperatureReadStarted},
    // Two lines come, and the bar's end is 4 all the same.
    {{3}, ReadBase, &LcdHeader, 1, 4, TextId::ReadingData},
    // The cells from 1020 on are never sent.
    {{3},
     Read1,
     &LcdScreen1,
     1019,
     1020,
     TextId::ReadingDisplay1,
     &LcdScreen1Loaded,
     LinkEvent::DisplayReadStarted},
    {{3},
     Read3,
     &LcdScreen2,
     1019,
     1020,
     TextId::ReadingDisplay2,
     &LcdScreen2Loaded,
     LinkEvent::DisplayReadStarted},
    {{3},
     Read5,
     &LcdWeekdayNames,
     20,
     21,
     TextId::ReadingData,
     &LcdWeekdayLoaded,
     LinkEvent::WeekdayReadStarted},
    // 292 is kept although the table ends at 293: a module never sends that cell.
    {{5}, ReadBase, &AlarmImage, 292, 294, TextId::ReadingData},
    {{6}, ReadBase, &AudioImage, 212, 213, TextId::ReadingData},
    {{7}, ReadBase, &SimulationImage, 184, 185, TextId::ReadingData},
    {{8}, ReadBase, &IrImage, 508, 509, TextId::ReadingData},
});

/// The row of that kind and command, or null: the command is not a read of that kind.
const ReadRow* FindReadRow(int kind, std::string_view command);

}  // namespace bkconf
