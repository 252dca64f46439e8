// The identity of the module on the line, and the setup step that follows when it fits.
#pragma once

#include <string_view>

#include "image/module_kinds.h"

namespace bkconf {

/// The kind whose identity the line begins with, or null. "DISPL11" and what follows it is kind 11
/// and never kind 1; "DISPL10" and "DISPL12" are kind 1, as only the first six characters count.
const ModuleKind* KindOfIdentity(std::string_view line);

/// Accepts the identity in `RxLine` when the image in memory is of that kind, or when there is none
/// and nothing will be written: the setup step runs. A Send without an image passes only where the
/// pending command is a read of the module that was found. Otherwise the tool says that the module
/// is not the right one and leaves the transfer, and the kind in memory stays.
void TestIdentity();

}  // namespace bkconf
