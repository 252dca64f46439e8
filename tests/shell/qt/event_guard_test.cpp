#include "shell/qt/event_guard.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QWindow>

#include "link/link_ticks.h"
#include "link/transfer.h"
#include "session/language.h"
#include "shell/main_window.h"
#include "shell/qt/field_view.h"
#include "stand_ins.h"

using namespace bkconf;

namespace {

QList<QMessageBox*> OpenBoxes() {
  QList<QMessageBox*> boxes;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* box = qobject_cast<QMessageBox*>(widget);
    if (box != nullptr && box->isVisible()) boxes.append(box);
  }
  return boxes;
}

void CloseBoxes() {
  for (QMessageBox* box : OpenBoxes()) box->button(QMessageBox::Ok)->click();
  QTRY_VERIFY(OpenBoxes().isEmpty());
}

void Fail(ErrorKind kind, const std::string& where) {
  RunEvent([&] { throw RuntimeError(kind, where); });
}

}  // namespace

class EventGuardTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() {
    Language = 1;
    Fail(ErrorKind::FileNotWritten, "/before/the/window");
    QCOMPARE(OpenBoxes().size(), 1);
    CloseBoxes();
    LoadMainWindow();
  }
  void init() { Language = 1; }
  void cleanup() { CloseBoxes(); }

  void AnErrorIsToldInTheLanguageOfTheSessionWithItsPlace() {
    Fail(ErrorKind::PortFailed, "ttyUSB0");
    QCOMPARE(OpenBoxes().size(), 1);
    const QMessageBox* box = OpenBoxes().front();
    QCOMPARE(box->text(), QStringLiteral("De verbinding met de seriële poort is verbroken."));
    QCOMPARE(box->informativeText(), QStringLiteral("Plaats: ttyUSB0"));
    QCOMPARE(box->windowTitle(), QStringLiteral("TREVAN BK-CONF"));
    QCOMPARE(box->windowModality(), Qt::ApplicationModal);
  }

  void WithoutALanguageAnErrorIsToldInBoth() {
    Language = 0;
    Fail(ErrorKind::PortFailed, "ttyUSB0");
    const QString text = OpenBoxes().front()->text();
    QVERIFY(text.contains(QStringLiteral("De verbinding met de seriële poort is verbroken.")));
    QVERIFY(text.contains(QStringLiteral("La connexion avec le port série est interrompue.")));
  }

  void EveryKindOfErrorHasAText_data() {
    QTest::addColumn<int>("kind");
    for (int kind = 0; kind <= static_cast<int>(ErrorKind::ProgramNotStarted); ++kind) {
      QTest::addRow("%d", kind) << kind;
    }
  }
  void EveryKindOfErrorHasAText() {
    QFETCH(int, kind);
    static QStringList told;
    Fail(static_cast<ErrorKind>(kind), "there");
    const QString text = OpenBoxes().front()->text();
    QVERIFY(!text.isEmpty() && !told.contains(text));
    told.append(text);
  }

  void TheSameErrorIsNotToldTwiceWhileItsBoxIsOpen() {
    for (int i = 0; i < 100; ++i) Fail(ErrorKind::PortFailed, "ttyUSB0");
    QCOMPARE(OpenBoxes().size(), 1);
    Fail(ErrorKind::PortFailed, "ttyUSB1");
    QCOMPARE(OpenBoxes().size(), 2);
    CloseBoxes();
    Fail(ErrorKind::PortFailed, "ttyUSB0");
    QCOMPARE(OpenBoxes().size(), 1);
  }

  void AnErrorLeavesTheTransferThatWasUnderWay() {
    Connect();
    QVERIFY(TransferUnderWay && WakeUpWait.Enabled());
    Fail(ErrorKind::IndexOutsideTable, "ButtonImage[164]");
    QVERIFY(!TransferUnderWay);
    QVERIFY(!WakeUpWait.Enabled());
    QVERIFY(MainWindow.connect.enabled && MainWindow.send.enabled && MainWindow.bestand.enabled);
    QVERIFY(!MainWindow.transferBar.visible);
  }

  void AnErrorOutsideATransferLeavesTheWindowAsItIs() {
    MainWindow.send.enabled = false;
    Fail(ErrorKind::FileNotWritten, "/full");
    QVERIFY(!MainWindow.send.enabled);
  }

  void ATitleIsShownToTheLetterAlsoWhereQtHasAMarkOfItsOwn() {
    MainWindow.title = "TREVAN BK-CONF  -  /house/a[*]b.BK1";
    Messages->Tell("Hallo");
    QCOMPARE(OpenBoxes().front()->windowHandle()->title(), ToQt(MainWindow.title));
    CloseBoxes();
    Messages->Ask("[*]", "?", [](bool) {});
    QCOMPARE(OpenBoxes().front()->windowHandle()->title(), QStringLiteral("[*]"));
    CloseBoxes();
    MainWindow.title = "TREVAN BK-CONF";
  }

  void AMessageIsShownWithoutWaitingForTheAnswer() {
    Messages->Tell("Hallo");
    QCOMPARE(OpenBoxes().size(), 1);
    QCOMPARE(OpenBoxes().front()->text(), QStringLiteral("Hallo"));
    QCOMPARE(OpenBoxes().front()->windowModality(), Qt::ApplicationModal);
  }

 private:
  StandIns standIns_;
};

QTEST_MAIN(EventGuardTest)
#include "event_guard_test.moc"
