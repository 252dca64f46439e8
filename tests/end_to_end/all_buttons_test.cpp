// What the screen of the push-buttons does to all of them at once, with a module of each kind that
// has them: base functions, and clearing a column.
#include <gtest/gtest.h>

#include <array>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "end_to_end/action_code.h"
#include "end_to_end/button_stage.h"
#include "end_to_end/image_lines.h"

namespace end_to_end {
namespace {

constexpr int buttonCount = 20;
constexpr int toggle = 2;
constexpr int letterLine = 122;

struct Toggles {
  int first;  // how many buttons toggle the output of their number
  int second;
};

struct BaseCase {
  const ButtonModule* module;
  std::optional<Toggles> toggles;  // none where the functions stay as they are
};

void PrintTo(const BaseCase& each, std::ostream* out) {
  *out << each.module->name;
}

const std::vector<BaseCase> baseCases = {
    {&relayButtons, Toggles{12, 0}},      {&dimmerButtons, Toggles{4, 4}},
    {&relayDcButtons, Toggles{12, 0}},    {&lumenzaButtons, Toggles{8, 4}},
    {&alarmButtons, Toggles{12, 0}},      {&audioButtons, Toggles{12, 0}},
    {&simulationButtons, Toggles{12, 0}}, {&infraredButtons, Toggles{12, 0}},
    {&masterButtons, std::nullopt},
};

using Functions = std::array<Action, buttonCount>;

// Both functions of all buttons.
struct Buttons {
  Functions first;
  Functions second;
};

class AllButtons : public ButtonStage, public ::testing::WithParamInterface<BaseCase> {
 protected:
  void SetUp() override {
    lines_ = LinesOf(ContentOf(DemoFile(GetParam().module->demoFile)));
    StartWithModule(*GetParam().module);
    ConnectAndRead();
  }

  Buttons DemoButtons() const {
    const auto functions = [this](int cell) {
      Functions found;
      for (Action& each : found) {
        each = {CellAt(cell), CellAt(cell + 1), CellAt(cell + 2)};
        cell += 3;
      }
      return found;
    };
    return {functions(0), functions(3 * buttonCount)};
  }
  Buttons BaseButtons() const {
    Buttons buttons;
    if (const auto& toggles = GetParam().toggles) {
      const int letter = std::stoi(lines_[letterLine]);
      const auto toggling = [letter](int count) {
        Functions functions;
        for (int output = 0; output < count; ++output) {
          functions.at(static_cast<std::size_t>(output)) = {letter, output, toggle};
        }
        return functions;
      };
      return {toggling(toggles->first), toggling(toggles->second)};
    }
    // A master has no outputs of its own; Corvela codes do not outlast it all the same.
    buttons = DemoButtons();
    for (Functions* functions : {&buttons.first, &buttons.second}) {
      for (Action& each : *functions) {
        if (each.letter == 'Z') each = {};
      }
    }
    return buttons;
  }

  void ExpectList(const Buttons& buttons, Values values) {
    const auto text = [values](const Action& action) {
      return action.letter == emptyCell ? "***" : CodeOf(action, values);
    };
    std::vector<std::string> rows;
    for (std::size_t i = 0; i < buttonCount; ++i) {
      rows.push_back(Row(static_cast<int>(i) + 1) + "|" + text(buttons.first[i]) + "|" +
                     text(buttons.second[i]));
    }
    AwaitRows(rows);
  }
  void AssignBaseFunctions() {
    ClickOn("push button", captions().baseFunctions);
    AwaitText(captions().baseQuestion);
    ClickOn("push button", captions().yes);
    AwaitGone("label", captions().baseQuestion);
  }
  void Tick(const char* box) {
    const Widget before = AwaitStill("check box", box);
    EXPECT_FALSE(before.checked);
    desktop().Click(before);
  }
  void ExpectTicked(const char* box) {
    const Widget after = Await("check box", box, false);
    EXPECT_TRUE(after.checked);
    EXPECT_FALSE(after.enabled) << "there is nothing more to clear";
  }
  void LeaveAndSend(const Buttons& buttons) {
    LeaveByButton(GetParam().module->screen);
    std::map<int, int> cells;
    int cell = 0;
    for (const Functions* functions : {&buttons.first, &buttons.second}) {
      for (const Action& each : *functions) {
        for (const int value : {each.letter, each.index, each.value}) cells[cell++] = value;
      }
    }
    SendAndExpect(GetParam().module->demoFile, cells);
  }

 private:
  int CellAt(int cell) const { return std::stoi(lines_.at(static_cast<std::size_t>(cell) + 1)); }

  std::vector<std::string> lines_;
};

TEST_P(AllButtons, GetTheirBaseFunctionsAndLoseThemAgainColumnByColumn) {
  OpenScreen();
  ExpectList(DemoButtons(), Values::InBlocks);
  AssignBaseFunctions();
  Buttons buttons = BaseButtons();
  ExpectList(buttons, Values::AsStored);
  LeaveAndSend(buttons);

  OpenScreen();
  ExpectList(buttons, Values::InBlocks);
  Tick(captions().clearFirst);
  buttons.first = {};
  ExpectList(buttons, Values::InBlocks);
  ExpectTicked(captions().clearFirst);
  Tick(captions().clearSecond);
  buttons.second = {};
  ExpectList(buttons, Values::InBlocks);
  ExpectTicked(captions().clearSecond);
  LeaveAndSend(buttons);
  CloseTool();
}

INSTANTIATE_TEST_SUITE_P(AModule, AllButtons, ::testing::ValuesIn(baseCases),
                         [](const auto& each) { return std::string(each.param.module->name); });

}  // namespace
}  // namespace end_to_end
