// The one way from Qt into the logic. Every user event and every tick goes through it: what goes
// wrong is told, and what changed is shown. Views, ticks and main use it.
#pragma once

#include <functional>

#include "platform/runtime_error.h"

namespace bkconf {

/// Runs one event, then refreshes all windows. A RuntimeError ends the event where it happened: a
/// transfer that was under way is left, and an error box tells what and where.
void RunEvent(const std::function<void()>& event);

/// Shows what went wrong, without waiting for an answer. The same error is not told a second time
/// while its box is still open.
void TellError(const RuntimeError& error);

}  // namespace bkconf
