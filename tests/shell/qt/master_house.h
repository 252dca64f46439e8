// A house full of modules with a master that holds some contexts and programmes, in the tables, for
// the tests of the master's windows.
#pragma once

namespace bkconf {

/// Actions in the first context and in both lists of programmes: toggle of the outputs of module
/// 'A', one after the other.
inline constexpr int UsedPlaces = 5;

/// One module of each kind, 'A' a relay module. The tables of the master count as read.
void FillHouse();
/// Packed as well.
void FillContext(int context, int actions);
void FillPrograms(int slots);

}  // namespace bkconf
