// The view of a label: a line of plain text.
// Made by MakeView.
#pragma once

#include <QLabel>

#include "shell/qt/field_view.h"

namespace bkconf {

class LabelView : public WidgetView {
 public:
  LabelView(LabelField& field, QWidget* parent);

 protected:
  void Push() override;

 private:
  LabelField& field_;
  QLabel* label_;
  std::string caption_;
};

}  // namespace bkconf
