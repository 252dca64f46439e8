// The windows of a master's contexts, time programmes and light programmes, in one language and
// with a house full of modules, for the tests that work in them.
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
#include <functional>
#include <memory>

#include "master/context_screen.h"
#include "master/light_program_screen.h"
#include "master/time_program_screen.h"
#include "session/language.h"
#include "shell/qt/screens.h"
#include "stand_ins.h"

namespace bkconf {

/// What a screen shows. A letter stands in the editor, '?' for none.
struct ScreenState {
  const char* name;
  Screen* screen;
  void (*open)();
  const char* panel;  ///< "deleteGroup", "editGroup" or none
  char letter;
  int action;
  bool asksDate;
};

inline constexpr int TimeSlots = 110;
inline constexpr int LightSlots = 200;
QString Say(TextId id);

class MasterStage {
 protected:
  static const std::vector<ScreenState>& States();
  static const ScreenState& State(int place) {
    return States().at(static_cast<std::size_t>(place));
  }
  static const ScreenState& StateOf(const char* name);
  /// Rows of test data: the places of the states that are wanted.
  static void AddStatesIf(const std::function<bool(const ScreenState&)>& wanted);
  static void AddScreens();
  static void AddQuestionsOfPrograms();

  /// The language is that of the environment.
  void Begin();
  static void CloseAll();

  void Show(Screen& screen, void (*open)());
  void ShowContext(int context);
  void ShowState(const ScreenState& state);
  /// In a window that is open.
  static void ShowIn(const ScreenState& state);
  static void OpenEditor(Screen& screen);

  /// With the keyboard, as a person who steps through the items.
  void PickRow(const char* list, int row);
  /// In one step: on the way to an item of a long list others would be picked.
  void Pick(const char* list, const char* item);
  void Press(const char* button) { QTest::mouseClick(Button(button), Qt::LeftButton); }

  ScreenWindow* Window() const { return window_; }
  QPushButton* Button(const char* name) const { return Find<QPushButton>(name); }
  QComboBox* List(const char* name) const { return Find<QComboBox>(name); }
  QGroupBox* Panel(const char* name) const { return Find<QGroupBox>(name); }
  QLabel* Sentence() const { return Find<QLabel>("description"); }
  QTableView* Grid() const;
  QString CellText(int row, int column) const;
  void ClickCell(int row, int column) const;
  void DoubleClick(int row, int column) const;
  QList<QWidget*> VisibleFields() const;
  /// The days of the calendar stand for it.
  QString FieldInFocus() const;
  static QRect Place(const QWidget* widget) {
    return {widget->mapTo(widget->window(), QPoint()), widget->size()};
  }

  template <typename Widget>
  Widget* Find(const char* name) const {
    auto* found = window_->findChild<Widget*>(QString::fromLatin1(name));
    if (found == nullptr) qFatal("There is no widget %s", name);
    return found;
  }

 private:
  QPoint PlaceOf(int row, int column) const;

  StandIns standIns_;
  std::unique_ptr<ScreenWindow> main_;
  ScreenWindow* window_ = nullptr;
  Screen* screen_ = nullptr;
};

}  // namespace bkconf
