// The screen that chooses the directory in which the file screens start. Opened by the directory
// screen; its captions are English in both languages, on purpose.
#pragma once

#include "platform/field.h"
#include "shell/directory_lists.h"

namespace bkconf {

struct DirectoryPickerScreen : Screen {
  DirectoryPickerScreen();

  LabelField driveLabel;
  ListField drives;
  ListBoxField directories;
  LabelField currentLabel;
  LabelField current;
  ButtonField select;
  ButtonField setDefault;
  ButtonField cancel;

  DirectoryLists lists;
};

inline DirectoryPickerScreen DirectoryPicker;

/// Captions and handlers, once at start-up.
void LoadDirectoryPicker();
/// Starts in `DefaultDirectory`. Where that is gone or empty, the settings directory takes its
/// place and is stored at once.
void ShowDirectoryPicker();

}  // namespace bkconf
