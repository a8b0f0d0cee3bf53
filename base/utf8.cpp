#include "base/utf8.h"

#include <cstddef>
#include <optional>

#include "base/ascii.h"

namespace tessara {

namespace {

constexpr char32_t kFirstHighSurrogate = 0xD800;
constexpr char32_t kFirstLowSurrogate = 0xDC00;
constexpr char32_t kLastLowSurrogate = 0xDFFF;
constexpr char32_t kFirstBeyondUnits = 0x10000;
constexpr char32_t kLastCharacter = 0x10FFFF;
constexpr char32_t kReplacement = 0xFFFD;
/// Lone surrogates that stand for the bytes 0x80 to 0xFF.
constexpr char32_t kFirstRawByte = 0xDC80;
constexpr char32_t kLastRawByte = 0xDCFF;

bool IsSurrogate(char32_t character) {
  return character >= kFirstHighSurrogate && character <= kLastLowSurrogate;
}

bool IsHighSurrogate(char32_t unit) {
  return unit >= kFirstHighSurrogate && unit < kFirstLowSurrogate;
}

bool IsLowSurrogate(char32_t unit) {
  return unit >= kFirstLowSurrogate && unit <= kLastLowSurrogate;
}

/// Bytes of the sequence that the byte begins; 0 where it begins none.
std::size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

/// The character that the bytes begin with, if they are well-formed and shortest.
std::optional<char32_t> FirstCharacter(std::string_view bytes) {
  constexpr unsigned kLeadBits[] = {0x7F, 0x1F, 0x0F, 0x07};
  constexpr char32_t kSmallest[] = {0, 0x80, 0x800, kFirstBeyondUnits};
  const auto lead = static_cast<unsigned char>(bytes.front());
  const std::size_t length = SequenceLength(lead);
  if (length == 0 || length > bytes.size()) return std::nullopt;
  char32_t character = lead & kLeadBits[length - 1];
  for (const char byte : bytes.substr(1, length - 1)) {
    const auto bits = static_cast<unsigned char>(byte);
    if ((bits & 0xC0U) != 0x80U) return std::nullopt;
    character = (character << 6U) | (bits & 0x3FU);
  }
  const bool valid =
      character >= kSmallest[length - 1] && character <= kLastCharacter && !IsSurrogate(character);
  return valid ? std::optional(character) : std::nullopt;
}

void AppendUnits(Text& text, char32_t character) {
  if (character < kFirstBeyondUnits) {
    text += static_cast<char16_t>(character);
    return;
  }
  const char32_t offset = character - kFirstBeyondUnits;
  text += static_cast<char16_t>(kFirstHighSurrogate + (offset >> 10U));
  text += static_cast<char16_t>(kFirstLowSurrogate + (offset & 0x3FFU));
}

/// The character that the text begins with: a pair of surrogates is one.
char32_t FirstCharacter(TextView text) {
  const char32_t unit = text.front();
  const bool pair = IsHighSurrogate(unit) && text.size() > 1 && IsLowSurrogate(text[1]);
  if (!pair) return unit;
  return kFirstBeyondUnits + ((unit - kFirstHighSurrogate) << 10U) + (text[1] - kFirstLowSurrogate);
}

void AppendContinuations(std::string& bytes, char32_t character, unsigned count) {
  while (count-- > 0) {
    bytes += static_cast<char>(0x80U | ((character >> (6U * count)) & 0x3FU));
  }
}

void AppendBytes(std::string& bytes, char32_t character) {
  if (character < 0x80) {
    bytes += static_cast<char>(character);
  } else if (character < 0x800) {
    bytes += static_cast<char>(0xC0U | (character >> 6U));
    AppendContinuations(bytes, character, 1);
  } else if (character < kFirstBeyondUnits) {
    bytes += static_cast<char>(0xE0U | (character >> 12U));
    AppendContinuations(bytes, character, 2);
  } else {
    bytes += static_cast<char>(0xF0U | (character >> 18U));
    AppendContinuations(bytes, character, 3);
  }
}

}  // namespace

Text FromUtf8(std::string_view bytes) {
  Text text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    MoveAscii(text, bytes);
    if (bytes.empty()) break;
    const auto lead = static_cast<unsigned char>(bytes.front());
    const std::optional<char32_t> character = FirstCharacter(bytes);
    AppendUnits(text, character.value_or(kFirstRawByte + (lead - 0x80U)));
    bytes.remove_prefix(character ? SequenceLength(lead) : 1);
  }
  return text;
}

std::string ToUtf8(TextView text) {
  std::string bytes;
  bytes.reserve(text.size());
  while (!text.empty()) {
    const char32_t character = FirstCharacter(text);
    if (character >= kFirstRawByte && character <= kLastRawByte) {
      bytes += static_cast<char>(character - kFirstRawByte + 0x80U);
    } else {
      AppendBytes(bytes, IsSurrogate(character) ? kReplacement : character);
    }
    text.remove_prefix(character < kFirstBeyondUnits ? 1 : 2);
  }
  return bytes;
}

}  // namespace tessara
