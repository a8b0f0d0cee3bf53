#pragma once

#include "base/text.h"

namespace tessara {

/// What the flip button does next. It tells the side on show, and stands nowhere but in the
/// button's caption, which is exact.
enum class FlipAction { kShowBack, kShowFront, kShowAnswer, kHideAnswer };

[[nodiscard]] constexpr TextView CaptionOf(FlipAction action) {
  switch (action) {
    case FlipAction::kShowBack:
      return u"&Show Back";
    case FlipAction::kShowFront:
      return u"&Show Front";
    case FlipAction::kShowAnswer:
      return u"&Show Answer";
    case FlipAction::kHideAnswer:
      return u"&Hide Answer";
  }
  return {};
}

}  // namespace tessara
