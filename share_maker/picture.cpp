#include "share_maker/picture.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <algorithm>
#include <array>

#include "share_maker/files.h"

namespace share_maker {
namespace {

/// Of a module and of a remote control. More than what the windows give a picture at first, for
/// screens with small pixels.
constexpr std::array Sizes = {QSize(640, 480), QSize(360, 720)};

}  // namespace

void MakePicture(const QString& drawing, const QString& bitmap) {
  QSvgRenderer renderer;
  if (!renderer.load(Content(drawing))) throw Failure(drawing, "is no SVG");
  const QSize size = renderer.defaultSize();
  if (std::find(Sizes.begin(), Sizes.end(), size) == Sizes.end()) {
    throw Failure(drawing, "is neither 640 by 480 nor 360 by 720 in size");
  }

  // A bitmap has no transparency; the picture lies on a white card.
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  renderer.render(&painter);
  painter.end();

  QByteArray content;
  QBuffer buffer(&content);
  buffer.open(QIODevice::WriteOnly);
  if (!image.save(&buffer, "BMP")) throw Failure(bitmap, "cannot be made");
  WriteContent(bitmap, content);
}

}  // namespace share_maker
