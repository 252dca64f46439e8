#include "shell/qt/grid_view.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>
#include <numeric>

#include "shell/qt/event_guard.h"

namespace bkconf {
namespace {

/// Around the text of a cell, in device-independent pixels.
constexpr int CellPadding = 3;
/// Rows that are in sight as long as there is room, and those that always are.
constexpr int RowsInSight = 20;
constexpr int FewestRows = 3;

/// Tells the whole text of a cell that is too narrow for it.
class CellDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    const QString text = index.data().toString();
    if (event->type() != QEvent::ToolTip ||
        sizeHint(option, index).width() <= option.rect.width()) {
      return QStyledItemDelegate::helpEvent(event, view, option, index);
    }
    // What a module holds is never markup.
    QToolTip::showText(event->globalPos(),
                       QStringLiteral("<span>%1</span>").arg(text.toHtmlEscaped()), view);
    return true;
  }
};

}  // namespace

/// What the field shows, as of the last push. Rows and columns of Qt count from 0, without the
/// captions and without the headers of the rows.
class GridView::Model : public QAbstractTableModel {
 public:
  Model(const GridField& field, QObject* parent) : QAbstractTableModel(parent), field_(field) {}

  /// Takes over what changed. True when all of it is new.
  bool Push() {
    if (!SameShape()) {
      beginResetModel();
      columns_ = field_.columns;
      headers_ = field_.rowHeader ? 1 : 0;
      cells_.assign(static_cast<std::size_t>(field_.Rows()),
                    std::vector<std::string>(columns_.size()));
      for (int row = 1; row <= field_.Rows(); ++row) PushRow(row, [](int) {});
      endResetModel();
      return true;
    }
    PushCaptions();
    for (int row = 1; row <= field_.Rows(); ++row) {
      PushRow(row, [this, row](int column) { TellChange(row, column); });
    }
    return false;
  }

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(cells_.size());
  }
  int columnCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : static_cast<int>(columns_.size()) - headers_;
  }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole || !index.isValid()) return {};
    return ToQt(Cell(index.row(), index.column() + headers_));
  }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (role == Qt::TextAlignmentRole) return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Horizontal) {
      return ToQt(columns_.at(static_cast<std::size_t>(section + headers_)).caption);
    }
    return headers_ == 0 ? QString() : ToQt(Cell(section, 0));
  }

  int RowOf(const QModelIndex& index) const { return index.row() + 1; }
  int ColumnOf(const QModelIndex& index) const { return index.column() + headers_; }
  int ColumnOfSection(int section) const { return section + headers_; }
  /// No index where there is no such row.
  QModelIndex IndexOf(int row, int column) const {
    return row < 1 ? QModelIndex() : index(row - 1, column - headers_);
  }
  bool HasHeaders() const { return headers_ == 1; }
  bool RowIsEntry() const { return field_.rowIsEntry; }
  bool HasCaptions() const {
    return std::any_of(columns_.begin(), columns_.end(),
                       [](const auto& column) { return !column.caption.empty(); });
  }
  const std::vector<GridField::Column>& Columns() const { return columns_; }
  const std::string& Cell(int row, int column) const {
    return cells_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
  }

 private:
  bool SameShape() const {
    return headers_ == (field_.rowHeader ? 1 : 0) && rowCount() == field_.Rows() &&
           std::equal(columns_.begin(), columns_.end(), field_.columns.begin(),
                      field_.columns.end(),
                      [](const auto& one, const auto& other) { return one.width == other.width; });
  }

  void PushCaptions() {
    for (std::size_t column = 0; column < columns_.size(); ++column) {
      std::string& shown = columns_[column].caption;
      if (shown == field_.columns[column].caption) continue;
      shown = field_.columns[column].caption;
      const int section = static_cast<int>(column) - headers_;
      if (section >= 0) Q_EMIT headerDataChanged(Qt::Horizontal, section, section);
    }
  }

  template <typename Tell>
  void PushRow(int row, Tell tell) {
    std::vector<std::string>& shown = cells_[static_cast<std::size_t>(row - 1)];
    for (std::size_t column = 0; column < shown.size(); ++column) {
      const std::string& text = field_.At(row, static_cast<int>(column));
      if (shown[column] == text) continue;
      shown[column] = text;
      tell(static_cast<int>(column));
    }
  }

  void TellChange(int row, int column) {
    if (column < headers_) {
      Q_EMIT headerDataChanged(Qt::Vertical, row - 1, row - 1);
    } else {
      Q_EMIT dataChanged(IndexOf(row, column), IndexOf(row, column), {Qt::DisplayRole});
    }
  }

  const GridField& field_;
  std::vector<GridField::Column> columns_;
  int headers_ = 0;
  std::vector<std::vector<std::string>> cells_;
};

class GridView::Table : public QTableView {
 public:
  Table(GridView& view, const GridField& field, QWidget* parent)
      : QTableView(parent), view_(view), rows_(new Model(field, this)) {
    setModel(rows_);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWordWrap(false);
    setItemDelegate(new CellDelegate(this));
    const int height = fontMetrics().height() + 2 * CellPadding;
    for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
      header->setSectionResizeMode(QHeaderView::Fixed);
      header->setHighlightSections(false);
      header->setMinimumSectionSize(0);
    }
    verticalHeader()->setDefaultSectionSize(height);
    horizontalHeader()->setFixedHeight(height + 2 * CellPadding);
  }

  Model* Rows() const { return rows_; }

  /// Captions that are all empty take no room.
  void ShowCaptions() {
    if (horizontalHeader()->isHidden() != rows_->HasCaptions()) return;
    horizontalHeader()->setVisible(rows_->HasCaptions());
    updateGeometry();
  }

  /// Takes up another shape: columns, and the room that they need.
  void TakeShape() {
    verticalHeader()->setVisible(rows_->HasHeaders());
    needed_ = NeededWidth();
    Stretch();
    updateGeometry();
  }

  QModelIndex Selected() const {
    const QModelIndexList selected = selectionModel()->selectedIndexes();
    return selected.isEmpty() ? QModelIndex() : selected.front();
  }

  QSize sizeHint() const override { return Room(std::min(RowsInSight, rows_->rowCount())); }
  QSize minimumSizeHint() const override { return Room(std::min(FewestRows, rows_->rowCount())); }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QTableView::resizeEvent(event);
    Stretch();
  }

  void mousePressEvent(QMouseEvent* event) override {
    const QModelIndex pressed = indexAt(event->position().toPoint());
    pressedAgain_ = pressed.isValid() && pressed == Selected();
    QTableView::mousePressEvent(event);
  }

  void mouseReleaseEvent(QMouseEvent* event) override {
    QTableView::mouseReleaseEvent(event);
    const bool again = pressedAgain_ && indexAt(event->position().toPoint()) == Selected();
    pressedAgain_ = false;
    // Other clicks were told when the selection changed.
    if (again) view_.SelectShown();
  }

  void mouseDoubleClickEvent(QMouseEvent* event) override {
    pressedAgain_ = false;
    QTableView::mouseDoubleClickEvent(event);
  }

  /// The cursor stands on a cell as soon as the table has the focus, also when another one was
  /// deselected before.
  void focusInEvent(QFocusEvent* event) override {
    QTableView::focusInEvent(event);
    if (currentIndex().isValid() || rows_->rowCount() == 0) return;
    selectionModel()->setCurrentIndex(rows_->index(0, 0), QItemSelectionModel::NoUpdate);
  }

  void keyPressEvent(QKeyEvent* event) override {
    switch (event->key()) {
      case Qt::Key_Return:
      case Qt::Key_Enter:
        event->ignore();  // the button that Enter presses
        return;
      case Qt::Key_Delete:
      case Qt::Key_Insert:
        PressOn(event->key());
        return;
      case Qt::Key_Up:
      case Qt::Key_Down:
      case Qt::Key_Left:
      case Qt::Key_Right:
        if (!Selected().isValid() && currentIndex().isValid()) {
          // The cell on which the cursor stands comes first.
          selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
          return;
        }
        break;
      default:
        break;
    }
    QTableView::keyPressEvent(event);
  }

 private:
  void PressOn(int key) {
    const QModelIndex cell = currentIndex();
    if (!cell.isValid()) return;
    if (IsFree(cell) != (key == Qt::Key_Insert)) return;
    view_.DoubleClick(rows_->RowOf(cell), rows_->ColumnOf(cell));
  }

  /// The keys that enter and take away go by what the double click is about.
  bool IsFree(const QModelIndex& cell) const {
    if (!rows_->RowIsEntry()) return cell.data().toString().isEmpty();
    for (int column = 1; column < rows_->columnCount(); ++column) {
      if (!cell.siblingAtColumn(column).data().toString().isEmpty()) return false;
    }
    return true;
  }

  int TotalShare() const {
    const auto& columns = rows_->Columns();
    return std::accumulate(columns.begin(), columns.end(), 0,
                           [](int sum, const auto& column) { return sum + column.width; });
  }

  /// The width at which no text is cut off, while the columns keep their proportions.
  int NeededWidth() const {
    int needed = 0;
    for (std::size_t i = 0; i < rows_->Columns().size(); ++i) {
      const GridField::Column& column = rows_->Columns()[i];
      int widest = fontMetrics().horizontalAdvance(ToQt(column.caption));
      for (int row = 0; row < rows_->rowCount(); ++row) {
        const std::string& text = rows_->Cell(row, static_cast<int>(i));
        widest = std::max(widest, fontMetrics().horizontalAdvance(ToQt(text)));
      }
      const int padded = widest + 5 * CellPadding;
      if (column.width > 0) needed = std::max(needed, padded * TotalShare() / column.width);
    }
    return needed;
  }

  /// Divides the whole width. The headers of the rows go first: a change of theirs moves the rest.
  void Stretch() {
    const int total = TotalShare();
    if (total == 0) return;
    const int first = rows_->HasHeaders() ? 1 : 0;
    const int header = first == 0 ? 0 : rows_->Columns().front().width;
    const int room = viewport()->width() + (first == 0 ? 0 : verticalHeader()->width());
    const int headerWidth = room * header / total;
    if (first == 1 && verticalHeader()->width() != headerWidth) {
      verticalHeader()->setFixedWidth(headerWidth);
      updateGeometries();
      return;  // the width that is left has been divided by now
    }
    int share = header;
    int left = headerWidth;
    for (int section = 0; section < rows_->columnCount(); ++section) {
      share += rows_->Columns()[static_cast<std::size_t>(section + first)].width;
      const int right = room * share / total;
      setColumnWidth(section, right - left);
      left = right;
    }
  }

  QSize Room(int rows) const {
    const int bar = verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff
                        ? 0
                        : style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const int captions = rows_->HasCaptions() ? horizontalHeader()->height() : 0;
    return {needed_ + bar + 2 * frameWidth(),
            rows * verticalHeader()->defaultSectionSize() + captions + 2 * frameWidth()};
  }

  GridView& view_;
  Model* rows_;
  int needed_ = 0;
  bool pressedAgain_ = false;
};

GridView::GridView(GridField& field, QWidget* parent)
    : WidgetView(field, new Table(*this, field, parent)),
      field_(field),
      table_(static_cast<Table*>(Widget())),
      model_(table_->Rows()) {
  QObject::connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, table_,
                   [this] {
                     if (!pushing_) SelectShown();
                   });
  QObject::connect(table_, &QTableView::doubleClicked, table_, [this](const QModelIndex& index) {
    DoubleClick(model_->RowOf(index), model_->ColumnOf(index));
  });
  QObject::connect(table_->horizontalHeader(), &QHeaderView::sectionDoubleClicked, table_,
                   [this](int section) { DoubleClick(0, model_->ColumnOfSection(section)); });
  QObject::connect(table_->verticalHeader(), &QHeaderView::sectionDoubleClicked, table_,
                   [this](int section) { DoubleClick(section + 1, 0); });
}

/// Nothing selected, after a click beside the cells, selects none: the refresh brings the cell
/// back.
void GridView::SelectShown() {
  const QModelIndex selected = table_->Selected();
  RunEvent([this, selected] {
    if (selected.isValid()) field_.Select(model_->RowOf(selected), model_->ColumnOf(selected));
  });
}

void GridView::Open() {
  const QModelIndex cell = table_->currentIndex();
  if (cell.isValid()) DoubleClick(model_->RowOf(cell), model_->ColumnOf(cell));
}

void GridView::DoubleClick(int row, int column) {
  RunEvent([this, row, column] { field_.DoubleClick(row, column); });
}

void GridView::Push() {
  const QScopedValueRollback<bool> pushing(pushing_, true);
  if (model_->Push()) table_->TakeShape();
  table_->ShowCaptions();
  PushSelection();
}

void GridView::PushSelection() {
  // The widget is asked, not a memory of the last push: the user may have moved it.
  const QModelIndex wanted = model_->IndexOf(field_.CurrentRow(), field_.CurrentColumn());
  if (table_->Selected() == wanted) return;
  QItemSelectionModel& selection = *table_->selectionModel();
  if (wanted.isValid()) {
    selection.setCurrentIndex(wanted, QItemSelectionModel::ClearAndSelect);
  } else {
    selection.clear();
  }
}

}  // namespace bkconf
