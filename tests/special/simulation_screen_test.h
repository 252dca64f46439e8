// The fixture of the tests of the simulation module: its screen, opened as a person opens it.
#pragma once

#include <string>
#include <vector>

#include "image/tables.h"
#include "special/simulation_screen.h"
#include "support/session_test.h"

namespace bkconf {

class SimulationScreenTest : public SessionTest {
 protected:
  /// Starts with an image that is off, has no condition and no participants, and opens the screen.
  void Open(int language = 1, char letter = 'C');
  static void OpenAgain() { ShownAction(Action::SimulationSettings).Click(); }

  static Cell& At(int cell) { return SimulationImage[cell]; }
  /// "SimulationImage[149]" or "SimulationImage[149..151]", for ExpectOnlyChanged.
  static std::string NameOf(int first, int last = -1);
  /// Whether the main window was told of a change since the last look.
  static void ExpectSignal(bool expected);

  /// The participants count from 0, row by row.
  static void Put(int participant, const Cell& target, const Cell& index);
  static void ExpectCells(int participant, const Cell& target, const Cell& index);
  static std::string Shown(int participant);
  static void DoubleClick(int participant);
  /// All that are shown, free ones aside, which stand behind them.
  static std::string AllShown();
  /// 25 participants: outputs 1 to 12 of 'A', 1 to 12 of 'B', and a context.
  static void FillGrid();
};

}  // namespace bkconf
