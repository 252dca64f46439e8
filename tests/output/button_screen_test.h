// The fixture of the tests of the push-buttons: their screen, opened as a person opens it, on an
// image of any kind that has buttons.
#pragma once

#include <string>

#include "actions/action_code.h"
#include "output/button_screen.h"
#include "support/session_test.h"

namespace bkconf {

class ButtonScreenTest : public SessionTest {
 protected:
  /// Starts with an empty image and opens the screen by its action button.
  void Open(int kind, int language = 1, char letter = 'C');
  static void OpenAgain() { ShownAction(Action::Buttons).Click(); }

  /// The table that the buttons of that kind lie in, by name and itself.
  static const std::string& TableName();
  static Table& Cells();

  /// The record of a button, counted from 1, in column 1 or 2.
  static int CellOf(int button, int column) { return (column - 1) * 60 + (button - 1) * 3; }
  static void Put(int button, int column, const ActionCells& cells);
  static void ExpectRecord(int button, int column, const ActionCells& cells);
  /// "AlarmImage[3..5]", for ExpectOnlyChanged.
  static std::string NameOf(int button, int column);

  static const std::string& Shown(int button, int column) {
    return ButtonScreen.buttons.At(button, column);
  }

  static void PickButton(int button) { ButtonScreen.chooser.Pick(button - 1); }
  /// Composes the switching on of an output of a relay module that is not the one in memory.
  static void ChooseOn(ActionPicker& picker, char letter, int output);

  static void Store() { ButtonScreen.store.Click(); }
  static ActionCells Empty() { return {42, 42, 42}; }
};

/// The kinds whose image holds buttons.
inline constexpr int ButtonKinds[] = {0, 1, 4, 5, 6, 7, 8, 9, 11};

}  // namespace bkconf
