// The lines of a configuration file, which is also what a module keeps as its memory. Used by the
// tests that compare one with the other.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace end_to_end {

// Each with its line end. The first tells the kind, cell 0 follows.
std::vector<std::string> LinesOf(const std::string& content);
std::string Text(const std::vector<std::string>& lines);

// The lines with other numbers in some cells.
std::vector<std::string> WithCells(std::vector<std::string> lines, const std::map<int, int>& cells);

}  // namespace end_to_end
