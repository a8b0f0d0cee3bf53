#include "adapters/qt/windows/menu_bar_form.h"

namespace tessara {

Form* MenuBarForm(const WindowSystem& windows) {
  Form* child = windows.ActiveChild();
  const bool offers = child != nullptr && child->Enabled() && !child->Menus().empty();
  return offers ? child : windows.FrameForm();
}

}  // namespace tessara
