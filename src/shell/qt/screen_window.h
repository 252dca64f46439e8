// The window of a screen: all its fields in the layout that is given. The table of screens makes
// one for each; the event guard refreshes them all.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/field.h"
#include "shell/qt/content_area.h"
#include "shell/qt/field_view.h"
#include "shell/qt/layout.h"
#include "shell/qt/layout_builder.h"
#include "shell/qt/menu_view.h"

namespace bkconf {

/// Appears and disappears with `Screen::shown`; what is in it is made when it appears first. Where
/// the user puts it, and how large, holds until the program ends, for each look of the screen: that
/// is, for the groups that it shows as it opens, and the rows of its grids.
class ScreenWindow : public QMainWindow {
 public:
  /// `opener` is the window that waits until this one is closed, and owns it; null for one that
  /// stands by itself. Escape closes a window that has an opener.
  ScreenWindow(Screen& screen, Part (*look)(), ScreenWindow* opener = nullptr);
  ~ScreenWindow() override;

  /// The window appears minimised the first time.
  void StartMinimised() { minimised_ = true; }

  /// Pushes what changed in the screen to the widgets.
  void Refresh();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// A part that gets the keyboard when it appears.
  struct Entrance {
    QWidget* part;
    bool open = false;
    QPointer<QWidget> before = nullptr;  ///< had the keyboard until then
  };

  void Build();
  void MakeViews();
  void MakeMenus();
  void PlaceViews();
  WidgetView& ViewOf(const std::string& field);

  void PushFields();
  void PushEnter();
  void PushCovers();
  bool PushEntrances(const QPointer<QWidget>& before);
  void KeepFocus(const QPointer<QWidget>& before);
  QWidget* FirstIn(const QWidget& part) const;
  void FocusFirst();
  /// To the next field in reading order that takes it; to the first after null.
  void FocusNext(const QWidget* after);

  void ShowOrHide();
  std::string LookShown() const;
  void TakePlace();
  void LayOut();
  void Settle();
  const ButtonField* EnterInFocus() const;
  void PressEnter();
  void OpenInFocus();
  void PressEscape();

  Screen& screen_;
  Part (*look_)();
  ScreenWindow* opener_;
  bool built_ = false;
  ContentArea* content_ = nullptr;
  std::vector<std::unique_ptr<WidgetView>> views_;
  std::vector<std::unique_ptr<MenuView>> menus_;
  std::vector<QWidget*> placed_;  ///< in reading order
  std::vector<CoverPages> covers_;
  std::vector<Entrance> entrances_;
  std::string title_;
  bool minimised_ = false;
  std::string shownLook_;                ///< of the last time that it appeared
  std::map<std::string, QRect> places_;  ///< by look
  const ButtonField* enter_ = nullptr;
  QPointer<QWidget> awaitedFocus_;  ///< had the focus when it was disabled or hidden
  QPointer<QWidget> standIn_;       ///< got the focus then
};

/// A title as Qt takes it: there "[*]" stands for a mark of its own, unless it is there twice.
QString TitleToQt(std::string_view title);

/// All windows there are, in the order in which they were made.
const std::vector<ScreenWindow*>& ScreenWindows();

}  // namespace bkconf
