// The table on the display, put together from its cells. Used by the tests of screens with one.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "end_to_end/screen_reader.h"

namespace end_to_end {

// What is in sight of it.
struct Grid {
  std::vector<Widget> captions;           // of the columns, from left to right
  std::vector<std::vector<Widget>> rows;  // from the top; the header of a row comes first

  // The cell in the row that begins with that text, below that caption.
  std::optional<Widget> Find(std::string_view row, std::string_view column) const;
  // The texts of each row, with bars between them.
  std::vector<std::string> Texts() const;
};

// The table of that number, from 1 on. What lies in no frame comes first, so the first is the
// screen's list also where a calendar, which is a table too, is beside it.
Grid GridOf(const std::vector<Widget>& widgets, int number = 1);

}  // namespace end_to_end
