// What Connect and New set back, and what opening a file sets, as data. The main window and the
// file menu walk these rows.
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

/// Kinds with tables that are read on demand: the flags that tell that they are all in memory, and
/// the flags that make a Send write everything. A file brings all of them.
struct OnDemandFlags {
  int kind;
  std::span<Cell* const> loaded;
  std::span<Cell* const> dirty;
};

inline constexpr auto TempLoaded = std::to_array<Cell*>({&TempImage1Loaded, &TempImage2Loaded});
inline constexpr auto TempDirty =
    std::to_array<Cell*>({&TempHeaderDirty, &TempRoomsDirty, &TempProgramDirty});
inline constexpr auto LcdLoaded =
    std::to_array<Cell*>({&LcdScreen1Loaded, &LcdScreen2Loaded, &LcdWeekdayLoaded});
inline constexpr auto LcdDirty =
    std::to_array<Cell*>({&LcdScreen1Dirty, &LcdScreen2Dirty, &LcdWeekdayDirty, &LcdHeaderDirty});
inline constexpr auto MasterLoaded =
    std::to_array<Cell*>({&MasterContextsLoaded, &MasterTimeLoaded, &MasterLightLoaded});
inline constexpr auto MasterDirty = std::to_array<Cell*>(
    {&MasterBaseDirty, &MasterContextsDirty, &MasterTimeDirty, &MasterLightDirty});

inline constexpr auto OnDemandKinds = std::to_array<OnDemandFlags>({
    {2, TempLoaded, TempDirty},
    {3, LcdLoaded, LcdDirty},
    {9, MasterLoaded, MasterDirty},
});

/// The row of the kind in memory, or null for a kind whose only table comes with its first read.
inline const OnDemandFlags* ActiveOnDemandFlags() {
  for (const OnDemandFlags& row : OnDemandKinds) {
    if (row.kind == ActiveCode()) return &row;
  }
  return nullptr;
}

/// Cells that are kept a second time beside the image, and are copied when
/// the image's own cell has come or was changed.
struct KeptCopy {
  int kind;
  CellPlace original;
  Cell* copy;
};
inline constexpr auto KeptCopies = std::to_array<KeptCopy>({{2, {&TempHeader, 1}, &TempRoomCount}});

/// Brings the copies of the kind in memory up to date.
inline void KeepCopies() {
  for (const KeptCopy& kept : KeptCopies) {
    if (kept.kind == ActiveCode()) *kept.copy = CellAt(kept.original);
  }
}

/// Tables that no file holds: opening one fills them with 42, as start-up does.
struct WorkTable {
  int kind;
  Table* table;
};
inline constexpr auto WorkTables = std::to_array<WorkTable>({{9, &ContextWork}});

/// Sets each of the cells to 0.
inline void Clear(std::span<Cell* const> cells) {
  for (Cell* cell : cells) *cell = 0;
}

}  // namespace bkconf
