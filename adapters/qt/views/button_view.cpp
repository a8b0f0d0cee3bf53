#include "adapters/qt/views/button_view.h"

namespace tessara {

namespace {

/// What stays free at either side of the caption, in twips.
constexpr int kFreeSide = 45;

}  // namespace

ButtonView::ButtonView(tessara::Button& button, QWidget& parent, const ViewContext& context)
    : CaptionView(button, parent, context, QStyle::SE_PushButtonContents, kFreeSide) {}

void ButtonView::FollowOwn(Aspect aspect) {
  CaptionView::FollowOwn(aspect);
  // One that is there for another mode is seen when it has something to say.
  const auto& button = As<tessara::Button>();
  Shown().setFlat(button.Caption().empty() && !button.Enabled());
}

}  // namespace tessara
