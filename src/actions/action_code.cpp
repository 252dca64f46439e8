#include "actions/action_code.h"

#include "text/windows1252.h"

namespace bkconf {
namespace {

/// A number this high marks a value in one of the audio blocks.
constexpr int FirstAudioBlock = 16;

bool IsWord(const Cell& cell) {
  return cell.IsText() && !ReadsAsNumber(cell.Text());
}

/// In a test of a range a word is above every number.
bool IsAtLeast(const Cell& cell, double bound) {
  return IsWord(cell) || cell.Number() >= bound;
}

int ValueBase(const Cell& target, const Cell& index, ValueForm form) {
  if (form == ValueForm::AsStored || target.Number() == ContextLetter) return 100;
  return target.Number() == CorvelaLetter || IsAtLeast(index, FirstAudioBlock) ? 101 : 100;
}

}  // namespace

bool HoldsAction(const Cell& target) {
  if (IsWord(target)) return false;
  const double code = target.Number();
  return (code >= 'A' && code <= ContextLetter) || code == CorvelaLetter;
}

bool HoldsModuleOrContextAction(const Cell& target) {
  return HoldsAction(target) && target.Number() != CorvelaLetter;
}

std::string LastTwo(double number) {
  const std::string text = PlainText(number);
  return text.size() < 2 ? text : text.substr(text.size() - 2);
}

std::string Padded(double number) {
  return LastTwo(100 + number);
}

std::vector<std::string> CodeNumbers() {
  constexpr int codes = 99;
  std::vector<std::string> items;
  for (int code = 1; code <= codes; ++code) items.push_back(Padded(code));
  return items;
}

std::string ActionCode(const Cell& target, const Cell& index, const Cell& value, ValueForm form) {
  return CharacterOf(target.Whole()) + LastTwo(index.Number() + 101) +
         LastTwo(value.Number() + ValueBase(target, index, form));
}

std::string ProgramActionCode(const Table& table, int cell, ValueForm form) {
  constexpr int contextValue = 2;
  const Cell& target = table[cell];
  const Cell& index = table[cell + 1];
  if (target.Number() == ContextLetter) return ActionCode(target, index, contextValue);
  const bool corvela = target.Number() == CorvelaLetter;
  return ActionCode(target, index, table[cell + 2], corvela ? ValueForm::OneBasedInBlocks : form);
}

std::string NormalisedActionCode(Table& table, int cell) {
  if (HoldsAction(table[cell])) return ActionCode(table[cell], table[cell + 1], table[cell + 2]);
  EraseAction(table, cell);
  return std::string(ActionEmptyText);
}

void PutAction(Table& table, int cell, const ActionCells& action) {
  for (const Cell& each : action) table[cell++] = each;
}

void EraseAction(Table& table, int cell) {
  for (int i = 0; i < ActionSize; ++i) table[cell + i] = EmptyCell;
}

}  // namespace bkconf
