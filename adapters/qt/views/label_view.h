#pragma once

#include "adapters/qt/views/control_view.h"
#include "forms/controls/controls.h"

namespace tessara {

class LabelView : public ControlView {
 public:
  LabelView(Label& label, QWidget& parent, const ViewContext& context);

 protected:
  void FollowOwn(Aspect aspect) override;
  void FollowFont() override { PrepareWhenSeen(); }
  void Prepare() override;
  void Clicked() override { As<Label>().UserClick(); }
};

}  // namespace tessara
