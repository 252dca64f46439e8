#include "platform/machine.h"

namespace bkconf {

void RunBusyLoop(std::int64_t last) {
  // Volatile, so that no compiler removes the loop: the pause is the purpose.
  for (volatile std::int64_t turn = 0; turn <= last;) turn = turn + 1;
}

}  // namespace bkconf
