#pragma once

#include <string>
#include <variant>
#include <vector>

#include "forms/canvas.h"
#include "forms/controls/control.h"

namespace tessara {

/// A control that paints itself. Its properties can be read by name from outside (UI automation),
/// and a screen reader reads its description.
class PaintedControl : public Control {
 public:
  using Control::Control;
  struct Property {
    std::string name;
    std::variant<bool, Text> value;
  };

  [[nodiscard]] ControlKind Kind() const override { return ControlKind::kPainted; }

  /// Paints the whole control. `size` is its place in pixels, `scroll` how far the text has been
  /// scrolled up, in pixels.
  virtual void Paint(Canvas& canvas, const Rect& size, double scroll) const = 0;
  /// How far the text can be scrolled, in pixels: 0 where all of it is on show.
  [[nodiscard]] virtual double ScrollRange(Canvas& canvas, const Rect& size) const = 0;
  /// The part that scrolls, in pixels.
  [[nodiscard]] virtual Rect ScrollArea(const Rect& size) const = 0;
  /// Text that a screen reader says.
  [[nodiscard]] virtual Text Description() const = 0;
  [[nodiscard]] virtual std::vector<Property> Properties() const = 0;
};

}  // namespace tessara
