// Every look of every window of the tool, with something in it: one list for the screenshots and
// for the test of how the windows look.
#pragma once

#include <span>

#include "screens/house.h"

namespace bkconf {

struct ShownScreen {
  const char* name;            ///< of its screenshot, without a suffix
  void (*show)(House& house);  ///< from a house that is clear
};

std::span<const ShownScreen> ShownScreens();

}  // namespace bkconf
