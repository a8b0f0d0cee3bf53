#pragma once

#include <cstdint>
#include <span>

#include "base/text.h"

namespace tessara::fuzz {

/// Takes decisions off the fuzzer's bytes, from the front. Behind the end all of them are 0.
class ByteSource {
 public:
  ByteSource(const std::uint8_t* data, std::size_t size) : rest_(data, size) {}

  [[nodiscard]] bool Empty() const { return rest_.empty(); }

  std::uint8_t Next() {
    if (rest_.empty()) return 0;
    const std::uint8_t byte = rest_.front();
    rest_ = rest_.subspan(1);
    return byte;
  }
  /// From 0 up to, not including, `count`, which is at most 65536.
  std::size_t Below(std::size_t count) {
    const std::size_t high = count > 256 ? Next() : 0U;
    return count == 0 ? 0 : (high * 256 + Next()) % count;
  }
  template <class Values>
  const auto& OneOf(const Values& values) {
    return *(std::begin(values) + static_cast<std::ptrdiff_t>(Below(std::size(values))));
  }
  /// A length, then so many bytes as characters of Latin-1; 255 stands for a character beyond it.
  Text TakeText(std::size_t longest) {
    Text text(Below(longest + 1), u' ');
    for (char16_t& character : text) {
      const std::uint8_t byte = Next();
      character = byte == 255 ? u'\x4E2D' : byte;
    }
    return text;
  }

 private:
  std::span<const std::uint8_t> rest_;
};

}  // namespace tessara::fuzz
