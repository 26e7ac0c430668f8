// Rendering artwork and reading picture files.
#include "ui/qt/artwork.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <cmath>

#include "ui/qt/strings.h"

namespace ui::qt {
namespace {

constexpr int FilesKept = 4;
constexpr qint64 MostPixels = 40'000'000;  // 160 MB decoded; more is no background picture

bool IsOffered(const QByteArray& format) {
  static const QByteArray formats[] = {"bmp", "gif", "ico", "jpeg", "jpg", "png"};
  return std::find(std::begin(formats), std::end(formats), format.toLower()) != std::end(formats);
}

bool Usable(QImageReader& reader) {
  if (!reader.canRead() || !IsOffered(reader.format())) return false;
  const QSize size = reader.size();
  return size.isValid() && qint64{size.width()} * size.height() <= MostPixels;
}

QSize Device(QSizeF size, qreal ratio) {
  return {std::max(1, int(std::lround(size.width() * ratio))),
          std::max(1, int(std::lround(size.height() * ratio)))};
}

QString KeyOf(const QString& name, QSize device, qreal ratio) {
  return QStringLiteral("%1/%2x%3@%4")
      .arg(name)
      .arg(device.width())
      .arg(device.height())
      .arg(ratio);
}

}  // namespace

Artwork::Artwork(QString directory) : directory_(std::move(directory)) {}

Artwork::~Artwork() = default;

QSvgRenderer* Artwork::Load(const std::string& name) {
  if (name.empty()) return nullptr;
  if (!loaded_ || loadedName_ != name) {
    const QString path = directory_ + QLatin1Char('/') + ToQt(name) + QStringLiteral(".svg");
    loaded_ = std::make_unique<QSvgRenderer>();
    loadedName_ = name;
    if (QFileInfo(path).isFile()) loaded_->load(path);
    loaded_->setAspectRatioMode(Qt::KeepAspectRatio);
  }
  return loaded_->isValid() ? loaded_.get() : nullptr;
}

QSizeF Artwork::SizeOf(const std::string& name) {
  const QString key = ToQt(name);
  const auto known = sizes_.constFind(key);
  if (known != sizes_.constEnd()) return *known;
  const QSvgRenderer* renderer = Load(name);
  const QSizeF size = renderer ? QSizeF(renderer->defaultSize()) : QSizeF();
  sizes_.insert(key, size);
  return size;
}

QPixmap Artwork::Render(const std::string& name, QSizeF size, qreal ratio) {
  const QSize device = Device(size, ratio);
  return Made(KeyOf(ToQt(name), device, ratio), [&] {
    QSvgRenderer* renderer = Load(name);
    if (!renderer) return QPixmap();
    QPixmap picture(device);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer->render(&painter, QRectF(QPointF(0, 0), QSizeF(device)));
    painter.end();
    picture.setDevicePixelRatio(ratio);
    return picture;
  });
}

QPixmap Artwork::Natural(const std::string& name, qreal ratio) {
  const QSizeF size = SizeOf(name);
  return size.isEmpty() ? QPixmap() : Render(name, size, ratio);
}

QPixmap Artwork::Made(const QString& name, const std::function<QPixmap()>& make) {
  const auto known = drawn_.constFind(name);
  if (known != drawn_.constEnd()) return *known;
  const QPixmap made = make();
  drawn_.insert(name, made);
  return made;
}

QPixmap Artwork::Tile(const std::string& name, qreal ratio) {
  return Made(QStringLiteral("tile %1@%2").arg(ToQt(name)).arg(ratio), [&] {
    const QPixmap drawn = Natural(name, ratio);
    if (drawn.isNull()) return drawn;
    QPixmap tile = QPixmap::fromImage(drawn.toImage().convertToFormat(QImage::Format_RGB32));
    tile.setDevicePixelRatio(ratio);
    return tile;
  });
}

QPixmap Artwork::Fitted(const std::string& name, QSizeF size, qreal ratio) {
  const QSizeF natural = SizeOf(name);
  if (natural.isEmpty() || size.isEmpty()) return {};
  return Render(name, natural.scaled(size, Qt::KeepAspectRatio), ratio);
}

QPixmap Artwork::File(const std::string& path, QSize size, qreal ratio) {
  const QString name = ToQt(path);
  const QFileInfo info(name);
  const QString key = KeyOf(name, Device(size, ratio), ratio) +
                      QString::number(info.lastModified().toMSecsSinceEpoch());
  const auto known = files_.constFind(key);
  if (known != files_.constEnd()) return *known;

  QImageReader reader(name);
  reader.setDecideFormatFromContent(true);
  QPixmap picture;
  if (info.isFile() && Usable(reader)) {
    const QImage image = reader.read();
    if (!image.isNull()) {
      picture = QPixmap::fromImage(
          image.scaled(Device(size, ratio), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
      picture.setDevicePixelRatio(ratio);
    }
  }
  if (files_.size() >= FilesKept) files_.clear();
  files_.insert(key, picture);
  return picture;
}

bool Artwork::CanRead(const std::string& path) {
  const QString name = ToQt(path);
  if (!QFileInfo(name).isFile()) return false;
  QImageReader reader(name);
  reader.setDecideFormatFromContent(true);
  return Usable(reader) && !reader.read().isNull();
}

}  // namespace ui::qt
