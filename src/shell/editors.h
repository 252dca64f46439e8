// All editors of the tool: which action button opens which screen. The main window loads them.
#pragma once

namespace bkconf {

/// Gives every editor its captions and handlers, and every action something to do; once at
/// start-up.
void LoadEditors();

}  // namespace bkconf
