#include "adapters/freedesktop/notifications.h"

#include <cstdio>
#include <string>

#include "adapters/posix/process/start_process.h"
#include "base/utf8.h"

namespace tessara {

namespace {

constexpr const char* kNotifier = "tessara-notify";

/// A file's name may hold anything; a terminal obeys control characters.
std::string Printable(Text text) {
  constexpr char16_t kDelete = 0x7F;
  constexpr char16_t kLastControl = 0x9F;
  for (char16_t& c : text) {
    if (c < u' ' || (c >= kDelete && c <= kLastControl)) c = u'?';
  }
  return ToUtf8(text);
}

}  // namespace

void NotifyUser(const std::filesystem::path& programFolder, const Text& title, const Text& text) {
  const std::string line = Printable(text);
  std::fprintf(stderr, "tessara: %s\n", line.c_str());
  StartDetached({(programFolder / kNotifier).string(), Printable(title), line});
}

}  // namespace tessara
