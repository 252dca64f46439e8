// The screen of the simulation module: under which conditions it imitates that somebody is at home,
// how often, and which outputs take part.
#pragma once

#include <memory>
#include <vector>

#include "platform/field.h"
#include "special/conditions.h"

namespace bkconf {

struct SimulationScreenFields : Screen {
  SimulationScreenFields();

  GroupField frame;
  GroupField conditionsGroup;
  ConditionFields conditions;
  GroupField sensitivityGroup;
  ScrollField sensitivity;
  LabelField sensitivityText;
  GroupField stateGroup;
  CheckField state;
  GroupField participantsGroup;
  GridField participants;

  GroupField editGroup;
  LabelField heading;
  LabelField letterLabel;
  ListField letter;
  LabelField typeLabel;
  ListField type;
  std::vector<std::unique_ptr<CheckField>> switches;
  LabelField numberLabel;
  ListField number;  ///< of a context or a code
  ButtonField editConfirm;
  ButtonField editLeave;

  ButtonField leave;
};

inline SimulationScreenFields SimulationScreen;

/// Captions and handlers, once at start-up.
void LoadSimulationScreen();
/// Opens the screen on the module in memory.
void OpenSimulationScreen();

}  // namespace bkconf
