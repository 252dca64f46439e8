#include "share_maker/picture.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include "share_maker/files.h"

namespace share_maker {
namespace {

/// More than twice what the main window gives a picture at first, for screens with small pixels.
constexpr QSize PictureSize(640, 480);

}  // namespace

void MakePicture(const QString& drawing, const QString& bitmap) {
  QSvgRenderer renderer;
  if (!renderer.load(Content(drawing))) throw Failure(drawing, "is no SVG");
  if (renderer.defaultSize() != PictureSize) throw Failure(drawing, "is not 640 by 480 in size");

  // A bitmap has no transparency; the picture lies on a white card.
  QImage image(PictureSize, QImage::Format_RGB32);
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
