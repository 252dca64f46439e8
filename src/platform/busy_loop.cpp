#include "platform/machine.h"

namespace bkconf {

// No compiler removes the loop: the pause is the purpose. A counter in a register takes the same
// time wherever the program lies in memory; one in memory does not, and the pause that was measured
// once would be another one the next day.
void RunBusyLoop(std::int64_t last) {
#if defined(__GNUC__)
  for (std::int64_t turn = 0; turn <= last; ++turn) asm volatile("" : "+r"(turn));
#else
  for (volatile std::int64_t turn = 0; turn <= last;) turn = turn + 1;
#endif
}

}  // namespace bkconf
