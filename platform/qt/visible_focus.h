#pragma once

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace tessara {

/// Styles show the focus from the first Tab on; here it is seen from the start.
void ShowFocusAlways(QStyleOption& option);

/// The style's own sign of the focus, along the edge of `place`; nothing where the focus is
/// elsewhere.
void PaintFocus(const QWidget& widget, const QRect& place, QPainter& painter);

}  // namespace tessara
