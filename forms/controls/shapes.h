#pragma once

#include "forms/controls/control.h"

namespace tessara {

// What a window is divided and decorated with.

/// A group box. Disabled, it keeps the user out of all that it holds, without greying it.
class Frame : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kFrame; }
};

/// A filled rectangle.
class Shape : public Control {
 public:
  using Control::Control;
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kShape; }
};

/// A straight line along the longer side of its bounds.
class Line : public Control {
 public:
  using Control::Control;
  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kLine; }
};

}  // namespace tessara
