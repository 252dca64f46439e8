// The title of the screens that edit a module: what it is, and its address letter.
#pragma once

#include <string>

namespace bkconf {

/// In the language of the session; empty while there is no module.
std::string ModuleTitle();

}  // namespace bkconf
