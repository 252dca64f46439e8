// The window of an infrared module, as a person works in it, in one language.
#include "image/tables.h"
#include "screen_stage.h"
#include "session/state.h"
#include "shell/qt/event_guard.h"
#include "special/ir_screen.h"

using namespace bkconf;

namespace {

constexpr int FirstAction = 125;
constexpr int RowSize = 48;
constexpr int OnOff = 10;
constexpr int Keys = 13;

/// What the window shows.
struct IrState {
  const char* name;
  int key;  ///< -1 for none
  char letter = '\0';
  int type = -1;
  int action = -1;
};

constexpr IrState States[] = {
    {"no key", -1},
    {"key", 1},
    {"ON/OFF", OnOff},
    {"type asked", 1, 'A'},
    {"relay", 1, 'A', 0, 2},
    {"dimmer", 1, 'B', 1, 5},
    {"temperature", 1, 'C', 2},
    {"alarm", 1, 'D', 4},
    {"audio", 1, 'F', 5, 11},
    {"simulation", 1, 'G', 6},
    {"Lumenza", 1, 'H', 7},
    {"context", 1, 'S'},
    {"Corvela", 1, 'Z'},
};

/// Key 1 has its first and its sixth row.
void FillModule() {
  for (int cell = FirstAction; cell < IrImage.Size(); ++cell) IrImage[cell] = 42;
  IrImage[121] = int{'J'};
  const int action[] = {'A', 4, 2};
  for (int cell = 0; cell < 3; ++cell) {
    IrImage[FirstAction + 3 + cell] = action[cell];
    IrImage[FirstAction + 5 * RowSize + 3 + cell] = action[cell];
  }
}

}  // namespace

class IrScreenViewTest : public QObject, private ScreenStage {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { Begin(); }
  void init() {
    ActiveModuleType = IrKind;
    FillModule();
  }
  void cleanup() { Close({&IrScreen}); }

  // --- The remote control
  void WithoutAKeyThereIsOnlyTheRemoteControl() {
    ShowState(StateOf("no key"));
    QCOMPARE(Label("instruction")->text(), InQt(TextId::IrInstruction));
    QVERIFY(!Panel("listGroup")->isVisible() && !Panel("editGroup")->isVisible());
    QCOMPARE(FieldInFocus(), QStringLiteral("remote"));
    for (int key = 0; key < Keys; ++key) QVERIFY(!Key(key)->isChecked());
  }

  void EachOfThirteenKeysHasItsNameAndItsList() {
    ShowState(StateOf("no key"));
    for (int key = 0; key < Keys; ++key) {
      QTest::mouseClick(Key(key), Qt::LeftButton);
      QVERIFY(!Key(key)->accessibleName().isEmpty());
      QString title = InQt(TextId::ActionsOfKey) + QString::number(key);
      if (key == OnOff) title = InQt(TextId::ActionsOfOnOff);
      if (key == OnOff + 1) title = InQt(TextId::ActionsOfChannelUp);
      if (key == OnOff + 2) title = InQt(TextId::ActionsOfChannelDown);
      QCOMPARE(Panel("listGroup")->title(), title);
      QVERIFY(Key(key)->isChecked());
    }
  }

  void TheDigitsLieAsOnARemoteControl() {
    ShowState(StateOf("no key"));
    for (int line = 0; line < 3; ++line) {
      const QRect first = Place(Key(3 * line + 1));
      QCOMPARE(Place(Key(3 * line + 2)).top(), first.top());
      QVERIFY(Place(Key(3 * line + 2)).left() > first.right());
      QVERIFY(Place(Key(3 * line + 3)).left() > Place(Key(3 * line + 2)).right());
    }
    QVERIFY(Place(Key(OnOff)).bottom() < Place(Key(1)).top());
    QVERIFY(Place(Key(0)).top() > Place(Key(8)).bottom());
    QCOMPARE(Place(Key(0)).left(), Place(Key(8)).left());
    QVERIFY(Place(Key(OnOff + 1)).top() > Place(Key(0)).bottom());
    QVERIFY(Place(Key(OnOff + 2)).right() < Place(Key(OnOff + 1)).left());
  }

  void EachKeyIsReachedWithTheArrows() {
    ShowState(StateOf("no key"));
    Find<QWidget>("remote")->setFocus();
    QSet<const QWidget*> reached;
    QList<QWidget*> open = {Window()->focusWidget()};
    while (!open.isEmpty()) {
      QWidget* key = open.takeFirst();
      if (reached.contains(key)) continue;
      reached << key;
      for (const auto arrow : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
        key->setFocus();
        QTest::keyClick(key, arrow);
        QCOMPARE(FieldInFocus(), QStringLiteral("remote"));
        open.append(Window()->focusWidget());
      }
    }
    QCOMPARE(reached.size(), Keys);
  }

  void ADigitOfTheKeyboardPressesThatOfTheRemoteControl() {
    ShowState(StateOf("no key"));
    QTest::keyClick(Window()->focusWidget(), Qt::Key_7);
    QCOMPARE(IrScreen.remote.Picked(), 7);
    QCOMPARE(Panel("listGroup")->title(), InQt(TextId::ActionsOfKey) + u'7');
  }

  // --- Its actions
  void AKeyShowsItsEightRows() {
    ShowState(StateOf("key"));
    for (int row = 1; row <= IrRows; ++row) {
      const QByteArray name = "row" + QByteArray::number(row);
      const bool filled = row == 1 || row == 6;
      QCOMPARE(Label(name.constData())->text(), QString::number(row));
      QCOMPARE(Label((name + "Code").constData())->text(),
               filled ? QStringLiteral("A0502") : QStringLiteral("***"));
      QCOMPARE(Button((name + "Erase").constData())->text(), InQt(TextId::EraseRow));
      QCOMPARE(Place(Label((name + "Code").constData())).center().y(),
               Place(Button((name + "Erase").constData())).center().y());
    }
  }

  void ARowIsErased() {
    ShowState(StateOf("key"));
    auto* erase = Button("row6Erase");
    erase->setFocus();
    QTest::keyClick(erase, Qt::Key_Space);
    QCOMPARE(Label("row6Code")->text(), QStringLiteral("***"));
    QCOMPARE(IrImage[FirstAction + 5 * RowSize + 3].Whole(), 42);
  }

  void AnActionIsStoredByKeyboardAlone() {
    ShowState(StateOf("no key"));
    QTest::keyClick(Window()->focusWidget(), Qt::Key_2);
    const auto go = [this](const char* field) {
      while (FieldInFocus() != QLatin1String(field)) QTest::keyClick(Window(), Qt::Key_Tab);
    };
    go("row");
    QTest::keyClick(List("row"), Qt::Key_3);
    go("pickerLetter");
    QTest::keyClick(List("pickerLetter"), Qt::Key_F);
    go("pickerType");
    QTest::keyClick(List("pickerType"), Qt::Key_Down);
    go("pickerOutput");
    QTest::keyClick(List("pickerOutput"), Qt::Key_4);
    go("pickerAction");
    QTest::keyClick(List("pickerAction"), Qt::Key_Down);
    go("store");
    QTest::keyClick(Button("store"), Qt::Key_Return);
    QVERIFY(Label("row3Code")->text().startsWith(QStringLiteral("F04")));
    QCOMPARE(IrImage[FirstAction + 2 * RowSize + 6].Whole(), int{'F'});
    QVERIFY(!Find<QCheckBox>("copy")->isVisible());
  }

  void OnlyFourRowsAreOfferedToBeFilled() {
    ShowState(StateOf("key"));
    QCOMPARE(List("row")->count(), 4);
    QCOMPARE(Panel("editGroup")->title(), InQt(TextId::IrEdit));
  }

  void TheModuleItselfIsNoTarget() {
    ShowState(StateOf("key"));
    Pick("pickerLetter", "J");
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    QVERIFY(box != nullptr);
    QCOMPARE(box->text(), InQt(TextId::IrToItself));
    box->close();
    QVERIFY(!List("pickerOutput")->isVisible());
  }

  // --- The window
  void NothingMovesFromOneStateToAnother() {
    ShowState(StateOf("no key"));
    const QSize size = Window()->size();
    QMap<QString, QRect> places;
    const char* fixed[] = {"instruction", "remote", "listGroup", "editGroup", "store", "leave"};
    for (const IrState& state : States) {
      ShowState(state);
      QCOMPARE(Window()->size(), size);
      for (const char* name : fixed) {
        const auto* widget = Find<QWidget>(name);
        if (!widget->isVisible()) continue;
        const QRect place = Place(widget);
        if (!places.contains(QLatin1String(name))) places[QLatin1String(name)] = place;
        QVERIFY2(places[QLatin1String(name)] == place, name);
      }
    }
  }

  void TheWindowFitsOnASmallDesktop() {
    ShowState(StateOf("audio"));
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
  static const IrState& StateOf(const char* name) { return Named(States, name); }
  void ShowState(const IrState& state) {
    Show(IrScreen, OpenIrScreen);
    RunEvent([&state] { IrScreen.remote.Pick(state.key); });
    RunEvent([&state] {
      ActionPicker& picker = IrScreen.picker;
      const auto& letters = picker.letter.items;
      const auto letter = std::find(letters.begin(), letters.end(), std::string(1, state.letter));
      if (letter == letters.end()) return;
      IrScreen.row.Pick(0);
      picker.letter.Pick(static_cast<int>(letter - letters.begin()));
      picker.type.Pick(state.type);
      picker.mainZone.Choose();
      picker.action.list.Pick(state.action);
    });
    QCoreApplication::processEvents();
  }

  QPushButton* Key(int key) const { return Button(("remote" + std::to_string(key)).c_str()); }
};

QTEST_MAIN(IrScreenViewTest)
#include "ir_screen_view_test.moc"
