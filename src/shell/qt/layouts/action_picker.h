// The look of the chooser of an action, in every editor that has one: letter and type side by side,
// below them what the type asks for, all of it in the same place. The editors' layouts use it.
#pragma once

#include <string>

#include "shell/qt/layout.h"

namespace bkconf {

/// A list with its caption above it.
inline Part PickerList(const std::string& name) {
  constexpr int characters = 16;
  return Wide(characters, Below(name + "Label", name));
}

inline Part PickerOutput(const std::string& prefix) {
  return Tight({Row({Item(prefix + "MainZone"), Item(prefix + "SecondaryZone"), Space()}),
                Row({PickerList(prefix + "Output"), PickerList(prefix + "Action"),
                     PickerList(prefix + "Value"), Space()})});
}

/// A choice and its lists, in the order in which its sentence names them.
inline Part PickerTemperature(const std::string& choice) {
  return Row({Inside(choice, choice + "Degrees"), Labelled(choice, choice + "Room"), Space()});
}

/// `prefix` is that of the picker's fields. `beside` stands at the right end of letter and type.
inline Part PickerPart(const std::string& prefix, std::vector<Part> beside = {}) {
  constexpr int typeCharacters = 26;
  std::vector<Part> target = {
      Item(prefix + "LetterLabel"), Labelled(prefix + "LetterLabel", prefix + "Letter"),
      Item(prefix + "TypeLabel"),
      Wide(typeCharacters, Labelled(prefix + "TypeLabel", prefix + "Type")), Space()};
  for (Part& part : beside) target.push_back(std::move(part));
  // The type, and the largest of what it asks for, keep their room: nothing moves as they change.
  const Part temperature = Kept(
      Tight({PickerTemperature(prefix + "RoomTemperature"), PickerTemperature(prefix + "RoomBase"),
             PickerTemperature(prefix + "AllTemperature"), PickerTemperature(prefix + "AllBase")}));
  const Part simulation = Tight({Item(prefix + "SimulationOn"), Item(prefix + "SimulationOff")});
  return Tight(
      {Kept(Row(std::move(target))), Pile({PickerOutput(prefix), temperature, simulation})});
}

}  // namespace bkconf
