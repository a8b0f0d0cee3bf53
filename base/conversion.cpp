#include "base/conversion.h"

#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <optional>

#include "base/number_reader.h"
#include "base/run_time_error.h"

namespace tessara {

bool IsNumeric(TextView text) {
  try {
    return ReadNumber(text).has_value();
  } catch (const RunTimeError&) {
    return false;
  }
}

double NumberOf(TextView text) {
  const std::optional<double> value = ReadNumber(text);
  if (!value) throw RunTimeError(ErrorNumber::kTypeMismatch);
  return *value;
}

std::int16_t IntegerOf(TextView text) {
  return IntegerOf(NumberOf(text));
}

std::int16_t IntegerOf(double value) {
  const double rounded = std::nearbyint(value);
  const bool fits = rounded >= std::numeric_limits<std::int16_t>::min() &&
                    rounded <= std::numeric_limits<std::int16_t>::max();
  if (!fits) throw RunTimeError(ErrorNumber::kOverflow);
  return static_cast<std::int16_t>(rounded);
}

bool BooleanOf(TextView text) {
  const Text upper = UpperCase(Trimmed(text));
  if (upper == u"TRUE") return true;
  if (upper == u"FALSE") return false;
  return NumberOf(text) != 0;
}

Text PointsText(double value) {
  char buffer[400];
  const auto result =
      std::to_chars(std::begin(buffer), std::end(buffer), value, std::chars_format::fixed);
  return {std::begin(buffer), result.ptr};
}

Text WholeNumberText(double value) {
  // What a division has lost or won behind these digits is none of the number's.
  constexpr int kDigitsBehindPoint = 14;
  char buffer[40];
  const auto written = std::to_chars(std::begin(buffer), std::end(buffer), value,
                                     std::chars_format::scientific, kDigitsBehindPoint);
  double read = value;
  std::from_chars(std::begin(buffer), written.ptr, read);
  return DecimalText(std::lround(read));
}

}  // namespace tessara
