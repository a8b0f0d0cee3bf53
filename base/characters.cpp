#include "base/characters.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <new>
#include <unictype.h>
#include <unigbrk.h>
#include <uninorm.h>
#include <unistr.h>
#include <vector>

namespace tessara {

namespace {

static_assert(sizeof(char16_t) == sizeof(std::uint16_t));

const std::uint16_t* UnitsOf(TextView text) {
  return reinterpret_cast<const std::uint16_t*>(text.data());
}

/// One entry for each unit: not 0 where a character begins.
std::vector<char> Beginnings(TextView text) {
  std::vector<char> beginnings(text.size());
  u16_grapheme_breaks(UnitsOf(text), text.size(), beginnings.data());
  return beginnings;
}

/// Where the first surrogate stands that is no part of a pair; the length where there is none.
std::size_t FirstLoneSurrogate(TextView text) {
  const std::uint16_t* const lone = u16_check(UnitsOf(text), text.size());
  return lone == nullptr ? text.size() : static_cast<std::size_t>(lone - UnitsOf(text));
}

}  // namespace

std::size_t CharacterCount(TextView text) {
  const std::vector<char> beginnings = Beginnings(text);
  return beginnings.size() - static_cast<std::size_t>(std::ranges::count(beginnings, 0));
}

TextView WholeCharacters(TextView text, std::size_t mostUnits) {
  if (text.size() <= mostUnits) return text;
  // Whether a character begins somewhere hangs on what stands before and on the next code point.
  constexpr std::size_t kLongestCodePoint = 2;
  const std::vector<char> beginnings = Beginnings(text.substr(0, mostUnits + kLongestCodePoint));
  while (mostUnits > 0 && beginnings[mostUnits] == 0) --mostUnits;
  return text.substr(0, mostUnits);
}

Text WellFormed(TextView text) {
  constexpr char16_t kReplacement = 0xFFFD;
  Text result(text);
  for (std::size_t at = 0; (at += FirstLoneSurrogate(TextView(result).substr(at))) < text.size();) {
    result[at++] = kReplacement;
  }
  return result;
}

Text Composed(TextView text) {
  const Text wellFormed = WellFormed(text);
  std::size_t length = 0;
  const std::unique_ptr<std::uint16_t, decltype(&std::free)> composed(
      u16_normalize(UNINORM_NFC, UnitsOf(wellFormed), wellFormed.size(), nullptr, &length),
      &std::free);
  if (!composed && errno == ENOMEM) throw std::bad_alloc();
  return {reinterpret_cast<const char16_t*>(composed.get()), length};
}

bool IsRightToLeft(TextView text) {
  const std::uint16_t* at = UnitsOf(text);
  ucs4_t letter = 0;
  for (std::size_t left = text.size(); left > 0;) {
    const int length = u16_mbtouc(&letter, at, left);
    const int direction = uc_bidi_class(letter);
    if (direction == UC_BIDI_L) return false;
    if (direction == UC_BIDI_R || direction == UC_BIDI_AL) return true;
    at += length;
    left -= static_cast<std::size_t>(length);
  }
  return false;
}

std::size_t Utf8Length(std::string_view bytes) {
  const auto* const first = reinterpret_cast<const std::uint8_t*>(bytes.data());
  const std::uint8_t* const invalid = u8_check(first, bytes.size());
  return invalid == nullptr ? bytes.size() : static_cast<std::size_t>(invalid - first);
}

}  // namespace tessara
