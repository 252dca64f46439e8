#include "shell/qt/progress_view.h"

namespace bkconf {
namespace {

constexpr int DrawPeriodMs = 16;

}  // namespace

ProgressView::ProgressView(ProgressField& field, QWidget* parent)
    : WidgetView(field, new QProgressBar(parent)),
      field_(field),
      bar_(static_cast<QProgressBar*>(Widget())) {
  bar_->setTextVisible(false);
  QSizePolicy keepsItsPlace = bar_->sizePolicy();
  keepsItsPlace.setRetainSizeWhenHidden(true);
  bar_->setSizePolicy(keepsItsPlace);
  sinceDrawn_.start();
  field_.draw = [this] { Draw(); };
}

ProgressView::~ProgressView() {
  field_.draw = nullptr;
}

void ProgressView::Push() {
  if (bar_->maximum() != field_.Maximum()) bar_->setMaximum(field_.Maximum());
  if (bar_->value() != field_.Value()) bar_->setValue(field_.Value());
}

void ProgressView::Draw() {
  if (!sinceDrawn_.hasExpired(DrawPeriodMs) || !bar_->isVisible()) return;
  sinceDrawn_.start();
  const QSignalBlocker blocker(bar_);
  Push();
  bar_->repaint();
}

}  // namespace bkconf
