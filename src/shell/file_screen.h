// What the screens that open and save a file have in common: a walk through the directories, and
// the configuration files in the one that it stands in.
#pragma once

#include <string_view>

#include "platform/field.h"
#include "shell/directory_lists.h"
#include "text/text.h"

namespace bkconf {

struct FileScreen : Screen {
  explicit FileScreen(std::string_view screenName);

  LabelField directoryLabel;
  LabelField driveLabel;
  ListField drives;
  ListBoxField directories;
  LabelField path;  ///< the directory, and what a screen puts behind it
  LabelField filesLabel;
  ListBoxField files;

  DirectoryLists lists;

  /// Captions and handlers, once at start-up.
  void LoadLists(TextId caption, TextId directoryCaption);
  /// Starts in `DefaultDirectory`, and where that is empty or gone in the settings directory.
  /// Nothing is stored.
  void GoToStart();
};

}  // namespace bkconf
