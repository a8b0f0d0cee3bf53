#pragma once

#include <cstdint>

#include "platform/text.h"

namespace tessara {

// Numbers out of text. The grammar, the same for all: blanks around; a sign; digits with an
// optional point, or a point and digits; an optional exponent (E or D, a sign, digits); or &H
// and hexadecimal digits, or &O and octal digits. No thousands separators, no currency.

/// True where the whole text is a number by the grammar.
[[nodiscard]] bool IsNumeric(TextView text);

/// The value of the text. Raises error 13 where it is no number, error 6 beyond the 64-bit float.
[[nodiscard]] double NumberOf(TextView text);

/// The value rounded to a 16-bit integer, halves to even. Raises error 13 or, out of range, 6.
[[nodiscard]] std::int16_t IntegerOf(TextView text);
[[nodiscard]] std::int16_t IntegerOf(double value);

/// "True" and "False" in any case, or a number, which is True unless 0. Raises error 13.
[[nodiscard]] bool BooleanOf(TextView text);

/// The decimal text of a number of points: no decimals where whole, else as few as it takes.
[[nodiscard]] Text PointsText(double value);

/// The value as a whole number of at least one digit, halves away from zero: the format "##0".
[[nodiscard]] Text WholeNumberText(double value);

}  // namespace tessara
