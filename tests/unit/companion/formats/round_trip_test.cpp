#include <doctest/doctest.h>
#include <random>

#include "companion/formats/tables/delimited_reader.h"
#include "tests/unit/companion/formats/format_desk.h"

namespace tessara::test {

namespace {

/// Texts by chance, the same in every run.
class Chance {
 public:
  explicit Chance(TextView alphabet) : alphabet_(alphabet) {}

  std::size_t Below(std::size_t bound) {
    return std::uniform_int_distribution<std::size_t>(0, bound - 1)(engine_);
  }
  /// Without blanks at its ends, as a deck has it.
  Text Words(std::size_t most) {
    Text text;
    for (std::size_t left = Below(most + 1); left > 0; --left)
      text += alphabet_[Below(alphabet_.size())];
    return Text(Trimmed(text));
  }
  DeckRecord Card() { return TextCard(Words(444), Words(444)); }
  DeckRecord QuestionCard() {
    const Text answer(1, TextView(u"TFABCD")[Below(6)]);
    if (answer == u"T" || answer == u"F") return Question(Words(444), {}, answer);
    return Question(Words(444), {Words(75), Words(75), Words(75), Words(75)}, answer);
  }

 private:
  TextView alphabet_;
  std::mt19937 engine_{7};
};

CardSet RandomSet(DeckKind kind, std::size_t cards, Chance& chance) {
  std::vector<DeckRecord> records;
  for (std::size_t at = 0; at < cards; ++at)
    records.push_back(kind == kStandardDeck ? chance.Card() : chance.QuestionCard());
  return SetOf(kind, records);
}

void CheckSame(const CardSet& read, const CardSet& written) {
  CHECK(read.kind == written.kind);
  REQUIRE(read.cards.size() == written.cards.size());
  for (std::size_t at = 0; at < read.cards.size(); ++at)
    REQUIRE(TextsOf(read.cards[at].record) == TextsOf(written.cards[at].record));
}

constexpr TextView kOfCodePage = u"abXYZ07 .,:;=*>&<\"'#()\u00E4\u00C3\u00A9\u20AC\t\u0001";
constexpr TextView kOfXml = u"abXYZ07 .,:;=*>&<\"'#()\u00E4\u00C3\u00A9\u20AC\t";

}  // namespace

TEST_CASE("a deck comes back from each format as it was") {
  for (const FileFormat format : {FileFormat::kDeck, FileFormat::kText, FileFormat::kCsv,
                                  FileFormat::kTsv, FileFormat::kKvtml}) {
    for (const DeckKind kind : {kStandardDeck, kExtendedDeck}) {
      if (format == FileFormat::kKvtml && kind == kExtendedDeck) continue;
      Chance chance(format == FileFormat::kKvtml ? kOfXml : kOfCodePage);
      for (const std::size_t cards : {1U, 2U, 200U}) {
        FormatDesk desk;
        const CardSet written = RandomSet(kind, cards, chance);
        CheckSame(desk.Read(format, desk.Written(format, written)), written);
        CHECK(desk.Told() == Lines());
      }
    }
  }
}

TEST_CASE("line breaks come back from each format but import texts") {
  for (const FileFormat format :
       {FileFormat::kDeck, FileFormat::kCsv, FileFormat::kTsv, FileFormat::kKvtml}) {
    FormatDesk desk;
    const CardSet written = SetOf(kStandardDeck, {TextCard(u"a\r\nb\r\n", u"\r\n\r\nc")});
    CheckSame(desk.Read(format, desk.Written(format, written)), written);
    CHECK(desk.Told() == Lines());
  }
}

TEST_CASE("cards of empty texts come back from each format") {
  for (const FileFormat format : {FileFormat::kDeck, FileFormat::kText, FileFormat::kCsv,
                                  FileFormat::kTsv, FileFormat::kKvtml}) {
    FormatDesk desk;
    const CardSet written = SetOf(kStandardDeck, {TextCard(u"", u""), TextCard(u"", u"b"),
                                                  TextCard(u"a", u""), TextCard(u"", u"")});
    CheckSame(desk.Read(format, desk.Written(format, written)), written);
  }
}

TEST_CASE("texts that look like the lines of a format come back from each format") {
  const std::vector<Text> texts = {
      u"7.",    u" 12.",  u"3.14",  u"1e.5", u"STD",  u" ext ", u"*>F",  u"*>b",    u"*END*", u"=T",
      u"A.",    u"front", u"Front", u"#",    u"#a:b", u"\"",    u"'",    u",",      u";",     u"\t",
      u"&amp;", u"<br>",  u"]]>",   u"11.",  u"...",  u"-1.",   u"&H1.", u"\uFEFFa"};
  for (const FileFormat format :
       {FileFormat::kText, FileFormat::kCsv, FileFormat::kTsv, FileFormat::kKvtml}) {
    for (const Text& text : texts) {
      if (format == FileFormat::kText && text.front() == 0xFEFF) continue;
      CAPTURE(ToUtf8(text));
      FormatDesk desk;
      const CardSet written = SetOf(kStandardDeck, {TextCard(text, u"back"), TextCard(u"x", text)});
      CheckSame(desk.Read(format, desk.Written(format, written)), written);
      CHECK(desk.Told() == Lines());
    }
  }
}

TEST_CASE("a table without names whose first card looks like names is still read as cards") {
  FormatDesk desk;
  const CardSet written = SetOf(kStandardDeck, {TextCard(u"Front", u"Back")});
  CheckSame(desk.Read(FileFormat::kTsv, desk.Written(FileFormat::kTsv, written)), written);
}

TEST_CASE("the information comes back from a deck and from a vocabulary file") {
  for (const FileFormat format : {FileFormat::kDeck, FileFormat::kKvtml}) {
    FormatDesk desk;
    CardSet written = SetOf(kStandardDeck, {TextCard(u"a", u"b")});
    written.info = {u"Title", u"Author", u"What\r\nit is", u"1/5/2026"};
    const CardSet read = desk.Read(format, desk.Written(format, written));
    CHECK(read.info.title == u"Title");
    CHECK(read.info.author == u"Author");
    CHECK(read.info.description == u"What\r\nit is");
    CHECK(read.info.date == u"1/5/2026");
  }
}

TEST_CASE("a question without an answer comes back from a table") {
  FormatDesk desk;
  const CardSet written = SetOf(kExtendedDeck, {Question(u"q", {u"x", u"", u"", u""}, u"")});
  for (const FileFormat format : {FileFormat::kDeck, FileFormat::kCsv, FileFormat::kTsv}) {
    CheckSame(desk.Read(format, desk.Written(format, written)), written);
    CHECK(desk.Told() == Lines());
  }
}

}  // namespace tessara::test
