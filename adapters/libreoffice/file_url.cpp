#include "adapters/libreoffice/file_url.h"

namespace tessara {

std::string FileUrl(std::string_view path) {
  constexpr std::string_view kPlain =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string url = "file://";
  for (const char character : path) {
    if (kPlain.find(character) != std::string_view::npos) {
      url += character;
      continue;
    }
    const auto byte = static_cast<unsigned char>(character);
    url += '%';
    url += kDigits[byte >> 4U];
    url += kDigits[byte & 15U];
  }
  return url;
}

}  // namespace tessara
