#include "adapters/qt/look/picture_cache.h"

#include <QFileInfo>
#include <utility>

#include "adapters/qt/look/png_picture.h"

namespace tessara {

namespace {

/// From edge to edge, so that neighbours meet without a gap at any factor.
QRect PlaceOf(const PaintedPicture& painted, const PixelScale& scale) {
  return scale.FromTwips(Bounds{painted.x * kTwipsPerPixel, painted.y * kTwipsPerPixel,
                                painted.picture.width * kTwipsPerPixel,
                                painted.picture.height * kTwipsPerPixel});
}

struct PlacedPixmap {
  QRect place;
  QPixmap pixmap;
};

std::vector<PlacedPixmap> PixmapsIn(const QRect& part, const std::vector<PaintedPicture>& pictures,
                                    const PixelScale& scale, PictureCache& cache) {
  std::vector<PlacedPixmap> placed;
  for (const PaintedPicture& painted : pictures) {
    const QRect place = PlaceOf(painted, scale);
    if (part.intersects(place)) placed.push_back({place, cache.PixmapOf(painted.picture)});
  }
  return placed;
}

/// The part of the name before the ending, its point included.
QString StemOf(const QString& file) {
  return file.left(file.size() - QFileInfo(file).suffix().size());
}

}  // namespace

PictureCache::PictureCache(QString folder, double density)
    : folder_(std::move(folder)), density_(density) {}

void PictureCache::SetDensity(double density) {
  if (std::exchange(density_, density) != density) pixmaps_.clear();
}

const QPixmap& PictureCache::PixmapOf(const Picture& picture) {
  const QString file = QString::fromStdString(picture.file);
  const auto found = pixmaps_.constFind(file);
  if (found != pixmaps_.constEnd()) return *found;
  return *pixmaps_.insert(file, Read(file));
}

QPixmap PictureCache::Read(const QString& file) const {
  if (file.isEmpty()) return {};
  if (density_ > 1) {
    QPixmap pixmap = ReadOne(QString(file).insert(StemOf(file).size() - 1, QLatin1String("@2x")));
    if (!pixmap.isNull()) return pixmap;
  }
  return ReadOne(file);
}

/// Each picture of another format has beside it what it shows, as PNG.
QPixmap PictureCache::ReadOne(const QString& file) const {
  const QString path = folder_ + u'/' + file;
  const QImage png = ReadPng(StemOf(path) + QLatin1String("png"));
  return png.isNull() ? QPixmap(path) : QPixmap::fromImage(png);
}

void PaintPictures(QPainter& painter, const std::vector<PaintedPicture>& pictures,
                   const QRegion& region, const PixelScale& scale, PictureCache& cache) {
  const std::vector<PlacedPixmap> placed = PixmapsIn(region.boundingRect(), pictures, scale, cache);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  for (const QRect& part : region) {
    painter.setClipRect(part);
    for (const auto& [place, pixmap] : placed) {
      if (part.intersects(place)) painter.drawPixmap(place, pixmap, pixmap.rect());
    }
  }
}

}  // namespace tessara
