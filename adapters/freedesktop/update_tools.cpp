#include "adapters/freedesktop/update_tools.h"

#include <string>

#include "adapters/freedesktop/detached_process.h"
#include "adapters/freedesktop/document_files.h"

namespace tessara {

namespace {

std::string Script() {
  return std::string(R"(update-mime-database "$1/mime"
update-desktop-database "$1/applications"
gtk-update-icon-cache -q -t -f "$1/icons/hicolor"
xdg-mime default )") +
         kDesktopEntryName + " " + kDeckMimeType + "\n";
}

}  // namespace

void StartUpdateTools(const std::filesystem::path& userData) {
  StartDetached({"/bin/sh", "-c", Script(), "sh", userData.string()});
}

}  // namespace tessara
