#include "shell/qt/screen_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <algorithm>

#include "shell/qt/event_guard.h"
#include "shell/qt/layout_builder.h"
#include "shell/qt/style.h"

namespace bkconf {
namespace {

constexpr QSize PreferredSize{1000, 660};
/// What the frame of a window may take of the desktop.
constexpr QSize FrameRoom{10, 40};

std::vector<ScreenWindow*> windows;

bool IsEntry(const Screen& screen, const Field* field) {
  return std::any_of(screen.fields.begin(), screen.fields.end(), [field](const Field* each) {
    if (each->kind != FieldKind::Menu) return false;
    const auto& entries = static_cast<const MenuField*>(each)->entries;
    return std::find(entries.begin(), entries.end(), field) != entries.end();
  });
}

}  // namespace

const std::vector<ScreenWindow*>& ScreenWindows() {
  return windows;
}

ScreenWindow::ScreenWindow(Screen& screen, const Part& layout, std::function<void()> onClose)
    : screen_(screen), onClose_(std::move(onClose)) {
  setObjectName(ToQt(screen.name));
  setCentralWidget(new QWidget(this));
  MakeViews();
  MakeMenus();
  PlaceViews(layout);
  windows.push_back(this);
  Refresh();
}

ScreenWindow::~ScreenWindow() {
  std::erase(windows, this);
}

void ScreenWindow::MakeViews() {
  for (Field* field : screen_.fields) {
    if (auto view = MakeView(*field, centralWidget())) views_.push_back(std::move(view));
  }
}

void ScreenWindow::MakeMenus() {
  for (Field* field : screen_.fields) {
    if (field->kind != FieldKind::Menu || IsEntry(screen_, field)) continue;
    menus_.push_back(std::make_unique<MenuView>(*static_cast<MenuField*>(field), *menuBar()));
  }
}

void ScreenWindow::PlaceViews(const Part& layout) {
  LayoutBuilder builder([this](const std::string& field) -> WidgetView& { return ViewOf(field); });
  QLayout* content = builder.Build(layout);
  content->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  centralWidget()->setLayout(content);
  QWidget* before = nullptr;
  for (QWidget* widget : builder.Placed()) {
    if (widget->focusPolicy() == Qt::NoFocus) continue;
    if (before != nullptr) setTabOrder(before, widget);
    before = widget;
  }
}

WidgetView& ScreenWindow::ViewOf(const std::string& field) {
  const auto view = std::find_if(views_.begin(), views_.end(), [&field](const auto& each) {
    return each->Shown().name == field;
  });
  if (view == views_.end()) qFatal("The layout names the unknown field %s", field.c_str());
  return **view;
}

void ScreenWindow::SetDefaultButton(const ButtonField& field) {
  auto* button = static_cast<QPushButton*>(ViewOf(field.name).Widget());
  button->setDefault(true);
  defaultButton_ = button;
}

void ScreenWindow::Refresh() {
  const QPointer<QWidget> focusBefore = focusWidget();
  for (const auto& view : views_) view->Refresh();
  for (const auto& menu : menus_) menu->Refresh();
  if (title_ != screen_.title) {
    title_ = screen_.title;
    setWindowTitle(ToQt(title_));
  }
  KeepFocus(focusBefore);
  ShowOrHide();
}

/// A transfer disables the button that started it. When it is over, the keyboard is back there
/// unless the user has gone elsewhere.
void ScreenWindow::KeepFocus(QWidget* focusBefore) {
  if (focusBefore != nullptr && !focusBefore->isEnabled()) awaitedFocus_ = focusBefore;
  if (awaitedFocus_ == nullptr || !awaitedFocus_->isEnabled()) return;
  if (focusWidget() == nullptr || !focusWidget()->isEnabled()) awaitedFocus_->setFocus();
  awaitedFocus_.clear();
}

void ScreenWindow::ShowOrHide() {
  if (screen_.shown == isVisible()) return;
  if (!screen_.shown) {
    hide();
    return;
  }
  resize(
      PreferredSize.boundedTo(screen()->availableSize() - FrameRoom).expandedTo(minimumSizeHint()));
  if (minimised_) {
    minimised_ = false;
    showMinimized();
  } else {
    show();
  }
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
  // Whether the window goes is the logic's choice.
  event->ignore();
  RunEvent(onClose_);
}

void ScreenWindow::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!enter) {
    QMainWindow::keyPressEvent(event);
    return;
  }
  // A button that has the focus is what Enter means; it gets Enter itself only inside a dialog.
  auto* button = dynamic_cast<QPushButton*>(focusWidget());
  if (button == nullptr) button = static_cast<QPushButton*>(defaultButton_.data());
  if (button != nullptr && button->isVisible()) button->click();
}

}  // namespace bkconf
