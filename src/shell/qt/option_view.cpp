#include "shell/qt/option_view.h"

#include <QHBoxLayout>
#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

#include "shell/qt/event_guard.h"

namespace bkconf {
namespace {

/// Between the widget that is held and the caption, in device-independent pixels.
constexpr int CaptionGap = 8;

}  // namespace

void OptionButton::Hold(QWidget& held) {
  held_ = &held;
  setText(text().trimmed());
  const QStyle* look = style();
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(look->pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, this) +
                              look->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, this),
                          0, 0, 0);
  row->addWidget(held_);
  row->addStretch(1);
}

QSize OptionButton::sizeHint() const {
  const QSize own = QRadioButton::sizeHint();
  if (held_ == nullptr) return own;
  const QSize held = held_->sizeHint().expandedTo(held_->minimumSize());
  // As tall as the choices around it that show what they hold.
  const int height = qMax(own.height(), held.height());
  return {own.width() + (held_->isHidden() ? 0 : held.width() + CaptionGap), height};
}

void OptionButton::paintEvent(QPaintEvent* event) {
  if (held_ == nullptr || held_->isHidden()) {
    QRadioButton::paintEvent(event);
    return;
  }
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  QStyleOptionButton mark = option;
  mark.rect = style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, this);
  painter.drawPrimitive(QStyle::PE_IndicatorRadioButton, mark);
  option.rect.setLeft(held_->geometry().right() + CaptionGap);
  painter.drawControl(QStyle::CE_RadioButtonLabel, option);
  if (!hasFocus()) return;
  QStyleOptionFocusRect frame;
  frame.initFrom(this);
  frame.rect = style()->itemTextRect(fontMetrics(), option.rect, Qt::AlignLeft | Qt::AlignVCenter,
                                     true, text());
  frame.rect.adjust(-3, -2, 3, 2);
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, frame);
}

OptionView::OptionView(OptionField& field, QWidget* parent)
    : WidgetView(field, new OptionButton(parent)),
      field_(field),
      button_(static_cast<OptionButton*>(Widget())),
      alone_(new QButtonGroup(button_)) {
  // All radio buttons with the same parent would be one group; which ones are is the logic's to
  // say. (Without any group it would be a check box to a screen reader.)
  alone_->addButton(button_);
  QObject::connect(button_, &QRadioButton::clicked, button_,
                   [this] { RunEvent([this] { field_.Choose(); }); });
}

void OptionView::Push() {
  // The widget is asked: a click that the logic takes back has marked it already.
  if (button_->isChecked() != field_.Chosen()) {
    // An exclusive group, even of one, would not let go of its mark.
    alone_->setExclusive(false);
    button_->setChecked(field_.Chosen());
    alone_->setExclusive(true);
  }
  if (caption_ == field_.caption) return;
  caption_ = field_.caption;
  const QString text = ToQt(caption_);
  button_->setText(button_->Holds() ? text.trimmed() : text);
}

}  // namespace bkconf
