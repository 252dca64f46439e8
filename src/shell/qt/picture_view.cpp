#include "shell/qt/picture_view.h"

#include <QLabel>
#include <QPainter>

#include "session/settings.h"

namespace bkconf {
namespace {

/// Scales when it paints, so that the picture is sharp at any size and on any screen.
class PictureLabel : public QLabel {
 public:
  explicit PictureLabel(QWidget* parent) : QLabel(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  }

  void Show(const QPixmap& picture) {
    picture_ = picture;
    update();
  }

  QSize sizeHint() const override { return {260, 195}; }
  QSize minimumSizeHint() const override { return {120, 90}; }

 protected:
  void paintEvent(QPaintEvent*) override {
    if (picture_.isNull()) return;
    const QSize size = picture_.size().scaled(contentsRect().size(), Qt::KeepAspectRatio);
    QRect place({}, size);
    place.moveCenter(contentsRect().center());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(place, picture_);
  }

 private:
  QPixmap picture_;
};

}  // namespace

PictureView::PictureView(PictureField& field, QWidget* parent)
    : WidgetView(field, new PictureLabel(parent)), field_(field) {}

void PictureView::Push() {
  if (file_ == field_.file) return;
  file_ = field_.file;
  // A file that is missing or no picture gives an empty picture, which is all there is to tell.
  const QPixmap picture = file_.empty() ? QPixmap() : QPixmap(ToQt(SettingsPath(file_)));
  static_cast<PictureLabel*>(Widget())->Show(picture);
}

}  // namespace bkconf
