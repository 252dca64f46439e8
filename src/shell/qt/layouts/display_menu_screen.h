// The look of the screen of the menus of a display, from left to right: the list of its screens,
// the main screen from which they are reached, and the ten lines of the chosen one. What stands on
// the display is written as it stands there. The table of screens names it.
#pragma once

#include <string>

#include "shell/qt/layout.h"
#include "shell/qt/layouts/status_row.h"
#include "special/display_menu_screen.h"

namespace bkconf {

/// A text on the display. `characters` is what it has room for there; the field has a margin.
inline Part DisplayText(int characters, std::string_view label, std::string_view field) {
  Part part = Wide(characters + 2, Labelled(label, field));
  part.look = Look::Display;
  return part;
}

/// The two keys below a screen: each an arrow with its text.
inline Part KeysPart(const std::string& arrowA, const std::string& keyA, const std::string& arrowB,
                     const std::string& keyB) {
  constexpr int characters = 5;
  return Row({Item(arrowA, Look::Display), DisplayText(characters, arrowA, keyA),
              Item(arrowB, Look::Display), DisplayText(characters, arrowB, keyB), Space()});
}

/// The name of the chosen screen between the marks of what it is scrolled with.
inline Part MainScreenPart() {
  constexpr int nameCharacters = 12;
  const Part name =
      Tight({Item("scrollUp"), DisplayText(nameCharacters, "nameLabel", "name"), Item("scrollDown"),
             KeysPart("mainArrowA", "mainKeyA", "mainArrowB", "mainKeyB")});
  return Row({Column({Item("nameLabel", Look::Heading), name, Space()}),
              Column({Item("categoryLabel", Look::Heading),
                      Wide(26, Labelled("categoryLabel", "category")), Space()}),
              Space()});
}

inline Part MenuLinesPart() {
  constexpr int textCharacters = 10;
  std::vector<Part> rows = {Row({Space(), Space(), Item("moduleHead"), Item("outputHead")})};
  for (int line = 1; line <= MenuLines; ++line) {
    const std::string name = "line" + std::to_string(line);
    rows.push_back(Row({Item(name), DisplayText(textCharacters, name, name + "Text"),
                        Labelled("moduleHead " + name, name + "Module"),
                        Labelled("outputHead " + name, name + "Output"), Item(name + "Outputs")}));
  }
  return Column({Columns(std::move(rows)), KeysPart("arrowA", "keyA", "arrowB", "keyB")});
}

inline Part AutomationPart() {
  std::vector<Part> rows;
  for (const char* row : {"open", "close"}) {
    const std::string name(row);
    rows.push_back(Row({Item(name + "Label"), Labelled(name + "Label", name + "Module"),
                        Labelled(name + "Label", name + "Output")}));
  }
  return Frame("outputsGroup",
               Column({Columns(std::move(rows)),
                       Row({Space(), Item("ok", Look::Primary), Item("outputsLeave")})}));
}

inline Part DisplayMenuScreenLayout() {
  const Part main = Column({MainScreenPart(), Space(), Kept(Entered(AutomationPart()))});
  return Column({Row({Wide(16, Labelled("frame", "screens")),
                      Share(1, Frame("frame", Row({main, Share(1, MenuLinesPart())})))}),
                 Rule(), StatusRow()});
}

}  // namespace bkconf
