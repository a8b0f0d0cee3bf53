#pragma once

#include <array>
#include <string>

#include "base/text.h"
#include "base/utf8.h"

namespace tessara::test {

// The deck file once more, written by hand: what the program's own writer is held against.

inline std::string Padded(const Text& text, std::size_t width) {
  std::string field = ToUtf8(text);  // tests of whole files keep to ASCII
  field.resize(width, ' ');
  return field;
}

inline std::string RecordText(char type, const Text& text, int number,
                              const std::array<Text, 4>& shortFields, const Text& longText) {
  std::string record(1, type);
  record += Padded(text, 444);
  record += static_cast<char>(number % 256);
  record += static_cast<char>(number / 256);
  for (const Text& field : shortFields) record += Padded(field, 75);
  return record + " " + Padded(longText, 444);
}

struct InfoTexts {
  Text date = u"1/5/2026";
  Text type = u" Standard";
  Text title = u"Enter Title Here";
  Text author = u"Your Name Here";
  Text description = u"Deck Description Here";
};

inline std::string InfoBytes(const InfoTexts& info) {
  return RecordText('I', u"", 0, {info.date, info.type, info.title, info.author}, info.description);
}

inline std::string CardBytes(int row, const Text& front, const Text& back) {
  return RecordText('E', front, row, {}, back);
}

inline std::string QuestionBytes(char type, const Text& question, int row,
                                 const std::array<Text, 4>& choices, char answer) {
  std::string record = RecordText(type, question, row, choices, u"");
  constexpr std::size_t kAnswerPlace = 1 + 444 + 2 + 4 * 75;
  record[kAnswerPlace] = answer;
  return record;
}

/// A question that is true.
inline std::string TrueCardBytes(int row, const Text& question) {
  return QuestionBytes('T', question, row, {}, 'T');
}

inline std::string EndBytes() {
  return RecordText('X', u"", 0, {}, u"");
}

/// A file of text cards "front 1", "back 1" and on.
inline std::string DeckBytes(int cards, const InfoTexts& info = {}) {
  std::string bytes = InfoBytes(info);
  for (int row = 1; row <= cards; ++row) {
    bytes += CardBytes(row, u"front " + DecimalText(row), u"back " + DecimalText(row));
  }
  return bytes + EndBytes();
}

}  // namespace tessara::test
