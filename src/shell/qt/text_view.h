// The view of a text field: a line that the user types.
// Made by MakeView.
#pragma once

#include <QLineEdit>

#include "shell/qt/field_view.h"

namespace bkconf {

class TextView : public WidgetView {
 public:
  TextView(TextField& field, QWidget* parent);

 protected:
  void Push() override;

 private:
  TextField& field_;
  QLineEdit* line_;
};

}  // namespace bkconf
