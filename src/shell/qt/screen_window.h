// The window of a screen: all its fields in the layout that is given. The program makes one for
// each screen; the event guard refreshes them all.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/field.h"
#include "shell/qt/field_view.h"
#include "shell/qt/layout.h"
#include "shell/qt/menu_view.h"

namespace bkconf {

/// Appears and disappears with `Screen::shown`.
class ScreenWindow : public QMainWindow {
 public:
  /// `onClose` is what the close button of the frame does.
  ScreenWindow(Screen& screen, const Part& layout, std::function<void()> onClose);
  ~ScreenWindow() override;

  /// The window appears minimised the first time.
  void StartMinimised() { minimised_ = true; }
  /// The button that Enter presses while no other has the focus.
  void SetDefaultButton(const ButtonField& field);

  /// Pushes what changed in the screen to the widgets.
  void Refresh();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void MakeViews();
  void MakeMenus();
  void PlaceViews(const Part& layout);
  WidgetView& ViewOf(const std::string& field);
  void KeepFocus(QWidget* focusBefore);
  void ShowOrHide();

  Screen& screen_;
  std::function<void()> onClose_;
  std::vector<std::unique_ptr<WidgetView>> views_;
  std::vector<std::unique_ptr<MenuView>> menus_;
  std::string title_;
  bool minimised_ = false;
  QPointer<QWidget> defaultButton_;
  QPointer<QWidget> awaitedFocus_;  ///< had the focus when it was disabled
};

/// All windows there are, in the order in which they were made.
const std::vector<ScreenWindow*>& ScreenWindows();

}  // namespace bkconf
