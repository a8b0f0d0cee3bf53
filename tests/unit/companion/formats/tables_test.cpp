#include <chrono>
#include <doctest/doctest.h>

#include "companion/cards/complaints.h"
#include "tests/unit/companion/formats/format_fixture.h"

namespace tessara::test {

namespace {

struct TableCase {
  std::string title;
  std::string bytes;
  Lines cards;
  Lines told;
};

void CheckReads(FileFormat format, const TableCase& one) {
  CAPTURE(one.title);
  FormatFixture fixture;
  CHECK(CardsOf(fixture.Read(format, one.bytes)) == one.cards);
  CHECK(fixture.Told() == one.told);
}

}  // namespace

TEST_CASE("a table of commas or semicolons becomes cards, and what is not kept is told") {
  const TableCase cases[] = {
      {"a head row is recognised", "front,back\na,b\n", {"E|a|b"}, {}},
      {"in any order and case",
       "\xEF\xBB\xBF"
       "BACK , Front\r\nb,a\r\n",
       {"E|a|b"},
       {}},
      {"semicolons", "front;back\na,1;b\n", {"E|a,1|b"}, {}},
      {"without a head row", "a,b\nc,d", {"E|a|b", "E|c|d"}, {}},
      {"a comma in quotation marks is no separator", "\"a,b,c\";d\n", {"E|a,b,c|d"}, {}},
      {"further columns are told once",
       "front,hint,back\na,x,b\nc,y,d\n",
       {"E|a|b", "E|c|d"},
       {"file:1: the column \"hint\" is not kept"}},
      {"surplus fields are told",
       "a,b,c\nd,e\n",
       {"E|a|b", "E|d|e"},
       {"file:1: card 1: what stands behind its last field is not kept"}},
      {"a missing last field is empty", "a\nb,c\n", {"E|a|", "E|b|c"}, {}},
      {"empty lines are no cards", "\r\n\r\na,b\r\n\r\n,\r\nc,d\r\n", {"E|a|b", "E|c|d"}, {}},
      {"line ends of all kinds",
       "a,\"1\n2\"\rc,\"1\r2\"\r\nd,\"1\r\n2\"\n",
       {"E|a|1\r\n2", "E|c|1\r\n2", "E|d|1\r\n2"},
       {}},
      {"quotation marks are doubled", "\"a \"\"b\"\"\",c\n", {"E|a \"b\"|c"}, {}},
      {"one that is not closed is told",
       "a,b\nc,\"d\ne,f\n",
       {"E|a|b", "E|c|d\r\ne,f\r\n"},
       {"file:2: card 2: a quotation mark is not closed"}},
      {"what stands behind a closing quotation mark belongs to its field",
       "\"Hello\" there,Hallo\n\"dog\" ,\"Hund\"\nHe said \"no\",er\n\"a\"\"b\"c\"d,e",
       {"E|Hello there|Hallo", "E|dog |Hund", "E|He said \"no\"|er", "E|a\"bc\"d|e"},
       {"file:1: card 1: a quotation mark that does not end its field is not kept",
        "file:2: card 2: a quotation mark that does not end its field is not kept",
        "file:4: card 4: a quotation mark that does not end its field is not kept"}},
      {"semicolons behind a first field of two lines",
       "\r\n\"a,\nb,\";\"c\"\nd,;5\" nail\n",
       {"E|a,\r\nb,|c", "E|d,|5\" nail"},
       {}},
      {"a quotation mark within a field hides no separator",
       "5\" nail;6\" nail\n",
       {"E|5\" nail|6\" nail"},
       {}},
      {"nor do two of them",
       "the \"\" operator;leer\na,b,c;d\n",
       {"E|the \"\" operator|leer", "E|a,b,c|d"},
       {}},
      {"one bad byte behind the signature of UTF-8",
       "\xEF\xBB\xBF"
       "a,\xC3\xA9\nb,\xE9\n",
       {"E|a|\xC3\xA9", "E|b|\xC3\xA9"},
       {"file: what is no UTF-8 is read in the code page"}},
      {"the code page", "a,\xE9\n", {"E|a|\xC3\xA9"}, {}},
      {"UTF-8 without signature", "a,\xC3\xA9\n", {"E|a|\xC3\xA9"}, {}},
      {"UTF-16, its low bytes first",
       std::string("\xFF\xFE"
                   "a\0;\0\x16\x04\n\0",
                   10),
       {"E|a|\xD0\x96"},
       {}},
      {"UTF-16, its high bytes first",
       std::string("\xFE\xFF"
                   "\0a\0,\x04\x16\0\n\0",
                   11),
       {"E|a|\xD0\x96"},
       {}},
      {"UTF-16 without a text", std::string("\xFF\xFE", 2), {}, {}},
      {"UTF-16 with half a unit",
       std::string("\xFF\xFE"
                   "A",
                   3),
       {},
       {}},
      {"questions",
       "question,a,b,c,d,answer\nq,1,2,3,4,b\nr,,,,,t\ns,,,,,F\n",
       {"M|q|1|2|3|4|B", "T|r|||||T", "T|s|||||F"},
       {}},
      {"questions without a head row", "q,1,2,3,4,D\nr,1,2\n", {"M|q|1|2|3|4|D", "M|r|1|2|||"}, {}},
      {"an answer that is no choice",
       "question,a,b,c,d,answer\nq,1,2,,,E\nr,1,,,,T\n",
       {"M|q|1|2|||", "M|r|1||||"},
       {"file:2: card 1: its answer is none of its choices",
        "file:3: card 2: its answer is none of its choices"}},
  };
  for (const TableCase& one : cases) CheckReads(FileFormat::kCsv, one);
}

TEST_CASE("a table of tabs becomes cards as its comment lines tell") {
  const TableCase cases[] = {
      {"tabs", "a\tb\nc\t\"d\t\"\"e\"\"\"\n", {"E|a|b", "E|c|d\t\"e\""}, {}},
      {"comments are no cards", "#deck:Verbs\na\tb\n# a note\nc\td\n", {"E|a|b", "E|c|d"}, {}},
      {"a quoted field may begin with the sign", "a\tb\n\"#c\"\td\n", {"E|a|b", "E|#c|d"}, {}},
      {"another separator by name", "#separator:Semicolon\na\t1;b\n", {"E|a\t1|b"}, {}},
      {"another separator as it stands", "#separator:|\r\na|b\r\n", {"E|a|b"}, {}},
      {"the columns by name",
       "#columns:back\ttags\tfront\nb\tx\ta\n",
       {"E|a|b"},
       {"file:1: the column \"tags\" is not kept"}},
      {"columns that are no text",
       "#guid column:1\n#tags column:4\nx\ta\tb\tt\n",
       {"E|a|b"},
       {"file:1: the column \"guid\" is not kept", "file:2: the column \"tags\" is not kept"}},
      {"HTML",
       "#html:true\n<b>a</b> &amp; b<br>c\t&eacute;&#233;&#xE9; &unknown; 1 < 2\n<div>d</div>\te\n",
       {"E|a & b\r\nc|\xC3\xA9\xC3\xA9\xC3\xA9 &unknown; 1 < 2", "E|d|e"},
       {"file:2: tags go, and what stands for a character becomes it"}},
      {"a column told twice, with a name that would command a terminal",
       "#\x1B]0;x\x07 column:3\n#tags column:3\na\tb\tt\n",
       {"E|a|b"},
       {"file:1: the column \"\\u001B]0;x\\u0007\" is not kept"}},
      {"comments and attributes of HTML that hold a bracket",
       "#html:true\na<!-- b > c -->d\te<img alt=\"f>g\" title='h\">'>i\n",
       {"E|ad|ei"},
       {"file:2: tags go, and what stands for a character becomes it"}},
      {"HTML that opens what it does not close",
       "#html:true\na<!-- b > c\td<b e=\"f>g\nh<!-- i\tj<b\n",
       {"E|a c|dg", "E|h<!-- i|j<b"},
       {"file:2: tags go, and what stands for a character becomes it"}},
      {"HTML without any", "#html:true\na\tb\n", {"E|a|b"}, {}},
      {"no HTML", "#html:false\n<b>\t&amp;\n", {"E|<b>|&amp;"}, {}},
      {"questions", "q\t1\t2\t3\t4\tC\nr\t\t\t\t\tF\n", {"M|q|1|2|3|4|C", "T|r|||||F"}, {}},
  };
  for (const TableCase& one : cases) CheckReads(FileFormat::kTsv, one);
}

TEST_CASE("tables are written as other programs read them") {
  FormatFixture fixture;
  const CardSet set =
      SetOf(kStandardDeck, {TextCard(u"a\tb", u"c,\"d\""), TextCard(u"#e", u"f\r\ng")});
  CHECK(fixture.Written(FileFormat::kCsv, set) ==
        "\xEF\xBB\xBF"
        "front,back\r\na\tb,\"c,\"\"d\"\"\"\r\n\"#e\",\"f\r\ng\"\r\n");
  const std::string lines = "\"a\tb\"\t\"c,\"\"d\"\"\"\n\"#e\"\t\"f\r\ng\"\n";
  CHECK(fixture.Written(FileFormat::kTsv, set) == lines);
  CHECK(fixture.Written(FileFormat::kTsv, set, TsvComments::kWritten) ==
        "#separator:tab\n#html:false\n#columns:front\tback\n" + lines);
}

TEST_CASE("what a table can't hold of a card is told") {
  FormatFixture fixture;
  DeckRecord odd = Question(u"q", {u"x", u"", u"", u""}, u"T");
  DeckRecord silent = Question(u"r", {}, u"F");
  silent.answer.clear();
  static_cast<void>(fixture.Written(
      FileFormat::kCsv, SetOf(kExtendedDeck, {odd, silent, Question(u"a\nb", {}, u"T")})));
  CHECK(fixture.Told() ==
        Lines{"deck:1: the choices of a true/false question are not kept",
              "deck:2: without an answer it is not kept as a true/false question",
              "deck:3: a carriage return or line feed of its own becomes a line break"});
}

TEST_CASE("a field over 1 MB is refused in words") {
  FormatFixture fixture;
  const std::string field(kLargestField + 1, 'x');
  for (const FileFormat format : {FileFormat::kCsv, FileFormat::kTsv}) {
    CHECK_THROWS_WITH_AS(static_cast<void>(fixture.Read(format, "a,b\n\"c" + field + "\",d\n")),
                         "file:2: a field is larger than 1 MB", Refused);
  }
}

TEST_CASE("many tags without an end take no longer than a text without tags") {
  std::string field;
  for (std::size_t at = 0; at < kLargestField / 5; ++at) field += at % 2 == 0 ? "<a'>" : "<!--";
  FormatFixture fixture;
  const auto start = std::chrono::steady_clock::now();
  CHECK(fixture.Read(FileFormat::kTsv, "#html:true\n" + field + "\tb\n").cards.size() == 1);
  CHECK(std::chrono::steady_clock::now() - start < std::chrono::seconds(20));
}

TEST_CASE("more cards than fit into memory are refused in words") {
  FormatFixture fixture;
  std::string bytes;
  for (std::size_t at = 0; at <= kMostSetCards; ++at) bytes += "a,b\n";
  CHECK_THROWS_AS(static_cast<void>(fixture.Read(FileFormat::kCsv, bytes)), Refused);
}

}  // namespace tessara::test
