#include "shell/qt/list_view.h"

#include <QStylePainter>
#include <QWheelEvent>

#include "shell/qt/event_guard.h"

namespace bkconf {
namespace {

/// A turn of the wheel over a closed list would change what goes to the module, unnoticed.
class WheelProofBox : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }

  /// A colour is painted as flat as that of a label: the style would let it fade.
  void paintEvent(QPaintEvent* event) override {
    if (!palette().isBrushSet(QPalette::Active, QPalette::Button)) {
      QComboBox::paintEvent(event);
      return;
    }
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    painter.fillRect(rect().adjusted(FrameWidth, FrameWidth, -FrameWidth, -FrameWidth),
                     option.palette.button());
    option.palette.setBrush(QPalette::WindowText, option.palette.buttonText());
    if (currentIndex() < 0) option.currentText = placeholderText();
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
    option.rect =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this);
    painter.drawPrimitive(QStyle::PE_IndicatorArrowDown, option);
  }

 private:
  static constexpr int FrameWidth = 2;
};

/// A text that is no item is as real as one that is: it gets the colour of any other.
void ShowForeignTextAsOwn(QComboBox& box) {
  QPalette palette = box.palette();
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    palette.setBrush(group, QPalette::PlaceholderText, palette.brush(group, QPalette::ButtonText));
  }
  box.setPalette(palette);
}

}  // namespace

ListView::ListView(ListField& field, QWidget* parent)
    : WidgetView(field, new WheelProofBox(parent)),
      field_(field),
      box_(static_cast<QComboBox*>(Widget())) {
  ShowForeignTextAsOwn(*box_);
  // Lists of letters and of numbers get the same width.
  box_->setMinimumContentsLength(6);
  box_->setMaxVisibleItems(18);
  QObject::connect(box_, &QComboBox::activated, box_,
                   [this](int index) { RunEvent([this, index] { field_.Pick(index); }); });
}

void ListView::Push() {
  PushColour(QPalette::Button, QPalette::ButtonText);
  if (items_ != field_.items) PushItems();
  const bool foreign = field_.Index() < 0;
  // The widget is asked, not a memory of the last push: the user may have moved it.
  if (box_->currentIndex() != field_.Index()) box_->setCurrentIndex(field_.Index());
  const QString text = foreign ? ToQt(field_.Text()) : QString();
  if (box_->placeholderText() != text) box_->setPlaceholderText(text);
  // A screen reader takes the current item for the name of a combo box, so the label and a text
  // that is no item go into the description.
  const QString description = foreign ? (SpokenName() + u' ' + text).trimmed() : SpokenName();
  if (box_->accessibleDescription() != description) box_->setAccessibleDescription(description);
}

void ListView::PushItems() {
  items_ = field_.items;
  QStringList items;
  for (const std::string& item : items_) items.append(ToQt(item));
  box_->clear();
  box_->addItems(items);
  box_->setCurrentIndex(-1);
}

}  // namespace bkconf
