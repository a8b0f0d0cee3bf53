#include "adapters/qt/look/rounded_edges.h"

#include <cmath>

namespace tessara {

namespace {

void PaintWhole(QPainter& painter, const RoundedEdges::Shape& shape) {
  constexpr double kHalfPen = 0.5;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(shape.border);
  painter.setBrush(shape.fill);
  painter.drawRoundedRect(shape.rect.adjusted(kHalfPen, kHalfPen, -kHalfPen, -kHalfPen),
                          shape.radius, shape.radius);
}

/// Where the shape begins, in whole device pixels.
QPoint OriginOf(const QRectF& onDevice) {
  return {static_cast<int>(std::floor(onDevice.left())),
          static_cast<int>(std::floor(onDevice.top()))};
}

QSize SizeFrom(const QPoint& origin, const QRectF& onDevice) {
  return {static_cast<int>(std::ceil(onDevice.right())) - origin.x(),
          static_cast<int>(std::ceil(onDevice.bottom())) - origin.y()};
}

QTransform MovedBack(const QTransform& transform, const QPoint& origin) {
  return transform * QTransform::fromTranslate(-origin.x(), -origin.y());
}

}  // namespace

void RoundedEdges::Paint(QPainter& painter, const Shape& shape) {
  const QTransform toDevice = painter.deviceTransform();
  const QRectF onDevice = toDevice.mapRect(shape.rect);
  const QPoint origin = OriginOf(onDevice);
  const QTransform toPicture = MovedBack(toDevice, origin);
  if (edges_.empty() || shape != shape_ || toPicture != toPicture_) {
    shape_ = shape;
    toPicture_ = toPicture;
    const double pixel = onDevice.width() / shape.rect.width();
    const int depth = static_cast<int>(std::ceil((shape.radius + 1) * pixel)) + 1;
    Draw(SizeFrom(origin, onDevice), depth);
  }
  painter.save();
  // Counts in device pixels from the origin.
  painter.setWorldTransform(QTransform::fromTranslate(origin.x(), origin.y()) *
                            toDevice.inverted() * painter.worldTransform());
  painter.fillRect(inside_, shape.fill);
  for (const auto& [place, picture] : edges_) painter.drawPixmap(place, picture);
  painter.restore();
}

/// The four edges, each as deep as the corners are round.
void RoundedEdges::Draw(const QSize& size, int depth) {
  const QRect whole(QPoint(), size);
  inside_ = whole.adjusted(depth, depth, -depth, -depth);
  const QRect across(0, 0, size.width(), depth);
  const QRect down(0, depth, depth, size.height() - 2 * depth);
  edges_.clear();
  for (const QRect& edge : {across, across.translated(0, size.height() - depth), down,
                            down.translated(size.width() - depth, 0)}) {
    QPixmap picture(edge.size());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setTransform(MovedBack(toPicture_, edge.topLeft()));
    PaintWhole(painter, shape_);
    edges_.emplace_back(edge.topLeft(), picture);
  }
}

}  // namespace tessara
