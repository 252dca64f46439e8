// The windows of the push-buttons and of the outputs, as a person works in them, in one language.
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleOptionComboBox>
#include <QTableView>
#include <QTest>

#include "image/tables.h"
#include "layout_names.h"
#include "output/button_screen.h"
#include "output/output_screen.h"
#include "session/settings.h"
#include "shell/main_window.h"
#include "shell/qt/event_guard.h"
#include "shell/qt/layouts/button_screen.h"
#include "shell/qt/screens.h"
#include "shell/qt/style.h"
#include "stand_ins.h"

using namespace bkconf;

namespace {

constexpr int Relay = 0;
constexpr int Dimmer = 1;
constexpr int Lumenza = 11;
constexpr int AddressCell = 121;

/// What both pickers show, each of them in another row of the types.
struct PickerState {
  const char* name;
  const char* letter;
  int type;    ///< -1 where the letter settles it
  int zone;    ///< 1 main, 2 secondary, 0 none
  int action;  ///< that is picked, or -1
};

constexpr PickerState PickerStates[] = {
    {"idle", "", -1, 0, -1},      {"type asked", "F", -1, 0, -1},   {"relay", "F", 0, 0, 2},
    {"dimmer", "F", 1, 0, 5},     {"temperature", "F", 2, 0, -1},   {"alarm", "F", 4, 0, 1},
    {"main zone", "F", 5, 1, 11}, {"secondary zone", "F", 5, 2, 6}, {"simulation", "F", 6, 0, -1},
    {"Lumenza", "F", 7, 0, -1},   {"context", "S", -1, 0, -1},      {"Corvela", "Z", -1, 0, -1},
};

bool TakesFocus(const QWidget* widget) {
  return widget->isVisible() && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus;
}

}  // namespace

class OutputScreensViewTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() {
    ApplyStyle(*qApp);
    Language = qEnvironmentVariableIntValue("BKCONF_TEST_LANGUAGE");
    QVERIFY(Language.Number() == 1 || Language.Number() == 2);
    main_ = MakeWindows();
    RunEvent(LoadMainWindow);
    QVERIFY(QTest::qWaitForWindowExposed(main_.get()));
  }
  void init() {
    ActiveModuleType = Relay;
    for (int cell = 0; cell < ButtonImage.Size(); ++cell) ButtonImage[cell] = EmptyCell;
    ButtonImage[AddressCell] = int{'A'};
  }
  void cleanup() {
    RunEvent([] {
      ButtonScreen.Close();
      OutputScreen.Close();
    });
  }
  void cleanupTestCase() { main_.reset(); }

  // --- The push-buttons
  void AFunctionThatIsComposedAndStoredAppearsInTheList() {
    Show(OpenButtonScreen);
    QVERIFY(!Button("store")->isEnabled());
    Pick("chooser", "3");
    Pick("firstLetter", "F");
    QVERIFY(List("firstType")->isEnabled());
    PickRow("firstType", 1);
    Pick("firstOutput", "4");
    Pick("firstAction", "50%");
    Press("store");
    QCOMPARE(CellText(2, 0), QStringLiteral("F0450"));
    QCOMPARE(CellText(2, 1), QStringLiteral("***"));
    QCOMPARE(ButtonImage[6].Whole(), int{'F'});
    QCOMPARE(ButtonImage[8].Whole(), 50);
    QVERIFY(!Button("store")->isEnabled());
  }

  void BothFunctionsAreStoredByEnter() {
    Show(OpenButtonScreen);
    Pick("chooser", "1");
    Pick("firstLetter", "S");
    Pick("firstOutput", "7");
    Pick("secondLetter", "Z");
    Pick("secondOutput", "05");
    Pick("secondAction", "12");
    QCOMPARE(Window()->focusWidget(), List("secondAction"));
    QTest::keyClick(List("secondAction"), Qt::Key_Return);
    QCOMPARE(CellText(0, 0), QStringLiteral("S0702"));
    QCOMPARE(CellText(0, 1), QStringLiteral("Z0512"));
  }

  void ATemperatureIsComposedInTheRowOfItsChoice() {
    Show(OpenButtonScreen);
    Pick("chooser", "1");
    Pick("firstLetter", "F");
    PickRow("firstType", 2);
    QTest::mouseClick(Find<QRadioButton>("firstRoomTemperature"), Qt::LeftButton, {}, {6, 12});
    Pick("firstRoomTemperatureDegrees", "21");
    Pick("firstRoomTemperatureRoom", "3");
    Press("store");
    QCOMPARE(CellText(0, 0), QStringLiteral("F0321"));
  }

  void NoSecondFunctionIsABoxThatClosesItsFields() {
    Show(OpenButtonScreen);
    Pick("chooser", "1");
    QVERIFY(List("secondLetter")->isEnabled());
    QTest::keyClick(Find<QCheckBox>("noSecond"), Qt::Key_Space);
    QVERIFY(!List("secondLetter")->isEnabled());
    QTest::keyClick(Find<QCheckBox>("noSecond"), Qt::Key_Space);
    QVERIFY(List("secondLetter")->isEnabled());
  }

  void SelectingAFunctionTellsItInWords() {
    ButtonImage[0] = int{'A'};
    ButtonImage[1] = 0;
    ButtonImage[2] = 2;
    Show(OpenButtonScreen);
    const QLabel* sentence = Find<QLabel>("description");
    QVERIFY(sentence->isVisible() && sentence->text().isEmpty());
    const QRect place = Place(sentence);
    ClickCell(0, 0);
    QVERIFY(sentence->text().contains(QStringLiteral("'A'")));
    QCOMPARE(Place(sentence), place);
    QTest::keyClick(Grid(), Qt::Key_Right);
    QVERIFY(sentence->text().isEmpty());
  }

  void ADoubleClickAndDeleteEmptyAFunction() {
    for (int cell : {0, 60}) {
      ButtonImage[cell] = int{'A'};
      ButtonImage[cell + 1] = ButtonImage[cell + 2] = 1;
    }
    Show(OpenButtonScreen);
    ClickCell(0, 0);
    QTest::mouseDClick(Grid()->viewport(), Qt::LeftButton, {}, PlaceOf(0, 0));
    QCOMPARE(CellText(0, 0), QStringLiteral("***"));
    QCOMPARE(CellText(0, 1), QStringLiteral("A0201"));
    QTest::keyClick(Grid(), Qt::Key_Right);
    QTest::keyClick(Grid(), Qt::Key_Delete);
    QCOMPARE(CellText(0, 1), QStringLiteral("***"));
    QCOMPARE(ButtonImage[60].Whole(), EmptyCell);
  }

  void ADoubleClickOnAHeaderPicksTheButton() {
    Show(OpenButtonScreen);
    QHeaderView* headers = Grid()->verticalHeader();
    QTest::mouseDClick(headers->viewport(), Qt::LeftButton, {},
                       QPoint(5, headers->sectionViewportPosition(4) + 5));
    QCOMPARE(List("chooser")->currentText(), QStringLiteral("5"));
    QVERIFY(Button("store")->isEnabled());
  }

  void TheListKeepsItsPlaceAfterAStore() {
    Show(OpenButtonScreen);
    const QSize size = Window()->size();
    Window()->resize(Window()->width(), 100);
    Grid()->setMaximumHeight(150);
    QCoreApplication::processEvents();
    ClickCell(3, 1);
    Grid()->verticalScrollBar()->setValue(2);
    Pick("chooser", "4");
    Pick("firstLetter", "S");
    Pick("firstOutput", "1");
    Press("store");
    QCOMPARE(CellText(3, 0), QStringLiteral("S0102"));
    QCOMPARE(Grid()->verticalScrollBar()->value(), 2);
    QCOMPARE(Grid()->currentIndex(), Grid()->model()->index(3, 1));
    Grid()->setMaximumHeight(QWIDGETSIZE_MAX);
    Window()->resize(size);
  }

  void TheQuestionOfTheBaseFunctionsMovesNothing() {
    Show(OpenButtonScreen);
    const QSize size = Window()->size();
    const QRect store = Place(Button("store"));
    Press("base");
    QVERIFY(Find<QGroupBox>("baseGroup")->isVisible());
    QCoreApplication::processEvents();
    QCOMPARE(Window()->size(), size);
    QCOMPARE(Place(Button("store")), store);
    Press("baseYes");
    QVERIFY(!Find<QGroupBox>("baseGroup")->isVisible());
    QCOMPARE(CellText(11, 0), QStringLiteral("A1202"));
    QCOMPARE(CellText(12, 0), QStringLiteral("***"));
  }

  void NothingMovesFromOneTypeToAnother() {
    Show(OpenButtonScreen);
    Window()->resize(Window()->sizeHint());
    QCoreApplication::processEvents();
    const QSize size = Window()->size();
    const QRect second = Place(Find<QGroupBox>("secondGroup"));
    for (const PickerState& state : PickerStates) {
      ShowPicker(state);
      QCOMPARE(Window()->size(), size);
      QCOMPARE(Place(Find<QGroupBox>("secondGroup")), second);
    }
  }

  void WhatATypeAsksForBeginsRightBelowTheType() {
    Show(OpenButtonScreen);
    const char* first[] = {"firstOutputLabel", "firstRoomTemperature", "firstMainZone",
                           "firstSimulationOn"};
    int row = 0;
    for (const int type : {0, 2, 5, 6}) {
      ShowPicker({"", "F", type, 0, -1});
      const int gap = Place(Find<QWidget>(first[row])).top() - Place(List("firstType")).bottom();
      QVERIFY2(gap > 0 && gap < 16, first[row]);
      ++row;
    }
  }

  void NoTypeIsCutOff() {
    Show(OpenButtonScreen);
    for (const char* name : {"firstType", "secondType"}) {
      const QComboBox* list = List(name);
      ShowPicker(PickerStates[1]);
      QStyleOptionComboBox option;
      option.initFrom(list);
      const int room =
          list->style()
              ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, list)
              .width();
      for (int row = 0; row < list->count(); ++row) {
        const QString type = list->itemText(row);
        QVERIFY2(list->fontMetrics().horizontalAdvance(type) < room, qPrintable(type));
      }
    }
  }

  void EscapeAnswersTheQuestionBeforeItLeaves() {
    Show(OpenButtonScreen);
    Press("base");
    QTest::keyClick(Window(), Qt::Key_Escape);
    QVERIFY(!Find<QGroupBox>("baseGroup")->isVisible());
    QVERIFY(Window()->isVisible());
    QTest::keyClick(Window(), Qt::Key_Escape);
    QVERIFY(!Window()->isVisible());
  }

  void EveryStateFitsAndNoFieldCoversAnother_data() { AddStates(); }
  void EveryStateFitsAndNoFieldCoversAnother() {
    QFETCH(int, state);
    Show(OpenButtonScreen);
    ShowPicker(PickerStates[state]);
    Press("base");
    const QList<QWidget*> fields = VisibleFields();
    for (const QWidget* one : fields) {
      const QByteArray name = one->objectName().toUtf8();
      const QSize needed = one->minimumSizeHint();
      QVERIFY2(one->width() >= needed.width() && one->height() >= needed.height(), name);
      QVERIFY2(Window()->rect().contains(Place(one)), name);
      for (const QWidget* other : fields) {
        if (one == other || one->isAncestorOf(other) || other->isAncestorOf(one)) continue;
        QVERIFY2(!Place(one).intersects(Place(other)), name + " " + other->objectName().toUtf8());
      }
    }
  }

  void EveryFieldOfAStateHasANameForAScreenReader_data() { AddStates(); }
  void EveryFieldOfAStateHasANameForAScreenReader() {
    QFETCH(int, state);
    Show(OpenButtonScreen);
    ShowPicker(PickerStates[state]);
    for (QWidget* widget : VisibleFields()) {
      const QByteArray name = widget->objectName().toUtf8();
      if (name == "description" || name == "functionsGroup") continue;
      const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
      const bool list = dynamic_cast<const QComboBox*>(widget) != nullptr;
      QVERIFY2(!spoken->text(list ? QAccessible::Description : QAccessible::Name).isEmpty(), name);
    }
  }

  void TheTabulatorGoesInReadingOrderInEveryState_data() { AddStates(); }
  void TheTabulatorGoesInReadingOrderInEveryState() {
    QFETCH(int, state);
    Show(OpenButtonScreen);
    ShowPicker(PickerStates[state]);
    QStringList expected = NamesIn(ButtonScreenLayout());
    expected.removeIf([&](const QString& name) {
      return !TakesFocus(Find<QWidget>(name.toLatin1().constData()));
    });
    QWidget* first = Find<QWidget>(expected.front().toLatin1().constData());
    first->setFocus();
    QStringList visited;
    do {
      visited.append(Window()->focusWidget()->objectName());
      QTest::keyClick(Window(), Qt::Key_Tab);
    } while (Window()->focusWidget() != first && visited.size() <= expected.size());
    QCOMPARE(visited, expected);
  }

  void ThePressTimeHasASmallWindowOfItsOwn() {
    Show(OpenButtonScreen);
    const QSize whole = Window()->size();
    RunEvent([] { ButtonScreen.Close(); });
    Show(OpenSecondFunctionTime);
    QVERIFY(Window()->width() < whole.width() && Window()->height() < whole.height() / 2);
    const QLabel* help = Find<QLabel>("timeHelp");
    QVERIFY(help->wordWrap());
    QVERIFY(help->height() >= help->heightForWidth(help->width()));
    Pick("time", "2,5");
    QCOMPARE(ButtonImage[122].Whole(), 5);
    QTest::keyClick(Window(), Qt::Key_Escape);
    QVERIFY(!Window()->isVisible());
    Show(OpenButtonScreen);
    QCOMPARE(Window()->size(), whole);
  }

  // --- The outputs
  void AnOutputsFunctionIsConfirmedIntoTheGrid() {
    ButtonImage[123] = 0;
    Show(OpenOutputScreen, "OutputScreen");
    QVERIFY(!List("time")->isVisible());
    QVERIFY(!Find<QTableView>("startValues")->isVisible());
    Pick("output", "12");
    PickRow("function", 5);
    QVERIFY(List("linked")->isVisible() && List("time")->isVisible());
    Pick("linked", "3");
    Pick("time", "15");
    Press("confirm");
    const QAbstractItemModel& grid = *Find<QTableView>("functions")->model();
    QVERIFY(grid.index(11, 1).data().toString().contains(QStringLiteral(" 3 ")));
    QCOMPARE(grid.index(11, 2).data().toString(), QStringLiteral("15 min."));
    QCOMPARE(ButtonImage[134].Whole(), 5);
  }

  void AnIncompleteFunctionConfirmsNothing() {
    Show(OpenOutputScreen, "OutputScreen");
    Pick("output", "2");
    PickRow("function", 3);
    QTest::keyClick(List("function"), Qt::Key_Return);
    QCOMPARE(ButtonImage[124].Whole(), EmptyCell);
  }

  void AStartValueIsConfirmedByEnter() {
    ActiveModuleType = Dimmer;
    Show(OpenOutputScreen, "OutputScreen");
    Pick("channel", "2");
    Pick("start", "90%");
    QTest::keyClick(List("start"), Qt::Key_Return);
    const QAbstractItemModel& grid = *Find<QTableView>("startValues")->model();
    QCOMPARE(grid.rowCount(), 4);
    QCOMPARE(grid.index(1, 1).data().toString(), QStringLiteral("90 %"));
    QCOMPARE(ButtonImage[124].Whole(), 9);
  }

  void ALumenzaModuleShowsItsPlainOutputsToo() {
    ActiveModuleType = Lumenza;
    Show(OpenOutputScreen, "OutputScreen");
    const auto* table = Find<QTableView>("startValues");
    QCOMPARE(table->model()->rowCount(), 8);
    QVERIFY(table->visualRect(table->model()->index(7, 0)).bottom() <= table->viewport()->height());
  }

  void NoFunctionIsCutOff() {
    for (int output = 0; output < 12; ++output) {
      ButtonImage[123 + output] = 4 + output % 2;
      ButtonImage[135 + output] = 15;
      ButtonImage[147 + output] = 12;
    }
    Show(OpenOutputScreen, "OutputScreen");
    const auto* table = Find<QTableView>("functions");
    for (int row = 0; row < 12; ++row) {
      const QString text = table->model()->index(row, 1).data().toString();
      QVERIFY(table->fontMetrics().horizontalAdvance(text) < table->columnWidth(1));
    }
  }

  void EscapeLeaves() {
    Show(OpenOutputScreen, "OutputScreen");
    QTest::keyClick(Window()->focusWidget(), Qt::Key_Escape);
    QVERIFY(!Window()->isVisible());
    QVERIFY(!OutputScreen.shown);
  }

 private:
  static void AddStates() {
    QTest::addColumn<int>("state");
    for (int state = 0; const PickerState& each : PickerStates) {
      QTest::newRow(each.name) << state;
      ++state;
    }
  }

  void Show(void (*open)(), const char* name = "ButtonScreen") {
    RunEvent(open);
    const auto window = std::find_if(
        ScreenWindows().begin(), ScreenWindows().end(),
        [name](const ScreenWindow* each) { return each->objectName() == QLatin1String(name); });
    window_ = *window;
    QVERIFY(QTest::qWaitForWindowActive(window_));
    // The desktop of the tests has not the room for it.
    window_->resize(window_->sizeHint());
  }
  ScreenWindow* Window() const { return window_; }

  /// In both pickers, on a button that is picked anew.
  static void ShowPicker(const PickerState& state) {
    RunEvent([] { ButtonScreen.chooser.Pick(0); });
    for (ActionPicker* picker : {&ButtonScreen.first, &ButtonScreen.second}) {
      RunEvent([&] {
        const auto& letters = picker->letter.items;
        const auto letter = std::find(letters.begin(), letters.end(), state.letter);
        if (letter == letters.end()) return;
        picker->letter.Pick(static_cast<int>(letter - letters.begin()));
        picker->type.Pick(state.type);
        if (state.zone == 1) picker->mainZone.Choose();
        if (state.zone == 2) picker->secondaryZone.Choose();
        picker->action.list.Pick(state.action);
      });
    }
    QCoreApplication::processEvents();
  }

  /// With the keyboard, as a person who steps through the items.
  void PickRow(const char* list, int row) {
    QComboBox* box = List(list);
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Home);
    for (int step = 0; step < row; ++step) QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(box->currentIndex(), row);
  }
  void Pick(const char* list, const char* item) {
    const int row = List(list)->findText(QString::fromLatin1(item));
    QVERIFY2(row >= 0, item);
    PickRow(list, row);
  }
  void Press(const char* button) { QTest::mouseClick(Button(button), Qt::LeftButton); }

  QPushButton* Button(const char* name) const { return Find<QPushButton>(name); }
  QComboBox* List(const char* name) const { return Find<QComboBox>(name); }
  QTableView* Grid() const { return Find<QTableView>("buttons"); }
  QString CellText(int row, int column) const {
    return Grid()->model()->index(row, column).data().toString();
  }
  QPoint PlaceOf(int row, int column) const {
    return Grid()->visualRect(Grid()->model()->index(row, column)).center();
  }
  void ClickCell(int row, int column) const {
    QTest::mouseClick(Grid()->viewport(), Qt::LeftButton, {}, PlaceOf(row, column));
  }

  QList<QWidget*> VisibleFields() const {
    QList<QWidget*> widgets;
    for (const Field* field : ButtonScreen.fields) {
      auto* widget = Find<QWidget>(field->name.c_str());
      if (widget->isVisible()) widgets.append(widget);
    }
    return widgets;
  }
  static QRect Place(const QWidget* widget) {
    return {widget->mapTo(widget->window(), QPoint()), widget->size()};
  }

  template <typename Widget>
  Widget* Find(const char* name) const {
    auto* found = window_->findChild<Widget*>(QString::fromLatin1(name));
    if (found == nullptr) qFatal("There is no widget %s", name);
    return found;
  }

  StandIns standIns_;
  std::unique_ptr<ScreenWindow> main_;
  ScreenWindow* window_ = nullptr;
};

QTEST_MAIN(OutputScreensViewTest)
#include "output_screens_view_test.moc"
