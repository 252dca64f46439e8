// The screen that chooses a configuration file to open.
#pragma once

#include "platform/field.h"
#include "shell/directory_lists.h"

namespace bkconf {

struct OpenDialogScreen : Screen {
  OpenDialogScreen();

  LabelField directoryLabel;
  LabelField driveLabel;
  ListField drives;
  ListBoxField directories;
  LabelField path;  ///< the directory, and the file in it that is picked
  LabelField filesLabel;
  ListBoxField files;
  ButtonField open;
  ButtonField defaultDirectory;

  DirectoryLists lists;
};

inline OpenDialogScreen OpenDialog;

/// Captions and handlers, once at start-up.
void LoadOpenDialog();
/// What the entry `openen` does: starts in `DefaultDirectory`, or in the settings directory.
void ShowOpenDialog();

}  // namespace bkconf
