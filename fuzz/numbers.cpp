// Any text as a number: held against the C library's reading of it.

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <regex>
#include <string>

#include "base/conversion.h"
#include "base/run_time_error.h"
#include "fuzz/byte_source.h"
#include "fuzz/require.h"

namespace tessara::fuzz {

namespace {

constexpr int kNone = 0;
constexpr int kOverflow = static_cast<int>(ErrorNumber::kOverflow);
constexpr int kMismatch = static_cast<int>(ErrorNumber::kTypeMismatch);

/// What a conversion of the text comes to.
struct Outcome {
  int error = kNone;
  double value = 0;
};

template <class Conversion>
Outcome OutcomeOf(const Conversion& conversion) {
  try {
    return {kNone, static_cast<double>(conversion())};
  } catch (const RunTimeError& error) {
    return {static_cast<int>(error.Number()), 0};
  }
}

/// By the grammar as a pattern and the C library's own reading.
Outcome Expected(std::string text) {
  static const std::regex decimal(" *([+-]?)([0-9]+\\.?[0-9]*|\\.[0-9]+)([EeDd][+-]?[0-9]+)? *");
  static const std::regex radix(" *&([HhOo])([0-9A-Fa-f]+) *");
  std::smatch parts;
  if (std::regex_match(text, decimal)) {
    for (char& c : text) c = c == 'd' || c == 'D' ? 'e' : c;
    const double value = std::strtod(text.c_str(), nullptr);
    return std::isinf(value) ? Outcome{kOverflow} : Outcome{kNone, value};
  }
  if (!std::regex_match(text, parts, radix)) return {kMismatch};
  const bool octal = parts[1] == "O" || parts[1] == "o";
  const std::string digits = parts[2];
  if (octal && digits.find_first_not_of("01234567") != std::string::npos) return {kMismatch};
  const std::size_t first = std::min(digits.find_first_not_of('0'), digits.size());
  if (digits.size() - first > 16) return {kOverflow};
  const unsigned long value = std::strtoul(digits.c_str(), nullptr, octal ? 8 : 16);
  if (value > 0xFFFFFFFFUL) return {kOverflow};
  return value <= 0xFFFFUL ? Outcome{kNone, static_cast<double>(static_cast<std::int16_t>(value))}
                           : Outcome{kNone, static_cast<double>(static_cast<std::int32_t>(value))};
}

/// A value that is not quite 0 may read as 0.
bool SameValue(double a, double b) {
  return a == b || (std::abs(a) < std::numeric_limits<double>::min() &&
                    std::abs(b) < std::numeric_limits<double>::min());
}

void CheckNumber(const Text& text, const Outcome& expected) {
  const Outcome number = OutcomeOf([&] { return NumberOf(text); });
  Require(number.error == expected.error);
  Require(SameValue(number.value, expected.value));
  Require(IsNumeric(text) == (number.error == kNone));
}

void CheckInteger(const Text& text, const Outcome& expected) {
  const Outcome integer = OutcomeOf([&] { return IntegerOf(text); });
  const double rounded = std::remainder(expected.value, 1) == 0
                             ? expected.value
                             : expected.value - std::remainder(expected.value, 1);
  const bool fits = rounded >= -32768 && rounded <= 32767;
  Require(integer.error == (expected.error != kNone ? expected.error : fits ? kNone : kOverflow));
  if (integer.error == kNone) Require(integer.value == rounded);
}

void CheckBoolean(const Text& text, const Outcome& expected) {
  const Text word = UpperCase(Trimmed(text));
  const Outcome truth = OutcomeOf([&] { return BooleanOf(text); });
  if (word == u"TRUE" || word == u"FALSE") {
    Require(truth.error == kNone && truth.value == (word == u"TRUE" ? 1 : 0));
  } else {
    Require(truth.error == expected.error);
  }
}

void CheckTexts(double value) {
  Require(NumberOf(PointsText(value)) == value);
  // Half of one, and what 15 digits leave out.
  const double reach = 0.5 + std::abs(value) * 1e-14;
  if (std::abs(value) < 1e15) {
    Require(std::abs(NumberOf(WholeNumberText(value)) - value) <= reach);
  }
}

}  // namespace

}  // namespace tessara::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessara;
  constexpr std::size_t kLongest = 500;  // the pattern takes its time
  if (size > kLongest) return 0;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  Text text;
  for (const char byte : bytes) text += static_cast<unsigned char>(byte);
  const fuzz::Outcome expected = fuzz::Expected(bytes);
  fuzz::CheckNumber(text, expected);
  fuzz::CheckInteger(text, expected);
  fuzz::CheckBoolean(text, expected);
  if (expected.error == fuzz::kNone) fuzz::CheckTexts(expected.value);
  return 0;
}
