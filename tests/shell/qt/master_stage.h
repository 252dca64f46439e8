// The windows of a master's contexts, time programmes and light programmes, in one language and
// with a house full of modules, for the tests that work in them.
#pragma once

#include <functional>

#include "master/context_screen.h"
#include "master/light_program_screen.h"
#include "master/time_program_screen.h"
#include "screen_stage.h"

namespace bkconf {

/// What a screen shows. A letter stands in the editor, '?' for none.
struct ScreenState {
  const char* name;
  Screen* screen;
  void (*open)();
  const char* panel;  ///< "deleteGroup", "editGroup" or none
  char letter;
  int action;
  bool asksDate;
};

inline constexpr int TimeSlots = 110;
inline constexpr int LightSlots = 200;

class MasterStage : protected ScreenStage {
 protected:
  static const std::vector<ScreenState>& States();
  static const ScreenState& State(int place) {
    return States().at(static_cast<std::size_t>(place));
  }
  static const ScreenState& StateOf(const char* name);
  /// Rows of test data: the places of the states that are wanted.
  static void AddStatesIf(const std::function<bool(const ScreenState&)>& wanted);
  static void AddScreens();
  static void AddQuestionsOfPrograms();

  static void CloseAll() { Close({&ContextScreen, &TimeProgramScreen, &LightProgramScreen}); }

  void ShowContext(int context);
  void ShowState(const ScreenState& state);
  /// In a window that is open.
  static void ShowIn(const ScreenState& state);
  static void OpenEditor(Screen& screen);

  QLabel* Sentence() const { return Label("description"); }
  QTableView* Grid() const;
  QString CellText(int row, int column) const;
  void ClickCell(int row, int column) const { Click(Grid(), row, column); }
  void DoubleClick(int row, int column) const { ScreenStage::DoubleClick(Grid(), row, column); }
};

}  // namespace bkconf
