// Snapshots of every global cell, to show that a routine changed what it should and nothing else.
#pragma once

#include <initializer_list>
#include <map>
#include <string>
#include <string_view>

#include "image/cell.h"

namespace bkconf {

/// Every cell of every table and flag by name: "TimeProgramTable[8]", "MasterTimeDirty", "RxLine".
using Snapshot = std::map<std::string, Cell>;

Snapshot TakeSnapshot();

/// Fails for each cell that differs from `before` and is not named, and for each name under which
/// nothing changed. A name may hold a range: "TimeProgramTable[0..8]".
void ExpectOnlyChanged(const Snapshot& before, std::initializer_list<std::string_view> names);

}  // namespace bkconf
