// How fast this computer turns the busy loop between two characters on the bus. The installation
// notes it in the settings.
#pragma once

#include <chrono>
#include <cstdint>

namespace setup {

/// The number of turns of the busy loop that take as long as `pause`, at least 1.
std::int64_t TurnsOf(std::chrono::nanoseconds pause);

}  // namespace setup
