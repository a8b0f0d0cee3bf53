#pragma once

#include "forms/controls.h"
#include "platform/qt/control_view.h"

namespace tessara {

/// Shows a group box. What it holds stands inside its widget.
class BoxView : public ControlView {
 public:
  BoxView(Frame& frame, QWidget& parent, const ViewContext& context);

 protected:
  void FollowOwn(Aspect aspect) override;
};

}  // namespace tessara
