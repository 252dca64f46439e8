#include "end_to_end/image_lines.h"

#include <sstream>

namespace end_to_end {

std::vector<std::string> LinesOf(const std::string& content) {
  std::vector<std::string> lines;
  std::istringstream stream(content);
  for (std::string line; std::getline(stream, line);) lines.push_back(line + "\n");
  return lines;
}

std::string Text(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += line;
  return text;
}

std::vector<std::string> WithCells(std::vector<std::string> lines,
                                   const std::map<int, int>& cells) {
  for (const auto& [cell, number] : cells) {
    lines.at(static_cast<std::size_t>(cell) + 1) = " " + std::to_string(number) + " \r\n";
  }
  return lines;
}

std::map<int, int> ChangedCells(const std::vector<std::string>& before,
                                const std::vector<std::string>& after) {
  std::map<int, int> cells;
  for (std::size_t line = 1; line < std::min(before.size(), after.size()); ++line) {
    if (before[line] != after[line]) cells[static_cast<int>(line) - 1] = std::stoi(after[line]);
  }
  return cells;
}

}  // namespace end_to_end
