#pragma once

#include "adapters/qt/views/control_view.h"
#include "forms/controls/controls.h"

namespace tessara {

/// Shows a group box. What it holds stands inside its widget.
class GroupView : public ControlView {
 public:
  GroupView(Frame& frame, QWidget& parent, const ViewContext& context);

 protected:
  void FollowOwn(Aspect aspect) override;
};

}  // namespace tessara
