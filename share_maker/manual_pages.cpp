#include "share_maker/manual_pages.h"

#include <QAbstractTextDocumentLayout>
#include <QPageLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextTable>

#include "share_maker/manual_look.h"

namespace share_maker {
namespace {

// Fine enough that no letter is moved visibly by rounding.
constexpr int DotsPerInch = 1200;
constexpr double DotsPerMm = DotsPerInch / 25.4;

// All in dots.
constexpr QSizeF Page(210 * DotsPerMm, 297 * DotsPerMm);
constexpr QRectF Body(20 * DotsPerMm, 17 * DotsPerMm, 170 * DotsPerMm, 256 * DotsPerMm);
constexpr QRectF Footer(20 * DotsPerMm, 280 * DotsPerMm, 170 * DotsPerMm, 7 * DotsPerMm);
constexpr double BandBelowTitle = 6 * DotsPerMm;

/// The page that the first line of the block is on.
int PageOf(const QTextDocument& document, const QTextBlock& block) {
  return static_cast<int>(document.documentLayout()->blockBoundingRect(block).top() /
                          Body.height());
}

/// What has to be on the page of a heading: the text after it or, of a table, the first row of
/// content. Not valid at the end of the document.
QTextBlock Companion(const QTextBlock& heading) {
  const QTextBlock next = heading.next();
  if (!next.isValid()) return next;
  const QTextTable* table = QTextCursor(next).currentTable();
  if (table == nullptr || table->rows() < 2) return next;
  return table->cellAt(1, 0).firstCursorPosition().block();
}

/// Moves headings that stand alone at the end of a page to the next one, where their text is.
void KeepHeadingsWithText(QTextDocument& document) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() == 0) continue;
    const QTextBlock companion = Companion(block);
    if (!companion.isValid() || PageOf(document, companion) == PageOf(document, block)) continue;
    QTextBlockFormat format = block.blockFormat();
    format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
    QTextCursor(block).setBlockFormat(format);
  }
}

/// The ground of the title, up to the edges of the paper.
void DrawBand(const QTextDocument& document, QPainter& painter) {
  const QRectF title = document.documentLayout()->blockBoundingRect(document.begin());
  painter.fillRect(QRectF(0, 0, Page.width(), Body.top() + title.bottom() + BandBelowTitle),
                   QColor(Accent));
}

void DrawFooter(const QTextDocument& document, int page, QPainter& painter) {
  painter.setPen(QPen(QColor(FaintInk), 0.2 * DotsPerMm));
  painter.drawLine(Footer.topLeft(), Footer.topRight());
  painter.setFont(Letters(7.5));
  painter.drawText(Footer, Qt::AlignLeft | Qt::AlignBottom, Title(document));
  painter.drawText(Footer, Qt::AlignRight | Qt::AlignBottom,
                   QStringLiteral("%1 / %2").arg(page + 1).arg(document.pageCount()));
}

void DrawBody(const QTextDocument& document, int page, QPainter& painter) {
  const QRectF part(0, page * Body.height(), Body.width(), Body.height());
  // The borders of tables reach a little over the sides.
  const QRectF ink = part.adjusted(-DotsPerMm, 0, DotsPerMm, 0);
  QAbstractTextDocumentLayout::PaintContext context;
  context.clip = ink;
  context.palette.setColor(QPalette::Text, QColor(Ink));
  painter.save();
  painter.translate(Body.left(), Body.top() - part.top());
  painter.setClipRect(ink);
  document.documentLayout()->draw(&painter, context);
  painter.restore();
}

}  // namespace

void Print(QTextDocument& document, QPdfWriter& writer) {
  writer.setTitle(Title(document));
  writer.setCreator(QStringLiteral("BK-CONF"));
  writer.setResolution(DotsPerInch);
  writer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));

  document.documentLayout()->setPaintDevice(&writer);
  document.setPageSize(Body.size());
  KeepHeadingsWithText(document);

  QPainter painter(&writer);
  for (int page = 0; page < document.pageCount(); ++page) {
    if (page > 0) writer.newPage();
    if (page == 0) DrawBand(document, painter);
    DrawBody(document, page, painter);
    DrawFooter(document, page, painter);
  }
}

}  // namespace share_maker
