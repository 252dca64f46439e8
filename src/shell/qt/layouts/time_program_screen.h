// The look of the screen of the time programmes: below the target of an action its time and day,
// and the calendar below the day. The table of screens names it.
#pragma once

#include "shell/qt/layouts/program_screen.h"

namespace bkconf {

inline Part TimeProgramScreenLayout() {
  const Part day = Column({PickerList("day"), Entered(Labelled("dayLabel", "calendar"))});
  const Part moment = Row({Column({PickerList("time"), Space()}), day, Space()});
  return ProgramScreenPart(ProgramEditorPart(HeadedPickerPart("picker"), Kept(moment)));
}

}  // namespace bkconf
