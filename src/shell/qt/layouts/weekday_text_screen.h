// The look of the screen of the short names of the weekdays, as they stand on the display. The
// table of screens names it.
#pragma once

#include <string>

#include "shell/qt/layout.h"
#include "shell/qt/layouts/status_row.h"
#include "special/weekday_text_screen.h"

namespace bkconf {

inline Part WeekdayTextScreenLayout() {
  std::vector<Part> lines;
  for (const auto& day : WeekdayTextScreen.days) {
    Part line = Line(day->label.name, day->text.name);
    line.look = Look::Display;
    line.characters = 6;
    lines.push_back(std::move(line));
  }
  return Column({Form(std::move(lines)), Space(), Rule(), StatusRow()});
}

}  // namespace bkconf
