// A screen that stands open, for fields of a test's own.
#pragma once

#include "platform/field.h"

namespace bkconf {

struct OpenScreen : Screen {
  OpenScreen() : Screen("Some") { shown = true; }
};

}  // namespace bkconf
