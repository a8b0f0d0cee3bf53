#include <doctest/doctest.h>

#include "companion/formats/deck_format.h"
#include "tests/support/deck_bytes.h"
#include "tests/unit/companion/formats/format_fixture.h"
#include "tests/unit/companion/formats/told_findings.h"

namespace tessara::test {

namespace {

Lines FindingsIn(const std::string& bytes) {
  ToldFindings findings;
  CheckDeck({"file", bytes}, CodePage::Western(), findings);
  return findings.told;
}

std::string Information() {
  return InfoBytes({});
}

std::string WithLetter(std::string record, char letter) {
  record.front() = letter;
  return record;
}

std::string MultipleChoice(int row, char answer) {
  return QuestionBytes('M', u"question", row, {u"one", u"two", u"", u""}, answer);
}

std::string CardsUpTo(int last) {
  std::string bytes;
  for (int row = 1; row <= last; ++row) bytes += CardBytes(row, u"front", u"back");
  return bytes;
}

/// So many times the UTF-8 of a character.
Text Times(std::size_t count, const char* character) {
  std::string bytes;
  for (; count > 0; --count) bytes += character;
  return FromUtf8(bytes);
}

}  // namespace

TEST_CASE("a deck in order has no findings") {
  CHECK(FindingsIn(DeckBytes(200)).empty());
  CHECK(FindingsIn(Information() + MultipleChoice(1, 'B') + TrueCardBytes(2, u"yes") + EndBytes())
            .empty());
}

TEST_CASE("each fault of a deck is found by the place where it stands") {
  struct Case {
    std::string title;
    std::string bytes;
    Lines found;
  };
  const std::string card = CardBytes(1, u"front", u"back");
  const Case cases[] = {
      {"a number behind the table",
       Information() + card + CardBytes(203, u"lost", u"") + EndBytes(),
       {"file:2: its number 203 is no row of the table"}},
      {"a number below it",
       Information() + card + CardBytes(0xFFFF, u"lost", u"") + EndBytes(),
       {"file:2: its number -1 is no row of the table"}},
      {"a number twice",
       Information() + card + card + EndBytes(),
       {"file:1: a record of the same number stands before it"}},
      {"the number of the information",
       Information() + CardBytes(0, u"front", u"back") + EndBytes(),
       {"file: a record of the same number stands before it",
        "file:1: its number is that of the information"}},
      {"a hole",
       Information() + card + CardBytes(3, u"front", u"back") + EndBytes(),
       {"file:3: the numbers before it have a hole: what follows is not saved again"}},
      {"information in a card's place",
       Information() + card + WithLetter(CardBytes(2, u"", u""), 'I') + EndBytes(),
       {"file:2: it is information in a card's place"}},
      {"an unknown type",
       Information() + card + WithLetter(CardBytes(2, u"front", u"back"), 'Z') + EndBytes(),
       {"file:2: its type is unknown"}},
      {"cards of both kinds",
       Information() + card + TrueCardBytes(2, u"yes") + EndBytes(),
       {"file:2: it is of another kind than the first card"}},
      {"no answer",
       Information() + MultipleChoice(1, ' ') + EndBytes(),
       {"file:1: it has no answer"}},
      {"the answer of an empty choice",
       Information() + MultipleChoice(1, 'C') + EndBytes(),
       {"file:1: its answer is none of its choices"}},
      {"an answer of the other type",
       Information() + MultipleChoice(1, 'T') + QuestionBytes('T', u"yes", 2, {}, 'A') + EndBytes(),
       {"file:1: its answer is none of its choices", "file:2: its answer is none of its choices"}},
      {"no end", Information() + card, {"file: it ends without the record of the end"}},
      {"no information", card + EndBytes(), {"file: it has no information"}},
      {"no cards", Information() + EndBytes(), {"file: it holds no cards"}},
      {"nothing at all",
       "",
       {"file: it ends without the record of the end", "file: it has no information",
        "file: it holds no cards"}},
      {"an empty first card",
       Information() + CardBytes(1, u"", u"back") + EndBytes(),
       {"file:1: its text is empty: the program takes the deck for empty"}},
      {"more cards than a deck holds",
       Information() + CardsUpTo(201) + EndBytes(),
       {"file:202: a deck holds 200 cards: this and what follows is not read"}},
  };
  for (const Case& one : cases) {
    CAPTURE(one.title);
    CHECK(FindingsIn(one.bytes) == one.found);
  }
}

TEST_CASE("a text that fills its field is perhaps cut, by the bytes that it takes there") {
  struct Case {
    Text front;
    bool isFull;
  };
  const std::string kSignature = "\xEF\xBB\xBF";
  const auto stored = [&](std::size_t count, const char* character) {
    return FromUtf8(kSignature) + Times(count, character);
  };
  const Case cases[] = {
      {Text(443, u'x'), false},
      {Text(444, u'x'), true},
      // 441 bytes are left behind the signature.
      {stored(219, "\xD0\x96"), false},
      {stored(220, "\xD0\x96"), true},
      {stored(146, "\xE4\xB8\xAD"), false},
      {stored(147, "\xE4\xB8\xAD"), true},
      {stored(109, "\xF0\x9F\x98\x80"), false},
      {stored(110, "\xF0\x9F\x98\x80"), true},
  };
  for (const Case& one : cases) {
    CAPTURE(ToUtf8(one.front));
    const Lines found = FindingsIn(Information() + CardBytes(1, one.front, u"back") + EndBytes());
    CHECK(found ==
          (one.isFull ? Lines{"file:1: its front fills the field: perhaps it was cut"} : Lines()));
  }
}

TEST_CASE("each field that is full is named as what it is for") {
  const Text full(75, u'x');
  const Text long444(444, u'x');
  CHECK(FindingsIn(InfoBytes({full, full, full, full, long444}) +
                   QuestionBytes('M', long444, 1, {full, full, full, full}, 'A') +
                   CardBytes(2, u"front", long444) + EndBytes()) ==
        Lines{"file: its date fills the field: perhaps it was cut",
              "file: its deck type fills the field: perhaps it was cut",
              "file: its title fills the field: perhaps it was cut",
              "file: its author fills the field: perhaps it was cut",
              "file: its description fills the field: perhaps it was cut",
              "file:1: its question fills the field: perhaps it was cut",
              "file:1: its choice A fills the field: perhaps it was cut",
              "file:1: its choice B fills the field: perhaps it was cut",
              "file:1: its choice C fills the field: perhaps it was cut",
              "file:1: its choice D fills the field: perhaps it was cut",
              "file:2: it is of another kind than the first card",
              "file:2: its back fills the field: perhaps it was cut"});
}

}  // namespace tessara::test
