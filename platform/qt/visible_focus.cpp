#include "platform/qt/visible_focus.h"

#include <QStyle>
#include <QStyleOptionFocusRect>

namespace tessara {

void ShowFocusAlways(QStyleOption& option) {
  if (option.state.testFlag(QStyle::State_HasFocus)) {
    option.state |= QStyle::State_KeyboardFocusChange;
  }
}

void PaintFocus(const QWidget& widget, const QRect& place, QPainter& painter) {
  if (!widget.hasFocus()) return;
  QStyleOptionFocusRect option;
  option.initFrom(&widget);
  ShowFocusAlways(option);
  option.rect = place;
  widget.style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, &widget);
}

}  // namespace tessara
