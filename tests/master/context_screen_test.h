// The fixture of the tests of a master's contexts: their screen, opened as a person opens it.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "actions/action_code.h"
#include "master/context_screen.h"
#include "support/session_test.h"

namespace bkconf {

using ActionList = std::vector<ActionCells>;
using Codes = std::vector<std::string>;

class ContextScreenTest : public SessionTest {
 protected:
  /// A master with modules 'A' to 'J', one of each kind, and these contexts, counted from 1, as a
  /// file brings it; and the screen.
  void Open(const std::map<int, ActionList>& contexts = {}, int language = 1);
  /// The same with the context picked, the only one.
  void OpenOn(int context, const ActionList& actions, int language = 1);
  static void OpenAgain() { ShownAction(Action::Contexts).Click(); }
  /// What stands in the master's table, as numbers.
  static void PutContexts(const std::map<int, ActionList>& contexts);

  static void PickContext(int context) { ContextScreen.chooser.Pick(context - 1); }
  /// The place of an action counts from 0, line by line.
  static void DoubleClick(int place);
  static void Select(int place);
  /// What the grid shows, up to the last code.
  static Codes Shown();

  /// Both forms of a context in memory: exactly these actions, and an end.
  static void ExpectStored(int context, const ActionList& actions);
  static void ExpectMemory(const std::string& free);
  static void ExpectPanels(bool asksToDelete, bool edits);
  /// The button changes no cell, and there is nothing to send.
  void ExpectNoChange(const ButtonField& button) const;

  /// Fills the editor with the switching of an output of the relay module 'A'.
  static void Choose(int output, const std::string& action = "Aan");
  static void PickLetter(const std::string& letter);
  static void Pick(ListField& list, const std::string& text);
  static void Confirm() { ContextScreen.editConfirm.Click(); }
  /// Deletes the action at that place.
  static void Delete(int place);

  /// The fixture's short actions: relay output 1 on, of module 'A', 'B' and so on.
  static ActionCells On(char letter) { return {int{letter}, 0, 1}; }
};

}  // namespace bkconf
