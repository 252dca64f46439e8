// The configuration page of a master, in the main window: the modules on the bus, with their scan,
// and the monthly correction of the clock. The main window holds the fields.
#pragma once

#include "platform/field.h"

namespace bkconf {

struct ModulePageFields {
  explicit ModulePageFields(Screen& ofScreen);

  Screen& screen;  ///< that they lie in

  GroupField page;
  LabelField listLabel;
  GridField modules;  ///< number, letter and type of each module
  ButtonField scan;

  GroupField clockGroup;
  LabelField clockText;
  LabelField downLabel;
  ListField down;  ///< minutes to take away, cell 120
  LabelField upLabel;
  ListField up;  ///< minutes to add, cell 121

  GroupField addGroup;
  LabelField addHeading;
  LabelField addLetterLabel;
  ListField addLetter;
  LabelField addTypeLabel;
  ListField addType;
  ButtonField addConfirm;
  ButtonField addLeave;

  GroupField deleteGroup;
  LabelField deleteQuestion;
  ButtonField deleteYes;
  ButtonField deleteNo;
};

/// Captions and handlers of the fields, once at start-up; keeps a pointer to them. The page is
/// hidden.
void LoadModulePage(ModulePageFields& fields);
/// What the button "Configuratie" / "Configuration" does: shows the page of the master in memory.
void OpenModulePage();
/// Selects the master in the main window, as every entry to its editors does.
void SelectMaster();
void HideModulePage();
/// During a transfer nothing on the page can be used.
void EnableModulePage(bool enabled);

}  // namespace bkconf
