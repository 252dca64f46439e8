// The screen of the short names of the weekdays that a display module shows.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/field.h"

namespace bkconf {

struct WeekdayFields {
  WeekdayFields(Screen& screen, const std::string& name);

  LabelField label;
  TextField text;  ///< three characters are kept
};

struct WeekdayTextScreenFields : Screen {
  WeekdayTextScreenFields();

  std::vector<std::unique_ptr<WeekdayFields>> days;
  LabelField status;
  ProgressField bar;
  ButtonField leave;
};

inline WeekdayTextScreenFields WeekdayTextScreen;

/// Captions and handlers, once at start-up.
void LoadWeekdayTextScreen();
/// Opens the screen. Names that are not in memory yet are read behind it, and nothing can be used
/// until the last cell has come.
void OpenWeekdayTexts();

}  // namespace bkconf
