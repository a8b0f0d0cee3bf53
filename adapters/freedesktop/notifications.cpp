#include "adapters/freedesktop/notifications.h"

#include <cstdio>
#include <string>

#include "adapters/posix/process/start_process.h"
#include "base/characters.h"
#include "base/utf8.h"

namespace tessara {

namespace {

constexpr const char* kNotifier = "tessara-notify";

/// A file's name may hold anything; a terminal obeys control characters.
Text Printable(Text text) {
  constexpr char16_t kDelete = 0x7F;
  constexpr char16_t kLastControl = 0x9F;
  for (char16_t& c : text) {
    if (c < u' ' || (c >= kDelete && c <= kLastControl)) c = u'?';
  }
  return text;
}

}  // namespace

void NotifyUser(const std::filesystem::path& programFolder, const Text& title, const Text& text) {
  const Text line = Printable(text);
  std::fprintf(stderr, "tessara: %s\n", ToUtf8(line).c_str());
  // A desktop shows nothing of a text with a byte that is no UTF-8.
  StartDetached({(programFolder / kNotifier).string(), ToUtf8(WellFormed(Printable(title))),
                 ToUtf8(WellFormed(line))});
}

}  // namespace tessara
