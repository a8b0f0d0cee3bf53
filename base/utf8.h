#pragma once

#include <string>
#include <string_view>

#include "base/text.h"

namespace tessara {

// UTF-8, the form that paths have outside the program, and back, without loss of a byte: one that
// is no UTF-8 becomes the lone surrogate U+DC80 + (byte - 0x80), and that becomes the byte again.

[[nodiscard]] Text FromUtf8(std::string_view bytes);
/// A lone surrogate that stands for no byte becomes U+FFFD.
[[nodiscard]] std::string ToUtf8(TextView text);

}  // namespace tessara
