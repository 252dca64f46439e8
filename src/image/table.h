// A table: a fixed run of cells with a name. The image of a module is one or more of them.
#pragma once

#include <string_view>
#include <vector>

#include "image/cell.h"

namespace bkconf {

/// Zero-based. Lives for the whole run; its size never changes and its cells start empty.
class Table {
 public:
  Table(std::string_view tableName, int cellCount)
      : name(tableName), cells_(static_cast<std::size_t>(cellCount)) {}
  Table(const Table&) = delete;
  Table& operator=(const Table&) = delete;

  const std::string_view name;

  int Size() const { return static_cast<int>(cells_.size()); }
  /// Throws RuntimeError (IndexOutsideTable) with the table's name and the index.
  Cell& operator[](int index) { return cells_[Checked(index)]; }
  const Cell& operator[](int index) const { return cells_[Checked(index)]; }
  /// Puts the value into the cells from `first` to `last`. Throws as above, and nothing is changed
  /// then.
  void Fill(int first, int last, const Cell& value);

 private:
  std::size_t Checked(int index) const;

  std::vector<Cell> cells_;
};

}  // namespace bkconf
