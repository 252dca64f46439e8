// Files on the machine's own disk, for the programs; tests that need a disk use it as well.
#pragma once

#include "platform/machine.h"

namespace bkconf {

/// Paths are UTF-8. Only regular files are read and written, by name or by a symbolic link: what
/// else there is may give no end of bytes, or none at all.
///
/// A write goes into a file beside the old one, whose name has ".new" behind it, is synced and then
/// renamed over it: a crash or a full disk leaves the old file or the new one. The permissions of
/// the old file are kept, and a file that may not be written is not replaced.
class DiskFiles : public Files {
 public:
  std::optional<std::string> Read(const std::string& path) const override;
  std::string Load(const std::string& path) const override;
  void Write(const std::string& path, std::string_view content) override;
};

}  // namespace bkconf
