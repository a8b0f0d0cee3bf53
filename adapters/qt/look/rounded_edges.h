#pragma once

#include <QColor>
#include <QPainter>
#include <QPixmap>
#include <QTransform>
#include <utility>
#include <vector>

namespace tessara {

/// Paints a rounded rectangle with a border of a pixel of the program inside its edge. What takes
/// time are the smooth edges: those of the last rectangle are kept as pictures.
class RoundedEdges {
 public:
  struct Shape {
    QRectF rect;
    double radius = 0;
    QColor fill;
    QColor border;
    bool operator==(const Shape&) const = default;
  };

  /// `radius` leaves room for straight sides.
  void Paint(QPainter& painter, const Shape& shape);

 private:
  /// Sizes in device pixels.
  void Draw(const QSize& size, int depth);

  Shape shape_;
  QTransform toPicture_;
  /// What is within the edges, and pictures of those: all in device pixels.
  QRect inside_;
  std::vector<std::pair<QPoint, QPixmap>> edges_;
};

}  // namespace tessara
