// The look of a manual's text: letters, colours, spaces, tables. Used by what makes manuals.
#pragma once

#include <QColor>
#include <QTextDocument>

namespace share_maker {

inline constexpr QRgb Accent = 0xff1f6489;
inline constexpr QRgb Ink = 0xff1c2630;
inline constexpr QRgb FaintInk = 0xff6b7782;

/// The letters of the text at that size in points.
QFont Letters(double points);

/// Fills the document and gives all of it its look.
void Import(QTextDocument& document, const QString& markdown);

/// The heading that the document begins with; empty when it begins with something else.
QString Title(const QTextDocument& document);

}  // namespace share_maker
