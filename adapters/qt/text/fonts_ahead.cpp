#include "adapters/qt/text/fonts_ahead.h"

#include <QFontDatabase>
#include <fontconfig/fontconfig.h>

namespace tessara {

namespace {

/// Behind all fonts that the user's configuration names, before the order in which the others lie.
constexpr const char* kColourEmojiFirst = R"(
<fontconfig>
  <match target="pattern">
    <edit name="family" mode="append_last"><string>Noto Color Emoji</string></edit>
  </match>
</fontconfig>)";

}  // namespace

void ReadFontConfiguration() {
  FcInit();
  FcConfigParseAndLoadFromMemory(FcConfigGetCurrent(),
                                 reinterpret_cast<const FcChar8*>(kColourEmojiFirst), FcFalse);
}

void ListFonts() {
  QFontDatabase::families();
}

}  // namespace tessara
