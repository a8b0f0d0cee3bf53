#pragma once

#include <string>

#include "deck/file/deck_file.h"
#include "fuzz/byte_source.h"

namespace tessara::fuzz {

/// A deck file of a few cards, whose letters, rows and texts are sound more often than not.
inline std::string TakeDeck(ByteSource& bytes) {
  constexpr TextView kLetters = u"EEEETTMMIX? ";
  const std::size_t cards = bytes.Next();
  const TextView family = cards % 2 == 0 ? u"E" : u"M";
  const int count = cards > 250 ? 201 : static_cast<int>(cards % 7);
  std::string file;
  const auto add = [&file](const DeckRecord& record) {
    const RecordBytes encoded = EncodeRecord(record, CodePage::Western());
    file.append(encoded.begin(), encoded.end());
  };
  add({u"I", u"", 0, {u"1/2/2003", u" Standard", u"Birds", u"Ann"}, u"", u"About"});
  for (int row = 1; row <= count; ++row) {
    const std::uint8_t oddity = bytes.Next();
    DeckRecord card{Text(family), bytes.TakeText(6), static_cast<std::int16_t>(row), {}, u"B",
                    u"back"};
    if (oddity > 230) card.cardType = Text(1, kLetters[bytes.Below(kLetters.size())]);
    if (oddity % 16 == 15) card.number = static_cast<std::int16_t>(bytes.Below(210));
    add(card);
  }
  add({u"X", u"", 0, {}, u"", u""});
  if (bytes.Next() > 240) file.resize(bytes.Below(file.size() + 1));
  return file;
}

/// A text to import, of lines that the formats know and others.
inline std::string TakeImport(ByteSource& bytes, const std::string& kind) {
  static const char* const kLines[] = {
      "1.Question", "2.Question", "3.Water", "=T", "=F",  "=b",  "A.one", "B.two", "C.three",
      "D.",         "",           "1.",      "2.", "*>F", "*>B", "text",  "*END*", "9."};
  std::string text = kind + "\r\n";
  for (std::size_t lines = bytes.Below(20); lines > 0; --lines) {
    text += std::string(bytes.OneOf(kLines)) + "\r\n";
  }
  return text;
}

}  // namespace tessara::fuzz
