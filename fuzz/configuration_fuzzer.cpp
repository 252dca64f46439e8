// Feeds the reader of configuration files with anything, and looks that it either refuses the bytes
// and has changed nothing, or that what it read prints to a file that reads as the same. Built with
// libFuzzer by dev/fuzz.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "image/configuration_file.h"
#include "platform/runtime_error.h"

namespace bkconf {
namespace {

/// What the tables of all layouts held after the last file that was read.
std::vector<Cell> FileCells() {
  std::vector<Cell> cells;
  for (const FileLayout& layout : FileLayouts) {
    for (const FileBlock& block : layout.blocks) {
      for (int index = 0; index < block.table->Size(); ++index) {
        cells.push_back((*block.table)[index]);
      }
    }
  }
  return cells;
}

void Require(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

/// A text with a comma in it would part into two on reading; no cell that comes from a file has
/// one.
void TryRoundTrip(const Cell& type, const std::vector<Cell>& cells) {
  const std::string printed = PrintConfiguration(type);
  const Cell again = ReadConfiguration(printed);
  Require(again == type, "the type is the same again");
  Require(FileCells() == cells, "every cell is the same again");
  Require(PrintConfiguration(again) == printed, "the file is the same again");
}

void TryFile(std::string_view content) {
  static std::vector<Cell> known = FileCells();
  try {
    const Cell type = ReadConfiguration(content);
    known = FileCells();
    TryRoundTrip(type, known);
  } catch (const RuntimeError&) {
    Require(FileCells() == known, "a refused file changes nothing");
  }
}

}  // namespace
}  // namespace bkconf

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  bkconf::TryFile({reinterpret_cast<const char*>(data), size});
  return 0;
}
