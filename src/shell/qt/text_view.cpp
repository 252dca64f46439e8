#include "shell/qt/text_view.h"

#include "shell/qt/event_guard.h"

namespace bkconf {

TextView::TextView(TextField& field, QWidget* parent)
    : WidgetView(field, new QLineEdit(parent)),
      field_(field),
      line_(static_cast<QLineEdit*>(Widget())) {
  QObject::connect(line_, &QLineEdit::textEdited, line_, [this](const QString& text) {
    RunEvent([this, typed = text.toStdString()] { field_.Type(typed); });
  });
}

void TextView::Push() {
  PushColour(QPalette::Base, QPalette::Text);
  // The widget is asked: a text that is set anew would put the cursor to its end.
  const QString text = ToQt(field_.Text());
  if (line_->text() != text) line_->setText(text);
}

}  // namespace bkconf
