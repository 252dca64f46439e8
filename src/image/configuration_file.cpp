#include "image/configuration_file.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "image/module_kinds.h"
#include "platform/runtime_error.h"
#include "text/windows1252.h"

namespace bkconf {
namespace {

constexpr std::string_view LineEnd = "\r\n";

/// A type code and its line end, and lines of a few digits: no file of a module is larger by much.
constexpr std::size_t UsualLine = 8;

std::size_t CellCount(std::span<const FileBlock> blocks) {
  std::size_t count = 0;
  for (const FileBlock& block : blocks) count += static_cast<std::size_t>(block.last) + 1;
  return count;
}

void PrintLine(const Cell& cell, std::string& file) {
  if (cell.IsText()) {
    file += ToWindows1252(cell.Text());
  } else {
    cell.AppendPrintForm(file);
  }
  file += LineEnd;
}

/// The values of a file, one after the other.
class ValueReader {
 public:
  explicit ValueReader(std::string_view content) : rest_(content) {}

  Cell Next() {
    const std::string_view item = NextItem();
    if (item.empty()) return {};
    if (const auto number = ReadsAsNumber(item)) return *number;
    return FromWindows1252(item);
  }

 private:
  /// Up to a comma or the line end, without the blanks in front.
  std::string_view NextItem() {
    // Behind a comma there is a value even where the file ends.
    if (rest_.empty() && !afterComma_) {
      throw RuntimeError(ErrorKind::FileTooShort, std::to_string(line_));
    }
    const auto first = std::min(rest_.find_first_not_of(' '), rest_.size());
    const auto end = std::min(rest_.find_first_of(",\n", first), rest_.size());
    std::string_view item = rest_.substr(first, end - first);
    afterComma_ = end < rest_.size() && rest_[end] == ',';
    if (!afterComma_) {
      ++line_;
      if (item.ends_with('\r')) item.remove_suffix(1);
    }
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    return item;
  }

  std::string_view rest_;
  bool afterComma_ = false;
  int line_ = 1;
};

}  // namespace

std::span<const FileBlock> BlocksOf(const Cell& type) {
  const int code = CodeOf(type);
  const auto layout =
      std::find_if(FileLayouts.begin(), FileLayouts.end(),
                   [code](const FileLayout& each) { return each.kinds.Contains(code); });
  return layout == FileLayouts.end() ? std::span<const FileBlock>(ButtonBlocks) : layout->blocks;
}

std::string PrintConfiguration(const Cell& type) {
  const auto blocks = BlocksOf(type);
  std::string file;
  file.reserve((CellCount(blocks) + 1) * UsualLine);
  PrintLine(type, file);
  for (const FileBlock& block : blocks) {
    for (int index = 0; index <= block.last; ++index) PrintLine((*block.table)[index], file);
  }
  return file;
}

Cell ReadConfiguration(std::string_view content) {
  ValueReader reader(content);
  Cell type = reader.Next();
  const auto blocks = BlocksOf(type);
  std::vector<Cell> values(CellCount(blocks));
  // All values first: a file that is too short must not leave a mixture of two images.
  for (Cell& value : values) value = reader.Next();
  auto value = values.begin();
  for (const FileBlock& block : blocks) {
    for (int index = 0; index <= block.last; ++index) (*block.table)[index] = std::move(*value++);
  }
  return type;
}

}  // namespace bkconf
