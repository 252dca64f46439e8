// The screen of the detectors of an alarm module: what the demo house has there is seen, changed,
// sent and kept in a file.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "end_to_end/action_code.h"
#include "end_to_end/deadline.h"
#include "end_to_end/file_stage.h"
#include "end_to_end/grid.h"
#include "end_to_end/image_lines.h"
#include "end_to_end/special_captions.h"

namespace end_to_end {
namespace {

constexpr const char* demoFile = "Alarm G.BK1";
constexpr int detectorCount = 12;

// Cells of a detector, from 0 on.
int DelayCell(int detector) {
  return 124 + detector;
}
int ServiceCell(int detector) {
  return 136 + detector;
}
int TriggerCell(int detector) {
  return 149 + 6 * detector;
}
int EndCell(int detector) {
  return 152 + 6 * detector;
}
int ConditionCell(int detector) {
  return 221 + 5 * detector;
}
int JoiningCell(int detector) {
  return 281 + detector;
}

enum class Edge { Trigger = 1, End = 2 };  // the numbers of their tables

class Detectors : public FileStage, public ::testing::WithParamInterface<AlarmCaptions> {
 protected:
  void SetUp() override {
    LayOutDirectory(*texts().captions);
    lines_ = LinesOf(ContentOf(DemoFile(demoFile)));
  }
  const AlarmCaptions& texts() const { return GetParam(); }
  int DemoCell(int cell) const { return std::stoi(lines_.at(static_cast<std::size_t>(cell) + 1)); }

  void ConnectAndOpen() {
    StartModule(5, {"--image", DemoFile(demoFile).string(), "--save", savedImage().string()});
    StartTool();
    ConnectAndRead();
    OpenScreen();
  }
  void OpenScreen() {
    ClickOn("push button", texts().detectors);
    AwaitWindow(texts().title);
  }

  ListPlace Chooser() const { return {detectorsLabel_}; }
  ListPlace Level() const { return {texts().level, texts().light}; }
  ListPlace From(int period) const { return {texts().from, texts().time, period}; }
  ListPlace To(int period) const { return {texts().to, texts().time, period}; }
  ListPlace Delay() const { return {texts().delay, texts().settings}; }
  ListPlace Editor(std::string_view label) const { return {label, texts().edit}; }

  void PickDetector(int detector) {
    PickItem(Chooser(), detector, texts().detector + std::to_string(detector + 1));
  }
  // The box for no light, or for no period of that number.
  Widget NoneBox(std::string_view group, int number = 1) {
    std::vector<Widget> boxes;
    WaitFor([&] {
      boxes.clear();
      for (const Widget& each : desktop().Widgets()) {
        if (each.role == "check box" && each.group == group) boxes.push_back(each);
      }
      return boxes.size() >= static_cast<std::size_t>(number);
    });
    std::sort(boxes.begin(), boxes.end(),
              [](const Widget& one, const Widget& other) { return one.y < other.y; });
    const Widget box = boxes.at(static_cast<std::size_t>(number) - 1);
    EXPECT_EQ(box.name, texts().none);
    return box;
  }
  void AwaitChecked(std::string_view role, std::string_view name, bool checked) {
    EXPECT_TRUE(WaitFor([&] { return Await(role, name, false).checked == checked; })) << name;
  }

  // The cell of one of the two actions.
  Widget AwaitAction(Edge edge, std::string_view code) {
    std::optional<Widget> cell;
    const bool stands = WaitFor([&] {
      const std::optional<Widget> before = cell;
      const Grid grid = GridOf(desktop().Widgets(), static_cast<int>(edge));
      cell.reset();
      if (!grid.rows.empty()) cell = grid.rows.front().back();
      return before && cell && cell->x == before->x && cell->y == before->y && cell->name == code;
    });
    EXPECT_TRUE(stands) << "the action is \"" << (cell ? cell->name : "none") << "\"";
    return cell.value_or(Widget());
  }
  std::string CodeAt(int cell) const {
    const Action action{DemoCell(cell), DemoCell(cell + 1), DemoCell(cell + 2)};
    return action.letter == emptyCell ? "***" : CodeOf(action, Values::InBlocks);
  }
  void OpenEditorByMouse(Edge edge, std::string_view code) {
    desktop().DoubleClick(AwaitAction(edge, code));
    Await("panel", texts().edit);
  }
  void OpenEditorByKeyboard(Edge edge) {
    const std::string place = PlaceOf(AwaitAction(edge, "***"));
    TabTo([&](const Widget& each) {
      const auto action = GridOf(desktop().Widgets(), static_cast<int>(edge)).rows;
      return each.role == "table" && !action.empty() && Contains(each, action.front().back());
    });
    desktop().Press({"Return"});
    Await("panel", texts().edit);
    EXPECT_EQ(PlaceOf(AwaitAction(edge, "***")), place) << "nothing moves";
  }
  void AwaitEditorClosed() { AwaitGone("panel", texts().edit); }

  // All that goes out for an image of the module, in two blocks.
  void ExpectFrames(const std::vector<std::string>& lines) {
    std::vector<std::string> wanted;
    const auto add = [&](int first, int last) {
      for (int cell = first; cell <= last; ++cell) {
        const auto line = static_cast<std::size_t>(cell) + 1;
        const int value = line < lines.size() ? std::stoi(lines[line]) : 0;
        wanted.push_back("T" + std::to_string(1000 + cell - first).substr(1) +
                         std::to_string(1000 + value).substr(1) + "\\n\\r");
      }
    };
    add(0, 147);
    add(149, 293);
    std::vector<std::string> sent;
    for (const LogUnit& unit : Log()) {
      if (unit.fromTool && unit.text == "T70000\\r") {
        sent.clear();
      } else if (unit.fromTool) {
        sent.push_back(unit.text);
      }
    }
    EXPECT_EQ(sent, wanted);
  }

 private:
  static bool Contains(const Widget& outer, const Widget& inner) {
    return outer.x <= inner.x && inner.x < outer.x + outer.width && outer.y <= inner.y &&
           inner.y < outer.y + outer.height;
  }
  static std::string PlaceOf(const Widget& widget) {
    return std::to_string(widget.x) + "," + std::to_string(widget.y);
  }

  std::vector<std::string> lines_;  // of the demo house
  std::string detectorsLabel_ = std::string(GetParam().detectors) + ":";
};

// A free detector of the house, set by a person, and its cells.
constexpr int chosen = 10;
const std::map<int, int> setCells = {
    {DelayCell(chosen), 15},         {ServiceCell(chosen), 1},
    {TriggerCell(chosen), 'A'},      {TriggerCell(chosen) + 1, 4},
    {TriggerCell(chosen) + 2, 1},    {EndCell(chosen), 'S'},
    {EndCell(chosen) + 1, 6},        {EndCell(chosen) + 2, 2},
    {ConditionCell(chosen), 7},      {ConditionCell(chosen) + 1, 22},
    {ConditionCell(chosen) + 2, 24}, {ConditionCell(chosen) + 3, 0},
    {ConditionCell(chosen) + 4, 6},  {JoiningCell(chosen), 0}};

class SetDetector : public Detectors {
 protected:
  void SetConditions() {
    ClickOn("check box", texts().noCondition);
    desktop().Click(NoneBox(texts().light));
    PickItem(Level(), 6, "7");
    desktop().Click(NoneBox(texts().time, 1));
    PickItem(From(1), 22, "22");
    PickItem(To(1), 23, "24");
    desktop().Click(NoneBox(texts().time, 2));
    PickItem(From(2), 0, "0");
    PickItem(To(2), 5, "6");
    AwaitChecked("radio button", texts().both, true);
    ClickOn("radio button", texts().either);
    AwaitChecked("radio button", texts().either, true);
    ClickOn("check box", texts().atOnce);
    PickItem(Delay(), 14, "15");
  }
  void ComposeTriggerByMouse() {
    OpenEditorByMouse(Edge::Trigger, "***");
    PickItem(Editor("Module:"), 0, "A");
    AwaitListText(Editor("Type:"), texts().typeAsked);
    PickItem(Editor("Type:"), 0, texts().relayType);
    PickItem(Editor(texts().output), 4, "5");
    PickItem(Editor(captions().action), 1, texts().on);
    ClickOn("push button", captions().confirm);
    AwaitEditorClosed();
  }
  void ComposeEndByKeyboard() {
    OpenEditorByKeyboard(Edge::End);
    StepInList(Editor("Module:"), 18, "S");
    AwaitListText(Editor("Type:"), texts().context);
    StepInList(Editor(texts().context), 6, "7");
    desktop().Press({"Return"});
    AwaitEditorClosed();
  }
  void ExpectSet() {
    AwaitChecked("check box", texts().inService, true);
    AwaitAction(Edge::Trigger, "A0501");
    AwaitAction(Edge::End, "S0702");
    AwaitChecked("check box", texts().noCondition, false);
    AwaitListText(Level(), "7");
    AwaitListText(From(1), "22");
    AwaitListText(To(1), "24");
    AwaitListText(From(2), "0");
    AwaitListText(To(2), "6");
    AwaitChecked("radio button", texts().either, true);
    AwaitChecked("check box", texts().atOnce, false);
    AwaitListText(Delay(), "15");
  }
  // What was picked in a list, or told by the picker as text, is a text until the file is read.
  std::vector<std::string> LinesOfFirstFile() const {
    std::vector<std::string> lines = WithCells(LinesOf(ContentOf(DemoFile(demoFile))), setCells);
    const int light = ConditionCell(chosen);
    for (const int cell : {DelayCell(chosen), light, light + 1, light + 2, light + 3, light + 4}) {
      lines[static_cast<std::size_t>(cell) + 1] = std::to_string(setCells.at(cell)) + "\r\n";
    }
    lines[static_cast<std::size_t>(EndCell(chosen)) + 3] = "02\r\n";
    return lines;
  }
};

TEST_P(SetDetector, IsInTheModuleAndInTheFile) {
  ConnectAndOpen();
  AwaitListText(Chooser(), texts().noneChosen);
  PickDetector(chosen);
  AwaitChecked("check box", texts().outOfService, false);
  ClickOn("check box", texts().outOfService);
  SetConditions();
  ComposeTriggerByMouse();
  ComposeEndByKeyboard();
  ExpectSet();
  // An action is told in words for five seconds.
  const std::string sentence = std::string(texts().context) + " 07";
  desktop().Click(AwaitAction(Edge::End, "S0702"));
  AwaitText(sentence);
  AwaitGone("label", sentence);
  LeaveByButton(texts().title);
  SendAndExpect(demoFile, setCells);
  ExpectFrames(LinesOf(ContentOf(savedImage())));

  const std::filesystem::path file = SaveAs("Huis");
  EXPECT_EQ(LinesOf(ContentOf(file)), LinesOfFirstFile());
  CloseTool();

  StartTool();
  OpenFile("Huis.BK1");
  OpenScreen();
  PickDetector(chosen);
  ExpectSet();
  LeaveByButton(texts().title, TitleOf(file));
  EXPECT_EQ(LinesOf(ContentOf(SaveAs("Nog"))),
            WithCells(LinesOf(ContentOf(DemoFile(demoFile))), setCells));
  CloseTool();
}

TEST_P(Detectors, OfTheHouseAreShown) {
  ConnectAndOpen();
  for (int detector = 0; detector < detectorCount; ++detector) {
    PickDetector(detector);
    const bool serves = DemoCell(ServiceCell(detector)) == 1;
    AwaitChecked("check box", serves ? texts().inService : texts().outOfService, serves);
    AwaitAction(Edge::Trigger, CodeAt(TriggerCell(detector)));
    AwaitAction(Edge::End, CodeAt(EndCell(detector)));
    const int delay = DemoCell(DelayCell(detector));
    AwaitChecked("check box", texts().atOnce, delay == 0);
    if (delay > 0) AwaitListText(Delay(), std::to_string(delay));
  }
  LeaveScreen(texts().title);
  CloseTool();
}

TEST_P(Detectors, WhatOneDoesIsTakenAwayAgain) {
  constexpr int detector = 0;
  ConnectAndOpen();
  PickDetector(detector);
  ClickOn("check box", texts().inService);
  AwaitChecked("check box", texts().outOfService, false);
  ClickOn("check box", texts().noCondition);
  AwaitGone("panel", texts().light);
  AwaitGone("panel", texts().time);
  ClickOn("check box", texts().atOnce);
  AwaitListText(Delay(), "");
  OpenEditorByMouse(Edge::End, CodeAt(EndCell(detector)));
  ClickOn("check box", texts().noAction);
  AwaitListText(Editor("Module:"), "");
  EXPECT_FALSE(desktop().FindList(Editor("Module:"))->enabled);
  ClickOn("push button", captions().confirm);
  AwaitEditorClosed();
  AwaitAction(Edge::End, "***");
  AwaitAction(Edge::Trigger, CodeAt(TriggerCell(detector)));
  LeaveByButton(texts().title);
  SendAndExpect(demoFile, {{DelayCell(detector), 0},
                           {ServiceCell(detector), 0},
                           {EndCell(detector), emptyCell},
                           {EndCell(detector) + 1, emptyCell},
                           {EndCell(detector) + 2, emptyCell},
                           {ConditionCell(detector), 60},
                           {JoiningCell(detector), 1}});
  CloseTool();
}

std::string NameOf(const ::testing::TestParamInfo<AlarmCaptions>& each) {
  return each.param.captions->languageName;
}

INSTANTIATE_TEST_SUITE_P(In, Detectors, ::testing::Values(dutchAlarm, frenchAlarm), NameOf);
INSTANTIATE_TEST_SUITE_P(In, SetDetector, ::testing::Values(dutchAlarm, frenchAlarm), NameOf);

}  // namespace
}  // namespace end_to_end
