// The screen of the push-buttons: what a short and a long press of each of a module's twenty
// buttons do, and how long a long press is. It serves every kind of module that has buttons.
#pragma once

#include "actions/action_picker.h"
#include "image/table.h"
#include "platform/field.h"

namespace bkconf {

struct ButtonScreenFields : Screen {
  ButtonScreenFields();

  GroupField functionsGroup;

  LabelField listLabel;
  GridField buttons;  ///< a row for each button, the two functions in columns 1 and 2
  LabelField listHint;
  LabelField description;  ///< the selected function in words

  LabelField chooserLabel;
  ListField chooser;
  GroupField firstGroup;
  ActionPicker first;
  GroupField secondGroup;
  CheckField noSecond;
  ActionPicker second;
  ButtonField store;

  CheckField clearFirst;
  CheckField clearSecond;

  ButtonField base;
  GroupField baseGroup;
  LabelField baseQuestion;
  ButtonField baseYes;
  ButtonField baseNo;

  /// The other look of the screen: only the press time of the second function.
  GroupField timeGroup;
  LabelField timeLabel;
  ListField time;
  LabelField seconds;
  LabelField timeHelp;

  ButtonField leave;
};

inline ButtonScreenFields ButtonScreen;

/// Captions and handlers, once at start-up.
void LoadButtonScreen();
/// Opens the screen on the module in memory. Filling the list normalises the table: the cells of an
/// empty record become 42.
void OpenButtonScreen();
/// Opens the same screen with the press time only.
void OpenSecondFunctionTime();

/// The table that holds the buttons of the module in memory.
Table& ButtonTable();

}  // namespace bkconf
