#include "platform/text.h"

#include <algorithm>
#include <cstdint>

namespace tessara {

namespace {

constexpr char16_t kByteSurrogate = 0xDC80;
constexpr unsigned kFirstHighByte = 0x80;

bool IsHighSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit < 0xDC00;
}
bool IsLowSurrogate(char16_t unit) {
  return unit >= 0xDC00 && unit < 0xE000;
}
bool IsByteSurrogate(char16_t unit) {
  return unit >= kByteSurrogate && unit < kByteSurrogate + 0x80;
}

/// Shape of a UTF-8 sequence by its first byte: length, payload of the first byte, least value.
struct Sequence {
  std::size_t length;
  std::uint32_t payload;
  std::uint32_t least;
};

Sequence SequenceOf(unsigned char first) {
  if (first < 0x80) return {1, first, 0};
  if ((first & 0xE0U) == 0xC0) return {2, first & 0x1FU, 0x80};
  if ((first & 0xF0U) == 0xE0) return {3, first & 0x0FU, 0x800};
  if ((first & 0xF8U) == 0xF0) return {4, first & 0x07U, 0x10000};
  return {0, 0, 0};
}

/// The code point at the head of the bytes and its length; length 0 where it is no UTF-8.
std::pair<std::uint32_t, std::size_t> CodePointOf(std::string_view bytes) {
  const Sequence sequence = SequenceOf(static_cast<unsigned char>(bytes.front()));
  if (sequence.length == 0 || sequence.length > bytes.size()) return {0, 0};
  std::uint32_t value = sequence.payload;
  for (std::size_t at = 1; at < sequence.length; ++at) {
    const auto next = static_cast<unsigned char>(bytes[at]);
    if ((next & 0xC0U) != 0x80) return {0, 0};
    value = (value << 6U) | (next & 0x3FU);
  }
  const bool surrogate = value >= 0xD800 && value < 0xE000;
  if (value < sequence.least || value > 0x10FFFF || surrogate) return {0, 0};
  return {value, sequence.length};
}

void AppendUtf16(Text& text, std::uint32_t codePoint) {
  if (codePoint < 0x10000) {
    text += static_cast<char16_t>(codePoint);
    return;
  }
  const std::uint32_t offset = codePoint - 0x10000;
  text += static_cast<char16_t>(0xD800 + (offset >> 10U));
  text += static_cast<char16_t>(0xDC00 + (offset & 0x3FFU));
}

void AppendUtf8(std::string& bytes, std::uint32_t codePoint) {
  const auto tail = [&bytes, codePoint](unsigned shift) {
    bytes += static_cast<char>(0x80U | ((codePoint >> shift) & 0x3FU));
  };
  if (codePoint < 0x80) {
    bytes += static_cast<char>(codePoint);
  } else if (codePoint < 0x800) {
    bytes += static_cast<char>(0xC0U | (codePoint >> 6U));
    tail(0);
  } else if (codePoint < 0x10000) {
    bytes += static_cast<char>(0xE0U | (codePoint >> 12U));
    tail(6);
    tail(0);
  } else {
    bytes += static_cast<char>(0xF0U | (codePoint >> 18U));
    tail(12);
    tail(6);
    tail(0);
  }
}

/// Upper case of one character; those without a single counterpart in 16 bits stay.
char16_t UpperCase(char16_t c) {
  if ((c >= u'a' && c <= u'z') || (c >= u'à' && c <= u'þ' && c != u'÷')) {
    return static_cast<char16_t>(c - 0x20);
  }
  if (c == u'ÿ') return u'Ÿ';
  const bool pairedLatin = (c >= 0x100 && c <= 0x137) || (c >= 0x14A && c <= 0x177);
  const bool oddLowerLatin = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
  if (pairedLatin && c != 0x131) return static_cast<char16_t>(c & ~1U);
  if (oddLowerLatin) return static_cast<char16_t>(c % 2 == 0 ? c - 1 : c);
  if (c >= 0x3B1 && c <= 0x3CB && c != 0x3C2) return static_cast<char16_t>(c - 0x20);
  if (c >= 0x430 && c <= 0x44F) return static_cast<char16_t>(c - 0x20);
  if (c >= 0x450 && c <= 0x45F) return static_cast<char16_t>(c - 0x50);
  return c;
}

}  // namespace

TextView Trimmed(TextView text) {
  const auto first = text.find_first_not_of(u' ');
  if (first == TextView::npos) return {};
  return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

Text UpperCase(TextView text) {
  Text upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(),
                 [](char16_t c) { return UpperCase(c); });
  return upper;
}

Text DecimalText(long value) {
  return FromUtf8(std::to_string(value));
}

Text FromUtf8(std::string_view bytes) {
  Text text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    const auto [codePoint, length] = CodePointOf(bytes);
    if (length > 0) {
      AppendUtf16(text, codePoint);
    } else {
      const unsigned byte = static_cast<unsigned char>(bytes.front());
      text += static_cast<char16_t>(kByteSurrogate + byte - kFirstHighByte);
    }
    bytes.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return text;
}

std::string ToUtf8(TextView text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char16_t unit = text[at];
    const bool pair = IsHighSurrogate(unit) && at + 1 < text.size() && IsLowSurrogate(text[at + 1]);
    if (pair) {
      const std::uint32_t high = unit - 0xD800U;
      AppendUtf8(bytes, 0x10000U + (high << 10U) + (text[++at] - 0xDC00U));
    } else if (IsByteSurrogate(unit)) {
      bytes += static_cast<char>(unit - kByteSurrogate + kFirstHighByte);
    } else {
      AppendUtf8(bytes, unit);
    }
  }
  return bytes;
}

}  // namespace tessara
