#include "virtual_module/digits.h"

namespace virtual_module {

std::string PaddedDigits(int number, std::size_t width) {
  const std::string text = std::to_string(number);
  return text.size() < width ? std::string(width - text.size(), '0') + text : text;
}

std::optional<int> NumberOfDigits(std::string_view text) {
  constexpr std::size_t longest = 6;
  if (text.empty() || text.size() > longest) {
    return std::nullopt;
  }
  int number = 0;
  for (const char character : text) {
    if (character < '0' || character > '9') {
      return std::nullopt;
    }
    number = 10 * number + (character - '0');
  }
  return number;
}

}  // namespace virtual_module
