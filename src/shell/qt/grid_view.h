// The view of a grid: a table with captions on top, unless all of them are empty, and the first
// column as headers of the rows where the field says so. A click and the arrow keys select a cell,
// a double click opens it; so does Delete on a cell that holds text, Insert on one that holds none,
// and Enter where the screen has no button for it. Made by MakeView.
#pragma once

#include <QTableView>

#include "shell/qt/field_view.h"

namespace bkconf {

class GridView : public WidgetView {
 public:
  GridView(GridField& field, QWidget* parent);

  void Open() override;

 protected:
  void Push() override;

 private:
  class Model;
  class Table;

  void SelectShown();
  void DoubleClick(int row, int column);
  void PushSelection();

  GridField& field_;
  Table* table_;
  Model* model_;
  bool pushing_ = false;
};

}  // namespace bkconf
