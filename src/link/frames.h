// The data frames that carry one cell to a module. The writers send them.
#pragma once

#include <string>
#include <string_view>

#include "image/cell.h"

namespace bkconf {

/// What ends a line that goes out at once: LF and CR, in this order.
inline constexpr std::string_view FrameEnd = "\n\r";

/// How a frame carries index and value. The widths differ on purpose: the modules read them so.
enum class FrameForm {
  Paced,       ///< "T" III VVV, character by character, without an end
  Block,       ///< "T" III VVV LF CR
  ShortBlock,  ///< "T" III VV LF CR
  FreeNumber,  ///< "T" III, the cell's number as plain text, LF CR
  FreeText,    ///< "T" III, the cell as it stands, LF CR
};

/// The characters of the frame. A cell with no number in it is sent as 0. Only whole numbers from 0
/// to 999 are provided for: a value of 1000 or more loses its thousands.
std::string BuildFrame(FrameForm form, int wireIndex, const Cell& cell);

/// Writes the frame: a paced one character by character, the others at once.
void SendFrame(FrameForm form, int wireIndex, const Cell& cell);

}  // namespace bkconf
