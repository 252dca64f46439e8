// Puts the text of a manual on pages: where they break, the band of the title, the footer. Used by
// what makes manuals.
#pragma once

#include <QPdfWriter>
#include <QTextDocument>

namespace share_maker {

/// Writes all pages. The document begins with its title.
void Print(QTextDocument& document, QPdfWriter& writer);

}  // namespace share_maker
