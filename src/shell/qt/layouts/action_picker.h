// The look of the chooser of an action, in every editor that has one: letter and type side by side,
// below them what the type asks for, all of it in the same place. The editors' layouts use it.
#pragma once

#include <string>

#include "shell/qt/layout.h"

namespace bkconf {

inline constexpr int PickerTypeCharacters = 26;
/// An editor with a picker in it, at the width of the most that it asks for.
inline constexpr int PickerEditorCharacters = 68;

/// A list with its caption above it.
inline Part PickerList(const std::string& name) {
  constexpr int characters = 16;
  return Wide(characters, Below(name + "Label", name));
}

inline Part PickerOutput(const std::string& prefix) {
  return Tight({Row({Item(prefix + "MainZone"), Item(prefix + "SecondaryZone"), Space()}),
                Row({Kept(PickerList(prefix + "Output")),
                     Column({Space(), Item(prefix + "AllOutputs", Look::Tall)}),
                     PickerList(prefix + "Action"), PickerList(prefix + "Value"), Space()})});
}

/// A choice and its lists, in the order in which its sentence names them.
inline Part PickerTemperature(const std::string& choice) {
  return Row({Inside(choice, choice + "Degrees"), Labelled(choice, choice + "Room"), Space()});
}

/// What the types ask for, all of it in the same place. The room of the largest of them is kept, so
/// that nothing moves from one type to another: the temperatures, where they are offered.
inline Part PickerTarget(const std::string& prefix, bool offersTemperatures = true) {
  Part temperature =
      Tight({PickerTemperature(prefix + "RoomTemperature"), PickerTemperature(prefix + "RoomBase"),
             PickerTemperature(prefix + "AllTemperature"), PickerTemperature(prefix + "AllBase")});
  temperature.kept = offersTemperatures;
  const Part simulation = Tight({Item(prefix + "SimulationOn"), Item(prefix + "SimulationOff")});
  return Pile({PickerOutput(prefix), temperature, simulation});
}

/// A picker with one heading over letter and type, in place of a caption for each of them.
inline Part HeadedPickerPart(const std::string& prefix, bool offersTemperatures = true) {
  return Tight(
      {Item(prefix + "Heading"),
       Row({Item(prefix + "LetterLabel"), Labelled(prefix + "LetterLabel", prefix + "Letter"),
            Item(prefix + "TypeLabel"),
            Wide(PickerTypeCharacters, Labelled(prefix + "TypeLabel", prefix + "Type")), Space()}),
       PickerTarget(prefix, offersTemperatures)});
}

/// `prefix` is that of the picker's fields. `beside` stands at the right end of letter and type.
inline Part PickerPart(const std::string& prefix, std::vector<Part> beside = {}) {
  std::vector<Part> target = {
      Item(prefix + "LetterLabel"), Labelled(prefix + "LetterLabel", prefix + "Letter"),
      Item(prefix + "TypeLabel"),
      Wide(PickerTypeCharacters, Labelled(prefix + "TypeLabel", prefix + "Type")), Space()};
  for (Part& part : beside) target.push_back(std::move(part));
  // The heading is hidden. The type keeps its room while it is.
  return Tight({Item(prefix + "Heading"), Kept(Row(std::move(target))), PickerTarget(prefix)});
}

}  // namespace bkconf
