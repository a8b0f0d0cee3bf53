#include "adapters/qt/look/painted_pictures.h"

namespace tessara {

namespace {

/// From edge to edge, so that neighbours meet without a gap at any factor.
QRect PlaceOf(const PaintedPicture& painted, const PixelScale& scale) {
  return scale.FromTwips(Bounds{painted.x * kTwipsPerPixel, painted.y * kTwipsPerPixel,
                                painted.picture.width * kTwipsPerPixel,
                                painted.picture.height * kTwipsPerPixel});
}

}  // namespace

void PaintPictures(QPainter& painter, const std::vector<PaintedPicture>& pictures,
                   const QRegion& region, const ViewContext& context) {
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  for (const PaintedPicture& painted : pictures) {
    const QRect place = PlaceOf(painted, context.scale);
    if (!region.intersects(place)) continue;
    const QPixmap& pixmap = context.pictures.PixmapOf(painted.picture);
    if (!pixmap.isNull()) painter.drawPixmap(place, pixmap, pixmap.rect());
  }
}

}  // namespace tessara
