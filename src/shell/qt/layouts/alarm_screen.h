// The look of the screen of the detectors: what one of them does and under which conditions on the
// left, the editor of an action on the right. The table of screens names it.
#pragma once

#include <string>

#include "shell/qt/layout.h"
#include "shell/qt/layouts/action_picker.h"

namespace bkconf {

/// Hours of the day, with the box for none of them.
inline Part PeriodPart(const std::string& name) {
  return Row({Wide(10, Item(name + "Label")), Item(name + "None", Look::Tall),
              Inside(name + "FromLabel", name + "From"), Inside(name + "ToLabel", name + "To"),
              Space()});
}

/// Light and time, with their joining between them. What is not asked for keeps its room.
inline Part ConditionsPart() {
  const Part light = Frame(
      "lightGroup", Column({Tight({Item("noLight", Look::Tall),
                                   Row({Item("levelLabel"), Labelled("levelLabel", "level")})}),
                            Space()}));
  const Part joining = Column({Space(), Item("both"), Item("either"), Space()});
  const Part time = Frame("timeGroup", Tight({PeriodPart("period1"), PeriodPart("period2")}));
  return Tight({Item("noCondition", Look::Tall), Kept(Row({light, joining, Share(1, time)}))});
}

inline Part AlarmScreenLayout() {
  constexpr int captionCharacters = 50;
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
