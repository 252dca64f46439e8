// The list of present modules, which a master keeps in its image: a letter and a kind for each. The
// action screens look up there what stands behind a letter; the master's page edits it.
#pragma once

#include <optional>

#include "image/cell.h"
#include "image/tables.h"

namespace bkconf {

/// Letters lie in cells 123 to 140 of ButtonImage, the kinds 18 cells further on.
inline constexpr int DirectoryRows = 18;
inline constexpr int FirstDirectoryLetter = 123;
inline constexpr int FirstDirectoryType = FirstDirectoryLetter + DirectoryRows;

/// Rows count from 0.
inline Cell& DirectoryLetter(int row) {
  return ButtonImage[FirstDirectoryLetter + row];
}
inline Cell& DirectoryType(int row) {
  return ButtonImage[FirstDirectoryType + row];
}

/// The kind in the first row with that letter; none where there is no such row, or no kind in it.
std::optional<int> DirectoryTypeOf(int letter);

}  // namespace bkconf
