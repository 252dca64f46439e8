// The look of the screen of the infrared module, from left to right: the remote control, the
// actions of the key that was pressed in it, and the editor of one of them. The table of screens
// names it.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "shell/qt/layout.h"
#include "shell/qt/layouts/action_picker.h"
#include "special/ir_screen.h"

namespace bkconf {

inline Part IrRowsPart() {
  constexpr int codeCharacters = 9;
  std::vector<Part> rows;
  for (int row = 1; row <= IrRows; ++row) {
    const std::string name = "row" + std::to_string(row);
    rows.push_back(
        Row({Item(name), Wide(codeCharacters, Item(name + "Code")), Item(name + "Erase")}));
  }
  return Frame("listGroup", Column({Columns(std::move(rows)), Space()}));
}

inline Part IrScreenLayout() {
  const Part editor = Frame("editGroup", Column({Row({Item("rowLabel"), Labelled("rowLabel", "row"),
                                                      Space(), Kept(Item("copy", Look::Tall))}),
                                                 PickerPart("picker"), Space(),
                                                 Row({Space(), Item("store", Look::Primary)})}));
  return Column({Item("instruction"),
                 Row({Share(1, Labelled("instruction", "remote")), Kept(Wide(40, IrRowsPart())),
                      Kept(Wide(PickerEditorCharacters, editor))}),
                 Rule(), Row({Space(), Item("leave")})});
}

}  // namespace bkconf
