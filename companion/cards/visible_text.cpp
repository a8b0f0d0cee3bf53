#include "companion/cards/visible_text.h"

#include <array>
#include <cstdio>

#include "companion/cards/text_form.h"

namespace tessara {

namespace {

bool IsBetween(char16_t character, char16_t first, char16_t last) {
  return character >= first && character <= last;
}

bool TurnsDirection(char16_t character) {
  return IsBetween(character, 0x200E, 0x200F) || IsBetween(character, 0x202A, 0x202E) ||
         IsBetween(character, 0x2066, 0x2069);
}

bool IsUnseen(char16_t character) {
  const bool separates = character == 0x2028 || character == 0x2029 || character == 0xFEFF;
  return character < u' ' || IsBetween(character, 0x7F, 0x9F) || separates ||
         TurnsDirection(character);
}

Text CodeOf(char16_t character) {
  std::array<char, 8> digits{};
  std::snprintf(digits.data(), digits.size(), "\\u%04X", static_cast<unsigned>(character));
  return {digits.data(), digits.data() + 6};
}

Text Visible(char16_t character) {
  switch (character) {
    case u'\\':
      return u"\\\\";
    case kCarriageReturn:
      return u"\\r";
    case kLineFeed:
      return u"\\n";
    case u'\t':
      return u"\\t";
    default:
      return IsUnseen(character) ? CodeOf(character) : Text(1, character);
  }
}

}  // namespace

std::string VisibleText(TextView text) {
  Text visible;
  for (std::size_t at = 0; at < text.size(); ++at) {
    // A line break is one thing to the reader.
    if (text.substr(at).starts_with(kLineBreak)) ++at;
    visible += Visible(text[at]);
  }
  return WellFormedUtf8(visible);
}

}  // namespace tessara
