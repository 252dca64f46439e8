// The writers: each sends the cells of its kind at a fixed tick, one frame a tick, and nobody
// answers. The dispatcher starts them through WriterSelect when the module has asked for the cells.
#pragma once

namespace bkconf {

/// Sets `TableSelector` to the first table of the pending command; a command that names its table
/// alone leaves it.
void SelectFirstTable();

}  // namespace bkconf
