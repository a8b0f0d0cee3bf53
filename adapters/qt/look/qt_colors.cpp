#include "adapters/qt/look/qt_colors.h"

namespace tessara {

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

}  // namespace tessara
