#include "platform/list_items.h"

namespace bkconf {

std::vector<std::string> NumberItems(int first, int last) {
  std::vector<std::string> items;
  for (int number = first; number <= last; ++number) items.push_back(std::to_string(number));
  return items;
}

std::vector<std::string> LetterItems(char first, char last) {
  std::vector<std::string> items;
  for (char letter = first; letter <= last; ++letter) items.emplace_back(1, letter);
  return items;
}

}  // namespace bkconf
