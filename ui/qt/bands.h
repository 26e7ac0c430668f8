// Painting large shapes in bands.
#pragma once

#include <QPainter>
#include <QRectF>
#include <algorithm>

namespace ui::qt {

/// Calls `paint` once for each band of `area`, the painter clipped to it. Qt hands long runs of
/// lines to a pool of threads; for shapes of the size of a button or a frame, starting those and
/// waiting for them costs more than the painting.
template <class Paint>
void InBands(QPainter& painter, const QRectF& area, Paint paint) {
  constexpr int BandHeight = 28;
  const QRect whole = area.toAlignedRect();
  for (int top = whole.top(); top <= whole.bottom(); top += BandHeight) {
    painter.save();
    painter.setClipRect(
        QRect(whole.left(), top, whole.width(), std::min(BandHeight, whole.bottom() - top + 1)),
        Qt::IntersectClip);
    paint();
    painter.restore();
  }
}

}  // namespace ui::qt
