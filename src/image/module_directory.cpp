#include "image/module_directory.h"

namespace bkconf {

std::optional<int> DirectoryTypeOf(int letter) {
  for (int row = 0; row < DirectoryRows; ++row) {
    if (DirectoryLetter(row).Number() == letter) return DirectoryType(row).WholeNumber();
  }
  return std::nullopt;
}

}  // namespace bkconf
