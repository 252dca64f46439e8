#include "shell/qt/button_view.h"

#include <QKeyEvent>

#include "shell/qt/event_guard.h"

namespace bkconf {
namespace {

class Button : public QPushButton {
 public:
  using QPushButton::QPushButton;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
      event->ignore();  // the window knows what Enter presses
    } else {
      QPushButton::keyPressEvent(event);
    }
  }
};

}  // namespace

ButtonView::ButtonView(ButtonField& field, QWidget* parent)
    : WidgetView(field, new Button(parent)),
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
