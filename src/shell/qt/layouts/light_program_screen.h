// The look of the screen of the light programmes: below the target of an action the direction in
// which the light changes, and the level. The table of screens names it.
#pragma once

#include "shell/qt/layouts/program_screen.h"

namespace bkconf {

inline Part LightProgramScreenLayout() {
  const Part directions = Tight({Item("lightToDark"), Item("darkToLight")});
  const Part level = Frame(
      "levelGroup",
      Tight({Kept(Item("levelLabel")), Kept(Row({Item("darkEnd"), Labelled("levelLabel", "level"),
                                                 Item("lightEnd"), Space()}))}));
  return ProgramScreenPart(
      ProgramEditorPart(HeadedPickerPart("picker", false), Kept(Column({directions, level}))));
}

}  // namespace bkconf
