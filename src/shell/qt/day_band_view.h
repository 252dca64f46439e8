// The view of a day as a band of 24 hours: its parts in their colours above the hours. It is only
// looked at. Made by MakeView.
#pragma once

#include <vector>

#include "shell/qt/field_view.h"

namespace bkconf {

class DayBandView : public WidgetView {
 public:
  DayBandView(DayBandField& field, QWidget* parent);

 protected:
  void Push() override;

 private:
  DayBandField& field_;
};

}  // namespace bkconf
