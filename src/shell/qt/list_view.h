// The view of a list: a combo box that cannot be typed into. A text that is none of the items shows
// in it all the same. Made by MakeView.
#pragma once

#include <QComboBox>
#include <vector>

#include "shell/qt/field_view.h"

namespace bkconf {

class ListView : public WidgetView {
 public:
  ListView(ListField& field, QWidget* parent);

 protected:
  void Push() override;

 private:
  void PushItems();

  ListField& field_;
  QComboBox* box_;
  std::vector<std::string> items_;
};

}  // namespace bkconf
