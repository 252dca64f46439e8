// What an installation puts into a settings directory. Used by the main of bkconf_setup.
#pragma once

#include <filesystem>
#include <vector>

namespace setup {

struct Installation {
  int language = 1;
  int port = 1;
  /// Folders whose files are copied; one that does not exist is passed over.
  std::vector<std::filesystem::path> folders;
};

/// Lays out the directory. One that is missing appears complete or not at all; in one that exists,
/// only the files that it lacks are added. Throws std::filesystem::filesystem_error or
/// RuntimeError.
void LayOut(const std::filesystem::path& directory, const Installation& installation);

}  // namespace setup
