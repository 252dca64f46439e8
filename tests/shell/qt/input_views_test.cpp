#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include "shell/qt/event_guard.h"
#include "shell/qt/screen_window.h"
#include "stand_ins.h"

using namespace bkconf;

namespace {

struct SampleScreen : Screen {
  SampleScreen() : Screen("Sample") {
    boxLabel.caption = "Letters:";
    textLabel.caption = "Name:";
    box.SetItems({"A", "B", "C"});
    box.onPick = [this] { events.append(QStringLiteral("pick ") + ToQt(box.Text())); };
    box.onOpen = [this] { events.append(QStringLiteral("open ") + ToQt(box.Text())); };
    text.onChange = [this] { events.append(QStringLiteral("type ") + ToQt(text.Text())); };
    button.onClick = [this] { events.append(QStringLiteral("button")); };
    textLabel.onDoubleClick = [this] { events.append(QStringLiteral("double click")); };
    enter = &button;
  }

  LabelField boxLabel{*this, "boxLabel"};
  ListBoxField box{*this, "box"};
  LabelField textLabel{*this, "textLabel"};
  TextField text{*this, "text"};
  LabelField path{*this, "path"};
  ButtonField button{*this, "button"};
  ButtonField other{*this, "other"};

  QStringList events;
};

Part SampleLayout() {
  return Column({Below("boxLabel", "box"), Row({Item("textLabel"), Labelled("textLabel", "text")}),
                 Item("path", Look::Path), Item("button"), Item("other")});
}

QStringList Events(std::initializer_list<const char*> texts) {
  QStringList events;
  for (const char* text : texts) events.append(QString::fromUtf8(text));
  return events;
}

}  // namespace

class InputViewsTest : public QObject {
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

  // --- Text
  // ---------------------------------------------------------------------------------------

  void EveryCharacterThatTheUserTypesReachesTheLogicOnce() {
    QTest::keyClick(Line(), 'n');
    QTest::sendKeyEvent(QTest::Click, Line(), Qt::Key_Eacute, QStringLiteral("é"), {});
    QCOMPARE(screen_->events, Events({"type n", "type né"}));
    QCOMPARE(screen_->text.Text(), std::string("né"));
  }

  void ATextOfTheLogicIsShownWithoutRunningTheHandler() {
    screen_->text.Show("Dimmer C");
    window_->Refresh();
    QCOMPARE(Line()->text(), QStringLiteral("Dimmer C"));
    QVERIFY(screen_->events.isEmpty());
  }

  void ATextThatTheLogicTakesBackIsShownTakenBack() {
    screen_->text.onChange = [this] { screen_->text.Show("x"); };
    QTest::keyClicks(Line(), QStringLiteral("y"));
    QCOMPARE(Line()->text(), QStringLiteral("x"));
  }

  void ARefreshKeepsTheCursorWhereItIs() {
    screen_->text.Show("abc");
    window_->Refresh();
    Line()->setCursorPosition(1);
    QTest::keyClicks(Line(), QStringLiteral("x"));
    QCOMPARE(Line()->text(), QStringLiteral("axbc"));
    QCOMPARE(Line()->cursorPosition(), 2);
  }

  void EnterInATextPressesTheButtonOfTheScreen() {
    Line()->setFocus();
    QTest::keyClick(Line(), Qt::Key_Return);
    QCOMPARE(screen_->events, Events({"button"}));
  }

  void ATextCanHaveAButtonOfItsOwnForEnter() {
    screen_->other.onClick = [this] { screen_->events.append(QStringLiteral("other")); };
    screen_->text.enter = &screen_->other;
    window_->Refresh();
    Line()->setFocus();
    QTest::keyClick(Line(), Qt::Key_Return);
    Box()->setFocus();
    QTest::keyClick(Box(), Qt::Key_Return);
    QCOMPARE(screen_->events, Events({"other", "button"}));
  }

  // --- List box
  // -----------------------------------------------------------------------------------

  void AClickPicksOnce() {
    Click(1);
    QCOMPARE(screen_->events, Events({"pick B"}));
    Click(2);
    QCOMPARE(screen_->events, Events({"pick B", "pick C"}));
  }

  void AClickOnThePickedItemPicksItAgain() {
    Click(1);
    Click(1);
    QCOMPARE(screen_->events, Events({"pick B", "pick B"}));
  }

  void ADoubleClickOpensOnce() {
    Click(2);
    screen_->events.clear();
    QTest::mouseDClick(Box()->viewport(), Qt::LeftButton, {}, Center(2));
    QCOMPARE(screen_->events.count(QStringLiteral("open C")), 1);
    QCOMPARE(screen_->events.last(), QStringLiteral("open C"));
  }

  void TheArrowKeysPickOneAfterTheOther() {
    Box()->setFocus();
    QTest::keyClick(Box(), Qt::Key_Down);
    QTest::keyClick(Box(), Qt::Key_Down);
    QTest::keyClick(Box(), Qt::Key_Up);
    QCOMPARE(screen_->events, Events({"pick A", "pick B", "pick A"}));
  }

  void TheFocusAlonePicksNothing() {
    Line()->setFocus();
    Box()->setFocus();
    QVERIFY(screen_->events.isEmpty());
    QCOMPARE(screen_->box.Index(), -1);
    QVERIFY(Box()->selectedItems().isEmpty());
  }

  void EnterOpensThePickedItemAndPressesNoButton() {
    Click(0);
    screen_->events.clear();
    QTest::keyClick(Box(), Qt::Key_Return);
    QCOMPARE(screen_->events, Events({"pick A", "open A"}));
  }

  void EnterPressesTheButtonWhereNothingIsPickedOrNothingOpens() {
    Box()->setFocus();
    QTest::keyClick(Box(), Qt::Key_Enter);
    QCOMPARE(screen_->events, Events({"button"}));
    screen_->box.onOpen = nullptr;
    Click(0);
    screen_->events.clear();
    QTest::keyClick(Box(), Qt::Key_Enter);
    QCOMPARE(screen_->events, Events({"button"}));
  }

  void AClickBesideTheItemsChangesNothing() {
    Click(1);
    screen_->events.clear();
    QTest::mouseClick(Box()->viewport(), Qt::LeftButton, {},
                      Box()->viewport()->rect().bottomRight() - QPoint(3, 3));
    QVERIFY(screen_->events.isEmpty());
    QCOMPARE(Selected(), 1);
  }

  void APickOfTheLogicIsShownWithoutRunningItsHandlerAgain() {
    screen_->box.Pick(2);
    screen_->events.clear();
    window_->Refresh();
    QCOMPARE(Selected(), 2);
    QVERIFY(screen_->events.isEmpty());
  }

  void APickThatTheLogicTakesBackIsShownTakenBack() {
    screen_->box.onPick = [this] { screen_->box.SetItems({"A", "B", "C"}); };
    Click(1);
    QCOMPARE(Selected(), -1);
  }

  void OtherItemsComeWithoutAPickAndFromTheTop() {
    Click(2);
    screen_->events.clear();
    screen_->box.SetItems({"X", "Y"});
    window_->Refresh();
    QCOMPARE(Box()->count(), 2);
    QCOMPARE(Box()->item(1)->text(), QStringLiteral("Y"));
    QCOMPARE(Selected(), -1);
    QVERIFY(screen_->events.isEmpty());
  }

  void TheSameItemsKeepSelectionAndPlace() {
    std::vector<std::string> many;
    for (int i = 0; i < 200; ++i) many.push_back(std::to_string(i));
    screen_->box.SetItems(many);
    screen_->box.Pick(150);
    window_->Refresh();
    Box()->verticalScrollBar()->setValue(40);
    screen_->box.SetItems(many);
    screen_->box.Pick(150);
    window_->Refresh();
    QCOMPARE(Box()->verticalScrollBar()->value(), 40);
    QCOMPARE(Selected(), 150);
  }

  void AnOpenMayChangeTheItemsUnderTheMouse() {
    screen_->box.onOpen = [this] { screen_->box.SetItems({"X", "Y", "Z"}); };
    Click(1);
    screen_->events.clear();
    QTest::mouseDClick(Box()->viewport(), Qt::LeftButton, {}, Center(1));
    QCOMPARE(Box()->item(1)->text(), QStringLiteral("Y"));
    QCOMPARE(Selected(), -1);
    QVERIFY(!screen_->events.contains(QStringLiteral("pick Y")));
  }

  void ADisabledListBoxTakesNoClick() {
    screen_->box.enabled = false;
    window_->Refresh();
    Click(1);
    QVERIFY(screen_->events.isEmpty());
  }

  // --- Labels
  // -------------------------------------------------------------------------------------

  void ADoubleClickOnALabelReachesTheLogicOnce() {
    QTest::mouseDClick(Label("textLabel"), Qt::LeftButton);
    QCOMPARE(screen_->events, Events({"double click"}));
  }

  void ALabelWithAHandlerIsReachedByKeyboard() {
    QCOMPARE(Label("textLabel")->cursor().shape(), Qt::PointingHandCursor);
    Box()->setFocus();
    QTest::keyClick(window_.get(), Qt::Key_Tab);
    QCOMPARE(window_->focusWidget(), Label("textLabel"));
    QTest::keyClick(Label("textLabel"), Qt::Key_Space);
    QTest::keyClick(Label("textLabel"), Qt::Key_Return);
    QCOMPARE(screen_->events, Events({"double click", "double click"}));
  }

  void ALabelWithoutAHandlerIsOnlyText() {
    QCOMPARE(Label("boxLabel")->focusPolicy(), Qt::NoFocus);
    QVERIFY(Label("boxLabel")->cursor().shape() != Qt::PointingHandCursor);
    QTest::mouseDClick(Label("boxLabel"), Qt::LeftButton);
    screen_->textLabel.onDoubleClick = nullptr;
    window_->Refresh();
    QCOMPARE(Label("textLabel")->focusPolicy(), Qt::NoFocus);
    QCOMPARE(Label("textLabel")->cursor().shape(), Qt::ArrowCursor);
    QVERIFY(screen_->events.isEmpty());
  }

  void ALongPathMakesNoWindowWider() {
    const int width = window_->minimumSizeHint().width();
    screen_->path.caption = "/home" + std::string(2000, 'x') + "/file.BK1";
    window_->Refresh();
    QCOMPARE(window_->minimumSizeHint().width(), width);
    QCOMPARE(Label("path")->accessibleName(), ToQt(screen_->path.caption));
  }

  void LabelsNameWhatTheyStandBeside() {
    QCOMPARE(Label("boxLabel")->buddy(), Box());
    QCOMPARE(Label("textLabel")->buddy(), Line());
    QCOMPARE(Box()->accessibleName(), QStringLiteral("Letters:"));
    QCOMPARE(Line()->accessibleName(), QStringLiteral("Name:"));
  }

 private:
  template <typename Widget>
  Widget* Find(const char* name) const {
    auto* found = window_->findChild<Widget*>(QString::fromLatin1(name));
    if (found == nullptr) qFatal("There is no widget %s", name);
    return found;
  }
  QLineEdit* Line() const { return Find<QLineEdit>("text"); }
  QListWidget* Box() const { return Find<QListWidget>("box"); }
  QLabel* Label(const char* name) const { return Find<QLabel>(name); }

  QPoint Center(int row) const { return Box()->visualItemRect(Box()->item(row)).center(); }
  void Click(int row) const {
    QTest::mouseClick(Box()->viewport(), Qt::LeftButton, {}, Center(row));
  }
  int Selected() const {
    const auto selected = Box()->selectedItems();
    return selected.isEmpty() ? -1 : Box()->row(selected.front());
  }

  StandIns standIns_;
  std::unique_ptr<SampleScreen> screen_;
  std::unique_ptr<ScreenWindow> window_;
};

QTEST_MAIN(InputViewsTest)
#include "input_views_test.moc"
