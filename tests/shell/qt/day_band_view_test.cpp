// A day as a band of 24 hours in a window: where its parts are, in which colours, and what tells
// them to who does not see them.
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

#include "shell/qt/event_guard.h"
#include "shell/qt/screen_window.h"
#include "stand_ins.h"

using namespace bkconf;

namespace {

constexpr Colour Grey{0x40, 0x40, 0x40};
constexpr Colour Red{0xFF, 0x00, 0x00};
constexpr Colour Blue{0x00, 0x00, 0xFF};

struct SampleScreen : Screen {
  SampleScreen() : Screen("Sample") {
    label.caption = "Periods:";
    band.parts = {{360, 720, "", Grey}, {720, 1320, "", Red}, {1320, 360, "", Blue}};
  }

  LabelField label{*this, "label"};
  DayBandField band{*this, "band"};
};

Part SampleLayout() {
  return Column({Item("label"), Labelled("label", "band")});
}

}  // namespace

class DayBandViewTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void init() {
    plain_ = QApplication::palette();
    Build();
  }
  void cleanup() {
    window_.reset();
    QApplication::setPalette(plain_);
  }

  void EachPartIsInItsColourAtItsHours() {
    for (const int hour : {0, 1, 5, 23})
      QVERIFY2(IsBluish(At(hour * 60 + 30)), qPrintable(Said(hour)));
    for (const int hour : {6, 11}) QVERIFY2(IsGreyish(At(hour * 60 + 30)), qPrintable(Said(hour)));
    for (const int hour : {12, 18, 21}) {
      QVERIFY2(IsReddish(At(hour * 60 + 30)), qPrintable(Said(hour)));
    }
  }

  void ABandWithoutPartsIsEmpty() {
    Show({});
    const QColor ground = Band()->palette().color(QPalette::Base);
    for (int hour = 0; hour < 24; ++hour) QCOMPARE(At(hour * 60 + 30), ground);
    QVERIFY(Band()->accessibleDescription().isEmpty());
  }

  void APartOfNoLengthIsNotSeen() {
    Show({{600, 600, "20", Red}, {1440, 1440, "20", Red}});
    for (int hour = 0; hour < 24; ++hour) QVERIFY(!IsReddish(At(hour * 60 + 30)));
  }

  void APartCanEndAtMidnight() {
    Show({{1380, 1440, "", Red}});
    QVERIFY(IsReddish(At(1410)));
    QVERIFY(!IsReddish(At(30)));
  }

  void ATextIsWrittenWhereThereIsRoom() {
    QVERIFY(TextChanges({600, 800, "", Grey}));
    QVERIFY(!TextChanges({600, 615, "", Grey}));
  }

  void TheHoursStandBelow() {
    const QImage image = Band()->grab().toImage();
    QVERIFY(HasInk(image, 0) && HasInk(image, 12 * 60) && HasInk(image, 24 * 60));
    QVERIFY(!HasInk(image, 13 * 60 + 30));
  }

  void ItTakesTheWidthThatThereIs() {
    window_->resize(900, 200);
    QCoreApplication::processEvents();
    QVERIFY(Band()->width() > 850);
    QVERIFY(IsReddish(At(1290)) && IsBluish(At(1350)));
  }

  void InADarkThemeTheColoursAreLight() {
    QPalette dark(QColor(0x30, 0x30, 0x30), QColor(0x20, 0x20, 0x20));
    dark.setColor(QPalette::Base, QColor(0x10, 0x10, 0x10));
    QApplication::setPalette(dark);
    Build();
    Show({{0, 1440, "████████████", Blue}});
    QVERIFY(Brightest().lightness() >= 160);
    QVERIFY(At(60).lightness() < 80);
    QVERIFY(IsBluish(At(60)));
  }

  void APartIsToldUnderTheMouse() {
    Show({{360, 375, "20°C", Grey}, {1320, 360, "8°C", Blue}});
    QVERIFY(TipAt(800).isEmpty());
    QCOMPARE(TipAt(367), QStringLiteral("06:00 – 06:15: 20°C"));
    QCOMPARE(TipAt(100), QStringLiteral("22:00 – 06:00: 8°C"));
    QCOMPARE(TipAt(1400), QStringLiteral("22:00 – 06:00: 8°C"));
  }

  void AScreenReaderGetsAllParts() {
    Show({{360, 540, "20°C", Grey}, {540, 360, "8°C", Blue}});
    QCOMPARE(Band()->accessibleName(), QStringLiteral("Periods:"));
    QCOMPARE(Band()->accessibleDescription(),
             QStringLiteral("06:00 – 09:00: 20°C; 09:00 – 06:00: 8°C"));
  }

  void ThereIsNothingToDoInIt() { QCOMPARE(Band()->focusPolicy(), Qt::NoFocus); }

 private:
  void Build() {
    window_.reset();
    screen_ = std::make_unique<SampleScreen>();
    window_ = std::make_unique<ScreenWindow>(*screen_, SampleLayout);
    screen_->shown = true;
    window_->Refresh();
    QVERIFY(QTest::qWaitForWindowActive(window_.get()));
  }
  void Show(std::vector<DayBandField::Part> parts) {
    screen_->band.parts = std::move(parts);
    window_->Refresh();
  }
  QWidget* Band() const {
    auto* band = window_->findChild<QWidget*>(QStringLiteral("band"));
    if (band == nullptr) qFatal("There is no band");
    return band;
  }

  /// The band lies between its first and its last number, which stand out by half of themselves.
  QPoint PlaceOf(int minutes) const {
    const int end = Band()->fontMetrics().horizontalAdvance(QStringLiteral("24")) / 2 + 1;
    return {end + (Band()->width() - 2 * end) * minutes / 1440, 4};
  }
  QColor At(int minutes) const { return Band()->grab().toImage().pixelColor(PlaceOf(minutes)); }
  static QString Said(int hour) { return QString::number(hour); }

  static bool IsReddish(const QColor& colour) { return colour.red() > colour.blue() + 20; }
  static bool IsBluish(const QColor& colour) { return colour.blue() > colour.red() + 20; }
  bool IsGreyish(const QColor& colour) const {
    return colour.hslSaturation() < 5 && colour != Band()->palette().color(QPalette::Base);
  }
  QColor Brightest() const {
    const QImage image = Band()->grab().toImage();
    QColor brightest = Qt::black;
    const int middle = Band()->fontMetrics().height();
    for (int x = PlaceOf(600).x(); x < PlaceOf(840).x(); ++x) {
      const QColor colour = image.pixelColor(x, middle);
      if (colour.lightness() > brightest.lightness()) brightest = colour;
    }
    return brightest;
  }

  bool TextChanges(DayBandField::Part part) {
    Show({part});
    const QImage without = Band()->grab().toImage();
    part.text = "20°C";
    Show({part});
    return Band()->grab().toImage() != without;
  }

  /// Whether something is written below that place.
  bool HasInk(const QImage& image, int minutes) const {
    const int x = PlaceOf(minutes).x();
    const QColor ground = image.pixelColor(1, image.height() - 1);
    for (int y = image.height() - Band()->fontMetrics().height(); y < image.height(); ++y) {
      for (int aside = -4; aside <= 4; ++aside) {
        const int place = qBound(0, x + aside, image.width() - 1);
        if (image.pixelColor(place, y) != ground) return true;
      }
    }
    return false;
  }

  QString TipAt(int minutes) const {
    const QPoint place = PlaceOf(minutes);
    QHelpEvent event(QEvent::ToolTip, place, Band()->mapToGlobal(place));
    QApplication::sendEvent(Band(), &event);
    const bool shown = QToolTip::isVisible();
    const QString text = shown ? QToolTip::text() : QString();
    QToolTip::hideText();
    return text;
  }

  QPalette plain_;
  StandIns standIns_;
  std::unique_ptr<SampleScreen> screen_;
  std::unique_ptr<ScreenWindow> window_;
};

QTEST_MAIN(DayBandViewTest)
#include "day_band_view_test.moc"
