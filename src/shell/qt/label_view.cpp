#include "shell/qt/label_view.h"

namespace bkconf {

LabelView::LabelView(LabelField& field, QWidget* parent)
    : WidgetView(field, new QLabel(parent)), field_(field), label_(static_cast<QLabel*>(Widget())) {
  // What a module or a file holds is never markup.
  label_->setTextFormat(Qt::PlainText);
}

void LabelView::Push() {
  if (caption_ == field_.caption) return;
  caption_ = field_.caption;
  label_->setText(ToQt(caption_));
}

}  // namespace bkconf
