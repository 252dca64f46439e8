// A calendar in a window: picking a day by mouse and by keyboard, and what it shows.
#include <QAbstractItemModel>
#include <QAccessible>
#include <QCalendarWidget>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QToolButton>

#include "session/language.h"
#include "shell/qt/event_guard.h"
#include "shell/qt/screen_window.h"
#include "stand_ins.h"

using namespace bkconf;

namespace {

constexpr Date FirstDay{2024, 2, 29};  // a Thursday

struct SampleScreen : Screen {
  SampleScreen() : Screen("Sample") {
    label.caption = "Day";
    calendar.Show(FirstDay);
    calendar.onPick = [this] { picked.push_back(calendar.Day()); };
    open.onClick = [this] {
      calendar.visible = true;
      calendar.Show(FirstDay);
    };
    enter = &confirm;
    confirm.onClick = [this] { ++confirms; };
  }

  LabelField label{*this, "label"};
  ButtonField open{*this, "open"};
  CalendarField calendar{*this, "calendar"};
  ButtonField confirm{*this, "confirm"};

  std::vector<Date> picked;
  int confirms = 0;
};

Part SampleLayout() {
  return Column({Row({Item("label"), Item("open")}), Kept(Entered(Labelled("label", "calendar"))),
                 Item("confirm")});
}

}  // namespace

class CalendarViewTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void init() {
    Language = Dutch;
    screen_ = std::make_unique<SampleScreen>();
    window_ = std::make_unique<ScreenWindow>(*screen_, SampleLayout);
    screen_->shown = true;
    window_->Refresh();
    QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    Open();
  }
  void cleanup() { window_.reset(); }

  void ItShowsTheDayAndItsMonthMondayFirst() {
    QCOMPARE(Calendar()->selectedDate(), QDate(2024, 2, 29));
    QCOMPARE(Calendar()->monthShown(), 2);
    QCOMPARE(Calendar()->firstDayOfWeek(), Qt::Monday);
    QCOMPARE(TextAt(0, 0), QStringLiteral("ma"));
    QCOMPARE(TextAt(0, 6), QStringLiteral("zo"));
  }

  void TheNamesAreInTheLanguageOfTheSession() {
    QCOMPARE(MonthName(), QStringLiteral("februari"));
    Language = French;
    window_->Refresh();
    QCOMPARE(MonthName(), QStringLiteral("février"));
    QVERIFY(TextAt(0, 0).startsWith(QStringLiteral("lun")));
    QCOMPARE(Calendar()->firstDayOfWeek(), Qt::Monday);
  }

  void AClickOnADayPicksIt() {
    Click(QStringLiteral("14"));
    QCOMPARE(screen_->picked, std::vector<Date>({{2024, 2, 14}}));
    QCOMPARE(screen_->confirms, 0);
  }

  void ADoubleClickPicksOnce() {
    Click(QStringLiteral("14"));
    QTest::mouseDClick(Days()->viewport(), Qt::LeftButton, {}, PlaceOf(QStringLiteral("14")));
    QCOMPARE(screen_->picked, std::vector<Date>({{2024, 2, 14}}));
  }

  void EnterPicksTheDayOfTheCursorAndPressesNoButton() {
    QTest::keyClick(Days(), Qt::Key_Left);
    QTest::keyClick(Days(), Qt::Key_Up);
    QVERIFY(screen_->picked.empty());
    QTest::keyClick(Days(), Qt::Key_Return);
    QCOMPARE(screen_->picked, std::vector<Date>({{2024, 2, 21}}));
    QTest::keyClick(Days(), Qt::Key_Right);
    QTest::keyClick(Days(), Qt::Key_Enter);
    QCOMPARE(screen_->picked.back(), (Date{2024, 2, 22}));
    QCOMPARE(screen_->confirms, 0);
  }

  void EnterThatIsHeldDownPicksOnce() {
    QTest::keyPress(Days(), Qt::Key_Return);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, QString(), true);
    QCoreApplication::sendEvent(Days(), &held);
    QCOMPARE(screen_->picked.size(), std::size_t{1});
  }

  void TheKeyboardGoesFromMonthToMonth() {
    QTest::keyClick(Days(), Qt::Key_PageDown);
    QCOMPARE(Calendar()->monthShown(), 3);
    QTest::keyClick(Days(), Qt::Key_Return);
    QCOMPARE(screen_->picked, std::vector<Date>({{2024, 3, 29}}));
    QTest::keyClick(Days(), Qt::Key_PageUp);
    QCOMPARE(Calendar()->monthShown(), 2);
  }

  void ADigitOpensNoEditor() {
    QTest::keyClick(Days(), Qt::Key_1);
    QVERIFY(Days()->hasFocus());
    QCOMPARE(Calendar()->selectedDate(), QDate(2024, 2, 29));
  }

  void ARefreshLeavesTheCursorAndTheMonthWhereTheUserPutThem() {
    QTest::keyClick(Days(), Qt::Key_PageDown);
    QTest::keyClick(Days(), Qt::Key_Left);
    RunEvent([] {});
    QCOMPARE(Calendar()->selectedDate(), QDate(2024, 3, 28));
    Calendar()->showNextMonth();
    RunEvent([] {});
    QCOMPARE(Calendar()->monthShown(), 4);
    QVERIFY(screen_->picked.empty());
  }

  void ADayThatTheLogicShowsIsSelectedWithoutAPick() {
    RunEvent([this] { screen_->calendar.Show({2023, 12, 31}); });
    QCOMPARE(Calendar()->selectedDate(), QDate(2023, 12, 31));
    QCOMPARE(Calendar()->yearShown(), 2023);
    QCOMPARE(Calendar()->monthShown(), 12);
    QVERIFY(screen_->picked.empty());
  }

  void ItComesBackAtTheMonthOfItsDay() {
    Calendar()->showNextMonth();
    Calendar()->showNextMonth();
    RunEvent([this] { screen_->calendar.visible = false; });
    Open();
    QCOMPARE(Calendar()->monthShown(), 2);
    QCOMPARE(Calendar()->selectedDate(), QDate(2024, 2, 29));
  }

  void ItGetsTheKeyboardWhenItAppearsAndGivesItBack() {
    QVERIFY(Days()->hasFocus());
    RunEvent([this] { screen_->calendar.visible = false; });
    QCOMPARE(window_->focusWidget(), Find<QPushButton>("open"));
  }

  void TheTabulatorGoesThroughItInOneStep() {
    QTest::keyClick(Days(), Qt::Key_Tab);
    QCOMPARE(window_->focusWidget(), Find<QPushButton>("confirm"));
    QTest::keyClick(window_.get(), Qt::Key_Backtab);
    QCOMPARE(window_->focusWidget(), Days());
    QTest::keyClick(window_.get(), Qt::Key_Backtab);
    QCOMPARE(window_->focusWidget(), Find<QPushButton>("open"));
  }

  void AnEventThatHidesItOnAPickRunsOnce() {
    screen_->calendar.onPick = [this] {
      screen_->picked.push_back(screen_->calendar.Day());
      screen_->calendar.visible = false;
    };
    Click(QStringLiteral("5"));
    QVERIFY(!Calendar()->isVisible());
    QCOMPARE(screen_->picked, std::vector<Date>({{2024, 2, 5}}));
  }

  void ADisabledCalendarTakesNothing() {
    screen_->calendar.enabled = false;
    window_->Refresh();
    Click(QStringLiteral("14"));
    QVERIFY(screen_->picked.empty());
  }

  void AScreenReaderIsToldWhatItIs() {
    QCOMPARE(Calendar()->objectName(), QStringLiteral("calendar"));
    QCOMPARE(Calendar()->accessibleName(), QStringLiteral("Day"));
    const QAccessibleInterface* days = QAccessible::queryAccessibleInterface(Days());
    QCOMPARE(days->text(QAccessible::Name), QStringLiteral("Day"));
  }

 private:
  void Open() {
    auto* open = Find<QPushButton>("open");
    open->setFocus();
    QTest::keyClick(open, Qt::Key_Space);
    QVERIFY(Calendar()->isVisible());
  }
  QCalendarWidget* Calendar() const { return Find<QCalendarWidget>("calendar"); }
  QTableView* Days() const { return Calendar()->findChild<QTableView*>(); }
  QString TextAt(int row, int column) const {
    return Days()->model()->index(row, column + FirstColumn()).data().toString();
  }
  /// The column of the numbers of the weeks is there, but hidden.
  int FirstColumn() const { return Days()->model()->columnCount() - 7; }
  QString MonthName() const {
    return Calendar()->findChild<QToolButton*>(QStringLiteral("qt_calendar_monthbutton"))->text();
  }
  /// A day of the month that is shown; days of the month before come first, those after it last.
  QPoint PlaceOf(const QString& day) const {
    const QAbstractItemModel& days = *Days()->model();
    bool inMonth = false;
    for (int row = 1; row < days.rowCount(); ++row) {
      for (int column = FirstColumn(); column < days.columnCount(); ++column) {
        const QModelIndex index = days.index(row, column);
        inMonth = inMonth || index.data().toInt() == 1;
        if (inMonth && index.data().toString() == day) return Days()->visualRect(index).center();
      }
    }
    qFatal("The month has no day %s", qPrintable(day));
  }
  void Click(const QString& day) const {
    QTest::mouseClick(Days()->viewport(), Qt::LeftButton, {}, PlaceOf(day));
  }
  template <typename Widget>
  Widget* Find(const char* name) const {
    auto* found = window_->findChild<Widget*>(QString::fromLatin1(name));
    if (found == nullptr) qFatal("There is no widget %s", name);
    return found;
  }

  StandIns standIns_;
  std::unique_ptr<SampleScreen> screen_;
  std::unique_ptr<ScreenWindow> window_;
};

QTEST_MAIN(CalendarViewTest)
#include "calendar_view_test.moc"
