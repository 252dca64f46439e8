// Panels that come and go in a window: the keyboard goes into one that appears, and back.
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "shell/qt/event_guard.h"
#include "shell/qt/screen_window.h"
#include "stand_ins.h"

using namespace bkconf;

namespace {

struct SampleScreen : Screen {
  SampleScreen() : Screen("Sample") {
    for (ButtonField* button : {&open, &yes, &leave}) {
      button->onClick = [this, button] { events.append(ToQt(button->name)); };
    }
    open.onClick = [this] {
      events.append(QStringLiteral("open"));
      Ask(true);
    };
    Ask(false);
  }

  void Ask(bool asks) {
    question.visible = asks;
    enter = asks ? &yes : &open;
  }

  TextField text{*this, "text"};
  ButtonField open{*this, "open"};
  GroupField editor{*this, "editor"};
  TextField name{*this, "name"};
  GroupField question{*this, "question"};
  ButtonField yes{*this, "yes"};
  ButtonField leave{*this, "leave"};

  QStringList events;
};

Part SampleLayout() {
  return Column({Item("text"), Item("open"),
                 Pile({Kept(Entered(Wide(60, Frame("editor", Column({Item("name")}))))),
                       Entered(Frame("question", Column({Item("yes")})))}),
                 Item("leave")});
}

}  // namespace

class PanelsTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void init() {
    screen_ = std::make_unique<SampleScreen>();
    screen_->editor.visible = false;
    window_ = std::make_unique<ScreenWindow>(*screen_, SampleLayout);
    screen_->shown = true;
    window_->Refresh();
    QVERIFY(QTest::qWaitForWindowActive(window_.get()));
  }
  void cleanup() { window_.reset(); }

  void APanelThatAppearsGetsTheKeyboardAndGivesItBack() {
    Find<QLineEdit>("text")->setFocus();
    RunEvent([this] { screen_->editor.visible = true; });
    QCOMPARE(window_->focusWidget(), Find<QLineEdit>("name"));
    RunEvent([this] { screen_->editor.visible = false; });
    QCOMPARE(window_->focusWidget(), Find<QLineEdit>("text"));
  }

  void FromOnePanelToTheNextTheFirstPlaceIsRemembered() {
    Find<QLineEdit>("text")->setFocus();
    RunEvent([this] { screen_->Ask(true); });
    QCOMPARE(window_->focusWidget(), Find<QPushButton>("yes"));
    RunEvent([this] {
      screen_->Ask(false);
      screen_->editor.visible = true;
    });
    QCOMPARE(window_->focusWidget(), Find<QLineEdit>("name"));
    RunEvent([this] { screen_->editor.visible = false; });
    QCOMPARE(window_->focusWidget(), Find<QLineEdit>("text"));
  }

  void AKeyboardThatHasLeftThePanelStaysWhereItIs() {
    Find<QLineEdit>("text")->setFocus();
    RunEvent([this] { screen_->editor.visible = true; });
    Find<QPushButton>("leave")->setFocus();
    RunEvent([this] { screen_->editor.visible = false; });
    QCOMPARE(window_->focusWidget(), Find<QPushButton>("leave"));
  }

  void EnterThatIsHeldDownDoesNotAnswerTheQuestionThatItHasOpened() {
    Find<QLineEdit>("text")->setFocus();
    QTest::keyPress(window_->focusWidget(), Qt::Key_Return);
    QCOMPARE(window_->focusWidget(), Find<QPushButton>("yes"));
    for (int again = 0; again < 3; ++again) {
      QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, QString(), true);
      QCoreApplication::sendEvent(window_->focusWidget(), &held);
    }
    QCOMPARE(screen_->events, QStringList({QStringLiteral("open")}));
    QTest::keyRelease(window_->focusWidget(), Qt::Key_Return);
    QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
    QCOMPARE(screen_->events.last(), QStringLiteral("yes"));
  }

  void APanelKeepsItsRoomAndItsLeastWidth() {
    const QSize size = window_->minimumSizeHint();
    QVERIFY(size.width() > 60 * window_->fontMetrics().averageCharWidth());
    RunEvent([this] { screen_->editor.visible = true; });
    QCOMPARE(window_->minimumSizeHint(), size);
    RunEvent([this] {
      screen_->editor.visible = false;
      screen_->Ask(true);
    });
    QCOMPARE(window_->minimumSizeHint(), size);
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

QTEST_MAIN(PanelsTest)
#include "panels_test.moc"
