#include "platform/field.h"

#include <algorithm>
#include <utility>

#include "platform/runtime_error.h"

namespace bkconf {

Field::Field(Screen& screen, FieldKind fieldKind, std::string_view fieldName)
    : kind(fieldKind), name(fieldName) {
  screen.fields.push_back(this);
}

void TextField::Type(std::string_view text) {
  if (!enabled || !visible) return;
  text_ = text;
  if (onChange) onChange();
}

void ListField::Show(std::string_view text) {
  text_ = text;
  const auto item = std::find(items.begin(), items.end(), text_);
  index_ = item == items.end() ? -1 : static_cast<int>(item - items.begin());
}

void ListField::Pick(int index) {
  if (!enabled || !visible || index < 0 || index >= static_cast<int>(items.size())) return;
  index_ = index;
  text_ = items[static_cast<std::size_t>(index)];
  if (onPick) onPick();
}

void ListField::Type(std::string_view text) {
  if (!enabled || !visible) return;
  const std::string before = text_;
  Show(text);
  if (onTyped) {
    onTyped();
  } else {
    Show(before);
  }
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
