// The fixture of the tests of the detectors: their screen, opened as a person opens it, on the
// image of an alarm module.
#pragma once

#include <string>
#include <vector>

#include "actions/action_code.h"
#include "special/alarm_screen.h"
#include "support/session_test.h"

namespace bkconf {

class AlarmScreenTest : public SessionTest {
 protected:
  /// Starts with an image whose detectors do nothing and have no condition, and opens the screen.
  void Open(int language = 1, char letter = 'C');
  static void OpenAgain() { ShownAction(Action::Detectors).Click(); }

  /// Detectors count from 1 here, as a user sees them.
  static void PickDetector(int detector) { AlarmScreen.detector.Pick(detector - 1); }
  /// The first cell of an action: that of the trigger, or that of its end.
  static int TriggerCell(int detector) { return 149 + 6 * (detector - 1); }
  static int EndCell(int detector) { return 152 + 6 * (detector - 1); }
  static void Put(int cell, const ActionCells& cells);
  static void ExpectCells(int cell, const ActionCells& cells);
  /// "AlarmImage[149]" or "AlarmImage[149..151]", for ExpectOnlyChanged.
  static std::string NameOf(int first, int last = -1);

  static const std::string& TriggerText() { return AlarmScreen.triggerAction.At(1, 0); }
  static const std::string& EndText() { return AlarmScreen.endAction.At(1, 0); }
};

/// "1", "2" and so on.
std::vector<std::string> NumberTexts(int first, int last);

}  // namespace bkconf
