#pragma once

#include <string_view>

#include "base/code_page.h"
#include "base/text.h"

namespace tessara {

/// The characters of a text that says that it is UTF-8: each byte that is none is one of the code
/// page.
[[nodiscard]] Text FromMostlyUtf8(std::string_view bytes, const CodePage& codePage);

}  // namespace tessara
