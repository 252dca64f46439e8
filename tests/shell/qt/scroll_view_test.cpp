// A handle between two ends in a window: as a slider or as a bar with arrows, by mouse and by
// keyboard.
#include <QAccessible>
#include <QLabel>
#include <QScrollBar>
#include <QSlider>
#include <QTest>
#include <QWheelEvent>

#include "shell/qt/event_guard.h"
#include "shell/qt/screen_window.h"
#include "stand_ins.h"

using namespace bkconf;

namespace {

struct SampleScreen : Screen {
  SampleScreen() : Screen("Sample") {
    label.caption = "Morning:";
    value.caption = "06:30";
    level.highest = 4;
    time.lowest = -3000;
    time.highest = 3000;
    time.step = 5;
    time.Show(390);
    for (ScrollField* field : {&level, &time}) field->onMove = [this] { ++moves; };
  }

  LabelField label{*this, "label"};
  LabelField value{*this, "value"};
  ScrollField level{*this, "level"};
  ScrollField time{*this, "time"};

  int moves = 0;
};

Part SampleLayout() {
  return Column({Row({Item("label"), Item("value"), Labelled("label value", "time")}),
                 Labelled("label", "level")});
}

}  // namespace

class ScrollViewTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void init() {
    screen_ = std::make_unique<SampleScreen>();
    window_ = std::make_unique<ScreenWindow>(*screen_, SampleLayout);
    screen_->shown = true;
    window_->Refresh();
    QVERIFY(QTest::qWaitForWindowActive(window_.get()));
  }
  void cleanup() { window_.reset(); }

  void FewPlacesMakeASliderWithAMarkForEach() {
    const auto* slider = Find<QSlider>("level");
    QCOMPARE(slider->tickPosition(), QSlider::TicksBelow);
    QCOMPARE(slider->minimum(), 0);
    QCOMPARE(slider->maximum(), 4);
    QCOMPARE(slider->pageStep(), 1);
  }

  void ManyPlacesMakeABarThatTheWindowSeesWhole() {
    const QScrollBar* bar = Bar();
    QCOMPARE(bar->minimum(), -3000);
    QCOMPARE(bar->maximum(), 3000);
    QCOMPARE(bar->value(), 390);
    QVERIFY(bar->width() >= 120 && bar->height() >= 24);
  }

  void AnArrowOfTheBarGoesOneStep() {
    ClickAt(Bar()->width() - 6);
    QCOMPARE(screen_->time.Value(), 395);
    ClickAt(6);
    ClickAt(6);
    QCOMPARE(screen_->time.Value(), 385);
    QCOMPARE(screen_->moves, 3);
  }

  void ATouchBesideTheHandleGoesSixSteps() {
    ClickAt(Bar()->width() - 26);
    QCOMPARE(screen_->time.Value(), 420);
    ClickAt(26);
    QCOMPARE(screen_->time.Value(), 390);
  }

  void TheKeyboardMovesBoth() {
    Bar()->setFocus();
    QTest::keyClick(Bar(), Qt::Key_Right);
    QCOMPARE(screen_->time.Value(), 395);
    QTest::keyClick(Bar(), Qt::Key_PageUp);
    QCOMPARE(screen_->time.Value(), 425);
    QTest::keyClick(Bar(), Qt::Key_Left);
    QCOMPARE(screen_->time.Value(), 420);
    auto* slider = Find<QSlider>("level");
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_Right);
    QTest::keyClick(slider, Qt::Key_PageUp);
    QCOMPARE(screen_->level.Value(), 2);
    QTest::keyClick(slider, Qt::Key_End);
    QCOMPARE(screen_->level.Value(), 4);
    QCOMPARE(screen_->moves, 6);
  }

  void TheTabulatorReachesBothAndTheBarShowsIt() {
    QCOMPARE(window_->focusWidget(), Bar());
    const QImage focused = Bar()->grab().toImage();
    QTest::keyClick(window_.get(), Qt::Key_Tab);
    QCOMPARE(window_->focusWidget(), Find<QSlider>("level"));
    QVERIFY(Bar()->grab().toImage() != focused);
  }

  void ADraggedHandleStopsAtWholeSteps() {
    screen_->time.Show(3);
    window_->Refresh();
    const QPoint handle = Bar()->rect().center();
    QTest::mousePress(Bar(), Qt::LeftButton, {}, handle);
    for (int step = 1; step <= 12; ++step) {
      QTest::mouseMove(Bar(), handle + QPoint(step, 0));
      QCOMPARE(screen_->time.Value() % 5, 0);
      QCOMPARE(Bar()->value(), screen_->time.Value());
    }
    QVERIFY(screen_->time.Value() > 100);
    QTest::mouseRelease(Bar(), Qt::LeftButton, {}, handle + QPoint(12, 0));
    QCOMPARE(screen_->time.Value() % 5, 0);
  }

  void AStepFromAPlaceBetweenStaysBetween() {
    screen_->time.Show(393);
    window_->Refresh();
    QTest::keyClick(Bar(), Qt::Key_Right);
    QCOMPARE(screen_->time.Value(), 398);
  }

  void WhatTheLogicShowsRunsNoHandler() {
    screen_->time.Show(700);
    screen_->level.Show(3);
    window_->Refresh();
    QCOMPARE(Bar()->value(), 700);
    QCOMPARE(Find<QSlider>("level")->value(), 3);
    QCOMPARE(screen_->moves, 0);
  }

  void AMoveThatSpringsBackIsShownSo() {
    screen_->time.onMove = [this] { screen_->time.Show(360); };
    QTest::keyClick(Bar(), Qt::Key_Right);
    QCOMPARE(Bar()->value(), 360);
    QTest::keyClick(Bar(), Qt::Key_Home);
    QCOMPARE(Bar()->value(), 360);
  }

  void TheWheelMovesNothing() {
    for (QAbstractSlider* each : window_->findChildren<QAbstractSlider*>()) {
      const int before = each->value();
      const QPointF place = each->rect().center();
      QWheelEvent wheel(place, each->mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                        Qt::NoModifier, Qt::NoScrollPhase, false);
      QApplication::sendEvent(each, &wheel);
      QCOMPARE(each->value(), before);
    }
    QCOMPARE(screen_->moves, 0);
  }

  void ADisabledOneCannotBeMoved() {
    screen_->time.enabled = false;
    window_->Refresh();
    QVERIFY(!Bar()->isEnabled());
    ClickAt(Bar()->width() - 6);
    QCOMPARE(screen_->time.Value(), 390);
  }

  void ItIsNamedByItsLabelsOneAfterTheOther() {
    QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(Bar());
    QCOMPARE(bar->text(QAccessible::Name), QStringLiteral("Morning: 06:30"));
    QCOMPARE(bar->valueInterface()->currentValue().toInt(), 390);
    QCOMPARE(Find<QSlider>("level")->accessibleName(), QStringLiteral("Morning:"));
    screen_->value.caption = "06:35";
    window_->Refresh();
    QCOMPARE(Bar()->accessibleName(), QStringLiteral("Morning: 06:35"));
    QCOMPARE(Find<QLabel>("label")->buddy(), Bar());
  }

 private:
  QScrollBar* Bar() const { return Find<QScrollBar>("time"); }
  void ClickAt(int x) const {
    QTest::mouseClick(Bar(), Qt::LeftButton, {}, {x, Bar()->height() / 2});
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

QTEST_MAIN(ScrollViewTest)
#include "scroll_view_test.moc"
