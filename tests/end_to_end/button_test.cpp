// The screen of the push-buttons with a module of each kind that has them: a function is composed,
// seen in the list and sent.
#include <gtest/gtest.h>

#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "end_to_end/stage.h"

namespace end_to_end {
namespace {

// A first function of button 3 as a person composes it, and what becomes of it.
struct ButtonCase {
  const Captions* captions;
  int kind;
  const char* name;
  const char* demoFile;
  const char* screen;  // its title
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
  *out << each.name;
}

const ButtonCase relay = {&dutch,
                          0,
                          "Relay",
                          "Relais A.BK1",
                          "Relaismodule KR7021 <adres = A>",
                          'A',
                          "Relaismodule",
                          "Uitgang:",
                          5,
                          1,
                          "Aan",
                          "A0501",
                          "Relaismodule 'A':  Uitgang 05 aan",
                          {'A', 4, 1}};
const ButtonCase dimmer = {&french,
                           1,
                           "Dimmer",
                           "Dimmer C.BK1",
                           "Module dim KR73XX <adresse = C>",
                           'C',
                           "Module dim",
                           "Sortie:",
                           2,
                           6,
                           "40%",
                           "C0240",
                           "Module dim 'C':  Sortie 02 sur 40%",
                           {'C', 1, 40}};

// The first functions of a context that the other kinds get: their own module has no outputs.
ButtonCase ContextCase(const Captions& captions, int kind, const char* name, const char* demoFile,
                       const char* screen) {
  const bool isDutch = &captions == &dutch;
  return {&captions,
          kind,
          name,
          demoFile,
          screen,
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
    relay,
    dimmer,
    // It tells itself as a relay module; both are stored alike.
    {&dutch,
     4,
     "RelayOnDirectCurrent",
     "Relais_DC B.BK1",
     "Relaismodule DC KR7023 <adres = B>",
     'B',
     "Relaismodule",
     "Uitgang:",
     12,
     0,
     "Uit",
     "B1200",
     "Relaismodule DC 'B':  Uitgang 12 uit",
     {'B', 11, 0}},
    {&french,
     11,
     "DimmerWithSwitchedOutputs",
     "Dimmer D.BK1",
     "Module Lumenza KR7061 <adresse = D>",
     'D',
     "Dimmer Lumenza",
     "Sortie:",
     6,
     2,
     "Toggle",
     "D0602",
     "Module Lumenza 'D':  Sortie 06 toggle",
     {'D', 5, 2}},
    ContextCase(dutch, 5, "Alarm", "Alarm G.BK1", "Alarmmodule KR7160 <adres = G>"),
    ContextCase(french, 6, "Audio", "Audio H.BK1", "Interface audio KR7920 <adresse = H>"),
    ContextCase(dutch, 7, "Simulation", "Simulatie I.BK1", "Simulatiemodule KR7170 <adres = I>"),
    ContextCase(french, 8, "Infrared", "I.R. J.BK1", "Module I.R. KR7180 <adresse = J>"),
    ContextCase(dutch, 9, "Master", "Master.BK1", "Mastermodule KR7110"),
};

constexpr int button = 3;
constexpr int firstCell = 6;      // of its first function
constexpr int buttonCells = 120;  // of both functions of all buttons
constexpr int empty = 42;
constexpr int toggle = 2;

std::map<int, int> CellsOf(const ButtonCase& each) {
  std::map<int, int> cells;
  for (std::size_t i = 0; i < each.cells.size(); ++i) {
    cells[firstCell + static_cast<int>(i)] = each.cells[i];
  }
  return cells;
}

class ButtonStage : public Stage {
 protected:
  void StartWith(const ButtonCase& each) {
    case_ = &each;
    LayOutDirectory(*each.captions);
    StartModule(each.kind,
                {"--image", DemoFile(each.demoFile).string(), "--save", savedImage().string()});
    StartTool();
  }

  void OpenScreen() {
    ClickOn("push button", captions().buttons);
    AwaitWindow(case_->screen);
  }
  void LeaveByButton() {
    ClickOn("push button", captions().leave);
    AwaitGone("frame", case_->screen);
    AwaitWindow("TREVAN BK-CONF");
  }

  // A list of the first function.
  ListPlace List(std::string_view label) const { return {label, captions().firstFunction}; }
  std::string Row(int number) const { return captions().buttonRow + std::to_string(number); }

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

class Buttons : public ButtonStage, public ::testing::WithParamInterface<ButtonCase> {
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
  LeaveByButton();
  SendAndExpect(each.demoFile, CellsOf(each));
  CloseTool();
}

INSTANTIATE_TEST_SUITE_P(AModule, Buttons, ::testing::ValuesIn(buttonCases),
                         [](const auto& each) { return std::string(each.param.name); });

// How many buttons toggle the output of their number, before the second functions are cleared.
struct BaseCase {
  const ButtonCase* module;
  int first;
  int second;
};

void PrintTo(const BaseCase& each, std::ostream* out) {
  *out << each.module->name;
}

class AllButtons : public ButtonStage, public ::testing::WithParamInterface<BaseCase> {
 protected:
  void AssignBaseFunctions() {
    ClickOn("push button", captions().baseFunctions);
    AwaitText(captions().baseQuestion);
    ClickOn("push button", captions().yes);
    AwaitGone("label", captions().baseQuestion);
  }
  // The last button with a function, and the first one without.
  void ExpectToggles(const std::string& column, int count) {
    if (count > 0) {
      const std::string number = (count < 10 ? "0" : "") + std::to_string(count);
      AwaitCell(Row(count), column, GetParam().module->letter + number + "02");
    }
    AwaitCell(Row(count + 1), column, "***");
  }
  void ClearSecondFunctions() {
    const Widget box = AwaitStill("check box", captions().clearSecond);
    EXPECT_FALSE(box.checked);
    desktop().Click(box);
    ExpectToggles(captions().secondColumn, 0);
    const Widget ticked = Await("check box", captions().clearSecond, false);
    EXPECT_TRUE(ticked.checked);
    EXPECT_FALSE(ticked.enabled) << "there is nothing more to clear";
  }
  std::map<int, int> CellsOfToggles(int count) const {
    std::map<int, int> cells;
    for (int cell = 0; cell < buttonCells; ++cell) cells[cell] = empty;
    for (int output = 0; output < count; ++output) {
      cells[3 * output] = GetParam().module->letter;
      cells[3 * output + 1] = output;
      cells[3 * output + 2] = toggle;
    }
    return cells;
  }
};

TEST_P(AllButtons, GetTheirBaseFunctionsAndLoseTheSecondOnes) {
  StartWith(*GetParam().module);
  ConnectAndRead();
  OpenScreen();
  AssignBaseFunctions();
  ExpectToggles(captions().firstColumn, GetParam().first);
  ExpectToggles(captions().secondColumn, GetParam().second);
  ClearSecondFunctions();
  ExpectToggles(captions().firstColumn, GetParam().first);
  LeaveByButton();
  SendAndExpect(GetParam().module->demoFile, CellsOfToggles(GetParam().first));
  CloseTool();
}

INSTANTIATE_TEST_SUITE_P(AModule, AllButtons,
                         ::testing::Values(BaseCase{&relay, 12, 0}, BaseCase{&dimmer, 4, 4}),
                         [](const auto& each) { return std::string(each.param.module->name); });

class ButtonsByKeyboard : public ButtonStage {
 protected:
  void PressButton(const std::string& name) {
    TabTo("push button", name);
    desktop().Press({"space"});
  }
  // A closed list takes the item that begins with the key.
  void TypeInList(const ListPlace& place, const std::string& key, const std::string& item) {
    TabTo([&](const Widget& each) {
      const auto list = desktop().FindList(place);
      return list && each.role == list->role && each.x == list->x && each.y == list->y;
    });
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
  AwaitWindow(dimmer.screen);
  Compose();
  desktop().Press({"Return"});
  ExpectStored();
  TabTo([](const Widget& each) { return each.role == "table"; });
  // The first key selects the cell that the cursor stands on.
  desktop().Press({"Down", "Down", "Down"});
  AwaitText(dimmer.sentence);
  LeaveScreen(dimmer.screen);
  AwaitWindow("TREVAN BK-CONF");
  PressButton(captions().send);
  ExpectSent(dimmer.demoFile, CellsOf(dimmer));
  CloseTool();
}

}  // namespace
}  // namespace end_to_end
