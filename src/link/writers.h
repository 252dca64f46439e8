// Where a write begins. The writers themselves are ticks of the link.
#pragma once

namespace bkconf {

/// Sets `TableSelector` to the first table of the pending command; a command that names its table
/// alone leaves it.
void SelectFirstTable();

}  // namespace bkconf
