// The view of a progress bar. It also draws while a routine of the logic holds the window.
// Made by MakeView.
#pragma once

#include <QElapsedTimer>
#include <QProgressBar>

#include "shell/qt/field_view.h"

namespace bkconf {

class ProgressView : public WidgetView {
 public:
  ProgressView(ProgressField& field, QWidget* parent);
  ~ProgressView() override;

 protected:
  void Push() override;

 private:
  /// Called for every step of the bar: paints as often as an eye can follow and no more, since the
  /// wait for a poll takes 20000 steps.
  void Draw();

  ProgressField& field_;
  QProgressBar* bar_;
  QElapsedTimer sinceDrawn_;
};

}  // namespace bkconf
