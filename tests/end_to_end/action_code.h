// Actions as they lie in a module's cells, and the codes that the tables on the screens show for
// them, worked out without the tool. Used by the tests of screens with actions.
#pragma once

#include <string>

namespace end_to_end {

inline constexpr int emptyCell = 42;

struct Action {
  int letter = emptyCell;
  int index = emptyCell;
  int value = emptyCell;
};

// From which number the last two digits of a code count.
enum class Values {
  InBlocks,  // from one for Corvela codes and for what is set in an audio zone
  OfCodes,   // from one for Corvela codes alone
  AsStored,
};

// The last two digits of a number, as "07".
std::string TwoDigits(int number);

// A letter and twice two digits. The action must not be empty.
std::string CodeOf(const Action& action, Values values);

}  // namespace end_to_end
