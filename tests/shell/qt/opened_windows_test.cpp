#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "shell/qt/event_guard.h"
#include "shell/qt/message_boxes.h"
#include "shell/qt/screen_window.h"
#include "stand_ins.h"

using namespace bkconf;

namespace {

struct SampleScreen : Screen {
  explicit SampleScreen(const char* screenName) : Screen(screenName) {
    first.caption = "First";
    second.caption = "Second";
    first.onClick = [] {};
  }

  GroupField group{*this, "group"};
  ButtonField first{*this, "first"};
  TextField text{*this, "text"};
  ButtonField second{*this, "second"};
};

Part SampleLayout() {
  return Column({Item("text"), Hidable("group", Item("first")), Item("second")});
}

int layoutsMade = 0;

Part CountedLayout() {
  ++layoutsMade;
  return SampleLayout();
}

}  // namespace

class OpenedWindowsTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void init() {
    layoutsMade = 0;
    main_ = std::make_unique<SampleScreen>("Main");
    opened_ = std::make_unique<SampleScreen>("Opened");
    mainWindow_ = std::make_unique<ScreenWindow>(*main_, SampleLayout);
    openedWindow_ = new ScreenWindow(*opened_, CountedLayout, mainWindow_.get());
    RunEvent([this] { main_->shown = true; });
    QVERIFY(QTest::qWaitForWindowExposed(mainWindow_.get()));
    mainWindow_->setGeometry(100, 100, 500, 400);
  }
  void cleanup() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (auto* box = qobject_cast<QMessageBox*>(widget)) box->close();
    }
    mainWindow_.reset();
  }

  void AWindowIsMadeWhenItIsFirstShown() {
    QCOMPARE(layoutsMade, 0);
    QVERIFY(openedWindow_->findChild<QPushButton*>() == nullptr);
    Open();
    Close();
    Open();
    QCOMPARE(layoutsMade, 1);
  }

  void AnOpenedWindowIsModalToItsOpener() {
    Open();
    QCOMPARE(openedWindow_->windowModality(), Qt::WindowModal);
    QCOMPARE(openedWindow_->parentWidget(), mainWindow_.get());
    QCOMPARE(QApplication::activeModalWidget(), openedWindow_);
    QVERIFY(mainWindow_->isVisible());
  }

  void EscapeClosesAnOpenedWindowAsItsFrameDoes() {
    int closes = 0;
    opened_->onClose = [&] {
      ++closes;
      opened_->shown = false;
    };
    Open();
    QTest::keyClick(openedWindow_->focusWidget(), Qt::Key_Escape);
    QCOMPARE(closes, 1);
    QVERIFY(!openedWindow_->isVisible());
    Open();
    openedWindow_->close();
    QCOMPARE(closes, 2);
    QVERIFY(!openedWindow_->isVisible());
  }

  void AScreenWithoutAHandlerIsJustNotShownAnyMore() {
    Open();
    QTest::keyClick(openedWindow_, Qt::Key_Escape);
    QVERIFY(!opened_->shown);
    QVERIFY(!openedWindow_->isVisible());
    QVERIFY(main_->shown);
  }

  void TheFirstFieldHasTheFocusEachTime() {
    Open();
    QCOMPARE(openedWindow_->focusWidget(), openedWindow_->findChild<QLineEdit*>());
    openedWindow_->findChild<QPushButton*>(QStringLiteral("first"))->setFocus();
    Close();
    Open();
    QCOMPARE(openedWindow_->focusWidget(), openedWindow_->findChild<QLineEdit*>());
  }

  void AScreenCanNameTheFieldThatHasTheFocusFirst() {
    const auto first = [this] {
      return openedWindow_->findChild<QPushButton*>(QStringLiteral("first"));
    };
    opened_->firstFocus = &opened_->first;
    Open();
    QCOMPARE(openedWindow_->focusWidget(), first());
    Close();
    // One that cannot take it leaves it to the first that can.
    opened_->first.enabled = false;
    Open();
    QCOMPARE(openedWindow_->focusWidget(), openedWindow_->findChild<QLineEdit*>());
  }

  void AWindowThatOpensOutOfUseGetsTheKeyboardOnceItIsOfUse() {
    opened_->first.enabled = opened_->text.enabled = false;
    Open();
    QVERIFY(openedWindow_->focusWidget() == nullptr);
    RunEvent([this] { opened_->text.enabled = true; });
    QCOMPARE(openedWindow_->focusWidget(), openedWindow_->findChild<QLineEdit*>());
    QTest::keyClick(openedWindow_->focusWidget(), Qt::Key_Escape);
    QVERIFY(!openedWindow_->isVisible());
  }

  void AnOpenedWindowFitsItsContentAndStandsInTheMiddleOfItsOpener() {
    Open();
    QCOMPARE(openedWindow_->size(), openedWindow_->sizeHint());
    const QPoint distance = openedWindow_->geometry().center() - mainWindow_->geometry().center();
    QVERIFY(distance.manhattanLength() <= 2);
  }

  void AnOpenedWindowStandsOnTheDesktopEvenIfItsOpenerIsAtTheEdge() {
    const QRect desktop = mainWindow_->screen()->availableGeometry();
    mainWindow_->move(desktop.bottomRight() - QPoint(20, 20));
    Open();
    QVERIFY(desktop.contains(openedWindow_->geometry()));
  }

  void SizeAndPlaceAreKeptWhileTheProgramRuns() {
    Open();
    openedWindow_->setGeometry(30, 40, 420, 310);
    Close();
    Open();
    QCOMPARE(openedWindow_->geometry(), QRect(30, 40, 420, 310));
  }

  void EachLookOfAScreenHasItsOwnSizeAndPlace() {
    Open();
    openedWindow_->setGeometry(30, 40, 420, 310);
    Close();
    opened_->group.visible = false;
    Open();
    QCOMPARE(openedWindow_->size(), openedWindow_->sizeHint());
    openedWindow_->setGeometry(50, 60, 320, 210);
    Close();
    opened_->group.visible = true;
    Open();
    QCOMPARE(openedWindow_->geometry(), QRect(30, 40, 420, 310));
    Close();
    opened_->group.visible = false;
    Open();
    QCOMPARE(openedWindow_->geometry(), QRect(50, 60, 320, 210));
  }

  void AnErrorIsToldOverTheWindowThatTheEventOpened() {
    RunEvent([this] {
      opened_->shown = true;
      throw RuntimeError(ErrorKind::DirectoryNotRead, "/gone");
    });
    const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    QVERIFY(box != nullptr);
    QCOMPARE(box->parentWidget(), openedWindow_);
  }

  void ABoxBelongsToTheWindowInFront() {
    QMessageBox* box = ShowBox(QMessageBox::Information, QStringLiteral("1"));
    QCOMPARE(box->parentWidget(), mainWindow_.get());
    box->close();
    Open();
    box = ShowBox(QMessageBox::Information, QStringLiteral("2"));
    QCOMPARE(box->parentWidget(), openedWindow_);
    box->close();
    Close();
    QCOMPARE(ShowBox(QMessageBox::Information, QStringLiteral("3"))->parentWidget(),
             mainWindow_.get());
  }

  void AnOpenedWindowGoesWithItsOpener() {
    Open();
    const QPointer<ScreenWindow> opened = openedWindow_;
    mainWindow_.reset();
    QVERIFY(opened.isNull());
    QVERIFY(ScreenWindows().empty());
  }

 private:
  void Open() {
    RunEvent([this] { opened_->shown = true; });
    QVERIFY(QTest::qWaitForWindowExposed(openedWindow_));
  }
  void Close() {
    RunEvent([this] { opened_->shown = false; });
  }

  StandIns standIns_;
  std::unique_ptr<SampleScreen> main_;
  std::unique_ptr<SampleScreen> opened_;
  std::unique_ptr<ScreenWindow> mainWindow_;
  ScreenWindow* openedWindow_ = nullptr;
};

QTEST_MAIN(OpenedWindowsTest)
#include "opened_windows_test.moc"
