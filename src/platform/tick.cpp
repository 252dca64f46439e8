#include "platform/tick.h"

namespace bkconf {

void Tick::Enable() {
  enabled_ = true;
  ActiveTickDriver->Arm(*this);
}

void Tick::Disable() {
  if (!enabled_) return;
  enabled_ = false;
  ActiveTickDriver->Disarm(*this);
}

void Tick::SetPeriod(int periodMs) {
  period_ = periodMs;
  if (enabled_) ActiveTickDriver->Arm(*this);
}

void Tick::Run() {
  if (!enabled_) return;
  ActiveTickDriver->Arm(*this);
  routine_();
}

}  // namespace bkconf
