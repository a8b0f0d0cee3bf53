#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace tessara {

/// A word of a format with small letters. Of ASCII alone, and so the same in every locale.
[[nodiscard]] inline std::string LowerCase(std::string_view word) {
  std::string lower(word);
  std::ranges::transform(lower, lower.begin(), [](char letter) {
    const bool isCapital = letter >= 'A' && letter <= 'Z';
    return static_cast<char>(isCapital ? letter - 'A' + 'a' : letter);
  });
  return lower;
}

}  // namespace tessara
