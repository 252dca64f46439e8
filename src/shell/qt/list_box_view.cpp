#include "shell/qt/list_box_view.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <algorithm>

#include "shell/qt/event_guard.h"

namespace bkconf {
namespace {

/// Around the text of an item, in device-independent pixels. It belongs to the item, so that no
/// click between two items is lost.
constexpr int ItemPadding = 2;

class PaddedItems : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index).grownBy({0, ItemPadding, 0, ItemPadding});
  }
};

}  // namespace

class ListBoxView::Box : public QListWidget {
 public:
  Box(const ListBoxField& field, QWidget* parent) : QListWidget(parent), field_(field) {
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setUniformItemSizes(true);
    setItemDelegate(new PaddedItems(this));
  }

  int SelectedRow() const {
    const auto selected = selectedItems();
    return selected.isEmpty() ? -1 : row(selected.front());
  }
  /// The row that was selected when the mouse was pressed the last time.
  int RowBeforePress() const { return rowBeforePress_; }

  QSize sizeHint() const override { return Room(32, 12); }
  QSize minimumSizeHint() const override { return Room(14, 4); }

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    rowBeforePress_ = SelectedRow();
    QListWidget::mousePressEvent(event);
  }

  void keyPressEvent(QKeyEvent* event) override {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool arrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (enter && SelectedRow() >= 0 && field_.onOpen) {
      Q_EMIT itemDoubleClicked(item(SelectedRow()));
    } else if (enter) {
      event->ignore();  // the button that Enter presses
    } else if (arrow && SelectedRow() < 0 && currentItem() != nullptr) {
      // The cursor stands on an item as soon as the list has the focus: that one comes first.
      currentItem()->setSelected(true);
    } else {
      QListWidget::keyPressEvent(event);
    }
  }

 private:
  QSize Room(int characters, int lines) const {
    return {characters * fontMetrics().averageCharWidth() + 2 * frameWidth(),
            lines * (fontMetrics().lineSpacing() + 2 * ItemPadding) + 2 * frameWidth()};
  }

  const ListBoxField& field_;
  int rowBeforePress_ = -1;
};

ListBoxView::ListBoxView(ListBoxField& field, QWidget* parent)
    : WidgetView(field, new Box(field, parent)), field_(field), box_(static_cast<Box*>(Widget())) {
  QObject::connect(box_, &QListWidget::itemSelectionChanged, box_, [this] { PickSelected(); });
  QObject::connect(box_, &QListWidget::itemClicked, box_, [this](const QListWidgetItem* item) {
    // A click on the item that is picked already picks it again; other clicks were told above.
    if (box_->row(item) == box_->RowBeforePress()) PickSelected();
  });
  QObject::connect(box_, &QListWidget::itemDoubleClicked, box_,
                   [this](const QListWidgetItem* item) {
                     RunEvent([this, index = box_->row(item)] { field_.Open(index); });
                   });
}

/// Nothing selected, after a click beside the items, is no pick: the refresh brings the item back.
void ListBoxView::PickSelected() {
  RunEvent([this] { field_.Pick(box_->SelectedRow()); });
}

void ListBoxView::Push() {
  if (items_ != field_.Items()) PushItems();
  if (box_->SelectedRow() == field_.Index()) return;
  if (field_.Index() < 0) {
    box_->clearSelection();
  } else {
    box_->setCurrentRow(field_.Index());
  }
}

void ListBoxView::PushItems() {
  const std::vector<std::string>& items = field_.Items();
  const bool added = follows_ && !items_.empty() && items.size() > items_.size() &&
                     std::equal(items_.begin(), items_.end(), items.begin());
  if (!added) box_->clear();
  const QScrollBar& bar = *box_->verticalScrollBar();
  // Who has scrolled up to read is left there.
  const bool atEnd = added && bar.value() == bar.maximum();
  QStringList further;
  for (auto item = static_cast<std::size_t>(box_->count()); item < items.size(); ++item) {
    further.append(ToQt(items[item]));
  }
  box_->addItems(further);
  items_ = items;
  if (atEnd) box_->scrollToBottom();
}

}  // namespace bkconf
