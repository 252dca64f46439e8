#include "shell/qt/content_area.h"

#include <QKeyEvent>
#include <QLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>
#include <QScrollBar>

namespace bkconf {

ContentArea::ContentArea(QWidget* parent) : QScrollArea(parent) {
  setWidgetResizable(true);
  setFrameShape(QFrame::NoFrame);
  // Who tabs through a window goes from field to field.
  setFocusPolicy(Qt::NoFocus);
  setWidget(new QWidget);
}

QSize ContentArea::minimumSizeHint() const {
  const QSize needed = widget()->minimumSizeHint();
  QSize room = screen()->availableSize() - FrameRoom;
  const auto* bar = window()->findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly);
  if (bar != nullptr) room.rheight() -= bar->sizeHint().height();
  const int width = verticalScrollBar()->sizeHint().width();
  const int height = horizontalScrollBar()->sizeHint().height();
  // What is too large in one direction gets a bar there, which takes room in the other.
  const bool tall = needed.height() > room.height();
  const bool wide = needed.width() + (tall ? width : 0) > room.width();
  return (needed + QSize(tall ? width : 0, wide ? height : 0)).boundedTo(room);
}

void ContentArea::TellNeed() {
  const QSize needed = widget()->minimumSizeHint();
  if (needed_ == needed) return;
  needed_ = needed;
  updateGeometry();
  window()->layout()->activate();
}

bool ContentArea::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) TellNeed();
  return QScrollArea::event(event);
}

void ContentArea::keyPressEvent(QKeyEvent* event) {
  event->ignore();  // the keys are the window's
}

}  // namespace bkconf
