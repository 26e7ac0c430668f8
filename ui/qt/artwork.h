// The pictures: vector artwork of the store by its name, and picture files of the player's choice.
#pragma once

#include <QHash>
#include <QPixmap>
#include <QSizeF>
#include <QString>
#include <functional>
#include <memory>
#include <string>

class QSvgRenderer;

namespace ui::qt {

/// Renders on demand what is shown, and keeps it. Sizes are logical pixels, pixmaps carry their
/// device pixel ratio. A missing or broken picture gives a null pixmap.
class Artwork {
 public:
  /// `directory` holds one SVG file a picture, named as the store names its artwork.
  explicit Artwork(QString directory);
  ~Artwork();

  /// The artwork in the size in which it was drawn.
  QPixmap Natural(const std::string& name, qreal ratio);
  /// Artwork without transparent parts, as a tile that can be repeated seamlessly.
  QPixmap Tile(const std::string& name, qreal ratio);
  /// What `make` gives, kept under a name of its own.
  QPixmap Made(const QString& name, const std::function<QPixmap()>& make);
  /// The artwork scaled to fit `size`, its shape kept.
  QPixmap Fitted(const std::string& name, QSizeF size, qreal ratio);
  /// The size in which the artwork was drawn; empty if there is none of that name.
  QSizeF SizeOf(const std::string& name);

  /// A picture file stretched to `size`. The last few are kept.
  QPixmap File(const std::string& path, QSize size, qreal ratio);
  /// Whether a file can be read as a picture of one of the formats offered.
  static bool CanRead(const std::string& path);

 private:
  /// Reads the drawing; null if there is none. One is kept, as sizes are asked before pixels.
  QSvgRenderer* Load(const std::string& name);
  QPixmap Render(const std::string& name, QSizeF size, qreal ratio);

  QString directory_;
  std::unique_ptr<QSvgRenderer> loaded_;
  std::string loadedName_;
  QHash<QString, QPixmap> drawn_;
  QHash<QString, QSizeF> sizes_;
  QHash<QString, QPixmap> files_;
};

}  // namespace ui::qt
