#include <doctest/doctest.h>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "tests/unit/import/command_fixture.h"

namespace tessara::test {

namespace {

constexpr const char* kMark = "\xEF\xBB\xBF";  // the byte order mark of UTF-8

/// How a text editor writes its lines.
struct Writing {
  const char* name;
  std::string mark;
  std::string lineEnd;
  bool lastLineEnds;
};

const Writing kWritings[] = {{"LF", "", "\n", true},
                             {"LF, the last line not ended", "", "\n", false},
                             {"LF with a byte order mark", kMark, "\n", true},
                             {"CR LF", "", "\r\n", true},
                             {"CR LF, the last line not ended", "", "\r\n", false},
                             {"CR LF with a byte order mark", kMark, "\r\n", true},
                             {"CR", "", "\r", true}};

std::string Written(const std::vector<std::string>& lines, const Writing& writing) {
  std::string bytes = writing.mark;
  for (std::size_t at = 0; at < lines.size(); ++at) {
    const bool ends = at + 1 < lines.size() || writing.lastLineEnds;
    bytes += lines[at] + (ends ? writing.lineEnd : "");
  }
  return bytes;
}

/// A file as somebody types it, and what becomes of it.
struct HandWritten {
  const char* what;
  std::vector<std::string> lines;
  std::vector<Text> told;   ///< texts of the message boxes
  std::vector<Text> cards;  ///< as `Card` gives them; none where no deck comes up
};

/// The parts of a card that a text file can fill, a bar between them.
Text Card(const ProgramState& state, int row) {
  Text card = state.deck.Cell(row, kCardType);
  for (int column : {kCardText, kChoiceA, kChoiceB, kChoiceC, kChoiceD, kAnswer, kBackText}) {
    if (!state.deck.Cell(row, column).empty()) card += u"|" + state.deck.Cell(row, column);
  }
  return card;
}

std::vector<Text> CardsOf(const ProgramState& state) {
  std::vector<Text> cards;
  for (int row = 1; row <= kMostCards && state.deck.cardPresent.At(row) != 0; ++row)
    cards.push_back(Card(state, row));
  return cards;
}

std::vector<Text> TextsOf(const Boxes& boxes) {
  std::vector<Text> texts;
  for (const FakeMessages::Shown& box : boxes) texts.push_back(box.text);
  return texts;
}

const Text kNoneFound = kNoCards.text;
const Text kFirstIsWrong = kBadFirstCard.text;
const Text kAfterCard1 = SequenceError(u"1").text;
Text Outside(const Text& card) {
  return u"Error occurred after card # " + card + u". Import aborted.";
}
Text Inside(const Text& card) {
  return u"Error at card # " + card + u" in import file. Import has been cancelled.";
}

const HandWritten kStandardFiles[] = {
    {"the example of the help",
     {"STD", "1.", "*>F", "What is the capital ", "of Norway?", "*>B", "Oslo", "", "2.", "*>F",
      "Boiling point of water", "*>B", "100 degrees", "*END*"},
     {},
     {u"E|What is the capital of Norway?|Oslo", u"E|Boiling point of water|100 degrees"}},
    {"small letters, blanks around the marks, letters with accents",
     {" std ", "1.", " *>f", "gro\xC3\x9F", "*>b  ", "caf\xC3\xA9", "", "2.", "*>F", "x", "*>B",
      "y", "*end*", "anything"},
     {},
     {u"E|gro\u00DF|caf\u00E9", u"E|x|y"}},
    {"an empty line behind the last card",
     {"STD", "1.", "*>F", "f", "*>B", "b", "", "*END*"},
     {},
     {u"E|f|b"}},
    {"the last card without its back", {"STD", "1.", "*>F", "front"}, {}, {u"E|front"}},
    {"an empty line below STD",
     {"STD", "", "1.", "*>F", "f", "*>B", "b"},
     {Outside(u"0"), kNoneFound},
     {}},
    {"the number without its dot",
     {"STD", "1", "*>F", "f", "*>B", "b"},
     {Outside(u"0"), kNoneFound},
     {}},
    {"the front on the line of the number",
     {"STD", "1. What is the capital of Norway?", "*>B", "Oslo"},
     {Outside(u"0"), kNoneFound},
     {}},
    {"two empty lines between cards",
     {"STD", "1.", "*>F", "f", "*>B", "b", "", "", "2.", "*>F", "f", "*>B", "b"},
     {Outside(u"1")},
     {}},
    {"no empty line between cards",
     {"STD", "1.", "*>F", "f", "*>B", "b", "2.", "*>F", "f", "*>B", "b"},
     {kFirstIsWrong},
     {}},
    {"no empty line behind card 2",
     {"STD", "1.", "*>F", "f", "*>B", "b", "", "2.", "*>F", "f", "*>B", "b", "3.", "*>F", "f"},
     {kAfterCard1},
     {}},
    {"blanks on the line between cards",
     {"STD", "1.", "*>F", "f", "*>B", "b", "  ", "2.", "*>F", "f", "*>B", "b"},
     {kFirstIsWrong},
     {}},
    {"no mark of the back within the file",
     {"STD", "1.", "*>F", "f", "b", "", "2.", "*>F", "f", "*>B", "b"},
     {Inside(u"1")},
     {}},
    {"no mark of the front",
     {"STD", "1.", "f", "*>B", "b", "", "2.", "*>F", "f", "*>B", "b"},
     {Inside(u"1")},
     {}},
    {"an empty line within a front",
     {"STD", "1.", "*>F", "f", "", "g", "*>B", "b"},
     {Inside(u"1")},
     {}},
    {"a number left out",
     {"STD", "1.", "*>F", "f", "*>B", "b", "", "3.", "*>F", "f", "*>B", "b"},
     {kAfterCard1},
     {}},
    {"a first card with the number 0",
     {"STD", "0.", "*>F", "f", "*>B", "b"},
     {kFirstIsWrong, kNoneFound},
     {}},
};

const HandWritten kExtendedFiles[] = {
    {"the example of the help",
     {"EXT", "1.The sun is a star", "=T", "", "2.Which number is prime?", "A.Four", "B.Six",
      "C.Seven", "D.Eight", "=C", "", "3.Water is dry", "=F"},
     {},
     {u"T|The sun is a star|T", u"M|Which number is prime?|Four|Six|Seven|Eight|C",
      u"T|Water is dry|F"}},
    {"small letters, and no empty line behind a multiple choice card",
     {"ext", "1.Which?", "a.One", "b.Two", "=b", "2.True?", "=t"},
     {},
     {u"M|Which?|One|Two|B", u"T|True?|T"}},
    {"more empty lines than are needed",
     {"EXT", "", "1.Yes?", "=T", "", "", "2.No?", "=F", ""},
     {},
     {u"T|Yes?|T", u"T|No?|F"}},
    {"blanks behind the dots and before the answer",
     {"EXT", "1. Which?", "A. One", "B. Two", "= A"},
     {},
     {u"M| Which?| One| Two|A"}},
    {"no answer line", {"EXT", "1.Which?", "A.One", "B.Two"}, {}, {u"|Which?|One|Two"}},
    {"no empty line behind a true or false card",
     {"EXT", "1.Yes?", "=T", "2.No?", "=F"},
     {kFirstIsWrong},
     {}},
    {"no empty line behind card 2, a true or false card",
     {"EXT", "1.Yes?", "=T", "", "2.No?", "=F", "3.Yes?", "=T"},
     {kAfterCard1},
     {}},
    {"a blank behind the answer", {"EXT", "1.Yes?", "=T ", "", "2.No?", "=F"}, {}, {}},
    {"the answer as a word", {"EXT", "1.Yes?", "=True"}, {}, {}},
    {"an answer that is a later letter", {"EXT", "1.Which?", "A.One", "=E"}, {}, {}},
    {"a question of two lines",
     {"EXT", "1.Yes?", "=T", "", "2.Which of these", "is a prime?", "A.One", "=A"},
     {},
     {u"T|Yes?|T", u"|Which of these"}},
    {"brackets behind the letters",
     {"EXT", "1.Yes?", "=T", "", "2.Which?", "A) One", "B) Two", "=A"},
     {},
     {u"T|Yes?|T", u"|Which?"}},
    {"a bracket behind the number",
     {"EXT", "1) Yes?", "=T"},
     {UnforeseenError(u"Type mismatch").text},
     {}},
    {"letters that go backward",
     {"EXT", "1.Which?", "B.Two", "A.One", "=A"},
     {u"Error in answer sequence."},
     {}},
    {"small and capital letters mixed",
     {"EXT", "1.Which?", "a.One", "B.Two", "=A"},
     {u"Error in answer sequence."},
     {}},
    {"a number left out", {"EXT", "1.Yes?", "=T", "", "3.No?", "=F"}, {kAfterCard1}, {}},
    {"a first card with the number 2", {"EXT", "2.Yes?", "=T"}, {kFirstIsWrong, kNoneFound}, {}},
};

const HandWritten kUntypedFiles[] = {
    {"no type line", {"1.Yes?", "=T"}, {kUnknownFormat.text}, {}},
    {"an empty line above the type", {"", "STD", "1."}, {kUnknownFormat.text}, {}},
    {"a heading above the type", {"Capitals", "STD", "1."}, {kUnknownFormat.text}, {}},
    {"more than the word on the first line", {"STD:", "1."}, {kUnknownFormat.text}, {}},
};

template <std::size_t count>
void CheckAll(const HandWritten (&files)[count]) {
  for (const HandWritten& file : files) {
    for (const Writing& writing : kWritings) {
      CAPTURE(file.what);
      CAPTURE(writing.name);
      CommandFixture fixture;
      fixture.Import(Written(file.lines, writing));
      CHECK(TextsOf(fixture.Told()) == file.told);
      CHECK(CardsOf(fixture.state) == file.cards);
      CHECK((fixture.deck.IsLoaded() && fixture.deck->Visible()) == !file.cards.empty());
    }
  }
}

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  REQUIRE(file.is_open());
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string WithoutEntities(std::string page) {
  const std::pair<std::string, std::string> entities[] = {
      {"&gt;", ">"}, {"&lt;", "<"}, {"&amp;", "&"}};
  for (const auto& [entity, letter] : entities) {
    for (auto at = page.find(entity); at != std::string::npos; at = page.find(entity, at + 1))
      page.replace(at, entity.size(), letter);
  }
  return page;
}

/// The example that begins with that line, out of a help page or the README.
std::string ExampleIn(const std::string& document, const std::string& firstLine) {
  const std::string text = BytesOf(std::string(TESSARA_SAMPLE_TEXTS) + "/../../" + document);
  const bool page = document.ends_with(".html");
  const std::string begin = page ? "<pre>" : "```text\n";
  const auto found = text.find(begin + firstLine + "\n");
  REQUIRE(found != std::string::npos);
  const auto start = found + begin.size();
  const auto end = text.find(page ? "</pre>" : "```", start);
  const std::string example = text.substr(start, end - start);
  return page ? WithoutEntities(example) : example;
}

}  // namespace

TEST_CASE("the examples of the documents become the cards that the documents tell") {
  struct Case {
    const char* document;
    const char* firstLine;
    std::vector<Text> cards;
  };
  const Case cases[] = {
      {"data/help/import_standard.html",
       "STD",
       {u"E|What is the capital of Norway?|Oslo", u"E|Boiling point of water|100 degrees"}},
      {"data/help/import_extended.html",
       "EXT",
       {u"T|The sun is a star|T", u"M|Which number is prime?|Four|Six|Seven|Eight|C",
        u"T|Water is dry|F"}},
      {"README.md",
       "STD",
       {u"E|What is the capital of Norway?|Oslo", u"E|What is the capital of Peru?|Lima"}},
      {"README.md",
       "EXT",
       {u"T|The Sun is a star.|T",
        u"M|Which particle carries a negative electric charge?|Proton|Neutron|Electron|C"}}};
  for (const Case& c : cases) {
    CAPTURE(c.document);
    CAPTURE(c.firstLine);
    CommandFixture fixture;
    fixture.Import(ExampleIn(c.document, c.firstLine));
    CHECK(fixture.Told().empty());
    CHECK(CardsOf(fixture.state) == c.cards);
  }
}

TEST_CASE("standard texts as people write them become decks or say what is wrong") {
  CheckAll(kStandardFiles);
}

TEST_CASE("extended texts as people write them become decks or end as the rules have it") {
  CheckAll(kExtendedFiles);
}

TEST_CASE("a text that does not begin with its type is refused, whatever editor wrote it") {
  CheckAll(kUntypedFiles);
}

TEST_CASE("a text in the code page of the language reads like one in UTF-8") {
  CommandFixture fixture;
  fixture.Import("STD\r\n1.\r\n*>F\r\ngro\xDF\r\n*>B\r\ncaf\xE9 \x80\r\n");
  CHECK(CardsOf(fixture.state) == std::vector<Text>{u"E|gro\u00DF|caf\u00E9 \u20AC"});
}

TEST_CASE("a text in UTF-16 with its mark reads like one in UTF-8") {
  const TextView text = u"\uFEFFSTD\r\n1.\r\n*>F\r\n\u0416\r\n*>B\r\n\u4E2D\r\n";
  CommandFixture fixture;
  fixture.Import({reinterpret_cast<const char*>(text.data()), text.size() * sizeof(char16_t)});
  CHECK(CardsOf(fixture.state) == std::vector<Text>{u"E|\u0416|\u4E2D"});
}

TEST_CASE("a text in UTF-16 without a mark does not begin with a type") {
  CommandFixture fixture;
  fixture.Import(std::string("S\0T\0D\0\r\0\n\0", 10));
  CHECK(fixture.Told() == Boxes{kUnknownFormat});
}

}  // namespace tessara::test
