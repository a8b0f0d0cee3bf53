#include "companion/formats/tables/html_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <libxml/HTMLparser.h>
#include <string>

#include "base/utf8.h"

namespace tessara {

namespace {

constexpr std::array<std::string_view, 7> kBlocks = {"div", "p", "li", "tr", "ul", "ol", "table"};
/// The longest of the standard's names has eight letters, the longest number seven digits.
constexpr std::size_t kLongestReference = 12;

bool IsLetter(char16_t character) {
  return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

std::size_t LengthPast(TextView html, TextView end) {
  const std::size_t found = html.find(end);
  return found == html.npos ? 0 : found + end.size();
}

std::size_t LengthOfComment(TextView html) {
  return LengthPast(html, u"-->");
}

std::size_t LengthToBracket(TextView html) {
  return LengthPast(html, u">");
}

/// A bracket in an attribute's quotation marks ends no tag.
std::size_t LengthOfTag(TextView html) {
  char16_t quote = 0;
  for (std::size_t at = 1; at < html.size(); ++at) {
    const char16_t character = html[at];
    if (quote != 0) {
      if (character == quote) quote = 0;
    } else if (character == u'"' || character == u'\'') {
      quote = character;
    } else if (character == u'>') {
      return at + 1;
    }
  }
  return 0;
}

/// Looks for an end until it was once not found, so that a text of many beginnings without an end
/// takes no longer than others.
class EndSearch {
 public:
  explicit EndSearch(std::size_t (*length)(TextView)) : length_(length) {}

  /// 0 where there is none.
  std::size_t Length(TextView html) {
    const std::size_t length = failed_ ? 0 : length_(html);
    failed_ = length == 0;
    return length;
  }

 private:
  std::size_t (*length_)(TextView);
  bool failed_ = false;
};

/// Finds the tags and comments of one text, from its front to its end.
class Tags {
 public:
  /// The length of the one at the front; 0 where there is none.
  std::size_t LengthAt(TextView html) {
    if (!Opens(html)) return 0;
    std::size_t length = html.starts_with(u"<!--") ? comment_.Length(html) : tag_.Length(html);
    if (length == 0) length = bracket_.Length(html);
    return length;
  }

 private:
  static bool Opens(TextView html) {
    if (!html.starts_with(u'<') || html.size() < 2) return false;
    return IsLetter(html[1]) || html[1] == u'/' || html[1] == u'!';
  }

  EndSearch comment_{LengthOfComment};
  EndSearch tag_{LengthOfTag};
  EndSearch bracket_{LengthToBracket};
};

/// In lower case; empty for an end tag.
std::string NameOfTag(TextView tag) {
  std::string name;
  for (const char16_t character : tag.substr(1)) {
    if (!IsLetter(character)) break;
    name += static_cast<char>(static_cast<unsigned>(character) | 0x20U);
  }
  return name;
}

void TakeTag(TextView tag, Text& text) {
  const std::string name = NameOfTag(tag);
  const bool block = std::find(kBlocks.begin(), kBlocks.end(), name) != kBlocks.end();
  const bool begun = !text.empty() && !text.ends_with(kLineBreak);
  if (name == "br" || (block && begun)) text += kLineBreak;
}

bool IsCharacter(unsigned code) {
  const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
  return code > 0 && code <= 0x10FFFF && !surrogate;
}

Text TextOfCode(unsigned code) {
  constexpr unsigned kFirstPair = 0x10000;
  if (code < kFirstPair) return {static_cast<char16_t>(code)};
  const unsigned rest = code - kFirstPair;
  return {static_cast<char16_t>(0xD800U + (rest >> 10U)),
          static_cast<char16_t>(0xDC00U + (rest & 0x3FFU))};
}

/// 0 where it is no number.
unsigned CodeOfNumber(std::string_view digits) {
  const bool hexadecimal = digits.starts_with('x') || digits.starts_with('X');
  if (hexadecimal) digits.remove_prefix(1);
  unsigned code = 0;
  const char* end = digits.data() + digits.size();
  const auto read = std::from_chars(digits.data(), end, code, hexadecimal ? 16 : 10);
  return read.ptr == end && read.ec == std::errc() ? code : 0;
}

/// 0 where there is none of the name.
unsigned CodeOfReference(const std::string& name) {
  if (name.starts_with('#')) return CodeOfNumber(std::string_view(name).substr(1));
  const auto* entity = htmlEntityLookup(reinterpret_cast<const xmlChar*>(name.c_str()));
  return entity == nullptr ? 0 : entity->value;
}

/// Takes the character reference at the front, or the one character that begins none.
void TakeReference(TextView& html, Text& text) {
  const std::size_t end = html.substr(0, kLongestReference).find(u';');
  const bool closed = end != html.npos;
  const unsigned code = closed ? CodeOfReference(ToUtf8(html.substr(1, end - 1))) : 0;
  const bool known = IsCharacter(code);
  text += known ? TextOfCode(code) : Text(1, html.front());
  html.remove_prefix(known ? end + 1 : 1);
}

}  // namespace

Text TextOfHtml(TextView html) {
  Text text;
  Tags tags;
  while (!html.empty()) {
    if (const std::size_t tag = tags.LengthAt(html); tag > 0) {
      TakeTag(html.substr(0, tag), text);
      html.remove_prefix(tag);
    } else if (html.front() == u'&') {
      TakeReference(html, text);
    } else {
      text += html.front();
      html.remove_prefix(1);
    }
  }
  return text;
}

}  // namespace tessara
