// The screen that chooses a configuration file to open.
#pragma once

#include "shell/file_screen.h"

namespace bkconf {

struct OpenDialogScreen : FileScreen {
  OpenDialogScreen();

  ButtonField open;
  ButtonField defaultDirectory;
};

inline OpenDialogScreen OpenDialog;

/// Captions and handlers, once at start-up.
void LoadOpenDialog();
/// What the entry `openen` does: starts in `DefaultDirectory`, or in the settings directory.
void ShowOpenDialog();

}  // namespace bkconf
