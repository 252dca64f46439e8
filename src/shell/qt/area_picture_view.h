// The view of a picture with areas in it: each area is a key that lies over the picture. The
// tabulator goes to one of them, the arrows from there to the others. Made by MakeView.
#pragma once

#include <string>

#include "shell/qt/field_view.h"

namespace bkconf {

class AreaPictureView : public WidgetView {
 public:
  AreaPictureView(AreaPictureField& field, QWidget* parent);

 protected:
  void Push() override;

 private:
  AreaPictureField& field_;
  std::string file_;
};

}  // namespace bkconf
