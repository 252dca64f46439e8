// Files on the machine's own disk, for the programs; tests that need a disk use it as well.
#pragma once

#include "platform/machine.h"

namespace bkconf {

/// Paths are UTF-8. A write goes beside the file, is synced and then renamed over it, so that a
/// crash or a full disk leaves the old file or the new one.
class DiskFiles : public Files {
 public:
  std::optional<std::string> Read(const std::string& path) const override;
  void Write(const std::string& path, std::string_view content) override;
};

}  // namespace bkconf
