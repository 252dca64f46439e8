// The windows of a master's contexts, time programmes and light programmes, as a person works in
// them, in one language.
#include "master_house.h"
#include "master_stage.h"
#include "shell/qt/event_guard.h"

using namespace bkconf;

class MasterScreensViewTest : public QObject, private MasterStage {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { Begin(); }
  void init() { FillHouse(); }
  void cleanup() { CloseAll(); }

  // --- Contexts
  void TheActionsOfAContextAreReadLineByLine() {
    FillContext(1, 7);
    ShowContext(1);
    QVERIFY(!Grid()->horizontalHeader()->isVisible());
    QVERIFY(!Grid()->verticalHeader()->isVisible());
    QCOMPARE(Grid()->model()->rowCount(), 20);
    QCOMPARE(Grid()->model()->columnCount(), 5);
    QCOMPARE(CellText(0, 4), QStringLiteral("A0502"));
    QCOMPARE(CellText(1, 1), QStringLiteral("A0702"));
    QCOMPARE(CellText(1, 2), QString());
    QCOMPARE(List("chooser")->currentText(), InQt(TextId::ContextSentence) + u'2');
  }

  void TheArrowKeysGoFromActionToActionAndTellEachInWords() {
    ShowContext(0);
    ClickCell(0, 0);
    QSet<QString> sentences = {Sentence()->text()};
    for (int step = 1; step < UsedPlaces; ++step) {
      QTest::keyClick(Grid(), Qt::Key_Right);
      QCOMPARE(Grid()->currentIndex(), Grid()->model()->index(0, step));
      sentences.insert(Sentence()->text());
    }
    QCOMPARE(sentences.size(), UsedPlaces);
    QTest::keyClick(Grid(), Qt::Key_Down);
    QCOMPARE(Grid()->currentIndex(), Grid()->model()->index(1, 4));
    QVERIFY(Sentence()->text().isEmpty());
  }

  void NothingOpensWithoutAContext() {
    Show(ContextScreen, OpenContextScreen);
    QCOMPARE(List("chooser")->placeholderText(), InQt(TextId::ContextPrompt));
    DoubleClick(0, 0);
    QVERIFY(!Panel("editGroup")->isVisible() && !Panel("deleteGroup")->isVisible());
  }

  void AnActionIsComposedByKeyboardAloneAndStoredByEnter() {
    ShowContext(0);
    ClickCell(3, 2);
    QTest::keyClick(Grid(), Qt::Key_Return);
    QVERIFY(Panel("editGroup")->isVisible());
    QCOMPARE(Panel("editGroup")->title(), InQt(TextId::EditTitle));
    QCOMPARE(Window()->focusWidget(), List("pickerLetter"));
    QTest::keyClick(Window()->focusWidget(), Qt::Key_B);
    QCOMPARE(List("pickerType")->currentText(), InQt(TextId::DimType));
    for (const auto& [list, downs] : {std::pair("pickerOutput", 3), std::pair("pickerAction", 5)}) {
      QTest::keyClick(Window(), Qt::Key_Tab);
      while (Window()->focusWidget() != List(list)) QTest::keyClick(Window(), Qt::Key_Tab);
      for (int step = 0; step < downs; ++step) QTest::keyClick(List(list), Qt::Key_Down);
    }
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Return);
    QVERIFY(!Panel("editGroup")->isVisible());
    QCOMPARE(CellText(1, 0), QStringLiteral("B0320"));
    QCOMPARE(Find<QLabel>("memory")->text(), QStringLiteral("277"));
    QCOMPARE(Window()->focusWidget(), Grid());
    QCOMPARE(MasterContextsDirty.Whole(), 1);
  }

  void ABoxBesideTheOutputStandsForAllOfThem() {
    ShowContext(1);
    DoubleClick(0, 0);
    Pick("pickerLetter", "D");
    auto* all = Find<QCheckBox>("pickerAllOutputs");
    QVERIFY(all->isVisible());
    QCOMPARE(all->text(), InQt(TextId::AllOutputs));
    QVERIFY(Place(all).left() > Place(List("pickerOutput")).right());
    QVERIFY(Place(all).right() < Place(List("pickerAction")).left());
    QCOMPARE(Place(all).center().y(), Place(List("pickerOutput")).center().y());
    all->setFocus();
    QTest::keyClick(all, Qt::Key_Space);
    QVERIFY(!List("pickerOutput")->isEnabled());
    Pick("pickerAction", "Toggle");
    Press("editConfirm");
    QCOMPARE(CellText(0, 0), QStringLiteral("D0102"));
    QCOMPARE(CellText(2, 1), QStringLiteral("D1202"));
    QCOMPARE(CellText(2, 2), QString());
  }

  void AnActionIsDeletedAfterAQuestion() {
    ShowContext(0);
    DoubleClick(0, 1);
    QCOMPARE(Panel("deleteGroup")->title(), InQt(TextId::DeleteTitle));
    QVERIFY(Find<QRadioButton>("deleteAction")->isChecked());
    QVERIFY(!Panel("editGroup")->isVisible());
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Return);
    QVERIFY(!Panel("deleteGroup")->isVisible());
    QCOMPARE(CellText(0, 1), QStringLiteral("A0302"));
    QCOMPARE(CellText(0, 4), QString());
    QCOMPARE(Window()->focusWidget(), Grid());
  }

  void AWholeContextIsDeletedByTheSecondChoice() {
    ShowContext(0);
    DoubleClick(0, 1);
    QTest::mouseClick(Find<QRadioButton>("deleteContext"), Qt::LeftButton, {}, {6, 8});
    QVERIFY(!Find<QRadioButton>("deleteAction")->isChecked());
    Press("deleteConfirm");
    QCOMPARE(CellText(0, 0), QString());
    QCOMPARE(Find<QLabel>("memory")->text(), QStringLiteral("283"));
  }

  void AFullMemoryIsToldAndNothingOpens() {
    FillContext(0, 100);
    FillContext(1, 100);
    FillContext(2, 83);
    ShowContext(2);
    QCOMPARE(Find<QLabel>("memory")->text(), QStringLiteral("0"));
    DoubleClick(19, 0);
    const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    QVERIFY(box != nullptr);
    QCOMPARE(box->text(), InQt(TextId::MemoryFull));
    QCOMPARE(box->parentWidget(), Window());
    QVERIFY(!Panel("editGroup")->isVisible());
  }

  // --- Time and light programmes
  void ATimeProgramIsComposedAndStored() {
    Show(TimeProgramScreen, OpenTimeProgramScreen);
    DoubleClick(UsedPlaces + 3, 0);
    QVERIFY(!List("time")->isVisible() && !List("day")->isVisible());
    Pick("pickerLetter", "S");
    Pick("pickerOutput", "12");
    Pick("time", "23:50");
    PickRow("day", 8);
    Press("editConfirm");
    QCOMPARE(CellText(UsedPlaces, 1), QStringLiteral("S1202"));
    QCOMPARE(CellText(UsedPlaces, 2), QStringLiteral("23:50"));
    QCOMPARE(CellText(UsedPlaces, 3), InQt(TextId::EveryDay));
    QCOMPARE(Find<QLabel>("memory")->text(), QString::number(TimeSlots - UsedPlaces - 1));
    QCOMPARE(MasterTimeDirty.Whole(), 1);
  }

  void ADateIsPickedInTheCalendar() {
    ShowState(StateOf("times, dimmer"));
    PickRow("day", 7);
    auto* calendar = Find<QCalendarWidget>("calendar");
    auto* days = calendar->findChild<QTableView*>();
    QVERIFY(calendar->isVisible());
    QCOMPARE(Window()->focusWidget(), days);
    QVERIFY(!Button("editConfirm")->isEnabled() && !Button("editLeave")->isEnabled());
    QVERIFY(Place(calendar).top() > Place(List("day")).bottom());
    QTest::keyClick(days, Qt::Key_Left);
    QTest::keyClick(days, Qt::Key_Return);
    QVERIFY(!calendar->isVisible());
    QCOMPARE(List("day")->placeholderText(), QStringLiteral("28-02-24"));
    QVERIFY(Button("editConfirm")->isEnabled());
    QCOMPARE(Window()->focusWidget(), List("day"));
    Pick("pickerOutput", "2");
    Pick("pickerAction", "50%");
    Pick("time", "06:05");
    QTest::keyClick(List("time"), Qt::Key_Return);
    QCOMPARE(CellText(UsedPlaces, 1), QStringLiteral("B0250"));
    QCOMPARE(CellText(UsedPlaces, 3), QStringLiteral("28-02-24"));
  }

  void AnotherDayEndsTheQuestionForADate() {
    ShowState(StateOf("times, dimmer"));
    PickRow("day", 7);
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Escape);
    QVERIFY(Find<QCalendarWidget>("calendar")->isVisible());
    PickRow("day", 3);
    QVERIFY(!Find<QCalendarWidget>("calendar")->isVisible());
    QVERIFY(Button("editLeave")->isEnabled());
    QTest::keyClick(List("day"), Qt::Key_Escape);
    QVERIFY(!Panel("editGroup")->isVisible());
    QVERIFY(Window()->isVisible());
  }

  void ALightProgramIsComposedAndStored() {
    Show(LightProgramScreen, OpenLightProgramScreen);
    DoubleClick(UsedPlaces, 2);
    QVERIFY(!Panel("levelGroup")->isVisible());
    Pick("pickerLetter", "Z");
    QVERIFY(Panel("levelGroup")->isVisible());
    QCOMPARE(Panel("levelGroup")->title(), InQt(TextId::LevelFrame));
    QVERIFY(Place(Find<QLabel>("darkEnd")).right() < Place(List("level")).left());
    QVERIFY(Place(Find<QLabel>("lightEnd")).left() > Place(List("level")).right());
    QVERIFY(Place(Find<QLabel>("levelLabel")).bottom() < Place(List("level")).top());
    QCOMPARE(List("level")->toolTip(), InQt(TextId::LevelHint));
    Pick("pickerOutput", "05");
    Pick("pickerAction", "12");
    Pick("level", "07");
    QTest::mouseClick(Find<QRadioButton>("darkToLight"), Qt::LeftButton, {}, {6, 8});
    Press("editConfirm");
    QCOMPARE(CellText(UsedPlaces, 1), QStringLiteral("Z0512"));
    QCOMPARE(CellText(UsedPlaces, 2), InQt(TextId::DarkToLight));
    QCOMPARE(CellText(UsedPlaces, 3), QStringLiteral("07"));
    QCOMPARE(Find<QLabel>("memory")->text(), QString::number(LightSlots - UsedPlaces - 1));
  }

  void AProgramIsDeletedAfterAQuestion_data() { AddQuestionsOfPrograms(); }
  void AProgramIsDeletedAfterAQuestion() {
    QFETCH(int, state);
    ShowState(State(state));
    QVERIFY(Panel("deleteGroup")->isVisible());
    QCOMPARE(Find<QLabel>("deleteQuestion")->text(), InQt(TextId::DeleteProgram));
    QCOMPARE(Window()->focusWidget(), Button("deleteYes"));
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Return);
    QVERIFY(!Panel("deleteGroup")->isVisible());
    QCOMPARE(CellText(0, 1), QStringLiteral("A0202"));
    QCOMPARE(CellText(UsedPlaces - 1, 1), QString());
    QCOMPARE(Window()->focusWidget(), Grid());
  }

  void EscapeAnswersNoAndThenLeaves_data() { AddQuestionsOfPrograms(); }
  void EscapeAnswersNoAndThenLeaves() {
    QFETCH(int, state);
    ShowState(State(state));
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Escape);
    QVERIFY(!Panel("deleteGroup")->isVisible());
    QCOMPARE(CellText(0, 1), QStringLiteral("A0102"));
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Escape);
    QVERIFY(!Window()->isVisible());
  }

  void AnIncompleteProgramStoresNothingAndStaysOpen_data() { AddQuestionsOfPrograms(); }
  void AnIncompleteProgramStoresNothingAndStaysOpen() {
    QFETCH(int, state);
    Show(*State(state).screen, State(state).open);
    DoubleClick(UsedPlaces, 1);
    Pick("pickerLetter", "A");
    Pick("pickerOutput", "1");
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Return);
    QVERIFY(Panel("editGroup")->isVisible());
    QCOMPARE(CellText(UsedPlaces, 1), QString());
  }

  void TheGridTellsThatADoubleClickEdits_data() { AddQuestionsOfPrograms(); }
  void TheGridTellsThatADoubleClickEdits() {
    QFETCH(int, state);
    Show(*State(state).screen, State(state).open);
    QCOMPARE(Grid()->toolTip(), InQt(TextId::EditHint));
    QVERIFY(Grid()->horizontalHeader()->isVisible());
  }

  void NoTextOfAListThatCameLaterIsCutOff_data() { AddQuestionsOfPrograms(); }
  void NoTextOfAListThatCameLaterIsCutOff() {
    QFETCH(int, state);
    FillPrograms(0);
    Show(*State(state).screen, State(state).open);
    RunEvent([&] { State(state).screen->Close(); });
    FillPrograms(18);
    Show(*State(state).screen, State(state).open);
    for (int row = 0; row < 18; ++row) {
      for (int column = 0; column < Grid()->model()->columnCount(); ++column) {
        const int needed = Grid()->fontMetrics().horizontalAdvance(CellText(row, column));
        QVERIFY2(needed + 6 <= Grid()->columnWidth(column), qPrintable(CellText(row, column)));
      }
    }
  }
};

QTEST_MAIN(MasterScreensViewTest)
#include "master_screens_view_test.moc"
