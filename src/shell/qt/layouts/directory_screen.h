// The look of the screen that shows where the file screens start.
// The table of screens names it.
#pragma once

#include "shell/qt/layout.h"

namespace bkconf {

inline Part DirectoryScreenLayout() {
  return Column({Item("directoryLabel", Look::Heading),
                 Row({Share(1, Item("directory", Look::Path)), Item("browse")}), Space(), Rule(),
                 Row({Space(), Item("ok", Look::Primary), Item("cancel")})});
}

}  // namespace bkconf
