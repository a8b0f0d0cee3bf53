#include "adapters/qt/devices/help_loader.h"

#include <QLibrary>

#include "adapters/qt/text/qt_text.h"

namespace tessara {

void ShowHelpWithModule(const Text& folder, const Text& path) {
  const QString module = ToQString(folder) + QLatin1String("/libtessara_help.so");
  const auto show = reinterpret_cast<ShowHelpFile>(QLibrary::resolve(module, kShowHelpFile));
  if (show != nullptr) show(ToQString(path));
}

}  // namespace tessara
