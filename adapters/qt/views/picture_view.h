#pragma once

#include "adapters/qt/views/control_view.h"
#include "forms/controls/controls.h"

namespace tessara {

/// Shows a picture box; what it holds stands inside its widget.
class PictureBoxView : public ControlView {
 public:
  PictureBoxView(PictureBox& box, QWidget& parent, const ViewContext& context);

 protected:
  void FollowOwn(Aspect aspect) override;
  void Prepare() override;
};

/// Shows a picture alone.
class ImageView : public ControlView {
 public:
  ImageView(Image& image, QWidget& parent, const ViewContext& context);

 protected:
  void FollowOwn(Aspect aspect) override;
  void Prepare() override;
  void Clicked() override { As<Image>().UserClick(); }
};

}  // namespace tessara
