// The look of the screen that opens a file: where on the left, which one on the right.
// The table of screens names it.
#pragma once

#include "shell/qt/layout.h"

namespace bkconf {

inline Part OpenDialogLayout() {
  const Part where =
      Column({Below("driveLabel", "drives"), Below("directoryLabel", "directories")});
  return Column({Row({Share(2, where), Share(3, Below("filesLabel", "files"))}),
                 Item("path", Look::Path), Rule(),
                 Row({Space(), Item("defaultDirectory"), Item("open", Look::Primary)})});
}

}  // namespace bkconf
