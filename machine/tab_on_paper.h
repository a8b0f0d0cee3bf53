#pragma once

#include "base/text.h"

namespace tessara {

inline constexpr char16_t kTab = u'\t';
/// What a tab is in print, which has no stops for it.
inline constexpr TextView kTabOnPaper = u"    ";

}  // namespace tessara
