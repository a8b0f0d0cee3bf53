#pragma once

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace tessara {

/// Styles show the focus from the first Tab on; here it is seen from the start.
void ShowFocusAlways(QStyleOption& option);

/// A line in the desktop's highlight colour along the edge of `place`, which a style would fill;
/// nothing where the focus is elsewhere.
void PaintFocus(const QWidget& widget, const QRect& place, QPainter& painter);

}  // namespace tessara
