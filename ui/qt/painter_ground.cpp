// The table that everything lies on, and the paper of dialogs.
#include <QPainter>
#include <QTransform>
#include <cmath>

#include "ui/qt/artwork.h"
#include "ui/qt/ground.h"
#include "ui/qt/painters.h"
#include "ui/window.h"

namespace ui::qt {
namespace {

constexpr int EdgeShade = 28;     // pixels
constexpr int TileSize = 64;      // pixels
constexpr int DeepestShade = 60;  // of 255

/// Fills a part with copies of a tile, one of which starts at `origin`. Copies of whole tiles need
/// no threads in Qt; larger fills do, and starting those costs more than painting a small window.
void PaintTiles(QPainter& painter, const QPixmap& tile, QPoint origin, const QRect& part) {
  const QSize size = tile.deviceIndependentSize().toSize();
  const int w = size.width(), h = size.height();
  painter.save();
  painter.setClipRect(part, Qt::IntersectClip);
  const int left = origin.x() + (part.left() - origin.x()) / w * w;
  const int top = origin.y() + (part.top() - origin.y()) / h * h;
  for (int y = top; y <= part.bottom(); y += h) {
    for (int x = left; x <= part.right(); x += w) painter.drawPixmap(x, y, tile);
  }
  painter.restore();
}

/// A tile of shade that is deepest at its left edge, turned clockwise by quarters of a circle.
QPixmap MakeShade(int quarters, qreal ratio) {
  const int width = int(std::lround(EdgeShade * ratio)),
            height = int(std::lround(TileSize * ratio));
  QImage shade(width, height, QImage::Format_ARGB32_Premultiplied);
  for (int x = 0; x < width; ++x) {
    const int depth = DeepestShade * (width - x) / width;
    for (int y = 0; y < height; ++y) shade.setPixel(x, y, qRgba(0, 0, 0, depth));
  }
  QPixmap tile = QPixmap::fromImage(shade.transformed(QTransform().rotate(90.0 * quarters)));
  tile.setDevicePixelRatio(ratio);
  return tile;
}

/// The table falls off to its edges.
void ShadeEdges(QPainter& painter, QSize size, const QRect& part, const Scene& scene) {
  const int w = size.width(), h = size.height(), e = EdgeShade;
  const QRect edges[] = {{0, 0, e, h}, {0, 0, w, e}, {w - e, 0, e, h}, {0, h - e, w, e}};
  for (int quarters = 0; quarters < 4; ++quarters) {
    const QRect& edge = edges[quarters];
    if (!edge.intersects(part)) continue;
    const QPixmap tile =
        scene.artwork.Made(QStringLiteral("shade %1@%2").arg(quarters).arg(scene.ratio),
                           [&] { return MakeShade(quarters, scene.ratio); });
    PaintTiles(painter, tile, edge.topLeft(), edge & part);
  }
}

}  // namespace

void PaintGround(QPainter& painter, const Window& window, QSize size, const QRect& part,
                 const Scene& scene) {
  if (GroundOf(window) != Ground::Felt) {
    painter.fillRect(part, ColorOf(Ground::Paper));
    return;
  }
  const QPixmap tile = scene.artwork.Tile("felt", scene.ratio);
  if (tile.isNull()) {
    painter.fillRect(part, ColorOf(Ground::Felt));
  } else {
    PaintTiles(painter, tile, {0, 0}, part);
  }
  ShadeEdges(painter, size, part, scene);
}

}  // namespace ui::qt
