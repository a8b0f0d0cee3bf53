#include "adapters/qt/windows/menu_bar_form.h"

namespace tessara {

Form* MenuBarForm(const WindowSystem& windows) {
  Form* child = windows.ActiveChild();
  return child != nullptr && !child->Menus().empty() ? child : windows.FrameForm();
}

}  // namespace tessara
