#pragma once

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace tessara {

/// Styles show the focus from the first Tab on; here it is seen from the start.
void ShowFocusAlways(QStyleOption& option);

/// A line in the desktop's highlight colour along the edge of `place`, which a style would fill, so
/// that it is seen on the ground; nothing where the focus is elsewhere.
void PaintFocus(const QWidget& widget, const QRect& place, const QColor& ground, QPainter& painter);

}  // namespace tessara
