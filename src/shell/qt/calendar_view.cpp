#include "shell/qt/calendar_view.h"

#include <QKeyEvent>
#include <QLocale>
#include <QTextCharFormat>
#include <QToolButton>
#include <functional>
#include <utility>

#include "session/language.h"
#include "shell/qt/event_guard.h"

namespace bkconf {
namespace {

QDate ToQt(const Date& day) {
  return {static_cast<int>(day.year), static_cast<int>(day.month), static_cast<int>(day.day)};
}

Date FromQt(const QDate& day) {
  return {static_cast<unsigned>(day.year()), static_cast<unsigned>(day.month()),
          static_cast<unsigned>(day.day())};
}

/// Enter on the days. The calendar's own signal for it comes from a double click as well, of which
/// the first click has picked the day already.
class EnterFilter : public QObject {
 public:
  EnterFilter(QObject* watched, std::function<void()> enter)
      : QObject(watched), enter_(std::move(enter)) {
    watched->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return QObject::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_Return && key->key() != Qt::Key_Enter) return false;
    if (!key->isAutoRepeat()) enter_();
    return true;
  }

 private:
  std::function<void()> enter_;
};

/// Plain arrows to leaf with, in place of green pictures. The keyboard leafs from within the days.
void ShowArrows(const QCalendarWidget& calendar) {
  for (QToolButton* button : calendar.findChildren<QToolButton*>()) {
    button->setFocusPolicy(Qt::NoFocus);
    const bool back = button->objectName() == QStringLiteral("qt_calendar_prevmonth");
    const bool forth = button->objectName() == QStringLiteral("qt_calendar_nextmonth");
    if (!back && !forth) continue;
    QPalette palette = calendar.palette();
    palette.setColor(QPalette::WindowText, palette.color(QPalette::HighlightedText));
    palette.setColor(QPalette::Button, palette.color(QPalette::Highlight));
    button->setPalette(palette);
    button->setArrowType(back ? Qt::LeftArrow : Qt::RightArrow);
  }
}

}  // namespace

CalendarView::CalendarView(CalendarField& field, QWidget* parent)
    : WidgetView(field, new QCalendarWidget(parent)),
      field_(field),
      calendar_(static_cast<QCalendarWidget*>(Widget())),
      days_(calendar_->findChild<QTableView*>()) {
  calendar_->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  calendar_->setFirstDayOfWeek(Qt::Monday);
  // Digits would open an editor of Qt's own over the days.
  calendar_->setDateEditEnabled(false);
  // Nothing happens on days off that does not on others.
  for (const auto day : {Qt::Saturday, Qt::Sunday}) {
    calendar_->setWeekdayTextFormat(day, QTextCharFormat());
  }
  ShowArrows(*calendar_);
  QObject::connect(calendar_, &QCalendarWidget::clicked, calendar_,
                   [this](const QDate& day) { Pick(day); });
  // The day of the cursor is the field's, so that a refresh leaves it where it is.
  QObject::connect(calendar_, &QCalendarWidget::selectionChanged, calendar_,
                   [this] { field_.Show(FromQt(calendar_->selectedDate())); });
  new EnterFilter(days_, [this] { Pick(calendar_->selectedDate()); });
}

void CalendarView::Pick(const QDate& day) {
  RunEvent([this, day] { field_.Pick(FromQt(day)); });
}

void CalendarView::PushLanguage() {
  const QLocale locale(Language.Number() == French ? QLocale::French : QLocale::Dutch,
                       QLocale::Belgium);
  if (calendar_->locale() == locale) return;
  calendar_->setLocale(locale);
  // A locale sets its own.
  calendar_->setFirstDayOfWeek(Qt::Monday);
}

void CalendarView::Push() {
  PushLanguage();
  const bool appears = field_.visible && !wasVisible_;
  wasVisible_ = field_.visible;
  const QDate day = ToQt(field_.Day());
  if (day.isValid() && (appears || calendar_->selectedDate() != day)) {
    calendar_->setSelectedDate(day);
    calendar_->setCurrentPage(day.year(), day.month());
  }
  // It is the days that have the focus.
  if (days_->accessibleName() != SpokenName()) days_->setAccessibleName(SpokenName());
}

}  // namespace bkconf
