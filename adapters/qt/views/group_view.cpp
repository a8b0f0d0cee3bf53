#include "adapters/qt/views/group_view.h"

#include <QGroupBox>

#include "adapters/qt/text/qt_text.h"

namespace tessara {

GroupView::GroupView(Frame& frame, QWidget& parent, const ViewContext& context)
    : ControlView(frame, *new QGroupBox(&parent), context) {}

void GroupView::FollowOwn(Aspect aspect) {
  if (aspect != Aspect::kCaption) return;
  static_cast<QGroupBox&>(Widget()).setTitle(ToQString(As<Frame>().Caption()));
}

}  // namespace tessara
