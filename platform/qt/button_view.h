#pragma once

#include <QPushButton>

#include "forms/controls.h"
#include "platform/qt/caption_view.h"

namespace tessara {

class ButtonView : public CaptionView<QPushButton> {
 public:
  ButtonView(tessara::Button& button, QWidget& parent, const ViewContext& context);

 protected:
  void Press() override { As<tessara::Button>().Press(); }
};

}  // namespace tessara
