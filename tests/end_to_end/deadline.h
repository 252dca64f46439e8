// Waits for a condition, not for a time. Used by all end-to-end tests and by what they are made of.
#pragma once

#include <chrono>
#include <functional>

namespace end_to_end {

// Long enough that only a condition that never comes runs into it, on a busy machine too.
inline constexpr std::chrono::seconds patience(120);

// After this, what was done without effect is done again. Nothing fails by it.
inline constexpr std::chrono::seconds nextTry(10);

// Asks again and again until `condition` holds or the time is over. Gives whether it held.
bool WaitFor(const std::function<bool()>& condition, std::chrono::milliseconds limit = patience);

}  // namespace end_to_end
