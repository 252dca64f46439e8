#include "shell/action_buttons.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <stdexcept>

#include "diagnostics/diagnostics_screen.h"
#include "image/file_lines.h"
#include "link/transfer.h"
#include "master/context_screen.h"
#include "master/light_program_screen.h"
#include "master/time_program_screen.h"
#include "output/button_screen.h"
#include "output/output_screen.h"
#include "shell/module_file.h"
#include "special/alarm_screen.h"
#include "special/audio_screen.h"
#include "special/display_menu_screen.h"
#include "special/ir_screen.h"
#include "special/simulation_screen.h"
#include "special/temperature_screen.h"
#include "special/weekday_text_screen.h"
#include "support/session_test.h"

namespace bkconf {
namespace {

/// What an action opens.
struct EditorRow {
  Action action;
  Screen* screen;  ///< null for the page of the main window
  bool reads;      ///< asks the module first, unless it is in memory
};

const std::vector<EditorRow> Editors = {
    {Action::Buttons, &ButtonScreen, false},
    {Action::SecondFunctionTime, &ButtonScreen, false},
    {Action::OutputFunctions, &OutputScreen, false},
    {Action::DimStartValues, &OutputScreen, false},
    {Action::Contexts, &ContextScreen, true},
    {Action::TimePrograms, &TimeProgramScreen, true},
    {Action::LightPrograms, &LightProgramScreen, true},
    {Action::Configuration, nullptr, false},
    {Action::Detectors, &AlarmScreen, false},
    {Action::RoomIds, &TemperatureScreen, true},
    {Action::RoomProgram, &TemperatureScreen, true},
    {Action::LiveTemperatures, &TemperatureScreen, true},
    {Action::Display1, &DisplayMenuScreen, true},
    {Action::Display2, &DisplayMenuScreen, true},
    {Action::DisplayGeneral, &WeekdayTextScreen, true},
    {Action::AudioSettings, &AudioScreen, false},
    {Action::SimulationSettings, &SimulationScreen, false},
    {Action::IrSettings, &IrScreen, false},
    {Action::Diagnostics, &DiagnosticsScreen, false},
};

class ActionButtonsTest : public SessionTest, public testing::WithParamInterface<int> {
 protected:
  void Read() {
    Start();
    Plug(GetParam());
    ReadModule();
  }
  void OpenFile() {
    Start();
    Plug(GetParam());
    files.content["/house/a.BK1"] = FileOf(GetParam());
    OpenModule("/house/a.BK1");
  }
  /// What a click opens, at once or when the module has told what it was asked for, by name.
  std::vector<std::string> OpenedBy(const ButtonField& button) {
    for (const EditorRow& row : Editors) {
      if (row.screen != nullptr) row.screen->shown = false;
    }
    MainWindow.modulePage.page.visible = false;
    button.Click();
    asked = TransferUnderWay;
    if (asked) {
      EXPECT_EQ(Shown(), std::vector<std::string>{}) << button.name;
      FinishTransfer();
    }
    return Shown();
  }
  static std::vector<std::string> Shown() {
    std::set<std::string> names;
    for (const EditorRow& row : Editors) {
      if (row.screen != nullptr && row.screen->shown) names.insert(row.screen->name);
    }
    if (MainWindow.modulePage.page.visible) names.insert(MainWindow.modulePage.page.name);
    return {names.begin(), names.end()};
  }
  static const EditorRow& RowOf(Action action) {
    const auto row = std::find_if(Editors.begin(), Editors.end(), [action](const EditorRow& each) {
      return each.action == action;
    });
    if (row == Editors.end()) throw std::runtime_error("an action without an editor");
    return *row;
  }
  static std::string NameOf(Action action) {
    const EditorRow& row = RowOf(action);
    return row.screen != nullptr ? row.screen->name : MainWindow.modulePage.page.name;
  }

  bool asked = false;  ///< the last click began a read
};

TEST_P(ActionButtonsTest, EveryActionHasAnEditor) {
  Start();
  EXPECT_EQ(Editors.size(), ActionCount);
  for (std::size_t i = 0; i < ActionCount; ++i) EXPECT_TRUE(ActionHandlers[i]) << i;
}

TEST_P(ActionButtonsTest, EveryButtonOfTheKindOpensItsOwnScreenAfterARead) {
  Read();
  for (std::size_t i = 0; i < ActionButtons.size(); ++i) {
    const ButtonField& button = *MainWindow.actionButtons[i];
    EXPECT_EQ(button.Usable(), ActionButtons[i].kinds.Contains(GetParam())) << button.name;
    if (button.Usable()) {
      EXPECT_EQ(OpenedBy(button), std::vector{NameOf(ActionButtons[i].action)}) << button.name;
      EXPECT_EQ(asked, RowOf(ActionButtons[i].action).reads) << button.name;
    } else {
      EXPECT_TRUE(OpenedBy(button).empty()) << button.name;
    }
  }
}

TEST_P(ActionButtonsTest, EveryButtonOfTheKindOpensItsOwnScreenAtOnceAfterOpeningAFile) {
  OpenFile();
  for (std::size_t i = 0; i < ActionButtons.size(); ++i) {
    const ButtonField& button = *MainWindow.actionButtons[i];
    const bool shown = ActionButtons[i].kinds.Contains(GetParam()) && !ActionButtons[i].testsModule;
    EXPECT_EQ(button.Usable(), shown) << button.name;
    if (button.Usable()) {
      EXPECT_EQ(OpenedBy(button), std::vector{NameOf(ActionButtons[i].action)}) << button.name;
      // Temperatures are in no file: they are asked for each time.
      EXPECT_EQ(asked, ActionButtons[i].action == Action::LiveTemperatures) << button.name;
    } else {
      EXPECT_TRUE(OpenedBy(button).empty()) << button.name;
    }
  }
}

TEST_P(ActionButtonsTest, NoButtonIsUsableDuringATransfer) {
  Read();
  for (ButtonField* start : {&MainWindow.connect, &MainWindow.send}) {
    start->Click();
    for (const auto& button : MainWindow.actionButtons) {
      EXPECT_FALSE(button->Usable()) << button->name;
      button->Click();
    }
    FinishTransfer();
    EXPECT_TRUE(AllVisibleActionsEnabled());
  }
  EXPECT_TRUE(Shown().empty());
}

TEST_P(ActionButtonsTest, NoButtonIsUsableAfterNew) {
  Read();
  MainWindow.nieuw.Click();
  for (const auto& button : MainWindow.actionButtons) {
    EXPECT_FALSE(button->Usable()) << button->name;
  }
}

TEST_P(ActionButtonsTest, EveryButtonOfTheKindStandsInTheGroupOfTheKind) {
  const ModuleKind* kind = FindKind(GetParam());
  int buttons = 0;
  for (const ActionButtonRow& row : ActionButtons) {
    if (!row.kinds.Contains(GetParam())) continue;
    ++buttons;
    EXPECT_EQ(row.group, kind->group) << row.name;
  }
  EXPECT_GE(buttons, 3);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ActionButtonsTest, testing::ValuesIn(AllKinds),
                         [](const auto& kind) { return "kind" + std::to_string(kind.param); });

TEST(ActionButtonRowsTest, HaveNamesOfTheirOwn) {
  std::set<std::string_view> names;
  for (const ActionButtonRow& row : ActionButtons) {
    EXPECT_TRUE(names.insert(row.name).second) << row.name;
  }
}

TEST(ActionButtonRowsTest, ReachEveryAction) {
  std::set<Action> actions;
  for (const ActionButtonRow& row : ActionButtons) actions.insert(row.action);
  EXPECT_EQ(actions.size(), ActionCount);
}

TEST(ActionButtonRowsTest, OnlyTheDiagnosticsNeedAModuleOnTheLine) {
  for (const ActionButtonRow& row : ActionButtons) {
    EXPECT_EQ(row.testsModule, row.action == Action::Diagnostics) << row.name;
  }
}

}  // namespace
}  // namespace bkconf
