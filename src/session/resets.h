// What Connect and New set back, as data. The main window walks these rows.
#pragma once

#include <span>

#include "session/state.h"

namespace bkconf {

/// Connect: the image stays, but what was read on demand counts as not read.
/// LcdWeekdayLoaded is left as it is, on purpose: the names of a display module read before are
/// shown again.
inline constexpr auto ConnectClears = std::to_array<Cell*>({
    &WriteInProgress,
    &TempImage1Loaded,
    &TempImage2Loaded,
    &MasterContextsLoaded,
    &MasterTimeLoaded,
    &MasterLightLoaded,
    &LcdHeaderDirty,
    &LcdScreen1Loaded,
    &LcdScreen2Loaded,
});

/// New: just the flags of the display tables. The flags of other kinds, and LcdHeaderDirty, stay,
/// and can reach another module; so it is meant.
inline constexpr auto NewClears = std::to_array<Cell*>({
    &LcdScreen1Dirty,
    &LcdScreen2Dirty,
    &LcdScreen1Loaded,
    &LcdScreen2Loaded,
    &LcdWeekdayLoaded,
    &LcdWeekdayDirty,
});

/// Sets each of the cells to 0.
inline void Clear(std::span<Cell* const> cells) {
  for (Cell* cell : cells) *cell = 0;
}

}  // namespace bkconf
