#include "shell/qt/group_view.h"

namespace bkconf {

GroupView::GroupView(GroupField& field, QWidget* parent)
    : WidgetView(field, new QGroupBox(parent)),
      field_(field),
      box_(static_cast<QGroupBox*>(Widget())) {
  box_->setFlat(true);
}

void GroupView::Push() {
  if (caption_ == field_.caption) return;
  caption_ = field_.caption;
  box_->setTitle(ToQt(caption_));
  box_->setFlat(caption_.empty());
}

}  // namespace bkconf
