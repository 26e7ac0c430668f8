// Cards, pictures and drawing surfaces.
#include <algorithm>
#include <cmath>

#include "ui/qt/artwork.h"
#include "ui/qt/color_words.h"
#include "ui/qt/ground.h"
#include "ui/qt/painters.h"

namespace ui::qt {
namespace {

constexpr double MostStretch = 1.25;  // beyond, artwork is fitted to its place
constexpr QRgb CardRim = 0xff3b352b;

/// Cards keep their size; only a place of quite another size scales the artwork.
bool KeepsSize(QSizeF artwork, QSizeF place) {
  const double share = std::max(artwork.width() / place.width(), artwork.height() / place.height());
  return share < MostStretch && share > 1 / MostStretch;
}

/// A back is drawn a little larger than a face, a stack larger still: their top left corners stand
/// one pixel before the place, so that a card that is turned over stays where it is.
QPointF CornerOf(const QRectF& place, QSizeF artwork) {
  const auto start = [](double from, double room) {
    return from + (room < 0 ? -1.0 : std::floor(room / 2));
  };
  return {start(place.left(), place.width() - artwork.width()),
          start(place.top(), place.height() - artwork.height())};
}

void PaintMissing(QPainter& painter, const QRectF& place) {
  painter.setPen(QPen(QColor(CardRim), 1));
  painter.setBrush(QColor(tone::Cream));
  painter.drawRoundedRect(place.adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
}

QRectF PaintArtwork(QPainter& painter, const Picture& picture, const QRectF& place,
                    const Scene& scene) {
  const QSizeF natural = scene.artwork.SizeOf(picture.Artwork());
  if (natural.isEmpty() || place.isEmpty()) {
    PaintMissing(painter, place);
    return place;
  }
  const bool keeps = KeepsSize(natural, place.size());
  const QSizeF size = keeps ? natural : natural.scaled(place.size(), Qt::KeepAspectRatio);
  const QPointF corner = CornerOf(place, size);
  const QPixmap pixels = keeps ? scene.artwork.Natural(picture.Artwork(), scene.ratio)
                               : scene.artwork.Fitted(picture.Artwork(), size, scene.ratio);
  painter.drawPixmap(corner, pixels);
  return {corner, size};
}

void FillSector(QPainter& painter, const Stroke& stroke) {
  const QColor color = ColorOf(stroke.color);
  painter.setPen(QPen(color, 1));
  painter.setBrush(color);
  const QRectF circle(stroke.a - stroke.c, stroke.b - stroke.c, 2 * stroke.c, 2 * stroke.c);
  constexpr double Turn = 16;  // Qt counts sixteenths of a degree, anticlockwise from 3 o'clock
  painter.drawPie(circle, int(std::lround((90 - stroke.e) * Turn)),
                  int(std::lround((stroke.e - stroke.d) * Turn)));
}

void DrawEdges(QPainter& painter, const QRectF& box, double width, const QColor& color) {
  painter.fillRect(QRectF(box.left(), box.top(), box.width(), width), color);
  painter.fillRect(QRectF(box.left(), box.bottom() - width, box.width(), width), color);
  painter.fillRect(QRectF(box.left(), box.top(), width, box.height()), color);
  painter.fillRect(QRectF(box.right() - width, box.top(), width, box.height()), color);
}

void PaintBox(QPainter& painter, const Stroke& stroke, bool withSign) {
  painter.setRenderHint(QPainter::Antialiasing, false);
  const QRectF box(stroke.a, stroke.b, stroke.c, stroke.c);
  if (stroke.filled) {
    const QColor color = ColorOf(stroke.color);
    painter.fillRect(box, color);
    if (stroke.c >= 8) {
      painter.fillRect(QRectF(box.left(), box.top(), box.width(), 3), QColor(255, 255, 255, 90));
      painter.fillRect(QRectF(box.left(), box.bottom() - 3, box.width(), 3), QColor(0, 0, 0, 60));
    }
    if (stroke.marked) {
      DrawEdges(painter, box.adjusted(1, 1, -1, -1), 3, Qt::black);
      DrawEdges(painter, box.adjusted(2, 2, -2, -2), 2, Qt::white);
    }
  }
  DrawEdges(painter, box, 1, Qt::black);
  painter.setRenderHint(QPainter::Antialiasing);
  if (withSign && stroke.filled) PaintSign(painter, box, stroke.color);
}

void PaintStroke(QPainter& painter, const Stroke& stroke, bool boxSigns) {
  switch (stroke.form) {
    case Stroke::Form::Sector:
      FillSector(painter, stroke);
      break;
    case Stroke::Form::Line:
      painter.setPen(QPen(ColorOf(stroke.color), 1));
      painter.drawLine(QPointF(stroke.a, stroke.b), QPointF(stroke.c, stroke.d));
      break;
    case Stroke::Form::Circle:
      painter.setPen(QPen(ColorOf(stroke.color), 1.5));
      painter.setBrush(Qt::NoBrush);
      painter.drawEllipse(QPointF(stroke.a, stroke.b), stroke.c, stroke.c);
      break;
    case Stroke::Form::Box:
      PaintBox(painter, stroke, boxSigns);
      break;
  }
}

}  // namespace

void PaintPicture(QPainter& painter, const Picture& picture, const Scene& scene) {
  const QRectF place = ToQt(picture.PlaceInWindow());
  if (!picture.Image().empty()) {
    const QPixmap file = scene.artwork.File(picture.Image(), place.size().toSize(), scene.ratio);
    painter.drawPixmap(place.topLeft(), file);
  }
  if (picture.Artwork().empty()) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF drawn = PaintArtwork(painter, picture, place, scene);
  if (picture.Border()) {
    painter.setPen(QPen(QColor(CardRim), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(drawn.adjusted(0, 0, 0, 0), 5, 5);
  }
  painter.restore();
}

void PaintSurface(QPainter& painter, const Surface& surface, const Scene& scene) {
  const QRectF place = ToQt(surface.PlaceInWindow());
  painter.save();
  painter.setClipRect(place, Qt::IntersectClip);
  if (!surface.Image().empty()) {
    painter.drawPixmap(place.topLeft(),
                       scene.artwork.File(surface.Image(), place.size().toSize(), scene.ratio));
  }
  painter.translate(place.topLeft());
  painter.setRenderHint(QPainter::Antialiasing);
  for (const Stroke& stroke : surface.Drawing()) PaintStroke(painter, stroke, scene.boxSigns);
  painter.restore();
}

}  // namespace ui::qt
