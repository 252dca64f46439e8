#include "share_maker/manual.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QTextDocument>

#include "share_maker/files.h"
#include "share_maker/manual_look.h"
#include "share_maker/manual_pages.h"

namespace share_maker {
namespace {

/// Puts a fixed moment in the place of that of the build, which makes each file differ from the one
/// before. Both have the same length, since places in a PDF are counted in bytes.
QByteArray WithoutMoment(QByteArray pdf) {
  constexpr QByteArrayView before = "/CreationDate (D:";
  constexpr QByteArrayView moment = "20000101000000";
  const qsizetype at = pdf.indexOf(before);
  if (at >= 0) pdf.replace(at + before.size(), moment.size(), moment);
  return pdf;
}

}  // namespace

void MakeManual(const QString& markdown, const QString& pdf) {
  QTextDocument document;
  Import(document, QString::fromUtf8(Content(markdown)));
  if (Title(document).isEmpty()) throw Failure(markdown, "does not begin with a title");

  QByteArray content;
  QBuffer buffer(&content);
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    Print(document, writer);
  }
  WriteContent(pdf, WithoutMoment(content));
}

}  // namespace share_maker
