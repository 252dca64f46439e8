// The screen that shows the directory in which the file screens start, and leads to its choice.
// Its captions are English in both languages, on purpose.
#pragma once

#include "platform/field.h"

namespace bkconf {

struct DirectoryScreenFields : Screen {
  DirectoryScreenFields();

  LabelField directoryLabel;
  LabelField directory;
  ButtonField browse;
  ButtonField ok;  ///< closes like Cancel: the choice is stored by the picker already
  ButtonField cancel;
};

inline DirectoryScreenFields DirectoryScreen;

/// Captions and handlers, once at start-up.
void LoadDirectoryScreen();
/// What the entry `instellingen` does: reads "directory.vdm" anew and shows it. A file that cannot
/// be read leaves the value that is in memory.
void ShowDirectoryScreen();

}  // namespace bkconf
