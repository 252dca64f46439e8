#include "shell/save_dialog.h"

#include "platform/machine.h"
#include "session/language.h"
#include "shell/module_file.h"

namespace bkconf {

SaveDialogScreen::SaveDialogScreen()
    : FileScreen("SaveDialog"),
      fileNameLabel(*this, "fileNameLabel"),
      fileName(*this, "fileName"),
      save(*this, "save"),
      newFolder(*this, "newFolder"),
      folderName(*this, "folderName"),
      makeFolder(*this, "makeFolder") {
  enter = &save;
  firstFocus = &fileName;
  folderName.enter = &makeFolder;
}

namespace {

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
}

void ShowNoFolderName() {
  FolderRetry.Disable();
  SaveDialog.makeFolder.enabled = false;
  SaveDialog.newFolder.visible = true;
  SaveDialog.folderName.Show("");
  SaveDialog.folderName.visible = false;
}

/// A folder that cannot be made is tried again and again, in case that what is in the way goes. A
/// change of the name ends that: half of it would be made otherwise while the rest is typed. So
/// does another directory, where nobody asked for the folder.
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
  SaveDialog.LoadLists(TextId::SaveTitle, TextId::SaveIn);
  SaveDialog.lists.onChange = [showDirectory = SaveDialog.lists.onChange] {
    showDirectory();
    FolderRetry.Disable();
  };
  Show(SaveDialog.fileNameLabel.caption, TextId::FileName);
  Show(SaveDialog.fileNameLabel.toolTip, TextId::FileNameHint);
  Show(SaveDialog.save.caption, TextId::SaveButton);
  Show(SaveDialog.newFolder.caption, TextId::NewFolder);
  Show(SaveDialog.makeFolder.caption, TextId::MakeFolder);
  SaveDialog.files.onPick = [] { SaveDialog.fileName.Show(SaveDialog.files.Text()); };
  SaveDialog.fileNameLabel.onDoubleClick = ProposeName;
  SaveDialog.save.onClick = Save;
  SaveDialog.newFolder.onClick = AskFolderName;
  SaveDialog.folderName.onChange = [] {
    FolderRetry.Disable();
    SaveDialog.makeFolder.enabled = true;
  };
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
  SaveDialog.GoToStart();
  SaveDialog.shown = true;
}

}  // namespace bkconf
