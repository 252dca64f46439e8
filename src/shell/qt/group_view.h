// The view of a group: a frame with the caption on it, or nothing to see without a caption.
// Made by MakeView; the layout builder fills it.
#pragma once

#include <QGroupBox>

#include "shell/qt/field_view.h"

namespace bkconf {

class FittingLabel;

class GroupView : public WidgetView {
 public:
  GroupView(GroupField& field, QWidget* parent);

  /// Takes the caption off the frame and gives a label of it that takes as many lines as it needs.
  /// To be called once.
  QWidget& WrapCaption();

 protected:
  void Push() override;

 private:
  void PushCaption();

  GroupField& field_;
  QGroupBox* box_;
  FittingLabel* wrapped_ = nullptr;  ///< the caption, where it is not on the frame
  std::string caption_;
};

}  // namespace bkconf
