// The window of a temperature module in its three looks, as a person works in it, in one language.
#include <QProgressBar>
#include <QScrollBar>

#include "image/tables.h"
#include "link/link_events.h"
#include "link/link_ticks.h"
#include "link/transfer.h"
#include "screen_stage.h"
#include "session/state.h"
#include "shell/qt/event_guard.h"
#include "special/temperature_screen.h"

using namespace bkconf;

namespace {

constexpr int LetterHere = 'E';
constexpr int Rooms = 3;
constexpr int DayCells = 12;
constexpr int FirstValve = 64;

/// What the window shows.
struct TemperatureState {
  const char* name;
  void (*open)();
  int room;            ///< -1 for none
  int valve;           ///< -1 for none; the pump stands behind the rooms
  bool reads = false;  ///< the table is still being read
};

constexpr TemperatureState States[] = {
    {"ids, no room", OpenRoomIds, -1, -1},
    {"ids", OpenRoomIds, 0, 0},
    {"ids, pump", OpenRoomIds, 1, Rooms},
    {"ids, other module", OpenRoomIds, 2, 2},
    {"ids, read", OpenRoomIds, -1, -1, true},
    {"programme, no room", OpenRoomProgram, -1, -1},
    {"programme", OpenRoomProgram, 0, -1},
    {"programme, read", OpenRoomProgram, -1, -1, true},
    {"temperatures", OpenLiveTemperatures, -1, -1, true},
};

QColor ToQColor(const Colour& colour) {
  return {colour.red, colour.green, colour.blue};
}

/// Three rooms: all days alike, with a cold, a mild and a hot period, and one valve elsewhere.
void FillModule() {
  const int header[] = {LetterHere, Rooms, 10, 21};
  for (int cell = 0; cell < 4; ++cell) TempHeader[cell] = header[cell];
  TempRoomCount = Rooms;
  for (int cell = 0; cell < TempRoomIds.Size(); ++cell) TempRoomIds[cell] = cell * 7 % 256;
  for (int cell = 0; cell < TempTail.Size(); ++cell) TempTail[cell] = cell * 11 % 256;
  for (int room = 0; room < MostRooms; ++room) {
    TempTail[FirstValve + 2 * room] = room == 2 ? int{'B'} : LetterHere;
    TempTail[FirstValve + 2 * room + 1] = room;
  }
  TempTail[80] = LetterHere;
  TempTail[81] = 8;
  const int day[] = {6, 30, 9, 0, 12, 0, 13, 30, 16, 30, 22, 0};
  for (int cell = 0; cell < TempPeriods.Size(); ++cell) TempPeriods[cell] = day[cell % DayCells];
  const int setpoints[] = {20, 18, 30, 19, 21, 10};
  for (int cell = 0; cell < TempSetpoints.Size(); ++cell) TempSetpoints[cell] = setpoints[cell % 6];
}

void Tell(const std::string& line) {
  RunEvent([&line] {
    RxLine = line;
    Raise(LinkEvent::LiveTemperature);
  });
}

}  // namespace

class TemperatureScreenViewTest : public QObject, private ScreenStage {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { Begin(); }
  void init() {
    ActiveModuleType = TemperatureKind;
    FillModule();
  }
  void cleanup() {
    EndRead();
    Close({&TemperatureScreen});
  }

  // --- Identities
  void WithoutARoomTheBytesAreEmptyAndOutOfUse() {
    ShowState(StateOf("ids, no room"));
    QCOMPARE(List("idRoom")->placeholderText(), InQt(TextId::RoomPrompt));
    QCOMPARE(FieldInFocus(), QStringLiteral("idRoom"));
    for (int byte = 1; byte <= IdBytes; ++byte) {
      QVERIFY(!ByteOf("sensor", byte)->isEnabled() && !ByteOf("led", byte)->isEnabled());
      QVERIFY(ByteOf("sensor", byte)->placeholderText().isEmpty());
    }
    QVERIFY(!Find<QRadioButton>("ownOutput")->isEnabled());
  }

  void ARoomShowsItsIdentitiesByteByByte() {
    ShowState(StateOf("ids, no room"));
    PickRow("idRoom", 1);
    for (int byte = 1; byte <= IdBytes; ++byte) {
      const int cell = IdBytes + byte - 1;
      const auto hex = [](int value) {
        return QStringLiteral("%1").arg(value, 2, 16, QLatin1Char('0')).toUpper();
      };
      QCOMPARE(ByteOf("sensor", byte)->currentText(), hex(cell * 7 % 256));
      QCOMPARE(ByteOf("led", byte)->currentText(), hex(cell * 11 % 256));
    }
  }

  void TheBytesOfBothIdentitiesStandInColumns() {
    ShowState(StateOf("ids"));
    for (int byte = 1; byte <= IdBytes; ++byte) {
      const QRect sensor = Place(ByteOf("sensor", byte));
      const QRect led = Place(ByteOf("led", byte));
      QCOMPARE(sensor.left(), led.left());
      QCOMPARE(sensor.size(), Place(ByteOf("sensor", 1)).size());
      QVERIFY(sensor.bottom() < led.top());
    }
    QCOMPARE(Label("sensorLabel")->text(), InQt(TextId::SensorId));
    QCOMPARE(Label("ledLabel")->text(), InQt(TextId::LedId));
  }

  void AByteThatWasChangedIsSeenUntilAnotherRoomIsPicked() {
    ShowState(StateOf("ids"));
    ExpectTextColour(ByteOf("sensor", 3), QPalette::ButtonText, QuietColour);
    Pick("sensor3", "C8");
    QCOMPARE(TempRoomIds[2].Whole(), 0xC8);
    ExpectTextColour(ByteOf("sensor", 3), QPalette::ButtonText, ChangedColour);
    ExpectTextColour(ByteOf("sensor", 4), QPalette::ButtonText, QuietColour);
    PickRow("idRoom", 1);
    ExpectTextColour(ByteOf("sensor", 3), QPalette::ButtonText, QuietColour);
  }

  // --- Valves
  void AValveHereIsToldInWordsAndOneElsewhereInFields() {
    ShowState(StateOf("ids"));
    QVERIFY(Find<QRadioButton>("ownOutput")->isChecked());
    QVERIFY(Label("ownOutputText")->isVisible() && !List("valveLetter")->isVisible());
    QCOMPARE(Label("ownOutputText")->text(),
             InQt(TextId::OwnOutput) + u'1' + InQt(TextId::OwnOutputEnd));
    QCOMPARE(Place(Label("ownOutputText")).center().y(),
             Place(Find<QRadioButton>("ownOutput")).center().y());
    PickRow("valve", 2);
    QVERIFY(Find<QRadioButton>("otherOutput")->isChecked());
    QVERIFY(!Label("ownOutputText")->isVisible() && List("valveLetter")->isVisible());
    QCOMPARE(List("valveLetter")->currentText(), QStringLiteral("B"));
    QCOMPARE(List("valveOutput")->currentText(), QStringLiteral("03"));
    QCOMPARE(Place(List("valveOutput")).center().y(),
             Place(Find<QRadioButton>("otherOutput")).center().y());
  }

  void AValveGetsItsPlaceByKeyboardAlone() {
    ShowState(StateOf("ids"));
    auto* other = Find<QRadioButton>("otherOutput");
    other->setFocus();
    QTest::keyClick(other, Qt::Key_Space);
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Tab);
    QCOMPARE(FieldInFocus(), QStringLiteral("valveLetter"));
    QTest::keyClick(List("valveLetter"), Qt::Key_D);
    QTest::keyClick(List("valveLetter"), Qt::Key_Tab);
    PickRow("valveOutput", 10);
    QCOMPARE(TempTail[FirstValve].Whole(), int{'D'});
    QCOMPARE(TempTail[FirstValve + 1].Whole(), 10);
    ExpectTextColour(List("valveLetter"), QPalette::ButtonText, ChangedColour);
    ExpectTextColour(List("valveOutput"), QPalette::ButtonText, ChangedColour);
    Find<QRadioButton>("ownOutput")->click();
    QCOMPARE(TempTail[FirstValve].Whole(), LetterHere);
    QVERIFY(!List("valveLetter")->isVisible());
  }

  void ThePumpStandsBehindTheRooms() {
    ShowState(StateOf("ids, pump"));
    QCOMPARE(List("valve")->count(), Rooms + 1);
    QCOMPARE(List("valve")->currentText(), InQt(TextId::Pump));
    QCOMPARE(Label("ownOutputText")->text(),
             InQt(TextId::OwnOutput) + u'P' + InQt(TextId::OwnOutputEnd));
  }

  // --- Periods
  void ARoomShowsItsFirstDay() {
    ShowState(StateOf("programme, no room"));
    QCOMPARE(FieldInFocus(), QStringLiteral("programRoom"));
    for (const char* name : {"daysGroup", "periodsGroup", "setpointsGroup", "band"}) {
      QVERIFY2(!Find<QWidget>(name)->isVisible(), name);
    }
    const QSize size = Window()->size();
    PickRow("programRoom", 0);
    QCoreApplication::processEvents();
    QCOMPARE(Window()->size(), size);
    QVERIFY(Find<QRadioButton>("day1")->isChecked());
    QCOMPARE(Label("period1From")->text(), QStringLiteral("06:30"));
    QCOMPARE(Label("period6To")->text(), QStringLiteral("06:30"));
    QCOMPARE(Label("period3Setpoint")->text(), QStringLiteral("30"));
    QCOMPARE(Scroll("period2From")->value(), 540);
    QCOMPARE(Scroll("period3Setpoint")->value(), 30);
  }

  void EachPeriodIsOneRowWithItsTemperature() {
    ShowState(StateOf("programme"));
    QRect above;
    for (int period = 1; period <= PeriodsOfDay; ++period) {
      const QByteArray name = "period" + QByteArray::number(period);
      const QRect label = Place(Label(name + "Label"));
      for (const char* part :
           {"From", "FromScroll", "To", "ToScroll", "Setpoint", "Unit", "SetpointScroll"}) {
        const QRect place = Place(Find<QWidget>(name + part));
        QVERIFY2(qAbs(place.center().y() - label.center().y()) <= 1, name + part);
        QVERIFY2(place.left() > label.right(), name + part);
      }
      QVERIFY(above.isNull() || label.top() > above.bottom());
      above = label;
    }
  }

  void AnArrowMovesABoundaryInBothItsPlacesAndInTheBand() {
    ShowState(StateOf("programme"));
    const QImage band = Find<QWidget>("band")->grab().toImage();
    QScrollBar* scroll = Scroll("period2From");
    for (int click = 0; click < 6; ++click) {
      QTest::mouseClick(scroll, Qt::LeftButton, {}, {scroll->width() - 6, scroll->height() / 2});
    }
    for (const char* label : {"period2From", "period1To"}) {
      QCOMPARE(Label(label)->text(), QStringLiteral("09:30"));
      ExpectTextColour(Label(label), QPalette::WindowText, ChangedColour);
    }
    ExpectTextColour(Label("period3From"), QPalette::WindowText, QuietColour);
    QCOMPARE(Scroll("period1To")->value(), 570);
    QCOMPARE(TempPeriods[2].Whole(), 9);
    QCOMPARE(TempPeriods[3].Whole(), 30);
    QVERIFY(Find<QWidget>("band")->grab().toImage() != band);
    QVERIFY(Find<QWidget>("band")->accessibleDescription().contains(
        QStringLiteral("06:30 – 09:30: 20°C")));
  }

  void ABoundaryIsMovedByKeyboardAndSpringsBack() {
    ShowState(StateOf("programme"));
    QScrollBar* scroll = Scroll("period2To");
    scroll->setFocus();
    QTest::keyClick(scroll, Qt::Key_Left);
    QCOMPARE(Label("period2To")->text(), QStringLiteral("11:55"));
    QTest::keyClick(scroll, Qt::Key_Home);
    QCOMPARE(Label("period2To")->text(), QStringLiteral("09:00"));
    QCOMPARE(scroll->value(), 540);
  }

  void ATemperatureIsSeenAsColdMildOrHot() {
    ShowState(StateOf("programme"));
    ExpectTextColour(Label("period1Setpoint"), QPalette::WindowText, QuietColour);
    ExpectTextColour(Label("period3Setpoint"), QPalette::WindowText, HotColour);
    ExpectTextColour(Label("period6Setpoint"), QPalette::WindowText, ColdColour);
    QScrollBar* scroll = Scroll("period6Setpoint");
    scroll->setFocus();
    QTest::keyClick(scroll, Qt::Key_Right);
    QCOMPARE(Label("period6Setpoint")->text(), QStringLiteral("11"));
    ExpectTextColour(Label("period6Setpoint"), QPalette::WindowText, ChangedColour);
    QTest::keyClick(scroll, Qt::Key_End);
    QCOMPARE(Label("period6Setpoint")->text(), QStringLiteral("40"));
    ExpectTextColour(Label("period6Setpoint"), QPalette::WindowText, HotColour);
    QCOMPARE(TempSetpoints[5].Whole(), 40);
  }

  void TheBandShowsTheDayInTheColoursOfItsTemperatures() {
    ShowState(StateOf("programme"));
    QWidget* band = Find<QWidget>("band");
    QVERIFY(Place(band).top() > Place(Panel("periodsGroup")).bottom());
    QVERIFY(Place(band).width() > Place(Panel("periodsGroup")).width());
    const QImage image = band->grab().toImage();
    const auto at = [&image](double hour) {
      return image.pixelColor(qRound(image.width() * (0.01 + 0.98 * hour / 24)), 4);
    };
    QVERIFY(at(2).blue() > at(2).red() + 20 && at(23).blue() > at(23).red() + 20);
    QVERIFY(at(12.7).red() > at(12.7).blue() + 20);
    QVERIFY(at(10).hslSaturation() < 5);
  }

  void ATickedDayTakesOverTheShownOneAndIsUsedUp() {
    ShowState(StateOf("programme"));
    auto* copy = Find<QCheckBox>("day3Copy");
    QVERIFY(qAbs(Place(copy).center().y() - Place(Find<QRadioButton>("day3")).center().y()) <= 1);
    TempPeriods[2 * DayCells] = 5;
    copy->setFocus();
    QTest::keyClick(copy, Qt::Key_Space);
    QCOMPARE(TempPeriods[2 * DayCells].Whole(), 6);
    QVERIFY(copy->isChecked() && !copy->isEnabled());
    auto* day = Find<QRadioButton>("day3");
    day->setFocus();
    QTest::keyClick(day, Qt::Key_Space);
    QVERIFY(!copy->isChecked() && copy->isEnabled());
  }

  void EveryTimeAndTemperatureHasRoom() {
    ShowState(StateOf("programme"));
    for (int period = 1; period <= PeriodsOfDay; ++period) {
      const QByteArray name = "period" + QByteArray::number(period);
      for (const char* part : {"From", "To", "Setpoint", "Unit", "Label"}) {
        const QLabel* label = Label(name + part);
        QVERIFY2(label->width() >= label->sizeHint().width(), name + part);
      }
    }
  }

  // --- Temperatures
  void TheTemperaturesComeOneByOneAndTheWayOutStaysOpen() {
    ShowState(StateOf("temperatures"));
    QCOMPARE(Label("status")->text(), InQt(TextId::OneMoment));
    QVERIFY(Button("leave")->isEnabled());
    Tell("M2064021");
    QCOMPARE(Label("liveRoom1")->text(), InQt(TextId::Room) + QStringLiteral("1 = 21°C"));
    QVERIFY(Label("liveRoom2")->text().isEmpty());
    Tell("M2067021");
    QCOMPARE(Label("liveRoom4")->text(), InQt(TextId::Dashes));
    EndRead();
    QCOMPARE(Label("status")->text(), InQt(TextId::LiveTemperaturesEnd));
    QVERIFY(!Find<QProgressBar>("bar")->isVisible());
  }

  void TheLongestReportOfARoomIsSeenWhole() {
    ShowState(StateOf("temperatures"));
    const QSize size = Window()->size();
    for (const char* line : {"M2064099", "M2065098", "M2066096"}) Tell(line);
    for (const char* name : {"liveRoom1", "liveRoom2", "liveRoom3"}) {
      QVERIFY2(Label(name)->width() >= Label(name)->sizeHint().width(), name);
    }
    QCOMPARE(Window()->size(), size);
  }

  // --- The window
  void NothingCanBeUsedUntilTheLastCellHasCome() {
    for (const char* name : {"ids, read", "programme, read"}) {
      ShowState(StateOf(name));
      QCOMPARE(Label("status")->text(), InQt(TextId::ReadingData));
      QVERIFY(Find<QProgressBar>("bar")->isVisible());
      for (QWidget* widget : VisibleFields()) {
        QVERIFY2(!widget->isEnabled() || widget->focusPolicy() == Qt::NoFocus,
                 widget->objectName().toUtf8());
      }
      QTest::keyClick(Window(), Qt::Key_Escape);
      QVERIFY(Window()->isVisible());
      EndRead();
      QVERIFY(Button("leave")->isEnabled());
      QCOMPARE(Label("status")->text(), InQt(TextId::EditMode));
      QVERIFY(FieldInFocus().endsWith(QStringLiteral("Room")));
      QTest::keyClick(Window(), Qt::Key_Escape);
      QVERIFY(!Window()->isVisible());
    }
  }

  void EachUseHasItsCaption() {
    const std::pair<const char*, TextId> looks[] = {
        {"idsLook", TextId::RoomIdsTitle},
        {"programLook", TextId::RoomProgramTitle},
        {"liveLook", TextId::LiveTemperaturesTitle},
    };
    const char* states[] = {"ids", "programme", "temperatures"};
    for (int look = 0; look < 3; ++look) {
      ShowState(StateOf(states[look]));
      for (int other = 0; other < 3; ++other) {
        QCOMPARE(Panel(looks[other].first)->isVisible(), other == look);
      }
      QCOMPARE(Panel(looks[look].first)->title(), InQt(looks[look].second));
      EndRead();
      Close({&TemperatureScreen});
    }
  }

  void TheWindowFitsOnASmallDesktop_data() { AddStates(States); }
  void TheWindowFitsOnASmallDesktop() {
    QFETCH(int, state);
    ShowState(States[state]);
    ExpectThatItFitsOnASmallDesktop();
  }

  void EveryStateIsWholeNamedAndInReadingOrder_data() { AddStates(States); }
  void EveryStateIsWholeNamedAndInReadingOrder() {
    QFETCH(int, state);
    ShowState(States[state]);
    ExpectNoFieldCutOffOrCovered();
    ExpectEveryFieldHasANameForAScreenReader();
    // While a table is read, there is nothing that could be done.
    if (!States[state].reads) ExpectTabulatorGoesInReadingOrder();
  }

 private:
  static const TemperatureState& StateOf(const char* name) { return Named(States, name); }

  void ShowState(const TemperatureState& state) {
    TempImage1Loaded = TempImage2Loaded = state.reads ? 0 : 1;
    if (state.reads) {
      RunEvent(state.open);
      // The module is looked for, but nothing is at the other end.
      for (Tick* tick : LinkTicks) tick->Disable();
      Show(TemperatureScreen, [] { Raise(LinkEvent::TemperatureReadStarted); });
    } else {
      Show(TemperatureScreen, state.open);
      RunEvent([&state] {
        TemperatureScreen.ids.room.Pick(state.room);
        TemperatureScreen.ids.valve.Pick(state.valve);
        TemperatureScreen.program.room.Pick(state.room);
      });
    }
    QCoreApplication::processEvents();
  }
  static void EndRead() {
    RunEvent([] {
      Raise(LinkEvent::TemperatureRead);
      UnlockMenus();
    });
  }

  QComboBox* ByteOf(const char* id, int byte) const {
    return List((QByteArray(id) + QByteArray::number(byte)).constData());
  }
  QScrollBar* Scroll(const QByteArray& name) const {
    return Find<QScrollBar>((name + "Scroll").constData());
  }
  static void ExpectTextColour(const QWidget* widget, QPalette::ColorRole role,
                               const Colour& colour) {
    QVERIFY2(widget->palette().color(QPalette::Active, role) == ToQColor(colour),
             qPrintable(widget->objectName()));
  }
};

QTEST_MAIN(TemperatureScreenViewTest)
#include "temperature_screen_view_test.moc"
