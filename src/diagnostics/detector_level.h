// The reference level of a detector: as it is shown, and as it goes over the line. The live test of
// the detectors uses it.
#pragma once

#include <string>
#include <vector>

namespace bkconf {

/// The levels that a detector can have: 1 to 150, to 500 in tens, to 5000 in twenties.
std::vector<int> DetectorLevels();

/// Which range a level lies in. It is the tens digit of the detector's code.
int RangeOf(int level);

/// A level that came over the line, as it is shown: in a range above 0 it comes divided by ten
/// times the range.
int ShownLevel(int wireLevel, int range);
/// The three digits of a shown level for the line. What the division leaves over is dropped.
std::string WireLevel(int level, int range);

}  // namespace bkconf
