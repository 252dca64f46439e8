#include "shell/qt/label_view.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QToolTip>

#include "shell/qt/event_guard.h"

namespace bkconf {
namespace {

class CaptionLabel : public FittingLabel {
 public:
  CaptionLabel(const LabelField& field, QWidget* parent) : FittingLabel(parent), field_(field) {}

 protected:
  void mouseDoubleClickEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton && field_.onDoubleClick) DoubleClick();
  }

  void keyPressEvent(QKeyEvent* event) override {
    switch (event->key()) {
      case Qt::Key_Space:
      case Qt::Key_Return:
      case Qt::Key_Enter:
        DoubleClick();
        return;
      default:
        FittingLabel::keyPressEvent(event);
    }
  }

  void paintEvent(QPaintEvent* event) override {
    FittingLabel::paintEvent(event);
    if (!hasFocus()) return;
    QPainter painter(this);
    QStyleOptionFocusRect frame;
    frame.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &frame, &painter, this);
  }

 private:
  void DoubleClick() {
    RunEvent([this] { field_.DoubleClick(); });
  }

  const LabelField& field_;
};

}  // namespace

void FittingLabel::Shorten() {
  shortened_ = true;
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void FittingLabel::Wrap() {
  wrapped_ = true;
  setWordWrap(true);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  // A height that goes with the width would be asked for by layouts, but not by windows.
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Minimum);
  policy.setHeightForWidth(false);
  setSizePolicy(policy);
}

void FittingLabel::KeepLines(int lines) {
  Wrap();
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  setFixedHeight(lines * fontMetrics().lineSpacing());
}

QSize FittingLabel::sizeHint() const {
  if (wrapped_) return minimumSizeHint();
  return shortened_ ? Width(48, QLabel::sizeHint()) : QLabel::sizeHint();
}

QSize FittingLabel::minimumSizeHint() const {
  const bool keepsLines = minimumHeight() == maximumHeight();
  if (keepsLines) return {minimumWidth(), minimumHeight()};
  if (wrapped_) return {minimumWidth(), heightForWidth(minimumWidth())};
  return shortened_ ? Width(12, QLabel::minimumSizeHint()) : QLabel::minimumSizeHint();
}

/// The width is that of so many characters, whatever the text: it changes with every directory.
QSize FittingLabel::Width(int characters, QSize whole) const {
  return {characters * fontMetrics().averageCharWidth(), whole.height()};
}

QString FittingLabel::Fitting() const {
  return fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
}

bool FittingLabel::event(QEvent* event) {
  const bool tells = shortened_ && toolTip().isEmpty() && Fitting() != text();
  if (event->type() != QEvent::ToolTip || !tells) return QLabel::event(event);
  // A path is never markup.
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                     QStringLiteral("<span>%1</span>").arg(text().toHtmlEscaped()), this);
  return true;
}

void FittingLabel::paintEvent(QPaintEvent* event) {
  if (!shortened_) {
    QLabel::paintEvent(event);
    return;
  }
  QPainter painter(this);
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), palette(),
                        isEnabled(), Fitting(), foregroundRole());
}

LabelView::LabelView(LabelField& field, QWidget* parent)
    : WidgetView(field, new CaptionLabel(field, parent)),
      field_(field),
      label_(static_cast<QLabel*>(Widget())) {
  // What a module or a file holds is never markup.
  label_->setTextFormat(Qt::PlainText);
}

void LabelView::Push() {
  PushDoubleClick();
  if (caption_ == field_.caption) return;
  caption_ = field_.caption;
  label_->setText(ToQt(caption_));
}

void LabelView::PushDoubleClick() {
  const Qt::FocusPolicy policy = field_.onDoubleClick ? Qt::TabFocus : Qt::NoFocus;
  if (label_->focusPolicy() == policy) return;
  label_->setFocusPolicy(policy);
  label_->setCursor(field_.onDoubleClick ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

}  // namespace bkconf
