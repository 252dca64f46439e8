#include "shell/directory_picker.h"

#include "session/language.h"
#include "session/settings.h"
#include "shell/directory_screen.h"

namespace bkconf {

DirectoryPickerScreen::DirectoryPickerScreen()
    : Screen("DirectoryPicker"),
      driveLabel(*this, "driveLabel"),
      drives(*this, "drives"),
      directories(*this, "directories"),
      currentLabel(*this, "currentLabel"),
      current(*this, "current"),
      select(*this, "select"),
      setDefault(*this, "setDefault"),
      cancel(*this, "cancel"),
      lists(drives, directories) {
  enter = &select;
}

namespace {

void StoreChoice(const std::string& directory) {
  StoreDirectory(directory);
  DirectoryScreen.directory.caption = directory;
}

/// A directory that is gone, or none, is repaired at once: the file says so even when the picker is
/// left by Cancel.
void GoToDefaultDirectory() {
  if (DirectoryPicker.lists.TryGoTo(DefaultDirectory.Text())) return;
  DirectoryPicker.lists.GoTo(SettingsDirectory);
  StoreChoice(Joined(SettingsDirectory, ""));
}

void Select() {
  StoreChoice(DirectoryPicker.lists.Path());
  DirectoryPicker.Close();
}

}  // namespace

void LoadDirectoryPicker() {
  Show(DirectoryPicker.title, TextId::BrowseTitle);
  Show(DirectoryPicker.driveLabel.caption, TextId::LookInDrive);
  Show(DirectoryPicker.currentLabel.caption, TextId::CurrentDirectory);
  Show(DirectoryPicker.select.caption, TextId::SelectDirectory);
  Show(DirectoryPicker.setDefault.caption, TextId::Default);
  Show(DirectoryPicker.cancel.caption, TextId::Cancel);
  DirectoryPicker.lists.onChange = [] {
    DirectoryPicker.current.caption = DirectoryPicker.lists.Path();
  };
  DirectoryPicker.select.onClick = Select;
  DirectoryPicker.setDefault.onClick = [] { DirectoryPicker.lists.GoTo(SettingsDirectory); };
  DirectoryPicker.cancel.onClick = [] { DirectoryPicker.Close(); };
}

void ShowDirectoryPicker() {
  GoToDefaultDirectory();
  DirectoryPicker.shown = true;
}

}  // namespace bkconf
