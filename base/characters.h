#pragma once

#include <cstddef>
#include <string_view>

#include "base/text.h"

namespace tessara {

// Texts by the rules of Unicode, as libunistring has them. A character, here, is what a reader
// sees as one: an extended grapheme cluster (UAX #29), such as a letter with its marks, or CR LF.

[[nodiscard]] std::size_t CharacterCount(TextView text);

/// The front of the text, of at most that many units, that cuts no character in two.
[[nodiscard]] TextView WholeCharacters(TextView text, std::size_t mostUnits);

/// The text with U+FFFD for each surrogate that is no part of a pair.
[[nodiscard]] Text WellFormed(TextView text);

/// The same in normalization form C (UAX #15).
[[nodiscard]] Text Composed(TextView text);

/// True where the first letter with a direction is written from right to left (UAX #9, P2 and P3,
/// but for isolates).
[[nodiscard]] bool IsRightToLeft(TextView text);

/// How many bytes at the front are well-formed UTF-8.
[[nodiscard]] std::size_t Utf8Length(std::string_view bytes);

}  // namespace tessara
