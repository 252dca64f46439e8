#include "shell/qt/menu_view.h"

#include "shell/qt/event_guard.h"

namespace bkconf {

MenuView::MenuView(MenuField& field, QMenuBar& bar)
    : field_(field), menu_(new QMenu(&bar)), action_(bar.addMenu(menu_)), inMenuBar_(true) {
  Fill();
}

MenuView::MenuView(MenuField& field, QMenu& menu)
    : field_(field),
      menu_(field.entries.empty() ? nullptr : new QMenu(&menu)),
      action_(menu_ == nullptr ? menu.addAction(QString()) : menu.addMenu(menu_)) {
  Fill();
}

void MenuView::Fill() {
  action_->setObjectName(ToQt(field_.name));
  action_->setSeparator(field_.separator);
  if (menu_ == nullptr) {
    QObject::connect(action_, &QAction::triggered, action_,
                     [this] { RunEvent([this] { field_.Click(); }); });
    return;
  }
  menu_->setObjectName(ToQt(field_.name));
  QObject::connect(menu_, &QMenu::aboutToShow, menu_, [this] {
    RunEvent([this] {
      if (field_.onOpen) field_.onOpen();
    });
  });
  for (MenuField* entry : field_.entries) {
    entries_.push_back(std::make_unique<MenuView>(*entry, *menu_));
  }
}

bool MenuView::Enabled() const {
  if (menu_ != nullptr) return field_.enabled;
  return field_.Usable();
}

QString MenuView::Caption() const {
  const QString caption = ToQt(field_.caption);
  // Every menu of the bar can be opened with Alt and a letter, its first where it names none.
  return inMenuBar_ && !caption.isEmpty() && !caption.contains(u'&') ? u'&' + caption : caption;
}

void MenuView::Refresh() {
  // No signals are blocked: menus draw themselves by the signals of their actions, and what runs
  // logic, `triggered`, comes from the user alone.
  if (caption_ != field_.caption) {
    caption_ = field_.caption;
    action_->setText(Caption());
    if (menu_ != nullptr) menu_->setAccessibleName(menu_->title().remove(u'&'));
  }
  if (action_->isCheckable() != field_.checkable) action_->setCheckable(field_.checkable);
  // The action is asked: a click of the user has turned its mark already.
  if (action_->isChecked() != field_.checked) action_->setChecked(field_.checked);
  if (action_->isSeparator() != field_.separator) action_->setSeparator(field_.separator);
  if (action_->isVisible() != field_.visible) action_->setVisible(field_.visible);
  if (action_->isEnabled() != Enabled()) action_->setEnabled(Enabled());
  for (const auto& entry : entries_) entry->Refresh();
}

}  // namespace bkconf
