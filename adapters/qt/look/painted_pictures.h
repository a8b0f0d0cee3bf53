#pragma once

#include <QPainter>
#include <QRegion>
#include <vector>

#include "adapters/qt/look/view_context.h"

namespace tessara {

/// Paints the pictures that stand in the region. A backdrop is many small pictures; painting the
/// few that were uncovered needs no bitmap of the screen's size.
void PaintPictures(QPainter& painter, const std::vector<PaintedPicture>& pictures,
                   const QRegion& region, const ViewContext& context);

}  // namespace tessara
