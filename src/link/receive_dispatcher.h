// One received line: the dispatcher decides what it is, by the first of its rows that holds.
// The link calls it for each line.
#pragma once

namespace bkconf {

/// Works on the line in `RxLine`. `LinkTick` is off when it returns, unless more lines are wanted.
void ReceiveDispatcher();

}  // namespace bkconf
