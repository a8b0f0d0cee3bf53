#pragma once

#include <QPushButton>

#include "adapters/qt/views/caption_view.h"
#include "forms/controls/controls.h"

namespace tessara {

class ButtonView : public CaptionView<QPushButton> {
 public:
  ButtonView(tessara::Button& button, QWidget& parent, const ViewContext& context);

 protected:
  void Press() override { As<tessara::Button>().Press(); }
  void FollowOwn(Aspect aspect) override;
};

}  // namespace tessara
