#include <QComboBox>
#include <QPainter>
#include <QPdfDocument>
#include <QPdfView>
#include <QPdfWriter>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

#include "session/settings.h"
#include "shell/qt/event_guard.h"
#include "shell/qt/screen_window.h"
#include "stand_ins.h"

using namespace bkconf;

namespace {

/// A window that a manual can lie over.
struct SampleScreen : Screen {
  SampleScreen() : Screen("Sample") {
    info.onClick = [this] { ShowManual("three.pdf"); };
    close.onClick = [this] {
      ++closes;
      manual.visible = close.visible = false;
      info.visible = true;
    };
    close.visible = false;
    go.onClick = [this] { ++goes; };
    enter = &go;
  }

  void ShowManual(const char* file) {
    manual.file = file;
    manual.visible = close.visible = true;
    info.visible = false;
  }

  ListField list{*this, "list"};
  ButtonField info{*this, "info"};
  ButtonField go{*this, "go"};
  ManualField manual{*this, "manual"};
  ButtonField close{*this, "close"};

  int closes = 0;
  int goes = 0;
};

Part SampleLayout() {
  return Cover("manual", Column({Item("list"), Item("info"), Item("go")}),
               Column({Row({Space(), Item("close")}), Item("manual")}));
}

void MakeManual(const QString& path, int pages) {
  QPdfWriter writer(path);
  writer.setTitle(QStringLiteral("Three pages"));
  QPainter painter(&writer);
  for (int page = 1; page <= pages; ++page) {
    painter.fillRect(painter.viewport(), Qt::red);
    if (page < pages) writer.newPage();
  }
}

}  // namespace

class ManualViewTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() {
    SettingsDirectory = directory_.path().toStdString();
    MakeManual(directory_.filePath(QStringLiteral("three.pdf")), 3);
    MakeManual(directory_.filePath(QStringLiteral("one.pdf")), 1);
    QFile broken(directory_.filePath(QStringLiteral("broken.pdf")));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("%PDF-1.4 and nothing more");
  }
  void init() {
    screen_ = std::make_unique<SampleScreen>();
    window_ = std::make_unique<ScreenWindow>(*screen_, SampleLayout);
    screen_->shown = true;
    window_->Refresh();
    QVERIFY(QTest::qWaitForWindowActive(window_.get()));
  }
  void cleanup() { window_.reset(); }

  void AManualShowsAllPagesAsWideAsTheWindow() {
    Show("three.pdf");
    QCOMPARE(Pages()->document()->pageCount(), 3);
    QCOMPARE(Pages()->pageMode(), QPdfView::PageMode::MultiPage);
    QCOMPARE(Pages()->zoomMode(), QPdfView::ZoomMode::FitToWidth);
    QTRY_VERIFY(ColourInTheMiddle() == QColor(Qt::red));
  }

  void AnotherFileTakesItsPlace() {
    Show("three.pdf");
    Show("one.pdf");
    QCOMPARE(Pages()->document()->pageCount(), 1);
  }

  void TheSameFileIsNotLoadedAgain() {
    Show("three.pdf");
    const QPdfView* before = Pages();
    Pages()->verticalScrollBar()->setValue(100);
    window_->Refresh();
    QCOMPARE(Pages(), before);
    QCOMPARE(Pages()->verticalScrollBar()->value(), 100);
  }

  void AMissingOrBrokenFileShowsNothing_data() {
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("missing") << QByteArray("missing.pdf");
    QTest::newRow("broken") << QByteArray("broken.pdf");
    QTest::newRow("no file named") << QByteArray("");
  }
  void AMissingOrBrokenFileShowsNothing() {
    QFETCH(QByteArray, file);
    Show(file.constData());
    QCOMPARE(Pages()->document()->pageCount(), 0);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QVERIFY(Find<QPushButton>("close")->isVisible());
  }

  void TheDocumentIsGivenBackWhenTheManualHides() {
    Show("three.pdf");
    const QPointer<QPdfDocument> document = Pages()->document();
    screen_->manual.visible = false;
    window_->Refresh();
    QVERIFY(document.isNull());
    QVERIFY(Pages() == nullptr);
    Show("three.pdf");
    QCOMPARE(Pages()->document()->pageCount(), 3);
  }

  void AHiddenManualIsNotLoaded() {
    screen_->manual.file = "three.pdf";
    window_->Refresh();
    QVERIFY(Pages() == nullptr);
  }

  void AManualLiesOverTheWholeWindow() {
    QVERIFY(Find<QComboBox>("list")->isVisible());
    Show("three.pdf");
    QVERIFY(!Find<QComboBox>("list")->isVisible());
    QVERIFY(!Find<QPushButton>("go")->isVisible());
    const QWidget* manual = Find<QWidget>("manual");
    QVERIFY(manual->isVisible());
    QVERIFY(manual->width() > window_->width() * 9 / 10);
    QVERIFY(manual->height() > window_->height() * 3 / 4);
    screen_->manual.visible = false;
    window_->Refresh();
    QVERIFY(!manual->isVisible());
    QVERIFY(Find<QComboBox>("list")->isVisible());
  }

  void TheCloseButtonIsInSightAtTheTopRightAndHasTheFocus() {
    QTest::mouseClick(Find<QPushButton>("info"), Qt::LeftButton);
    const QPushButton* close = Find<QPushButton>("close");
    QCOMPARE(window_->focusWidget(), close);
    const QRect place(close->mapTo(window_.get(), QPoint()), close->size());
    QVERIFY(window_->rect().contains(place));
    QVERIFY(place.left() > window_->width() / 2 && place.bottom() < window_->height() / 4);
  }

  void EscapeClosesTheManualAndTheFocusIsBackAtItsButton() {
    Find<QPushButton>("info")->setFocus();
    QTest::keyClick(Find<QPushButton>("info"), Qt::Key_Return);
    QVERIFY(screen_->manual.visible);
    QTest::keyClick(window_->focusWidget(), Qt::Key_Escape);
    QCOMPARE(screen_->closes, 1);
    QVERIFY(!screen_->manual.visible);
    QCOMPARE(window_->focusWidget(), Find<QPushButton>("info"));
    QTest::keyClick(window_->focusWidget(), Qt::Key_Escape);
    QCOMPARE(screen_->closes, 1);
  }

  void EscapeClosesTheManualAlsoFromWithin() {
    Find<QPushButton>("info")->click();
    Pages()->setFocus();
    QTest::keyClick(Pages(), Qt::Key_Escape);
    QCOMPARE(screen_->closes, 1);
    QCOMPARE(window_->focusWidget(), Find<QComboBox>("list"));
  }

  void EnterPressesNothingThatIsCovered() {
    Show("three.pdf");
    Pages()->setFocus();
    QTest::keyClick(Pages(), Qt::Key_Return);
    QCOMPARE(screen_->goes, 0);
  }

  void KeysScrollWhileTheCloseButtonHasTheFocus() {
    Show("three.pdf");
    QTRY_VERIFY(Bar()->maximum() > Bar()->pageStep());
    const auto press = [this](Qt::Key key) {
      QTest::keyClick(window_->focusWidget(), key);
      return Bar()->value();
    };
    QCOMPARE(window_->focusWidget(), Find<QPushButton>("close"));
    QCOMPARE(press(Qt::Key_PageDown), Bar()->pageStep());
    QCOMPARE(press(Qt::Key_Down), Bar()->pageStep() + Bar()->singleStep());
    QCOMPARE(press(Qt::Key_Up), Bar()->pageStep());
    QCOMPARE(press(Qt::Key_End), Bar()->maximum());
    QCOMPARE(press(Qt::Key_PageUp), Bar()->maximum() - Bar()->pageStep());
    QCOMPARE(press(Qt::Key_Home), 0);
    QCOMPARE(window_->focusWidget(), Find<QPushButton>("close"));
  }

  void AScreenReaderIsToldTheTitle() {
    Show("three.pdf");
    QCOMPARE(Find<QWidget>("manual")->accessibleName(), QStringLiteral("Three pages"));
    QCOMPARE(Pages()->accessibleName(), QStringLiteral("Three pages"));
    Show("missing.pdf");
    QCOMPARE(Find<QWidget>("manual")->accessibleName(), QStringLiteral("missing.pdf"));
  }

 private:
  void Show(const char* file) {
    screen_->ShowManual(file);
    window_->Refresh();
  }

  QColor ColourInTheMiddle() const {
    const QImage image = window_->grab().toImage();
    return image.pixelColor(image.rect().center());
  }

  template <typename Widget>
  Widget* Find(const char* name) const {
    auto* found = window_->findChild<Widget*>(QString::fromLatin1(name));
    if (found == nullptr) qFatal("There is no widget %s", name);
    return found;
  }
  /// Null while no manual is shown.
  QPdfView* Pages() const { return window_->findChild<QPdfView*>(); }
  QScrollBar* Bar() const { return Pages()->verticalScrollBar(); }

  QTemporaryDir directory_;
  StandIns standIns_;
  std::unique_ptr<SampleScreen> screen_;
  std::unique_ptr<ScreenWindow> window_;
};

QTEST_MAIN(ManualViewTest)
#include "manual_view_test.moc"
