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

/// The length of the tag or comment at the front; 0 where there is none.
std::size_t TagLength(TextView html) {
  if (!html.starts_with(u'<') || html.size() < 2) return 0;
  const bool opens = IsLetter(html[1]) || html[1] == u'/' || html[1] == u'!';
  const std::size_t end = opens ? html.find(u'>') : html.npos;
  return end == html.npos ? 0 : end + 1;
}

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
  while (!html.empty()) {
    if (const std::size_t tag = TagLength(html); tag > 0) {
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
