#include "end_to_end/action_code.h"

namespace end_to_end {

std::string TwoDigits(int number) {
  const std::string digits = std::to_string(100 + number);
  return digits.substr(digits.size() - 2);
}

std::string CodeOf(const Action& action, Values values) {
  constexpr int firstBlock = 16;
  const bool context = action.letter == 'S';
  const bool corvela = action.letter == 'Z';
  const bool fromOne = (corvela && values != Values::AsStored) ||
                       (action.index >= firstBlock && !context && values == Values::InBlocks);
  return static_cast<char>(action.letter) + TwoDigits(action.index + 1) +
         TwoDigits(action.value + (fromOne ? 1 : 0));
}

}  // namespace end_to_end
