// The view of a box to tick. Made by MakeView.
#pragma once

#include <QCheckBox>

#include "shell/qt/field_view.h"

namespace bkconf {

class CheckView : public WidgetView {
 public:
  CheckView(CheckField& field, QWidget* parent);

 protected:
  void Push() override;

 private:
  CheckField& field_;
  QCheckBox* box_;
  std::string caption_;
};

}  // namespace bkconf
