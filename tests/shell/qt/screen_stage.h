// One window of the program in one language, for the tests that work in it as a person does.
#pragma once

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTest>
#include <algorithm>
#include <iterator>
#include <memory>

#include "session/language.h"
#include "shell/qt/screens.h"
#include "stand_ins.h"

namespace bkconf {

/// What a desktop of 1366 x 768 leaves for a window within its frame.
inline constexpr QSize SmallDesktop{1356, 728};

QString InQt(TextId id);

class ScreenStage {
 protected:
  /// The language is that of the environment.
  void Begin();
  /// Screens that are open, and message boxes.
  static void Close(std::initializer_list<Screen*> screens);

  void Show(Screen& screen, void (*open)());

  /// With the keyboard, as a person who steps through the items.
  void PickRow(const char* list, int row);
  /// In one step: on the way to an item of a long list others would be picked.
  void Pick(const char* list, const char* item);
  void Press(const char* button) { QTest::mouseClick(Button(button), Qt::LeftButton); }

  ScreenWindow* Window() const { return window_; }
  Screen& Shown() const { return *screen_; }
  /// Of the window where nothing of it has to be scrolled.
  QSize LeastSize() const;
  QPushButton* Button(const char* name) const { return Find<QPushButton>(name); }
  QComboBox* List(const char* name) const { return Find<QComboBox>(name); }
  QGroupBox* Panel(const char* name) const { return Find<QGroupBox>(name); }
  QLabel* Label(const char* name) const { return Find<QLabel>(name); }
  QList<QWidget*> VisibleFields() const;
  /// The days of a calendar stand for it, and the keys of a picture.
  QString FieldInFocus() const;
  static QRect Place(const QWidget* widget) {
    return {widget->mapTo(widget->window(), QPoint()), widget->size()};
  }
  static void Click(QTableView* grid, int row, int column);
  static void DoubleClick(QTableView* grid, int row, int column);

  // The states of a window that a test goes through: an array of structs with a name each
  template <typename States>
  static const auto& Named(const States& states, const char* name) {
    return *std::find_if(std::begin(states), std::end(states),
                         [name](const auto& each) { return qstrcmp(each.name, name) == 0; });
  }
  /// Makes a test run in each of them, with its index.
  template <typename States>
  static void AddStates(const States& states) {
    QTest::addColumn<int>("state");
    for (int state = 0; const auto& each : states) QTest::newRow(each.name) << state++;
  }

  // What holds in every state of a window
  void ExpectThatItFitsOnASmallDesktop();
  void ExpectNoFieldCutOffOrCovered();
  void ExpectEveryFieldHasANameForAScreenReader();
  void ExpectTabulatorGoesInReadingOrder();

  template <typename Widget>
  Widget* Find(const char* name) const {
    auto* found = window_->findChild<Widget*>(QString::fromLatin1(name));
    if (found == nullptr) qFatal("There is no widget %s", name);
    return found;
  }

 private:
  static QPoint PlaceOf(QTableView* grid, int row, int column);

  StandIns standIns_;
  std::unique_ptr<ScreenWindow> main_;
  ScreenWindow* window_ = nullptr;
  Screen* screen_ = nullptr;
};

}  // namespace bkconf
