#include "adapters/qt/devices/help_loader.h"

#include "adapters/posix/process/lazy_module.h"
#include "adapters/qt/text/qt_text.h"

namespace tessara {

void ShowHelpWithModule(const Text& folder, const Text& path) {
  const auto show = LazyModule(folder, "libtessara_help.so").Find<ShowHelpFile>(kShowHelpFile);
  if (show != nullptr) show(ToQString(path));
}

}  // namespace tessara
