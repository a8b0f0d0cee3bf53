#pragma once

#include "base/text.h"
#include "machine/clock.h"

namespace tessara {

/// The date in the format "m/d/yyyy": month and day without leading zeros.
[[nodiscard]] Text DateText(const Date& date);

}  // namespace tessara
