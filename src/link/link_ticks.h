// The routines of the link, each a tick: one state, one tick, one hand-over. Which of them is
// enabled is the state of a transfer.
#pragma once

#include <array>

#include "platform/tick.h"

namespace bkconf {

extern Tick WakeUpWait;    ///< waits for the module's poll and answers it
extern Tick IdentityWait;  ///< reads the identity line
extern Tick CommandSend;   ///< sends `PendingCommand`
extern Tick LinkTick;      ///< collects one line for the receive dispatcher
extern Tick WriterSelect;  ///< starts the writer of the kind

/// One writer for each way of writing; at most one is enabled.
extern Tick ButtonWriter;       ///< kinds 0, 1, 4 and 11
extern Tick MasterWriter;       ///< kind 9
extern Tick TemperatureWriter;  ///< kind 2
extern Tick DisplayWriter;      ///< kind 3
extern Tick AlarmWriter;        ///< kind 5
extern Tick AudioWriter;        ///< kind 6
extern Tick SimulationWriter;   ///< kind 7
extern Tick IrWriter;           ///< kind 8
extern Tick TablePause;         ///< between two tables of the temperature module

inline constexpr std::array<Tick*, 14> LinkTicks = {
    &WakeUpWait,   &IdentityWait, &CommandSend,       &LinkTick,   &WriterSelect,
    &ButtonWriter, &MasterWriter, &TemperatureWriter, &TablePause, &DisplayWriter,
    &AlarmWriter,  &AudioWriter,  &SimulationWriter,  &IrWriter,
};

}  // namespace bkconf
