#include "shell/save_dialog.h"

#include "image/configuration_file.h"
#include "platform/machine.h"
#include "session/language.h"
#include "shell/module_file.h"

namespace bkconf {

SaveDialogScreen::SaveDialogScreen()
    : Screen("SaveDialog"),
      directoryLabel(*this, "directoryLabel"),
      driveLabel(*this, "driveLabel"),
      drives(*this, "drives"),
      directories(*this, "directories"),
      path(*this, "path"),
      filesLabel(*this, "filesLabel"),
      files(*this, "files"),
      fileNameLabel(*this, "fileNameLabel"),
      fileName(*this, "fileName"),
      save(*this, "save"),
      newFolder(*this, "newFolder"),
      folderName(*this, "folderName"),
      makeFolder(*this, "makeFolder"),
      lists(drives, directories) {}

namespace {

void ShowDirectory() {
  SaveDialog.files.SetItems(DirectorySystem->FilesIn(SaveDialog.lists.Path(), FileExtension));
  SaveDialog.path.caption = SaveDialog.lists.Path();
}

void ProposeName() {
  const std::string name = ProposedName();
  if (!name.empty()) SaveDialog.fileName.Show(name);
}

void Save() {
  if (SaveDialog.fileName.Text().empty()) return;
  SaveModuleAs(SaveDialog.lists.Path(), SaveDialog.fileName.Text());
  SaveDialog.Close();
}

void AskFolderName() {
  SaveDialog.folderName.visible = true;
  SaveDialog.newFolder.visible = false;
  SaveDialog.enter = &SaveDialog.makeFolder;
}

void ShowNoFolderName() {
  FolderRetry.Disable();
  SaveDialog.makeFolder.enabled = false;
  SaveDialog.newFolder.visible = true;
  SaveDialog.folderName.Show("");
  SaveDialog.folderName.visible = false;
  SaveDialog.enter = &SaveDialog.save;
}

/// A folder that cannot be made is tried again and again, with the name that stands there then: the
/// user mends the name, or what is in the way.
void MakeFolder() {
  if (!DirectorySystem->Make(Joined(SaveDialog.lists.Path(), SaveDialog.folderName.Text()))) {
    if (!FolderRetry.Enabled()) FolderRetry.Enable();
    return;
  }
  ShowNoFolderName();
  SaveDialog.lists.Refresh();
}

}  // namespace

Tick FolderRetry{"FolderRetry", 100, MakeFolder};

void LoadSaveDialog() {
  Show(SaveDialog.title, TextId::SaveTitle);
  Show(SaveDialog.directoryLabel.caption, TextId::SaveIn);
  Show(SaveDialog.driveLabel.caption, TextId::DriveLabel);
  Show(SaveDialog.filesLabel.caption, TextId::FilesLabel);
  Show(SaveDialog.fileNameLabel.caption, TextId::FileName);
  Show(SaveDialog.fileNameLabel.toolTip, TextId::FileNameHint);
  Show(SaveDialog.save.caption, TextId::SaveButton);
  Show(SaveDialog.newFolder.caption, TextId::NewFolder);
  Show(SaveDialog.makeFolder.caption, TextId::MakeFolder);
  SaveDialog.lists.onChange = ShowDirectory;
  SaveDialog.files.onPick = [] { SaveDialog.fileName.Show(SaveDialog.files.Text()); };
  SaveDialog.fileNameLabel.onDoubleClick = ProposeName;
  SaveDialog.save.onClick = Save;
  SaveDialog.newFolder.onClick = AskFolderName;
  SaveDialog.folderName.onChange = [] { SaveDialog.makeFolder.enabled = true; };
  SaveDialog.makeFolder.onClick = MakeFolder;
  SaveDialog.onClose = [] {
    FolderRetry.Disable();
    SaveDialog.shown = false;
  };
}

void ShowSaveDialog() {
  if (!SaveDialogGuard()) {
    Messages->Tell(std::string(Text(TextId::Incomplete)));
    return;
  }
  SaveDialog.fileName.Show("");
  ShowNoFolderName();
  GoToStart(SaveDialog.lists);
  SaveDialog.shown = true;
}

}  // namespace bkconf
