#include "shell/qt/group_view.h"

#include "shell/qt/label_view.h"
#include "shell/qt/style.h"

namespace bkconf {

GroupView::GroupView(GroupField& field, QWidget* parent)
    : WidgetView(field, new QGroupBox(parent)),
      field_(field),
      box_(static_cast<QGroupBox*>(Widget())) {
  box_->setFlat(true);
}

QWidget& GroupView::WrapCaption() {
  wrapped_ = new FittingLabel(box_);
  wrapped_->setTextFormat(Qt::PlainText);
  wrapped_->Wrap();
  MakeBold(*wrapped_);
  PushCaption();
  return *wrapped_;
}

void GroupView::Push() {
  if (caption_ == field_.caption) return;
  caption_ = field_.caption;
  PushCaption();
}

void GroupView::PushCaption() {
  const QString caption = ToQt(caption_);
  if (wrapped_ != nullptr) wrapped_->setText(caption);
  box_->setTitle(wrapped_ == nullptr ? caption : QString());
  box_->setFlat(caption.isEmpty());
}

}  // namespace bkconf
