// The screen of the contexts of a master: what each of them does, action by action.
#pragma once

#include "actions/action_picker.h"
#include "platform/field.h"

namespace bkconf {

struct ContextScreenFields : Screen {
  ContextScreenFields();

  LabelField chooserLabel;
  ListField chooser;
  LabelField memoryLabel;
  LabelField memory;  ///< how many actions still fit, in all contexts together
  GridField actions;  ///< of the chosen context, to be read line by line
  LabelField hint;
  GroupField descriptionGroup;
  LabelField description;  ///< the selected action in words

  GroupField deleteGroup;
  OptionField deleteAction;
  OptionField deleteContext;
  ButtonField deleteConfirm;
  ButtonField deleteCancel;

  GroupField editGroup;
  ActionPicker picker;
  ButtonField editConfirm;
  ButtonField editLeave;

  ButtonField leave;
};

inline ContextScreenFields ContextScreen;

/// Captions and handlers, once at start-up.
void LoadContextScreen();
/// Opens the screen on the contexts in memory. While there are none it asks the module for them,
/// and the screen opens when they have come.
void OpenContextScreen();

}  // namespace bkconf
