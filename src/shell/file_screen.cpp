#include "shell/file_screen.h"

#include "image/configuration_file.h"
#include "platform/machine.h"
#include "session/language.h"
#include "session/settings.h"

namespace bkconf {

FileScreen::FileScreen(std::string_view screenName)
    : Screen(screenName),
      directoryLabel(*this, "directoryLabel"),
      driveLabel(*this, "driveLabel"),
      drives(*this, "drives"),
      directories(*this, "directories"),
      path(*this, "path"),
      filesLabel(*this, "filesLabel"),
      files(*this, "files"),
      lists(drives, directories) {}

void FileScreen::LoadLists(TextId caption, TextId directoryCaption) {
  Show(title, caption);
  Show(directoryLabel.caption, directoryCaption);
  Show(driveLabel.caption, TextId::DriveLabel);
  Show(filesLabel.caption, TextId::FilesLabel);
  lists.onChange = [this] {
    files.SetItems(DirectorySystem->FilesIn(lists.Path(), FileExtension));
    path.caption = lists.Path();
  };
}

void FileScreen::GoToStart() {
  if (!lists.TryGoTo(DefaultDirectory.Text())) lists.GoTo(SettingsDirectory);
}

}  // namespace bkconf
