#include "base/ascii.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace tessara {

namespace {

constexpr std::size_t kStride = sizeof(std::uint64_t);
constexpr std::uint64_t kHighBits = 0x8080'8080'8080'8080U;

bool IsAscii(const char* stride) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, stride, kStride);
  return (bits & kHighBits) == 0;
}

}  // namespace

std::size_t AsciiLength(std::string_view bytes) {
  std::size_t length = 0;
  while (bytes.size() - length >= kStride && IsAscii(bytes.data() + length)) length += kStride;
  while (length < bytes.size() && static_cast<unsigned char>(bytes[length]) < 0x80) ++length;
  return length;
}

void MoveAscii(Text& text, std::string_view& bytes) {
  const std::size_t length = AsciiLength(bytes);
  const std::size_t before = text.size();
  text.resize(before + length);
  std::copy_n(bytes.data(), length, text.data() + before);
  bytes.remove_prefix(length);
}

bool CopiedAsAscii(TextView text, std::span<char> to) {
  char16_t bits = 0;
  for (const char16_t character : text) bits |= character;
  if (bits >= 0x80) return false;
  std::copy_n(text.begin(), std::min(text.size(), to.size()), to.begin());
  return true;
}

}  // namespace tessara
