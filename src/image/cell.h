// The cell: one untyped value of a table or flag. Everything that holds an image is made of these.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace bkconf {

/// The mark of an unused record or cell in the master's tables ('*').
inline constexpr int EmptyCell = 42;

/// Holds nothing, a number or a string, whichever was put in last, through reads, edits and file
/// round trips. All tests on cells are numeric.
class Cell {
 public:
  Cell() = default;
  Cell(int number) : value_(static_cast<double>(number)) {}   // NOLINT: a cell takes any value
  Cell(double number) : value_(number) {}                     // NOLINT
  Cell(std::string text) : value_(std::move(text)) {}         // NOLINT
  Cell(std::string_view text) : value_(std::string(text)) {}  // NOLINT
  Cell(const char* text) : value_(std::string(text)) {}       // NOLINT

  bool IsEmpty() const { return std::holds_alternative<std::monostate>(value_); }
  bool IsNumber() const { return std::holds_alternative<double>(value_); }
  bool IsText() const { return std::holds_alternative<std::string>(value_); }

  /// The number, the number that a digit text reads as, or 0. Text that does not read as a number,
  /// "*" too, counts as 0.
  double Number() const;
  /// The whole number that the cell holds, also as digits; none for a word, a fraction, what is
  /// beyond the range of int, and an empty cell.
  std::optional<int> WholeNumber() const;
  /// `Number` without its fraction; beyond the range of int, the nearest end of the range.
  int Whole() const;
  /// The string as it stands, or the plain decimal text of the number, or "".
  std::string Text() const;
  /// What a line of a settings or configuration file holds, in UTF-8: a number has a blank (or its
  /// sign) in front and a blank behind, a string stands as it is, and nothing is an empty line.
  std::string PrintForm() const;
  /// Puts that line behind what stands in `text`.
  void AppendPrintForm(std::string& text) const;

  /// Same type and same value; used by snapshots, never by the logic.
  friend bool operator==(const Cell&, const Cell&) = default;

 private:
  std::variant<std::monostate, double, std::string> value_;
};

/// Plain decimal text: "12", "-5", "1.5"; whole numbers without a point, never an exponent.
std::string PlainText(double number);

/// Blanks around it aside: an optional sign, and digits with at most one point before, between or
/// behind them. None for anything else: no exponents, no hexadecimal, no thousands marks.
std::optional<double> ReadsAsNumber(std::string_view text);

/// The digits up to the first character that is none: no blank is skipped and no sign is known, so
/// "1x3" gives 1, and " 12", "-05" and "" give 0.
int LenientNumber(std::string_view text);

}  // namespace bkconf
