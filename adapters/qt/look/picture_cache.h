#pragma once

#include <QHash>
#include <QPainter>
#include <QPixmap>
#include <QRegion>
#include <QString>
#include <vector>

#include "adapters/qt/text/pixel_scale.h"
#include "forms/look.h"

namespace tessara {

/// The program's pictures, each read from its file at its first use. On a dense screen the one
/// drawn for twice the size is read.
class PictureCache {
 public:
  /// `folder` holds the picture files; `density` is the most device pixels to one of
  /// the program.
  PictureCache(QString folder, double density);
  /// Where it differs, the pictures that were handed out are no more.
  void SetDensity(double density);
  /// A null pixmap for an empty picture or a missing file.
  [[nodiscard]] const QPixmap& PixmapOf(const Picture& picture);

 private:
  [[nodiscard]] QPixmap Read(const QString& file) const;
  [[nodiscard]] QPixmap ReadOne(const QString& file) const;

  QString folder_;
  double density_;
  QHash<QString, QPixmap> pixmaps_;
};

/// Paints the pictures that stand in the region. A backdrop is many small pictures; painting the
/// few that were uncovered needs no bitmap of the screen's size. They are painted by rectangles of
/// the region: what is clipped by more than one at a time Qt paints line by line, on threads.
void PaintPictures(QPainter& painter, const std::vector<PaintedPicture>& pictures,
                   const QRegion& region, const PixelScale& scale, PictureCache& cache);

}  // namespace tessara
