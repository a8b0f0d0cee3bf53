#include <doctest/doctest.h>
#include <iterator>
#include <random>
#include <utility>

#include "adapters/posix/code_page_of_locale.h"
#include "companion/formats/tables/delimited_reader.h"
#include "tests/unit/companion/formats/format_fixture.h"

namespace tessara::test {

namespace {

/// Texts by chance, the same in every run.
class Chance {
 public:
  /// In a deck, words of scripts beyond the code page have room for fewer characters.
  Chance(std::vector<Text> alphabet, std::size_t longest, std::size_t longestChoice)
      : alphabet_(std::move(alphabet)), longest_(longest), longestChoice_(longestChoice) {}

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
  DeckRecord Card() { return TextCard(Words(longest_), Words(longest_)); }
  DeckRecord QuestionCard() {
    const Text answer(1, TextView(u"TFABCD")[Below(6)]);
    if (answer == u"T" || answer == u"F") return Question(Words(longest_), {}, answer);
    return Question(Words(longest_), {Choice(), Choice(), Choice(), Choice()}, answer);
  }

 private:
  Text Choice() { return Words(longestChoice_); }

  std::vector<Text> alphabet_;
  std::size_t longest_;
  std::size_t longestChoice_;
  std::mt19937 engine_{7};
};

Chance OfCodePage(TextView characters) {
  std::vector<Text> alphabet;
  for (const char16_t character : characters) alphabet.emplace_back(1, character);
  return {alphabet, 444, 75};
}

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
/// Latin beyond the code page, Greek, Cyrillic, Hebrew, Arabic, Devanagari, Thai, Georgian, Han,
/// Kana, Hangul, sounds, pictures; each a character by itself, in form C.
constexpr TextView kOfAllScripts[] = {u"a",
                                      u"7",
                                      u" ",
                                      u".",
                                      u",",
                                      u";",
                                      u"\"",
                                      u"#",
                                      u"<",
                                      u"&",
                                      u"\t",
                                      u"\u00E9",
                                      u"\u0142",
                                      u"\u1EBF",
                                      u"\u03CC",
                                      u"\u1F41",
                                      u"\u0416",
                                      u"\u0451",
                                      u"\u05E9",
                                      u"\u0645",
                                      u"\u064E\u0627",
                                      u"\u0939",
                                      u"\u0E19",
                                      u"\u10E7",
                                      u"\u4E2D",
                                      u"\u30AC",
                                      u"\uFF76",
                                      u"\uD55C",
                                      u"\u0283",
                                      u"\u2028",
                                      u"\uFEFFx",
                                      u"\xD83D\xDE00",
                                      u"\xD842\xDFB7"};
constexpr TextView kOfXml = u"abXYZ07 .,:;=*>&<\"'#()\u00E4\u00C3\u00A9\u20AC\t";

/// Six bytes at most for one: 73 fit a text, 12 a choice.
Chance OfAllScripts() {
  return {{std::begin(kOfAllScripts), std::end(kOfAllScripts)}, 73, 12};
}

}  // namespace

TEST_CASE("a deck comes back from each format as it was, in all scripts") {
  for (const FileFormat format : {FileFormat::kDeck, FileFormat::kText, FileFormat::kCsv,
                                  FileFormat::kTsv, FileFormat::kKvtml}) {
    const bool isXml = format == FileFormat::kKvtml;
    for (const DeckKind kind : {kStandardDeck, kExtendedDeck}) {
      if (isXml && kind == kExtendedDeck) continue;
      for (Chance chance : {OfCodePage(isXml ? kOfXml : kOfCodePage), OfAllScripts()}) {
        for (const std::size_t cards : {1U, 2U, 200U}) {
          FormatFixture fixture;
          const CardSet written = RandomSet(kind, cards, chance);
          CheckSame(fixture.Read(format, fixture.Written(format, written)), written);
          CHECK(fixture.Told() == Lines());
        }
      }
    }
  }
}

TEST_CASE("texts of all scripts come back under each code page") {
  for (const char* const name : {"WINDOWS-1251", "WINDOWS-1253", "WINDOWS-1250"}) {
    Chance chance = OfAllScripts();
    FormatFixture fixture(CodePageNamed(name));
    const CardSet written = RandomSet(kStandardDeck, 50, chance);
    for (const FileFormat format : {FileFormat::kDeck, FileFormat::kText}) {
      CheckSame(fixture.Read(format, fixture.Written(format, written)), written);
      CHECK(fixture.Told() == Lines());
    }
  }
}

TEST_CASE("line breaks come back from each format but import texts") {
  for (const FileFormat format :
       {FileFormat::kDeck, FileFormat::kCsv, FileFormat::kTsv, FileFormat::kKvtml}) {
    FormatFixture fixture;
    const CardSet written = SetOf(kStandardDeck, {TextCard(u"a\r\nb\r\n", u"\r\n\r\nc")});
    CheckSame(fixture.Read(format, fixture.Written(format, written)), written);
    CHECK(fixture.Told() == Lines());
  }
}

TEST_CASE("cards of empty texts come back from each format") {
  for (const FileFormat format : {FileFormat::kDeck, FileFormat::kText, FileFormat::kCsv,
                                  FileFormat::kTsv, FileFormat::kKvtml}) {
    FormatFixture fixture;
    const CardSet written = SetOf(kStandardDeck, {TextCard(u"", u""), TextCard(u"", u"b"),
                                                  TextCard(u"a", u""), TextCard(u"", u"")});
    CheckSame(fixture.Read(format, fixture.Written(format, written)), written);
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
      CAPTURE(ToUtf8(text));
      FormatFixture fixture;
      const CardSet written = SetOf(kStandardDeck, {TextCard(text, u"back"), TextCard(u"x", text)});
      CheckSame(fixture.Read(format, fixture.Written(format, written)), written);
      CHECK(fixture.Told() == Lines());
    }
  }
}

TEST_CASE("a table without names whose first card looks like names is still read as cards") {
  FormatFixture fixture;
  const CardSet written = SetOf(kStandardDeck, {TextCard(u"Front", u"Back")});
  CheckSame(fixture.Read(FileFormat::kTsv, fixture.Written(FileFormat::kTsv, written)), written);
}

TEST_CASE("the information comes back from a deck and from a vocabulary file") {
  for (const FileFormat format : {FileFormat::kDeck, FileFormat::kKvtml}) {
    FormatFixture fixture;
    CardSet written = SetOf(kStandardDeck, {TextCard(u"a", u"b")});
    written.info = {u"Title", u"Author", u"What\r\nit is", u"1/5/2026"};
    const CardSet read = fixture.Read(format, fixture.Written(format, written));
    CHECK(read.info.title == u"Title");
    CHECK(read.info.author == u"Author");
    CHECK(read.info.description == u"What\r\nit is");
    CHECK(read.info.date == u"1/5/2026");
  }
}

TEST_CASE("a question without an answer comes back from a table") {
  FormatFixture fixture;
  const CardSet written = SetOf(kExtendedDeck, {Question(u"q", {u"x", u"", u"", u""}, u"")});
  for (const FileFormat format : {FileFormat::kDeck, FileFormat::kCsv, FileFormat::kTsv}) {
    CheckSame(fixture.Read(format, fixture.Written(format, written)), written);
    CHECK(fixture.Told() == Lines());
  }
}

}  // namespace tessara::test
