// Boxes to tick, and choices of which one is taken.
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QTest>

#include "shell/qt/event_guard.h"
#include "shell/qt/option_view.h"
#include "shell/qt/screen_window.h"
#include "stand_ins.h"

using namespace bkconf;

namespace {

struct SampleScreen : Screen {
  SampleScreen() : Screen("Sample") {
    check.caption = "None";
    first.caption = "              °C in room:";
    second.caption = "Base in room:";
    other.caption = "     Bus:";
    degrees.items = {"0", "1", "2"};
    check.onChange = [this] { events.append(QStringLiteral("check")); };
    first.onChoose = [this] { events.append(QStringLiteral("first")); };
    second.onChoose = [this] { events.append(QStringLiteral("second")); };
    button.onClick = [this] { events.append(QStringLiteral("button")); };
    enter = &button;
  }

  CheckField check{*this, "check"};
  OptionField first{*this, "first", nullptr};
  ListField degrees{*this, "degrees"};
  OptionField second{*this, "second", &first};
  OptionField other{*this, "other", nullptr};
  ButtonField button{*this, "button"};

  QStringList events;
};

Part SampleLayout() {
  return Column({Item("check"), Row({Inside("first", "degrees"), Space()}), Item("second"),
                 Item("other"), Item("button")});
}

}  // namespace

class ChoiceViewsTest : public QObject {
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

  // --- Check boxes

  void AClickAndABlankTickABox() {
    QTest::mouseClick(Check(), Qt::LeftButton, {}, QPoint(8, Check()->height() / 2));
    QVERIFY(screen_->check.checked);
    QVERIFY(Check()->isChecked());
    QTest::keyClick(Check(), Qt::Key_Space);
    QVERIFY(!screen_->check.checked);
    QVERIFY(!Check()->isChecked());
    QCOMPARE(screen_->events.size(), 2);
  }

  void ABoxMirrorsItsFieldWithoutRunningItsHandler() {
    screen_->check.checked = true;
    screen_->check.caption = "Nothing";
    window_->Refresh();
    QVERIFY(Check()->isChecked());
    QCOMPARE(Check()->text(), QStringLiteral("Nothing"));
    QCOMPARE(Check()->accessibleName(), QStringLiteral("Nothing"));
    QVERIFY(screen_->events.isEmpty());
  }

  void ATickThatTheLogicTakesBackIsShownTakenBack() {
    screen_->check.onChange = [this] { screen_->check.checked = false; };
    QTest::keyClick(Check(), Qt::Key_Space);
    QVERIFY(!Check()->isChecked());
  }

  // --- Options

  void AClickTakesAChoiceAndLeavesTheOthersOfItsGroup() {
    Click("first");
    QVERIFY(screen_->first.Chosen());
    QVERIFY(Option("first")->isChecked());
    Click("second");
    QVERIFY(!Option("first")->isChecked());
    QVERIFY(Option("second")->isChecked());
    QCOMPARE(screen_->events, QStringList({QStringLiteral("first"), QStringLiteral("second")}));
  }

  void AChoiceOfAnotherGroupIsLeftAlone() {
    Click("other");
    Click("first");
    QVERIFY(Option("other")->isChecked());
  }

  void ASecondClickKeepsTheChoiceTaken() {
    Click("first");
    Click("first");
    QVERIFY(Option("first")->isChecked());
    QVERIFY(screen_->first.Chosen());
  }

  void AGroupCanHaveNoChoiceTakenAgain() {
    Click("second");
    screen_->first.ClearGroup();
    window_->Refresh();
    QVERIFY(!Option("second")->isChecked());
    QCOMPARE(screen_->events.size(), 1);
  }

  void EveryChoiceIsReachedByTheTabulatorAndTakenByABlank() {
    Check()->setFocus();
    QTest::keyClick(window_.get(), Qt::Key_Tab);
    QCOMPARE(window_->focusWidget(), Option("first"));
    QTest::keyClick(window_.get(), Qt::Key_Tab);
    QCOMPARE(window_->focusWidget(), List());
    QTest::keyClick(window_.get(), Qt::Key_Tab);
    QCOMPARE(window_->focusWidget(), Option("second"));
    QTest::keyClick(Option("second"), Qt::Key_Space);
    QVERIFY(screen_->second.Chosen());
  }

  void EnterInAChoiceIsTheButtonOfTheScreen() {
    Option("first")->setFocus();
    QTest::keyClick(Option("first"), Qt::Key_Return);
    Check()->setFocus();
    QTest::keyClick(Check(), Qt::Key_Enter);
    QCOMPARE(screen_->events, QStringList({QStringLiteral("button"), QStringLiteral("button")}));
  }

  void TheBlanksBeforeACaptionAreNotSpoken() {
    QCOMPARE(Option("first")->accessibleName(), QStringLiteral("°C in room:"));
    QCOMPARE(Option("first")->text(), QStringLiteral("°C in room:"));
    QCOMPARE(List()->accessibleDescription(), QStringLiteral("°C in room:"));
    const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(Option("first"));
    QCOMPARE(spoken->role(), QAccessible::RadioButton);
    QCOMPARE(spoken->text(QAccessible::Name), QStringLiteral("°C in room:"));
  }

  void ACaptionThatHoldsNothingKeepsItsBlanks() {
    QCOMPARE(Option("other")->text(), QStringLiteral("     Bus:"));
    QCOMPARE(Option("other")->accessibleName(), QStringLiteral("Bus:"));
    screen_->other.caption = "  Module:";
    screen_->first.caption = "    degrees";
    window_->Refresh();
    QCOMPARE(Option("other")->text(), QStringLiteral("  Module:"));
    QCOMPARE(Option("first")->text(), QStringLiteral("degrees"));
  }

  void AListInsideAChoiceHasItsRoomBetweenMarkAndCaption() {
    OptionButton* option = Option("first");
    const int caption = option->fontMetrics().horizontalAdvance(option->text());
    QVERIFY(List()->x() >= 13);
    QVERIFY(option->width() >= List()->geometry().right() + caption);
    screen_->degrees.visible = false;
    window_->Refresh();
    QTRY_VERIFY(option->width() < List()->width() + caption);
  }

  void AClickOnTheCaptionBehindTheListTakesTheChoice() {
    OptionButton* option = Option("first");
    QTest::mouseClick(option, Qt::LeftButton, {},
                      QPoint(option->width() - 4, option->height() / 2));
    QVERIFY(screen_->first.Chosen());
    QVERIFY(screen_->degrees.Text().empty());
  }

 private:
  QCheckBox* Check() const { return window_->findChild<QCheckBox*>(QStringLiteral("check")); }
  QComboBox* List() const { return window_->findChild<QComboBox*>(QStringLiteral("degrees")); }
  OptionButton* Option(const char* name) const {
    auto* found = window_->findChild<QRadioButton*>(QString::fromLatin1(name));
    if (found == nullptr) qFatal("There is no option %s", name);
    return static_cast<OptionButton*>(found);
  }
  void Click(const char* name) const {
    QTest::mouseClick(Option(name), Qt::LeftButton, {}, QPoint(6, Option(name)->height() / 2));
  }

  StandIns standIns_;
  std::unique_ptr<SampleScreen> screen_;
  std::unique_ptr<ScreenWindow> window_;
};

QTEST_MAIN(ChoiceViewsTest)
#include "choice_views_test.moc"
