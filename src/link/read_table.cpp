#include "link/read_table.h"

#include <algorithm>

namespace bkconf {

const ReadRow* FindReadRow(int kind, std::string_view command) {
  const auto row = std::find_if(ReadTable.begin(), ReadTable.end(), [=](const ReadRow& each) {
    return each.kinds.Contains(kind) && each.command == command;
  });
  return row == ReadTable.end() ? nullptr : &*row;
}

}  // namespace bkconf
