// The screen that chooses the name of a configuration file and writes it.
#pragma once

#include "platform/tick.h"
#include "shell/file_screen.h"

namespace bkconf {

struct SaveDialogScreen : FileScreen {
  SaveDialogScreen();

  LabelField fileNameLabel;  ///< a double click proposes a name
  TextField fileName;
  ButtonField save;
  ButtonField newFolder;
  TextField folderName;
  ButtonField makeFolder;
};

inline SaveDialogScreen SaveDialog;

/// Captions and handlers, once at start-up.
void LoadSaveDialog();
/// What the entry `Bewaren_als` does. An image with a table missing is not saved: a message tells
/// so, and no screen opens.
void ShowSaveDialog();

/// A folder that cannot be made is tried again until it can, until its name or the directory is
/// changed, or until the screen is closed.
extern Tick FolderRetry;

}  // namespace bkconf
