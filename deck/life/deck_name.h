#pragma once

#include "base/text.h"

namespace tessara {

/// The name of a deck that has no file yet.
inline constexpr TextView kNewDeckName = u"New Deck";

/// What stands in the path behind the last "/" or "\" and before the first "." behind that.
/// Empty where either is missing.
[[nodiscard]] Text DeckNameOf(TextView path);

}  // namespace tessara
