#pragma once

#include <QCheckBox>

#include "forms/controls.h"
#include "platform/qt/caption_view.h"

namespace tessara {

class CheckView : public CaptionView<QCheckBox> {
 public:
  CheckView(CheckBox& check, QWidget& parent, const ViewContext& context);

 protected:
  void Press() override { As<CheckBox>().Press(); }
  void FollowOwn(Aspect aspect) override;
};

}  // namespace tessara
