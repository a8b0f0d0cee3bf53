#include "base/code_page.h"

#include "base/ascii.h"

namespace tessara {

namespace {

constexpr std::size_t kFirstUpper = 0x80;

constexpr CodePage::UpperHalf WesternUpperHalf() {
  constexpr char16_t kFirstRows[] = {
      0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
      0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
      0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178,
  };
  CodePage::UpperHalf half{};
  for (std::size_t at = 0; at < half.size(); ++at) {
    half[at] =
        at < std::size(kFirstRows) ? kFirstRows[at] : static_cast<char16_t>(kFirstUpper + at);
  }
  return half;
}

/// The character that stands for a byte without one: a control character, or above those, where
/// other code pages have letters, one of private use.
char16_t UnassignedCharacter(std::size_t byte) {
  constexpr std::size_t kFirstAfterControls = 0xA0;
  constexpr std::size_t kPrivateUse = 0xF700;
  return static_cast<char16_t>(byte < kFirstAfterControls ? byte : kPrivateUse + byte);
}

}  // namespace

CodePage::CodePage(const UpperHalf& upperHalf) {
  for (std::size_t byte = 0; byte < characters_.size(); ++byte) {
    const char16_t assigned =
        byte < kFirstUpper ? static_cast<char16_t>(byte) : upperHalf[byte - kFirstUpper];
    const bool holds = byte < kFirstUpper || assigned != 0;
    characters_[byte] = holds ? assigned : UnassignedCharacter(byte);
    bytes_.emplace(characters_[byte], static_cast<char>(byte));
  }
}

const CodePage& CodePage::Western() {
  static const CodePage western(WesternUpperHalf());
  return western;
}

Text CodePage::Decode(std::string_view bytes) const {
  Text text;
  text.reserve(bytes.size());
  while (true) {
    MoveAscii(text, bytes);
    if (bytes.empty()) return text;
    text += characters_[static_cast<unsigned char>(bytes.front())];
    bytes.remove_prefix(1);
  }
}

std::optional<std::string> CodePage::Encode(TextView text) const {
  std::string bytes;
  bytes.reserve(text.size());
  for (const char16_t character : text) {
    if (character < kFirstUpper) {
      bytes += static_cast<char>(character);
      continue;
    }
    const auto found = bytes_.find(character);
    if (found == bytes_.end()) return std::nullopt;
    bytes += found->second;
  }
  return bytes;
}

}  // namespace tessara
