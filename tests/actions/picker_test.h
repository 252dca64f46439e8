// The fixture of the tests of the step-by-step chooser: one on a screen of its own, as the
// push-buttons have it, or as another editor has it.
#pragma once

#include <string>
#include <vector>

#include "actions/action_picker.h"
#include "support/open_screen.h"
#include "support/session_test.h"

namespace bkconf {

class PickerTest : public SessionTest {
 protected:
  explicit PickerTest(const PickerVariant& variant = ButtonPicker)
      : picker(screen, "picker", variant) {
    Begin(1, 0, 'R');
  }

  /// The picker on an image of that kind, its letter waiting to be picked.
  void Begin(int language, int kind, char ownLetter);
  /// The picker on a master with a module of each kind: 'A' to 'J'; 'K' is none.
  void BeginOnMaster(int language = 1);
  /// Puts a module into a row of the master's list.
  static void List(int row, const Cell& letter, const Cell& kind);

  /// Picks the item with that text; fails the test where there is none.
  static void Pick(ListField& list, const std::string& text);
  void PickLetter(char letter) { Pick(picker.letter, std::string(1, letter)); }
  /// Picks the letter and names the type by its place; the letter must not be the module's own.
  void PickTarget(char letter, int type);

  /// What stands below letter and type, in the order of the screen.
  std::vector<std::string> Below() const;

  /// What the fields make up, or that they make up nothing.
  void ExpectCells(const ActionCells& cells) const;
  void ExpectRefused() const { EXPECT_FALSE(picker.Compose()); }

  OpenScreen screen;
  ActionPicker picker;
};

using Items = std::vector<std::string>;

/// "1", "2" and so on.
Items Numbers(int first, int last);

/// Places in the type list.
enum TypePlace { Relay, Dimmer, Temperature, RelayDc, Alarm, Audio, Simulation, Lumenza };

}  // namespace bkconf
