#pragma once

#include <optional>

#include "base/text.h"

namespace tessara {

/// The number that the whole text is, or nothing where it is none. Raises error 6 for a number
/// beyond the 64-bit float or, written with "&", beyond 32 bits; one too small for it is 0.
///
/// The grammar: blanks around; a sign; digits with an optional point, or a point and digits; an
/// optional exponent (E or D, a sign, digits). Or &H and hexadecimal digits, or &O and octal ones,
/// without a sign: up to FFFF they are a 16-bit integer with its sign, beyond that a 32-bit one. No
/// thousands separators, no currency.
[[nodiscard]] std::optional<double> ReadNumber(TextView text);

}  // namespace tessara
