#include "share_maker/manual_look.h"

#include <QFont>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>
#include <algorithm>
#include <iterator>

namespace share_maker {
namespace {

constexpr QRgb Border = 0xffb9c8d2;
constexpr QRgb HeaderShade = 0xffe4eef4;
constexpr QRgb RowShade = 0xfff6f9fb;

// Sizes of letters are in points, spaces and lines in 1/96 inch.
constexpr double BodySize = 9;
constexpr double TableSize = 8.2;
constexpr double LineHeight = 125;  // percent
constexpr double BorderWidth = 0.8;

struct HeadingLook {
  double points;
  double above;
  double below;
  QRgb colour;
};

/// The title stands on a band of the accent colour.
constexpr HeadingLook HeadingLooks[] = {
    {21, 0, 44, 0xffffffff}, {12.5, 14, 4, Accent}, {10.5, 11, 3, Accent}};

const HeadingLook& LookOf(int level) {
  return HeadingLooks[std::min<int>(level, std::size(HeadingLooks)) - 1];
}

QTextCursor Whole(const QTextBlock& block) {
  QTextCursor cursor(block);
  cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
  return cursor;
}

void FormatHeading(const QTextBlock& block) {
  const HeadingLook& look = LookOf(block.blockFormat().headingLevel());
  QTextBlockFormat format = block.blockFormat();
  format.setTopMargin(look.above);
  format.setBottomMargin(look.below);
  QTextCharFormat letters;
  letters.setFont(Letters(look.points));
  letters.setFontWeight(QFont::Bold);
  letters.setForeground(QColor(look.colour));
  QTextCursor cursor = Whole(block);
  cursor.setBlockFormat(format);
  cursor.setCharFormat(letters);
}

void FormatText(const QTextBlock& block) {
  QTextBlockFormat format = block.blockFormat();
  const bool inList = block.textList() != nullptr;
  const bool lastOfList = inList && block.next().textList() != block.textList();
  format.setTopMargin(0);
  format.setBottomMargin(inList && !lastOfList ? 2 : 6);
  format.setLineHeight(LineHeight, QTextBlockFormat::ProportionalHeight);
  Whole(block).setBlockFormat(format);
}

void FormatCell(const QTextTableCell& cell, bool header) {
  QTextCharFormat letters;
  letters.setFontPointSize(TableSize);
  if (header) {
    letters.setFontWeight(QFont::Bold);
    letters.setForeground(QColor(Accent));
  }
  QTextCursor cursor = cell.firstCursorPosition();
  cursor.setPosition(cell.lastCursorPosition().position(), QTextCursor::KeepAnchor);
  cursor.mergeCharFormat(letters);
  QTextBlockFormat lines;
  lines.setTopMargin(0);
  lines.setBottomMargin(0);
  lines.setLineHeight(118, QTextBlockFormat::ProportionalHeight);
  cursor.mergeBlockFormat(lines);
}

/// Each cell has a border of its own; in a table that collapses them, two of them share a line.
void FormatFrame(QTextTableCell cell, int row) {
  QTextTableCellFormat format = cell.format().toTableCellFormat();
  format.setBorder(BorderWidth);
  format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  format.setBorderBrush(QColor(Border));
  if (row == 0) format.setBackground(QColor(HeaderShade));
  if (row > 0 && row % 2 == 0) format.setBackground(QColor(RowShade));
  cell.setFormat(format);
}

void FormatTable(QTextTable& table) {
  QTextTableFormat format = table.format();
  format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
  format.setBorderCollapse(true);
  format.setBorder(BorderWidth);
  format.setBorderBrush(QColor(Border));
  format.setCellPadding(4);
  format.setCellSpacing(0);
  format.setTopMargin(4);
  format.setBottomMargin(8);
  format.setHeaderRowCount(1);
  table.setFormat(format);
  for (int row = 0; row < table.rows(); ++row) {
    for (int column = 0; column < table.columns(); ++column) {
      const QTextTableCell cell = table.cellAt(row, column);
      FormatCell(cell, row == 0);
      FormatFrame(cell, row);
    }
  }
}

}  // namespace

QFont Letters(double points) {
  QFont font(QStringLiteral("DejaVu Sans"));
  font.setStyleHint(QFont::SansSerif);
  font.setPointSizeF(points);
  return font;
}

void Import(QTextDocument& document, const QString& markdown) {
  document.setDefaultFont(Letters(BodySize));
  document.setDocumentMargin(0);
  document.setIndentWidth(18);
  document.setMarkdown(markdown,
                       QTextDocument::MarkdownFeatures(QTextDocument::MarkdownDialectGitHub) |
                           QTextDocument::MarkdownNoHTML);
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() > 0) {
      FormatHeading(block);
    } else {
      FormatText(block);
    }
  }
  for (QTextFrame* frame : document.rootFrame()->childFrames()) {
    if (auto* table = qobject_cast<QTextTable*>(frame)) FormatTable(*table);
  }
}

QString Title(const QTextDocument& document) {
  const QTextBlock first = document.begin();
  return first.blockFormat().headingLevel() == 1 ? first.text() : QString();
}

}  // namespace share_maker
