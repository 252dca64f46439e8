// The view of a calendar: the days of a month, Monday first, with names in the language of the
// session. A click on a day picks it, and so does Enter; arrow keys and Page Up and Down go from
// day to day and from month to month. Made by MakeView.
#pragma once

#include <QCalendarWidget>
#include <QTableView>

#include "shell/qt/field_view.h"

namespace bkconf {

class CalendarView : public WidgetView {
 public:
  CalendarView(CalendarField& field, QWidget* parent);

 protected:
  void Push() override;

 private:
  void Pick(const QDate& day);
  void PushLanguage();

  CalendarField& field_;
  QCalendarWidget* calendar_;
  QTableView* days_;
  bool wasVisible_ = false;
};

}  // namespace bkconf
