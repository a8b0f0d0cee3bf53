#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "base/text.h"

namespace tessara {

// Most of a text is ASCII, and ASCII is the same in UTF-8 and in every code page: these take it
// several bytes at a time.

/// How many bytes at the front are ASCII.
[[nodiscard]] std::size_t AsciiLength(std::string_view bytes);
/// Appends bytes that are ASCII, all of them, and takes them off the front.
void MoveAscii(Text& text, std::string_view& bytes);
/// Copies a text that is ASCII, all of it or as much as there is room for. Any other text is left
/// alone: false.
[[nodiscard]] bool CopiedAsAscii(TextView text, std::span<char> to);

}  // namespace tessara
