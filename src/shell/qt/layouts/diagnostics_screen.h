// The look of the screen of the live tests: the choice of a test on the left, the panel of the
// chosen one on the right, and at the bottom how far a test has come. The table of screens names
// it.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "diagnostics/diagnostics_screen.h"
#include "shell/qt/layout.h"
#include "shell/qt/layouts/status_row.h"

namespace bkconf {

/// The text of a panel takes as many lines as it needs at this width.
inline constexpr int PanelCharacters = 76;
/// Choices and panels keep their width, whichever of them a module has.
inline constexpr int ChoiceCharacters = 34;
inline constexpr int PanelFrameCharacters = PanelCharacters + 6;

/// What starts and stops a test, and what it tells in words, below each other in every panel.
inline Part TestPart(const std::string& name, Part results, std::vector<Part> beside = {}) {
  std::vector<Part> buttons = {Item(name + "Start", Look::Primary), Item(name + "Stop"), Space()};
  for (Part& part : beside) buttons.push_back(std::move(part));
  return Wide(
      PanelFrameCharacters,
      Frame(name + "Group", Column({Wide(PanelCharacters, Item(name + "Help", Look::Wrapped)),
                                    Row(std::move(buttons)), std::move(results)})));
}

inline Part Value(int characters, std::string_view field) {
  return Wide(characters, Item(field, Look::Tall));
}

inline Part DetectorTablePart() {
  std::vector<Part> rows = {Row({Wide(5, Item("numberColumn", Look::Heading)),
                                 Wide(14, Item("contactColumn", Look::Heading)),
                                 Wide(12, Item("measuredColumn", Look::Heading)),
                                 Wide(10, Item("logicColumn", Look::Heading)),
                                 Wide(12, Item("levelColumn", Look::Heading))})};
  for (int detector = 1; detector <= MostDetectors; ++detector) {
    const std::string name = "detector" + std::to_string(detector);
    Part logic = Labelled("logicColumn", name + "Logic");
    Part level = Labelled("levelColumn", name + "Level");
    logic.look = level.look = Look::Low;
    rows.push_back(
        Row({Item(name), Item(name + "Contact"), Item(name + "Measured"), logic, level}));
  }
  return Columns(std::move(rows));
}

inline Part ClockFieldsPart(const std::string& name) {
  std::vector<Part> lines;
  for (const char* field : {"Hour", "Date", "Weekday"}) {
    Part line = Line(name + field + "Label", name + field);
    line.characters = 16;
    line.look = Look::Tall;
    lines.push_back(std::move(line));
  }
  return Frame(name + "Group", Form(std::move(lines)));
}

inline Part ClockPart() {
  return Wide(
      PanelFrameCharacters,
      Frame("clockGroup", Column({Row({Item("ask", Look::Primary), Item("synchronise"), Space()}),
                                  Row({Share(1, ClockFieldsPart("masterClock")),
                                       Share(1, ClockFieldsPart("pcClock"))})})));
}

inline Part DiagnosticsScreenLayout() {
  constexpr int outputsInRow = 4;
  std::vector<Part> outputs;
  for (const auto& output : DiagnosticsScreen.outputs.outputs)
    outputs.push_back(Item(output->name));
  std::vector<Part> choices;
  for (const auto& choice : DiagnosticsScreen.choices) choices.push_back(Item(choice->name));
  const Part left = Column({Item("heading", Look::Heading),
                            Wide(ChoiceCharacters, Frame("choiceGroup", Tight(std::move(choices)))),
                            Wide(ChoiceCharacters, Item("notice", Look::Wrapped)), Space()});
  Part history = Labelled("historyLabel", "history");
  history.look = Look::Newest;
  const Part panels =
      Pile({TestPart("line", Row({Item("lineLevelLabel"), Value(12, "lineLevel"), Space()})),
            TestPart("buttons", Column({Row({Item("pressedLabel"), Value(12, "pressed"), Space()}),
                                        Tight({Item("historyLabel"), history})})),
            Kept(TestPart("detectors", DetectorTablePart(), {Item("update")})),
            TestPart("light", Row({Value(12, "lightLevel"), Space()})), ClockPart(),
            TestPart("outputs", Tiles(outputsInRow, std::move(outputs)))});
  return Column({Row({left, Share(1, panels)}), Rule(), StatusRow()});
}

}  // namespace bkconf
