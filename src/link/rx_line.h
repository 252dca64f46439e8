// Reading the characters of the line that has come from a module, counted from 1. The cell handlers
// and the live tests use it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "image/cell.h"
#include "session/state.h"

namespace bkconf {

/// The characters `first` to `last` of RxLine, as far as it has them.
inline std::string_view CharactersOfLine(std::size_t first, std::size_t last) {
  const std::string_view line = RxLine;
  return line.size() < first ? std::string_view() : line.substr(first - 1, last - first + 1);
}

/// True when the line has all those characters, and all of them are digits.
inline bool HasDigits(std::size_t first, std::size_t last) {
  const std::string_view characters = CharactersOfLine(first, last);
  return characters.size() == last - first + 1 &&
         std::all_of(characters.begin(), characters.end(),
                     [](char each) { return each >= '0' && each <= '9'; });
}

/// The number in those characters, up to the first that is no digit; what the line does not have
/// counts as nothing.
inline int NumberInLine(std::size_t first, std::size_t last) {
  return LenientNumber(CharactersOfLine(first, last));
}

}  // namespace bkconf
