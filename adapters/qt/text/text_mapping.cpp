#include "adapters/qt/text/text_mapping.h"

#include <algorithm>

#include "adapters/qt/text/qt_text.h"

namespace tessara {

namespace {

/// The first of the surrogates that stand behind another in a pair.
constexpr char16_t kPlaceholders = 0xDC00;
/// The paragraph separator, and what Qt's documents keep for the borders of their frames.
constexpr TextView kTakenForBorders = u"\u2029\uFDD0\uFDD1";
constexpr char16_t kFirstBehindControls = 0xA0;

bool IsControl(char16_t character) {
  constexpr char16_t kDelete = 0x7F;
  const bool low = character < u' ' && character != u'\t';
  return low || (character >= kDelete && character < kFirstBehindControls);
}

char16_t ShownCharacter(char16_t character) {
  const std::size_t border = kTakenForBorders.find(character);
  if (border != TextView::npos) {
    return static_cast<char16_t>(kPlaceholders + kFirstBehindControls + border);
  }
  return IsControl(character) ? static_cast<char16_t>(kPlaceholders + character) : character;
}

/// The way back, for a character that is no part of a pair of surrogates.
char16_t CharacterOfShown(char16_t shown) {
  if (shown < kPlaceholders) return shown;
  const auto character = static_cast<char16_t>(shown - kPlaceholders);
  if (IsControl(character)) return character;
  const std::size_t border = static_cast<std::size_t>(character) - kFirstBehindControls;
  return border < kTakenForBorders.size() ? kTakenForBorders[border] : shown;
}

/// True where a pair of surrogates begins.
bool IsPair(QStringView shown, qsizetype at) {
  return at >= 0 && at + 1 < shown.size() && shown[at].isHighSurrogate() &&
         shown[at + 1].isLowSurrogate();
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
      shown += QChar(ShownCharacter(text[at]));
    }
  }
  return shown;
}

Text TextOfShown(const QString& shown, bool multiLine) {
  Text text;
  for (qsizetype at = 0; at < shown.size(); ++at) {
    const char16_t code = shown[at].unicode();
    if (IsPair(shown, at)) {
      text += {code, shown[++at].unicode()};
    } else if (multiLine && code == kLineFeed) {
      text += kLineBreak;
    } else {
      text += CharacterOfShown(code);
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
  const auto behind = [&suffix](const QString& text) { return text.size() - suffix; };
  if (suffix > 0 && (IsPair(before, behind(before) - 1) || IsPair(after, behind(after) - 1))) {
    --suffix;
  }
  qsizetype prefix = 0;
  while (prefix < shorter - suffix && before[prefix] == after[prefix]) ++prefix;
  if (IsPair(before, prefix - 1) || IsPair(after, prefix - 1)) --prefix;
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
