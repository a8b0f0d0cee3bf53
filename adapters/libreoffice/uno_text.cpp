#include "adapters/libreoffice/uno_text.h"

#include <glib.h>

namespace tessara {

std::string FileUrl(const std::string& path) {
  char* const escaped = g_uri_escape_string(path.c_str(), "/", FALSE);
  std::string url = std::string("file://") + escaped;
  g_free(escaped);
  return url;
}

}  // namespace tessara
