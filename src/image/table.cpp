#include "image/table.h"

#include <algorithm>
#include <string>

#include "platform/runtime_error.h"

namespace bkconf {

std::size_t Table::Checked(int index) const {
  if (index < 0 || index >= Size()) {
    throw RuntimeError(ErrorKind::IndexOutsideTable,
                       std::string(name) + "[" + std::to_string(index) + "]");
  }
  return static_cast<std::size_t>(index);
}

void Table::Fill(int first, int last, const Cell& value) {
  Checked(first);
  Checked(last);
  std::fill_n(cells_.begin() + first, last - first + 1, value);
}

}  // namespace bkconf
