#include "link/write_table.h"

#include <algorithm>

namespace bkconf {

const WriteRow* FindWriteRow(int kind, std::string_view command) {
  const auto row = std::find_if(WriteTable.begin(), WriteTable.end(), [=](const WriteRow& each) {
    return each.kinds.Contains(kind) && each.command == command;
  });
  return row == WriteTable.end() ? nullptr : &*row;
}

const TableRow* FindWrittenTable(int kind, std::string_view command, int selector) {
  const auto row =
      std::find_if(WrittenTables.begin(), WrittenTables.end(), [=](const TableRow& each) {
        return each.kinds.Contains(kind) && (each.command.empty() || each.command == command) &&
               (each.selector < 0 || each.selector == selector);
      });
  return row == WrittenTables.end() ? nullptr : &*row;
}

}  // namespace bkconf
