#include "base/number_reader.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "base/run_time_error.h"

namespace tessara {

namespace {

/// Reads a number from its front to its back, one piece of the grammar at a time. `plain_` becomes
/// the same number as the standard library reads it.
class NumberReader {
 public:
  explicit NumberReader(TextView text) : rest_(Trimmed(text)) {}

  std::optional<double> Read() {
    if (Take(u'&')) return ReadRadix();
    ReadSign();
    if (!ReadMantissa() || !ReadExponent() || !rest_.empty()) return std::nullopt;
    return Value();
  }

 private:
  bool Take(char16_t character) {
    if (rest_.empty() || rest_.front() != character) return false;
    rest_.remove_prefix(1);
    return true;
  }

  bool TakeLetter(char16_t lower, char16_t upper) { return Take(lower) || Take(upper); }

  static bool IsDigit(char16_t c) { return c >= u'0' && c <= u'9'; }

  int TakeDigits() {
    int count = 0;
    for (; !rest_.empty() && IsDigit(rest_.front()); rest_.remove_prefix(1), ++count) {
      plain_ += static_cast<char>(rest_.front());
    }
    return count;
  }

  void ReadSign() {
    if (Take(u'-')) {
      plain_ += '-';
    } else {
      Take(u'+');
    }
  }

  bool ReadMantissa() {
    int digits = TakeDigits();
    if (Take(u'.')) {
      if (digits == 0) plain_ += '0';
      plain_ += '.';
      const int decimals = TakeDigits();
      if (decimals == 0) plain_ += '0';
      digits += decimals;
    }
    return digits > 0;
  }

  bool ReadExponent() {
    if (!TakeLetter(u'e', u'E') && !TakeLetter(u'd', u'D')) return true;
    plain_ += 'e';
    ReadSign();
    return TakeDigits() > 0;
  }

  std::optional<double> ReadRadix() {
    const int radix = TakeLetter(u'h', u'H') ? 16 : TakeLetter(u'o', u'O') ? 8 : 0;
    if (radix == 0 || rest_.empty()) return std::nullopt;
    for (const char16_t c : rest_) plain_ += c < 0x80 ? static_cast<char>(c) : '?';
    std::uint64_t value = 0;
    const char* const end = plain_.data() + plain_.size();
    const auto result = std::from_chars(plain_.data(), end, value, radix);
    if (result.ptr != end) return std::nullopt;
    if (result.ec == std::errc::result_out_of_range || value > 0xFFFFFFFFU) {
      throw RunTimeError(ErrorNumber::kOverflow);
    }
    return SignedOf(value);
  }

  /// What fits into 16 bits is a 16-bit integer with its sign, the rest a 32-bit one.
  static double SignedOf(std::uint64_t value) {
    if (value <= 0xFFFFU) return static_cast<std::int16_t>(value);
    return static_cast<std::int32_t>(value);
  }

  [[nodiscard]] double Value() const {
    double value = 0;
    const auto result = std::from_chars(plain_.data(), plain_.data() + plain_.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
      // Too small reads as nothing; too large is an overflow.
      if (IsBelowOne()) return 0;
      throw RunTimeError(ErrorNumber::kOverflow);
    }
    return value;
  }

  /// By the place of the first digit that counts and the exponent, which may be of any size.
  [[nodiscard]] bool IsBelowOne() const {
    const auto placeOf = [this](const char* characters) {
      return static_cast<double>(std::min(plain_.find_first_of(characters), plain_.size()));
    };
    const double digit = placeOf("123456789");
    const double point = placeOf(".e");
    const double digitsBeforePoint = digit < point ? point - digit : point + 1 - digit;
    return digitsBeforePoint + Exponent() < 1;
  }

  [[nodiscard]] double Exponent() const {
    const std::size_t mark = plain_.find('e');
    return mark == std::string::npos ? 0 : std::strtod(plain_.c_str() + mark + 1, nullptr);
  }

  TextView rest_;
  std::string plain_;
};

}  // namespace

std::optional<double> ReadNumber(TextView text) {
  return NumberReader(text).Read();
}

}  // namespace tessara
