#pragma once

#include <string_view>

namespace tessara {

/// Tells whether bytes, which come in blocks of any size, are well-formed UTF-8.
class Utf8Check {
 public:
  void Feed(std::string_view block);
  /// True where the bytes so far are well-formed and no character is cut off.
  [[nodiscard]] bool IsWellFormed() const { return !broken_ && missing_ == 0; }
  /// True once the bytes can't be UTF-8 any more, whatever follows.
  [[nodiscard]] bool IsBroken() const { return broken_; }
  [[nodiscard]] bool HasNonAscii() const { return hasNonAscii_; }

 private:
  void TakeLead(unsigned char byte);
  void TakeContinuation(unsigned char byte);
  void ExpectContinuations(int count, unsigned char lowest, unsigned char highest);

  bool broken_ = false;
  bool hasNonAscii_ = false;
  int missing_ = 0;  ///< bytes that the character begun still needs
  /// Bounds of the next of those bytes: they keep out overlong forms and surrogates.
  unsigned char lowest_ = 0;
  unsigned char highest_ = 0;
};

}  // namespace tessara
