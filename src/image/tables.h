// All tables of all module kinds. Screens and transfer engines meet here: they read and write these
// directly.
#pragma once

#include <array>

#include "image/table.h"

namespace bkconf {

/// The most that an image can hold.
inline constexpr int ContextCount = 50;
inline constexpr int MostRooms = 8;
inline constexpr int MostDetectors = 12;

inline Table ButtonImage{"ButtonImage", 164};
inline Table ContextTable{"ContextTable", 1000};
inline Table TimeProgramTable{"TimeProgramTable", 1000};
inline Table LightProgramTable{"LightProgramTable", 1000};
/// The working form of all contexts: 50 rows of 300 cells, one after the other.
inline Table ContextWork{"ContextWork", ContextCount * 300};
inline Table TempHeader{"TempHeader", 4};
inline Table TempRoomIds{"TempRoomIds", 72};
inline Table TempPeriods{"TempPeriods", 672};
inline Table TempSetpoints{"TempSetpoints", 336};
inline Table TempTail{"TempTail", 82};
inline Table LcdHeader{"LcdHeader", 2};
inline Table LcdScreen1{"LcdScreen1", 1030};
inline Table LcdScreen2{"LcdScreen2", 1030};
inline Table LcdWeekdayNames{"LcdWeekdayNames", 21};
inline Table AlarmImage{"AlarmImage", 294};
inline Table AudioImage{"AudioImage", 213};
inline Table SimulationImage{"SimulationImage", 185};
inline Table IrImage{"IrImage", 509};
/// The working table of the live tests.
inline Table DiagBuffer{"DiagBuffer", 24};

inline constexpr std::array<Table*, 19> AllTables = {
    &ButtonImage, &ContextTable,    &TimeProgramTable, &LightProgramTable, &ContextWork,
    &TempHeader,  &TempRoomIds,     &TempPeriods,      &TempSetpoints,     &TempTail,
    &LcdHeader,   &LcdScreen1,      &LcdScreen2,       &LcdWeekdayNames,   &AlarmImage,
    &AudioImage,  &SimulationImage, &IrImage,          &DiagBuffer,
};

}  // namespace bkconf
