#pragma once

#include "base/text.h"

namespace tessara {

/// What stands in the path behind the last "/" or "\" and before the first "." behind that.
/// Empty where either is missing.
[[nodiscard]] Text DeckNameOf(TextView path);

}  // namespace tessara
