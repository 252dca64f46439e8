// The window of a simulation module, as a person works in it, in one language.
#include <QSlider>

#include "image/tables.h"
#include "screen_stage.h"
#include "session/state.h"
#include "shell/qt/event_guard.h"
#include "special/simulation_screen.h"

using namespace bkconf;

namespace {

constexpr int StateCell = 123;
constexpr int LightCell = 125;
constexpr int SensitivityCell = 132;
constexpr int FirstParticipant = 135;
constexpr int Switches = 12;

/// What the window shows.
struct SimulationState {
  const char* name;
  bool conditions;
  char letter = '\0';  ///< '?' for an editor where nothing is picked
  int type = -1;
};

constexpr SimulationState States[] = {
    {"conditions", true},      {"no condition", false},   {"editor", true, '?'},
    {"own letter", true, 'I'}, {"type asked", true, 'B'}, {"switches", true, 'B', 1},
    {"context", true, 'S'},    {"code", true, 'Z'},
};

/// Two participants, and room for more.
void FillModule(bool conditions) {
  const int none[] = {60, 0, 25, 0, 25, 1};
  const int some[] = {12, 17, 24, 6, 9, 0};
  for (int cell = 0; cell < 6; ++cell) {
    SimulationImage[LightCell + cell] = conditions ? some[cell] : none[cell];
  }
  SimulationImage[121] = int{'I'};
  SimulationImage[StateCell] = 0;
  SimulationImage[SensitivityCell] = 2;
  for (int cell = FirstParticipant; cell < SimulationImage.Size(); ++cell) {
    SimulationImage[cell] = 42;
  }
  const int participants[] = {'A', 11, 'S', 4};
  for (int cell = 0; cell < 4; ++cell) {
    SimulationImage[FirstParticipant + cell] = participants[cell];
  }
}

}  // namespace

class SimulationScreenViewTest : public QObject, private ScreenStage {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { Begin(); }
  void init() { ActiveModuleType = SimulationKind; }
  void cleanup() { Close({&SimulationScreen}); }

  // --- Settings
  void TheSensitivityIsASliderWithItsWordBesideIt() {
    ShowState(StateOf("conditions"));
    auto* slider = Find<QSlider>("sensitivity");
    QCOMPARE(slider->value(), 2);
    QCOMPARE(slider->maximum(), 4);
    QCOMPARE(Label("sensitivityText")->text(), InQt(TextId::SensitivityMedium));
    QVERIFY(Place(Label("sensitivityText")).left() > Place(slider).right());
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_Right);
    QCOMPARE(Label("sensitivityText")->text(), InQt(TextId::SensitivityLow));
    QCOMPARE(SimulationImage[SensitivityCell].Whole(), 3);
    QTest::keyClick(slider, Qt::Key_Home);
    QCOMPARE(Label("sensitivityText")->text(), InQt(TextId::SensitivityHighest));
    QCOMPARE(slider->accessibleName(), InQt(TextId::Sensitivity));
  }

  void EveryWordOfTheSensitivityHasItsRoom() {
    ShowState(StateOf("conditions"));
    const QSize size = Place(Find<QSlider>("sensitivity")).size();
    for (int place = 0; place <= 4; ++place) {
      RunEvent([place] { SimulationScreen.sensitivity.Move(place); });
      QCoreApplication::processEvents();
      const QLabel* text = Label("sensitivityText");
      QVERIFY(text->width() >= text->sizeHint().width());
      QCOMPARE(Place(Find<QSlider>("sensitivity")).size(), size);
    }
  }

  void TheSwitchOfTheStateChangesItsWords() {
    ShowState(StateOf("conditions"));
    auto* state = Find<QCheckBox>("state");
    QCOMPARE(state->text(), InQt(TextId::StateOff));
    state->setFocus();
    QTest::keyClick(state, Qt::Key_Space);
    QCOMPARE(state->text(), InQt(TextId::StateOn));
    QCOMPARE(SimulationImage[StateCell].Whole(), 1);
  }

  void TheConditionsAreThoseOfADetector() {
    ShowState(StateOf("conditions"));
    QCOMPARE(List("level")->currentText(), QStringLiteral("12"));
    QCOMPARE(List("period2To")->currentText(), QStringLiteral("9"));
    QVERIFY(Find<QRadioButton>("either")->isChecked());
    const QSize size = Window()->size();
    Find<QCheckBox>("noCondition")->click();
    QVERIFY(!Panel("lightGroup")->isVisible() && !Panel("timeGroup")->isVisible());
    QCOMPARE(Window()->size(), size);
    QCOMPARE(SimulationImage[LightCell].Whole(), 60);
  }

  // --- Participants
  void FiveByFiveEntriesAreSeenWithoutScrolling() {
    ShowState(StateOf("conditions"));
    const QTableView* grid = Grid();
    QCOMPARE(grid->model()->rowCount(), 5);
    QCOMPARE(grid->model()->columnCount(), 5);
    for (int row = 0; row < 5; ++row) {
      for (int column = 0; column < 5; ++column) {
        const QModelIndex index = grid->model()->index(row, column);
        QVERIFY(grid->viewport()->rect().contains(grid->visualRect(index)));
        const bool isFree = row > 0 || column > 1;
        QCOMPARE(index.data().toString() == QStringLiteral("*"), isFree);
      }
    }
    QCOMPARE(Cell(0, 0), QStringLiteral("A12"));
    QCOMPARE(Cell(0, 1), QStringLiteral("S05"));
    QCOMPARE(grid->toolTip(), InQt(TextId::EditHint));
  }

  void ParticipantsAreAddedByKeyboardAlone() {
    ShowState(StateOf("conditions"));
    Grid()->setFocus();
    for (int step = 0; step < 3; ++step) QTest::keyClick(Grid(), Qt::Key_Down);
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Return);
    QVERIFY(Panel("editGroup")->isVisible());
    QCOMPARE(FieldInFocus(), QStringLiteral("letter"));
    QTest::keyClick(List("letter"), Qt::Key_C);
    QTest::keyClick(List("letter"), Qt::Key_Tab);
    QCOMPARE(FieldInFocus(), QStringLiteral("type"));
    QTest::keyClick(List("type"), Qt::Key_Down);
    for (const char* name : {"switch1", "switch12"}) {
      while (FieldInFocus() != QLatin1String(name)) QTest::keyClick(Window(), Qt::Key_Tab);
      QTest::keyClick(Window()->focusWidget(), Qt::Key_Space);
    }
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Return);
    QVERIFY(!Panel("editGroup")->isVisible());
    QCOMPARE(Window()->focusWidget(), Grid());
    QCOMPARE(Cell(0, 2), QStringLiteral("C01"));
    QCOMPARE(Cell(0, 3), QStringLiteral("C12"));
    QCOMPARE(SimulationImage[FirstParticipant + 4].Whole(), int{'C'});
  }

  void AFilledEntryGoesAtOnceAndTheOthersMoveUp() {
    ShowState(StateOf("conditions"));
    DoubleClick(Grid(), 0, 0);
    QVERIFY(!Panel("editGroup")->isVisible());
    QCOMPARE(Cell(0, 0), QStringLiteral("S05"));
    QCOMPARE(Cell(0, 1), QStringLiteral("*"));
  }

  void TheTwelveSwitchesStandInRows() {
    ShowState(StateOf("switches"));
    for (int each = 1; each <= Switches; ++each) {
      const auto* box = Find<QCheckBox>(("switch" + std::to_string(each)).c_str());
      QVERIFY(box->isVisible());
      QCOMPARE(box->text(), ToQt(std::to_string(100 + each).substr(1)));
    }
    const auto at = [this](const char* name) { return Place(Find<QCheckBox>(name)); };
    QCOMPARE(at("switch1").top(), at("switch4").top());
    QCOMPARE(at("switch1").left(), at("switch5").left());
    QVERIFY(at("switch5").top() > at("switch1").bottom());
  }

  void AContextAndACodeHaveANumberInTheirPlace() {
    ShowState(StateOf("context"));
    QVERIFY(!Find<QCheckBox>("switch1")->isVisible() && List("number")->isVisible());
    QCOMPARE(Label("numberLabel")->text(), InQt(TextId::ContextCaption));
    QCOMPARE(List("number")->count(), 50);
    const QSize size = Window()->size();
    ShowState(StateOf("code"));
    QCOMPARE(Label("numberLabel")->text(), InQt(TextId::CodeCaption));
    QCOMPARE(List("number")->count(), 99);
    QCOMPARE(Window()->size(), size);
    PickRow("number", 2);
    QTest::keyClick(List("number"), Qt::Key_Return);
    QCOMPARE(Cell(0, 2), QStringLiteral("Z03"));
  }

  void EscapeLeavesTheEditorBeforeItLeavesTheWindow() {
    ShowState(StateOf("switches"));
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Escape);
    QVERIFY(!Panel("editGroup")->isVisible() && Window()->isVisible());
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Escape);
    QVERIFY(!Window()->isVisible());
  }

  // --- The window
  void NothingMovesFromOneStateToAnother() {
    ShowState(StateOf("conditions"));
    const QSize size = Window()->size();
    QMap<QString, QRect> places;
    const char* fixed[] = {"noCondition", "sensitivity", "state", "participants", "leave"};
    for (const char* name : fixed) places[QLatin1String(name)] = Place(Find<QWidget>(name));
    for (const SimulationState& state : States) {
      ShowState(state);
      QCOMPARE(Window()->size(), size);
      for (const char* name : fixed) {
        QVERIFY2(Place(Find<QWidget>(name)) == places[QLatin1String(name)], name);
      }
    }
  }

  void TheWindowFitsOnASmallDesktop() {
    ShowState(StateOf("switches"));
    ExpectThatItFitsOnASmallDesktop();
  }

  void EveryStateIsWholeNamedAndInReadingOrder_data() { AddStates(States); }
  void EveryStateIsWholeNamedAndInReadingOrder() {
    QFETCH(int, state);
    ShowState(States[state]);
    ExpectNoFieldCutOffOrCovered();
    ExpectEveryFieldHasANameForAScreenReader();
    ExpectTabulatorGoesInReadingOrder();
  }

 private:
  static const SimulationState& StateOf(const char* name) { return Named(States, name); }
  void ShowState(const SimulationState& state) {
    FillModule(state.conditions);
    Show(SimulationScreen, OpenSimulationScreen);
    if (state.letter != '\0') RunEvent([] { SimulationScreen.participants.DoubleClick(5, 4); });
    RunEvent([&state] {
      const auto& letters = SimulationScreen.letter.items;
      const auto letter = std::find(letters.begin(), letters.end(), std::string(1, state.letter));
      if (letter == letters.end()) return;
      SimulationScreen.letter.Pick(static_cast<int>(letter - letters.begin()));
      SimulationScreen.type.Pick(state.type);
    });
    QCoreApplication::processEvents();
  }

  QTableView* Grid() const { return Find<QTableView>("participants"); }
  QString Cell(int row, int column) const {
    return Grid()->model()->index(row, column).data().toString();
  }
};

QTEST_MAIN(SimulationScreenViewTest)
#include "simulation_screen_view_test.moc"
