#include "adapters/qt/text/fonts_ahead.h"

#include <fontconfig/fontconfig.h>

namespace tessara {

FontsAhead::FontsAhead() : reader_([] { FcInit(); }) {}

void FontsAhead::Wait() {
  reader_.join();
}

}  // namespace tessara
