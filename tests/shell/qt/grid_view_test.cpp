#include <QAccessible>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>

#include "shell/qt/event_guard.h"
#include "shell/qt/screen_window.h"
#include "stand_ins.h"

using namespace bkconf;

namespace {

constexpr int ManyRows = 40;

struct SampleScreen : Screen {
  SampleScreen() : Screen("Sample") {
    label.caption = "Buttons:";
    grid.columns = {{"", 3}, {"First", 2}, {"Second", 2}};
    grid.rowHeader = true;
    Fill(4);
    plain.columns = {{"Number", 1}, {"Type", 1}};
    plain.Resize(1);
    plain.Put(1, 0, "7");
    grid.onSelect = [this](int row, int column) { Note("select", row, column); };
    grid.onDoubleClick = [this](int row, int column) { Note("open", row, column); };
    plain.onSelect = [this](int row, int column) { Note("plain", row, column); };
    button.onClick = [this] { events.append(QStringLiteral("button")); };
    enter = &button;
  }

  /// The first cells are headers; of the others, those of the last row are empty.
  void Fill(int rows) {
    grid.Resize(rows);
    for (int row = 1; row <= rows; ++row) {
      grid.Put(row, 0, "Number: " + std::to_string(row));
      if (row == rows) continue;
      grid.Put(row, 1, "A" + std::to_string(row));
      grid.Put(row, 2, "***");
    }
  }
  void Note(const char* what, int row, int column) {
    events.append(QStringLiteral("%1 %2 %3").arg(QString::fromLatin1(what)).arg(row).arg(column));
  }

  LabelField label{*this, "label"};
  GridField grid{*this, "grid"};
  GridField plain{*this, "plain"};
  ButtonField button{*this, "button"};

  QStringList events;
};

Part SampleLayout() {
  return Column({Below("label", "grid"), Labelled("label", "plain"), Item("button")});
}

QStringList Events(std::initializer_list<const char*> texts) {
  QStringList events;
  for (const char* text : texts) events.append(QString::fromUtf8(text));
  return events;
}

}  // namespace

class GridViewTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void init() {
    screen_ = std::make_unique<SampleScreen>();
    window_ = std::make_unique<ScreenWindow>(*screen_, SampleLayout);
    screen_->shown = true;
    window_->Refresh();
    QVERIFY(QTest::qWaitForWindowActive(window_.get()));
  }
  void cleanup() { window_.reset(); }

  void AGridShowsCaptionsHeadersAndCells() {
    const QAbstractItemModel& model = *Grid()->model();
    QCOMPARE(model.rowCount(), 4);
    QCOMPARE(model.columnCount(), 2);
    QCOMPARE(model.headerData(1, Qt::Horizontal).toString(), QStringLiteral("Second"));
    QCOMPARE(model.headerData(2, Qt::Vertical).toString(), QStringLiteral("Number: 3"));
    QCOMPARE(TextAt(0, 0), QStringLiteral("A1"));
    QVERIFY(Grid()->verticalHeader()->isVisible());
  }

  void AGridWithoutHeadersShowsItsFirstColumnAsCells() {
    QCOMPARE(Plain()->model()->columnCount(), 2);
    QVERIFY(!Plain()->verticalHeader()->isVisible());
    Click(Plain(), 0, 0);
    QCOMPARE(screen_->events, Events({"plain 1 0"}));
  }

  void ColumnsDivideTheWidthInTheirProportions() {
    window_->resize(760, window_->height());
    QCoreApplication::processEvents();
    const int header = Grid()->verticalHeader()->width();
    const int room = header + Grid()->viewport()->width();
    QVERIFY(qAbs(header - room * 3 / 7) <= 1);
    QVERIFY(qAbs(Grid()->columnWidth(0) - room * 2 / 7) <= 1);
    QCOMPARE(header + Grid()->columnWidth(0) + Grid()->columnWidth(1), room);
  }

  void CaptionsThatAreAllEmptyTakeNoRoom() {
    const int height = Plain()->sizeHint().height();
    QVERIFY(Plain()->horizontalHeader()->isVisible());
    screen_->plain.columns[0].caption = "";
    window_->Refresh();
    QVERIFY(Plain()->horizontalHeader()->isVisible());
    screen_->plain.columns[1].caption = "";
    window_->Refresh();
    QVERIFY(!Plain()->horizontalHeader()->isVisible());
    QVERIFY(Plain()->sizeHint().height() < height);
    screen_->plain.columns[0].caption = "Number";
    window_->Refresh();
    QVERIFY(Plain()->horizontalHeader()->isVisible());
    QCOMPARE(Plain()->sizeHint().height(), height);
  }

  void NoTextIsCutOffAtTheWidthThatTheGridAsksFor() {
    screen_->Fill(3);
    screen_->grid.columns[2].width = 1;
    screen_->grid.Put(2, 2, "A rather long text, as outputs have");
    window_->Refresh();
    const int needed = Grid()->fontMetrics().horizontalAdvance(TextAt(1, 1));
    QVERIFY(Grid()->minimumSizeHint().width() > 6 * needed);
  }

  void ACellCannotBeTypedInto() {
    Click(Grid(), 0, 0);
    QTest::keyClick(Grid(), Qt::Key_F2);
    QTest::keyClicks(Grid(), QStringLiteral("x"));
    QCOMPARE(screen_->grid.At(1, 1), std::string("A1"));
    QVERIFY(Grid()->viewport()->findChildren<QWidget*>().isEmpty());
  }

  // --- Selecting
  void AClickSelectsTheCellOnce() {
    Click(Grid(), 2, 1);
    QCOMPARE(screen_->events, Events({"select 3 2"}));
    QCOMPARE(screen_->grid.CurrentRow(), 3);
    QCOMPARE(screen_->grid.CurrentColumn(), 2);
  }

  void AClickOnTheCurrentCellSelectsItAgain() {
    Click(Grid(), 1, 0);
    Click(Grid(), 1, 0);
    QCOMPARE(screen_->events, Events({"select 2 1", "select 2 1"}));
  }

  void ArrowKeysSelectBeginningWithTheFirstCell() {
    FocusByTabulator();
    QVERIFY(screen_->events.isEmpty());
    QTest::keyClick(Grid(), Qt::Key_Down);
    QTest::keyClick(Grid(), Qt::Key_Down);
    QTest::keyClick(Grid(), Qt::Key_Right);
    QCOMPARE(screen_->events, Events({"select 1 1", "select 2 1", "select 2 2"}));
  }

  void TheHeaderIsNeverCurrent() {
    Click(Grid(), 0, 0);
    QTest::keyClick(Grid(), Qt::Key_Left);
    QTest::keyClick(Grid(), Qt::Key_Home);
    QTest::mouseClick(Grid()->verticalHeader()->viewport(), Qt::LeftButton, {}, HeaderOf(2));
    QCOMPARE(screen_->events, Events({"select 1 1"}));
    QCOMPARE(Selected(), Grid()->model()->index(0, 0));
  }

  void AClickBesideTheCellsLeavesTheCurrentOne() {
    window_->resize(window_->width(), 900);
    QCoreApplication::processEvents();
    Click(Grid(), 1, 1);
    const QPoint below(20, Grid()->viewport()->height() - 4);
    QVERIFY(!Grid()->indexAt(below).isValid());
    QTest::mouseClick(Grid()->viewport(), Qt::LeftButton, {}, below);
    QCOMPARE(screen_->grid.CurrentRow(), 2);
    QCOMPARE(Selected(), Grid()->model()->index(1, 1));
  }

  void ASelectionThatTheLogicTakesBackIsShownTakenBack() {
    Click(Grid(), 0, 0);
    screen_->grid.onSelect = [this](int, int) { screen_->grid.ClearSelection(); };
    Click(Grid(), 2, 1);
    QVERIFY(!Selected().isValid());
    QVERIFY(!Grid()->currentIndex().isValid());
  }

  void ADisabledGridTakesNothing() {
    screen_->grid.enabled = false;
    window_->Refresh();
    Click(Grid(), 0, 0);
    DoubleClick(Grid(), 0, 0);
    QVERIFY(screen_->events.isEmpty());
  }

  // --- Opening
  void ADoubleClickSelectsAndOpensTheCell() {
    Click(Grid(), 0, 0);
    DoubleClick(Grid(), 1, 1);
    QCOMPARE(screen_->events, Events({"select 1 1", "select 2 2", "select 2 2", "open 2 2"}));
  }

  void ADoubleClickOnAHeaderOrACaptionTellsWhereItWas() {
    QTest::mouseDClick(Grid()->verticalHeader()->viewport(), Qt::LeftButton, {}, HeaderOf(2));
    QHeaderView* captions = Grid()->horizontalHeader();
    QTest::mouseDClick(captions->viewport(), Qt::LeftButton, {},
                       QPoint(captions->sectionViewportPosition(1) + 5, 5));
    QCOMPARE(screen_->events, Events({"open 3 0", "open 0 2"}));
  }

  void DeleteOpensACellWithTextAndInsertOneWithout() {
    Click(Grid(), 0, 1);
    QTest::keyClick(Grid(), Qt::Key_Insert);
    QTest::keyClick(Grid(), Qt::Key_Delete);
    Click(Grid(), 3, 0);
    QTest::keyClick(Grid(), Qt::Key_Delete);
    QTest::keyClick(Grid(), Qt::Key_Insert);
    QCOMPARE(screen_->events, Events({"select 1 2", "select 1 2", "open 1 2", "select 4 1",
                                      "select 4 1", "open 4 1"}));
  }

  void WhereARowIsAnEntryTheKeysGoByTheRow() {
    screen_->grid.rowHeader = false;
    screen_->grid.rowIsEntry = true;
    screen_->grid.Put(2, 1, "");
    window_->Refresh();
    // Column 0 has a number in every row; row 2 has a text in its last column alone.
    for (const int row : {1, 3}) {
      for (const int column : {0, 1}) {
        Click(Grid(), row, column);
        screen_->events.clear();
        QTest::keyClick(Grid(), Qt::Key_Insert);
        const bool free = row == 3;
        QCOMPARE(screen_->events.size(), free ? 2 : 0);
        screen_->events.clear();
        QTest::keyClick(Grid(), Qt::Key_Delete);
        QCOMPARE(screen_->events.size(), free ? 0 : 2);
      }
    }
  }

  void InsertOpensTheCellOfTheCursorBeforeAnyIsSelected() {
    screen_->grid.Put(1, 1, "");
    window_->Refresh();
    FocusByTabulator();
    QTest::keyClick(Grid(), Qt::Key_Insert);
    QCOMPARE(screen_->events, Events({"select 1 1", "open 1 1"}));
  }

  void TheCursorStandsOnACellAgainAfterOneWasDeselected() {
    Click(Grid(), 1, 1);
    window_->findChild<QPushButton*>()->setFocus();
    screen_->grid.ClearSelection();
    window_->Refresh();
    QVERIFY(!Grid()->currentIndex().isValid());
    Grid()->setFocus();
    QCOMPARE(Grid()->currentIndex(), Grid()->model()->index(0, 0));
    QVERIFY(Grid()->selectionModel()->selectedIndexes().isEmpty());
    QCOMPARE(screen_->events, Events({"select 2 2"}));
  }

  void EnterOpensTheCellWhereTheScreenHasNoButtonForIt() {
    screen_->enter = nullptr;
    window_->Refresh();
    Click(Grid(), 1, 1);
    QTest::keyClick(Grid(), Qt::Key_Return);
    QCOMPARE(screen_->events, Events({"select 2 2", "select 2 2", "open 2 2"}));
    // A key that is held down opens nothing more.
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, QString(), true);
    QCoreApplication::sendEvent(Grid(), &held);
    QCOMPARE(screen_->events.count(QStringLiteral("open 2 2")), 1);
    window_->findChild<QPushButton*>()->setFocus();
    QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
    QCOMPARE(screen_->events.last(), QStringLiteral("button"));
  }

  void EnterIsTheButtonOfTheScreenAndTheTabulatorLeavesTheGrid() {
    Click(Grid(), 0, 0);
    QTest::keyClick(Grid(), Qt::Key_Return);
    QTest::keyClick(Grid(), Qt::Key_Enter);
    QCOMPARE(screen_->events, Events({"select 1 1", "button", "button"}));
    QTest::keyClick(Grid(), Qt::Key_Tab);
    QCOMPARE(window_->focusWidget(), Plain());
  }

  // --- Refreshing
  void ARefreshTellsOnlyTheCellsThatChanged() {
    QSignalSpy cells(Grid()->model(), &QAbstractItemModel::dataChanged);
    QSignalSpy headers(Grid()->model(), &QAbstractItemModel::headerDataChanged);
    QSignalSpy resets(Grid()->model(), &QAbstractItemModel::modelReset);
    window_->Refresh();
    QVERIFY(cells.isEmpty() && headers.isEmpty());
    screen_->grid.Put(3, 2, "S0702");
    window_->Refresh();
    QCOMPARE(cells.size(), 1);
    QCOMPARE(cells[0][0].toModelIndex(), Grid()->model()->index(2, 1));
    QCOMPARE(cells[0][1].toModelIndex(), Grid()->model()->index(2, 1));
    QCOMPARE(TextAt(2, 1), QStringLiteral("S0702"));
    screen_->grid.columns[1].caption = "Other";
    screen_->grid.Put(2, 0, "Row");
    window_->Refresh();
    QCOMPARE(headers.size(), 2);
    QCOMPARE(cells.size(), 1);
    QVERIFY(resets.isEmpty());
    QVERIFY(screen_->events.isEmpty());
  }

  void ARefreshKeepsThePlaceAndTheCurrentCell() {
    screen_->Fill(ManyRows);
    window_->Refresh();
    window_->resize(window_->width(), 300);
    QCoreApplication::processEvents();
    Click(Grid(), 0, 1);
    Grid()->verticalScrollBar()->setValue(20);
    screen_->events.clear();
    screen_->grid.Put(2, 1, "B");
    screen_->grid.Put(30, 1, "B");
    window_->Refresh();
    QCOMPARE(Grid()->verticalScrollBar()->value(), 20);
    QCOMPARE(Selected(), Grid()->model()->index(0, 1));
    QVERIFY(screen_->events.isEmpty());
  }

  void ACellThatTheLogicSelectsIsShownWithoutRunningTheHandlerAgain() {
    RunEvent([this] { screen_->grid.Select(3, 1); });
    QCOMPARE(Selected(), Grid()->model()->index(2, 0));
    QCOMPARE(screen_->events, Events({"select 3 1"}));
  }

  void OtherRowsAreShownWithNoneSelected() {
    Click(Grid(), 0, 1);
    screen_->Fill(2);
    window_->Refresh();
    QCOMPARE(Grid()->model()->rowCount(), 2);
    QVERIFY(!Selected().isValid());
    QCOMPARE(screen_->events, Events({"select 1 2"}));
  }

  // --- For a screen reader
  void CellsAndCaptionsAreRead() {
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(Grid());
    QCOMPARE(table->role(), QAccessible::Table);
    QCOMPARE(table->text(QAccessible::Name), QStringLiteral("Buttons:"));
    QAccessibleTableInterface* cells = table->tableInterface();
    QVERIFY(cells != nullptr);
    QCOMPARE(cells->rowCount(), 4);
    QAccessibleInterface* cell = cells->cellAt(1, 0);
    QCOMPARE(cell->text(QAccessible::Name), QStringLiteral("A2"));
    QCOMPARE(cell->tableCellInterface()->rowHeaderCells().first()->text(QAccessible::Name),
             QStringLiteral("Number: 2"));
    QCOMPARE(cells->columnDescription(1), QStringLiteral("Second"));
    Click(Grid(), 1, 0);
    QVERIFY(cell->state().selected);
  }

 private:
  QTableView* Grid() const { return window_->findChild<QTableView*>(QStringLiteral("grid")); }
  QTableView* Plain() const { return window_->findChild<QTableView*>(QStringLiteral("plain")); }
  QString TextAt(int row, int column) const {
    return Grid()->model()->index(row, column).data().toString();
  }
  QModelIndex Selected() const {
    const QModelIndexList selected = Grid()->selectionModel()->selectedIndexes();
    return selected.isEmpty() ? QModelIndex() : selected.front();
  }
  QPoint HeaderOf(int row) const {
    return {5, Grid()->verticalHeader()->sectionViewportPosition(row) + 5};
  }
  static QPoint PlaceOf(const QTableView* table, int row, int column) {
    return table->visualRect(table->model()->index(row, column)).center();
  }
  static void Click(QTableView* table, int row, int column) {
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, PlaceOf(table, row, column));
  }
  /// As a person does it: two clicks, the second one double.
  static void DoubleClick(QTableView* table, int row, int column) {
    Click(table, row, column);
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, PlaceOf(table, row, column));
  }
  void FocusByTabulator() const {
    window_->findChild<QPushButton*>()->setFocus();
    QTest::keyClick(window_.get(), Qt::Key_Tab);
    QCOMPARE(window_->focusWidget(), Grid());
  }

  StandIns standIns_;
  std::unique_ptr<SampleScreen> screen_;
  std::unique_ptr<ScreenWindow> window_;
};

QTEST_MAIN(GridViewTest)
#include "grid_view_test.moc"
