#include "shell/directory_screen.h"

#include "session/language.h"
#include "session/settings.h"
#include "shell/directory_picker.h"

namespace bkconf {

DirectoryScreenFields::DirectoryScreenFields()
    : Screen("DirectoryScreen"),
      directoryLabel(*this, "directoryLabel"),
      directory(*this, "directory"),
      browse(*this, "browse"),
      ok(*this, "ok"),
      cancel(*this, "cancel") {
  enter = &ok;
}

void LoadDirectoryScreen() {
  Show(DirectoryScreen.title, TextId::PreferencesTitle);
  Show(DirectoryScreen.directoryLabel.caption, TextId::DirectoryLabel);
  Show(DirectoryScreen.browse.caption, TextId::Browse);
  Show(DirectoryScreen.ok.caption, TextId::Ok);
  Show(DirectoryScreen.cancel.caption, TextId::Cancel);
  DirectoryScreen.browse.onClick = ShowDirectoryPicker;
  DirectoryScreen.ok.onClick = DirectoryScreen.cancel.onClick = [] { DirectoryScreen.Close(); };
}

void ShowDirectoryScreen() {
  ReadSetting(DirectorySetting);
  DirectoryScreen.directory.caption = DefaultDirectory.Text();
  DirectoryScreen.shown = true;
}

}  // namespace bkconf
