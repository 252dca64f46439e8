// The view of a label: plain text, in a box where the field has a colour. One that a double click
// does something with can also be reached by keyboard. Made by MakeView.
#pragma once

#include <QLabel>

#include "shell/qt/field_view.h"

namespace bkconf {

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
  /// Stands in a box of the palette's colour, or in none: a value that is read, not typed.
  void SetBoxed(bool boxed);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  /// Never, although Qt says so of every label that wraps: the layouts around it would ask for the
  /// height that is best at a width where the least would do.
  bool hasHeightForWidth() const override { return false; }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString Fitting() const;
  QSize Width(int characters, QSize whole) const;
  QSize Boxed(QSize size) const;
  void PaintBox();

  bool shortened_ = false;
  bool wrapped_ = false;
  bool boxed_ = false;
};

class LabelView : public WidgetView {
 public:
  LabelView(LabelField& field, QWidget* parent);

  /// Splits the caption at its first blanks, where another field is to stand, and gives a label of
  /// what comes after them. To be called once.
  QWidget& SplitOff();

 protected:
  void Push() override;

 private:
  void PushDoubleClick();
  void PushText();

  LabelField& field_;
  FittingLabel* label_;
  QLabel* rest_ = nullptr;  ///< of a caption that is split
  std::string caption_;
};

}  // namespace bkconf
