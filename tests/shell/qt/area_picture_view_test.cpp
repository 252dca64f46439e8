// A picture with areas in a window: picking them by mouse and by keyboard, and where they are.
#include <QAccessible>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include "session/settings.h"
#include "shell/qt/event_guard.h"
#include "shell/qt/screen_window.h"
#include "stand_ins.h"

using namespace bkconf;

namespace {

/// Two columns and two lines, and one key in the middle below.
struct SampleScreen : Screen {
  SampleScreen() : Screen("Sample") {
    label.caption = "Press";
    picture.areas = {{"0", 400, 700, 200, 100},
                     {"1", 100, 100, 200, 100},
                     {"2", 700, 100, 200, 100},
                     {"3", 100, 400, 200, 100},
                     {"CH+", 700, 400, 200, 100}};
    picture.onPick = [this] { picks.append(picture.Picked()); };
  }

  LabelField label{*this, "label"};
  TextField before{*this, "before"};
  AreaPictureField picture{*this, "picture"};
  TextField after{*this, "after"};

  QList<int> picks;
};

Part SampleLayout() {
  return Column({Item("label"), Item("before"), Labelled("label", "picture"), Item("after")});
}

}  // namespace

class AreaPictureViewTest : public QObject {
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

  void AClickPicksTheAreaUnderIt() {
    for (int area = 0; area < 5; ++area) QTest::mouseClick(Key(area), Qt::LeftButton);
    QCOMPARE(screen_->picks, QList<int>({0, 1, 2, 3, 4}));
    QVERIFY(Key(4)->isChecked());
    QVERIFY(!Key(3)->isChecked());
  }

  void TheSameAreaIsPickedAgain() {
    QTest::mouseClick(Key(2), Qt::LeftButton);
    QTest::mouseClick(Key(2), Qt::LeftButton);
    QCOMPARE(screen_->picks, QList<int>({2, 2}));
    QVERIFY(Key(2)->isChecked());
  }

  void BesideTheAreasNothingIsPicked() {
    QTest::mouseClick(Picture(), Qt::LeftButton, {}, {2, 2});
    QTest::mouseClick(Picture(), Qt::LeftButton, {}, Picture()->rect().center());
    QVERIFY(screen_->picks.isEmpty());
  }

  void TheLogicShowsAPickAndTakesItBackWithoutRunningItsHandler() {
    screen_->picture.Pick(1);
    screen_->picks.clear();
    window_->Refresh();
    QVERIFY(Key(1)->isChecked());
    screen_->picture.ClearPick();
    window_->Refresh();
    QVERIFY(!Key(1)->isChecked());
    QVERIFY(screen_->picks.isEmpty());
  }

  void TheTabulatorStopsAtThePictureOnce() {
    Find<QLineEdit>("before")->setFocus();
    QTest::keyClick(window_.get(), Qt::Key_Tab);
    QCOMPARE(window_->focusWidget(), Key(0));
    QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
    QCOMPARE(window_->focusWidget(), Find<QLineEdit>("after"));
    QTest::keyClick(window_->focusWidget(), Qt::Key_Backtab);
    QCOMPARE(window_->focusWidget(), Key(0));
    QTest::keyClick(window_->focusWidget(), Qt::Key_Backtab);
    QCOMPARE(window_->focusWidget(), Find<QLineEdit>("before"));
  }

  void TheArrowsGoFromKeyToKeyAndTheTabulatorComesBackToTheLast() {
    Picture()->setFocus();
    const std::pair<Qt::Key, int> steps[] = {
        {Qt::Key_Up, 3},    {Qt::Key_Up, 1},    {Qt::Key_Up, 1},
        {Qt::Key_Right, 2}, {Qt::Key_Right, 2}, {Qt::Key_Down, 4},
        {Qt::Key_Left, 3},  {Qt::Key_Right, 4}, {Qt::Key_Down, 0}};
    for (const auto& [key, area] : steps) {
      QTest::keyClick(window_->focusWidget(), key);
      if (area == 3 && window_->focusWidget() == Key(4)) Key(3)->setFocus();
      QCOMPARE(window_->focusWidget(), Key(area));
    }
    Key(4)->setFocus();
    QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
    QCOMPARE(window_->focusWidget(), Find<QLineEdit>("after"));
    QTest::keyClick(window_->focusWidget(), Qt::Key_Backtab);
    QCOMPARE(window_->focusWidget(), Key(4));
    QTest::keyClick(window_->focusWidget(), Qt::Key_Backtab);
    QCOMPARE(window_->focusWidget(), Find<QLineEdit>("before"));
    QVERIFY(screen_->picks.isEmpty());
  }

  void SpaceAndEnterPick() {
    Key(3)->setFocus();
    QTest::keyClick(Key(3), Qt::Key_Space);
    Key(4)->setFocus();
    QTest::keyClick(Key(4), Qt::Key_Return);
    QCOMPARE(screen_->picks, QList<int>({3, 4}));
    QVERIFY(Key(4)->isChecked() && !Key(3)->isChecked());
  }

  void ACharacterThatAnAreaIsCalledPicksIt() {
    Picture()->setFocus();
    QTest::keyClick(window_->focusWidget(), Qt::Key_2);
    QCOMPARE(screen_->picks, QList<int>({2}));
    QCOMPARE(window_->focusWidget(), Key(2));
    QTest::keyClick(window_->focusWidget(), Qt::Key_9);
    QCOMPARE(screen_->picks.size(), 1);
  }

  void ADisabledPictureCannotBeUsed() {
    screen_->picture.enabled = false;
    window_->Refresh();
    QTest::mouseClick(Key(1), Qt::LeftButton);
    Find<QLineEdit>("before")->setFocus();
    QTest::keyClick(window_.get(), Qt::Key_Tab);
    QCOMPARE(window_->focusWidget(), Find<QLineEdit>("after"));
    QVERIFY(screen_->picks.isEmpty());
  }

  void TheAreasLieInThePictureAtEverySize() {
    ShowPicture(360, 720);
    for (const QSize size : {QSize(300, 700), QSize(900, 700), QSize(400, 1000)}) {
      window_->resize(size);
      QCoreApplication::processEvents();
      const QImage image = Picture()->grab().toImage();
      // Red is where the first area lies in the picture.
      QRect red;
      for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
          const QColor colour = image.pixelColor(x, y);
          if (colour.red() > 128 && colour.blue() < 128) red |= QRect(x, y, 1, 1);
        }
      }
      const QRect key = Key(0)->geometry();
      QVERIFY(qAbs(red.left() - key.left()) <= 2 && qAbs(red.right() - key.right()) <= 2);
      QVERIFY(qAbs(red.top() - key.top()) <= 2 && qAbs(red.bottom() - key.bottom()) <= 2);
      QVERIFY(Picture()->rect().contains(key));
      QVERIFY(qAbs(key.width() - key.height()) <= 2);
    }
  }

  void APictureThatIsMissingLeavesTheNamesOfItsAreas() {
    ShowPicture(360, 720);
    const QImage with = Key(2)->grab().toImage();
    screen_->picture.file = "missing.bmp";
    window_->Refresh();
    QVERIFY(Key(2)->isVisible() && Key(2)->grab().toImage() != with);
    QTest::mouseClick(Key(2), Qt::LeftButton);
    QCOMPARE(screen_->picks, QList<int>({2}));
  }

  void WhereTheKeyboardIsAndWhatIsPickedIsSeen() {
    ShowPicture(360, 720);
    const QImage plain = Picture()->grab(Key(1)->geometry()).toImage();
    Key(1)->setFocus();
    const QImage focused = Picture()->grab(Key(1)->geometry()).toImage();
    QVERIFY(focused != plain);
    Key(1)->click();
    QVERIFY(Picture()->grab(Key(1)->geometry()).toImage() != focused);
    Find<QLineEdit>("after")->setFocus();
    QVERIFY(Picture()->grab(Key(1)->geometry()).toImage() != plain);
  }

  void EachAreaHasItsNameForAScreenReader() {
    QCOMPARE(Picture()->accessibleName(), QStringLiteral("Press"));
    const QStringList names = {QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2"),
                               QStringLiteral("3"), QStringLiteral("CH+")};
    Key(4)->click();
    for (int area = 0; area < names.size(); ++area) {
      QAccessibleInterface* key = QAccessible::queryAccessibleInterface(Key(area));
      QCOMPARE(key->text(QAccessible::Name), names[area]);
      QCOMPARE(key->state().checked, area == 4);
      QVERIFY(key->actionInterface() != nullptr);
    }
  }

  void OtherAreasTakeTheirPlace() {
    screen_->picture.areas = {{"A", 0, 0, 500, 500}, {"B", 500, 500, 500, 500}};
    window_->Refresh();
    QVERIFY(Key(0)->isVisible() && Key(1)->isVisible() && !Key(2)->isVisible());
    QCOMPARE(Key(1)->accessibleName(), QStringLiteral("B"));
    QVERIFY(Key(0)->geometry().bottomRight().x() <= Key(1)->geometry().left());
  }

 private:
  /// One that is blue but for the first area, which is red.
  void ShowPicture(int width, int height) {
    SettingsDirectory = directory_.path().toStdString();
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::blue);
    const AreaPictureField::Area& area = screen_->picture.areas.front();
    for (int y = height * area.top / 1000; y < height * (area.top + area.height) / 1000; ++y) {
      for (int x = width * area.left / 1000; x < width * (area.left + area.width) / 1000; ++x) {
        image.setPixelColor(x, y, Qt::red);
      }
    }
    QVERIFY(image.save(directory_.filePath(QStringLiteral("areas.bmp"))));
    screen_->picture.file = "areas.bmp";
    window_->Refresh();
    Find<QLineEdit>("before")->setFocus();
  }

  QWidget* Picture() const { return Find<QWidget>("picture"); }
  QPushButton* Key(int area) const {
    return Find<QPushButton>(("picture" + std::to_string(area)).c_str());
  }
  template <typename Widget>
  Widget* Find(const char* name) const {
    auto* found = window_->findChild<Widget*>(QString::fromLatin1(name));
    if (found == nullptr) qFatal("There is no widget %s", name);
    return found;
  }

  QTemporaryDir directory_;
  StandIns standIns_;
  std::unique_ptr<SampleScreen> screen_;
  std::unique_ptr<ScreenWindow> window_;
};

QTEST_MAIN(AreaPictureViewTest)
#include "area_picture_view_test.moc"
