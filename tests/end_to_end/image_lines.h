// The lines of a configuration file, which is also what a module keeps as its memory. Used by the
// tests that compare one with the other.
#pragma once

#include <algorithm>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace end_to_end {

// Each with its line end. The first tells the kind, cell 0 follows.
std::vector<std::string> LinesOf(const std::string& content);
std::string Text(const std::vector<std::string>& lines);

// The lines with other numbers in some cells.
std::vector<std::string> WithCells(std::vector<std::string> lines, const std::map<int, int>& cells);

// The cells whose lines are different, with what the later ones hold.
std::map<int, int> ChangedCells(const std::vector<std::string>& before,
                                const std::vector<std::string>& after);

// What is different, in words, for there are thousands of cells and of frames.
template <typename Part>
std::vector<std::string> Differences(const std::vector<Part>& found,
                                     const std::vector<Part>& wanted) {
  std::vector<std::string> differences;
  const auto add = [&](const std::string& what, const auto& one, const auto& other) {
    std::ostringstream words;
    words << what << ": " << one << " in place of " << other;
    differences.push_back(words.str());
  };
  if (found.size() != wanted.size()) add("count", found.size(), wanted.size());
  for (std::size_t i = 0; i < std::min(found.size(), wanted.size()); ++i) {
    if (found[i] != wanted[i]) add(std::to_string(i), found[i], wanted[i]);
  }
  return differences;
}

}  // namespace end_to_end
