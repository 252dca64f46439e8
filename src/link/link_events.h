// What the engines tell the screens above the link. Each screen's folder puts its handlers here
// before the session starts.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

namespace bkconf {

/// The moments of a transfer that belong to a screen; one without a handler passes.
enum class LinkEvent {
  TestStarted,             ///< setup step of a live test; its screen takes over status and bar
  TemperatureReadStarted,  ///< setup step of a read on demand of the temperature module
  DisplayReadStarted,      ///< setup step of a read on demand of the display module
  WeekdayReadStarted,      ///< the same of its names of the weekdays
  TestLineReceived,        ///< a line of a live test stands in RxLine
  OutputsTestReady,        ///< the module took the command: the stop button may work
  ButtonTestReady,
  LineTestReady,
  DetectorTestReady,
  TestEnded,     ///< the module ended a live test by itself
  ContextsRead,  ///< the table is complete and the window is free again
  TimeProgramsRead,
  LightProgramsRead,
  ModuleListRead,   ///< the master's directory cells stand in ButtonImage
  TemperatureRead,  ///< an additional table of the temperature module is complete
  LiveTemperature,  ///< one line of live temperatures stands in RxLine
  DisplayRead,      ///< a display's table of the display module is complete
  WeekdayRead,      ///< its names of the weekdays are complete
  TransferLeft,     ///< the transfer was left before its end; what waits for it waits in vain
};
inline constexpr std::size_t LinkEventCount = static_cast<std::size_t>(LinkEvent::TransferLeft) + 1;

using LinkHandler = std::function<void()>;
inline std::array<std::vector<LinkHandler>, LinkEventCount> LinkHandlers;

inline void Listen(LinkEvent event, LinkHandler handler) {
  LinkHandlers[static_cast<std::size_t>(event)].push_back(std::move(handler));
}

inline void Raise(LinkEvent event) {
  for (const LinkHandler& handler : LinkHandlers[static_cast<std::size_t>(event)]) handler();
}

}  // namespace bkconf
