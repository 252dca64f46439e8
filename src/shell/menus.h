// The menus of the main window, and what of them needs no screen: language, port, end, and the
// hand-off to the upgrade program.
#pragma once

#include "platform/tick.h"

namespace bkconf {

/// Captions, check marks and handlers of all entries; the port gets the number of the settings.
void FillMenus();

/// 1 Dutch, 2 French: stores the choice, starts a new copy of the program and ends this one.
/// Unsaved work is gone, without a question. Throws RuntimeError when the copy cannot be started;
/// this program then lives on.
void ChangeLanguage(int language);

/// 1 to 8: closes the port, marks the entry and stores the number; the next Connect opens it.
void ChangePort(int number);

/// Once, 50 ms after the start: where there is an upgrade program, it takes over and this one ends.
extern Tick UpgradeHandOff;

/// What the upgrade button does: the same at any time, and a failure is noted in "upgrade.vdm".
void HandOverOnRequest();

}  // namespace bkconf
