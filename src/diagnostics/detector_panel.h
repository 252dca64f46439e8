// The tick of the panel of the detectors.
#pragma once

#include "platform/tick.h"

namespace bkconf {

extern Tick DetectorUpdate;  ///< sends the level and logic of one detector

}  // namespace bkconf
