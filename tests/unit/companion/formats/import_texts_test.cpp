#include <doctest/doctest.h>

#include "companion/cards/complaints.h"
#include "companion/formats/texts/import_text_format.h"
#include "tests/unit/companion/formats/format_fixture.h"
#include "tests/unit/companion/formats/told_findings.h"

namespace tessara::test {

namespace {

Lines FindingsIn(const std::string& bytes) {
  ToldFindings findings;
  const Source source{"file", bytes};
  CheckImportText(source, CodePage::Western(), findings);
  return findings.told;
}

}  // namespace

TEST_CASE("a text in order has no findings") {
  CHECK(
      FindingsIn("STD\r\n1.\r\n*>F\r\na\r\n*>B\r\nb\r\n\r\n2.\r\n*>F\r\nc\r\n*>B\r\nd\r\n*END*\r\n")
          .empty());
  CHECK(FindingsIn("EXT\n1.q\n=T\n\n2.r\nA.x\nB.y\n=b\n3.s\n=F\n").empty());
}

TEST_CASE("all errors of a standard text are found at once") {
  CHECK(FindingsIn("STD\n1.\n*>F\na\n\n2.\n*>F\nb\n*>B\nc\n\n\n3.\n*>F\nd\n*>B\ne\n\n5.\n*>F\nf\n*>"
                   "B\ng\n\n6."
                   "\n*>F\nh\n*>B\ni\n\n7.5\n*>F\n") ==
        Lines{"file:5: card 1: it ends without both of the lines \"*>F\" and \"*>B\"",
              "file:12: card 2: a card's number is due here",
              "file:19: card 3: its number is not one above the last finished card's",
              "file:32: card 7: it has no back"});
}

TEST_CASE("what a standard import passes over is found") {
  CHECK(FindingsIn("STD\n1.\nlost\n1.\n*>F\na\nEXT\n*>B\nb\n\n2.\n*END*\n\nrest\n") ==
        Lines{"file:3: card 1: text before the first \"*>F\" or \"*>B\" is passed over",
              "file:4: card 1: its number stands there again and is passed over",
              "file:7: card 1: a line that names a format is passed over",
              "file:14: card 2: what stands behind the line \"*END*\" is not read",
              "file:14: card 2: there is nothing behind its number"});
}

TEST_CASE("all errors of an extended text are found at once") {
  CHECK(FindingsIn("EXT\n1.q\n=true\n\n2.r\nB.x\nA.y\n=A\n\n3.s\nstray\n\n4.t\nA.x\n=A\n6.u\n="
                   "T\n\n7.v\n=T\n") ==
        Lines{"file:3: card 1: the last character of its answer is none of T, F, A, B, C, D",
              "file:7: card 2: the letters of its choices go backward",
              "file:11: card 3: reading ends at this line, which is of no kind",
              "file:16: card 4: its number is not one above the last finished card's"});
}

TEST_CASE("what an extended import passes over is found") {
  CHECK(FindingsIn("EXT\n=T\n1.q\nA.x\nA.y\nE.z\n=A\n=B\nSTD\n") ==
        Lines{"file:2: a line before the first card is passed over",
              "file:5: card 1: a choice takes the place of an earlier one",
              "file:6: card 1: a choice that is none of A to D is passed over",
              "file:8: card 1: an answer takes the place of an earlier one",
              "file:9: card 1: a line that names a format is passed over"});
}

TEST_CASE("a text without a format's name, or without cards, is told so") {
  CHECK(FindingsIn("") == Lines{"file:1: the first line is neither STD nor EXT"});
  CHECK(FindingsIn("1.\n*>F\n") == Lines{"file:1: the first line is neither STD nor EXT"});
  CHECK(FindingsIn("EXT\n") == Lines{"file: it holds no cards"});
}

TEST_CASE("numbers outside the table are findings, not the end of the check") {
  CHECK(FindingsIn("STD\n40000.\n*>F\na\n*>B\nb\n\n1.\n*>F\na\n*>B\nb\n") ==
        Lines{"file:2: a card's number is due here"});
  CHECK(FindingsIn("EXT\n1a.q\n=T\n\n1.q\n=T\n") ==
        Lines{"file:2: its number cannot be read, or is no card's"});
}

TEST_CASE("the first card of a text is number 1") {
  for (const char* const text : {"EXT\n2.q\n=T\n", "STD\n2.\n*>F\na\n*>B\nb\n"}) {
    CHECK(FindingsIn(text) ==
          Lines{"file:2: card 2: the first card's number is not 1", "file: it holds no cards"});
  }
}

TEST_CASE("a card that no empty line finishes is found as that") {
  CHECK(FindingsIn("EXT\n1.q\n=T\n2.r\n=F\n") ==
        Lines{"file:4: card 2: no empty line finishes the card before it"});
}

TEST_CASE("a question without an answer, and cards that a deck has no room for, are found") {
  CHECK(FindingsIn("EXT\n1.q\nA.x\n\n2.r\n=T\n") == Lines{"file:5: card 1: it has no answer"});
  std::string questions = "EXT\n";
  std::string words = "STD\n";
  for (int card = 1; card <= 201; ++card) {
    const std::string number = std::to_string(card) + ".";
    questions += number + "q\n=T\n\n";
    words += number + "\n*>F\na\n*>B\nb\n\n";
  }
  CHECK(FindingsIn(questions) ==
        Lines{"file:602: card 200: a deck holds 200 cards: what follows is not kept"});
  CHECK(FindingsIn(words) ==
        Lines{"file:1202: card 200: a deck holds 200 cards: what follows is not kept"});
}

TEST_CASE("a text longer than an import reads is found, in both formats") {
  const std::string text(0x40001, 'x');
  CHECK(FindingsIn("STD\n1.\n*>F\n" + text + "\n*>B\nb\n") ==
        Lines{"file:4: card 1: a text is cut: it is longer than an import reads"});
  CHECK(FindingsIn("EXT\n1." + text + "\n=T\n") ==
        Lines{"file:2: card 1: a text is cut: it is longer than an import reads"});
}

TEST_CASE("cards know the lines on which they begin") {
  FormatFixture fixture;
  const CardSet set = fixture.Read(FileFormat::kText, "EXT\n1.q\n=T\n\n2.r\nA.x\n=A\n");
  REQUIRE(set.cards.size() == 2);
  CHECK(MessageAt(set.cards[1].place, "what") == "file:5: card 2: what");
}

TEST_CASE("a text that the program would not import is refused, with all its errors") {
  FormatFixture fixture;
  CHECK_THROWS_AS(static_cast<void>(fixture.Read(FileFormat::kText, "EXT\n2.q\n=T\n\n3.r\n=X\n")),
                  Refused);
  CHECK(fixture.Told().size() == 2);
}

TEST_CASE("a text is written in the code page where that holds it and is not taken for UTF-8") {
  FormatFixture fixture;
  const auto textOf = [&fixture](const Text& front) {
    return fixture.Written(FileFormat::kText, SetOf(kStandardDeck, {TextCard(front, u"b")}));
  };
  CHECK(textOf(u"\u00E9") == "STD\r\n1.\r\n*>F\r\n\xE9\r\n*>B\r\nb\r\n");
  CHECK(textOf(u"\u00C3\u00A9").starts_with("\xEF\xBB\xBFSTD\r\n"));
  CHECK(textOf(u"\u4E2D").starts_with("\xEF\xBB\xBFSTD\r\n"));
}

TEST_CASE("what an import text can't hold is told") {
  FormatFixture fixture;
  DeckRecord odd = Question(u"q", {u"x", u"", u"", u""}, u"");
  const std::string text =
      fixture.Written(FileFormat::kText, SetOf(kStandardDeck, {TextCard(u"a\r\nb", u"c")}));
  CHECK(text.find("a b\r\n") != text.npos);
  static_cast<void>(fixture.Written(FileFormat::kText, SetOf(kExtendedDeck, {odd})));
  CHECK(fixture.Told() == Lines{"deck:1: the line breaks of the front become blanks",
                                "deck:1: without an answer it has no type in an import text"});
}

}  // namespace tessara::test
