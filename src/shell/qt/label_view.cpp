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

/// Of the box around a value, in device-independent pixels.
constexpr int BoxPadding = 8;
constexpr int BoxPaddingAbove = 4;
constexpr double BoxRadius = 3;
/// Of average width, that a box has room for whatever stands in it.
constexpr int BoxCharacters = 8;
/// What stands in a caption for the field that is shown there.
constexpr QLatin1String Blanks("  ");

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
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
}

void FittingLabel::KeepLines(int lines) {
  Wrap();
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  setFixedHeight(lines * fontMetrics().lineSpacing());
}

void FittingLabel::SetBoxed(bool boxed) {
  if (boxed_ == boxed) return;
  boxed_ = boxed;
  if (boxed) {
    setContentsMargins(BoxPadding, BoxPaddingAbove, BoxPadding, BoxPaddingAbove);
  } else {
    setContentsMargins({});
  }
  updateGeometry();
}

QSize FittingLabel::Boxed(QSize size) const {
  if (!boxed_) return size;
  return size.expandedTo({BoxCharacters * fontMetrics().averageCharWidth() + 2 * BoxPadding,
                          fontMetrics().lineSpacing() + 2 * BoxPaddingAbove});
}

QSize FittingLabel::sizeHint() const {
  if (wrapped_) return minimumSizeHint();
  return shortened_ ? Width(48, QLabel::sizeHint()) : Boxed(QLabel::sizeHint());
}

QSize FittingLabel::minimumSizeHint() const {
  const bool keepsLines = minimumHeight() == maximumHeight();
  if (keepsLines) return {minimumWidth(), minimumHeight()};
  if (wrapped_) return {minimumWidth(), heightForWidth(minimumWidth())};
  return shortened_ ? Width(12, QLabel::minimumSizeHint()) : Boxed(QLabel::minimumSizeHint());
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

void FittingLabel::PaintBox() {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor colour = palette().color(backgroundRole());
  painter.setBrush(colour);
  painter.setPen(colour.darker(140));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), BoxRadius, BoxRadius);
}

void FittingLabel::paintEvent(QPaintEvent* event) {
  if (boxed_) PaintBox();
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
      label_(static_cast<FittingLabel*>(Widget())) {
  // What a module or a file holds is never markup.
  label_->setTextFormat(Qt::PlainText);
}

QWidget& LabelView::SplitOff() {
  rest_ = new QLabel(label_->parentWidget());
  rest_->setTextFormat(Qt::PlainText);
  PushText();
  return *rest_;
}

void LabelView::Push() {
  PushDoubleClick();
  PushColour(QPalette::Window, QPalette::WindowText);
  label_->SetBoxed(field_.colour.has_value());
  if (rest_ != nullptr) {
    rest_->setEnabled(field_.enabled);
    rest_->setVisible(field_.visible);
  }
  if (caption_ == field_.caption) return;
  caption_ = field_.caption;
  PushText();
}

void LabelView::PushText() {
  const QString text = ToQt(caption_);
  const auto blanks = rest_ == nullptr ? -1 : text.indexOf(Blanks);
  label_->setText(text.left(blanks));
  if (rest_ != nullptr) rest_->setText(blanks < 0 ? QString() : text.mid(blanks).trimmed());
}

void LabelView::PushDoubleClick() {
  const Qt::FocusPolicy policy = field_.onDoubleClick ? Qt::TabFocus : Qt::NoFocus;
  if (label_->focusPolicy() == policy) return;
  label_->setFocusPolicy(policy);
  label_->setCursor(field_.onDoubleClick ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

}  // namespace bkconf
