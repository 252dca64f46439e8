// The view of a group: a frame with the caption on it, or nothing to see without a caption.
// Made by MakeView; the layout builder fills it.
#pragma once

#include <QGroupBox>

#include "shell/qt/field_view.h"

namespace bkconf {

class GroupView : public WidgetView {
 public:
  GroupView(GroupField& field, QWidget* parent);

 protected:
  void Push() override;

 private:
  GroupField& field_;
  QGroupBox* box_;
  std::string caption_;
};

}  // namespace bkconf
