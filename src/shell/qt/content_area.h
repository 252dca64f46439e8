// The content of a window. It is never smaller than it has to be: on a desktop that has not the
// room for it, it is scrolled. The window of a screen puts its layout into it.
#pragma once

#include <QScrollArea>

namespace bkconf {

class ContentArea : public QScrollArea {
 public:
  explicit ContentArea(QWidget* parent);

  QSize sizeHint() const override { return widget()->sizeHint(); }
  /// That of the content, or of the desktop where that is smaller.
  QSize minimumSizeHint() const override;

  /// Tells the window when the content has come to need another room, before that is drawn.
  void TellNeed();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QSize needed_;
};

/// What the frame of a window may take of the desktop, in device-independent pixels.
inline constexpr QSize FrameRoom{10, 40};

}  // namespace bkconf
