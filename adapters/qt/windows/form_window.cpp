#include "adapters/qt/windows/form_window.h"

namespace tessara {

FormWindow* WindowAround(QWidget* widget) {
  for (QWidget* at = widget; at != nullptr; at = at->parentWidget()) {
    if (auto* window = dynamic_cast<FormWindow*>(at)) return window;
  }
  return nullptr;
}

}  // namespace tessara
