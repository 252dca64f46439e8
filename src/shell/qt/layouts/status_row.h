// The last row of screens that can be opened while their table is still being read: how far that
// is, and the way out. Their layouts use it.
#pragma once

#include "shell/qt/layout.h"

namespace bkconf {

inline Part StatusRow() {
  return Row({Share(2, Item("status")), Share(1, Labelled("status", "bar")), Item("leave")});
}

}  // namespace bkconf
