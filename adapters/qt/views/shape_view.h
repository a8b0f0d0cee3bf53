#pragma once

#include "adapters/qt/views/control_view.h"
#include "forms/controls/controls.h"

namespace tessara {

/// Shows a filled rectangle: a shape in its background colour.
class ShapeView : public ControlView {
 public:
  ShapeView(Shape& shape, QWidget& parent, const ViewContext& context);

 protected:
  void FollowOwn(Aspect aspect) override;
};

/// Shows a straight line along the longer side of its bounds, in its foreground colour.
class LineView : public ControlView {
 public:
  LineView(Line& line, QWidget& parent, const ViewContext& context);

 protected:
  void FollowOwn(Aspect aspect) override;
};

}  // namespace tessara
