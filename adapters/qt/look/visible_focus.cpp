#include "adapters/qt/look/visible_focus.h"

#include <QPalette>
#include <QStyle>

#include "adapters/qt/look/contrast.h"

namespace tessara {

void ShowFocusAlways(QStyleOption& option) {
  if (option.state.testFlag(QStyle::State_HasFocus)) {
    option.state |= QStyle::State_KeyboardFocusChange;
  }
}

void PaintFocus(const QWidget& widget, const QRect& place, const QColor& ground,
                QPainter& painter) {
  if (!widget.hasFocus()) return;
  constexpr double kWidth = 2;
  constexpr double kCorner = 4;
  constexpr double kInside = kWidth / 2;
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor highlight = widget.palette().color(QPalette::Highlight);
  painter.setPen(QPen(ReadableOn(ground, highlight, kVisibleContrast), kWidth));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(place).adjusted(kInside, kInside, -kInside, -kInside), kCorner,
                          kCorner);
}

}  // namespace tessara
