// The cell handlers: each takes the line in `RxLine` as a cell of the kind's tables.
// The receive dispatcher calls them for every line that is nothing else.
#pragma once

namespace bkconf {

/// Stores the line's cell and, at the last index of the read, closes the read for the eye. False
/// when there is no handler for the kind in memory. Throws RuntimeError for an index outside the
/// table, with nothing stored, and for a line past the end of the bar.
bool HandleCellLine();

}  // namespace bkconf
