#include "shell/open_dialog.h"

#include "session/language.h"
#include "session/settings.h"
#include "shell/module_file.h"

namespace bkconf {

OpenDialogScreen::OpenDialogScreen()
    : FileScreen("OpenDialog"), open(*this, "open"), defaultDirectory(*this, "defaultDirectory") {
  enter = &open;
  firstFocus = &files;
}

namespace {

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
  OpenDialog.LoadLists(TextId::OpenTitle, TextId::LookIn);
  Show(OpenDialog.open.caption, TextId::OpenButton);
  Show(OpenDialog.defaultDirectory.caption, TextId::DefaultDirectoryButton);
  OpenDialog.files.onPick = [] { OpenDialog.path.caption = PickedPath(); };
  OpenDialog.files.onOpen = OpenPicked;
  OpenDialog.open.onClick = OpenPicked;
  OpenDialog.defaultDirectory.onClick = [] { OpenDialog.lists.GoTo(SettingsDirectory); };
}

void ShowOpenDialog() {
  OpenDialog.GoToStart();
  OpenDialog.shown = true;
}

}  // namespace bkconf
