// The look of the conditions of light and time. The layouts of the screens that have some use it.
#pragma once

#include <string>

#include "shell/qt/layout.h"

namespace bkconf {

/// Hours of the day, with the box for none of them.
inline Part PeriodPart(const std::string& name) {
  return Row({Wide(10, Item(name + "Label")), Item(name + "None", Look::Tall),
              Inside(name + "FromLabel", name + "From"), Inside(name + "ToLabel", name + "To"),
              Space()});
}

/// Light, and below it time, with their joining between them. What is not asked for keeps its room.
inline Part ConditionsPart() {
  const Part light = Frame("lightGroup", Row({Item("noLight", Look::Tall), Item("levelLabel"),
                                              Labelled("levelLabel", "level"), Space()}));
  const Part joining = Row({Item("both"), Item("either"), Space()});
  const Part time = Frame("timeGroup", Tight({PeriodPart("period1"), PeriodPart("period2")}));
  return Tight({Item("noCondition", Look::Tall), Kept(Tight({light, joining, time}))});
}

}  // namespace bkconf
