#include "import/standard_import.h"

#include <doctest/doctest.h>
#include <string>

#include "base/utf8.h"
#include "tests/unit/import/import_fixture.h"

namespace tessara::test {

namespace {

FakeMessages::Shown LineOutsideCard(const Text& number) {
  return {u"Error occurred after card # " + number + u". Import aborted.", kStopIcon,
          u"Error In Import File"};
}

FakeMessages::Shown TagMissing(const Text& number) {
  return {u"Error at card # " + number + u" in import file. Import has been cancelled.", kStopIcon,
          u"Error In Import File"};
}

FakeMessages::Shown LineWithError(const Text& line) {
  return {line, kOkOnly, u"Line Containing Error:"};
}

CardRow TextCard(const Text& front, const Text& number, const Text& back) {
  CardRow card;
  card.type = u"E";
  card.text = front;
  card.number = number;
  card.back = back;
  return card;
}

std::string Cards(int first, int last) {
  std::string bytes;
  for (int card = first; card <= last; ++card) {
    bytes += std::to_string(card) + ".\r\n*>F\r\nfront\r\n*>B\r\nback\r\n\r\n";
  }
  return bytes;
}

}  // namespace

TEST_CASE("cards with a front and a back are read into their rows") {
  ImportFixture fixture;
  fixture.Standard(
      Lines({"STD", "1.", "*>F", "What is the capital", "of Norway?", "*>B", "Oslo", "", "2.",
             "*>F", "Boiling point of water", "*>B", "100 degrees", "*END*"}));
  CHECK(fixture.messages.shown.empty());
  CHECK(RowOf(fixture.state, 1) == TextCard(u"What is the capitalof Norway?", u"1", u"Oslo"));
  CHECK(RowOf(fixture.state, 2) == TextCard(u"Boiling point of water", u"2", u"100 degrees"));
  CHECK(fixture.state.deck.cardPresent.At(2) == 1);
  CHECK(fixture.state.deck.cardPresent.At(3) == 0);
  CHECK(fixture.state.deck.cardCount == 2);
  CHECK(fixture.totals == std::vector{1, 2});
}

TEST_CASE("a standard import ends as a new deck that was never saved") {
  ImportFixture fixture;
  fixture.Standard(Lines({"STD", "1.", "*>F", "f", "*>B", "b", ""}));
  CHECK(fixture.shown == std::vector{kStandardDeck});
  CHECK(fixture.state.deck.currentCard == 1);
  CHECK(fixture.state.deck.changed);
  CHECK(fixture.state.deck.Cell(0, kInfoType) == u"Santdard");
  CHECK_FALSE(fixture.fileNumber.IsOpen());
  CHECK(fixture.state.import.standardCard == 0);
  CHECK(fixture.state.import.previousStandardCard == 0);
}

TEST_CASE("lines of a side are joined as they stand, lines of blanks included") {
  ImportFixture fixture;
  fixture.Standard(Lines({"1.", "*>F", " a ", "  ", "b", "*>B", "\tc", " "}));
  CHECK(RowOf(fixture.state, 1) == TextCard(u" a   b", u"1", u"\tc "));
}

TEST_CASE("a side of lines without end takes no more than the bound of an imported text") {
  const std::string line(400'000, 'x');
  ImportFixture fixture;
  fixture.Standard(Lines({"1.", "*>F", line, line, line, "*>B", std::string(1'500'000, 'y')}));
  CHECK(RowOf(fixture.state, 1) ==
        TextCard(Text(kLongestImportedText, u'x'), u"1", Text(kLongestImportedText, u'y')));
}

TEST_CASE("tags stand in either order, repeat, and are known with blanks and in lower case") {
  ImportFixture fixture;
  fixture.Standard(Lines({"1.", " *>b ", "b1", "*>f", "f1", "*>B", "b2", "*>F  ", "f2", ""}));
  CHECK(fixture.messages.shown.empty());
  CHECK(RowOf(fixture.state, 1) == TextCard(u"f1f2", u"1", u"b1b2"));
}

TEST_CASE("what only looks like a tag is text") {
  ImportFixture fixture;
  fixture.Standard(Lines({"1.", "*>F", "*>C", "*>FF", "* >F", "*>B", "*END", "x"}));
  CHECK(RowOf(fixture.state, 1) == TextCard(u"*>C*>FF* >F", u"1", u"*ENDx"));
}

TEST_CASE(
    "text before any tag of the file is dropped, later it goes to the side of the card before") {
  ImportFixture fixture;
  fixture.Standard(
      Lines({"1.", "lost", "*>F", "f", "*>B", "b", "", "2.", "kept", "*>F", "*>B", ""}));
  CHECK(fixture.messages.shown.empty());
  CHECK(RowOf(fixture.state, 1) == TextCard(u"f", u"1", u"b"));
  CHECK(RowOf(fixture.state, 2) == TextCard(u"", u"2", u"kept"));
}

TEST_CASE("the two type words are skipped wherever they stand, in any case") {
  ImportFixture fixture;
  fixture.Standard(Lines({"std", "EXT", "1.", "*>F", "f", " ext ", "*>B", "b", "", "Std", ""}));
  CHECK(fixture.messages.shown == Boxes{LineOutsideCard(u"1")});
  ImportFixture good;
  good.Standard(Lines({"std", "EXT", "1.", "*>F", "f", " ext ", "*>B", "b", "", "Std"}));
  CHECK(good.messages.shown.empty());
  CHECK(RowOf(good.state, 1) == TextCard(u"f", u"1", u"b"));
}

TEST_CASE("nothing behind the end line is read, whatever its case and its blanks") {
  for (const char* end : {"*END*", " *end* ", "*End*"}) {
    ImportFixture fixture;
    fixture.Standard(Lines({"1.", "*>F", "f", "*>B", "b", end, "more", "", "7."}));
    CHECK(fixture.messages.shown.empty());
    CHECK(RowOf(fixture.state, 1) == TextCard(u"f", u"1", u"b"));
  }
}

TEST_CASE("a number line is a number as a whole with an early dot") {
  struct Case {
    TextView line;
    bool number;
  };
  const Case cases[] = {
      {u"1.", true},     {u"12.", true},   {u"123.", true}, {u"7.5", true},   {u"3.14", true},
      {u" 1. ", true},   {u"-1.", true},   {u"1.e5", true}, {u"1", false},    {u"1234.", false},
      {u"1. x", false},  {u"1.2.", false}, {u"", false},    {u".5", false},   {u"a.b", false},
      {u"   1.", false}, {u"\t1.", false}, {u"..", false},  {u"1,5.", false},
  };
  for (const Case& c : cases) {
    const std::string line = ToUtf8(c.line);
    CAPTURE(line);
    CHECK(IsCardNumberLine(c.line) == c.number);
  }
}

TEST_CASE("the number is the line without its last character, rounded") {
  for (const std::string line : {"1.", "1.5", "1.49", "0.99", "0.519", "  1.", " 1. ", "+1."}) {
    CAPTURE(line);
    ImportFixture fixture;
    fixture.Standard(Lines({"STD", line, "*>F", "f"}));
    CHECK(fixture.messages.shown.empty());
    CHECK(RowOf(fixture.state, 1) == TextCard(u"f", u"1", u""));
  }
}

TEST_CASE("card numbers start at 1 and go up by one") {
  struct Case {
    std::string what;
    std::string bytes;
    Boxes boxes;
  };
  const Case cases[] = {
      {"number 0", Lines({"STD", "0."}), {kBadFirstCard, kNoCards}},
      {"a first number above 1", Lines({"STD", "2."}), {kBadFirstCard, kNoCards}},
      {"a negative one", Lines({"STD", "-1."}), {SequenceError(u"0"), kNoCards}},
      {"number 0 later", Cards(1, 1) + "0.\r\n", {kBadFirstCard}},
      {"the same as the last finished one", Cards(1, 1) + "1.\r\n", {SequenceError(u"1")}},
      {"one left out", Cards(1, 1) + "3.\r\n", {SequenceError(u"1")}},
      {"the next one inside the first", "1.\r\n*>F\r\nf\r\n2.\r\n", {kBadFirstCard}},
      {"the next one inside a later one", Cards(1, 1) + "2.\r\n3.\r\n", {SequenceError(u"1")}},
      {"a number as text", Cards(1, 1) + "2.\r\n*>F\r\n3.14\r\n", {SequenceError(u"1")}},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    ImportFixture fixture;
    fixture.Standard(c.bytes);
    CHECK(fixture.messages.shown == c.boxes);
    CHECK(fixture.Dropped());
    CHECK_FALSE(fixture.fileNumber.IsOpen());
  }
}

TEST_CASE("the number of the card being read may come again and changes nothing") {
  ImportFixture fixture;
  fixture.Standard(Lines({"1.", "*>F", "f", "1.", "g", "*>B", "b", ""}));
  CHECK(fixture.messages.shown.empty());
  CHECK(RowOf(fixture.state, 1) == TextCard(u"fg", u"1", u"b"));
}

TEST_CASE("a line where a number is due names the card before") {
  struct Case {
    std::string what;
    std::string bytes;
    Boxes boxes;
  };
  const Case cases[] = {
      {"text first", Lines({"STD", "text", "1."}), {LineOutsideCard(u"0"), kNoCards}},
      {"a tag first", Lines({"STD", "*>F"}), {LineOutsideCard(u"0"), kNoCards}},
      {"a blank line first", Lines({"STD", "", "1."}), {LineOutsideCard(u"0"), kNoCards}},
      {"text behind a card", Cards(1, 2) + "text\r\n", {LineOutsideCard(u"2")}},
      {"a tag behind a card", Cards(1, 1) + "*>F\r\n", {LineOutsideCard(u"1")}},
      {"two blank lines", Cards(1, 1) + "\r\n" + Cards(2, 2), {LineOutsideCard(u"1")}},
      {"a number with text", Cards(1, 1) + "2.front\r\n", {LineOutsideCard(u"1")}},
      {"a number of four digits", Cards(1, 1) + "1234.\r\n", {LineOutsideCard(u"1")}},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    ImportFixture fixture;
    fixture.Standard(c.bytes);
    CHECK(fixture.messages.shown == c.boxes);
    CHECK(fixture.Dropped());
    CHECK_FALSE(fixture.fileNumber.IsOpen());
  }
}

TEST_CASE("a blank line needs both tags of its card") {
  struct Case {
    std::string what;
    std::string card;
  };
  const Case cases[] = {
      {"right behind the number", Lines({"2.", ""})},
      {"without a back", Lines({"2.", "*>F", "f", ""})},
      {"without a front", Lines({"2.", "*>B", "b", ""})},
      {"the front twice", Lines({"2.", "*>F", "f", "*>F", "g", ""})},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    ImportFixture fixture;
    fixture.Standard(Cards(1, 1) + c.card);
    CHECK(fixture.messages.shown == Boxes{TagMissing(u"2")});
    CHECK(fixture.Dropped());
  }
}

TEST_CASE("the last card needs no blank line and no back, only its front tag") {
  struct Case {
    std::string what;
    std::string bytes;
    CardRow row;
    int present;
  };
  const Case cases[] = {
      {"whole", Lines({"1.", "*>F", "f", "*>B", "b"}), TextCard(u"f", u"1", u"b"), 1},
      {"without an end of line", "1.\r\n*>F\r\nf\r\n*>B\r\nb", TextCard(u"f", u"1", u"b"), 1},
      {"without a back", Lines({"1.", "*>F", "f"}), TextCard(u"f", u"1", u""), 1},
      {"the tag alone", Lines({"1.", "*>F"}), TextCard(u"", u"1", u""), 1},
      {"without a front", Lines({"1.", "*>B", "b"}), CardRow(), 0},
      {"the number alone", Lines({"1."}), CardRow(), 0},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    ImportFixture fixture;
    fixture.Standard(c.bytes);
    CHECK(fixture.messages.shown.empty());
    CHECK(RowOf(fixture.state, 1) == c.row);
    CHECK(fixture.state.deck.cardPresent.At(1) == c.present);
    CHECK(fixture.state.deck.cardCount == 1);
  }
}

TEST_CASE("a text without cards tells so and shows an empty deck") {
  for (const std::string& bytes : {Lines({"STD"}), Lines({"STD", "*END*", "1."}), std::string()}) {
    ImportFixture fixture;
    fixture.Standard(bytes);
    CHECK(fixture.messages.shown == Boxes{kNoCards});
    CHECK(fixture.shown == std::vector{kStandardDeck});
    CHECK_FALSE(fixture.state.deck.HasCards());
    CHECK(fixture.state.deck.changed);
  }
}

TEST_CASE("reading stops behind the number of card 201 with 200 cards") {
  ImportFixture fixture;
  fixture.Standard("STD\r\n" + Cards(1, 201) + "an error\r\n");
  CHECK(fixture.messages.shown.empty());
  CHECK(fixture.state.deck.cardCount == 200);
  CHECK(fixture.state.deck.cardPresent.At(200) == 1);
  CHECK(fixture.state.deck.cardPresent.At(201) == 0);
  CHECK(fixture.totals.back() == 201);
}

TEST_CASE("a file that ends with the number of card 201 counts it") {
  ImportFixture fixture;
  fixture.Standard("STD\r\n" + Cards(1, 200) + "201.\r\n");
  CHECK(fixture.messages.shown.empty());
  CHECK(fixture.state.deck.cardCount == 201);
  CHECK(fixture.state.deck.cardPresent.At(201) == 0);
}

TEST_CASE("an unforeseen error shows the line too and leaves the file open") {
  struct Case {
    std::string line;
    Text description;
  };
  const Case cases[] = {{"1.e9", u"Type mismatch"},
                        {"1.5e99", u"Overflow"},
                        {"-.5", u"Type mismatch"},
                        {" .5", u"Type mismatch"}};
  for (const Case& c : cases) {
    CAPTURE(c.line);
    ImportFixture fixture;
    fixture.Standard("STD\r\n" + Cards(1, 2) + c.line + "\r\n");
    CHECK(fixture.messages.shown ==
          Boxes{UnforeseenError(c.description), LineWithError(FromUtf8(c.line))});
    CHECK(fixture.Dropped());
    CHECK(fixture.fileNumber.IsOpen());
  }
}

TEST_CASE("a card that was begun and a number beyond the table are an unforeseen error") {
  ImportFixture fixture;
  fixture.Standard(Lines({"STD", "1.", "*>F", "f", "203."}));
  CHECK(fixture.messages.shown ==
        Boxes{kBadFirstCard, UnforeseenError(u"Subscript out of range"), LineWithError(u"203.")});
  CHECK(fixture.Dropped());
  CHECK(fixture.fileNumber.IsOpen());
}

TEST_CASE("a card that was begun leaves nothing after an error") {
  ImportFixture fixture;
  fixture.Standard(Lines({"STD", "1.", "*>F", "f", "7."}));
  CHECK(fixture.messages.shown == Boxes{kBadFirstCard});
  CHECK(fixture.Dropped());
  CHECK(fixture.state.import.standardCard == 0);
}

TEST_CASE("a failed import that has finished a card spoils the next one in the same run") {
  ImportFixture fixture;
  fixture.Standard("STD\r\n" + Cards(1, 2) + "\r\n");
  CHECK(fixture.messages.Take() == Boxes{LineOutsideCard(u"2")});
  CHECK(fixture.state.import.previousStandardCard == 2);
  CHECK(fixture.state.deck.cardCount == 2);
  for (int again = 0; again < 2; ++again) {
    fixture.Standard("STD\r\n" + Cards(1, 1));
    CHECK(fixture.messages.Take() == Boxes{SequenceError(u"2")});
    CHECK(fixture.Dropped());
  }
}

TEST_CASE("a failed import that has finished no card does not") {
  ImportFixture fixture;
  fixture.Standard(Lines({"STD", "1.", "*>F", "f", ""}));
  CHECK(fixture.messages.Take() == Boxes{TagMissing(u"1")});
  fixture.Standard("STD\r\n" + Cards(1, 1));
  CHECK(fixture.messages.shown.empty());
  CHECK(fixture.state.deck.cardCount == 1);
}

TEST_CASE("a stale count of 201 ends the next import at once") {
  ImportFixture fixture;
  fixture.state.deck.cardCount = 201;
  fixture.Standard("STD\r\n" + Cards(1, 1));
  CHECK(fixture.messages.shown.empty());
  CHECK(fixture.state.deck.cardCount == 200);
  CHECK_FALSE(fixture.state.deck.HasCards());
}

}  // namespace tessara::test
