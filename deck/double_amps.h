#pragma once

#include "base/text.h"

namespace tessara {

/// The text with every "&" doubled, as captions and the card show one.
[[nodiscard]] Text DoubleAmps(TextView text);

}  // namespace tessara
