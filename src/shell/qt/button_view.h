// The view of a button: a push button, enabled only while there is something that it does.
// Made by MakeView.
#pragma once

#include <QPushButton>

#include "shell/qt/field_view.h"

namespace bkconf {

class ButtonView : public WidgetView {
 public:
  ButtonView(ButtonField& field, QWidget* parent);

 protected:
  void Push() override;
  bool Enabled() const override { return field_.enabled && field_.onClick; }

 private:
  ButtonField& field_;
  QPushButton* button_;
  std::string caption_;
};

}  // namespace bkconf
