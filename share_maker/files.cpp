#include "share_maker/files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace share_maker {

std::runtime_error Failure(const QString& file, const char* what) {
  return std::runtime_error(file.toStdString() + " " + what);
}

QByteArray Content(const QString& file) {
  QFile source(file);
  if (!source.open(QIODevice::ReadOnly)) throw Failure(file, "cannot be read");
  return source.readAll();
}

void WriteContent(const QString& file, const QByteArray& content) {
  QDir().mkpath(QFileInfo(file).path());
  QSaveFile target(file);
  if (!target.open(QIODevice::WriteOnly) || target.write(content) != content.size() ||
      !target.commit()) {
    throw Failure(file, "cannot be written");
  }
}

}  // namespace share_maker
