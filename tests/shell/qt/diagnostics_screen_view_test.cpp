// The window of the live tests, as a person works in it, in one language. What a module would say
// is said to the logic.
#include <QListWidget>
#include <QProgressBar>
#include <QScrollBar>

#include "diagnostics/clock_panel.h"
#include "diagnostics/detector_panel.h"
#include "diagnostics/diagnostics_screen.h"
#include "diagnostics/live_test.h"
#include "image/tables.h"
#include "link/link_events.h"
#include "link/link_ticks.h"
#include "link/transfer.h"
#include "screen_stage.h"
#include "session/state.h"
#include "shell/qt/event_guard.h"

using namespace bkconf;

namespace {

constexpr int Relay = 0;
constexpr int Alarm = 5;
constexpr int Master = 9;
constexpr int CountCell = 123;
constexpr int VersionCell = 148;
constexpr int Measuring = 70;

/// How far a test has come.
enum class Stage { Chosen, Searching, Running };

/// What the window shows.
struct TestState {
  const char* name;
  int kind;
  int version;
  const char* choice;  ///< empty for none
  const char* start;   ///< the button that starts the test
  Stage stage;
  int detectors = 12;
};

constexpr TestState States[] = {
    {"relay", Relay, 1, "", "", Stage::Chosen},
    {"later relay", Relay, 80, "", "", Stage::Chosen},
    {"line", Relay, 1, "lineChoice", "lineStart", Stage::Chosen},
    {"line, searching", Relay, 1, "lineChoice", "lineStart", Stage::Searching},
    {"line, running", Relay, 1, "lineChoice", "lineStart", Stage::Running},
    {"buttons", Relay, 1, "buttonsChoice", "buttonsStart", Stage::Chosen},
    {"buttons, running", Relay, 1, "buttonsChoice", "buttonsStart", Stage::Running},
    {"outputs", Relay, 1, "outputsChoice", "outputsStart", Stage::Chosen},
    {"outputs, running", Relay, 1, "outputsChoice", "outputsStart", Stage::Running},
    {"master", Master, 1, "", "", Stage::Chosen},
    {"light", Master, 1, "lightChoice", "lightStart", Stage::Chosen},
    {"light, running", Master, 1, "lightChoice", "lightStart", Stage::Running},
    {"clock", Master, 1, "clockChoice", "ask", Stage::Chosen},
    {"clock, running", Master, 1, "clockChoice", "ask", Stage::Running},
    {"alarm", Alarm, Measuring, "", "", Stage::Chosen},
    {"detectors", Alarm, Measuring, "detectorsChoice", "detectorsStart", Stage::Chosen},
    {"detectors, running", Alarm, Measuring, "detectorsChoice", "detectorsStart", Stage::Running},
    {"five detectors", Alarm, Measuring, "detectorsChoice", "detectorsStart", Stage::Running, 5},
    {"short lines", Alarm, 60, "detectorsChoice", "detectorsStart", Stage::Running},
    {"audio", 6, 1, "", "", Stage::Chosen},
};

QColor ToQColor(const Colour& colour) {
  return {colour.red, colour.green, colour.blue};
}

void Tell(const std::string& line) {
  RunEvent([&line] {
    RxLine = line;
    Raise(LinkEvent::TestLineReceived);
  });
}

/// Number, contact, measured value, level and code, as a module sends them.
std::string DetectorLine(int detector, bool triggered) {
  const std::string number = std::to_string(100 + detector).substr(1);
  return "A" + number + (triggered ? "1" : "0") + "00123" + "015" + "10";
}

}  // namespace

class DiagnosticsScreenViewTest : public QObject, private ScreenStage {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { Begin(); }
  void cleanup() {
    End();
    Close({&DiagnosticsScreen});
  }

  // --- Colours
  void AStateIsSeenByItsColour() {
    ShowState(StateOf("detectors"));
    Run("detectorsStart");
    Tell(DetectorLine(0, true));
    Tell(DetectorLine(1, false));
    ExpectColour(Label("detector1Contact"), QPalette::Window, TriggerColour);
    QCOMPARE(Label("detector1Contact")->text(), InQt(TextId::ContactTrigger));
    ExpectColour(Label("detector2Contact"), QPalette::Window, RestColour);
    ExpectColour(Label("detector3Contact"), QPalette::Window, PanelColour);
    Tell(DetectorLine(0, false));
    ExpectColour(Label("detector1Contact"), QPalette::Window, RestColour);
    QCOMPARE(Label("detector1Contact")->grab().toImage().pixelColor(4, 8), ToQColor(RestColour));
  }

  void AnEditedFieldOfADetectorIsSeenUntilItIsSent() {
    ShowState(StateOf("detectors, running"));
    ExpectColour(List("detector3Level"), QPalette::Button, PanelColour);
    Pick("detector3Level", "160");
    Pick("detector3Logic", ">");
    ExpectColour(List("detector3Level"), QPalette::Button, EditedColour);
    ExpectColour(List("detector3Logic"), QPalette::Button, EditedColour);
    ExpectColour(List("detector4Level"), QPalette::Button, PanelColour);
    Press("update");
    QVERIFY(!List("detector3Level")->isEnabled() && !Button("update")->isEnabled());
    for (int detector = 0; detector < 12; ++detector) RunEvent([] { DetectorUpdate.Run(); });
    ExpectColour(List("detector3Level"), QPalette::Button, PanelColour);
    QVERIFY(List("detector3Level")->isEnabled() && Button("update")->isEnabled());
  }

  void ValuesLookLikeBoxesThatAreRead() {
    ShowState(StateOf("line"));
    QLabel* value = Label("lineLevel");
    ExpectColour(value, QPalette::Window, PanelColour);
    QVERIFY(value->text().isEmpty() && value->width() > 60);
    QVERIFY(value->height() >= Button("lineStop")->height());
    const QRect place = Place(value);
    Run("lineStart");
    Tell("A10042");
    QCOMPARE(value->text(), QStringLiteral("42"));
    QCOMPARE(Place(value), place);
    const QImage image = value->grab().toImage();
    QVERIFY(image.pixelColor(0, image.height() / 2) != image.pixelColor(3, image.height() / 2));
  }

  void ANoteOnALaterModuleIsGreenAndWhole() {
    ShowState(StateOf("later relay"));
    const QLabel* notice = Label("notice");
    QVERIFY(notice->isVisible());
    QCOMPARE(notice->text(), InQt(TextId::UseZentrix));
    ExpectColour(notice, QPalette::Window, RestColour);
    QVERIFY(notice->heightForWidth(notice->width()) <= notice->height());
    QVERIFY(Button("lineChoice")->isEnabled() && !Button("outputsChoice")->isEnabled());
  }

  // --- A test
  void ATestIsChosenStartedAndStoppedByKeyboard() {
    ShowState(StateOf("relay"));
    QCOMPARE(FieldInFocus(), QStringLiteral("lineChoice"));
    QTest::keyClick(Window(), Qt::Key_Tab);
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Space);
    QVERIFY(Panel("buttonsGroup")->isVisible());
    while (Window()->focusWidget() != Button("buttonsStart")) {
      QTest::keyClick(Window(), Qt::Key_Tab);
    }
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Return);
    StopLink();
    QCOMPARE(Label("status")->text(), InQt(TextId::SearchingModule));
    QVERIFY(!Button("buttonsStop")->isEnabled());
    AcceptTest();
    QCOMPARE(Label("status")->text(), InQt(TextId::TestingButtons));
    while (Window()->focusWidget() != Button("buttonsStop")) {
      QTest::keyClick(Window(), Qt::Key_Tab);
    }
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Return);
    QCOMPARE(Label("status")->text(), InQt(TextId::Ready));
    QVERIFY(Button("buttonsStart")->isEnabled() && Button("leave")->isEnabled());
  }

  void WhileATestRunsEscapeLeavesNothing_data() {
    AddStatesIf([](const TestState& each) { return each.stage != Stage::Chosen; });
  }
  void WhileATestRunsEscapeLeavesNothing() {
    QFETCH(int, state);
    ShowState(States[state]);
    QVERIFY(!Button("leave")->isEnabled());
    for (const char* choice : {"lineChoice", "buttonsChoice", "outputsChoice"}) {
      QVERIFY2(!Button(choice)->isEnabled(), choice);
    }
    QTest::keyClick(Window(), Qt::Key_Escape);
    QVERIFY(Window()->isVisible() && DiagnosticsScreen.shown);
    End();
    QVERIFY(Button("leave")->isEnabled());
    QTest::keyClick(Window(), Qt::Key_Escape);
    QVERIFY(!Window()->isVisible());
  }

  void ClosingTheWindowLeavesARunningTest_data() {
    AddStatesIf([](const TestState& each) { return each.stage != Stage::Chosen; });
  }
  void ClosingTheWindowLeavesARunningTest() {
    QFETCH(int, state);
    ShowState(States[state]);
    Window()->close();
    QVERIFY(!Window()->isVisible() && !DiagnosticsScreen.shown);
    QVERIFY(RunningTest == nullptr);
  }

  void TheBarShowsWhatHasComeAndGoesWithTheTest() {
    ShowState(StateOf("line"));
    const QRect status = Place(Label("status"));
    Run("lineStart");
    const auto* bar = Find<QProgressBar>("bar");
    QVERIFY(bar->isVisible());
    QCOMPARE(bar->maximum(), 10);
    Tell("A10042");
    Tell("A10043");
    QCOMPARE(bar->value(), 2);
    End();
    QVERIFY(!bar->isVisible());
    QCOMPARE(Place(Label("status")), status);
  }

  // --- Panels
  void TheHistoryKeepsItsNewestRowInView() {
    ShowState(StateOf("buttons"));
    Run("buttonsStart");
    auto* history = Find<QListWidget>("history");
    for (unsigned second = 0; second < 40; ++second) PressModuleButton(second);
    QCOMPARE(history->count(), 40);
    QCOMPARE(Label("pressed")->text(), QStringLiteral("40"));
    QVERIFY(IsInView(history, 39));
    QVERIFY(!IsInView(history, 0));
    // Who reads further up is not disturbed.
    history->verticalScrollBar()->setValue(0);
    PressModuleButton(40);
    QVERIFY(IsInView(history, 0));
    history->scrollToBottom();
    PressModuleButton(41);
    QVERIFY(IsInView(history, 41));
  }

  void ANewTestEmptiesTheHistory() {
    ShowState(StateOf("buttons, running"));
    QVERIFY(Find<QListWidget>("history")->count() > 0);
    End();
    Run("buttonsStart");
    QCOMPARE(Find<QListWidget>("history")->count(), 0);
  }

  void TheFieldsOfTheDetectorsStandInColumns() {
    ShowState(StateOf("detectors, running"));
    const QByteArray suffixes[] = {"", "Contact", "Measured", "Logic", "Level"};
    const char* headings[] = {"numberColumn", "contactColumn", "measuredColumn", "logicColumn",
                              "levelColumn"};
    int row = 0;
    for (int column = 0; column < 5; ++column) {
      const QRect heading = Place(Label(headings[column]));
      for (int detector = 1; detector <= 12; ++detector) {
        const QByteArray name = "detector" + QByteArray::number(detector) + suffixes[column];
        const QRect place = Place(Find<QWidget>(name.constData()));
        QVERIFY2(place.left() == heading.left() && place.width() == heading.width(), name);
        if (column == 0) row = place.center().y();
        QVERIFY2(place.top() > heading.bottom(), name);
      }
    }
    QVERIFY(row > 0);
  }

  void DetectorsThatAreNotInUseLeaveNoHole() {
    ShowState(StateOf("five detectors"));
    QVERIFY(Label("detector5")->isVisible() && !Label("detector6")->isVisible());
    QVERIFY(!List("detector12Level")->isVisible());
    const QRect last = Place(List("detector5Level"));
    QVERIFY(Place(Panel("detectorsGroup")).bottom() - last.bottom() < 2 * last.height());
  }

  void TheLegendOfTheDetectorsIsShownWhereThereIsOne() {
    ShowState(StateOf("detectors"));
    QCOMPARE(Label("detectorsHelp")->isVisible(), Language.Number() == Dutch);
  }

  void TheOutputsAreTilesThatSwitch() {
    ShowState(StateOf("outputs"));
    QVERIFY(!Button("output1")->isEnabled());
    Run("outputsStart");
    for (int output = 2; output <= 12; ++output) {
      const auto* tile = Button(("output" + std::to_string(output)).c_str());
      QCOMPARE(tile->size(), Button("output1")->size());
      QVERIFY(tile->isEnabled());
      QCOMPARE(tile->text(), ToQt(std::to_string(100 + output).substr(1)));
    }
    QCOMPARE(Place(Button("output2")).top(), Place(Button("output1")).top());
    Press("outputsStop");
    QVERIFY(!Button("output1")->isEnabled());
  }

  void BothClocksStandSideBySideAndLineByLine() {
    ShowState(StateOf("clock, running"));
    for (const char* field : {"Hour", "Date", "Weekday"}) {
      const QLabel* master = Label((QByteArray("masterClock") + field).constData());
      const QLabel* pc = Label((QByteArray("pcClock") + field).constData());
      QCOMPARE(Place(master).top(), Place(pc).top());
      QCOMPARE(master->size(), pc->size());
      QVERIFY(!master->text().isEmpty() && !pc->text().isEmpty());
    }
    QVERIFY(Place(Panel("masterClockGroup")).right() < Place(Panel("pcClockGroup")).left());
    QCOMPARE(Panel("masterClockGroup")->size(), Panel("pcClockGroup")->size());
  }

  void TheClockOfTheMasterIsSetAndToldSo() {
    ShowState(StateOf("clock, running"));
    End();
    QVERIFY(Button("synchronise")->isEnabled());
    Press("synchronise");
    QCOMPARE(Label("status")->text(), InQt(TextId::SendingClock));
    RunEvent([] { ClockSend.Run(); });
    RunEvent([] { ClockSend.Run(); });
    QCOMPARE(Button("synchronise")->text(), InQt(TextId::Ok));
    QVERIFY(!Button("synchronise")->isEnabled());
    QCOMPARE(Label("masterClockDate")->text(), QStringLiteral("29-02-2024"));
  }

  // --- The window
  void OneChoiceHidesThePanelOfAnotherInTheSamePlace() {
    ShowState(StateOf("relay"));
    QPoint place;
    const char* groups[] = {"lineGroup", "buttonsGroup", "outputsGroup"};
    for (int choice = 0; choice < 3; ++choice) {
      Press(std::to_array({"lineChoice", "buttonsChoice", "outputsChoice"})
                .at(static_cast<std::size_t>(choice)));
      QCoreApplication::processEvents();
      for (int group = 0; group < 3; ++group) {
        QCOMPARE(Panel(groups[group])->isVisible(), group == choice);
      }
      if (choice == 0) place = Place(Panel(groups[choice])).topLeft();
      QCOMPARE(Place(Panel(groups[choice])).topLeft(), place);
    }
  }

  void NothingMovesFromOneStateToAnother() {
    ShowState(StateOf("detectors"));
    Window()->resize(LeastSize());
    for (const int kind : {Relay, Master, Alarm}) {
      QMap<QString, QRect> places;
      QSize size;
      for (const TestState& state : States) {
        if (state.kind != kind) continue;
        ShowState(state);
        if (size.isEmpty()) size = Window()->size();
        QCOMPARE(Window()->size(), size);
        for (const char* name : {"heading", "lineChoice", "buttonsChoice", "status", "leave"}) {
          const QRect place = Place(Find<QWidget>(name));
          if (!places.contains(QLatin1String(name))) places[QLatin1String(name)] = place;
          QVERIFY2(places[QLatin1String(name)] == place, name);
        }
        End();
      }
    }
  }

  void TheWindowFitsOnASmallDesktop_data() {
    AddStatesIf([](const TestState&) { return true; });
  }
  void TheWindowFitsOnASmallDesktop() {
    QFETCH(int, state);
    ShowState(States[state]);
    ExpectThatItFitsOnASmallDesktop();
  }

  void EveryStateIsWholeNamedAndInReadingOrder_data() {
    AddStatesIf([](const TestState&) { return true; });
  }
  void EveryStateIsWholeNamedAndInReadingOrder() {
    QFETCH(int, state);
    ShowState(States[state]);
    ExpectNoFieldCutOffOrCovered();
    ExpectEveryFieldHasANameForAScreenReader();
    // While the module is looked for, there is nothing that could be done.
    if (States[state].stage != Stage::Searching) ExpectTabulatorGoesInReadingOrder();
  }

 private:
  static const TestState& StateOf(const char* name) { return Named(States, name); }
  static void AddStatesIf(bool (*wanted)(const TestState&)) {
    QTest::addColumn<int>("state");
    for (int state = 0; const TestState& each : States) {
      if (wanted(each)) QTest::newRow(each.name) << state;
      ++state;
    }
  }

  void ShowState(const TestState& state) {
    ActiveModuleType = state.kind;
    ModuleVersion = state.version;
    AlarmImage[CountCell] = state.detectors;
    AlarmImage[VersionCell] = state.version;
    Show(DiagnosticsScreen, OpenDiagnosticsScreen);
    if (*state.choice != '\0') Press(state.choice);
    if (state.stage == Stage::Searching) Start(state.start);
    if (state.stage == Stage::Running) {
      Run(state.start);
      TellSome(state);
    }
    QCoreApplication::processEvents();
  }

  /// The module is looked for, but nothing is at the other end.
  void Start(const char* button) {
    Press(button);
    StopLink();
  }
  void Run(const char* button) {
    Start(button);
    AcceptTest();
  }
  static void StopLink() {
    for (Tick* tick : LinkTicks) tick->Disable();
  }
  static void AcceptTest() {
    RunEvent([] {
      Raise(LinkEvent::TestStarted);
      Raise(LinkEvent::LineTestReady);
    });
  }
  /// As a module ends a test.
  static void End() {
    RunEvent([] {
      Raise(LinkEvent::TestEnded);
      UnlockMenus();
    });
  }

  /// Some of what the module of a running test sends.
  static void TellSome(const TestState& state) {
    const QByteArray choice(state.choice);
    if (choice == "lineChoice") Tell("A10042");
    if (choice == "lightChoice") Tell("A17");
    if (choice == "buttonsChoice") {
      for (unsigned second = 0; second < 30; ++second) PressModuleButton(second);
    }
    if (choice == "clockChoice") {
      Tell("A1834");
      Tell("A28022424");
    }
    if (choice != "detectorsChoice") return;
    for (int detector = 0; detector < state.detectors; ++detector) {
      const std::string line = DetectorLine(detector, detector % 3 == 1);
      Tell(state.version < 65 ? line.substr(0, 4) : line);
    }
  }
  static void PressModuleButton(unsigned second) {
    const auto now = Now;
    Now = [second] {
      return Moment{
          .date = {2024, 2, 29}, .hour = 10, .minute = second / 60, .second = second % 60};
    };
    Tell("A" + std::to_string(100 + second).substr(1));
    Now = now;
  }

  static void ExpectColour(const QWidget* widget, QPalette::ColorRole role, const Colour& colour) {
    QVERIFY2(widget->palette().color(role) == ToQColor(colour), qPrintable(widget->objectName()));
  }
  static bool IsInView(const QListWidget* list, int row) {
    return list->viewport()->rect().contains(list->visualItemRect(list->item(row)));
  }
};

QTEST_MAIN(DiagnosticsScreenViewTest)
#include "diagnostics_screen_view_test.moc"
