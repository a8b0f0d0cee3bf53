#pragma once

#include <QCheckBox>

#include "adapters/qt/views/caption_view.h"
#include "forms/controls/controls.h"

namespace tessara {

class CheckView : public CaptionView<QCheckBox> {
 public:
  CheckView(CheckBox& check, QWidget& parent, const ViewContext& context);

 protected:
  void Press() override { As<CheckBox>().Press(); }
  void FollowOwn(Aspect aspect) override;
};

}  // namespace tessara
