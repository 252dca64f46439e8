#include "shell/qt/screen_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "shell/qt/event_guard.h"
#include "shell/qt/style.h"

namespace bkconf {
namespace {

/// Of a window that stands by itself, where the desktop has the room.
constexpr QSize PreferredSize{1000, 780};

std::vector<ScreenWindow*> windows;

bool IsEntry(const Screen& screen, const Field* field) {
  return std::any_of(screen.fields.begin(), screen.fields.end(), [field](const Field* each) {
    if (each->kind != FieldKind::Menu) return false;
    const auto& entries = static_cast<const MenuField*>(each)->entries;
    return std::find(entries.begin(), entries.end(), field) != entries.end();
  });
}

bool LiesIn(const QWidget& part, const QWidget* widget) {
  return widget != nullptr && (&part == widget || part.isAncestorOf(widget));
}

/// Whether the keyboard can go there, once the window is shown.
bool TakesFocus(const QWidget& widget) {
  return widget.focusPolicy() != Qt::NoFocus && widget.isEnabled() &&
         widget.isVisibleTo(widget.window());
}

}  // namespace

QString TitleToQt(std::string_view title) {
  return ToQt(title).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

const std::vector<ScreenWindow*>& ScreenWindows() {
  return windows;
}

ScreenWindow::ScreenWindow(Screen& screen, Part (*look)(), ScreenWindow* opener)
    : QMainWindow(opener, opener == nullptr ? Qt::Window : Qt::Dialog),
      screen_(screen),
      look_(look),
      opener_(opener) {
  setObjectName(ToQt(screen.name));
  if (opener != nullptr) setWindowModality(Qt::WindowModal);
  windows.push_back(this);
  Refresh();
}

ScreenWindow::~ScreenWindow() {
  std::erase(windows, this);
}

void ScreenWindow::Build() {
  built_ = true;
  content_ = new ContentArea(this);
  setCentralWidget(content_);
  MakeViews();
  MakeMenus();
  PlaceViews();
}

/// What can be reached by keyboard is known once the views show their fields.
void ScreenWindow::MakeViews() {
  for (Field* field : screen_.fields) {
    if (auto view = MakeView(*field, content_->widget())) views_.push_back(std::move(view));
  }
  for (const auto& view : views_) view->Refresh();
}

void ScreenWindow::MakeMenus() {
  for (Field* field : screen_.fields) {
    if (field->kind != FieldKind::Menu || IsEntry(screen_, field)) continue;
    menus_.push_back(std::make_unique<MenuView>(*static_cast<MenuField*>(field), *menuBar()));
  }
}

void ScreenWindow::PlaceViews() {
  LayoutBuilder builder([this](const std::string& field) -> WidgetView& { return ViewOf(field); });
  QLayout* content = builder.Build(look_());
  content->setContentsMargins(WindowMargin, WindowMargin, WindowMargin, WindowMargin);
  content_->widget()->setLayout(content);
  placed_ = builder.Placed();
  covers_ = builder.Covers();
  for (QWidget* part : builder.Entered()) entrances_.push_back({part});
  QWidget* before = nullptr;
  for (QWidget* widget : placed_) {
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

void ScreenWindow::Refresh() {
  if (!screen_.shown && !isVisible()) return;
  if (!built_) Build();
  PushFields();
  ShowOrHide();
}

void ScreenWindow::PushFields() {
  const QPointer<QWidget> focusBefore = focusWidget();
  // Laid out when all is as it will be: what is between has never to fit, and costs no time.
  QLayout* content = content_->widget()->layout();
  content->setEnabled(false);
  for (const auto& view : views_) view->Refresh();
  content->setEnabled(true);
  content->activate();
  content_->TellNeed();
  for (const auto& menu : menus_) menu->Refresh();
  if (title_ != screen_.title) {
    title_ = screen_.title;
    setWindowTitle(TitleToQt(title_));
  }
  PushEnter();
  PushCovers();
  if (!PushEntrances(focusBefore)) KeepFocus(focusBefore);
  if (focusWidget() != nullptr && focusWidget() != focusBefore) {
    content_->ensureWidgetVisible(focusWidget(), WindowMargin, WindowMargin);
  }
}

/// The button that Enter presses looks like it.
void ScreenWindow::PushEnter() {
  if (enter_ == screen_.enter) return;
  for (const ButtonField* field : {enter_, screen_.enter}) {
    if (field == nullptr) continue;
    static_cast<QPushButton*>(ViewOf(field->name).Widget())->setDefault(field == screen_.enter);
  }
  enter_ = screen_.enter;
}

void ScreenWindow::PushCovers() {
  for (const CoverPages& cover : covers_) {
    const int page = cover.field->visible ? 1 : 0;
    if (cover.pages->currentIndex() == page) continue;
    cover.pages->setCurrentIndex(page);
    if (page == 1) cover.closer->setFocus();
  }
}

/// What appears gets the keyboard; when it goes, the keyboard is back where it was. Gives true when
/// the keyboard went anywhere.
bool ScreenWindow::PushEntrances(const QPointer<QWidget>& before) {
  std::vector<Entrance*> opened;
  QWidget* next = nullptr;
  for (Entrance& each : entrances_) {
    const bool open = each.part->isVisibleTo(this);
    if (open == each.open) continue;
    each.open = open;
    if (open) opened.push_back(&each);
    const bool lost = !open && LiesIn(*each.part, before);
    if (lost && each.before != nullptr && TakesFocus(*each.before)) next = each.before;
  }
  for (Entrance* each : opened) {
    // From one part straight to the next: the keyboard goes back to where it was before both.
    each->before = next == nullptr ? before.data() : next;
    next = FirstIn(*each->part);
  }
  if (next == nullptr) return false;
  next->setFocus();
  awaitedFocus_.clear();
  return true;
}

/// A transfer disables the button that started it, a manual covers it. When that is over, the
/// keyboard is back there unless the user has gone elsewhere.
void ScreenWindow::KeepFocus(const QPointer<QWidget>& before) {
  const bool lost = before == nullptr || !TakesFocus(*before);
  if (awaitedFocus_ != nullptr && TakesFocus(*awaitedFocus_)) {
    if (lost || before == standIn_) awaitedFocus_->setFocus();
    awaitedFocus_.clear();
    return;
  }
  // Nothing in the window could take it until now.
  if (before == nullptr) FocusFirst();
  if (!lost || before == nullptr) return;
  if (awaitedFocus_ == nullptr || before != standIn_) awaitedFocus_ = before;
  // From a field that is gone to the next one; what may have come in its place is there by now.
  if (!before->isVisibleTo(this)) FocusNext(before);
  standIn_ = focusWidget();
}

/// The first field in a part that takes the focus, or null.
QWidget* ScreenWindow::FirstIn(const QWidget& part) const {
  const auto first = std::find_if(placed_.begin(), placed_.end(), [&part](const QWidget* each) {
    return LiesIn(part, each) && TakesFocus(*each);
  });
  return first == placed_.end() ? nullptr : *first;
}

void ScreenWindow::FocusNext(const QWidget* after) {
  const auto place = std::find(placed_.begin(), placed_.end(), after);
  std::vector<QWidget*> order(place, placed_.end());
  order.insert(order.end(), placed_.begin(), place);
  const auto next = std::find_if(order.begin(), order.end(), [after](const QWidget* each) {
    return each != after && TakesFocus(*each);
  });
  if (next != order.end()) (*next)->setFocus();
}

void ScreenWindow::FocusFirst() {
  QWidget* first =
      screen_.firstFocus == nullptr ? nullptr : ViewOf(screen_.firstFocus->name).Widget();
  if (first != nullptr && TakesFocus(*first)) {
    first->setFocus();
  } else {
    FocusNext(nullptr);
  }
}

void ScreenWindow::ShowOrHide() {
  if (screen_.shown == isVisible()) return;
  awaitedFocus_.clear();
  if (!screen_.shown) {
    places_[shownLook_] = geometry();
    hide();
    return;
  }
  TakePlace();
  FocusFirst();
  if (minimised_) {
    minimised_ = false;
    showMinimized();
  } else {
    show();
  }
}

std::string ScreenWindow::LookShown() const {
  std::string look;
  for (const Field* field : screen_.fields) {
    if (!field->visible) continue;
    if (field->kind == FieldKind::Group) look += field->name + ' ';
    if (field->kind == FieldKind::Grid) {
      look += std::to_string(static_cast<const GridField*>(field)->Rows()) + ' ';
    }
  }
  return look;
}

void ScreenWindow::TakePlace() {
  shownLook_ = LookShown();
  if (const auto place = places_.find(shownLook_); place != places_.end()) {
    setGeometry(place->second);
  } else {
    Settle();
  }
}

/// What changed within groups while the window was hidden reaches the layouts around them only
/// here: from within to without.
void ScreenWindow::LayOut() {
  QList<QWidget*> widgets = content_->findChildren<QWidget*>();
  std::reverse(widgets.begin(), widgets.end());
  for (const QWidget* widget : std::as_const(widgets)) {
    if (widget->layout() == nullptr || widget->window() != this) continue;
    widget->layout()->invalidate();
    widget->layout()->activate();
  }
  content_->updateGeometry();
  layout()->activate();
}

/// Gives the window its first size and place. One with an opener is as large as its content asks
/// for, and stands in the middle of the opener.
void ScreenWindow::Settle() {
  LayOut();
  const QRect desktop = screen()->availableGeometry();
  const QSize wanted = opener_ == nullptr ? PreferredSize : sizeHint();
  resize(wanted.boundedTo(desktop.size() - FrameRoom).expandedTo(minimumSizeHint()));
  if (opener_ == nullptr) return;
  const QRect room = desktop.adjusted(FrameRoom.width() / 2, FrameRoom.height(), 0, 0);
  QRect place({}, size());
  place.moveCenter(opener_->geometry().center());
  if (place.right() > room.right()) place.moveRight(room.right());
  if (place.bottom() > room.bottom()) place.moveBottom(room.bottom());
  if (place.left() < room.left()) place.moveLeft(room.left());
  if (place.top() < room.top()) place.moveTop(room.top());
  setGeometry(place);
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
  // Whether the window goes is the logic's choice.
  event->ignore();
  RunEvent([this] { screen_.Close(); });
}

void ScreenWindow::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      // A key that is held down would answer the question that it has opened.
      if (!event->isAutoRepeat()) PressEnter();
      return;
    case Qt::Key_Escape:
      PressEscape();
      return;
    default:
      QMainWindow::keyPressEvent(event);
  }
}

/// The button that Enter means where the focus is: a text can have one of its own.
const ButtonField* ScreenWindow::EnterInFocus() const {
  for (const auto& view : views_) {
    if (view->Widget() != focusWidget() || view->Shown().kind != FieldKind::Text) continue;
    const auto& text = static_cast<const TextField&>(view->Shown());
    return text.enter == nullptr ? enter_ : text.enter;
  }
  return enter_;
}

/// A button that has the focus is what Enter means. Without any, what has the focus may open.
void ScreenWindow::PressEnter() {
  auto* button = dynamic_cast<QPushButton*>(focusWidget());
  const ButtonField* means = EnterInFocus();
  if (button == nullptr && means != nullptr) {
    button = static_cast<QPushButton*>(ViewOf(means->name).Widget());
  }
  if (button == nullptr) {
    OpenInFocus();
  } else if (button->isVisible()) {
    button->click();
  }
}

void ScreenWindow::OpenInFocus() {
  const auto view = std::find_if(views_.begin(), views_.end(), [this](const auto& each) {
    return each->Widget() == focusWidget();
  });
  if (view != views_.end()) (*view)->Open();
}

/// Closes what lies over the window, or else the window itself if it was opened from another one.
void ScreenWindow::PressEscape() {
  const auto cover = std::find_if(covers_.begin(), covers_.end(),
                                  [](const CoverPages& each) { return each.field->visible; });
  if (cover != covers_.end()) {
    static_cast<QPushButton*>(cover->closer)->click();
  } else if (screen_.escape != nullptr) {
    static_cast<QPushButton*>(ViewOf(screen_.escape->name).Widget())->click();
  } else if (opener_ != nullptr) {
    close();
  }
}

}  // namespace bkconf
