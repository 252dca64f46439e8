// The view of one of several choices: a radio button. MakeView makes it; the layout builder puts a
// list into it.
#pragma once

#include <QButtonGroup>
#include <QRadioButton>

#include "shell/qt/field_view.h"

namespace bkconf {

/// A radio button whose caption can have another widget in front of it, in place of the blanks with
/// which the caption begins. Where the two stand is as good as the button to click on.
class OptionButton : public QRadioButton {
 public:
  using QRadioButton::QRadioButton;

  /// Takes the widget in between the mark and the caption; it belongs to this one from now on.
  void Hold(QWidget& held);
  bool Holds() const { return held_ != nullptr; }

  QSize sizeHint() const override;

 protected:
  bool hitButton(const QPoint& place) const override { return rect().contains(place); }
  void paintEvent(QPaintEvent* event) override;

 private:
  QWidget* held_ = nullptr;
};

class OptionView : public WidgetView {
 public:
  OptionView(OptionField& field, QWidget* parent);

 protected:
  void Push() override;

 private:
  OptionField& field_;
  OptionButton* button_;
  QButtonGroup* alone_;  ///< of this one only
  std::string caption_;
};

}  // namespace bkconf
