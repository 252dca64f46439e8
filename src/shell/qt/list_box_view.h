// The view of a list box: all items in sight. A click and the arrow keys pick, a double click and
// Enter open. Made by MakeView.
#pragma once

#include <QListWidget>
#include <string>
#include <vector>

#include "shell/qt/field_view.h"

namespace bkconf {

class ListBoxView : public WidgetView {
 public:
  ListBoxView(ListBoxField& field, QWidget* parent);

  /// Keeps the last item in view when items are added at the end.
  void FollowNewest() { follows_ = true; }

 protected:
  void Push() override;

 private:
  class Box;

  void PickSelected();
  void PushItems();

  ListBoxField& field_;
  Box* box_;
  std::vector<std::string> items_;
  bool follows_ = false;
};

}  // namespace bkconf
