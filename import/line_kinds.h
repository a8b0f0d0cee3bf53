#pragma once

#include "base/text.h"

namespace tessara {

// What both import formats tell lines apart by.

/// True where the line, trimmed and in upper case, is the word, which is given in upper case.
[[nodiscard]] bool IsWord(TextView line, TextView word);

/// The words that name the two formats; both readers skip them anywhere.
inline constexpr TextView kExtendedWord = u"EXT";
inline constexpr TextView kStandardWord = u"STD";
[[nodiscard]] bool IsTypeLine(TextView line);

/// True where the second, third or fourth character of the line is ".".
[[nodiscard]] bool HasEarlyDot(TextView line);

}  // namespace tessara
