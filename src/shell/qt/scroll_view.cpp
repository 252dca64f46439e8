#include "shell/qt/scroll_view.h"

#include <QPainter>
#include <QScrollBar>
#include <QSlider>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QWheelEvent>
#include <cmath>

#include "shell/qt/event_guard.h"

namespace bkconf {
namespace {

/// Up to so many steps, each place gets a mark.
constexpr int FewSteps = 10;
/// Of a touch beside the handle of a scroll bar.
constexpr int StepsOfPage = 6;
/// Of a scroll bar, in device-independent pixels: its arrows can be hit without aiming.
constexpr QSize LeastBar{120, 26};
constexpr int LeastSliderHeight = 32;
constexpr QSizeF HandleSize{10, 16};
constexpr double Radius = 3;

/// A turn of the wheel would change what goes to the module, unnoticed.
template <typename Slider>
class WheelProof : public Slider {
 public:
  explicit WheelProof(QWidget* parent) : Slider(Qt::Horizontal, parent) {
    this->setFocusPolicy(Qt::StrongFocus);
  }

 protected:
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

class Slider : public WheelProof<QSlider> {
 public:
  explicit Slider(QWidget* parent) : WheelProof(parent) {
    setTickPosition(QSlider::TicksBelow);
    setMinimumHeight(LeastSliderHeight);
  }
};

/// A scroll bar that says what it is for: a handle on a line, between two arrows to step with.
class Bar : public WheelProof<QScrollBar> {
 public:
  explicit Bar(QWidget* parent) : WheelProof(parent) {
    setMinimumSize(LeastBar);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setContextMenuPolicy(Qt::NoContextMenu);
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    // Beside a text, the arrow to the right would go back.
    setInvertedControls(false);
  }

  QSize sizeHint() const override { return LeastBar; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    PaintFrame(painter);
    PaintArrow(painter, QStyle::SC_ScrollBarSubLine, QStyle::PE_IndicatorArrowLeft);
    PaintArrow(painter, QStyle::SC_ScrollBarAddLine, QStyle::PE_IndicatorArrowRight);
    PaintHandle(painter);
  }
  void focusInEvent(QFocusEvent* event) override {
    QScrollBar::focusInEvent(event);
    update();
  }
  void focusOutEvent(QFocusEvent* event) override {
    QScrollBar::focusOutEvent(event);
    update();
  }

 private:
  QRect PlaceOf(QStyle::SubControl part) const {
    QStyleOptionSlider option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_ScrollBar, &option, part, this);
  }

  void PaintFrame(QPainter& painter) const {
    const auto role = hasFocus() ? QPalette::Highlight : QPalette::Midlight;
    painter.setPen(QPen(palette().color(role), hasFocus() ? 2 : 1));
    painter.setBrush(palette().button());
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), Radius, Radius);
  }

  void PaintArrow(QPainter& painter, QStyle::SubControl part, QStyle::PrimitiveElement arrow) {
    QStyleOption option;
    option.initFrom(this);
    option.rect = PlaceOf(part);
    style()->drawPrimitive(arrow, &option, &painter, this);
  }

  void PaintHandle(QPainter& painter) const {
    const QRectF groove = PlaceOf(QStyle::SC_ScrollBarGroove).adjusted(4, 0, -4, 0);
    painter.setPen(QPen(palette().color(QPalette::Mid), 2));
    painter.drawLine(QPointF(groove.left(), groove.center().y()),
                     QPointF(groove.right(), groove.center().y()));
    QRectF handle({}, HandleSize);
    handle.moveCenter(QRectF(PlaceOf(QStyle::SC_ScrollBarSlider)).center());
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled,
                                     isEnabled() ? QPalette::Highlight : QPalette::Mid));
    painter.drawRoundedRect(handle, Radius, Radius);
  }
};

QAbstractSlider* MakeSlider(const ScrollField& field, QWidget* parent) {
  if (field.highest - field.lowest <= FewSteps * field.step) return new Slider(parent);
  return new Bar(parent);
}

}  // namespace

ScrollView::ScrollView(ScrollField& field, QWidget* parent)
    : WidgetView(field, MakeSlider(field, parent)),
      field_(field),
      slider_(static_cast<QAbstractSlider*>(Widget())) {
  QObject::connect(slider_, &QAbstractSlider::valueChanged, slider_,
                   [this](int value) { Move(value); });
}

/// A handle that is dragged stops at whole steps: nobody aims at a single place among thousands.
void ScrollView::Move(int value) {
  const bool dragged = slider_->isSliderDown();
  const double steps = static_cast<double>(value) / field_.step;
  const int place = dragged ? field_.step * static_cast<int>(std::lround(steps)) : value;
  RunEvent([this, place] { field_.Move(place); });
}

void ScrollView::Push() {
  slider_->setRange(field_.lowest, field_.highest);
  slider_->setSingleStep(field_.step);
  const bool marked = qobject_cast<QSlider*>(slider_) != nullptr;
  slider_->setPageStep(field_.step * (marked ? 1 : StepsOfPage));
  // The widget is asked: a move that the logic takes back has moved it already.
  if (slider_->value() != field_.Value()) slider_->setValue(field_.Value());
}

}  // namespace bkconf
