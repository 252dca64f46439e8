// The look of the screen that saves a file: where on the left, the files there and the new name on
// the right. The table of screens names it.
#pragma once

#include "shell/qt/layout.h"

namespace bkconf {

inline Part SaveDialogLayout() {
  const Part where =
      Column({Below("driveLabel", "drives"), Below("directoryLabel", "directories"),
              Row({Share(1, Item("newFolder")), Share(1, Labelled("newFolder", "folderName")),
                   Item("makeFolder")})});
  const Part what =
      Column({Below("filesLabel", "files"),
              Row({Item("fileNameLabel"), Share(1, Labelled("fileNameLabel", "fileName"))})});
  return Column({Row({Share(1, where), Share(1, what)}), Item("path", Look::Path), Rule(),
                 Row({Space(), Item("save", Look::Primary)})});
}

}  // namespace bkconf
