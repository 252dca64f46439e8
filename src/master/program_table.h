// A master's list of programmes as its table holds it: numbered slots, each with a moment and an
// action. The screens of the time and light programmes work on one each.
#pragma once

#include "actions/action_code.h"
#include "image/table.h"

namespace bkconf {

/// What the two lists differ in.
struct ProgramTable {
  Table& table;
  int slots;
  int slotSize;  ///< cells of a slot
  int action;    ///< of a slot's cells the first of its action
  /// The delete walk ends with the copy of this slot, counted from 0, into the one before it.
  int lastMoved;
  bool (*moves)(const Cell& target);  ///< what the delete walk takes as a slot that is used
  ValueForm form;                     ///< of the last two characters of a module's action
};

/// The first cell of a slot, which counts from 0.
inline int CellOf(const ProgramTable& programs, int slot) {
  return slot * programs.slotSize;
}

/// True when the slot holds no action. What stands in its other cells does not matter.
bool IsFree(const ProgramTable& programs, int slot);

/// The five characters of the action in a slot that is not free. Here those of a context always end
/// in "02".
std::string ActionCodeOf(const ProgramTable& programs, int slot);

/// Moves the slots behind up by one, with the gaps between them. A slot that the list takes as
/// unused does not move: the one before it is filled with 42.
void DeleteSlot(const ProgramTable& programs, int slot);

}  // namespace bkconf
