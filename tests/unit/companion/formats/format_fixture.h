#pragma once

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "base/utf8.h"
#include "companion/formats/file_format.h"

namespace tessara::test {

/// Lines as a test compares and shows them.
struct Lines : std::vector<std::string> {
  using std::vector<std::string>::vector;
  friend std::ostream& operator<<(std::ostream& stream, const Lines& lines) {
    for (const std::string& line : lines) stream << "\n  " << line;
    return stream;
  }
};

/// Keeps what it is told: "file:line: card N: what".
class ToldLosses : public Losses {
 public:
  void Tell(const Place& place, const std::string& what) override {
    told.push_back(MessageAt(place, what));
  }
  Lines told;
};

class StringSink : public ByteSink {
 public:
  void Write(std::string_view bytes) override { written += bytes; }
  std::string written;
};

/// Reads and writes files of any format in memory, and keeps what could not be kept.
struct FormatFixture {
  explicit FormatFixture(CodePage page = CodePage::Western()) : codePage(std::move(page)) {}

  CardSet Read(FileFormat format, std::string bytes) {
    source = {"file", std::move(bytes)};
    return ReadCards(format, source, {codePage, losses});
  }
  std::string Written(FileFormat format, const CardSet& set,
                      TsvComments comments = TsvComments::kNone) {
    StringSink sink;
    WriteCards(format, {set.kind, set.info, set.cards}, sink, {codePage, losses}, comments);
    return sink.written;
  }
  Lines Told() { return std::exchange(losses.told, {}); }

  CodePage codePage;
  ToldLosses losses;
  Source source;
};

/// A card's texts: type, text, choices, answer, back.
inline std::vector<std::string> TextsOf(const DeckRecord& record) {
  std::vector<std::string> texts = {ToUtf8(record.cardType), ToUtf8(record.text)};
  for (const Text& choice : record.shortFields) texts.push_back(ToUtf8(choice));
  texts.push_back(ToUtf8(record.answer));
  texts.push_back(ToUtf8(record.longText));
  return texts;
}

/// All of a set as lines of fields with bars between them, without the empty choices of text cards.
inline Lines CardsOf(const CardSet& set) {
  Lines cards;
  for (const SourceCard& card : set.cards) {
    const DeckRecord& record = card.record;
    std::string line = ToUtf8(record.cardType) + "|" + ToUtf8(record.text);
    for (const Text& choice : record.shortFields) {
      if (set.kind == kExtendedDeck) line += "|" + ToUtf8(choice);
    }
    line += "|" + ToUtf8(set.kind == kExtendedDeck ? record.answer : record.longText);
    cards.push_back(line);
  }
  return cards;
}

inline DeckRecord TextCard(const Text& front, const Text& back) {
  DeckRecord record;
  record.cardType = u"E";
  record.text = front;
  record.longText = back;
  return record;
}

inline DeckRecord Question(const Text& text, const std::array<Text, 4>& choices,
                           const Text& answer) {
  DeckRecord record;
  const bool trueFalse = answer == u"T" || answer == u"F";
  record.cardType = trueFalse ? u"T" : u"M";
  record.text = text;
  record.shortFields = choices;
  record.answer = answer;
  return record;
}

inline CardSet SetOf(DeckKind kind, const std::vector<DeckRecord>& records) {
  static const std::string kName = "deck";
  CardSet set;
  set.kind = kind;
  for (const DeckRecord& record : records)
    set.cards.push_back({record, {&kName, set.cards.size() + 1}});
  return set;
}

}  // namespace tessara::test
