// The look of the screen of the simulation module: its conditions, how sensitive it is and whether
// it works on the left, what takes part on the right with the editor below. The table of screens
// names it.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "shell/qt/layout.h"
#include "shell/qt/layouts/action_picker.h"
#include "shell/qt/layouts/conditions.h"
#include "special/simulation_screen.h"

namespace bkconf {

/// The switches of a module, or the number of a context or a code, in the same place.
inline Part ParticipantEditorPart() {
  constexpr int switchesInRow = 4;
  std::vector<Part> switches;
  for (const auto& each : SimulationScreen.switches) switches.push_back(Item(each->name));
  return Frame(
      "editGroup",
      Column({Tight({Item("heading"),
                     Row({Item("letterLabel"), Labelled("letterLabel", "letter"), Item("typeLabel"),
                          Wide(PickerTypeCharacters, Labelled("typeLabel", "type")), Space()})}),
              Pile({Kept(Tiles(switchesInRow, std::move(switches))),
                    Row({Item("numberLabel"), Labelled("numberLabel", "number"), Space()})}),
              Space(), Row({Space(), Item("editConfirm", Look::Primary), Item("editLeave")})}));
}

inline Part SimulationScreenLayout() {
  constexpr int textCharacters = 12;
  const Part sensitivity =
      Frame("sensitivityGroup", Row({Share(1, Labelled("sensitivityGroup", "sensitivity")),
                                     Wide(textCharacters, Item("sensitivityText", Look::Tall))}));
  const Part state = Frame("stateGroup", Column({Item("state", Look::Tall), Space()}));
  const Part settings =
      Frame("frame", Column({Frame("conditionsGroup", ConditionsPart()),
                             Row({Share(2, sensitivity), Share(1, state)}), Space()}));
  const Part participants =
      Frame("participantsGroup", Column({Labelled("participantsGroup", "participants")}));
  return Column(
      {Row({Share(1, settings), Column({participants, Kept(Entered(ParticipantEditorPart()))})}),
       Rule(), Row({Space(), Item("leave")})});
}

}  // namespace bkconf
