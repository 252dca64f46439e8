// The contexts of a master in their two forms: packed, as they go over the bus and into a file, and
// spread out, as the screen edits them.
#pragma once

#include "image/tables.h"

namespace bkconf {

/// Of each context in ContextWork: a hundred actions of three cells. The first 42 in a cell that
/// begins an action ends the list.
inline constexpr int ContextCells = 300;

/// A cell of ContextWork, both counted from 0.
Cell& ContextCell(int context, int cell);

void EmptyContext(int context);

/// Both forms without any context.
void ResetContexts();
/// The spread form without any context, for an image whose packed form is there already.
void ResetContextWork();

/// Spreads ContextTable out. Only the cell behind the last of each context becomes 42: those
/// behind it keep what they held. Gives the cells of ContextTable that are free.
int UnpackContexts();
/// Packs ContextWork, and gives the cells of ContextTable that are free. What does not fit is
/// dropped, and the number is negative then.
int PackContexts();

}  // namespace bkconf
