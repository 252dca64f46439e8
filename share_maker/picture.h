// Pictures: a drawing becomes the bitmap that a window shows. Used by main.cpp.
#pragma once

#include <QString>

namespace share_maker {

/// Draws an SVG on white into a bitmap. Throws std::runtime_error when the drawing cannot be read,
/// does not have a size that pictures have, or the bitmap cannot be written.
void MakePicture(const QString& drawing, const QString& bitmap);

}  // namespace share_maker
