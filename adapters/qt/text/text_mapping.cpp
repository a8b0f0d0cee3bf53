#include "adapters/qt/text/text_mapping.h"

#include <algorithm>

#include "adapters/qt/text/qt_text.h"

namespace tessara {

namespace {

constexpr char16_t kPlaceholders = 0xE000;

bool IsControl(char16_t character) {
  constexpr char16_t kDelete = 0x7F;
  constexpr char16_t kLastControl = 0x9F;
  const bool low = character < u' ' && character != u'\t';
  return low || (character >= kDelete && character <= kLastControl);
}

bool IsPlaceholder(char16_t character) {
  return character >= kPlaceholders && IsControl(static_cast<char16_t>(character - kPlaceholders));
}

bool IsLineBreak(TextView text, std::size_t at) {
  return text.substr(at, kLineBreak.size()) == kLineBreak;
}

/// How many characters of the text the first `shown` shown ones are.
std::size_t PlaceInText(TextView text, qsizetype shown, bool multiLine) {
  std::size_t at = 0;
  for (qsizetype count = 0; count < shown && at < text.size(); ++count) {
    at += multiLine && IsLineBreak(text, at) ? kLineBreak.size() : 1;
  }
  return at;
}

}  // namespace

QString ShownText(TextView text, bool multiLine) {
  QString shown;
  shown.reserve(static_cast<qsizetype>(text.size()));
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (multiLine && IsLineBreak(text, at)) {
      shown += u'\n';
      ++at;
    } else {
      shown += QChar(IsControl(text[at]) ? kPlaceholders + text[at] : text[at]);
    }
  }
  return shown;
}

Text TextOfShown(const QString& shown, bool multiLine) {
  Text text;
  for (const QChar character : shown) {
    const char16_t code = character.unicode();
    if (multiLine && code == kLineFeed) {
      text += kLineBreak;
    } else {
      text += IsPlaceholder(code) ? static_cast<char16_t>(code - kPlaceholders) : code;
    }
  }
  return text;
}

ShownEdit ChangeBetween(const QString& before, const QString& after, qsizetype cursor) {
  const qsizetype shorter = std::min(before.size(), after.size());
  const qsizetype behindCursor = std::clamp<qsizetype>(after.size() - cursor, 0, shorter);
  qsizetype suffix = 0;
  while (suffix < behindCursor &&
         before[before.size() - 1 - suffix] == after[after.size() - 1 - suffix]) {
    ++suffix;
  }
  qsizetype prefix = 0;
  while (prefix < shorter - suffix && before[prefix] == after[prefix]) ++prefix;
  return {prefix, before.size() - suffix - prefix,
          after.mid(prefix, after.size() - suffix - prefix)};
}

TextEdit UserChange(TextView text, const QString& after, qsizetype cursor, bool multiLine) {
  const ShownEdit edit = ChangeBetween(ShownText(text, multiLine), after, cursor);
  const std::size_t place = PlaceInText(text, edit.place, multiLine);
  const std::size_t end = PlaceInText(text, edit.place + edit.removed, multiLine);
  return {place, end - place, TextOfShown(edit.inserted, multiLine)};
}

}  // namespace tessara
