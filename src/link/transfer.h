// What every transfer does at its start and at its ends, and what it moves on the main window.
// Connect, Send and the screens that read tables on demand start here; the engines end here.
#pragma once

#include <array>
#include <functional>
#include <string_view>

#include "platform/field.h"
#include "session/state.h"

namespace bkconf {

/// The parts of the main window that transfers move. The main window fills this in when it is
/// built.
struct TransferWindow {
  LabelField* status = nullptr;
  ProgressField* bar = nullptr;
  ButtonField* connect = nullptr;
  ButtonField* send = nullptr;
  std::function<void(bool)> enableMenus;            ///< the four menus and the selection list
  std::function<void(bool)> enableActions;          ///< the action buttons of the kind in memory
  std::function<void(bool)> enableModuleFields;     ///< address and what stands beside it
  std::function<void(const ModuleKind&)> showKind;  ///< model, caption, picture, frame, group
  std::function<void()> showModuleCells;  ///< address, version and what stands beside them
};

inline TransferWindow Window;

/// The moments of a transfer that belong to a screen. A screen's folder puts its handler into
/// `LinkHandlers`; a moment without a handler passes.
enum class LinkEvent {
  TestStarted,       ///< setup step of a live test; its screen takes over status and bar
  TableReadStarted,  ///< setup step of a read on demand
  TestLineReceived,  ///< a line of a live test stands in RxLine
  OutputsTestReady,  ///< the module took the command: the stop button may work
  ButtonTestReady,
  DetectorTestReady,
  TestEnded,     ///< the module ended a live test by itself
  ContextsRead,  ///< the table is complete and the window is free again
  TimeProgramsRead,
  LightProgramsRead,
  ModuleListRead,  ///< the master's directory cells stand in ButtonImage
  ModuleScanEnded,
  TemperatureRead,  ///< an additional table of the temperature module is complete
  LiveTemperature,  ///< one line of live temperatures stands in RxLine
  DisplayRead,      ///< an additional table of the display module is complete
};
inline constexpr std::size_t LinkEventCount = static_cast<std::size_t>(LinkEvent::DisplayRead) + 1;

inline std::array<std::function<void()>, LinkEventCount> LinkHandlers;

void Raise(LinkEvent event);

/// The end of the bar while the tool waits for a module's poll.
inline constexpr int SearchMaximum = 20000;

/// True from the start of a transfer until the menus are back.
inline bool TransferUnderWay = false;

/// Starts the conversation for `PendingCommand`: ends what the link still does, locks the window,
/// shows the search, closes and opens the port and starts the wait for the poll. False when the
/// port cannot be opened: nothing runs then, the window stays locked and nothing is told.
bool StartTransfer();

/// Starts the read of an additional table on demand: sets `PendingCommand` and the load flag of the
/// table, which counts as loaded from here on.
bool StartTableRead(std::string_view command);

/// Gives Connect, Send and the action buttons back.
void UnlockButtons();
/// Gives the menus and the selection list back: the transfer is over.
void UnlockMenus();
/// The end of a read for the eye: bar hidden, "Edit mode", Connect, Send, fields and action buttons
/// back.
void CloseRead();
/// Leaves a transfer that cannot go on: a refused identity, or a run-time error. No routine of the
/// link runs any more, the window is free, and the image stays as it is.
void LeaveTransfer();

}  // namespace bkconf
