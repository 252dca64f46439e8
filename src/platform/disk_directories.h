// Directories on the machine's own disk, for the programs.
#pragma once

#include "platform/machine.h"

namespace bkconf {

/// Paths are UTF-8. A symbolic link to a directory counts as one, one to a file as a file; what can
/// be neither opened nor asked what it is is left out.
class DiskDirectories : public Directories {
 public:
  /// The drives by letter on Windows. Elsewhere the root, the user's own directory, and the volumes
  /// that are mounted where volumes are put for users.
  std::vector<std::string> Drives() const override;
  std::vector<std::string> FoldersIn(const std::string& path) const override;
  std::vector<std::string> FilesIn(const std::string& path, std::string_view ending) const override;
  bool Make(const std::string& path) override;
};

/// The directories of a mount table in the form of "/proc/mounts" where users look for volumes:
/// what lies under "/media", "/run/media" and "/mnt", in alphabetical order.
std::vector<std::string> MountedVolumes(std::string_view mountTable);

}  // namespace bkconf
