// A layout of equal tiles in a fixed number of columns. Hidden widgets leave no hole: those behind
// them move up. The layout builder makes it.
#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace bkconf {

class TileLayout : public QLayout {
 public:
  explicit TileLayout(int columns) : columns_(columns) {}
  ~TileLayout() override;

  void addItem(QLayoutItem* item) override;
  int count() const override;
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  QSize sizeHint() const override;
  QSize minimumSize() const override;
  Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
  void setGeometry(const QRect& area) override;

 private:
  std::vector<QLayoutItem*> Shown() const;
  QSize TileSize(QSize (QLayoutItem::*size)() const) const;
  QSize SizeOf(QSize tile) const;

  int columns_;
  std::vector<std::unique_ptr<QLayoutItem>> items_;
};

}  // namespace bkconf
