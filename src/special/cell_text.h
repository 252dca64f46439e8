// Texts that lie in a table one character a cell. The screens of the display module use it.
#pragma once

#include <string>
#include <string_view>

#include "image/table.h"

namespace bkconf {

/// The characters of the cells, with the blanks behind them; a cell of 0 is the character 0.
std::string TextOfCells(const Table& table, int first, int count);

/// Puts the first `count` characters of the text there, and blanks behind a shorter one. What the
/// character set of the modules does not have becomes a question mark.
void PutTextIntoCells(Table& table, int first, int count, std::string_view text);

}  // namespace bkconf
