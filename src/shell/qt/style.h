// The look that all windows share: style, palette, and how a part stands out.
// The program applies it once; the layout builder asks for the looks of parts.
#pragma once

#include <QApplication>
#include <QPalette>
#include <QWidget>

#include "platform/field.h"
#include "shell/qt/layout.h"

namespace bkconf {

/// Around the content of a window and of a frame, in device-independent pixels.
inline constexpr int WindowMargin = 16;
inline constexpr int FrameMargin = 16;

/// Fusion with groups as cards, in calm colours. On a desktop in dark colours those of the desktop
/// are kept.
void ApplyStyle(QApplication& application);

/// Gives a role of a palette what is written on the colour of a field: dark in every theme.
void WriteOnColour(QPalette& palette, QPalette::ColorRole role);

/// A colour of texts, as it can be read on that ground: in a dark theme the dark ones are light.
QColor ReadableOn(const QColor& ground, const Colour& colour);
/// Gives a role of a palette the colour of a field's text, on the ground of another role. What is
/// disabled stays as faint as it is.
void WriteInColour(QPalette& palette, QPalette::ColorRole role, QPalette::ColorRole ground,
                   const Colour& colour);

void ApplyLook(Look look, QWidget& widget);
/// In the weight of captions.
void MakeBold(QWidget& widget);

}  // namespace bkconf
