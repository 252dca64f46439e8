#include "shell/qt/button_view.h"

#include "shell/qt/event_guard.h"

namespace bkconf {

ButtonView::ButtonView(ButtonField& field, QWidget* parent)
    : WidgetView(field, new QPushButton(parent)),
      field_(field),
      button_(static_cast<QPushButton*>(Widget())) {
  QObject::connect(button_, &QPushButton::clicked, button_,
                   [this] { RunEvent([this] { field_.Click(); }); });
}

void ButtonView::Push() {
  if (caption_ == field_.caption) return;
  caption_ = field_.caption;
  button_->setText(ToQt(caption_));
}

}  // namespace bkconf
