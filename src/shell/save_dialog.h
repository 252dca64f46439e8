// The screen that chooses the name of a configuration file and writes it.
#pragma once

#include "platform/field.h"
#include "platform/tick.h"
#include "shell/directory_lists.h"

namespace bkconf {

struct SaveDialogScreen : Screen {
  SaveDialogScreen();

  LabelField directoryLabel;
  LabelField driveLabel;
  ListField drives;
  ListBoxField directories;
  LabelField path;
  LabelField filesLabel;
  ListBoxField files;
  LabelField fileNameLabel;  ///< a double click proposes a name
  TextField fileName;
  ButtonField save;
  ButtonField newFolder;
  TextField folderName;
  ButtonField makeFolder;

  DirectoryLists lists;
};

inline SaveDialogScreen SaveDialog;

/// Captions and handlers, once at start-up.
void LoadSaveDialog();
/// What the entry `Bewaren_als` does. An image with a table missing is not saved: a message tells
/// so, and no screen opens.
void ShowSaveDialog();

/// A folder that cannot be made is tried again until it can, or until the screen is closed.
extern Tick FolderRetry;

}  // namespace bkconf
