#include "share_maker/manual_pages.h"

#include <QAbstractTextDocumentLayout>
#include <QPageLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextLayout>
#include <QTextTable>
#include <vector>

#include "share_maker/manual_look.h"

namespace share_maker {
namespace {

// Fine enough that no letter is moved visibly by rounding.
constexpr int DotsPerInch = 1200;

/// Whole dots: the layout counts in fractions of its own, and a page must end where it says.
constexpr int Dots(double mm) {
  return static_cast<int>(mm * DotsPerInch / 25.4);
}

constexpr int PageWidth = Dots(210);
constexpr QRectF Body(Dots(18), Dots(17), Dots(174), Dots(258));
constexpr QRectF Footer(Dots(18), Dots(280), Dots(174), Dots(7));
constexpr int BandBelowTitle = Dots(6);
constexpr int RuleWidth = Dots(0.2);

/// The pages that the lines of a block are on. The layout moves lines to the next page, not blocks,
/// so the place of the block alone does not tell.
std::vector<int> PagesOf(const QTextBlock& block) {
  const QAbstractTextDocumentLayout& places = *block.document()->documentLayout();
  // After a change the lines come back only when somebody asks for the size of the whole.
  places.documentSize();
  const QTextLayout& layout = *block.layout();
  const double top = places.blockBoundingRect(block).top() - layout.boundingRect().top();
  std::vector<int> pages;
  for (int line = 0; line < layout.lineCount(); ++line) {
    pages.push_back(static_cast<int>((top + layout.lineAt(line).y()) / Body.height()));
  }
  return pages;
}

bool IsHeading(const QTextBlock& block) {
  return block.blockFormat().headingLevel() > 0;
}

/// Whether a heading is alone at the end of its page.
bool IsCutOff(const QTextBlock& heading) {
  return IsHeading(heading) && heading.next().isValid() &&
         PagesOf(heading).back() != PagesOf(heading.next()).front();
}

/// Whether a page break leaves a single line of the text on one of the pages. A long text may: all
/// of it on the next page would leave a hole.
bool LeavesALine(const QTextBlock& text) {
  constexpr std::size_t longText = 6;
  const std::vector<int> pages = PagesOf(text);
  return pages.size() > 1 && pages.size() < longText && pages.front() != pages.back() &&
         (pages[0] != pages[1] || pages[pages.size() - 2] != pages.back());
}

bool IsCut(const QTextTable& table) {
  const int page = PagesOf(table.firstCursorPosition().block()).front();
  for (int column = 0; column < table.columns(); ++column) {
    const QTextTableCell cell = table.cellAt(table.rows() - 1, column);
    if (PagesOf(cell.lastCursorPosition().block()).back() != page) return true;
  }
  return false;
}

void BreakPageBefore(const QTextBlock& block) {
  QTextBlockFormat format = block.blockFormat();
  format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
  QTextCursor(block).setBlockFormat(format);
}

void BreakPageBefore(QTextTable& table) {
  QTextTableFormat format = table.format();
  format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
  table.setFormat(format);
}

/// Moves to the next page what a page break would tear apart: headings from their text, short
/// texts, tables. From the first to the last, since each move changes what follows.
void KeepTogether(QTextDocument& document) {
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    // A heading goes with what it stands above.
    const QTextBlock before = block.previous();
    const bool underHeading = before.isValid() && IsHeading(before);
    QTextTable* table = QTextCursor(block).currentTable();
    if (table == nullptr) {
      if (IsCutOff(block) || LeavesALine(block)) BreakPageBefore(underHeading ? before : block);
    } else if (table->firstCursorPosition().block() == block && IsCut(*table)) {
      if (underHeading) {
        BreakPageBefore(before);
      } else {
        BreakPageBefore(*table);
      }
    }
  }
}

/// The ground of the title, up to the edges of the paper.
void DrawBand(const QTextDocument& document, QPainter& painter) {
  const QRectF title = document.documentLayout()->blockBoundingRect(document.begin());
  painter.fillRect(QRectF(0, 0, PageWidth, Body.top() + title.bottom() + BandBelowTitle),
                   QColor(Accent));
}

void DrawFooter(const QTextDocument& document, int page, QPainter& painter) {
  painter.setPen(QPen(QColor(FaintInk), RuleWidth));
  painter.drawLine(Footer.topLeft(), Footer.topRight());
  painter.setFont(Letters(7.5));
  painter.drawText(Footer, Qt::AlignLeft | Qt::AlignBottom, Title(document));
  painter.drawText(Footer, Qt::AlignRight | Qt::AlignBottom,
                   QStringLiteral("%1 / %2").arg(page + 1).arg(document.pageCount()));
}

void DrawBody(const QTextDocument& document, int page, QPainter& painter) {
  const QRectF part(0, page * Body.height(), Body.width(), Body.height());
  // The borders of tables reach a little over the sides.
  const QRectF ink = part.adjusted(-Dots(1), 0, Dots(1), 0);
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
  KeepTogether(document);

  QPainter painter(&writer);
  for (int page = 0; page < document.pageCount(); ++page) {
    if (page > 0) writer.newPage();
    if (page == 0) DrawBand(document, painter);
    DrawBody(document, page, painter);
    DrawFooter(document, page, painter);
  }
}

}  // namespace share_maker
