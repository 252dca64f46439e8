// One action as the tables hold it, three cells, and as the grids show it, five characters. Every
// screen that lists actions fills its grid from here.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "image/table.h"

namespace bkconf {

/// The letter of the target, its number counted from 0, and what it is to do.
using ActionCells = std::array<Cell, 3>;
inline constexpr int ActionSize = 3;

/// The letters of targets that are no module.
inline constexpr char ContextLetter = 'S';
inline constexpr char CorvelaLetter = 'Z';

/// What a grid shows of an empty record.
inline constexpr std::string_view ActionEmptyText = "***";

/// A record holds an action when its first cell is the code of a letter 'A' to 'S', or of 'Z'. The
/// text "*" ranks above every number and holds none.
bool HoldsAction(const Cell& target);
/// The same without 'Z': an action of a module, or a context. In some lists Corvela codes count as
/// empty, on purpose.
bool HoldsModuleOrContextAction(const Cell& target);

/// The last two characters of a number's text: a code has room for two digits.
std::string LastTwo(double number);
/// The number with two digits, as "07"; of a larger one the last two.
std::string Padded(double number);
/// What the lists of Corvela codes offer, "01" to "99".
std::vector<std::string> CodeNumbers();

/// How the last two characters come from the third cell.
enum class ValueForm {
  OneBasedInBlocks,  ///< plus 1 for Corvela codes and in the audio blocks
  AsStored,          ///< never plus 1; some redraws are so, and it is meant to be seen there
};

/// The code of a record that holds an action: a letter, the number of the target counted from 1,
/// and the value, two digits each.
std::string ActionCode(const Cell& target, const Cell& index, const Cell& value,
                       ValueForm form = ValueForm::OneBasedInBlocks);

/// The code of the record at that cell and the two behind it, in lists where the code of a context
/// always ends in "02". The record holds an action. `form` counts for modules only.
std::string ProgramActionCode(const Table& table, int cell, ValueForm form);

/// The code of the record at that cell and the two behind it. An empty record gives
/// `ActionEmptyText`, and its three cells become 42.
std::string NormalisedActionCode(Table& table, int cell);

/// Puts the cells into the record at that cell and the two behind it.
void PutAction(Table& table, int cell, const ActionCells& action);

/// Puts 42 into the three cells of a record.
void EraseAction(Table& table, int cell);

}  // namespace bkconf
