// The look of the screen that chooses where the file screens start.
// The table of screens names it.
#pragma once

#include "shell/qt/layout.h"

namespace bkconf {

inline Part DirectoryPickerLayout() {
  return Column(
      {Below("driveLabel", "drives"), Labelled("currentLabel", "directories"),
       Row({Item("currentLabel"), Share(1, Item("current", Look::Path))}), Rule(),
       Row({Item("setDefault"), Space(), Item("select", Look::Primary), Item("cancel")})});
}

}  // namespace bkconf
