#include "shell/qt/day_band_view.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "shell/qt/style.h"

namespace bkconf {
namespace {

constexpr int Hour = 60;
constexpr int DayLength = 24 * Hour;
constexpr int HoursBetweenNumbers = 3;
/// How much of the colour of a part is in its ground.
constexpr double Tint = 0.16;
/// In device-independent pixels.
constexpr int TextPadding = 4;
constexpr int MarkLength = 4;
constexpr double GapBetweenParts = 1;
constexpr int LeastWidth = 420;

QString TimeOf(int minutes) {
  return QStringLiteral("%1:%2")
      .arg(minutes / Hour, 2, 10, QLatin1Char('0'))
      .arg(minutes % Hour, 2, 10, QLatin1Char('0'));
}

QString Tell(const DayBandField::Part& part) {
  return TimeOf(part.from) + QStringLiteral(" – ") + TimeOf(part.to) + QStringLiteral(": ") +
         ToQt(part.text);
}

QColor Mixed(const QColor& colour, const QColor& ground) {
  const auto mix = [](int one, int other) { return qRound(Tint * one + (1 - Tint) * other); };
  return {mix(colour.red(), ground.red()), mix(colour.green(), ground.green()),
          mix(colour.blue(), ground.blue())};
}

class Band : public QWidget {
 public:
  explicit Band(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  }

  void Show(const std::vector<DayBandField::Part>& parts) {
    parts_ = parts;
    update();
  }

  QSize sizeHint() const override {
    const int line = fontMetrics().height();
    return {LeastWidth, 2 * line + MarkLength + line};
  }
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(Place(), palette().base());
    for (const DayBandField::Part& part : parts_) PaintPart(painter, part);
    painter.setPen(Faint());
    painter.drawRect(Place());
    PaintHours(painter);
  }

  /// Tells the part under the mouse: a short one has no room for its text.
  bool event(QEvent* event) override {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    for (const DayBandField::Part& part : parts_) {
      const std::vector<QRectF> pieces = PiecesOf(part);
      const bool under = std::any_of(pieces.begin(), pieces.end(), [help](const QRectF& each) {
        return each.contains(help->pos());
      });
      if (!under) continue;
      QToolTip::showText(help->globalPos(), Tell(part), this);
      return true;
    }
    QToolTip::hideText();
    return true;
  }

 private:
  /// Of the band itself, without the numbers of the hours, whose outer ones reach over its ends.
  QRectF Place() const {
    const int overhang = fontMetrics().horizontalAdvance(QStringLiteral("24")) / 2 + 1;
    return QRectF(overhang, 0, width() - 2 * overhang, 2 * fontMetrics().height())
        .adjusted(0.5, 0.5, -0.5, -0.5);
  }

  QColor Faint() const {
    QColor ink = palette().color(QPalette::WindowText);
    ink.setAlphaF(0.5F);
    return ink;
  }

  double XOf(int minutes) const { return Place().left() + Place().width() * minutes / DayLength; }

  /// One, or two on both sides of midnight.
  std::vector<QRectF> PiecesOf(const DayBandField::Part& part) const {
    int length = part.to - part.from;
    if (length < 0) length += DayLength;
    const int from = part.from % DayLength;
    const int end = from + std::clamp(length, 0, DayLength);
    std::vector<QRectF> pieces;
    for (const auto& [first, last] :
         {std::pair(from, std::min(end, DayLength)), std::pair(0, end - DayLength)}) {
      if (last <= first) continue;
      pieces.emplace_back(QPointF(XOf(first), Place().top()), QPointF(XOf(last), Place().bottom()));
    }
    return pieces;
  }

  void PaintPart(QPainter& painter, const DayBandField::Part& part) const {
    const QColor ground = palette().color(QPalette::Base);
    const QColor colour = ReadableOn(ground, part.colour);
    const QString text = ToQt(part.text);
    for (const QRectF& piece : PiecesOf(part)) {
      painter.fillRect(piece.adjusted(GapBetweenParts, 0, -GapBetweenParts, 0),
                       Mixed(colour, ground));
      if (fontMetrics().horizontalAdvance(text) + 2 * TextPadding > piece.width()) continue;
      painter.setPen(colour);
      painter.drawText(piece, Qt::AlignCenter, text);
    }
  }

  void PaintHours(QPainter& painter) const {
    const double top = Place().bottom() + MarkLength;
    for (int hour = 0; hour <= DayLength / Hour; ++hour) {
      const double x = XOf(hour * Hour);
      const bool numbered = hour % HoursBetweenNumbers == 0;
      painter.setPen(Faint());
      painter.drawLine(QPointF(x, Place().bottom()),
                       QPointF(x, numbered ? top : top - MarkLength / 2.0));
      if (!numbered) continue;
      painter.setPen(palette().color(QPalette::WindowText));
      const double half = 2 * fontMetrics().averageCharWidth();
      painter.drawText(QRectF(x - half, top, 2 * half, fontMetrics().height()), Qt::AlignCenter,
                       QString::number(hour));
    }
  }

  std::vector<DayBandField::Part> parts_;
};

}  // namespace

DayBandView::DayBandView(DayBandField& field, QWidget* parent)
    : WidgetView(field, new Band(parent)), field_(field) {}

void DayBandView::Push() {
  static_cast<Band*>(Widget())->Show(field_.parts);
  QStringList parts;
  for (const DayBandField::Part& part : field_.parts) parts.append(Tell(part));
  Widget()->setAccessibleDescription(parts.join(QStringLiteral("; ")));
}

}  // namespace bkconf
