// Actions that the tests of an editor pick step by step, and what is stored of each.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <ostream>
#include <string>

#include "actions/action_code.h"
#include "actions/action_picker.h"
#include "session/language.h"

namespace bkconf {

/// What is picked, and what is stored of it.
struct Composed {
  std::string name;
  void (*pick)(ActionPicker&);
  ActionCells cells;
  std::string code;
};

inline void PrintTo(const Composed& row, std::ostream* out) {
  *out << row.name;
}

/// `type` is the place in the list of types, which differs between editors.
inline void PickOutput(ActionPicker& picker, int type, int output, int action) {
  picker.letter.Pick(0);
  picker.type.Pick(type);
  picker.output.list.Pick(output);
  picker.action.list.Pick(action);
}

/// Picks the type of that name, wherever the editor offers it.
inline void PickTypeNamed(ActionPicker& picker, TextId name) {
  const auto& items = picker.type.items;
  const auto item = std::find(items.begin(), items.end(), Text(name));
  picker.type.Pick(static_cast<int>(std::distance(items.begin(), item)));
}

inline void PickZone(ActionPicker& picker, OptionField& zone, int number, int action, int value) {
  picker.letter.Pick('H' - 'A');
  PickTypeNamed(picker, TextId::AudioInterface);
  zone.Choose();
  picker.output.list.Pick(number);
  picker.action.list.Pick(action);
  picker.value.list.Pick(value);
}

inline void PickRoom(ActionPicker& picker, std::size_t choice, int room, int degrees) {
  picker.letter.Pick('R' - 'A');
  PickTypeNamed(picker, TextId::TemperatureType);
  picker.temperatures.at(choice).option.Choose();
  picker.temperatures.at(choice).room.Pick(room);
  picker.temperatures.at(choice).temperature.Pick(degrees);
}

}  // namespace bkconf
