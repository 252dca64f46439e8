// The screen of the detectors of an alarm module: what each of the twelve does when its contact
// changes, and when.
#pragma once

#include "actions/action_picker.h"
#include "platform/field.h"
#include "platform/tick.h"
#include "special/conditions.h"

namespace bkconf {

struct AlarmScreenFields : Screen {
  AlarmScreenFields();

  LabelField listLabel;
  ListField detector;
  CheckField inService;

  GroupField settingsGroup;
  GroupField triggerGroup;
  GridField triggerAction;  ///< of one place: the code of the action
  GroupField endGroup;
  GridField endAction;  ///< the same
  LabelField note;      ///< an action in words, for five seconds
  ConditionFields conditions;
  CheckField atOnce;
  LabelField delayLabel;
  ListField delay;
  LabelField delayUnit;

  GroupField editGroup;
  CheckField noAction;
  ActionPicker picker;
  ButtonField editConfirm;
  ButtonField editLeave;

  ButtonField leave;
};

inline AlarmScreenFields AlarmScreen;

/// Blanks the note, five seconds after the last text came.
extern Tick AlarmNote;

/// Captions and handlers, once at start-up.
void LoadAlarmScreen();
/// Opens the screen on the module in memory, with no detector chosen.
void OpenAlarmScreen();

}  // namespace bkconf
