// The look that all windows share: style, palette, and how a part stands out.
// The program applies it once; the layout builder asks for the looks of parts.
#pragma once

#include <QApplication>
#include <QPalette>
#include <QWidget>

#include "shell/qt/layout.h"

namespace bkconf {

/// Around the content of a window and of a frame, in device-independent pixels.
inline constexpr int WindowMargin = 16;
inline constexpr int FrameMargin = 14;

/// Fusion with groups as cards, in calm colours. On a desktop in dark colours those of the desktop
/// are kept.
void ApplyStyle(QApplication& application);

/// Gives a role of a palette what is written on the colour of a field: dark in every theme.
void WriteOnColour(QPalette& palette, QPalette::ColorRole role);

void ApplyLook(Look look, QWidget& widget);
/// In the weight of captions.
void MakeBold(QWidget& widget);

}  // namespace bkconf
