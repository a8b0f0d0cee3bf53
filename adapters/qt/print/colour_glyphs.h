#pragma once

#include <QPainter>
#include <QString>

namespace tessara {

/// Draws those characters of a line that come from colour fonts, and nothing else, as pictures: a
/// PDF file keeps their place and their text, but not their look. The line begins at the point, on
/// its base line, in the painter's font.
void DrawColourGlyphs(QPainter& painter, QPointF start, const QString& line);

}  // namespace tessara
