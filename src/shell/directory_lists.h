// A drive list and a directory list that walk through the machine's directories together. The file
// screens are made around them.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/field.h"

namespace bkconf {

/// A path and a name with the platform's separator between them, as they stand: behind the root of
/// a drive there are two.
std::string Joined(std::string_view directory, std::string_view name);

class DirectoryLists {
 public:
  /// `drives` is a list of paths; `directories` holds ".." and the directories within this one.
  DirectoryLists(ListField& drives, ListBoxField& directories);
  DirectoryLists(const DirectoryLists&) = delete;
  DirectoryLists& operator=(const DirectoryLists&) = delete;

  std::function<void()> onChange;  ///< runs after the directory has changed

  /// The directory that the lists stand in, without a separator at its end; the root of a drive has
  /// one.
  const std::string& Path() const { return path_; }

  /// Moves to a directory, by its absolute path. Throws RuntimeError (DirectoryNotRead) and stays
  /// where it was then.
  void GoTo(const std::string& path);
  /// The same, told by false; a path that is not absolute is none.
  bool TryGoTo(const std::string& path);
  /// Looks at the directory again.
  void Refresh() { GoTo(path_); }

 private:
  void Enter(const std::string& path, const std::string& hiddenFolder);
  void PickDrive();
  void OpenDirectory();
  void ShowDrive();

  ListField& drives_;
  ListBoxField& directories_;
  std::string path_;
};

}  // namespace bkconf
