// The look of the screen of the push-buttons: the list on the left, what composes the two functions
// of a button on the right, what concerns all buttons below. Or only the press time of the second
// function. The table of screens names it.
#pragma once

#include "shell/qt/layout.h"
#include "shell/qt/layouts/action_picker.h"

namespace bkconf {

inline Part ButtonFunctionsPart() {
  const Part list = Column({Below("listLabel", "buttons"),
                            Tight({Item("listHint"), Item("description", Look::Sentence)})});
  const Part functions =
      Column({Row({Item("chooserLabel"), Labelled("chooserLabel", "chooser"), Space()}),
              Frame("firstGroup", PickerPart("first")),
              Frame("secondGroup", PickerPart("second", {Item("noSecond")})), Space()});
  const Part question =
      Row({Wide(30, Item("baseQuestion", Look::Wrapped)), Item("baseYes"), Item("baseNo")});
  const Part all = Row({Tight({Item("clearFirst"), Item("clearSecond"), Item("base")}),
                        Column({Kept(Frame("baseGroup", question)), Space()}), Space(),
                        Column({Item("store", Look::Primary), Space()})});
  return Column({Row({list, Share(1, functions)}), all});
}

inline Part PressTimePart() {
  return Column({Row({Item("timeLabel"), Labelled("timeLabel", "time"), Item("seconds"), Space()}),
                 Wide(64, Item("timeHelp", Look::Wrapped))});
}

inline Part ButtonScreenLayout() {
  return Column({Hidable("functionsGroup", ButtonFunctionsPart()),
                 Hidable("timeGroup", PressTimePart()), Rule(), Row({Space(), Item("leave")})});
}

}  // namespace bkconf
