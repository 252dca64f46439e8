#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>

#include "platform/runtime_error.h"
#include "session/settings.h"
#include "shell/qt/event_guard.h"
#include "shell/qt/screen_window.h"
#include "stand_ins.h"

using namespace bkconf;

namespace {

struct SampleScreen : Screen {
  SampleScreen() : Screen("Sample") {
    title = "Sample";
    group.caption = "Group";
    label.caption = "Letter:";
    list.items = {"A", "B", "C"};
    button.caption = "Go";
    menu.caption = "Menu";
    entry.caption = "&Entry";
    mark.caption = "Mark";
    mark.checkable = true;
    line.separator = true;
  }

  GroupField group{*this, "group"};
  LabelField label{*this, "label"};
  ListField list{*this, "list"};
  ButtonField button{*this, "button"};
  ButtonField second{*this, "second"};
  ButtonField third{*this, "third"};
  ProgressField progress{*this, "progress"};
  PictureField picture{*this, "picture"};
  MenuField menu{*this, nullptr, "menu"};
  MenuField entry{*this, &menu, "entry"};
  MenuField line{*this, &menu, "line"};
  MenuField mark{*this, &menu, "mark"};
};

Part SampleLayout() {
  return Column({Frame("group", Form({Line("label", "list")})),
                 Tiles(2, {Item("button"), Item("second"), Item("third")}),
                 Labelled("label", "progress"), Labelled("label", "picture")});
}

}  // namespace

class ViewsTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void init() {
    screen_ = std::make_unique<SampleScreen>();
    window_ = std::make_unique<ScreenWindow>(*screen_, SampleLayout);
    screen_->shown = true;
    window_->Refresh();
    QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
  }
  void cleanup() { window_.reset(); }

  void AWindowFollowsItsScreen() {
    QCOMPARE(window_->windowTitle(), QStringLiteral("Sample"));
    screen_->title = "Other";
    screen_->shown = false;
    window_->Refresh();
    QCOMPARE(window_->windowTitle(), QStringLiteral("Other"));
    QVERIFY(!window_->isVisible());
  }

  void ClosingTheFrameAsksTheLogicOnly() {
    int closed = 0;
    screen_->onClose = [&] { ++closed; };
    QVERIFY(!window_->close());
    QCOMPARE(closed, 1);
    QVERIFY(window_->isVisible());
  }

  void ALabelShowsItsCaptionAsPlainText() {
    screen_->label.caption = "<b>1 & 2</b>";
    window_->Refresh();
    QCOMPARE(Find<QLabel>("label")->text(), QStringLiteral("<b>1 & 2</b>"));
    QCOMPARE(Find<QLabel>("label")->textFormat(), Qt::PlainText);
  }

  void AGroupHidesWithAllThatIsInIt() {
    QVERIFY(Find<QComboBox>("list")->isVisible());
    screen_->group.visible = false;
    window_->Refresh();
    QVERIFY(!Find<QComboBox>("list")->isVisible());
    screen_->group.visible = true;
    screen_->list.visible = false;
    window_->Refresh();
    QVERIFY(Find<QGroupBox>("group")->isVisible());
    QVERIFY(!Find<QComboBox>("list")->isVisible());
  }

  void AGroupWithoutACaptionIsPlain() {
    QVERIFY(!Find<QGroupBox>("group")->isFlat());
    screen_->group.caption.clear();
    window_->Refresh();
    QVERIFY(Find<QGroupBox>("group")->isFlat());
  }

  void AListMirrorsItsFieldWithoutRunningItsHandler() {
    int picks = 0;
    screen_->list.onPick = [&] { ++picks; };
    screen_->list.Show("B");
    window_->Refresh();
    QCOMPARE(Find<QComboBox>("list")->currentText(), QStringLiteral("B"));
    screen_->list.items = {"X", "B"};
    window_->Refresh();
    QCOMPARE(Find<QComboBox>("list")->count(), 2);
    QCOMPARE(Find<QComboBox>("list")->currentIndex(), 1);
    QCOMPARE(picks, 0);
  }

  void AListShowsATextThatIsNoItem() {
    screen_->list.Show("Ω");
    window_->Refresh();
    const auto* box = Find<QComboBox>("list");
    QCOMPARE(box->currentIndex(), -1);
    QCOMPARE(box->placeholderText(), QStringLiteral("Ω"));
    QCOMPARE(box->palette().color(QPalette::PlaceholderText),
             box->palette().color(QPalette::ButtonText));
    screen_->list.Clear();
    window_->Refresh();
    QVERIFY(box->placeholderText().isEmpty());
  }

  void AUsersPickRunsTheHandlerOnce() {
    int picks = 0;
    screen_->list.onPick = [&] { ++picks; };
    QTest::keyClick(Find<QComboBox>("list"), Qt::Key_B);
    QCOMPARE(picks, 1);
    QCOMPARE(screen_->list.Text(), std::string("B"));
  }

  void APickThatTheLogicTakesBackIsShownTakenBack() {
    screen_->list.Show("A");
    window_->Refresh();
    screen_->list.onPick = [&] { screen_->list.Show("A"); };
    QTest::keyClick(Find<QComboBox>("list"), Qt::Key_C);
    QCOMPARE(Find<QComboBox>("list")->currentText(), QStringLiteral("A"));
  }

  void TheWheelOverAClosedListChangesNothing() {
    screen_->list.Show("A");
    window_->Refresh();
    QComboBox* box = Find<QComboBox>("list");
    box->setFocus();
    const QPointF place = box->rect().center();
    QWheelEvent wheel(place, box->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &wheel);
    QCOMPARE(box->currentText(), QStringLiteral("A"));
    QCOMPARE(screen_->list.Text(), std::string("A"));
  }

  void AButtonIsEnabledOnlyWithAHandler() {
    QPushButton* button = Find<QPushButton>("button");
    QVERIFY(!button->isEnabled());
    int clicks = 0;
    screen_->button.onClick = [&] { ++clicks; };
    window_->Refresh();
    QVERIFY(button->isEnabled());
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(clicks, 1);
    screen_->button.enabled = false;
    window_->Refresh();
    QVERIFY(!button->isEnabled());
  }

  void EnterPressesTheDefaultButtonUnlessAnotherHasTheFocus() {
    QStringList pressed;
    screen_->button.onClick = [&] { pressed.append(QStringLiteral("button")); };
    screen_->second.onClick = [&] { pressed.append(QStringLiteral("second")); };
    screen_->enter = &screen_->button;
    window_->Refresh();
    QVERIFY(Find<QPushButton>("button")->isDefault());
    Find<QComboBox>("list")->setFocus();
    QTest::keyClick(Find<QComboBox>("list"), Qt::Key_Return);
    Find<QPushButton>("second")->setFocus();
    QTest::keyClick(Find<QPushButton>("second"), Qt::Key_Enter);
    QCOMPARE(pressed, QStringList({QStringLiteral("button"), QStringLiteral("second")}));
  }

  void AScreenCanChangeWhatEnterPresses() {
    QStringList pressed;
    screen_->button.onClick = [&] { pressed.append(QStringLiteral("button")); };
    screen_->second.onClick = [&] { pressed.append(QStringLiteral("second")); };
    screen_->enter = &screen_->button;
    window_->Refresh();
    screen_->enter = &screen_->second;
    window_->Refresh();
    QVERIFY(!Find<QPushButton>("button")->isDefault());
    Find<QComboBox>("list")->setFocus();
    QTest::keyClick(Find<QComboBox>("list"), Qt::Key_Return);
    screen_->enter = nullptr;
    window_->Refresh();
    QTest::keyClick(Find<QComboBox>("list"), Qt::Key_Return);
    QCOMPARE(pressed, QStringList(QStringLiteral("second")));
  }

  void EscapeLeavesAWindowThatStandsByItself() {
    QTest::keyClick(window_.get(), Qt::Key_Escape);
    QVERIFY(screen_->shown);
  }

  void TheFocusReturnsToAFieldThatWasDisabledForAWhile() {
    screen_->button.onClick = [] {};
    window_->Refresh();
    QPushButton* button = Find<QPushButton>("button");
    button->setFocus();
    screen_->button.enabled = screen_->list.enabled = false;
    window_->Refresh();
    QVERIFY(!button->hasFocus());
    screen_->button.enabled = screen_->list.enabled = true;
    window_->Refresh();
    QCOMPARE(window_->focusWidget(), button);
  }

  void TheFocusReturnsFromWhereItWentMeanwhileByItself() {
    screen_->button.onClick = screen_->second.onClick = [] {};
    window_->Refresh();
    QPushButton* button = Find<QPushButton>("button");
    button->setFocus();
    screen_->button.enabled = false;
    window_->Refresh();
    QCOMPARE(window_->focusWidget(), Find<QPushButton>("second"));
    screen_->button.enabled = true;
    window_->Refresh();
    QCOMPARE(window_->focusWidget(), button);
  }

  void TheFocusStaysWhereTheUserPutItMeanwhile() {
    screen_->button.onClick = screen_->second.onClick = [] {};
    window_->Refresh();
    Find<QPushButton>("button")->setFocus();
    screen_->button.enabled = false;
    window_->Refresh();
    Find<QComboBox>("list")->setFocus();
    screen_->button.enabled = true;
    window_->Refresh();
    QCOMPARE(window_->focusWidget(), Find<QComboBox>("list"));
  }

  void TheFocusOfAFieldThatHidesGoesToWhatComesInItsPlace() {
    screen_->button.onClick = screen_->second.onClick = screen_->third.onClick = [] {};
    screen_->second.visible = false;
    window_->Refresh();
    Find<QPushButton>("button")->setFocus();
    screen_->button.visible = false;
    screen_->second.visible = true;
    window_->Refresh();
    QCOMPARE(window_->focusWidget(), Find<QPushButton>("second"));
    screen_->button.visible = true;
    screen_->second.visible = false;
    window_->Refresh();
    QCOMPARE(window_->focusWidget(), Find<QPushButton>("button"));
  }

  void HiddenTilesLeaveNoHole() {
    const QWidget* first = Find<QPushButton>("button");
    const QWidget* third = Find<QPushButton>("third");
    QVERIFY(third->y() > first->y());
    screen_->second.visible = false;
    window_->Refresh();
    QTRY_COMPARE(third->y(), first->y());
    QVERIFY(third->x() > first->x());
  }

  void AHiddenLineOfAFormLeavesNoHole() {
    const int height = window_->centralWidget()->sizeHint().height();
    const int line = Find<QComboBox>("list")->sizeHint().height();
    screen_->label.visible = screen_->list.visible = false;
    window_->Refresh();
    QTRY_VERIFY(window_->centralWidget()->sizeHint().height() <= height - line);
    screen_->label.visible = screen_->list.visible = true;
    window_->Refresh();
    QTRY_COMPARE(window_->centralWidget()->sizeHint().height(), height);
  }

  void AProgressBarMirrorsItsFieldAndKeepsItsPlace() {
    QProgressBar* bar = Find<QProgressBar>("progress");
    QVERIFY(!bar->isVisible());
    const int height = window_->sizeHint().height();
    screen_->progress.Start(50);
    screen_->progress.SetValue(20);
    window_->Refresh();
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->maximum(), 50);
    QCOMPARE(bar->value(), 20);
    QCOMPARE(window_->sizeHint().height(), height);
  }

  void AClimbingBarIsDrawnWhileARoutineHoldsTheWindow() {
    screen_->progress.Start(1'000'000'000);
    window_->Refresh();
    QElapsedTimer limit;
    limit.start();
    const QProgressBar* bar = Find<QProgressBar>("progress");
    while (bar->value() <= 0 && !limit.hasExpired(10'000)) {
      screen_->progress.Advance();
      screen_->progress.draw();
    }
    QVERIFY(bar->value() > 0);
    QVERIFY(screen_->progress.Value() >= bar->value());
  }

  void ABarPastItsEndIsAnErrorOfTheLogicAndTheWindowLivesOn() {
    screen_->progress.Start(2);
    QVERIFY_EXCEPTION_THROWN(screen_->progress.SetValue(3), RuntimeError);
    window_->Refresh();
    QCOMPARE(Find<QProgressBar>("progress")->maximum(), 2);
  }

  void APictureShowsItsFileAndAMissingOneShowsNothing() {
    QTemporaryDir directory;
    SettingsDirectory = directory.path().toStdString();
    QImage red(8, 6, QImage::Format_RGB32);
    red.fill(Qt::red);
    QVERIFY(red.save(directory.filePath(QStringLiteral("red.bmp"))));
    QWidget* picture = Find<QWidget>("picture");
    screen_->picture.file = "red.bmp";
    window_->Refresh();
    QCOMPARE(picture->grab().toImage().pixelColor(picture->rect().center()), QColor(Qt::red));
    screen_->picture.file = "missing.bmp";
    window_->Refresh();
    QVERIFY(picture->grab().toImage().pixelColor(picture->rect().center()) != QColor(Qt::red));
  }

  void AMenuEntryIsEnabledOnlyWithAHandler() {
    QAction* entry = Find<QAction>("entry");
    QVERIFY(!entry->isEnabled());
    int clicks = 0;
    screen_->entry.onClick = [&] { ++clicks; };
    window_->Refresh();
    QVERIFY(entry->isEnabled());
    entry->trigger();
    QCOMPARE(clicks, 1);
    QVERIFY(Find<QAction>("line")->isSeparator());
  }

  void AMenuIsEnabledByItsOwnFlag() {
    QMenu* menu = Find<QMenu>("menu");
    QVERIFY(menu->menuAction()->isEnabled());
    screen_->entry.onClick = [] {};
    screen_->menu.enabled = false;
    window_->Refresh();
    QVERIFY(!menu->menuAction()->isEnabled());
    QVERIFY(!Find<QAction>("entry")->isEnabled());
  }

  void ACheckMarkIsTheLogicsEvenAfterAClick() {
    int clicks = 0;
    screen_->mark.onClick = [&] { ++clicks; };
    screen_->mark.checked = true;
    window_->Refresh();
    QAction* mark = Find<QAction>("mark");
    QVERIFY(mark->isChecked());
    mark->trigger();
    QCOMPARE(clicks, 1);
    QVERIFY(mark->isChecked());
  }

  void AMenuThatOpensAsksItsLogicFirst() {
    screen_->menu.onOpen = [&] { screen_->entry.caption = "Fresh"; };
    Find<QMenu>("menu")->popup(window_->pos());
    QCOMPARE(Find<QAction>("entry")->text(), QStringLiteral("Fresh"));
    Find<QMenu>("menu")->close();
  }

  void AMenuOfTheBarHasAnAccessKeyAlsoWhereItsCaptionNamesNone() {
    QCOMPARE(Find<QMenu>("menu")->title(), QStringLiteral("&Menu"));
    screen_->menu.caption = "M&enu";
    window_->Refresh();
    QCOMPARE(Find<QMenu>("menu")->title(), QStringLiteral("M&enu"));
    QCOMPARE(Find<QAction>("entry")->text(), QStringLiteral("&Entry"));
  }

  void AToolTipIsShown() {
    screen_->list.toolTip = "Hint";
    window_->Refresh();
    QCOMPARE(Find<QComboBox>("list")->toolTip(), QStringLiteral("Hint"));
  }

  void EveryEventIsFollowedByARefreshOfAllWindows() {
    RunEvent([&] { screen_->label.caption = "New"; });
    QCOMPARE(Find<QLabel>("label")->text(), QStringLiteral("New"));
  }

 private:
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

QTEST_MAIN(ViewsTest)
#include "views_test.moc"
