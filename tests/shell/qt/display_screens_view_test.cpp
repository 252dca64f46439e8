// The windows of a display module, as a person works in them, in one language: the menus of its
// displays, and the names of the weekdays.
#include <QFontInfo>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>

#include "image/tables.h"
#include "link/link_events.h"
#include "link/link_ticks.h"
#include "link/transfer.h"
#include "screen_stage.h"
#include "session/state.h"
#include "shell/qt/event_guard.h"
#include "special/display_menu_screen.h"
#include "special/weekday_text_screen.h"

using namespace bkconf;

namespace {

constexpr int FirstLineText = 72;
constexpr int FirstCategory = 695;
constexpr int FirstOutput = 780;
constexpr int FirstSecondOutput = 900;
constexpr int Automations = 5;
constexpr int Contexts = 7;

/// What the window shows.
enum class Stage { Reading, Read, Screen, Outputs };
struct DisplayState {
  const char* name;
  Screen* screen;
  Stage stage;
  int menu = 0;
};

const DisplayState States[] = {
    {"menu", &DisplayMenuScreen, Stage::Screen},
    {"automations", &DisplayMenuScreen, Stage::Screen, 1},
    {"contexts", &DisplayMenuScreen, Stage::Screen, 2},
    {"outputs", &DisplayMenuScreen, Stage::Outputs, 1},
    {"menu, read", &DisplayMenuScreen, Stage::Reading},
    {"menu, has been read", &DisplayMenuScreen, Stage::Read},
    {"weekdays", &WeekdayTextScreen, Stage::Screen},
    {"weekdays, read", &WeekdayTextScreen, Stage::Reading},
};

void PutText(Table& table, int first, const char* text) {
  for (int cell = first; *text != '\0'; ++text) table[cell++] = int{*text};
}

/// Sockets on the first screen, automations on the second, contexts on the third.
void FillDisplay() {
  for (int cell = 0; cell < LcdScreen1.Size(); ++cell) LcdScreen1[cell] = int{' '};
  PutText(LcdScreen1, 0, "Living");
  PutText(LcdScreen1, FirstLineText, "WWWWWWWWWW");
  PutText(LcdScreen1, 684, "MMMM");
  PutText(LcdScreen1, 690, "WWWW");
  PutText(LcdScreen1, 703, "MMMMM");
  PutText(LcdScreen1, 710, "WWWW");
  for (int menu = 0; menu < MenuScreens; ++menu) LcdScreen1[FirstCategory + menu] = 4;
  LcdScreen1[FirstCategory + 1] = Automations;
  LcdScreen1[FirstCategory + 2] = Contexts;
  for (int line = 0; line < MenuScreens * MenuLines; ++line) {
    LcdScreen1[FirstOutput + 2 * line] = int{'B'};
    LcdScreen1[FirstOutput + 2 * line + 1] = line % 12;
    LcdScreen1[FirstSecondOutput + 2 * line] = int{'C'};
    LcdScreen1[FirstSecondOutput + 2 * line + 1] = line % 11;
  }
  LcdHeader[0] = int{'F'};
  PutText(LcdWeekdayNames, 0, "ZO MA DI WO DO VR ZA ");
}

}  // namespace

class DisplayScreensViewTest : public QObject, private ScreenStage {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() { Begin(); }
  void init() {
    ActiveModuleType = DisplayKind;
    FillDisplay();
  }
  void cleanup() {
    EndRead();
    Close({&DisplayMenuScreen, &WeekdayTextScreen});
  }

  // --- What stands on the display
  void WhatStandsOnTheDisplayHasLettersOfOneWidth() {
    ShowState(StateOf("menu"));
    for (const char* name : {"name", "mainKeyA", "mainKeyB", "keyA", "keyB", "line1Text",
                             "line10Text", "arrowA", "mainArrowB"}) {
      const QFontMetrics metrics(Find<QWidget>(name)->font());
      QVERIFY2(metrics.horizontalAdvance(u'i') == metrics.horizontalAdvance(u'W'), name);
    }
    QVERIFY(!QFontInfo(Label("nameLabel")->font()).fixedPitch());
  }

  void ATextHasTheRoomThatItHasOnTheDisplay() {
    ShowState(StateOf("menu"));
    for (const char* name : {"mainKeyA", "mainKeyB", "keyA", "keyB", "line1Text"}) {
      const auto* text = Find<QLineEdit>(name);
      const int width = text->fontMetrics().horizontalAdvance(text->text());
      QVERIFY2(text->width() >= width + 8, name);
      QVERIFY2(text->width() < width + 5 * text->fontMetrics().averageCharWidth(), name);
    }
  }

  void ItStandsOnTheGroundOfADisplayInEveryTheme() {
    ShowState(StateOf("menu"));
    const QPalette text = Find<QLineEdit>("line1Text")->palette();
    QVERIFY(text.color(QPalette::Base) != QApplication::palette().color(QPalette::Base));
    QVERIFY(text.color(QPalette::Base).lightness() > 200);
    QVERIFY(text.color(QPalette::Text).lightness() < 64);
  }

  void AnArrowStandsBeforeTheTextOfItsKey() {
    ShowState(StateOf("menu"));
    const std::pair<const char*, const char*> keys[] = {{"mainArrowA", "mainKeyA"},
                                                        {"mainArrowB", "mainKeyB"},
                                                        {"arrowA", "keyA"},
                                                        {"arrowB", "keyB"}};
    for (const auto& [arrow, key] : keys) {
      const QRect place = Place(Find<QLineEdit>(key));
      QVERIFY2(Place(Label(arrow)).right() < place.left(), arrow);
      QVERIFY2(place.left() - Place(Label(arrow)).right() < 24, arrow);
      QCOMPARE(Place(Label(arrow)).center().y(), place.center().y());
    }
    QCOMPARE(Label("arrowA")->text(), QStringLiteral("->"));
    QCOMPARE(Label("mainArrowB")->text(), QStringLiteral(" <-"));
    QVERIFY(Place(Find<QWidget>("keyA")).top() > Place(Find<QWidget>("line10Text")).bottom());
  }

  void TheNameStandsBetweenTheMarksOfWhatScrollsIt() {
    ShowState(StateOf("menu"));
    const QRect name = Place(Find<QLineEdit>("name"));
    QVERIFY(Place(Label("scrollUp")).bottom() < name.top());
    QVERIFY(Place(Label("scrollDown")).top() > name.bottom());
    QCOMPARE(Label("scrollUp")->text(), QStringLiteral("Scroll"));
    QVERIFY(Place(Label("mainArrowA")).top() > Place(Label("scrollDown")).bottom());
  }

  // --- A screen of the display
  void TheFirstScreenIsShownWithItsLines() {
    ShowState(StateOf("menu"));
    QCOMPARE(Menus()->currentRow(), 0);
    QCOMPARE(Menus()->count(), MenuScreens);
    QCOMPARE(FieldInFocus(), QStringLiteral("screens"));
    QCOMPARE(Panel("frame")->title(), InQt(TextId::MainScreen));
    QCOMPARE(Find<QLineEdit>("name")->text(), QStringLiteral("Living      "));
    QCOMPARE(List("category")->currentText(), InQt(TextId::Sockets));
    QCOMPARE(List("line3Module")->currentText(), QStringLiteral("B"));
    QCOMPARE(List("line3Output")->currentText(), QStringLiteral("3"));
    QVERIFY(!Button("line3Outputs")->isEnabled());
  }

  void AScreenIsChosenByKeyboard() {
    ShowState(StateOf("menu"));
    QTest::keyClick(Menus(), Qt::Key_Down);
    QCOMPARE(DisplayMenuScreen.screens.Index(), 1);
    QCOMPARE(List("category")->currentText(), InQt(TextId::Automations));
    QVERIFY(Button("line1Outputs")->isEnabled());
  }

  void TheTenLinesStandInColumns() {
    ShowState(StateOf("automations"));
    for (const char* column : {"Text", "Module", "Output", "Outputs"}) {
      const QRect first = Place(Find<QWidget>((QByteArray("line1") + column).constData()));
      for (int line = 2; line <= MenuLines; ++line) {
        const QByteArray name = "line" + QByteArray::number(line);
        const QRect place = Place(Find<QWidget>((name + column).constData()));
        QCOMPARE(place.left(), first.left());
        QCOMPARE(place.size(), first.size());
        QVERIFY(place.top() >= first.bottom() + (line - 2) * first.height());
        QVERIFY(qAbs(place.center().y() - Place(Label(name.constData())).center().y()) <= 1);
      }
    }
    QCOMPARE(Button("line1Outputs")->text(), InQt(TextId::OutputsChoice));
    QCOMPARE(Label("moduleHead")->text(), InQt(TextId::ModuleAddress));
    QCOMPARE(Place(Label("moduleHead")).left(), Place(List("line1Module")).left());
    QCOMPARE(Place(Label("outputHead")).left(), Place(List("line1Output")).left());
    QCOMPARE(List("line2Output")->accessibleName(),
             InQt(TextId::OutputCaption) + QStringLiteral(" 2"));
  }

  void WhatIsTypedAndPickedReachesTheTable() {
    ShowState(StateOf("menu"));
    auto* text = Find<QLineEdit>("line2Text");
    text->setFocus();
    text->selectAll();
    QTest::keyClicks(text, QStringLiteral("Lamp"));
    Pick("line2Module", "D");
    Pick("line2Output", "12");
    QTest::keyClick(Menus(), Qt::Key_Down);
    QCOMPARE(LcdScreen1[FirstLineText + 10].Whole(), int{'L'});
    QCOMPARE(LcdScreen1[FirstLineText + 14].Whole(), int{' '});
    QCOMPARE(LcdScreen1[FirstOutput + 2].Whole(), int{'D'});
    QCOMPARE(LcdScreen1[FirstOutput + 3].Whole(), 11);
  }

  void AnotherCategoryOffersOtherModulesAndKeys() {
    ShowState(StateOf("menu"));
    PickRow("category", 5);
    QCOMPARE(List("line1Module")->count(), 1);
    QCOMPARE(List("line1Module")->itemText(0), QStringLiteral("S"));
    QCOMPARE(List("line1Output")->count(), 50);
    QVERIFY(List("line1Module")->currentText().isEmpty());
    QCOMPARE(Find<QLineEdit>("keyA")->text(), QStringLiteral("Act"));
  }

  // --- The outputs of an automation
  void TheOutputsOfALineOpenBesideItAndMoveNothing() {
    ShowState(StateOf("automations"));
    const QSize size = Window()->size();
    const QRect line = Place(List("line4Module"));
    auto* button = Button("line4Outputs");
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    QVERIFY(Panel("outputsGroup")->isVisible());
    QCOMPARE(Panel("outputsGroup")->title(), InQt(TextId::AutomationOutputs));
    QCOMPARE(FieldInFocus(), QStringLiteral("openModule"));
    QCOMPARE(Window()->size(), size);
    QCOMPARE(Place(List("line4Module")), line);
    QCOMPARE(List("openOutput")->currentText(), QStringLiteral("2"));
    QCOMPARE(List("closeModule")->currentText(), QStringLiteral("C"));
    QCOMPARE(List("closeOutput")->currentText(), QStringLiteral("3"));
    QCOMPARE(Place(List("openModule")).left(), Place(List("closeModule")).left());
  }

  void TheyArePickedByKeyboardAndStored() {
    ShowState(StateOf("outputs"));
    QTest::keyClick(List("openModule"), Qt::Key_D);
    QTest::keyClick(List("openModule"), Qt::Key_Tab);
    PickRow("openOutput", 9);
    Button("ok")->setFocus();
    QTest::keyClick(Button("ok"), Qt::Key_Return);
    QVERIFY(!Panel("outputsGroup")->isVisible());
    QCOMPARE(FieldInFocus(), QStringLiteral("line3Outputs"));
    const int cell = FirstOutput + 2 * MenuLines + 4;
    QCOMPARE(LcdScreen1[cell].Whole(), int{'D'});
    QCOMPARE(LcdScreen1[cell + 1].Whole(), 9);
    QCOMPARE(List("line3Module")->currentText(), QStringLiteral("D"));
    QCOMPARE(List("line3Output")->currentText(), QStringLiteral("10"));
  }

  void EscapeLeavesThemBeforeItLeavesTheWindowAndEnterStoresThem() {
    ShowState(StateOf("outputs"));
    const int cell = FirstOutput + 2 * MenuLines + 4;
    QTest::keyClick(List("openModule"), Qt::Key_D);
    QTest::keyClick(List("openModule"), Qt::Key_Escape);
    QVERIFY(!Panel("outputsGroup")->isVisible() && Window()->isVisible());
    QCOMPARE(FieldInFocus(), QStringLiteral("line3Outputs"));
    QCOMPARE(LcdScreen1[cell].Whole(), int{'B'});
    Press("line3Outputs");
    Pick("openModule", "D");
    QTest::keyClick(List("openModule"), Qt::Key_Return);
    QVERIFY(!Panel("outputsGroup")->isVisible());
    QCOMPARE(LcdScreen1[cell].Whole(), int{'D'});
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Escape);
    QVERIFY(!Window()->isVisible());
  }

  void IncompleteOutputsAreToldAndCancelClosesThem() {
    ShowState(StateOf("outputs"));
    RunEvent([] { DisplayMenuScreen.close.module.Clear(); });
    Press("ok");
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    QVERIFY(box != nullptr);
    QCOMPARE(box->text(), InQt(TextId::NotComplete));
    QVERIFY(Panel("outputsGroup")->isVisible());
    box->button(QMessageBox::Cancel)->click();
    QVERIFY(!Panel("outputsGroup")->isVisible());
  }

  // --- The weekdays
  void EachWeekdayIsTypedAsItStandsOnTheDisplay() {
    ShowState(StateOf("weekdays"));
    QCOMPARE(Label("day1Label")->text(), InQt(TextId::Sunday));
    QCOMPARE(FieldInFocus(), QStringLiteral("day1"));
    QCOMPARE(Find<QLineEdit>("day1")->text(), QStringLiteral("ZO "));
    QVERIFY(QFontInfo(Find<QLineEdit>("day2")->font()).fixedPitch());
    auto* text = Find<QLineEdit>("day2");
    text->setFocus();
    text->selectAll();
    QTest::keyClicks(text, QStringLiteral("Lun"));
    QTest::keyClick(text, Qt::Key_Escape);
    QVERIFY(!Window()->isVisible());
    QCOMPARE(LcdWeekdayNames[3].Whole(), int{'L'});
    QCOMPARE(LcdWeekdayNames[5].Whole(), int{'n'});
  }

  // --- The windows
  void NothingCanBeUsedUntilTheLastCellHasCome() {
    for (const char* name : {"menu, read", "weekdays, read"}) {
      ShowState(StateOf(name));
      QVERIFY(Find<QProgressBar>("bar")->isVisible());
      QVERIFY(!Label("status")->text().isEmpty());
      for (QWidget* widget : VisibleFields()) {
        QVERIFY2(!widget->isEnabled() || widget->focusPolicy() == Qt::NoFocus,
                 widget->objectName().toUtf8());
      }
      QTest::keyClick(Window(), Qt::Key_Escape);
      QVERIFY(Window()->isVisible());
      EndRead();
      QVERIFY(!Find<QProgressBar>("bar")->isVisible());
      QVERIFY(Button("leave")->isEnabled());
      QCOMPARE(Label("status")->text(), InQt(TextId::EditMode));
      QTest::keyClick(Window(), Qt::Key_Escape);
      QVERIFY(!Window()->isVisible());
    }
  }

  void AfterAReadTheKeyboardIsInTheListOfScreens() {
    ShowState(StateOf("menu, has been read"));
    QVERIFY(Menus()->selectedItems().isEmpty());
    QCOMPARE(FieldInFocus(), QStringLiteral("screens"));
    QTest::keyClick(Menus(), Qt::Key_Down);
    QCOMPARE(DisplayMenuScreen.screens.Index(), 0);
    QCOMPARE(Find<QLineEdit>("name")->text(), QStringLiteral("Living      "));
  }

  void TheWindowsFitOnASmallDesktop_data() { AddStates(States); }
  void TheWindowsFitOnASmallDesktop() {
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
    if (States[state].stage != Stage::Reading) ExpectTabulatorGoesInReadingOrder();
  }

 private:
  static const DisplayState& StateOf(const char* name) { return Named(States, name); }

  void ShowState(const DisplayState& state) {
    const bool isMenu = state.screen == &DisplayMenuScreen;
    const bool loaded = state.stage == Stage::Screen || state.stage == Stage::Outputs;
    LcdScreen1Loaded = LcdWeekdayLoaded = loaded ? 1 : 0;
    RunEvent(isMenu ? OpenDisplay1 : OpenWeekdayTexts);
    if (!loaded) {
      // The module is looked for, but nothing is at the other end.
      for (Tick* tick : LinkTicks) tick->Disable();
      RunEvent([isMenu] {
        Raise(isMenu ? LinkEvent::DisplayReadStarted : LinkEvent::WeekdayReadStarted);
      });
    }
    Show(*state.screen, [] {});
    if (state.stage == Stage::Read) EndRead();
    if (isMenu && loaded) RunEvent([&state] { DisplayMenuScreen.screens.Pick(state.menu); });
    if (state.stage == Stage::Outputs) Press("line3Outputs");
    QCoreApplication::processEvents();
  }
  static void EndRead() {
    RunEvent([] {
      Raise(LinkEvent::DisplayRead);
      Raise(LinkEvent::WeekdayRead);
      UnlockMenus();
    });
  }

  QListWidget* Menus() const { return Find<QListWidget>("screens"); }
};

QTEST_MAIN(DisplayScreensViewTest)
#include "display_screens_view_test.moc"
