#pragma once

#include <cstdint>

#include "base/text.h"

namespace tessara {

// Numbers out of text, by the grammar of ReadNumber.

/// True where the whole text is a number that a 64-bit float can hold.
[[nodiscard]] bool IsNumeric(TextView text);

/// The value of the text. Raises error 13 where it is no number, error 6 where it is too large.
[[nodiscard]] double NumberOf(TextView text);

/// The value rounded to a 16-bit integer, halves to even. Raises error 13 or, out of range, 6.
[[nodiscard]] std::int16_t IntegerOf(TextView text);
[[nodiscard]] std::int16_t IntegerOf(double value);

/// "True" and "False" in any case, or a number, which is True unless 0. Raises error 13 or 6.
[[nodiscard]] bool BooleanOf(TextView text);

// Numbers into text.

/// The decimal text of a number of points: no decimals where whole, else as few as it takes.
[[nodiscard]] Text PointsText(double value);

/// The value, of at most 18 digits, as a whole number: the format "##0". It is written with 15
/// significant digits first and then rounded, halves away from zero: 57.5 per cent that a division
/// has made 57.49999999999999 are 58.
[[nodiscard]] Text WholeNumberText(double value);

}  // namespace tessara
