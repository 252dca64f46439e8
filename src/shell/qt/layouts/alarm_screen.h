// The look of the screen of the detectors: what one of them does and under which conditions on the
// left, the editor of an action on the right. The table of screens names it.
#pragma once

#include "shell/qt/layout.h"
#include "shell/qt/layouts/action_picker.h"
#include "shell/qt/layouts/conditions.h"

namespace bkconf {

inline Part AlarmScreenLayout() {
  constexpr int captionCharacters = 30;
  const Part actions =
      Row({Share(1, WrappedFrame(captionCharacters, "triggerGroup",
                                 Column({Labelled("triggerGroup", "triggerAction")}))),
           Share(1, WrappedFrame(captionCharacters, "endGroup",
                                 Column({Labelled("endGroup", "endAction")})))});
  const Part delay = Row({Item("atOnce", Look::Tall), Item("delayLabel"),
                          Labelled("delayLabel", "delay"), Item("delayUnit"), Space()});
  const Part settings =
      Frame("settingsGroup",
            Column({Tight({actions, Item("note", Look::Sentence)}), ConditionsPart(), delay}));
  const Part detector = Row({Item("listLabel"), Wide(18, Labelled("listLabel", "detector")),
                             Kept(Item("inService", Look::Tall)), Space()});
  const Part editor = Frame(
      "editGroup", Column({Item("noAction"), HeadedPickerPart("picker"),
                           Row({Space(), Item("editConfirm", Look::Primary), Item("editLeave")})}));
  return Column({Row({Share(1, Column({detector, settings})),
                      Pile({Kept(Entered(Wide(PickerEditorCharacters, editor)))})}),
                 Rule(), Row({Space(), Item("leave")})});
}

}  // namespace bkconf
