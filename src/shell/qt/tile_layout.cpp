#include "shell/qt/tile_layout.h"

#include <QWidget>

namespace bkconf {

TileLayout::~TileLayout() = default;

void TileLayout::addItem(QLayoutItem* item) {
  items_.emplace_back(item);
}

int TileLayout::count() const {
  return static_cast<int>(items_.size());
}

QLayoutItem* TileLayout::itemAt(int index) const {
  return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* TileLayout::takeAt(int index) {
  if (itemAt(index) == nullptr) return nullptr;
  QLayoutItem* item = items_[static_cast<std::size_t>(index)].release();
  items_.erase(items_.begin() + index);
  return item;
}

std::vector<QLayoutItem*> TileLayout::Shown() const {
  std::vector<QLayoutItem*> shown;
  for (const auto& item : items_) {
    if (!item->isEmpty()) shown.push_back(item.get());
  }
  return shown;
}

QSize TileLayout::TileSize(QSize (QLayoutItem::*size)() const) const {
  QSize tile(0, 0);
  for (const QLayoutItem* item : Shown()) tile = tile.expandedTo((item->*size)());
  return tile;
}

QSize TileLayout::SizeOf(QSize tile) const {
  const int rows = (static_cast<int>(Shown().size()) + columns_ - 1) / columns_;
  if (rows == 0) return {0, 0};
  return {columns_ * tile.width() + (columns_ - 1) * spacing(),
          rows * tile.height() + (rows - 1) * spacing()};
}

QSize TileLayout::sizeHint() const {
  return SizeOf(TileSize(&QLayoutItem::sizeHint));
}

QSize TileLayout::minimumSize() const {
  return SizeOf(TileSize(&QLayoutItem::minimumSize));
}

void TileLayout::setGeometry(const QRect& area) {
  QLayout::setGeometry(area);
  const int width = (area.width() - (columns_ - 1) * spacing()) / columns_;
  const int height = TileSize(&QLayoutItem::sizeHint).height();
  int place = 0;
  for (QLayoutItem* item : Shown()) {
    const int column = place % columns_;
    const int row = place / columns_;
    item->setGeometry(QRect(area.x() + column * (width + spacing()),
                            area.y() + row * (height + spacing()), width, height));
    ++place;
  }
}

}  // namespace bkconf
