// Manuals: Markdown becomes A4 pages. Used by main.cpp.
#pragma once

#include <QString>

namespace share_maker {

/// Lays out a manual. The first line of the Markdown is its title, a heading of the first level.
/// Knows headings, paragraphs, lists, tables and bold. The same Markdown gives the same bytes at
/// any time. Throws std::runtime_error when the Markdown cannot be read, begins with no title, or
/// the PDF cannot be written.
void MakeManual(const QString& markdown, const QString& pdf);

}  // namespace share_maker
