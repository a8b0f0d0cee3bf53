#pragma once

#include "forms/controls.h"
#include "platform/qt/control_view.h"

namespace tessara {

/// Shows a picture box; what it holds stands inside its widget.
class PictureBoxView : public ControlView {
 public:
  PictureBoxView(PictureBox& box, QWidget& parent, const ViewContext& context);

 protected:
  void FollowOwn(Aspect aspect) override;
};

/// Shows a picture alone.
class ImageView : public ControlView {
 public:
  ImageView(Image& image, QWidget& parent, const ViewContext& context);

 protected:
  void FollowOwn(Aspect aspect) override;
  void Clicked() override { As<Image>().UserClick(); }
};

}  // namespace tessara
