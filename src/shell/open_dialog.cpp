#include "shell/open_dialog.h"

#include "image/configuration_file.h"
#include "platform/machine.h"
#include "session/language.h"
#include "session/settings.h"
#include "shell/module_file.h"

namespace bkconf {

OpenDialogScreen::OpenDialogScreen()
    : Screen("OpenDialog"),
      directoryLabel(*this, "directoryLabel"),
      driveLabel(*this, "driveLabel"),
      drives(*this, "drives"),
      directories(*this, "directories"),
      path(*this, "path"),
      filesLabel(*this, "filesLabel"),
      files(*this, "files"),
      open(*this, "open"),
      defaultDirectory(*this, "defaultDirectory"),
      lists(drives, directories) {
  enter = &open;
}

namespace {

void ShowDirectory() {
  OpenDialog.files.SetItems(DirectorySystem->FilesIn(OpenDialog.lists.Path(), FileExtension));
  OpenDialog.path.caption = OpenDialog.lists.Path();
}

std::string PickedPath() {
  return Joined(OpenDialog.lists.Path(), OpenDialog.files.Text());
}

void OpenPicked() {
  if (OpenDialog.files.Index() < 0) return;
  OpenModule(PickedPath());
  OpenDialog.shown = false;
}

}  // namespace

void LoadOpenDialog() {
  Show(OpenDialog.title, TextId::OpenTitle);
  Show(OpenDialog.directoryLabel.caption, TextId::LookIn);
  Show(OpenDialog.driveLabel.caption, TextId::DriveLabel);
  Show(OpenDialog.filesLabel.caption, TextId::FilesLabel);
  Show(OpenDialog.open.caption, TextId::OpenButton);
  Show(OpenDialog.defaultDirectory.caption, TextId::DefaultDirectoryButton);
  OpenDialog.lists.onChange = ShowDirectory;
  OpenDialog.files.onPick = [] { OpenDialog.path.caption = PickedPath(); };
  OpenDialog.files.onOpen = OpenPicked;
  OpenDialog.open.onClick = OpenPicked;
  OpenDialog.defaultDirectory.onClick = [] { OpenDialog.lists.GoTo(SettingsDirectory); };
}

void ShowOpenDialog() {
  GoToStart(OpenDialog.lists);
  OpenDialog.shown = true;
}

}  // namespace bkconf
