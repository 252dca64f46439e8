#include "shell/action_buttons.h"

#include <gtest/gtest.h>

#include <set>

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
#include "support/session_test.h"

namespace bkconf {
namespace {

class ActionButtonsTest : public SessionTest, public testing::WithParamInterface<int> {
 protected:
  /// Gives every action a handler that notes it, before the window is built. Those that have an
  /// editor get theirs then.
  void FillHandlers() {
    for (std::size_t i = 0; i < ActionCount; ++i) {
      ActionHandlers[i] = [this, i] { opened.push_back(static_cast<Action>(i)); };
    }
  }
  void Read() {
    Start();
    Plug(GetParam());
    ReadModule();
  }
  void OpenFile() {
    Start();
    files.content["/house/a.BK1"] = FileOf(GetParam());
    OpenModule("/house/a.BK1");
  }
  /// What a click opens, at once or when the module has told what it was asked for: an editor by
  /// its name, or else the action that the handlers have noted.
  std::vector<std::string> OpenedBy(const ButtonField& button) {
    opened.clear();
    for (Screen* screen : Editors) screen->shown = false;
    MainWindow.modulePage.page.visible = false;
    button.Click();
    asked = TransferUnderWay;
    if (asked) {
      EXPECT_EQ(Shown(), std::vector<std::string>{}) << button.name;
      FinishTransfer();
    }
    return Shown();
  }
  std::vector<std::string> Shown() const {
    std::vector<std::string> names;
    for (const Screen* screen : Editors) {
      if (screen->shown) names.push_back(screen->name);
    }
    if (MainWindow.modulePage.page.visible) names.push_back(MainWindow.modulePage.page.name);
    for (const Action action : opened) names.push_back(NameOf(action));
    return names;
  }
  static std::string NameOf(Action action) {
    switch (action) {
      case Action::Buttons:
      case Action::SecondFunctionTime:
        return "ButtonScreen";
      case Action::OutputFunctions:
      case Action::DimStartValues:
        return "OutputScreen";
      case Action::Contexts:
        return "ContextScreen";
      case Action::TimePrograms:
        return "TimeProgramScreen";
      case Action::LightPrograms:
        return "LightProgramScreen";
      case Action::Configuration:
        return "modulePage";
      case Action::Detectors:
        return "AlarmScreen";
      case Action::Diagnostics:
        return "DiagnosticsScreen";
      default:
        return "action " + std::to_string(static_cast<int>(action));
    }
  }
  static bool AsksTheModule(Action action) {
    return action == Action::Contexts || action == Action::TimePrograms ||
           action == Action::LightPrograms;
  }
  inline static const std::vector<Screen*> Editors = {
      &ButtonScreen,       &OutputScreen, &ContextScreen,    &TimeProgramScreen,
      &LightProgramScreen, &AlarmScreen,  &DiagnosticsScreen};
  std::vector<Action> opened;
  bool asked = false;  ///< the last click began a read
};

TEST_P(ActionButtonsTest, AButtonThatHasNothingToOpenIsShownButNotUsable) {
  Read();
  EXPECT_FALSE(VisibleActions().empty());
  for (std::size_t i = 0; i < ActionButtons.size(); ++i) {
    const ButtonField& button = *MainWindow.actionButtons[i];
    const bool opens = bool{ActionHandlers[static_cast<std::size_t>(ActionButtons[i].action)]};
    EXPECT_EQ(button.Usable(), opens && button.visible) << button.name;
  }
}

TEST_P(ActionButtonsTest, EveryButtonOfTheKindOpensItsOwnScreenAfterARead) {
  FillHandlers();
  Read();
  for (std::size_t i = 0; i < ActionButtons.size(); ++i) {
    const ButtonField& button = *MainWindow.actionButtons[i];
    EXPECT_EQ(button.Usable(), ActionButtons[i].kinds.Contains(GetParam())) << button.name;
    if (button.Usable()) {
      EXPECT_EQ(OpenedBy(button), std::vector{NameOf(ActionButtons[i].action)}) << button.name;
      EXPECT_EQ(asked, AsksTheModule(ActionButtons[i].action)) << button.name;
    } else {
      EXPECT_TRUE(OpenedBy(button).empty()) << button.name;
    }
  }
}

TEST_P(ActionButtonsTest, EveryButtonOfTheKindOpensItsOwnScreenAtOnceAfterOpeningAFile) {
  FillHandlers();
  OpenFile();
  for (std::size_t i = 0; i < ActionButtons.size(); ++i) {
    const ButtonField& button = *MainWindow.actionButtons[i];
    const bool shown = ActionButtons[i].kinds.Contains(GetParam()) && !ActionButtons[i].testsModule;
    EXPECT_EQ(button.Usable(), shown) << button.name;
    if (button.Usable()) {
      EXPECT_EQ(OpenedBy(button), std::vector{NameOf(ActionButtons[i].action)}) << button.name;
      EXPECT_FALSE(asked) << button.name;
    } else {
      EXPECT_TRUE(OpenedBy(button).empty()) << button.name;
    }
  }
}

TEST_P(ActionButtonsTest, NoButtonIsUsableDuringATransfer) {
  FillHandlers();
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
  EXPECT_TRUE(opened.empty());
}

TEST_P(ActionButtonsTest, NoButtonIsUsableAfterNew) {
  FillHandlers();
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
