// The look of the screen of the contexts: the actions of one of them on the left, to be read line
// by line, editor and question on the right in the same place. The table of screens names it.
#pragma once

#include "shell/qt/layouts/program_screen.h"

namespace bkconf {

inline Part ContextScreenLayout() {
  const Part list =
      Column({Tight({Row({Item("chooserLabel"), Wide(20, Labelled("chooserLabel", "chooser")),
                          Space(), Item("memoryLabel"), Item("memory")}),
                     Wide(60, Labelled("chooserLabel", "actions")), Item("hint")}),
              DescriptionPart()});
  const Part editor = Frame(
      "editGroup", Column({HeadedPickerPart("picker"),
                           Row({Space(), Item("editConfirm", Look::Primary), Item("editLeave")})}));
  const Part question =
      Frame("deleteGroup",
            Column({Tight({Item("deleteAction"), Item("deleteContext")}),
                    Row({Space(), Item("deleteConfirm", Look::Primary), Item("deleteCancel")})}));
  return Column(
      {Row({Share(1, list), PanelsPart(editor, question)}), Rule(), Row({Space(), Item("leave")})});
}

}  // namespace bkconf
