// The view of a picture: as large as there is room, in its own proportions.
// Made by MakeView.
#pragma once

#include "shell/qt/field_view.h"

namespace bkconf {

class PictureView : public WidgetView {
 public:
  PictureView(PictureField& field, QWidget* parent);

 protected:
  void Push() override;

 private:
  PictureField& field_;
  std::string file_;
};

}  // namespace bkconf
