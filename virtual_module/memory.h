// The memory of a module: the tables of its kind, by name, as numbers. Used by the module model,
// by its program (images on disk) and by tests that look at what a module holds.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "virtual_module/kinds.h"

namespace virtual_module {

class Memory {
 public:
  struct Table {
    TableName name;
    std::vector<int> cells;
    friend bool operator==(const Table&, const Table&) = default;
  };

  // All tables of `kind`, every cell 0. Throws std::invalid_argument for an unknown kind.
  explicit Memory(int kind);

  int kind() const { return kind_; }

  // The cells of a table, as many as the kind has. Throws std::out_of_range with the table's name
  // when the kind has no such table.
  std::vector<int>& Cells(TableName table);
  const std::vector<int>& Cells(TableName table) const;
  std::vector<int>& Cells(std::string_view table);
  const std::vector<int>& Cells(std::string_view table) const;

  // In the order of a configuration file.
  const std::vector<Table>& tables() const { return tables_; }

  friend bool operator==(const Memory&, const Memory&) = default;

 private:
  int kind_;
  std::vector<Table> tables_;
};

// Believable content that depends on nothing but the two arguments: an address letter A to R, a
// two-digit version, lists with some records and then 42, times, temperatures and texts in their
// ranges. Throws std::invalid_argument for an unknown kind.
Memory DefaultMemory(int kind, std::uint32_t seed);

// Reads a ".BK1" file: the kind, then one cell a line. Line ends are CR LF or LF, blanks around a
// number are skipped, an empty line is 0 and "*" is the mark of an empty record, 42. Cells that a
// file never holds are 0. Throws std::runtime_error with path, line and reason: unreadable, unknown
// kind, no number or not in 0..999, too short, too long.
Memory LoadImage(const std::filesystem::path& path);

// Writes a ".BK1" file, beside the old one first and then in its place. Throws std::runtime_error
// with path and reason.
void SaveImage(const Memory& memory, const std::filesystem::path& path);

}  // namespace virtual_module
