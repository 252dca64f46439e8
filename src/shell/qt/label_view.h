// The view of a label: plain text. One that a double click does something with can also
// be reached by keyboard. Made by MakeView.
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
  void PushDoubleClick();

  LabelField& field_;
  QLabel* label_;
  std::string caption_;
};

/// A label that can be told to fit into the width that there is.
class FittingLabel : public QLabel {
 public:
  using QLabel::QLabel;

  /// What does not fit is left out in the middle, and the tool tip tells all of it. Of a path, that
  /// leaves the drive and the file in sight.
  void Shorten();
  /// Takes as many lines as it needs at its minimum width.
  void Wrap();
  /// Wraps, and keeps the height of so many lines whatever its text is.
  void KeepLines(int lines);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString Fitting() const;
  QSize Width(int characters, QSize whole) const;

  bool shortened_ = false;
  bool wrapped_ = false;
};

}  // namespace bkconf
