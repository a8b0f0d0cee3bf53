#pragma once

#include <cstddef>
#include <string_view>

#include "base/text.h"

namespace tessara {

// Most of a text is ASCII, and ASCII is the same in UTF-8 and in every code page: these take it
// several bytes at a time.

/// How many bytes at the front are ASCII.
[[nodiscard]] std::size_t AsciiLength(std::string_view bytes);
/// Appends bytes that are ASCII, all of them, and takes them off the front.
void MoveAscii(Text& text, std::string_view& bytes);

}  // namespace tessara
