#include "base/text.h"

#include <string>

namespace tessara {

namespace {

/// A run of lower-case letters and what leads to their upper-case ones.
struct CaseRange {
  char16_t first;
  char16_t last;
  char16_t step;  ///< 2 where lower and upper case take turns
  int toUpper;
};

constexpr CaseRange kCaseRanges[] = {
    {u'a', u'z', 1, -32},           {u'\u00E0', u'\u00F6', 1, -32},
    {u'\u00F8', u'\u00FE', 1, -32}, {u'\u00FF', u'\u00FF', 1, 0x79},
    {u'\u0101', u'\u012F', 2, -1},  {u'\u0131', u'\u0131', 1, u'I' - 0x131},
    {u'\u0133', u'\u0137', 2, -1},  {u'\u013A', u'\u0148', 2, -1},
    {u'\u014B', u'\u0177', 2, -1},  {u'\u017A', u'\u017E', 2, -1},
    {u'\u01A1', u'\u01A1', 1, -1},  {u'\u01B0', u'\u01B0', 1, -1},
    {u'\u03AC', u'\u03AC', 1, -38}, {u'\u03AD', u'\u03AF', 1, -37},
    {u'\u03B1', u'\u03C1', 1, -32}, {u'\u03C2', u'\u03C2', 1, -31},
    {u'\u03C3', u'\u03CB', 1, -32}, {u'\u03CC', u'\u03CC', 1, -64},
    {u'\u03CD', u'\u03CE', 1, -63}, {u'\u0430', u'\u044F', 1, -32},
    {u'\u0450', u'\u045F', 1, -80}, {u'\u0491', u'\u0491', 1, -1},
};

char16_t UpperCase(char16_t character) {
  for (const CaseRange& range : kCaseRanges) {
    const bool within = character >= range.first && character <= range.last;
    if (within && (character - range.first) % range.step == 0) {
      return static_cast<char16_t>(character + range.toUpper);
    }
  }
  return character;
}

}  // namespace

TextView Trimmed(TextView text) {
  const std::size_t first = text.find_first_not_of(u' ');
  if (first == TextView::npos) return {};
  return text.substr(first, text.find_last_not_of(u' ') - first + 1);
}

Text UpperCase(TextView text) {
  Text result(text);
  for (char16_t& character : result) character = UpperCase(character);
  return result;
}

Text DecimalText(long value) {
  const std::string digits = std::to_string(value);
  return {digits.begin(), digits.end()};
}

Text WithLineBreaks(TextView text) {
  Text result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char16_t character = text[at];
    if (character != kCarriageReturn && character != kLineFeed) {
      result += character;
      continue;
    }
    result += kLineBreak;
    const bool pair = character == kCarriageReturn && text.substr(at + 1, 1) == u"\n";
    if (pair) ++at;
  }
  return result;
}

}  // namespace tessara
