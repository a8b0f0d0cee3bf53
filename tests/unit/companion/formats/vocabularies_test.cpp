#include <doctest/doctest.h>

#include "companion/cards/complaints.h"
#include "tests/unit/companion/formats/format_fixture.h"

namespace tessara::test {

namespace {

std::string Vocabulary(const std::string& languages, const std::string& entries) {
  return "<?xml version=\"1.0\"?>\n<!DOCTYPE kvtml PUBLIC \"kvtml2.dtd\" \"x\">\n"
         "<kvtml version=\"2.0\"><identifiers>" +
         languages + "</identifiers>\n<entries>\n" + entries + "</entries></kvtml>\n";
}

const std::string kTwoLanguages = "<identifier id=\"0\"/><identifier id=\"1\"/>";

}  // namespace

TEST_CASE("the two languages of a vocabulary are the sides of the cards") {
  FormatFixture fixture;
  const CardSet set = fixture.Read(
      FileFormat::kKvtml,
      Vocabulary(kTwoLanguages,
                 "<entry id=\"0\"><translation id=\"1\"><text>b &amp; \xC3\xA9</text></translation>"
                 "<translation id=\"0\"><text>a<![CDATA[<i>]]></text></translation></entry>\n"
                 "<entry id=\"1\"><translation id=\"0\"><text>c</text></translation></entry>\n"));
  CHECK(CardsOf(set) == Lines{"E|a<i>|b & \xC3\xA9", "E|c|"});
  CHECK(MessageAt(set.cards[1].place, "what") == "file:6: card 2: what");
  CHECK(fixture.Told().empty());
}

TEST_CASE("a text of a vocabulary that is no UTF-8 is one of the code page") {
  FormatFixture fixture;
  CHECK(CardsOf(fixture.Read(
            FileFormat::kKvtml,
            Vocabulary(kTwoLanguages,
                       "<entry><translation id=\"0\"><text>bj\xF6rn</text></translation>"
                       "<translation id=\"1\"><text>\xC3\xB6</text></translation>"
                       "</entry>"))) == Lines{"E|bj\xC3\xB6rn|\xC3\xB6"});
}

TEST_CASE("one language, or more than two, is told") {
  FormatFixture fixture;
  const std::string entry =
      "<entry id=\"0\"><translation id=\"0\"><text>a</text></translation></entry>";
  CHECK(CardsOf(fixture.Read(FileFormat::kKvtml, Vocabulary("<identifier id=\"0\"/>", entry))) ==
        Lines{"E|a|"});
  CHECK(CardsOf(fixture.Read(FileFormat::kKvtml,
                             Vocabulary(kTwoLanguages + "<identifier id=\"2\"/>", entry))) ==
        Lines{"E|a|"});
  CHECK(fixture.Told() == Lines{"file: it has one language: the backs are empty",
                                "file: of its languages the first two are kept"});
}

TEST_CASE("what is no vocabulary of version 2 is refused in words") {
  const std::string kNot[] = {"",
                              "text",
                              "<kvtml><e/></kvtml>",
                              "<kvtml version=\"2.0\"><entries>",
                              "<kvtml version=\"2.0\"></kvtml>",
                              std::string(1000, '<')};
  for (const std::string& bytes : kNot) {
    FormatFixture fixture;
    CHECK_THROWS_AS(static_cast<void>(fixture.Read(FileFormat::kKvtml, bytes)), Refused);
  }
}

TEST_CASE("entities that a file declares are not expanded") {
  FormatFixture fixture;
  const CardSet set = fixture.Read(
      FileFormat::kKvtml,
      "<!DOCTYPE kvtml [<!ENTITY a \"aaaaaaaaaa\"><!ENTITY b \"&a;&a;&a;\">]>"
      "<kvtml version=\"2.0\"><identifiers>" +
          kTwoLanguages +
          "</identifiers><entries><entry><translation id=\"0\"><text>&b;</text></translation>"
          "</entry></entries></kvtml>");
  CHECK(CardsOf(set) == Lines{"E|&b;|"});
}

TEST_CASE("a vocabulary file with more tags than memory is refused in words") {
  FormatFixture fixture;
  std::string bytes;
  for (int at = 0; at < 400'001; ++at) bytes += "<a>";
  CHECK_THROWS_WITH_AS(static_cast<void>(fixture.Read(FileFormat::kKvtml, bytes)),
                       "file: it has more than 400000 tags", Refused);
}

TEST_CASE("questions are no vocabulary, and control characters do not stand in XML") {
  FormatFixture fixture;
  CHECK_THROWS_AS(static_cast<void>(fixture.Written(
                      FileFormat::kKvtml, SetOf(kExtendedDeck, {Question(u"q", {}, u"T")}))),
                  Refused);
  static_cast<void>(
      fixture.Written(FileFormat::kKvtml, SetOf(kStandardDeck, {TextCard(u"a\u0001", u"b")})));
  CHECK(fixture.Told() == Lines{"deck:1: control characters are not kept"});
}

}  // namespace tessara::test
