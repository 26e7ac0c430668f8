// Painting of the controls that are no widgets. All places are those of the window's inner area.
#pragma once

#include <QPainter>
#include <QRect>
#include <vector>

#include "ui/controls.h"

namespace ui::qt {

class Artwork;

/// What a painter needs beside the control itself.
struct Scene {
  Artwork& artwork;
  qreal ratio;  ///< device pixels to a logical pixel
  const std::vector<Control*>& order;
  bool boxSigns = false;  ///< coloured boxes bear the sign of their colour
};

void PaintControl(QPainter& painter, const Control& control, const Scene& scene);

/// Whether a picture shows nothing at all.
bool IsEmptied(const Control& control);

/// All that a control may colour when it is painted: its place, and what stands out from it.
QRect PaintedArea(const Control& control);

void PaintLabel(QPainter& painter, const Label& label, const Scene& scene);
void PaintPicture(QPainter& painter, const Picture& picture, const Scene& scene);
void PaintShape(QPainter& painter, const Shape& shape);
void PaintLine(QPainter& painter, const Line& line);
void PaintFrame(QPainter& painter, const Frame& frame);
void PaintSurface(QPainter& painter, const Surface& surface, const Scene& scene);
/// The table or the paper that everything lies on.
void PaintGround(QPainter& painter, const Window& window, QSize size, const QRect& part,
                 const Scene& scene);
/// The ring round what the keyboard points at.
void PaintFocus(QPainter& painter, const QRect& around);

/// The area of a label's text, which can be wider than its place.
QRect TextArea(const Label& label);

inline QRect ToQt(const Rect& rect) {
  return {rect.x, rect.y, rect.w, rect.h};
}

}  // namespace ui::qt
