#include "platform/code_page.h"

#include <algorithm>

namespace tessara {

namespace {

constexpr unsigned kFirstUpper = 0x80;

CodePage::UpperHalf WesternUpperHalf() {
  CodePage::UpperHalf upper = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                               0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                               0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                               0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
  for (std::size_t at = 0x20; at < upper.size(); ++at) {
    upper[at] = static_cast<char16_t>(kFirstUpper + at);
  }
  return upper;
}

}  // namespace

CodePage::CodePage(const UpperHalf& upperHalf) {
  for (unsigned byte = 0; byte < characters_.size(); ++byte) {
    const char16_t assigned = byte < kFirstUpper ? char16_t{0} : upperHalf[byte - kFirstUpper];
    characters_[byte] = assigned != 0 ? assigned : static_cast<char16_t>(byte);
    bytes_.emplace(characters_[byte], static_cast<char>(byte));
  }
}

const CodePage& CodePage::Western() {
  static const CodePage western(WesternUpperHalf());
  return western;
}

Text CodePage::Decode(std::string_view bytes) const {
  Text text(bytes.size(), u'\0');
  std::transform(bytes.begin(), bytes.end(), text.begin(),
                 [this](char byte) { return characters_[static_cast<unsigned char>(byte)]; });
  return text;
}

std::string CodePage::Encode(TextView text) const {
  std::string bytes(text.size(), '?');
  std::transform(text.begin(), text.end(), bytes.begin(), [this](char16_t character) {
    const auto found = bytes_.find(character);
    return found == bytes_.end() ? '?' : found->second;
  });
  return bytes;
}

Text CodePage::Representable(TextView text) const {
  return Decode(Encode(text));
}

bool CodePage::Holds(char16_t character) const {
  return bytes_.contains(character);
}

}  // namespace tessara
