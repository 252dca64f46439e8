#include "screen_stage.h"

#include <QAccessible>
#include <algorithm>

#include "layout_names.h"
#include "shell/main_window.h"
#include "shell/qt/content_area.h"
#include "shell/qt/event_guard.h"
#include "shell/qt/style.h"

namespace bkconf {
namespace {

bool TakesFocus(const QWidget* widget) {
  return widget->isVisible() && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus;
}

/// One that is empty now and then.
bool IsEmptyLabel(const QWidget* widget) {
  const auto* label = dynamic_cast<const QLabel*>(widget);
  return label != nullptr && label->text().isEmpty();
}

}  // namespace

QString InQt(TextId id) {
  return ToQt(Text(id));
}

void ScreenStage::Begin() {
  ApplyStyle(*qApp);
  Language = qEnvironmentVariableIntValue("BKCONF_TEST_LANGUAGE");
  QVERIFY(Language.Number() == Dutch || Language.Number() == French);
  Now = [] { return Moment{.date = {2024, 2, 29}, .weekday = 5}; };
  main_ = MakeWindows();
  RunEvent(LoadMainWindow);
  QVERIFY(QTest::qWaitForWindowExposed(main_.get()));
}

void ScreenStage::Close(std::initializer_list<Screen*> screens) {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (auto* box = qobject_cast<QMessageBox*>(widget)) box->close();
  }
  RunEvent([screens] {
    for (Screen* screen : screens) screen->Close();
  });
}

void ScreenStage::Show(Screen& screen, void (*open)()) {
  RunEvent(open);
  const auto window = std::find_if(
      ScreenWindows().begin(), ScreenWindows().end(),
      [&screen](const ScreenWindow* each) { return each->objectName() == ToQt(screen.name); });
  window_ = *window;
  screen_ = &screen;
  QVERIFY(QTest::qWaitForWindowActive(window_));
  // The desktop of the tests has not the room for it.
  window_->resize(window_->size().expandedTo(LeastSize()));
}

QSize ScreenStage::LeastSize() const {
  return window_->findChild<ContentArea*>()->widget()->minimumSizeHint();
}

// --- What a person does -------------------------------------------------------------------------

void ScreenStage::PickRow(const char* list, int row) {
  QComboBox* box = List(list);
  box->setFocus();
  QTest::keyClick(box, Qt::Key_Home);
  for (int step = 0; step < row; ++step) QTest::keyClick(box, Qt::Key_Down);
  QCOMPARE(box->currentIndex(), row);
}

void ScreenStage::Pick(const char* list, const char* item) {
  QComboBox* box = List(list);
  const int row = box->findText(QString::fromLatin1(item));
  QVERIFY2(row >= 0 && box->isVisible() && box->isEnabled(), list);
  box->setFocus();
  box->setCurrentIndex(row);
  Q_EMIT box->activated(row);
}

QPoint ScreenStage::PlaceOf(QTableView* grid, int row, int column) {
  const QModelIndex index = grid->model()->index(row, column);
  grid->scrollTo(index);
  return grid->visualRect(index).center();
}

void ScreenStage::Click(QTableView* grid, int row, int column) {
  QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, PlaceOf(grid, row, column));
}

void ScreenStage::DoubleClick(QTableView* grid, int row, int column) {
  Click(grid, row, column);
  QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, PlaceOf(grid, row, column));
}

// --- What is seen -------------------------------------------------------------------------------

QList<QWidget*> ScreenStage::VisibleFields() const {
  QList<QWidget*> widgets;
  for (const Field* field : screen_->fields) {
    auto* widget = Find<QWidget>(field->name.c_str());
    if (widget->isVisible()) widgets.append(widget);
  }
  return widgets;
}

QString ScreenStage::FieldInFocus() const {
  const QWidget* widget = window_->focusWidget();
  while (widget != nullptr && screen_->Find(widget->objectName().toStdString()) == nullptr) {
    widget = widget->parentWidget();
  }
  return widget == nullptr ? QString() : widget->objectName();
}

void ScreenStage::ExpectThatItFitsOnASmallDesktop() {
  const QSize size = Window()->sizeHint();
  QVERIFY(size.width() <= SmallDesktop.width() && size.height() <= SmallDesktop.height());
  const QSize least = LeastSize();
  QVERIFY(Window()->width() >= least.width() && Window()->height() >= least.height());
}

void ScreenStage::ExpectNoFieldCutOffOrCovered() {
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

void ScreenStage::ExpectEveryFieldHasANameForAScreenReader() {
  for (QWidget* widget : VisibleFields()) {
    if (IsEmptyLabel(widget)) continue;
    const QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(widget);
    const bool list = dynamic_cast<const QComboBox*>(widget) != nullptr;
    QVERIFY2(!spoken->text(list ? QAccessible::Description : QAccessible::Name).isEmpty(),
             widget->objectName().toUtf8());
  }
}

void ScreenStage::ExpectTabulatorGoesInReadingOrder() {
  const auto row = std::find_if(AllScreens().begin(), AllScreens().end(),
                                [this](const ScreenRow& each) { return each.screen == screen_; });
  QStringList expected = NamesIn(row->layout());
  expected.removeIf([this](const QString& name) {
    return !TakesFocus(Find<QWidget>(name.toLatin1().constData()));
  });
  if (expected.isEmpty()) return;
  auto* first = Find<QWidget>(expected.front().toLatin1().constData());
  first->setFocus();
  QStringList visited;
  do {
    visited.append(FieldInFocus());
    QTest::keyClick(Window(), Qt::Key_Tab);
  } while (FieldInFocus() != expected.front() && visited.size() <= expected.size());
  QCOMPARE(visited, expected);
}

}  // namespace bkconf
