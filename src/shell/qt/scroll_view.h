// The view of a handle between two ends: a slider where there are few places, with a mark at each
// of them, else a scroll bar, whose arrows go step by step. Made by MakeView.
#pragma once

#include <QAbstractSlider>

#include "shell/qt/field_view.h"

namespace bkconf {

class ScrollView : public WidgetView {
 public:
  /// Which of both it is depends on the range that the field has by now.
  ScrollView(ScrollField& field, QWidget* parent);

 protected:
  void Push() override;

 private:
  void Move(int value);

  ScrollField& field_;
  QAbstractSlider* slider_;
};

}  // namespace bkconf
