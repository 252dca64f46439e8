#include "shell/qt/check_view.h"

#include "shell/qt/event_guard.h"

namespace bkconf {

CheckView::CheckView(CheckField& field, QWidget* parent)
    : WidgetView(field, new QCheckBox(parent)),
      field_(field),
      box_(static_cast<QCheckBox*>(Widget())) {
  QObject::connect(box_, &QCheckBox::clicked, box_,
                   [this](bool on) { RunEvent([this, on] { field_.Set(on); }); });
}

void CheckView::Push() {
  // The widget is asked: a click that the logic takes back has ticked it already.
  if (box_->isChecked() != field_.checked) box_->setChecked(field_.checked);
  if (caption_ == field_.caption) return;
  caption_ = field_.caption;
  box_->setText(ToQt(caption_));
}

}  // namespace bkconf
