// The fixture of the tests of the display module's menus: the screen, opened as a person opens it,
// on an image whose two displays are in memory.
#pragma once

#include <string>
#include <vector>

#include "image/tables.h"
#include "special/display_menu_screen.h"
#include "support/session_test.h"

namespace bkconf {

class DisplayMenuTest : public SessionTest {
 protected:
  /// Starts with an image of which nothing has to be sent, and opens a display, 1 or 2. Its six
  /// screens have one category each, in the order in which they are offered.
  void Open(int language = 1, int display = 1, char letter = 'C');
  /// Presses the button of a display.
  static void Press(int display);
  /// Leaves the screen and opens a display.
  static void OpenAgain(int display);
  static void Leave() { DisplayMenuScreen.leave.Click(); }

  /// Screens and lines count from 0 here, as the cells do.
  static void PickScreen(int screen) { DisplayMenuScreen.screens.Pick(screen); }
  /// By the code: 2 to 7.
  static void PickCategory(int code) { DisplayMenuScreen.category.Pick(code - 2); }
  static MenuLineFields& Line(int line) {
    return *DisplayMenuScreen.lines[static_cast<std::size_t>(line)];
  }
  static void PressOutputs(int line) { Line(line).outputs.Click(); }

  static Table& TableOf(int display) { return display == 1 ? LcdScreen1 : LcdScreen2; }
  static Cell& DirtyOf(int display) { return display == 1 ? LcdScreen1Dirty : LcdScreen2Dirty; }

  /// What a person can type into and pick from: in the lines and beside them, and in the dialog.
  static std::vector<TextField*> TextFields();
  static std::vector<ListField*> LineLists();
  static std::vector<ListField*> DialogLists();
};

/// The category of an automation.
inline constexpr int AutomationScreen = 3;

/// A display with nothing to mend in it: looking at a screen changes no cell. The cells that are
/// only carried along hold 201.
void FillDisplay(Table& table, const std::string& mark);

/// One character a cell, ASCII only, with blanks up to `width`.
void Put(Table& table, int first, int width, const std::string& text);
/// The codes of the cells as characters.
std::string CodesAt(const Table& table, int first, int count);
/// "LcdScreen1[7]" or "LcdScreen1[7..9]", for ExpectOnlyChanged.
std::string CellName(const Table& table, int first, int last = -1);

/// "A" to "R", and "1" and so on.
std::vector<std::string> LetterItems();
std::vector<std::string> NumberItems(int last);

}  // namespace bkconf
