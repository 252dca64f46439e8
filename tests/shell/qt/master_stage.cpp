#include "master_stage.h"

#include <algorithm>

#include "shell/qt/event_guard.h"

namespace bkconf {
namespace {

GridField& GridOf(Screen& screen) {
  if (&screen == &ContextScreen) return ContextScreen.actions;
  return static_cast<ProgramScreen&>(screen).programs;
}

ActionPicker& PickerOf(Screen& screen) {
  if (&screen == &ContextScreen) return ContextScreen.picker;
  return static_cast<ProgramScreen&>(screen).picker;
}

}  // namespace

const std::vector<ScreenState>& MasterStage::States() {
  static const std::vector<ScreenState> states = {
      {"contexts", &ContextScreen, OpenContextScreen, "", '?', -1, false},
      {"contexts, question", &ContextScreen, OpenContextScreen, "deleteGroup", '?', -1, false},
      {"contexts, editor", &ContextScreen, OpenContextScreen, "editGroup", '?', -1, false},
      {"contexts, relay", &ContextScreen, OpenContextScreen, "editGroup", 'A', 2, false},
      {"contexts, temperature", &ContextScreen, OpenContextScreen, "editGroup", 'C', -1, false},
      {"contexts, alarm", &ContextScreen, OpenContextScreen, "editGroup", 'E', 1, false},
      {"contexts, audio", &ContextScreen, OpenContextScreen, "editGroup", 'F', 11, false},
      {"contexts, simulation", &ContextScreen, OpenContextScreen, "editGroup", 'G', -1, false},
      {"contexts, Lumenza", &ContextScreen, OpenContextScreen, "editGroup", 'H', -1, false},
      {"contexts, type asked", &ContextScreen, OpenContextScreen, "editGroup", 'N', -1, false},
      {"contexts, Corvela", &ContextScreen, OpenContextScreen, "editGroup", 'Z', -1, false},
      {"times", &TimeProgramScreen, OpenTimeProgramScreen, "", '?', -1, false},
      {"times, question", &TimeProgramScreen, OpenTimeProgramScreen, "deleteGroup", '?', -1, false},
      {"times, editor", &TimeProgramScreen, OpenTimeProgramScreen, "editGroup", '?', -1, false},
      {"times, dimmer", &TimeProgramScreen, OpenTimeProgramScreen, "editGroup", 'B', 5, false},
      {"times, temperature", &TimeProgramScreen, OpenTimeProgramScreen, "editGroup", 'C', -1,
       false},
      {"times, audio", &TimeProgramScreen, OpenTimeProgramScreen, "editGroup", 'F', 11, false},
      {"times, context", &TimeProgramScreen, OpenTimeProgramScreen, "editGroup", 'S', -1, false},
      {"times, Corvela", &TimeProgramScreen, OpenTimeProgramScreen, "editGroup", 'Z', -1, false},
      {"times, display", &TimeProgramScreen, OpenTimeProgramScreen, "editGroup", 'I', -1, false},
      {"times, calendar", &TimeProgramScreen, OpenTimeProgramScreen, "editGroup", 'A', 1, true},
      {"lights", &LightProgramScreen, OpenLightProgramScreen, "", '?', -1, false},
      {"lights, question", &LightProgramScreen, OpenLightProgramScreen, "deleteGroup", '?', -1,
       false},
      {"lights, editor", &LightProgramScreen, OpenLightProgramScreen, "editGroup", '?', -1, false},
      {"lights, dimmer", &LightProgramScreen, OpenLightProgramScreen, "editGroup", 'B', 5, false},
      {"lights, context", &LightProgramScreen, OpenLightProgramScreen, "editGroup", 'S', -1, false},
      {"lights, Corvela", &LightProgramScreen, OpenLightProgramScreen, "editGroup", 'Z', -1, false},
      {"lights, no actions", &LightProgramScreen, OpenLightProgramScreen, "editGroup", 'C', -1,
       false},
  };
  return states;
}

const ScreenState& MasterStage::StateOf(const char* name) {
  return *std::find_if(States().begin(), States().end(),
                       [name](const ScreenState& each) { return qstrcmp(each.name, name) == 0; });
}

void MasterStage::AddStatesIf(const std::function<bool(const ScreenState&)>& wanted) {
  QTest::addColumn<int>("state");
  for (int state = 0; const ScreenState& each : States()) {
    if (wanted(each)) QTest::newRow(each.name) << state;
    ++state;
  }
}

void MasterStage::AddScreens() {
  AddStatesIf([](const ScreenState& each) { return *each.panel == '\0'; });
}

void MasterStage::AddQuestionsOfPrograms() {
  AddStatesIf([](const ScreenState& each) {
    return each.screen != &ContextScreen && qstrcmp(each.panel, "deleteGroup") == 0;
  });
}

// --- The windows --------------------------------------------------------------------------------

void MasterStage::ShowContext(int context) {
  Show(ContextScreen, OpenContextScreen);
  PickRow("chooser", context);
}

void MasterStage::ShowState(const ScreenState& state) {
  Show(*state.screen, state.open);
  ShowIn(state);
}

void MasterStage::ShowIn(const ScreenState& state) {
  Screen& screen = *state.screen;
  RunEvent([&] {
    if (&screen == &ContextScreen) ContextScreen.chooser.Pick(0);
    for (const char* leave : {"editLeave", "deleteNo", "deleteCancel"}) {
      if (auto* button = static_cast<ButtonField*>(screen.Find(leave))) button->Click();
    }
    if (qstrcmp(state.panel, "deleteGroup") == 0) GridOf(screen).DoubleClick(1, 1);
  });
  if (qstrcmp(state.panel, "editGroup") == 0) OpenEditor(screen);
  RunEvent([&] {
    ActionPicker& picker = PickerOf(screen);
    const auto& letters = picker.letter.items;
    const auto letter = std::find(letters.begin(), letters.end(), std::string(1, state.letter));
    if (letter == letters.end()) return;
    picker.letter.Pick(static_cast<int>(letter - letters.begin()));
    picker.mainZone.Choose();
    picker.action.list.Pick(state.action);
    if (state.asksDate) TimeProgramScreen.day.Pick(7);
  });
  QCoreApplication::processEvents();
}

void MasterStage::OpenEditor(Screen& screen) {
  RunEvent([&screen] {
    if (&screen == &ContextScreen) ContextScreen.chooser.Pick(0);
    GridOf(screen).DoubleClick(GridOf(screen).Rows(), 1);
  });
  QCoreApplication::processEvents();
}

QTableView* MasterStage::Grid() const {
  return Find<QTableView>(GridOf(Shown()).name.c_str());
}

QString MasterStage::CellText(int row, int column) const {
  return Grid()->model()->index(row, column).data().toString();
}

}  // namespace bkconf
