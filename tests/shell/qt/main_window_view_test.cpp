#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include "image/module_directory.h"
#include "layout_names.h"
#include "link/transfer.h"
#include "session/language.h"
#include "session/settings.h"
#include "shell/main_window.h"
#include "shell/qt/layouts/main_window.h"
#include "shell/qt/screen_window.h"
#include "shell/qt/style.h"
#include "stand_ins.h"

using namespace bkconf;

namespace {

bool TakesFocus(const QWidget* widget) {
  return widget->isVisible() && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus;
}

}  // namespace

class MainWindowViewTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() {
    ApplyStyle(*qApp);
    Language = qEnvironmentVariableIntValue("BKCONF_TEST_LANGUAGE");
    QVERIFY(Language.Number() == 1 || Language.Number() == 2);
    PortNumber = 3;
    LoadMainWindow();
    window_ = std::make_unique<ScreenWindow>(MainWindow, MainWindowLayout);
    QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
  }
  void cleanupTestCase() { window_.reset(); }
  void init() {
    NewModule();
    window_->resize(1014, 660);
    window_->Refresh();
  }

  void EveryFieldHasItsPlaceOnce() {
    QStringList names = NamesIn(MainWindowLayout());
    QStringList fields;
    for (const Field* field : MainWindow.fields) {
      if (field->kind != FieldKind::Menu) fields.append(ToQt(field->name));
    }
    names.sort();
    fields.sort();
    QCOMPARE(names, fields);
  }

  void EveryFieldHasAWidgetOrAnActionOfItsName() {
    for (const Field* field : MainWindow.fields) {
      const QString name = ToQt(field->name);
      QVERIFY2(window_->findChild<QObject*>(name) != nullptr, qPrintable(name));
    }
  }

  void TheWindowShowsWhatTheLogicShowsAtTheStart() {
    QVERIFY(Find<QPushButton>("connect")->isEnabled());
    QVERIFY(!Find<QPushButton>("send")->isEnabled());
    QVERIFY(!Find<QComboBox>("generalAddress")->isEnabled());
    QVERIFY(Find<QGroupBox>("generalGroup")->isVisible());
    QVERIFY(!Find<QGroupBox>("alarmGroup")->isVisible());
    QVERIFY(!Find<QGroupBox>("pictureGroup")->isVisible());
    QCOMPARE(Find<QComboBox>("moduleList")->count(), 12);
    QCOMPARE(Find<QAction>("p3")->isChecked(), true);
    QCOMPARE(Find<QAction>(Language.Number() == 1 ? "ned" : "frans")->isChecked(), true);
    QVERIFY(Find<QAction>("openen")->isEnabled());
    QVERIFY(!Find<QAction>("Bewaren_als")->isEnabled());
    QCOMPARE(Find<QAction>("p1")->text(), QStringLiteral("Com &1"));
    Q_EMIT Find<QMenu>("poort")->aboutToShow();
    QVERIFY(Find<QAction>("p1")->text().contains(QStringLiteral("tty1")));
  }

  void ConnectLocksTheWindowAndShowsTheSearch() {
    QTest::mouseClick(Find<QPushButton>("connect"), Qt::LeftButton);
    QVERIFY(!Find<QPushButton>("connect")->isEnabled());
    QVERIFY(!Find<QComboBox>("moduleList")->isEnabled());
    QVERIFY(!Find<QMenu>("bestand")->menuAction()->isEnabled());
    QVERIFY(Find<QWidget>("transferBar")->isVisible());
    QCOMPARE(Find<QLabel>("status")->text(), ToQt(Text(TextId::SearchingModule)));
    LeaveTransfer();
    window_->Refresh();
    QVERIFY(Find<QPushButton>("connect")->isEnabled());
    QVERIFY(!Find<QWidget>("transferBar")->isVisible());
  }

  void AnAddressThatTheUserPicksGoesIntoTheTable() {
    ShowKindWithCells(ModuleKinds[0]);
    QComboBox* address = Find<QComboBox>("generalAddress");
    QCOMPARE(address->currentText(), QStringLiteral("C"));
    QTest::keyClick(address, Qt::Key_K);
    QCOMPARE(ButtonImage[121].Whole(), int{'K'});
  }

  void TheFrameEndsTheProgramWithoutAQuestion() {
    const int before = standIns_.programs.ends;
    window_->close();
    QCOMPARE(standIns_.programs.ends, before + 1);
  }

  void EveryKindFits_data() { AddKinds(); }
  void EveryKindFits() {
    QFETCH(int, row);
    ShowRow(row);
    QVERIFY(window_->width() <= 1014 && window_->height() <= 660);
    const QRect area = window_->rect();
    for (const QWidget* widget : VisibleFields()) {
      const QSize needed = widget->minimumSizeHint();
      const QByteArray name = widget->objectName().toUtf8();
      QVERIFY2(widget->width() >= needed.width() && widget->height() >= needed.height(), name);
      QVERIFY2(area.contains(QRect(widget->mapTo(window_.get(), QPoint()), widget->size())), name);
      if (dynamic_cast<const QPushButton*>(widget) != nullptr) {
        QVERIFY2(widget->width() >= widget->sizeHint().width(), name);
      }
    }
  }

  void NoTwoFieldsCoverEachOther_data() { AddKinds(); }
  void NoTwoFieldsCoverEachOther() {
    QFETCH(int, row);
    ShowRow(row);
    const QList<QWidget*> fields = VisibleFields();
    for (const QWidget* one : fields) {
      for (const QWidget* other : fields) {
        if (one == other || one->isAncestorOf(other) || other->isAncestorOf(one)) continue;
        QVERIFY2(!Place(one).intersects(Place(other)),
                 qPrintable(one->objectName() + u' ' + other->objectName()));
      }
    }
  }

  void TheTabulatorGoesInReadingOrder_data() { AddKinds(); }
  void TheTabulatorGoesInReadingOrder() {
    QFETCH(int, row);
    ShowRow(row);
    for (const auto& button : MainWindow.actionButtons) button->onClick = [] {};
    window_->Refresh();
    QStringList expected = NamesIn(MainWindowLayout());
    expected.removeIf([this](const QString& name) {
      return !TakesFocus(Find<QWidget>(name.toLatin1().constData()));
    });
    QWidget* first = Find<QWidget>(expected.front().toLatin1().constData());
    first->setFocus();
    QStringList visited;
    do {
      visited.append(window_->focusWidget()->objectName());
      QTest::keyClick(window_.get(), Qt::Key_Tab);
    } while (window_->focusWidget() != first && visited.size() <= expected.size());
    QCOMPARE(visited, expected);
    for (const auto& button : MainWindow.actionButtons) button->onClick = nullptr;
  }

  void EveryFieldHasANameForAScreenReader_data() { AddKinds(); }
  void EveryFieldHasANameForAScreenReader() {
    QFETCH(int, row);
    ShowRow(row);
    for (QWidget* widget : VisibleFields()) {
      const QByteArray name = widget->objectName().toUtf8();
      if (widget->objectName() == QStringLiteral("status")) continue;  // empty now and then
      const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
      QVERIFY2(spoken != nullptr, name);
      QVERIFY2(!spoken->text(QAccessible::Name).isEmpty(), name);
      if (dynamic_cast<const QComboBox*>(widget) == nullptr) continue;
      QVERIFY2(!spoken->text(QAccessible::Description).isEmpty(), name);
      const auto related = spoken->relations(QAccessible::Label);
      QVERIFY2(!related.isEmpty(), name);
    }
  }

  void KindsWithFewerFieldsLeaveNoHoleForThem() {
    const auto gap = [this](const char* button) {
      const QRect version = Place(Find<QWidget>("displayTemperatureVersion"));
      return Place(Find<QWidget>(button)).top() - version.bottom();
    };
    ShowKindWithCells(*FindKind(3));
    const int display = gap("display1");
    ShowKindWithCells(*FindKind(2));
    const int temperature = gap("roomIds");
    QVERIFY(display < 30);
    QVERIFY(temperature > 2 * display);
  }

  void TheListOfModulesShowsHalfOfItsRowsOnASmallDesktop() {
    window_->resize(1000, 728);
    ShowRow(PageRow);
    const auto* list = Find<QTableView>("modules");
    const int row = list->verticalHeader()->defaultSectionSize();
    QVERIFY(list->viewport()->height() >= list->model()->rowCount() / 2 * row);
  }

  void ThePanelToAddAModuleIsOpenedAndLeftByKeyboard() {
    ShowRow(PageRow);
    QTableView* list = Find<QTableView>("modules");
    list->setFocus();
    list->setCurrentIndex(list->model()->index(4, 1));
    QTest::keyClick(list, Qt::Key_Return);
    QVERIFY(Find<QGroupBox>("addGroup")->isVisible());
    QCOMPARE(window_->focusWidget(), Find<QComboBox>("addLetter"));
    QTest::keyClick(window_->focusWidget(), Qt::Key_Escape);
    QVERIFY(!Find<QGroupBox>("addGroup")->isVisible());
    QCOMPARE(window_->focusWidget(), list);
  }

  void TheMastersVersionStandsWhereOtherwiseTheAddressDoes() {
    ShowKindWithCells(*FindKind(9));
    QCOMPARE(Place(Find<QWidget>("generalVersion")).left(),
             Place(Find<QWidget>("generalButtons")).left());
  }

  void TheBarIsNamedByTheStatus() {
    StartTransfer();
    window_->Refresh();
    QCOMPARE(Find<QWidget>("transferBar")->accessibleName(), ToQt(Text(TextId::SearchingModule)));
    LeaveTransfer();
  }

 private:
  /// All kinds, and a master with its configuration page.
  static void AddKinds() {
    QTest::addColumn<int>("row");
    for (int row = 0; const ModuleKind& kind : ModuleKinds) {
      QTest::newRow(kind.identity.data()) << row;
      ++row;
    }
    QTest::newRow("module page") << PageRow;
    QTest::newRow("add a module") << PageRow + 1;
    QTest::newRow("delete a module") << PageRow + 2;
  }
  static constexpr int PageRow = static_cast<int>(ModuleKinds.size());

  void ShowRow(int row) {
    ShowKindWithCells(row < PageRow ? ModuleKinds[static_cast<std::size_t>(row)] : *FindKind(9));
    if (row < PageRow) return;
    DirectoryLetter(0) = int{'E'};
    DirectoryType(0) = 2;
    DirectoryLetter(1) = EmptyCell;
    OpenModulePage();
    EnableModulePage(true);
    if (row > PageRow) MainWindow.modulePage.modules.DoubleClick(row == PageRow + 1 ? 2 : 1, 1);
    window_->Refresh();
    QCoreApplication::processEvents();
  }

  void ShowKindWithCells(const ModuleKind& kind) {
    ActiveModuleType = kind.code;
    Cell* cells[] = {
        kind.address.table == nullptr ? nullptr : &(*kind.address.table)[kind.address.index],
        &(*kind.version.table)[kind.version.index]};
    if (cells[0] != nullptr) *cells[0] = int{'C'};
    *cells[1] = 21;
    Window.showModel(kind);
    Window.showFields(kind);
    Window.showModuleCells();
    Window.enableModuleFields(true);
    MainWindow.send.enabled = true;
    Show(MainWindow.status.caption, TextId::SendingTimePrograms);
    window_->Refresh();
    QCoreApplication::processEvents();
  }

  QList<QWidget*> VisibleFields() const {
    QList<QWidget*> widgets;
    for (const Field* field : MainWindow.fields) {
      if (field->kind == FieldKind::Menu) continue;
      QWidget* widget = Find<QWidget>(field->name.c_str());
      if (widget->isVisible()) widgets.append(widget);
    }
    return widgets;
  }

  QRect Place(const QWidget* widget) const {
    return {widget->mapTo(window_.get(), QPoint()), widget->size()};
  }

  template <typename Widget>
  Widget* Find(const char* name) const {
    auto* found = window_->findChild<Widget*>(QString::fromLatin1(name));
    if (found == nullptr) qFatal("There is no widget %s", name);
    return found;
  }

  StandIns standIns_;
  std::unique_ptr<ScreenWindow> window_;
};

QTEST_MAIN(MainWindowViewTest)
#include "main_window_view_test.moc"
