#include "special/cell_text.h"

#include "text/windows1252.h"

namespace bkconf {

std::string TextOfCells(const Table& table, int first, int count) {
  std::string bytes;
  for (int i = 0; i < count; ++i) bytes += static_cast<char>(table[first + i].Whole());
  return FromWindows1252(bytes);
}

void PutTextIntoCells(Table& table, int first, int count, std::string_view text) {
  std::string bytes = ToWindows1252(text);
  bytes.resize(static_cast<std::size_t>(count), ' ');
  for (int i = 0; i < count; ++i) {
    table[first + i] =
        static_cast<int>(static_cast<unsigned char>(bytes[static_cast<std::size_t>(i)]));
  }
}

}  // namespace bkconf
