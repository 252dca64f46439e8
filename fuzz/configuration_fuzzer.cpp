// Feeds the reader of configuration files with anything, and looks that it either refuses the bytes
// and has changed nothing, or that what it read prints to a file that reads as the same. Built with
// libFuzzer by dev/fuzz.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "image/configuration_file.h"
#include "platform/runtime_error.h"

namespace bkconf {
namespace {

std::vector<Cell> CellsOf(std::span<const FileBlock> blocks) {
  std::size_t size = 0;
  for (const FileBlock& block : blocks) size += static_cast<std::size_t>(block.table->Size());
  std::vector<Cell> cells;
  cells.reserve(size);
  for (const FileBlock& block : blocks) {
    for (int index = 0; index < block.table->Size(); ++index)
      cells.push_back((*block.table)[index]);
  }
  return cells;
}

/// What the tables of all layouts held after the last file that was read.
std::vector<Cell> AllCells() {
  std::vector<Cell> cells;
  for (const FileLayout& layout : FileLayouts) {
    std::ranges::copy(CellsOf(layout.blocks), std::back_inserter(cells));
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
void TryRoundTrip(const Cell& type) {
  const std::vector<Cell> cells = CellsOf(BlocksOf(type));
  const std::string printed = PrintConfiguration(type);
  const Cell again = ReadConfiguration(printed);
  Require(again == type, "the type is the same again");
  Require(CellsOf(BlocksOf(type)) == cells, "every cell is the same again");
  Require(PrintConfiguration(again) == printed, "the file is the same again");
}

void TryFile(std::string_view content) {
  // Thousands of cells, and most of what a fuzzer makes up is refused: all of them are looked at
  // not each time, but with the same input always.
  constexpr std::size_t looks = 16;
  const bool look = content.size() % looks == 0;
  const std::vector<Cell> before = look ? AllCells() : std::vector<Cell>();
  try {
    TryRoundTrip(ReadConfiguration(content));
  } catch (const RuntimeError&) {
    Require(!look || AllCells() == before, "a refused file changes nothing");
  }
}

}  // namespace
}  // namespace bkconf

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  bkconf::TryFile({reinterpret_cast<const char*>(data), size});
  return 0;
}
