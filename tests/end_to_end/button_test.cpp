// The screen of the push-buttons with a module of each kind that has them: a function is composed,
// seen in the list and sent.
#include <gtest/gtest.h>

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "end_to_end/button_stage.h"

namespace end_to_end {
namespace {

// A first function of button 3 as a person composes it, and what becomes of it.
struct ButtonCase {
  const ButtonModule* module;
  char letter;
  const char* type;         // what the letter tells
  const char* numberLabel;  // in front of what is numbered
  int number;
  int actionIndex;     // in its list; -1 where none is offered
  const char* action;  // "" where none is offered
  const char* code;
  const char* sentence;
  std::vector<int> cells;
};

void PrintTo(const ButtonCase& each, std::ostream* out) {
  *out << each.module->name;
}

const ButtonCase dimmer = {&dimmerButtons, 'C',     "Module dim",
                           "Sortie:",      2,       6,
                           "40%",          "C0240", "Module dim 'C':  Sortie 02 sur 40%",
                           {'C', 1, 40}};

// The first functions of a context that the other kinds get: their own module has no outputs.
ButtonCase ContextCase(const ButtonModule& module) {
  const bool isDutch = module.captions == &dutch;
  return {&module,
          'S',
          isDutch ? "Sfeer" : "Contexte",
          isDutch ? "Sfeer:" : "Contexte:",
          7,
          -1,
          "",
          "S0702",
          isDutch ? "Sfeer 07" : "Contexte 07",
          {'S', 6, 2}};
}

const std::vector<ButtonCase> buttonCases = {
    {&relayButtons,
     'A',
     "Relaismodule",
     "Uitgang:",
     5,
     1,
     "Aan",
     "A0501",
     "Relaismodule 'A':  Uitgang 05 aan",
     {'A', 4, 1}},
    dimmer,
    // It tells itself as a relay module; both are stored alike.
    {&relayDcButtons,
     'B',
     "Relaismodule",
     "Uitgang:",
     12,
     0,
     "Uit",
     "B1200",
     "Relaismodule DC 'B':  Uitgang 12 uit",
     {'B', 11, 0}},
    {&lumenzaButtons,
     'D',
     "Dimmer Lumenza",
     "Sortie:",
     6,
     2,
     "Toggle",
     "D0602",
     "Module Lumenza 'D':  Sortie 06 toggle",
     {'D', 5, 2}},
    ContextCase(alarmButtons),
    ContextCase(audioButtons),
    ContextCase(simulationButtons),
    ContextCase(infraredButtons),
    ContextCase(masterButtons),
};

constexpr int button = 3;
constexpr int firstCell = 6;  // of its first function

std::map<int, int> CellsOf(const ButtonCase& each) {
  std::map<int, int> cells;
  for (std::size_t i = 0; i < each.cells.size(); ++i) {
    cells[firstCell + static_cast<int>(i)] = each.cells[i];
  }
  return cells;
}

class ComposingStage : public ButtonStage {
 protected:
  void StartWith(const ButtonCase& each) {
    case_ = &each;
    StartWithModule(*each.module);
  }

  // A list of the first function.
  ListPlace List(std::string_view label) const { return {label, captions().firstFunction}; }

  // What the letter alone tells about the function.
  void ExpectTypeIsKnown() {
    AwaitListText(List("Type:"), case_->type);
    EXPECT_FALSE(desktop().FindList(List("Type:"))->enabled);
    EXPECT_EQ(desktop().FindList(List(captions().action)).has_value(), case_->actionIndex >= 0);
  }
  void ExpectStored() {
    AwaitCell(Row(button), captions().firstColumn, case_->code);
    EXPECT_FALSE(IsEnabled("push button", captions().store)) << "it has done its work";
    EXPECT_FALSE(desktop().Find("label", case_->sentence)) << "nothing is selected yet";
  }

 private:
  const ButtonCase* case_ = nullptr;
};

class Buttons : public ComposingStage, public ::testing::WithParamInterface<ButtonCase> {
 protected:
  void Compose() {
    const ButtonCase& each = GetParam();
    EXPECT_FALSE(IsEnabled("push button", captions().store)) << "no button is chosen yet";
    PickItem({captions().buttonChooser}, button - 1, std::to_string(button));
    Await("push button", captions().store);
    PickItem(List("Module:"), each.letter - 'A', std::string(1, each.letter));
    ExpectTypeIsKnown();
    PickItem(List(each.numberLabel), each.number - 1, std::to_string(each.number));
    if (each.actionIndex >= 0) PickItem(List(captions().action), each.actionIndex, each.action);
  }
};

TEST_P(Buttons, FirstFunctionIsComposedByMouseSeenAndSent) {
  const ButtonCase& each = GetParam();
  StartWith(each);
  ConnectAndRead();
  OpenScreen();
  Compose();
  ClickOn("push button", captions().store);
  ExpectStored();
  desktop().Click(AwaitCell(Row(button), captions().firstColumn, each.code));
  AwaitText(each.sentence);
  LeaveByButton(each.module->screen);
  SendAndExpect(each.module->demoFile, CellsOf(each));
  CloseTool();
}

INSTANTIATE_TEST_SUITE_P(AModule, Buttons, ::testing::ValuesIn(buttonCases),
                         [](const auto& each) { return std::string(each.param.module->name); });

class ButtonsByKeyboard : public ComposingStage {
 protected:
  // A closed list takes the item that begins with the key.
  void TypeInList(const ListPlace& place, const std::string& key, const std::string& item) {
    TabToList(place);
    desktop().Press({key});
    AwaitListText(place, item);
  }
  void Compose() {
    TypeInList({captions().buttonChooser}, "3", "3");
    TypeInList(List("Module:"), "C", "C");
    ExpectTypeIsKnown();
    TypeInList(List(dimmer.numberLabel), "2", "2");
    TypeInList(List(captions().action), "4", dimmer.action);
  }
};

TEST_F(ButtonsByKeyboard, FirstFunctionIsComposedSeenAndSent) {
  StartWith(dimmer);
  PressButton(captions().connect);
  AwaitRead();
  PressButton(captions().buttons);
  AwaitWindow(dimmer.module->screen);
  Compose();
  desktop().Press({"Return"});
  ExpectStored();
  TabTo([](const Widget& each) { return each.role == "table"; });
  // The first key selects the cell that the cursor stands on.
  desktop().Press({"Down", "Down", "Down"});
  AwaitText(dimmer.sentence);
  LeaveScreen(dimmer.module->screen);
  AwaitWindow("TREVAN BK-CONF");
  PressButton(captions().send);
  ExpectSent(dimmer.module->demoFile, CellsOf(dimmer));
  CloseTool();
}

}  // namespace
}  // namespace end_to_end
