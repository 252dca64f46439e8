#include "image/table.h"

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
  for (int index = first; index <= last; ++index) (*this)[index] = value;
}

}  // namespace bkconf
