#include "image/cell.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace bkconf {
namespace {

bool IsDigit(char character) {
  return character >= '0' && character <= '9';
}

std::string_view WithoutBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

void AppendPlainText(double number, std::string& text) {
  // Nearly all cells hold a small whole number, and a file is thousands of them.
  if (std::abs(number) < 1e9 && number == std::trunc(number)) {
    std::array<char, 12> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                   static_cast<int>(number));  // a negative zero has no sign
    text.append(digits.data(), end.ptr);
    return;
  }
  // The longest fixed form is that of the smallest number: "-0." and 324 zeros and digits.
  std::array<char, 1100> digits;
  const auto end =
      std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed);
  text.append(digits.data(), end.ptr);
}

}  // namespace

double Cell::Number() const {
  if (const double* number = std::get_if<double>(&value_)) return *number;
  if (const std::string* text = std::get_if<std::string>(&value_)) {
    return ReadsAsNumber(*text).value_or(0);
  }
  return 0;
}

std::optional<int> Cell::WholeNumber() const {
  const bool counts = IsNumber() || (IsText() && ReadsAsNumber(Text()));
  if (!counts || Number() != Whole()) return std::nullopt;
  return Whole();
}

int Cell::Whole() const {
  constexpr double lowest = std::numeric_limits<int>::min();
  constexpr double highest = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(Number(), lowest, highest));
}

std::string Cell::Text() const {
  if (const double* number = std::get_if<double>(&value_)) return PlainText(*number);
  if (const std::string* text = std::get_if<std::string>(&value_)) return *text;
  return {};
}

std::string Cell::PrintForm() const {
  std::string text;
  AppendPrintForm(text);
  return text;
}

void Cell::AppendPrintForm(std::string& text) const {
  if (const std::string* string = std::get_if<std::string>(&value_)) text += *string;
  const double* number = std::get_if<double>(&value_);
  if (number == nullptr) return;
  if (*number >= 0) text += ' ';
  AppendPlainText(*number, text);
  text += ' ';
}

std::string PlainText(double number) {
  std::string text;
  AppendPlainText(number, text);
  return text;
}

std::optional<double> ReadsAsNumber(std::string_view text) {
  const std::string_view number = WithoutBlanks(text);
  std::string_view rest = number;
  if (!rest.empty() && (rest.front() == '+' || rest.front() == '-')) rest.remove_prefix(1);
  const auto skipDigits = [&rest] {
    const auto before = rest.size();
    while (!rest.empty() && IsDigit(rest.front())) rest.remove_prefix(1);
    return before - rest.size();
  };
  auto digits = skipDigits();
  if (!rest.empty() && rest.front() == '.') {
    rest.remove_prefix(1);
    digits += skipDigits();
  }
  if (digits == 0 || !rest.empty()) return std::nullopt;
  double value = 0;
  const char* first = number.data() + (number.front() == '+' ? 1 : 0);
  const auto result = std::from_chars(first, number.data() + number.size(), value);
  // A run of digits beyond the range of a double leaves the value untouched: not a number.
  if (result.ec != std::errc()) return std::nullopt;
  return value;
}

int LenientNumber(std::string_view text) {
  int value = 0;
  for (const char character : text) {
    if (!IsDigit(character)) break;
    if (value > (std::numeric_limits<int>::max() - 9) / 10) return std::numeric_limits<int>::max();
    value = value * 10 + (character - '0');
  }
  return value;
}

}  // namespace bkconf
