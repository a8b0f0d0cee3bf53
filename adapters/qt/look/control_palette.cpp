#include "adapters/qt/look/control_palette.h"

#include <QApplication>
#include <array>

#include "adapters/qt/look/contrast.h"
#include "forms/controls/controls.h"
#include "forms/form.h"

namespace tessara {

namespace {

constexpr std::array kTextRoles = {QPalette::WindowText, QPalette::ButtonText, QPalette::Text};
constexpr std::array kGroundRoles = {QPalette::Window, QPalette::Base, QPalette::Button};

bool HasColors(const Control& control) {
  return control.ForeColor() != Color{} || control.BackColor() != Color{};
}

/// A picture is a ground of its own, the same on every desktop.
bool StandsOnPicture(const Control& control) {
  for (const Control* at = control.Container(); at != nullptr; at = at->Container()) {
    const bool box = at->Kind() == ControlKind::kPictureBox;
    if (box && !static_cast<const PictureBox*>(at)->PictureOf().Empty()) return true;
  }
  return false;
}

/// Named colours were chosen for a light desktop.
QColor TextColor(const Control& control, const QPalette& desktop, const QColor& own) {
  const QColor color = ColorIn(desktop, control.ForeColor(), own);
  const bool fixed = control.ForeColor().role == Color::Role::kFixed;
  if (!fixed || StandsOnPicture(control)) return color;
  const QColor window = desktop.color(QPalette::Active, QPalette::Window);
  return ReadableOn(ColorIn(desktop, control.BackColor(), window), color);
}

}  // namespace

QColor ColorIn(const QPalette& palette, const Color& color, const QColor& own) {
  switch (color.role) {
    case Color::Role::kDefault:
      return own;
    case Color::Role::kFixed:
      return {color.red, color.green, color.blue};
    case Color::Role::kWindow:
      return palette.color(QPalette::Active, QPalette::Base);
    case Color::Role::kButtonFace:
      return palette.color(QPalette::Active, QPalette::Button);
    case Color::Role::kInactiveTitle:
    case Color::Role::kWorkspace:
      return palette.color(QPalette::Active, QPalette::Dark);
  }
  return own;
}

bool IsKeptOut(const Control& control) {
  if (!control.Enabled()) return false;
  for (const Control* holder = control.Container(); holder != nullptr;
       holder = holder->Container()) {
    // What can't be pressed for now looks so; what is read stays readable.
    if (!holder->Enabled()) return control.Kind() != ControlKind::kButton;
  }
  return !control.Owner().Enabled();
}

bool NeedsPalette(const Control& control) {
  if (IsKeptOut(control) || !control.Owner().Enabled()) return true;
  for (const Control* at = &control; at != nullptr; at = at->Container()) {
    if (HasColors(*at) || !at->Enabled()) return true;
  }
  return false;
}

QPalette PaletteOf(const Control& control) {
  const QPalette desktop = QApplication::palette();
  const bool keptOut = IsKeptOut(control);
  QPalette palette = desktop;
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    const bool greyed = group == QPalette::Disabled && !keptOut;
    const auto source = group == QPalette::Disabled && keptOut ? QPalette::Active : group;
    for (const auto role : kTextRoles) {
      const QColor own = desktop.color(source, role);
      palette.setColor(group, role, greyed ? own : TextColor(control, desktop, own));
    }
    for (const auto role : kGroundRoles) {
      const QColor own = desktop.color(source, role);
      palette.setColor(group, role, ColorIn(desktop, control.BackColor(), own));
    }
  }
  return palette;
}

}  // namespace tessara
