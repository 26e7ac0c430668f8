// Colours in words and in signs, for those who don't tell them apart by sight.
#pragma once

#include "ui/controls.h"

class QPainter;
class QRectF;

namespace ui::qt {

/// The plain word for the colour that comes nearest: "red", "light blue" counts as "blue".
const char* WordOf(const Color& color);

/// Paints into a coloured box the sign of its colour; every word has a sign of its own.
void PaintSign(QPainter& painter, const QRectF& box, const Color& color);

}  // namespace ui::qt
