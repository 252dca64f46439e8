#include "special/random_edits.h"

#include <array>

namespace bkconf {

RandomEdits::RandomEdits(const Screen& screen, std::uint32_t seed,
                         const std::set<std::string>& spared)
    : random_(seed) {
  for (Field* field : screen.fields) {
    const bool read = field->kind == FieldKind::Group || field->kind == FieldKind::Label;
    if (!read && !spared.contains(field->name)) fields_.push_back(field);
  }
}

int RandomEdits::Below(int count) {
  // The library's distributions differ from one system to the next.
  return static_cast<int>(random_() % static_cast<std::uint32_t>(count));
}

std::string RandomEdits::AnyText() {
  static const auto texts = std::to_array<std::string>(
      {"",  "0", "1", "16", "17", "42",  "60",  "-1", "1,5",  "999999999999",
       "*", "#", "A", "a",  "Z",  "***", " 3 ", "é",  "Zone", "EN"});
  return texts[static_cast<std::size_t>(Below(static_cast<int>(texts.size())))];
}

void RandomEdits::Step() {
  StepIn(*fields_[static_cast<std::size_t>(Below(static_cast<int>(fields_.size())))]);
}

void RandomEdits::StepIn(Field& field) {
  if (auto* list = dynamic_cast<ListField*>(&field)) {
    if (Below(5) == 0) {
      list->Type(AnyText());
    } else {
      list->Pick(PlaceIn(static_cast<int>(list->items.size())));
    }
  } else if (auto* text = dynamic_cast<TextField*>(&field)) {
    // Also more than there is room for.
    text->Type(AnyText() + AnyText() + AnyText() + AnyText());
  } else if (auto* entries = dynamic_cast<ListBoxField*>(&field)) {
    const int place = PlaceIn(static_cast<int>(entries->Items().size()));
    if (Below(4) == 0) {
      entries->Open(place);
    } else {
      entries->Pick(place);
    }
  } else if (auto* box = dynamic_cast<CheckField*>(&field)) {
    box->Set(Below(2) == 0);
  } else if (auto* option = dynamic_cast<OptionField*>(&field)) {
    option->Choose();
  } else if (auto* button = dynamic_cast<ButtonField*>(&field)) {
    button->Click();
  } else if (auto* entry = dynamic_cast<MenuField*>(&field)) {
    entry->Click();
  } else if (auto* calendar = dynamic_cast<CalendarField*>(&field)) {
    calendar->Pick({.year = static_cast<unsigned>(2000 + Below(100)),
                    .month = static_cast<unsigned>(1 + Below(12)),
                    .day = static_cast<unsigned>(1 + Below(28))});
  } else if (auto* picture = dynamic_cast<AreaPictureField*>(&field)) {
    picture->Pick(PlaceIn(static_cast<int>(picture->areas.size())));
  } else if (auto* handle = dynamic_cast<ScrollField*>(&field)) {
    handle->Move(handle->lowest + PlaceIn(handle->highest - handle->lowest + 1));
  } else if (auto* grid = dynamic_cast<GridField*>(&field)) {
    const int row = PlaceIn(grid->Rows() + 1);
    const int column = PlaceIn(static_cast<int>(grid->columns.size()));
    if (Below(2) == 0) {
      grid->Select(row, column);
    } else {
      grid->DoubleClick(row, column);
    }
  }
}

}  // namespace bkconf
