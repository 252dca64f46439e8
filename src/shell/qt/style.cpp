#include "shell/qt/style.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFontDatabase>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleOptionGroupBox>

#include "shell/qt/label_view.h"

namespace bkconf {
namespace {

constexpr QRgb Accent = 0xff1f6489;
constexpr QRgb OnAccent = 0xffffffff;
/// The colours of fields are light in every theme.
constexpr QRgb TextOnColour = 0xff1c2630;
constexpr QRgb DisabledOnColour = 0xff56616c;
constexpr QRgb DisplayGround = 0xffe4efe0;

bool IsDark(const QColor& colour) {
  constexpr int half = 128;
  return colour.lightness() < half;
}

/// Tall enough to be hit without aiming, in device-independent pixels.
int PressedHeight(const QFontMetrics& metrics) {
  return 9 * metrics.height() / 4;
}

/// A ring that shows where the keyboard is, within the rectangle.
void DrawFocusRing(QPainter& painter, const QRect& rect, const QColor& colour) {
  constexpr double width = 2;
  constexpr double radius = 3;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(colour, width));
  painter.drawRoundedRect(QRectF(rect).adjusted(1, 1, -1, -1), radius, radius);
  painter.restore();
}

/// Fusion, but for groups, which are cards with their caption in bold at the top, and for the
/// keyboard, whose place is always seen.
class CardStyle : public QProxyStyle {
 public:
  CardStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    if (element == PE_FrameFocusRect) {
      DrawFocusRing(*painter, option->rect, RingColour(*option));
      return;
    }
    if (element != PE_FrameGroupBox) {
      QProxyStyle::drawPrimitive(element, option, painter, widget);
      if (element == PE_FrameLineEdit && option->state.testFlag(State_HasFocus)) {
        DrawFocusRing(*painter, option->rect, Ring(*option));
      }
      return;
    }
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (frame != nullptr && frame->features.testFlag(QStyleOptionFrame::Flat)) return;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(option->palette.base());
    painter->setPen(option->palette.color(QPalette::Midlight));
    painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), Radius, Radius);
    painter->restore();
  }

  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override {
    const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (control != CC_GroupBox || group == nullptr) {
      QProxyStyle::drawComplexControl(control, option, painter, widget);
      const bool ringed = control == CC_ComboBox || control == CC_Slider;
      if (ringed && option->state.testFlag(State_HasFocus)) {
        DrawFocusRing(*painter, option->rect, Ring(*option));
      }
      return;
    }
    painter->save();
    const QFont font = Bold(painter->font());
    painter->setFont(font);
    QStyleOptionGroupBox bold = *group;
    bold.fontMetrics = QFontMetrics(font);
    QProxyStyle::drawComplexControl(control, &bold, painter, widget);
    painter->restore();
  }

  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    if (element == CE_HeaderEmptyArea) {
      // A table goes on in blank below its last row.
      painter->fillRect(option->rect, option->palette.base());
      return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    const bool focused = option->state.testFlag(State_HasFocus);
    if (element == CE_PushButton && focused) {
      constexpr int inset = 3;
      const QRect ring = option->rect.adjusted(inset, inset, -inset, -inset);
      DrawFocusRing(*painter, ring, RingColour(*option));
    }
    if (element == CE_ShapedFrame && focused && qobject_cast<const QAbstractItemView*>(widget)) {
      painter->setPen(Ring(*option));
      painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    }
  }

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* more) const override {
    // The buttons of a message look like all others.
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, more);
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    const bool margin = metric == PM_LayoutLeftMargin || metric == PM_LayoutTopMargin ||
                        metric == PM_LayoutRightMargin || metric == PM_LayoutBottomMargin;
    if (margin && qobject_cast<const QMessageBox*>(widget) != nullptr) return WindowMargin;
    return QProxyStyle::pixelMetric(metric, option, widget);
  }

  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override {
    QRect place = QProxyStyle::subControlRect(control, option, part, widget);
    const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (control != CC_GroupBox || group == nullptr) return place;
    const int captionTop = FrameMargin * 2 / 3;
    if (part == SC_GroupBoxLabel) place.moveTopLeft({FrameMargin, captionTop});
    if (part == SC_GroupBoxContents) {
      // The layout has the margins. What has no caption begins at the top.
      place = option->rect;
      if (!group->text.isEmpty()) place.setTop(captionTop + option->fontMetrics.height());
    }
    return place;
  }

  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& content,
                         const QWidget* widget) const override {
    QSize size = QProxyStyle::sizeFromContents(type, option, content, widget);
    if (type != CT_PushButton) return size;
    return {size.width() + 2 * ButtonPadding,
            qMax(size.height(), PressedHeight(option->fontMetrics))};
  }

  static QFont Bold(QFont font) {
    font.setWeight(QFont::DemiBold);
    return font;
  }

 private:
  static QColor Ring(const QStyleOption& option) {
    return option.palette.color(QPalette::Highlight);
  }
  /// On a ground that is as dark as the ring it is light.
  static QColor RingColour(const QStyleOption& option) {
    const auto* focus = qstyleoption_cast<const QStyleOptionFocusRect*>(&option);
    const bool known = focus != nullptr && focus->backgroundColor.isValid();
    const QColor ground = known ? focus->backgroundColor : option.palette.color(QPalette::Button);
    const bool dark = IsDark(ground) && IsDark(Ring(option));
    return dark ? option.palette.color(QPalette::HighlightedText) : Ring(option);
  }

  static constexpr double Radius = 5;
  static constexpr int ButtonPadding = 6;
};

QPalette LightPalette() {
  QPalette palette(QColor(0xfc, 0xfc, 0xfd), QColor(0xee, 0xf1, 0xf4));
  const QColor text(0x1c, 0x26, 0x30);
  const QColor faint(0x8b, 0x95, 0x9f);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, text);
    palette.setColor(QPalette::Disabled, role, faint);
  }
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Midlight, QColor(0xd0, 0xd7, 0xdd));
  palette.setColor(QPalette::Highlight, QColor(Accent));
  palette.setColor(QPalette::HighlightedText, QColor(OnAccent));
  palette.setColor(QPalette::ToolTipBase, Qt::white);
  palette.setColor(QPalette::ToolTipText, text);
  return palette;
}

/// As on a display of a module: letters of one width on its light ground, in every theme.
void MakeDisplay(QWidget& widget) {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSizeF(widget.font().pointSizeF());
  widget.setFont(font);
  if (dynamic_cast<QLineEdit*>(&widget) == nullptr) return;
  QPalette palette = widget.palette();
  palette.setColor(QPalette::Base, QColor(DisplayGround));
  WriteOnColour(palette, QPalette::Text);
  widget.setPalette(palette);
}

/// No wider than its items.
void MakeShort(QWidget& widget) {
  if (auto* list = dynamic_cast<QComboBox*>(&widget)) list->setMinimumContentsLength(2);
}

/// Wider and taller than other buttons, and in the colour of the program while it can be pressed.
void MakePrimary(QWidget& widget) {
  QPalette palette = widget.palette();
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, QPalette::Button, QColor(Accent));
    palette.setColor(group, QPalette::ButtonText, QColor(OnAccent));
  }
  widget.setPalette(palette);
  widget.setFont(CardStyle::Bold(widget.font()));
  const int line = widget.fontMetrics().height();
  widget.setMinimumSize(10 * line, 5 * line / 2);
}

}  // namespace

void WriteOnColour(QPalette& palette, QPalette::ColorRole role) {
  palette.setColor(role, QColor(TextOnColour));
  palette.setColor(QPalette::Disabled, role, QColor(DisabledOnColour));
}

QColor ReadableOn(const QColor& ground, const Colour& colour) {
  constexpr int leastLight = 190;
  const QColor text(colour.red, colour.green, colour.blue);
  if (!IsDark(ground)) return text;
  return QColor::fromHsl(text.hslHue(), text.hslSaturation(),
                         qMax(leastLight, 255 - text.lightness()));
}

void WriteInColour(QPalette& palette, QPalette::ColorRole role, QPalette::ColorRole ground,
                   const Colour& colour) {
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, role, ReadableOn(palette.color(group, ground), colour));
  }
}

void ApplyStyle(QApplication& application) {
  application.setStyle(new CardStyle);
  if (!IsDark(application.palette().color(QPalette::Window)))
    application.setPalette(LightPalette());
}

void MakeBold(QWidget& widget) {
  widget.setFont(CardStyle::Bold(widget.font()));
}

void ApplyLook(Look look, QWidget& widget) {
  // A line of text is as tall as what can be pressed beside it.
  const bool pressed = look == Look::Tall || dynamic_cast<QPushButton*>(&widget) != nullptr ||
                       dynamic_cast<QComboBox*>(&widget) != nullptr ||
                       dynamic_cast<QLineEdit*>(&widget) != nullptr;
  if (pressed && look != Look::Low) widget.setMinimumHeight(PressedHeight(widget.fontMetrics()));
  switch (look) {
    case Look::Plain:
    case Look::Tall:
    case Look::Low:
    case Look::Newest:
      return;
    case Look::Primary:
      MakePrimary(widget);
      return;
    case Look::Heading:
      MakeBold(widget);
      return;
    case Look::Display:
      MakeDisplay(widget);
      return;
    case Look::Short:
      MakeShort(widget);
      return;
    case Look::Path:
      if (auto* label = dynamic_cast<FittingLabel*>(&widget)) label->Shorten();
      return;
    case Look::Wrapped:
      if (auto* label = dynamic_cast<FittingLabel*>(&widget)) label->Wrap();
      return;
    case Look::Sentence:
      if (auto* label = dynamic_cast<FittingLabel*>(&widget)) label->KeepLines(2);
      return;
  }
}

}  // namespace bkconf
