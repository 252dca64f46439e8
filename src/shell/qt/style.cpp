#include "shell/qt/style.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QLineEdit>
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

/// Fusion, but for groups: a card with its caption in bold at the top.
class CardStyle : public QProxyStyle {
 public:
  CardStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    if (element != PE_FrameGroupBox) {
      QProxyStyle::drawPrimitive(element, option, painter, widget);
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

  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override {
    QRect place = QProxyStyle::subControlRect(control, option, part, widget);
    const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (control != CC_GroupBox || group == nullptr || group->text.isEmpty()) return place;
    const int captionTop = FrameMargin * 2 / 3;
    if (part == SC_GroupBoxLabel) {
      const int contentLeft = subControlRect(control, option, SC_GroupBoxContents, widget).left();
      place.moveTopLeft({contentLeft + FrameMargin, captionTop});
    }
    if (part == SC_GroupBoxContents) place.setTop(captionTop + option->fontMetrics.height());
    return place;
  }

  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& content,
                         const QWidget* widget) const override {
    QSize size = QProxyStyle::sizeFromContents(type, option, content, widget);
    if (type == CT_PushButton) size.rwidth() += 2 * ButtonPadding;
    return size;
  }

  static QFont Bold(QFont font) {
    font.setWeight(QFont::DemiBold);
    return font;
  }

 private:
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
  constexpr int half = 128;
  constexpr int leastLight = 190;
  const QColor text(colour.red, colour.green, colour.blue);
  if (ground.lightness() >= half) return text;
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
  if (application.palette().color(QPalette::Window).lightness() >= 128) {
    application.setPalette(LightPalette());
  }
}

void MakeBold(QWidget& widget) {
  widget.setFont(CardStyle::Bold(widget.font()));
}

void ApplyLook(Look look, QWidget& widget) {
  // All that can be pressed is tall enough to be hit without aiming, and a line of text beside it
  // is as tall.
  const bool pressed = look == Look::Tall || dynamic_cast<QPushButton*>(&widget) != nullptr ||
                       dynamic_cast<QComboBox*>(&widget) != nullptr ||
                       dynamic_cast<QLineEdit*>(&widget) != nullptr;
  if (pressed && look != Look::Low) widget.setMinimumHeight(9 * widget.fontMetrics().height() / 4);
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
