#include "shell/action_buttons.h"

#include <gtest/gtest.h>

#include <set>

#include "support/session_test.h"

namespace bkconf {
namespace {

class ActionButtonsTest : public SessionTest, public testing::WithParamInterface<int> {
 protected:
  /// Gives every action a handler that notes it, before the window is built.
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
  std::vector<Action> opened;
};

TEST_P(ActionButtonsTest, AButtonThatHasNothingToOpenIsShownButNotUsable) {
  Read();
  EXPECT_FALSE(VisibleActions().empty());
  for (const auto& button : MainWindow.actionButtons) {
    EXPECT_FALSE(button->Usable()) << button->name;
  }
}

TEST_P(ActionButtonsTest, EveryButtonOfTheKindOpensItsOwnScreenAfterARead) {
  FillHandlers();
  Read();
  for (std::size_t i = 0; i < ActionButtons.size(); ++i) {
    const ButtonField& button = *MainWindow.actionButtons[i];
    EXPECT_EQ(button.Usable(), ActionButtons[i].kinds.Contains(GetParam())) << button.name;
    opened.clear();
    button.Click();
    if (button.Usable()) {
      EXPECT_EQ(opened, std::vector<Action>{ActionButtons[i].action}) << button.name;
    } else {
      EXPECT_TRUE(opened.empty()) << button.name;
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
