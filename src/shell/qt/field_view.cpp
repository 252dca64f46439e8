#include "shell/qt/field_view.h"

#include <QRegularExpression>

#include "shell/qt/area_picture_view.h"
#include "shell/qt/button_view.h"
#include "shell/qt/calendar_view.h"
#include "shell/qt/check_view.h"
#include "shell/qt/day_band_view.h"
#include "shell/qt/grid_view.h"
#include "shell/qt/group_view.h"
#include "shell/qt/label_view.h"
#include "shell/qt/list_box_view.h"
#include "shell/qt/list_view.h"
#include "shell/qt/manual_view.h"
#include "shell/qt/option_view.h"
#include "shell/qt/picture_view.h"
#include "shell/qt/progress_view.h"
#include "shell/qt/scroll_view.h"
#include "shell/qt/style.h"
#include "shell/qt/text_view.h"

namespace bkconf {

WidgetView::WidgetView(const Field& field, QWidget* widget) : field_(field), widget_(widget) {
  widget->setObjectName(ToQt(field.name));
}

void WidgetView::Refresh() {
  const QSignalBlocker blocker(widget_);
  Push();
  if (toolTip_ != field_.toolTip) {
    toolTip_ = field_.toolTip;
    widget_->setToolTip(ToQt(toolTip_));
  }
  if (const QString name = SpokenName(); widget_->accessibleName() != name) {
    widget_->setAccessibleName(name);
  }
  if (widget_->isEnabledTo(widget_->parentWidget()) != Enabled()) widget_->setEnabled(Enabled());
  // Asks for the widget's own flag: it stays hidden with the group it lies in.
  if (widget_->isHidden() == field_.visible) widget_->setVisible(field_.visible);
}

QString WidgetView::SpokenName() const {
  std::string name = field_.caption;
  if (name.empty()) {
    for (const Field* label : labels_) name += (name.empty() ? "" : " ") + label->caption;
  }
  // In some captions a row of blanks stands for the field that is shown there. Two are no such row:
  // the sentences of actions have them.
  static const QRegularExpression room(QStringLiteral(" {3,}"));
  return ToQt(name).replace(room, QStringLiteral(" ")).trimmed();
}

void WidgetView::PushColour(QPalette::ColorRole behind, QPalette::ColorRole text) {
  if (colour_ == field_.colour && textColour_ == field_.textColour) return;
  if (!colour_ && !textColour_) plain_ = widget_->palette();
  colour_ = field_.colour;
  textColour_ = field_.textColour;
  QPalette palette = plain_;
  if (colour_) palette.setColor(behind, QColor(colour_->red, colour_->green, colour_->blue));
  for (const auto role : {text, QPalette::PlaceholderText}) {
    if (colour_) WriteOnColour(palette, role);
    if (textColour_) WriteInColour(palette, role, behind, *textColour_);
  }
  widget_->setPalette(palette);
}

std::unique_ptr<WidgetView> MakeView(Field& field, QWidget* parent) {
  switch (field.kind) {
    case FieldKind::Group:
      return std::make_unique<GroupView>(static_cast<GroupField&>(field), parent);
    case FieldKind::Label:
      return std::make_unique<LabelView>(static_cast<LabelField&>(field), parent);
    case FieldKind::Text:
      return std::make_unique<TextView>(static_cast<TextField&>(field), parent);
    case FieldKind::List:
      return std::make_unique<ListView>(static_cast<ListField&>(field), parent);
    case FieldKind::ListBox:
      return std::make_unique<ListBoxView>(static_cast<ListBoxField&>(field), parent);
    case FieldKind::Check:
      return std::make_unique<CheckView>(static_cast<CheckField&>(field), parent);
    case FieldKind::Option:
      return std::make_unique<OptionView>(static_cast<OptionField&>(field), parent);
    case FieldKind::Grid:
      return std::make_unique<GridView>(static_cast<GridField&>(field), parent);
    case FieldKind::Calendar:
      return std::make_unique<CalendarView>(static_cast<CalendarField&>(field), parent);
    case FieldKind::Scroll:
      return std::make_unique<ScrollView>(static_cast<ScrollField&>(field), parent);
    case FieldKind::DayBand:
      return std::make_unique<DayBandView>(static_cast<DayBandField&>(field), parent);
    case FieldKind::Button:
      return std::make_unique<ButtonView>(static_cast<ButtonField&>(field), parent);
    case FieldKind::Progress:
      return std::make_unique<ProgressView>(static_cast<ProgressField&>(field), parent);
    case FieldKind::Picture:
      return std::make_unique<PictureView>(static_cast<PictureField&>(field), parent);
    case FieldKind::AreaPicture:
      return std::make_unique<AreaPictureView>(static_cast<AreaPictureField&>(field), parent);
    case FieldKind::Manual:
      return std::make_unique<ManualView>(static_cast<ManualField&>(field), parent);
    case FieldKind::Menu:
      return nullptr;
  }
  return nullptr;
}

}  // namespace bkconf
