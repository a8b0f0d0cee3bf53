#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "base/text.h"

namespace tessara {

/// A single-byte code page: a total map between bytes and characters. Every byte, NUL and the
/// unassigned ones included (they are control characters, or characters of private use), comes
/// back as it was.
class CodePage {
 public:
  /// The characters of the bytes 0x80 to 0xFF; 0 marks an unassigned byte. Below lies ASCII.
  using UpperHalf = std::array<char16_t, 128>;

  explicit CodePage(const UpperHalf& upperHalf);

  /// windows-1252, for western languages and where nothing is known.
  static const CodePage& Western();

  [[nodiscard]] Text Decode(std::string_view bytes) const;
  /// Nothing where the code page lacks a character of the text.
  [[nodiscard]] std::optional<std::string> Encode(TextView text) const;

 private:
  std::array<char16_t, 256> characters_{};
  std::unordered_map<char16_t, char> bytes_;
};

}  // namespace tessara
