// The ticks of the panel of the clocks.
#pragma once

#include "platform/tick.h"

namespace bkconf {

extern Tick PcClock;    ///< shows the clock of the PC
extern Tick ClockSend;  ///< sends one of the two lines that set the master's clock

}  // namespace bkconf
