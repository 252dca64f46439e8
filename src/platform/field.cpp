#include "platform/field.h"

#include <algorithm>
#include <utility>

#include "platform/runtime_error.h"

namespace bkconf {

Field::Field(Screen& screen, FieldKind fieldKind, std::string_view fieldName)
    : kind(fieldKind), name(fieldName), screen_(screen) {
  screen.fields.push_back(this);
}

bool Field::TakesInput() const {
  return enabled && visible && screen_.shown;
}

void TextField::Type(std::string_view text) {
  if (!TakesInput()) return;
  text_ = text;
  if (onChange) onChange();
}

void ListField::Show(std::string_view text) {
  text_ = text;
  const auto item = std::find(items.begin(), items.end(), text_);
  index_ = item == items.end() ? -1 : static_cast<int>(item - items.begin());
}

void ListField::Pick(int index) {
  if (!TakesInput() || index < 0 || index >= static_cast<int>(items.size())) return;
  index_ = index;
  text_ = items[static_cast<std::size_t>(index)];
  if (onPick) onPick();
}

void ListField::Type(std::string_view text) {
  if (!TakesInput()) return;
  const std::string before = text_;
  Show(text);
  if (onTyped) {
    onTyped();
  } else {
    Show(before);
  }
}

void CalendarField::Pick(const Date& day) {
  if (!TakesInput()) return;
  day_ = day;
  if (onPick) onPick();
}

void ScrollField::Show(int value) {
  value_ = std::clamp(value, lowest, highest);
}

void ScrollField::Move(int value) {
  if (!TakesInput() || std::clamp(value, lowest, highest) == value_) return;
  Show(value);
  if (onMove) onMove();
}

void AreaPictureField::Pick(int area) {
  if (!TakesInput() || area < 0 || area >= static_cast<int>(areas.size())) return;
  picked_ = area;
  if (onPick) onPick();
}

void ListBoxField::SetItems(std::vector<std::string> items) {
  items_ = std::move(items);
  index_ = -1;
}

std::string ListBoxField::Text() const {
  return index_ < 0 ? std::string() : items_[static_cast<std::size_t>(index_)];
}

void ListBoxField::Pick(int index) {
  if (!Has(index)) return;
  index_ = index;
  if (onPick) onPick();
}

void ListBoxField::Open(int index) {
  if (!Has(index)) return;
  Pick(index);
  if (onOpen) onOpen();
}

void CheckField::Set(bool on) {
  if (!TakesInput() || checked == on) return;
  checked = on;
  if (onChange) onChange();
}

OptionField::OptionField(Screen& screen, std::string_view fieldName, OptionField* first)
    : Field(screen, FieldKind::Option, fieldName), first_(first == nullptr ? this : first) {
  first_->group_.push_back(this);
}

void OptionField::Choose() {
  if (!TakesInput() || chosen_) return;
  Show();
  if (onChoose) onChoose();
}

void OptionField::Show() {
  ClearGroup();
  chosen_ = true;
}

void OptionField::ClearGroup() {
  for (OptionField* option : first_->group_) option->chosen_ = false;
}

void GridField::Resize(int rows) {
  cells_.assign(static_cast<std::size_t>(rows), std::vector<std::string>(columns.size()));
  ClearSelection();
}

bool GridField::Has(int row, int column) const {
  return row >= 1 && row <= Rows() && column >= 0 && column < static_cast<int>(columns.size());
}

const std::string& GridField::At(int row, int column) const {
  static const std::string nothing;
  if (!Has(row, column)) return nothing;
  return cells_[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column)];
}

void GridField::Put(int row, int column, std::string_view text) {
  if (!Has(row, column)) return;
  cells_[static_cast<std::size_t>(row - 1)][static_cast<std::size_t>(column)] = text;
}

void GridField::Blank() {
  for (auto& row : cells_) {
    for (std::string& cell : row) cell.clear();
  }
}

void GridField::Select(int row, int column) {
  if (!TakesInput() || !Has(row, column) || (rowHeader && column == 0)) return;
  row_ = row;
  column_ = column;
  if (onSelect) onSelect(row, column);
}

void GridField::DoubleClick(int row, int column) {
  const bool onCaptions = row == 0 && column >= 0 && column < static_cast<int>(columns.size());
  if (!TakesInput() || !(onCaptions || Has(row, column))) return;
  Select(row, column);
  if (onDoubleClick) onDoubleClick(row, column);
}

void ProgressField::Start(int maximum) {
  maximum_ = maximum;
  value_ = 0;
  visible = true;
}

void ProgressField::SetValue(int value) {
  if (value > maximum_) {
    throw RuntimeError(ErrorKind::BarPastMaximum,
                       name + ": " + std::to_string(value) + " > " + std::to_string(maximum_));
  }
  value_ = value;
}

MenuField::MenuField(Screen& screen, MenuField* parent, std::string_view fieldName)
    : Field(screen, FieldKind::Menu, fieldName), parent_(parent) {
  if (parent != nullptr) parent->entries.push_back(this);
}

bool MenuField::Usable() const {
  for (const MenuField* menu = parent_; menu != nullptr; menu = menu->parent_) {
    if (!menu->enabled || !menu->visible) return false;
  }
  return enabled && visible && onClick;
}

void Screen::Close() {
  if (onClose) {
    onClose();
  } else {
    shown = false;
  }
}

Field* Screen::Find(std::string_view fieldName) const {
  const auto field = std::find_if(fields.begin(), fields.end(),
                                  [&](const Field* each) { return each->name == fieldName; });
  return field == fields.end() ? nullptr : *field;
}

}  // namespace bkconf
