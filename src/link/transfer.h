// What every transfer does at its start and at its ends, and what it moves on the main window.
// Connect, Send and the screens that read tables on demand start here; the engines end here.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "link/link_events.h"
#include "platform/field.h"
#include "session/state.h"

namespace bkconf {

/// The parts of the main window that transfers move. The main window fills this in when it is
/// built.
struct TransferWindow {
  std::string* title = nullptr;
  LabelField* status = nullptr;
  ProgressField* bar = nullptr;  ///< that moves at the moment
  ProgressField* ownBar = nullptr;
  ButtonField* connect = nullptr;
  ButtonField* send = nullptr;
  std::function<void(bool)> enableMenus;              ///< the four menus and the selection list
  std::function<void(bool)> enableActions;            ///< the action buttons of the kind in memory
  std::function<void(bool)> enableModuleFields;       ///< address and what stands beside it
  std::function<void(const ModuleKind&)> showModel;   ///< model, caption, picture, frame
  std::function<void(const ModuleKind&)> showFields;  ///< group and action buttons after a read
  std::function<void()> showModuleCells;  ///< address, version and what stands beside them
};

inline TransferWindow Window;

/// The end of the bar while the tool waits for a module's poll.
inline constexpr int SearchMaximum = 20000;

/// True from the start of a transfer until the menus are back.
inline bool TransferUnderWay = false;

/// Shows model, caption, picture and frame of the kind in memory, if there is one.
void ShowActiveModel();

/// Starts the conversation for `PendingCommand`: ends what the link still does, locks the window,
/// shows the search, closes and opens the port and starts the wait for the poll. False when the
/// port cannot be opened: nothing runs then, the window stays locked and nothing is told.
bool StartTransfer();

/// Starts what a screen asks of the module: the read of an additional table, the scan of modules or
/// a live test. Sets `PendingCommand` and the load flag of the table, which counts as loaded from
/// here on. An earlier Send that was left or hangs does not make it a write.
bool StartRequest(std::string_view command);

/// True while a Send runs, also one that only repeats a read: no screen waits for that read.
bool SentByUser();

/// Tells the main window that the image was changed: it can be sent.
void SignalChange();

/// Gives Connect, Send and the action buttons back.
void UnlockButtons();
/// Gives the menus and the selection list back: the transfer is over.
void UnlockMenus();
/// Gives everything back, and then tells the screen that waits for it.
void UnlockWindow(std::optional<LinkEvent> told = std::nullopt);
/// The end of a read for the eye: bar hidden, "Edit mode", Connect, Send, fields and action buttons
/// back. Then tells the screen that waits for it.
void CloseRead(std::optional<LinkEvent> told = std::nullopt);

/// The end of a live test: the link does nothing more, "Ready", and everything is given back.
void EndTest();

/// Lets the bar of a screen take the place of the one that moves, for the read that has begun: it
/// gets that one's end.
void LendBar(ProgressField& bar);
/// Gives the main window its bar back, however the read ended. Every transfer starts with it.
void ReturnBar();

/// Ends what the link does at the moment, wherever it stands. The window is not touched.
void StopLink();
/// Leaves a transfer that cannot go on, as after a refused identity: no routine of the link runs
/// any more, the window is free, and the image stays as it is.
void LeaveTransfer();
/// What a run-time error does to the link: a transfer that is under way is left, and so is one that
/// freed the window already and still awaits the module's last line.
void LeaveFailedTransfer();

}  // namespace bkconf
