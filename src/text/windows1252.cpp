#include "text/windows1252.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace bkconf {
namespace {

/// What the codes 128 to 159 stand for; the rest of the set is that of Unicode.
constexpr std::array<char32_t, 32> Upper = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t CodePointOf(unsigned char code) {
  return code >= 128 && code < 160 ? Upper[code - 128U] : code;
}

void Append(std::string& utf8, char32_t codePoint) {
  const auto byte = [&utf8](char32_t value) { utf8 += static_cast<char>(value); };
  if (codePoint < 0x80) {
    byte(codePoint);
  } else if (codePoint < 0x800) {
    byte(0xC0 | codePoint >> 6);
    byte(0x80 | (codePoint & 0x3F));
  } else {
    byte(0xE0 | codePoint >> 12);
    byte(0x80 | (codePoint >> 6 & 0x3F));
    byte(0x80 | (codePoint & 0x3F));
  }
}

/// Takes one character from the front; a broken sequence gives its first byte away and U+FFFD.
char32_t TakeCodePoint(std::string_view& utf8) {
  constexpr char32_t broken = 0xFFFD;
  const auto at = [&utf8](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  const unsigned char lead = at(0);
  const std::size_t length = lead < 0x80   ? 1
                             : lead < 0xC0 ? 0
                             : lead < 0xE0 ? 2
                             : lead < 0xF0 ? 3
                                           : 4;
  if (length == 0 || length > utf8.size()) {
    utf8.remove_prefix(1);
    return broken;
  }
  char32_t codePoint = length == 1 ? lead : lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    if ((at(i) & 0xC0) != 0x80) {
      utf8.remove_prefix(1);
      return broken;
    }
    codePoint = codePoint << 6 | (at(i) & 0x3FU);
  }
  constexpr std::array<char32_t, 5> lowest = {0, 0, 0x80, 0x800, 0x10000};
  utf8.remove_prefix(length);
  return codePoint < lowest[length] ? broken : codePoint;
}

}  // namespace

std::string ToWindows1252(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    const char32_t codePoint = TakeCodePoint(utf8);
    if (codePoint < 128 || (codePoint >= 160 && codePoint < 256)) {
      bytes += static_cast<char>(codePoint);
      continue;
    }
    const auto found = std::find(Upper.begin(), Upper.end(), codePoint);
    bytes += found == Upper.end() ? '?' : static_cast<char>(128 + (found - Upper.begin()));
  }
  return bytes;
}

std::string FromWindows1252(std::string_view bytes) {
  std::string utf8;
  for (const char byte : bytes) Append(utf8, CodePointOf(static_cast<unsigned char>(byte)));
  return utf8;
}

std::string CharacterOf(int code) {
  if (code < 1 || code > 255) return {};
  const char byte = static_cast<char>(code);
  return FromWindows1252({&byte, 1});
}

}  // namespace bkconf
