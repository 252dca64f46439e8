// The window of the detectors of an alarm module, as a person works in it, in one language.
#include "actions/action_sentence.h"
#include "image/tables.h"
#include "screen_stage.h"
#include "shell/qt/event_guard.h"
#include "special/alarm_screen.h"

using namespace bkconf;

namespace {

constexpr int AddressCell = 121;
constexpr int DelayCell = 124;
constexpr int ServiceCell = 136;
constexpr int TriggerCell = 149;
constexpr int EndCell = 152;
constexpr int ConditionsCell = 221;
constexpr int JoiningCell = 281;
constexpr int NoAction = 42;

/// What the window shows: a detector, and what stands in the editor if it is open.
struct AlarmState {
  const char* name;
  int detector;        ///< -1 for none
  char letter = '\0';  ///< '?' for an editor where nothing is picked, '-' for no action
  int type = -1;
  int action = -1;
};

constexpr AlarmState States[] = {
    {"no detector", -1},
    {"all conditions", 0},
    {"no condition", 1},
    {"light", 2},
    {"time", 3},
    {"editor", 0, '?'},
    {"no action", 0, '-'},
    {"type asked", 1, 'A'},
    {"relay", 0, 'A', 0, 2},
    {"dimmer", 0, 'A', 1, 5},
    {"temperature", 0, 'A', 2},
    {"audio", 0, 'A', 4, 11},
    {"Lumenza", 0, 'A', 5},
    {"context", 0, 'S'},
    {"Corvela", 0, 'Z'},
};

void Put(int first, std::initializer_list<int> values) {
  for (int cell = first; const int value : values) AlarmImage[cell++] = value;
}

/// Every detector without conditions and actions, but for the first ones.
void FillDetectors() {
  for (int detector = 0; detector < 12; ++detector) {
    Put(DelayCell + detector, {0});
    Put(ServiceCell + detector, {0});
    Put(TriggerCell + 6 * detector, {NoAction, NoAction, NoAction, NoAction, NoAction, NoAction});
    Put(ConditionsCell + 5 * detector, {60, 0, 25, 0, 25});
    Put(JoiningCell + detector, {1});
  }
  Put(DelayCell, {15});
  Put(ServiceCell, {1});
  Put(TriggerCell, {'S', 4, 2, 'Z', 4, 12});
  Put(ConditionsCell, {12, 8, 12, 18, 24});
  Put(ConditionsCell + 10, {30, 0, 25, 0, 25});
  Put(ConditionsCell + 15, {60, 22, 24, 0, 25});
}

}  // namespace

class AlarmScreenViewTest : public QObject, private ScreenStage {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { Begin(); }
  void init() {
    ActiveModuleType = AlarmKind;
    AlarmImage[AddressCell] = int{'E'};
    FillDetectors();
    Show(AlarmScreen, OpenAlarmScreen);
  }
  void cleanup() {
    RunEvent([] { AlarmNote.Disable(); });
    Close({&AlarmScreen});
  }

  // --- A detector
  void WithoutADetectorThereIsNothingButTheList() {
    QCOMPARE(List("detector")->placeholderText(), InQt(TextId::DetectorPrompt));
    QCOMPARE(FieldInFocus(), QStringLiteral("detector"));
    QVERIFY(!Find<QCheckBox>("inService")->isVisible());
    for (const char* name : {"triggerAction", "endAction", "noCondition", "level", "period1From",
                             "period2To", "both", "atOnce", "delay"}) {
      QVERIFY2(!Find<QWidget>(name)->isEnabled(), name);
    }
    QTest::keyClick(Window(), Qt::Key_Tab);
    QCOMPARE(FieldInFocus(), QStringLiteral("leave"));
  }

  void ADetectorIsPickedByKeyboardAndShowsWhatItHolds() {
    PickRow("detector", 0);
    const auto* service = Find<QCheckBox>("inService");
    QVERIFY(service->isVisible() && service->isChecked());
    QCOMPARE(service->text(), InQt(TextId::InService));
    QCOMPARE(CellOf("triggerAction"), QStringLiteral("S0502"));
    QCOMPARE(CellOf("endAction"), QStringLiteral("Z0513"));
    QCOMPARE(List("level")->currentText(), QStringLiteral("12"));
    QCOMPARE(List("period1From")->currentText(), QStringLiteral("8"));
    QCOMPARE(List("period2To")->currentText(), QStringLiteral("24"));
    QVERIFY(Find<QRadioButton>("both")->isChecked());
    QCOMPARE(List("delay")->currentText(), QStringLiteral("15"));
    PickRow("detector", 1);
    QCOMPARE(service->text(), InQt(TextId::OutOfService));
    QCOMPARE(CellOf("endAction"), QStringLiteral("***"));
    QVERIFY(Find<QCheckBox>("atOnce")->isChecked() && !List("delay")->isEnabled());
  }

  void TheSwitchOfADetectorStandsBesideItAndChangesItsWords() {
    PickRow("detector", 1);
    auto* service = Find<QCheckBox>("inService");
    QCOMPARE(Place(service).center().y(), Place(List("detector")).center().y());
    service->setFocus();
    QTest::keyClick(service, Qt::Key_Space);
    QCOMPARE(service->text(), InQt(TextId::InService));
    QCOMPARE(AlarmImage[ServiceCell + 1].Whole(), 1);
  }

  // --- Conditions
  void ADetectorWithoutConditionsHidesThemAllAndMovesNothing() {
    PickRow("detector", 0);
    const QSize size = Window()->size();
    const QRect delay = Place(List("delay"));
    auto* none = Find<QCheckBox>("noCondition");
    none->setFocus();
    QTest::keyClick(none, Qt::Key_Space);
    for (const char* name : {"lightGroup", "timeGroup", "both", "either"}) {
      QVERIFY2(!Find<QWidget>(name)->isVisible(), name);
    }
    QCOMPARE(Window()->size(), size);
    QCOMPARE(Place(List("delay")), delay);
    QTest::keyClick(none, Qt::Key_Space);
    QVERIFY(Panel("lightGroup")->isVisible() && Find<QRadioButton>("both")->isVisible());
  }

  void TheJoiningStandsBetweenLightAndTime() {
    PickRow("detector", 0);
    const QRect both = Place(Find<QRadioButton>("both"));
    QVERIFY(Place(Panel("lightGroup")).bottom() < both.top());
    QVERIFY(both.bottom() < Place(Panel("timeGroup")).top());
    QVERIFY(both.right() < Place(Find<QRadioButton>("either")).left());
  }

  void TheHoursStandWithinTheirWords() {
    PickRow("detector", 0);
    const auto expectWithin = [this](const char* label, const char* list, TextId caption) {
      const QStringList words = InQt(caption).simplified().split(u' ');
      const QLabel* before = Label(label);
      QCOMPARE(before->text(), words.first());
      const auto labels = Panel("timeGroup")->findChildren<QLabel*>();
      const auto after = std::find_if(labels.begin(), labels.end(), [&](const QLabel* each) {
        return each->text() == words.last() && Place(each).left() > Place(List(list)).right();
      });
      QVERIFY(after != labels.end());
      QVERIFY(Place(before).right() < Place(List(list)).left());
      QCOMPARE(List(list)->accessibleName(), InQt(caption).simplified());
    };
    expectWithin("period1FromLabel", "period1From", TextId::FromHour);
    expectWithin("period2ToLabel", "period2To", TextId::ToHour);
  }

  void BothPeriodsStandInColumns() {
    PickRow("detector", 0);
    for (const char* name : {"None", "FromLabel", "From", "ToLabel", "To"}) {
      const QRect first = Place(Find<QWidget>((QByteArray("period1") + name).constData()));
      const QRect second = Place(Find<QWidget>((QByteArray("period2") + name).constData()));
      QCOMPARE(first.left(), second.left());
      QVERIFY(first.bottom() < second.top());
    }
  }

  void APickedHourAndLevelReachTheDetector() {
    PickRow("detector", 2);
    Find<QCheckBox>("period1None")->click();
    Pick("period1From", "7");
    Pick("period1To", "9");
    Pick("level", "44");
    Find<QRadioButton>("either")->click();
    QCOMPARE(AlarmImage[ConditionsCell + 10].Whole(), 44);
    QCOMPARE(AlarmImage[ConditionsCell + 11].Whole(), 7);
    QCOMPARE(AlarmImage[ConditionsCell + 12].Whole(), 9);
    QCOMPARE(AlarmImage[JoiningCell + 2].Whole(), 0);
  }

  // --- Actions
  void TheLongCaptionsOfTheActionsAreSeenWhole() {
    PickRow("detector", 0);
    for (const auto& [group, caption] : {std::pair("triggerGroup", TextId::TriggerAction),
                                         std::pair("endGroup", TextId::EndAction)}) {
      const auto labels = Panel(group)->findChildren<QLabel*>();
      QCOMPARE(labels.size(), 1);
      QCOMPARE(labels.front()->text(), InQt(caption));
      QVERIFY(labels.front()->height() >= labels.front()->heightForWidth(labels.front()->width()));
      QCOMPARE(Panel(group)->accessibleName(), InQt(caption).simplified());
    }
    QCOMPARE(Place(Panel("triggerGroup")).height(), Place(Panel("endGroup")).height());
  }

  void AClickOnAnActionTellsItForFiveSeconds() {
    PickRow("detector", 0);
    QVERIFY(Label("note")->text().isEmpty());
    Click(Grid("triggerAction"), 0, 0);
    QCOMPARE(Label("note")->text(), ToQt(OwnActionSentence("S0502")));
    QVERIFY(!Label("note")->text().isEmpty());
    QVERIFY(AlarmNote.Enabled());
    QCOMPARE(AlarmNote.Period(), 5000);
    Click(Grid("endAction"), 0, 0);
    QCOMPARE(Label("note")->text(), ToQt(OwnActionSentence("Z0513")));
    RunEvent([] { AlarmNote.Run(); });
    QVERIFY(Label("note")->text().isEmpty());
    QVERIFY(!AlarmNote.Enabled());
  }

  void EveryNoteHasRoomInItsTwoLines() {
    PickRow("detector", 0);
    Window()->resize(LeastSize());
    QCoreApplication::processEvents();
    const QLabel* note = Label("note");
    for (const char letter : {'S', 'Z', 'E'}) {
      for (int number = 1; number <= 99; ++number) {
        const std::string digits = std::to_string(100 + number).substr(1);
        for (const char* value : {"01", "02", "16", "99"}) {
          const std::string code = letter + digits + value;
          RunEvent([&code] { AlarmScreen.note.caption = OwnActionSentence(code); });
          QVERIFY2(note->heightForWidth(note->width()) <= note->height(), code.c_str());
        }
      }
    }
  }

  void AnActionIsComposedByKeyboardAloneAndStoredByEnter() {
    PickRow("detector", 1);
    Grid("triggerAction")->setFocus();
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Down);
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Return);
    QVERIFY(Panel("editGroup")->isVisible());
    QVERIFY(Panel("editGroup")->isAncestorOf(Window()->focusWidget()));
    for (const auto& [list, key] :
         {std::pair("pickerLetter", Qt::Key_F), std::pair("pickerType", Qt::Key_Down),
          std::pair("pickerOutput", Qt::Key_4), std::pair("pickerAction", Qt::Key_Down)}) {
      while (Window()->focusWidget() != List(list)) QTest::keyClick(Window(), Qt::Key_Tab);
      QTest::keyClick(List(list), key);
    }
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Return);
    QVERIFY(!Panel("editGroup")->isVisible());
    QCOMPARE(Window()->focusWidget(), Grid("triggerAction"));
    QCOMPARE(AlarmImage[TriggerCell + 6].Whole(), int{'F'});
    QCOMPARE(AlarmImage[TriggerCell + 7].Whole(), 3);
    QVERIFY(CellOf("triggerAction").startsWith(QStringLiteral("F04")));
    QCOMPARE(CellOf("endAction"), QStringLiteral("***"));
  }

  void AnActionIsTakenAwayWithTheBoxOfTheEditor() {
    PickRow("detector", 0);
    DoubleClick(Grid("endAction"), 0, 0);
    auto* none = Find<QCheckBox>("noAction");
    none->setFocus();
    QTest::keyClick(none, Qt::Key_Space);
    QVERIFY(!List("pickerLetter")->isEnabled());
    QTest::keyClick(none, Qt::Key_Return);
    QVERIFY(!Panel("editGroup")->isVisible());
    QCOMPARE(CellOf("endAction"), QStringLiteral("***"));
    QCOMPARE(AlarmImage[EndCell].Whole(), NoAction);
    QCOMPARE(CellOf("triggerAction"), QStringLiteral("S0502"));
  }

  void WhatIsNotCompleteStaysInTheEditor() {
    PickRow("detector", 0);
    DoubleClick(Grid("triggerAction"), 0, 0);
    Pick("pickerLetter", "F");
    Press("editConfirm");
    QVERIFY(Panel("editGroup")->isVisible());
    QCOMPARE(CellOf("triggerAction"), QStringLiteral("S0502"));
  }

  void EscapeLeavesTheEditorBeforeItLeavesTheWindow() {
    PickRow("detector", 0);
    Grid("endAction")->setFocus();
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Down);
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Return);
    QVERIFY(Panel("editGroup")->isVisible());
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Escape);
    QVERIFY(!Panel("editGroup")->isVisible() && Window()->isVisible());
    QCOMPARE(Window()->focusWidget(), Grid("endAction"));
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Escape);
    QVERIFY(!Window()->isVisible());
  }

  // --- The window
  void NothingMovesFromOneStateToAnother() {
    ShowState(States[1]);
    Window()->resize(LeastSize());
    QCoreApplication::processEvents();
    const QSize least = LeastSize();
    const QSize size = Window()->size();
    const char* fixed[] = {"detector", "triggerAction", "endAction", "note",         "noCondition",
                           "atOnce",   "delay",         "leave",     "settingsGroup"};
    QMap<QString, QRect> places;
    for (const char* name : fixed) places[QLatin1String(name)] = Place(Find<QWidget>(name));
    for (const AlarmState& state : States) {
      ShowState(state);
      QCOMPARE(LeastSize(), least);
      QCOMPARE(Window()->size(), size);
      for (const char* name : fixed) {
        QVERIFY2(Place(Find<QWidget>(name)) == places[QLatin1String(name)], name);
      }
    }
  }

  void TheWindowFitsOnASmallDesktop() { ExpectThatItFitsOnASmallDesktop(); }

  void EveryStateIsWholeNamedAndInReadingOrder_data() { AddStates(States); }
  void EveryStateIsWholeNamedAndInReadingOrder() {
    QFETCH(int, state);
    ShowState(States[state]);
    ExpectNoFieldCutOffOrCovered();
    ExpectEveryFieldHasANameForAScreenReader();
    ExpectTabulatorGoesInReadingOrder();
  }

 private:
  QTableView* Grid(const char* name) const { return Find<QTableView>(name); }
  QString CellOf(const char* grid) const {
    return Grid(grid)->model()->index(0, 0).data().toString();
  }

  static void ShowState(const AlarmState& state) {
    RunEvent([] { OpenAlarmScreen(); });
    RunEvent([&state] { AlarmScreen.detector.Pick(state.detector); });
    if (state.letter != '\0') RunEvent([] { AlarmScreen.triggerAction.DoubleClick(1, 0); });
    RunEvent([&state] {
      AlarmScreen.noAction.Set(state.letter == '-');
      ActionPicker& picker = AlarmScreen.picker;
      const auto& letters = picker.letter.items;
      const auto letter = std::find(letters.begin(), letters.end(), std::string(1, state.letter));
      if (letter == letters.end()) return;
      picker.letter.Pick(static_cast<int>(letter - letters.begin()));
      picker.type.Pick(state.type);
      picker.mainZone.Choose();
      picker.action.list.Pick(state.action);
    });
    QCoreApplication::processEvents();
  }
};

QTEST_MAIN(AlarmScreenViewTest)
#include "alarm_screen_view_test.moc"
