#include "virtual_module/memory.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <system_error>

namespace virtual_module {
namespace {

constexpr int highestCell = 999;  // three digits on the line

// The lines of a file with their ends cut off. Blank lines behind the last one do not count.
std::vector<std::string> LinesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    throw std::runtime_error(path.string() + ": cannot be read");
  }
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);) {
    if (!line.empty() && line.back() == '\r') {
      line.pop_back();
    }
    lines.push_back(line);
  }
  if (file.bad()) {
    throw std::runtime_error(path.string() + ": cannot be read");
  }
  return lines;
}

std::string_view WithoutBlanks(std::string_view text) {
  constexpr std::string_view blanks = " \t";
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) {
    return {};
  }
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::optional<int> NumberOf(std::string_view line) {
  const std::string_view text = WithoutBlanks(line);
  if (text.empty()) {
    return 0;
  }
  if (text == "*") {
    return emptyCell;
  }
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) {
    return std::nullopt;
  }
  return number;
}

// Takes the lines of a file one by one and says where one of them is wrong.
class LineReader {
 public:
  explicit LineReader(const std::filesystem::path& path) : path_(path), lines_(LinesOf(path)) {}

  int NextNumber() {
    if (next_ == lines_.size()) {
      Fail("the file ends too early");
    }
    const std::string& line = lines_[next_++];
    const std::optional<int> number = NumberOf(line);
    if (!number) {
      Fail("\"" + line + "\" is not a number");
    }
    if (*number < 0 || *number > highestCell) {
      Fail(std::to_string(*number) + " is not in 0..999");
    }
    return *number;
  }

  void ExpectEnd() {
    const auto rest = lines_.begin() + static_cast<std::ptrdiff_t>(next_);
    const auto extra = std::find_if(
        rest, lines_.end(), [](const std::string& line) { return !WithoutBlanks(line).empty(); });
    if (extra != lines_.end()) {
      next_ = static_cast<std::size_t>(extra - lines_.begin()) + 1;
      Fail("the file goes on after its last cell");
    }
  }

  [[noreturn]] void Fail(const std::string& reason) const {
    throw std::runtime_error(path_.string() + ", line " + std::to_string(next_) + ": " + reason);
  }

 private:
  std::filesystem::path path_;
  std::vector<std::string> lines_;
  std::size_t next_ = 0;
};

std::string ImageText(const Memory& memory) {
  std::string text = " " + std::to_string(memory.kind()) + " \r\n";
  for (const TableRow& row : TablesOf(memory.kind())) {
    const std::vector<int>& cells = memory.Cells(row.table);
    for (int cell = 0; cell < row.saved; ++cell) {
      text += " " + std::to_string(cells[static_cast<std::size_t>(cell)]) + " \r\n";
    }
  }
  return text;
}

template <typename Tables>
auto& CellsIn(Tables& tables, int kind, TableName name) {
  for (auto& table : tables) {
    if (table.name == name) {
      return table.cells;
    }
  }
  throw std::out_of_range("a module of kind " + std::to_string(kind) + " has no table " +
                          std::string(NameOf(name)));
}

TableName KnownName(std::string_view name) {
  const std::optional<TableName> table = TableByName(name);
  if (!table) {
    throw std::out_of_range("no module has a table " + std::string(name));
  }
  return *table;
}

}  // namespace

Memory::Memory(int kind) : kind_(KindOf(kind).kind) {
  for (const TableRow& row : TablesOf(kind)) {
    tables_.push_back({row.table, std::vector<int>(static_cast<std::size_t>(row.cells))});
  }
}

std::vector<int>& Memory::Cells(TableName table) {
  return CellsIn(tables_, kind_, table);
}

const std::vector<int>& Memory::Cells(TableName table) const {
  return CellsIn(tables_, kind_, table);
}

std::vector<int>& Memory::Cells(std::string_view table) {
  return Cells(KnownName(table));
}

const std::vector<int>& Memory::Cells(std::string_view table) const {
  return Cells(KnownName(table));
}

Memory LoadImage(const std::filesystem::path& path) {
  LineReader reader(path);
  const int kind = reader.NextNumber();
  if (TablesOf(kind).empty()) {
    reader.Fail("no module is of kind " + std::to_string(kind));
  }
  Memory memory(kind);
  for (const TableRow& row : TablesOf(kind)) {
    std::vector<int>& cells = memory.Cells(row.table);
    std::generate_n(cells.begin(), row.saved, [&reader] { return reader.NextNumber(); });
  }
  reader.ExpectEnd();
  return memory;
}

void SaveImage(const Memory& memory, const std::filesystem::path& path) {
  const std::filesystem::path beside = path.string() + ".new";
  std::ofstream file(beside, std::ios::binary | std::ios::trunc);
  file << ImageText(memory);
  file.close();
  if (!file) {
    throw std::runtime_error(beside.string() + ": cannot be written");
  }
  std::error_code error;
  std::filesystem::rename(beside, path, error);
  if (error) {
    throw std::runtime_error(path.string() + ": " + error.message());
  }
}

}  // namespace virtual_module
