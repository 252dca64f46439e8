// The windows of all screens that the main window opens, in one language.
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <functional>
#include <map>

#include "diagnostics/diagnostics_screen.h"
#include "layout_names.h"
#include "master/context_screen.h"
#include "master/light_program_screen.h"
#include "master/time_program_screen.h"
#include "output/button_screen.h"
#include "output/output_screen.h"
#include "session/settings.h"
#include "shell/directory_picker.h"
#include "shell/directory_screen.h"
#include "shell/main_window.h"
#include "shell/open_dialog.h"
#include "shell/qt/event_guard.h"
#include "shell/qt/screens.h"
#include "shell/qt/style.h"
#include "shell/save_dialog.h"
#include "special/alarm_screen.h"
#include "special/audio_screen.h"
#include "special/display_menu_screen.h"
#include "special/ir_screen.h"
#include "special/simulation_screen.h"
#include "special/temperature_screen.h"
#include "special/weekday_text_screen.h"
#include "stand_ins.h"

using namespace bkconf;

namespace {

bool TakesFocus(const QWidget* widget) {
  return widget->isVisible() && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus;
}

}  // namespace

class FileScreensViewTest : public QObject {
  Q_OBJECT
 private Q_SLOTS:
  void initTestCase() {
    ApplyStyle(*qApp);
    Language = qEnvironmentVariableIntValue("BKCONF_TEST_LANGUAGE");
    QVERIFY(Language.Number() == 1 || Language.Number() == 2);
    SettingsDirectory = "/home";
    standIns_.directories.files["/home"] = {"Dimmer C.BK1", "Relais A.BK1"};
    standIns_.files.contents["/home/directory.vdm"] = "/home\r\n";
    main_ = MakeWindows();
    RunEvent(LoadMainWindow);
    QVERIFY(QTest::qWaitForWindowExposed(main_.get()));
  }
  void init() {
    DefaultDirectory = "/home";
    ActiveModuleType = 0;
  }
  void cleanup() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (auto* box = qobject_cast<QMessageBox*>(widget)) box->close();
    }
    RunEvent([] {
      DirectoryPicker.Close();
      for (const ScreenRow& row : OpenedScreens()) row.screen->Close();
    });
  }
  void cleanupTestCase() { main_.reset(); }

  void TheMainWindowIsTheFirstAndEveryOtherComesBehindItsOpener() {
    std::vector<const Screen*> before;
    for (const ScreenRow& row : AllScreens()) {
      const bool known = std::find(before.begin(), before.end(), row.opener) != before.end();
      QCOMPARE(known, !before.empty());
      before.push_back(row.screen);
    }
    QCOMPARE(before.front(), &MainWindow);
    QCOMPARE(before.size(), ScreenWindows().size());
  }

  void EveryFieldHasItsPlaceOnce_data() { AddScreens(); }
  void EveryFieldHasItsPlaceOnce() {
    QFETCH(int, row);
    QStringList names = NamesIn(Row(row).layout());
    QStringList fields;
    for (const Field* field : Row(row).screen->fields) fields.append(ToQt(field->name));
    names.sort();
    fields.sort();
    QCOMPARE(names, fields);
  }

  void EveryFieldFitsAndCoversNoOther_data() { AddScreens(); }
  void EveryFieldFitsAndCoversNoOther() {
    QFETCH(int, row);
    ShowScreen(row);
    const QList<QWidget*> fields = VisibleFields(row);
    QVERIFY(!fields.isEmpty());
    for (const QWidget* one : fields) {
      const QByteArray name = one->objectName().toUtf8();
      const QSize needed = one->minimumSizeHint();
      QVERIFY2(one->width() >= needed.width() && one->height() >= needed.height(), name);
      QVERIFY2(Window(row)->rect().contains(Place(one)), name);
      for (const QWidget* other : fields) {
        if (one == other || one->isAncestorOf(other) || other->isAncestorOf(one)) continue;
        QVERIFY2(!Place(one).intersects(Place(other)), name);
      }
    }
  }

  void EveryFieldHasANameForAScreenReader_data() { AddScreens(); }
  void EveryFieldHasANameForAScreenReader() {
    QFETCH(int, row);
    ShowScreen(row);
    RunEvent([] { SaveDialog.newFolder.Click(); });
    for (QWidget* widget : VisibleFields(row)) {
      const QByteArray name = widget->objectName().toUtf8();
      // A text that is empty for now, a group that there is nothing to see of.
      const auto* label = dynamic_cast<const QLabel*>(widget);
      if ((label != nullptr && label->text().isEmpty()) || name == "functionsGroup") continue;
      const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
      QVERIFY2(spoken != nullptr, name);
      QVERIFY2(!spoken->text(QAccessible::Name).isEmpty(), name);
      if (dynamic_cast<const QComboBox*>(widget) == nullptr) continue;
      QVERIFY2(!spoken->text(QAccessible::Description).isEmpty(), name);
      QVERIFY2(!spoken->relations(QAccessible::Label).isEmpty(), name);
    }
  }

  void TheKeyboardIsWhereTheScreenWantsItOnOpening_data() { AddScreens(); }
  void TheKeyboardIsWhereTheScreenWantsItOnOpening() {
    QFETCH(int, row);
    ShowScreen(row);
    const Field* wanted = Row(row).screen->firstFocus;
    for (const QString& name : NamesIn(Row(row).layout())) {
      auto* widget = Find<QWidget>(Window(row), name);
      const bool isWanted = wanted != nullptr && widget->objectName() == ToQt(wanted->name);
      const bool isFirst = wanted == nullptr && TakesFocus(widget);
      if (!isWanted && !isFirst) continue;
      const QWidget* focus = Window(row)->focusWidget();
      QVERIFY2(focus == widget || widget->isAncestorOf(focus), widget->objectName().toUtf8());
      return;
    }
    QFAIL("nothing takes the focus");
  }

  void TheTabulatorGoesInReadingOrder_data() { AddScreens(); }
  void TheTabulatorGoesInReadingOrder() {
    QFETCH(int, row);
    ShowScreen(row);
    QStringList expected = NamesIn(Row(row).layout());
    expected.removeIf(
        [&](const QString& name) { return !TakesFocus(Find<QWidget>(Window(row), name)); });
    Find<QWidget>(Window(row), expected.front())->setFocus();
    QStringList visited;
    do {
      visited.append(FieldInFocus(row));
      QTest::keyClick(Window(row), Qt::Key_Tab);
    } while (FieldInFocus(row) != expected.front() && visited.size() <= expected.size());
    QCOMPARE(visited, expected);
  }

  void AWalkThroughTheDirectoriesLeadsToAFile() {
    main_->findChild<QAction*>(QStringLiteral("openen"))->trigger();
    ScreenWindow* window = Named("OpenDialog");
    QVERIFY(window->isVisible());
    QCOMPARE(Texts(Find<QListWidget>(window, "directories")),
             QStringList({QStringLiteral(".."), QStringLiteral("jan"), QStringLiteral("mieke")}));
    OpenItem(Find<QListWidget>(window, "directories"), 1);
    QCOMPARE(Find<QLabel>(window, "path")->text(), QStringLiteral("/home/jan"));
    QCOMPARE(Find<QListWidget>(window, "files")->count(), 0);
    OpenItem(Find<QListWidget>(window, "directories"), 0);
    ClickItem(Find<QListWidget>(window, "files"), 1);
    QCOMPARE(Find<QLabel>(window, "path")->text(), QStringLiteral("/home/Relais A.BK1"));
  }

  void AFileThatCannotBeReadIsToldOverTheOpenScreen() {
    RunEvent(ShowOpenDialog);
    ScreenWindow* window = Named("OpenDialog");
    ClickItem(Find<QListWidget>(window, "files"), 0);
    QTest::keyClick(Find<QListWidget>(window, "files"), Qt::Key_Return);
    QVERIFY(window->isVisible());
    QVERIFY(QApplication::activeModalWidget() != nullptr);
    QCOMPARE(QApplication::activeModalWidget()->parentWidget(), window);
  }

  void AClickOnAFileGivesItsNameToTheNewOne() {
    RunEvent(ShowSaveDialog);
    ScreenWindow* window = Named("SaveDialog");
    ClickItem(Find<QListWidget>(window, "files"), 1);
    QCOMPARE(Find<QLineEdit>(window, "fileName")->text(), QStringLiteral("Relais A.BK1"));
  }

  void TheFolderNameTakesThePlaceOfItsButtonAndTheFocus() {
    RunEvent(ShowSaveDialog);
    ScreenWindow* window = Named("SaveDialog");
    const QLineEdit* name = Find<QLineEdit>(window, "folderName");
    const QPushButton* button = Find<QPushButton>(window, "newFolder");
    const QPushButton* make = Find<QPushButton>(window, "makeFolder");
    QVERIFY(!name->isVisible());
    const int left = Place(button).left();
    const int gap = Place(make).left() - Place(button).right();
    QVERIFY(gap < 20);
    Find<QPushButton>(window, "newFolder")->setFocus();
    QTest::keyClick(window->focusWidget(), Qt::Key_Space);
    QTRY_COMPARE(Place(name).left(), left);
    QCOMPARE(Place(make).left() - Place(name).right(), gap);
    QVERIFY(!button->isVisible());
    QCOMPARE(window->focusWidget(), name);
    QVERIFY(!make->isEnabled());
    QTest::keyClicks(window->focusWidget(), QStringLiteral("new"));
    QVERIFY(make->isEnabled());
    QTest::mouseClick(Find<QPushButton>(window, "makeFolder"), Qt::LeftButton);
    QVERIFY(standIns_.directories.folders.count("/home/new") == 1);
    QVERIFY(button->isVisible() && !name->isVisible());
    QCOMPARE(window->focusWidget(), button);
  }

  void ThePickerStandsOverTheDirectoryScreenAndGivesItItsChoice() {
    main_->findChild<QAction*>(QStringLiteral("instellingen"))->trigger();
    ScreenWindow* screen = Named("DirectoryScreen");
    QVERIFY(screen->isVisible());
    QTest::mouseClick(Find<QPushButton>(screen, "browse"), Qt::LeftButton);
    ScreenWindow* picker = Named("DirectoryPicker");
    QVERIFY(picker->isVisible());
    QCOMPARE(picker->parentWidget(), screen);
    QCOMPARE(QApplication::activeModalWidget(), picker);
    OpenItem(Find<QListWidget>(picker, "directories"), 1);
    QTest::keyClick(Find<QListWidget>(picker, "directories"), Qt::Key_Return);
    QVERIFY(!picker->isVisible());
    QCOMPARE(Find<QLabel>(screen, "directory")->text(), QStringLiteral("/home/jan"));
    QTest::keyClick(screen, Qt::Key_Escape);
    QVERIFY(!screen->isVisible());
  }

 private:
  static std::span<const ScreenRow> OpenedScreens() { return AllScreens().subspan(1); }
  static const ScreenRow& Row(int row) { return OpenedScreens()[static_cast<std::size_t>(row)]; }
  static void AddScreens() {
    QTest::addColumn<int>("row");
    for (int row = 0; const ScreenRow& each : OpenedScreens()) {
      QTest::newRow(each.screen->name.c_str()) << row;
      ++row;
    }
  }

  static ScreenWindow* Named(const char* screen) {
    for (ScreenWindow* window : ScreenWindows()) {
      if (window->objectName() == QString::fromLatin1(screen)) return window;
    }
    qFatal("There is no window %s", screen);
  }
  static ScreenWindow* Window(int row) { return Named(Row(row).screen->name.c_str()); }

  /// As its own entry or button does, with all that it needs in memory.
  static void ShowScreen(int row) {
    static const std::map<const Screen*, std::function<void()>> openers = {
        {&OpenDialog, ShowOpenDialog},
        {&SaveDialog, ShowSaveDialog},
        {&DirectoryScreen, ShowDirectoryScreen},
        {&DirectoryPicker,
         [] {
           ShowDirectoryScreen();
           ShowDirectoryPicker();
         }},
        {&ButtonScreen, OpenButtonScreen},
        {&OutputScreen, OpenOutputScreen},
        {&ContextScreen, OpenContextScreen},
        {&TimeProgramScreen, OpenTimeProgramScreen},
        {&LightProgramScreen, OpenLightProgramScreen},
        {&AlarmScreen, OpenAlarmScreen},
        {&TemperatureScreen, OpenRoomProgram},
        {&DisplayMenuScreen, OpenDisplay1},
        {&WeekdayTextScreen, OpenWeekdayTexts},
        {&AudioScreen, OpenAudioScreen},
        {&SimulationScreen, OpenSimulationScreen},
        {&IrScreen, OpenIrScreen},
        {&DiagnosticsScreen, OpenDiagnosticsScreen},
    };
    MasterContextsLoaded = MasterTimeLoaded = MasterLightLoaded = 1;
    TempImage2Loaded = LcdScreen1Loaded = LcdWeekdayLoaded = 1;
    RunEvent(openers.at(Row(row).screen));
    QVERIFY(QTest::qWaitForWindowExposed(Window(row)));
    // The desktop of the tests has not the room for it.
    Window(row)->resize(Window(row)->sizeHint());
    QCoreApplication::processEvents();
  }

  static QList<QWidget*> VisibleFields(int row) {
    QList<QWidget*> widgets;
    for (const Field* field : Row(row).screen->fields) {
      auto* widget = Find<QWidget>(Window(row), ToQt(field->name));
      if (widget->isVisible()) widgets.append(widget);
    }
    return widgets;
  }

  /// The keys of a picture stand for it.
  static QString FieldInFocus(int row) {
    const QWidget* widget = Window(row)->focusWidget();
    while (Row(row).screen->Find(widget->objectName().toStdString()) == nullptr) {
      widget = widget->parentWidget();
    }
    return widget->objectName();
  }

  static QRect Place(const QWidget* widget) {
    return {widget->mapTo(widget->window(), QPoint()), widget->size()};
  }

  static QStringList Texts(const QListWidget* box) {
    QStringList texts;
    for (int row = 0; row < box->count(); ++row) texts.append(box->item(row)->text());
    return texts;
  }
  static void ClickItem(QListWidget* box, int row) {
    QTest::mouseClick(box->viewport(), Qt::LeftButton, {},
                      box->visualItemRect(box->item(row)).center());
  }
  static void OpenItem(QListWidget* box, int row) {
    ClickItem(box, row);
    QTest::mouseDClick(box->viewport(), Qt::LeftButton, {},
                       box->visualItemRect(box->item(row)).center());
  }

  /// The windows that a window opens are its children, and may have fields of the same name.
  template <typename Widget>
  static Widget* Find(const QWidget* window, const QString& name) {
    for (Widget* found : window->findChildren<Widget*>(name)) {
      if (found->window() == window) return found;
    }
    qFatal("There is no widget %s", qPrintable(name));
  }
  template <typename Widget>
  static Widget* Find(const QWidget* window, const char* name) {
    return Find<Widget>(window, QString::fromLatin1(name));
  }

  StandIns standIns_;
  std::unique_ptr<ScreenWindow> main_;
};

QTEST_MAIN(FileScreensViewTest)
#include "file_screens_view_test.moc"
