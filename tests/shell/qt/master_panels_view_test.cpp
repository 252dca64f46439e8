// The windows of a master's contexts, time programmes and light programmes in every state of their
// panels, in one language.
#include "actions/action_sentence.h"
#include "master_house.h"
#include "master_stage.h"
#include "shell/qt/event_guard.h"

using namespace bkconf;

class MasterPanelsViewTest : public QObject, private MasterStage {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { Begin(); }
  void init() { FillHouse(); }
  void cleanup() { CloseAll(); }

  void TheHeadingStandsOverLetterAndType_data() { AddScreens(); }
  void TheHeadingStandsOverLetterAndType() {
    QFETCH(int, state);
    Show(*State(state).screen, State(state).open);
    OpenEditor(*State(state).screen);
    const auto* heading = Find<QLabel>("pickerHeading");
    QVERIFY(heading->isVisible() && !Find<QLabel>("pickerLetterLabel")->isVisible());
    QVERIFY(Place(heading).bottom() < Place(List("pickerLetter")).top());
    QCOMPARE(Place(heading).left(), Place(List("pickerLetter")).left());
    QVERIFY(Place(heading).right() > Place(List("pickerType")).left());
  }

  void NothingMovesFromOnePanelToAnother_data() { AddScreens(); }
  void NothingMovesFromOnePanelToAnother() {
    QFETCH(int, state);
    Screen& screen = *State(state).screen;
    Show(screen, State(state).open);
    Window()->resize(LeastSize());
    QCoreApplication::processEvents();
    const QSize least = LeastSize();
    const QSize size = Window()->size();
    const QRect grid = Place(Grid());
    const QRect sentence = Place(Sentence());
    QRect editor;
    for (const ScreenState& each : States()) {
      if (each.screen != &screen) continue;
      ShowIn(each);
      QCOMPARE(LeastSize(), least);
      QCOMPARE(Window()->size(), size);
      QCOMPARE(Place(Grid()), grid);
      QCOMPARE(Place(Sentence()), sentence);
      if (!Panel("editGroup")->isVisible()) continue;
      if (editor.isNull()) editor = Place(Panel("editGroup"));
      QCOMPARE(Place(Panel("editGroup")), editor);
    }
    QVERIFY(!editor.isNull());
  }

  void TheWindowFitsOnASmallDesktop_data() { AddScreens(); }
  void TheWindowFitsOnASmallDesktop() {
    QFETCH(int, state);
    Show(*State(state).screen, State(state).open);
    const QSize size = Window()->sizeHint();
    Window()->resize(size);
    QCoreApplication::processEvents();
    QVERIFY(size.width() <= SmallDesktop.width() && size.height() <= SmallDesktop.height());
    QVERIFY(Grid()->viewport()->height() >= 20 * Grid()->verticalHeader()->defaultSectionSize());
  }

  void EverySentenceHasRoomInItsTwoLines_data() { AddScreens(); }
  void EverySentenceHasRoomInItsTwoLines() {
    QFETCH(int, state);
    const ScreenState& shown = State(state);
    Show(*shown.screen, shown.open);
    Window()->resize(LeastSize());
    QCoreApplication::processEvents();
    const SentenceVariant& variant = shown.screen == &ContextScreen       ? ContextSentences
                                     : shown.screen == &TimeProgramScreen ? TimeProgramSentences
                                                                          : LightProgramSentences;
    for (const QString& sentence : LongestSentences(variant)) {
      RunEvent([&] {
        static_cast<LabelField*>(shown.screen->Find("description"))->caption =
            sentence.toStdString();
      });
      const int needed = Sentence()->heightForWidth(Sentence()->width());
      QVERIFY2(needed <= Sentence()->height(), qPrintable(sentence));
    }
  }

  void EveryStateFitsAndNoFieldCoversAnother_data() { AddStates(); }
  void EveryStateFitsAndNoFieldCoversAnother() {
    QFETCH(int, state);
    ShowState(State(state));
    ExpectNoFieldCutOffOrCovered();
  }

  void EveryFieldOfAStateHasANameForAScreenReader_data() { AddStates(); }
  void EveryFieldOfAStateHasANameForAScreenReader() {
    QFETCH(int, state);
    ShowState(State(state));
    ExpectEveryFieldHasANameForAScreenReader();
  }

  void TheTabulatorGoesInReadingOrderInEveryState_data() { AddStates(); }
  void TheTabulatorGoesInReadingOrderInEveryState() {
    QFETCH(int, state);
    ShowState(State(state));
    ExpectTabulatorGoesInReadingOrder();
  }

 private:
  static void AddStates() {
    AddStatesIf([](const ScreenState&) { return true; });
  }

  /// Of every kind of module, in some numbers.
  QStringList LongestSentences(const SentenceVariant& variant) const {
    QStringList longest;
    for (char letter = 'A'; letter <= 'I'; ++letter) {
      int width = 0;
      QString text;
      for (const char* number :
           {"01", "08", "12", "16", "17", "44", "60", "76", "92", "96", "09"}) {
        for (int value = 0; value < 100; ++value) {
          const std::string code =
              letter + std::string(number) + std::to_string(100 + value).substr(1);
          const QString sentence = ToQt(MasterActionSentence(code, variant));
          const int advance = Sentence()->fontMetrics().horizontalAdvance(sentence);
          if (advance <= width) continue;
          width = advance;
          text = sentence;
        }
      }
      if (width > 0) longest.append(text);
    }
    return longest;
  }
};

QTEST_MAIN(MasterPanelsViewTest)
#include "master_panels_view_test.moc"
