// Boxes, lines and frames.
#include <QLinearGradient>

#include "ui/qt/bands.h"
#include "ui/qt/ground.h"
#include "ui/qt/painters.h"
#include "ui/qt/strings.h"
#include "ui/window.h"

namespace ui::qt {
namespace {

constexpr int Shadow = 6;
constexpr int LargestRing = 130;  // pixels

void PaintSunken(QPainter& painter, const QRectF& box) {
  painter.setRenderHint(QPainter::Antialiasing, false);
  painter.fillRect(box, QColor(tone::Wood).darker(140));
  painter.fillRect(box.adjusted(1, 1, 0, 0), QColor(tone::Box));
  QLinearGradient depth(box.topLeft(), box.topLeft() + QPointF(0, 7));
  depth.setColorAt(0, QColor(60, 45, 10, 60));
  depth.setColorAt(1, QColor(60, 45, 10, 0));
  painter.fillRect(box.adjusted(1, 1, -1, -1), depth);
}

void PaintShadow(QPainter& painter, const QRectF& around, double radius) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 16));
  for (int i = Shadow; i > 0; --i) {
    painter.drawRoundedRect(around.adjusted(-i + 2, -i + 4, i - 2, i), radius + i, radius + i);
  }
}

void PaintBoard(QPainter& painter, const QRectF& board) {
  PaintShadow(painter, board, 6);
  painter.setPen(QPen(QColor(tone::Gold), 2));
  painter.setBrush(QColor(tone::Board));
  painter.drawRoundedRect(board.adjusted(1, 1, -1, -1), 6, 6);
}

void PaintPanel(QPainter& painter, const QRectF& panel) {
  PaintShadow(painter, panel, 8);
  QLinearGradient depth(panel.topLeft(), panel.bottomLeft());
  depth.setColorAt(0, QColor(tone::Panel).lighter(107));
  depth.setColorAt(1, QColor(tone::Panel).darker(108));
  painter.setPen(QPen(QColor(tone::Gold), 2));
  painter.setBrush(depth);
  painter.drawRoundedRect(panel.adjusted(1, 1, -1, -1), 8, 8);
  painter.setPen(QPen(QColor(tone::Gold).darker(115), 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(panel.adjusted(5.5, 5.5, -5.5, -5.5), 5, 5);
}

/// Round a card a ring that can't be overlooked, round a whole field a line.
void PaintOutline(QPainter& painter, const QRectF& place, const QColor& color) {
  const bool ring = place.width() <= LargestRing && place.height() <= LargestRing;
  const QRectF line = place.adjusted(0.5, 0.5, -0.5, -0.5);
  painter.setBrush(Qt::NoBrush);
  // A rim keeps the colour apart from the card and from the table.
  painter.setPen(QPen(ring ? QColor(0, 0, 0, 110) : QColor(255, 255, 255, 50), ring ? 5 : 4));
  painter.drawRoundedRect(line, 6, 6);
  painter.setPen(QPen(color, ring ? 3 : 1.5));
  painter.drawRoundedRect(line, 6, 6);
}

void PaintGroup(QPainter& painter, const QRectF& place, const QString& caption, Ground ground) {
  const bool felt = ground == Ground::Felt;
  painter.setFont(FontOf(9, false));
  const QFontMetricsF metrics(painter.font());
  const double half = caption.isEmpty() ? 0 : metrics.height() / 2;
  const QRectF box = place.adjusted(0.5, half + 0.5, -0.5, -0.5);
  const QColor line = felt ? QColor(255, 255, 255, 90) : QColor(tone::Wood);
  painter.setPen(QPen(line, 1));
  painter.setBrush(felt ? QColor(0, 0, 0, 36) : QColor(255, 255, 255, 90));
  InBands(painter, place, [&] { painter.drawRoundedRect(box, 6, 6); });
  if (caption.isEmpty()) return;
  const QRectF plate(place.left() + 10, place.top(), metrics.horizontalAdvance(caption) + 12,
                     metrics.height());
  painter.setPen(felt ? QPen(line, 1) : QPen(Qt::NoPen));
  painter.setBrush(felt ? QColor(tone::Felt).darker(135) : QColor(tone::Paper));
  painter.drawRoundedRect(plate.adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
  painter.setPen(QColor(felt ? tone::Cream : tone::Ink));
  painter.drawText(plate, Qt::AlignCenter, caption);
}

}  // namespace

void PaintShape(QPainter& painter, const Shape& shape) {
  const QRectF place = ToQt(shape.PlaceInWindow());
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  switch (shape.ShapeLook) {
    case Shape::Look::Sunken:
      PaintSunken(painter, place);
      break;
    case Shape::Look::Board:
      InBands(painter, place.adjusted(-8, -8, 8, 8), [&] { PaintBoard(painter, place); });
      break;
    case Shape::Look::Outline:
      PaintOutline(painter, place, ColorOf(shape.LineColor()));
      break;
  }
  painter.restore();
}

void PaintLine(QPainter& painter, const Line& line) {
  const QRectF place = ToQt(line.PlaceInWindow());
  const bool straight = place.width() <= line.Thickness() || place.height() <= line.Thickness();
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, !straight);
  if (straight) {
    const double width = std::max<double>(place.width(), line.Thickness());
    const double height = std::max<double>(place.height(), line.Thickness());
    painter.fillRect(QRectF(place.topLeft(), QSizeF(width, height)), ColorOf(line.LineColor()));
  } else {
    painter.setPen(QPen(ColorOf(line.LineColor()), line.Thickness(), Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(line.Rising() ? place.bottomLeft() : place.topLeft(),
                     line.Rising() ? place.topRight() : place.bottomRight());
  }
  painter.restore();
}

void PaintFrame(QPainter& painter, const Frame& frame) {
  const QRectF place = ToQt(frame.PlaceInWindow());
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (frame.FrameLook == Frame::Look::Panel) {
    InBands(painter, place.adjusted(-8, -8, 8, 8), [&] { PaintPanel(painter, place); });
  } else {
    PaintGroup(painter, place, ToQt(frame.Text()), GroundOf(frame.Owner()));
  }
  painter.restore();
}

void PaintFocus(QPainter& painter, const QRect& around) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  const QRectF ring = QRectF(around).adjusted(-1.5, -1.5, 1.5, 1.5);
  painter.setPen(QPen(QColor(0, 0, 0, 200), 4));
  painter.drawRoundedRect(ring, 7, 7);
  painter.setPen(QPen(QColor(255, 255, 255), 2, Qt::DashLine));
  painter.drawRoundedRect(ring, 7, 7);
  painter.restore();
}

}  // namespace ui::qt
