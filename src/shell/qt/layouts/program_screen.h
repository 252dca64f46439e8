// What the screens of the time and light programmes look like: the list with the sentence of the
// selected action on the left, editor and question on the right in the same place. Their layouts
// use it.
#pragma once

#include "shell/qt/layout.h"
#include "shell/qt/layouts/action_picker.h"

namespace bkconf {

/// What the selected action does, in words: always in sight.
inline Part DescriptionPart() {
  return Frame("descriptionGroup", Column({Item("description", Look::Sentence)}));
}

/// Two panels of which one at most is open, in the same place. The room of the editor is kept.
inline Part PanelsPart(const Part& editor, const Part& question) {
  return Pile({Kept(Entered(Wide(PickerEditorCharacters, editor))), Entered(question)});
}

/// The picker, and below it the moment of a programme.
inline Part ProgramEditorPart(const Part& picker, const Part& moment) {
  return Frame("editGroup",
               Column({picker, moment, Space(),
                       Row({Space(), Item("editConfirm", Look::Primary), Item("editLeave")})}));
}

inline Part ProgramScreenPart(const Part& editor) {
  const Part list =
      Column({Tight({Row({Item("listLabel"), Space(), Item("memoryLabel"), Item("memory")}),
                     Wide(68, Labelled("listLabel", "programs"))}),
              DescriptionPart()});
  const Part question =
      Frame("deleteGroup",
            Column({Item("deleteQuestion"), Row({Space(), Item("deleteYes"), Item("deleteNo")})}));
  return Column(
      {Row({Share(1, list), PanelsPart(editor, question)}), Rule(), Row({Space(), Item("leave")})});
}

}  // namespace bkconf
