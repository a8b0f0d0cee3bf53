#pragma once

#include "base/text.h"

namespace tessara {

/// How the deck on show is taken.
enum class CardMode { kStudyMode, kQuizMode, kTestMode };
using enum CardMode;

/// What stands behind the deck's name in the title of its window.
[[nodiscard]] constexpr TextView MarkOf(CardMode mode) {
  switch (mode) {
    case kStudyMode:
      return u"[STUDY]";
    case kQuizMode:
      return u"[QUIZ]";
    case kTestMode:
      return u"[TEST]";
  }
  return {};
}

}  // namespace tessara
