// The fixture of the tests of the infrared module: its screen, opened as a person opens it.
#pragma once

#include <string>
#include <vector>

#include "actions/action_code.h"
#include "image/tables.h"
#include "special/ir_screen.h"
#include "support/session_test.h"

namespace bkconf {

inline constexpr int IrKeys = 13;

class IrScreenTest : public SessionTest {
 protected:
  /// Starts with an image in which no key does anything, and opens the screen.
  void Open(int language = 1, char letter = 'C');
  static void OpenAgain() { ShownAction(Action::IrSettings).Click(); }

  /// 0 to 9, ON/OFF, channel up, channel down.
  static void PressKey(int key) { IrScreen.remote.Pick(key); }
  /// Rows count from 1 here, as a user sees them.
  static void PickRow(int row) { IrScreen.row.Pick(row - 1); }
  static ActionPicker& Picker() { return IrScreen.picker; }
  static void PickLetter(char letter) { Picker().letter.Pick(letter - 'A'); }
  /// An action whose code is A0401.
  static void Compose();
  static void Store() { IrScreen.store.Click(); }

  static int CellOf(int key, int row) { return 125 + 48 * (row - 1) + 3 * key; }
  static void Put(int key, int row, const ActionCells& cells);
  static void ExpectCells(int key, int row, const ActionCells& cells);
  /// The three cells, for ExpectOnlyChanged.
  static std::string NameOf(int key, int row);
  static const std::string& Shown(int row);
  static void Erase(int row);
  /// Whether the main window was told of a change since the last look.
  static void ExpectSignal(bool expected);
};

}  // namespace bkconf
