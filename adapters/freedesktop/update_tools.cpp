#include "adapters/freedesktop/update_tools.h"

#include "adapters/posix/process/start_process.h"

namespace tessara {

namespace {

/// Its arguments are the folder, the entry and the types.
constexpr const char* kScript = R"(update-mime-database "$1/mime"
update-desktop-database "$1/applications"
gtk-update-icon-cache -q -t -f "$1/icons/hicolor"
IFS=';'
xdg-mime default "$2" $3
)";

}  // namespace

void StartUpdateTools(const UserDocumentTypes::Declared& declared) {
  StartDetached({"/bin/sh", "-c", kScript, "sh", declared.userData.string(), declared.entry,
                 declared.documentTypes});
}

}  // namespace tessara
