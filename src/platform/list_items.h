// What lists of numbers and letters offer. The editors and the main window fill theirs with it.
#pragma once

#include <string>
#include <vector>

namespace bkconf {

/// The numbers `first` to `last`, both of them, as plain decimals; nothing when `last` is below.
std::vector<std::string> NumberItems(int first, int last);
/// The letters `first` to `last`, both of them, one an item.
std::vector<std::string> LetterItems(char first, char last);

}  // namespace bkconf
