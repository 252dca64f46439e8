// Which screens there are, how each of them looks and from which one it is opened: one row each.
// The program makes its windows from it.
#pragma once

#include <memory>
#include <span>

#include "platform/field.h"
#include "shell/qt/layout.h"
#include "shell/qt/screen_window.h"

namespace bkconf {

struct ScreenRow {
  Screen* screen;
  Part (*layout)();
  Screen* opener;  ///< stands in a row above; null for the main window, which is the first
};

std::span<const ScreenRow> AllScreens();

/// Makes the windows of all screens. The main window is given back; it owns the others.
std::unique_ptr<ScreenWindow> MakeWindows();

}  // namespace bkconf
