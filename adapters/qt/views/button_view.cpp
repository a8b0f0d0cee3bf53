#include "adapters/qt/views/button_view.h"

namespace tessara {

ButtonView::ButtonView(tessara::Button& button, QWidget& parent, const ViewContext& context)
    : CaptionView(button, parent, context, QStyle::SE_PushButtonContents) {}

}  // namespace tessara
