#include "base/mostly_utf8.h"

#include "base/characters.h"
#include "base/utf8.h"

namespace tessara {

Text FromMostlyUtf8(std::string_view bytes, const CodePage& codePage) {
  Text text;
  while (true) {
    const std::size_t length = Utf8Length(bytes);
    text += FromUtf8(bytes.substr(0, length));
    bytes.remove_prefix(length);
    if (bytes.empty()) return text;
    text += codePage.Decode(bytes.substr(0, 1));
    bytes.remove_prefix(1);
  }
}

}  // namespace tessara
