// Snapshots of every global cell, to show that a routine changed what it should and nothing else.
#pragma once

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "image/cell.h"

namespace bkconf {

/// What a failed expectation shows of a cell.
inline void PrintTo(const Cell& cell, std::ostream* out) {
  *out << (cell.IsNumber() ? "number " : cell.IsText() ? "text " : "nothing") << cell.Text();
}

/// Every cell of every table and flag by name: "TimeProgramTable[8]", "MasterTimeDirty", "RxLine".
using Snapshot = std::map<std::string, Cell>;

Snapshot TakeSnapshot();

/// Fails for each cell that differs from `before` and is not named, and for each name under which
/// nothing changed. A name may hold a range, as
/// "TimeProgramTable[0..8]": one changed cell in it is enough, the others may have stayed.
void ExpectOnlyChanged(const Snapshot& before, const std::vector<std::string>& names);

}  // namespace bkconf
