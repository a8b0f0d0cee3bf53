#include "import/extended_import.h"

#include <doctest/doctest.h>
#include <string>

#include "import/line_kinds.h"
#include "tests/unit/import/import_fixture.h"

namespace tessara::test {

namespace {

const FakeMessages::Shown kBackwardLetter{u"Error in answer sequence.", kOkOnly, u"Tessara"};

CardRow TrueFalse(const Text& question, const Text& number, const Text& answer) {
  CardRow card;
  card.type = u"T";
  card.text = question;
  card.number = number;
  card.answer = answer;
  return card;
}

CardRow Choice(const Text& question, const Text& number, std::vector<Text> choices,
               const Text& answer) {
  CardRow card = TrueFalse(question, number, answer);
  card.type = u"M";
  card.choices = std::move(choices);
  return card;
}

/// Cards `first` to `last` of six lines each, the blank line not counted among them: the number,
/// four choices, the answer.
std::string ChoiceCards(int first, int last) {
  std::string bytes;
  for (int card = first; card <= last; ++card) {
    bytes += std::to_string(card) + ".Question\r\nA.a\r\nB.b\r\nC.c\r\nD.d\r\n=A\r\n";
  }
  return bytes;
}

std::string TrueFalseCards(int first, int last) {
  std::string bytes;
  for (int card = first; card <= last; ++card) {
    bytes += std::to_string(card) + ".Statement\r\n=T\r\n\r\n";
  }
  return bytes;
}

}  // namespace

TEST_CASE("true/false and multiple choice cards are read into their rows") {
  ImportFixture fixture;
  fixture.Extended(Lines({"EXT", "1.The sun is a star", "=T", "", "2.Which number is prime?",
                          "A.Four", "B.Six", "C.Seven", "D.Eight", "=c", "3.Water is dry", "=F"}));
  CHECK(fixture.messages.shown.empty());
  CHECK(RowOf(fixture.state, 1) == TrueFalse(u"The sun is a star", u"1", u"T"));
  CHECK(RowOf(fixture.state, 2) ==
        Choice(u"Which number is prime?", u"2", {u"Four", u"Six", u"Seven", u"Eight"}, u"C"));
  CHECK(RowOf(fixture.state, 3) == TrueFalse(u"Water is dry", u"3", u"F"));
  CHECK(fixture.state.deck.cardPresent.At(3) == 1);
  CHECK(fixture.state.deck.cardPresent.At(4) == 0);
  CHECK(fixture.state.deck.cardCount == 3);
  CHECK(fixture.totals == std::vector{1, 2, 3});
}

TEST_CASE("an extended import ends as a new deck that was never saved") {
  ImportFixture fixture;
  fixture.Extended(Lines({"EXT", "1.Q", "A.a", "=A"}));
  CHECK(fixture.shown == std::vector{kExtendedDeck});
  CHECK(fixture.state.deck.currentCard == 1);
  CHECK(fixture.state.deck.changed);
  CHECK(fixture.state.deck.Cell(0, kInfoType) == u"Extended");
  CHECK_FALSE(fixture.fileNumber.IsOpen());
  CHECK(fixture.state.import.cardNumber == 0);
  CHECK(fixture.state.import.previousCard == 0);
  CHECK(fixture.state.import.choiceLetter.empty());
  CHECK(fixture.state.import.lastLetter.empty());
}

TEST_CASE("what follows the first dot is the question or the choice, blanks and dots included") {
  ImportFixture fixture;
  fixture.Extended(Lines({"1. 3.14 is pi ", "a. one.two ", "b.", "=B"}));
  CHECK(RowOf(fixture.state, 1) ==
        Choice(u" 3.14 is pi ", u"1", {u" one.two ", u"", u"", u""}, u"B"));
}

TEST_CASE("a choice's text starts at its third character, wherever the dot is") {
  ImportFixture fixture;
  fixture.Extended(Lines({"1.Q", "A).text", "=A"}));
  CHECK(fixture.state.deck.Cell(1, kChoiceA) == u".text");
}

TEST_CASE("an answer is the last character of its line, in any case") {
  struct Case {
    const char* line;
    Text answer;
    Text type;
  };
  const Case cases[] = {{"=T", u"T", u"T"},
                        {"=f", u"F", u"T"},
                        {"=a", u"A", u"M"},
                        {"=B", u"B", u"M"},
                        {"=C", u"C", u"M"},
                        {"=d", u"D", u"M"},
                        {"=the answer is d", u"D", u"M"}};
  for (const Case& c : cases) {
    ImportFixture fixture;
    fixture.Extended(Lines({"EXT", "1.Q", c.line}));
    CHECK(fixture.state.deck.Cell(1, kAnswer) == c.answer);
    CHECK(fixture.state.deck.Cell(1, kCardType) == c.type);
  }
}

TEST_CASE("an answer that is none drops all cards in silence") {
  for (const char* line : {"=", "=E", "=True", "=FALSE", "=T ", "=1", "=\xE4"}) {
    ImportFixture fixture;
    fixture.Extended(Lines({"EXT", "1.Q", "=T", "", "2.Q", line, "", "3.Q", "=T"}));
    CHECK(fixture.messages.shown.empty());
    CHECK(fixture.Dropped());
    CHECK_FALSE(fixture.fileNumber.IsOpen());
  }
}

TEST_CASE("a later answer line replaces the earlier one and the card type") {
  ImportFixture fixture;
  fixture.Extended(Lines({"1.Q", "=T", "=B"}));
  CHECK(RowOf(fixture.state, 1) == Choice(u"Q", u"1", {u"", u"", u"", u""}, u"B"));
}

TEST_CASE("a card without an answer line has no card type") {
  ImportFixture fixture;
  fixture.Extended(Lines({"1.Q", "A.a", "2.R", "=T"}));
  CHECK(fixture.state.deck.Cell(1, kCardType).empty());
  CHECK(fixture.state.deck.Cell(2, kCardType) == u"T");
}

TEST_CASE("the two type words are skipped wherever they stand, in any case") {
  ImportFixture fixture;
  fixture.Extended(Lines({"ext", "1.Q", " STD ", "A.a", "Ext", "=A", "std"}));
  CHECK(fixture.messages.shown.empty());
  CHECK(RowOf(fixture.state, 1) == Choice(u"Q", u"1", {u"a", u"", u"", u""}, u"A"));
}

TEST_CASE("blank lines between cards count once, and behind a multiple choice card not at all") {
  for (const char* between : {"\r\n", "\r\n\r\n", ""}) {
    ImportFixture fixture;
    fixture.Extended(std::string("1.Q\r\nA.a\r\n=A\r\n") + between + "2.R\r\n=T\r\n");
    CHECK(fixture.messages.shown.empty());
    CHECK(fixture.state.deck.cardCount == 2);
  }
}

TEST_CASE("without a blank line a number behind a true/false card is out of sequence") {
  ImportFixture first;
  first.Extended(Lines({"EXT", "1.Q", "=T", "2.R", "=T"}));
  CHECK(first.messages.shown == Boxes{kBadFirstCard});
  ImportFixture later;
  later.Extended(Lines({"EXT", "1.Q", "=T", "", "2.R", "=T", "3.S", "=T"}));
  CHECK(later.messages.shown == Boxes{SequenceError(u"1")});
}

TEST_CASE("a blank line between the choices of a card does not end the card") {
  ImportFixture fixture;
  fixture.Extended(Lines({"1.Q", "B.b", "", "A.a", "=A"}));
  CHECK(fixture.messages.shown.empty());
  CHECK(RowOf(fixture.state, 1) == Choice(u"Q", u"1", {u"a", u"b", u"", u""}, u"A"));
}

TEST_CASE("choice letters may repeat and skip but not go backward, by character code") {
  struct Case {
    std::string first, second;
    bool good;
  };
  const Case cases[] = {{"A", "A", true},  {"A", "D", true},    {"B", "A", false},
                        {"A", "b", true},  {"a", "B", false},   {"Z", "a", true},
                        {"a", "Z", false}, {"D", "\xE4", true}, {"\x80", "\xE4", false}};
  for (const Case& c : cases) {
    CAPTURE(c.first);
    CAPTURE(c.second);
    ImportFixture fixture;
    fixture.Extended(Lines({"EXT", "1.Q", c.first + ".x", c.second + ".y", "=A"}));
    CHECK(fixture.messages.shown == (c.good ? Boxes{} : Boxes{kBackwardLetter}));
    CHECK(fixture.Dropped() != c.good);
  }
}

TEST_CASE("each card's letters start anew") {
  ImportFixture fixture;
  fixture.Extended(Lines({"1.Q", "D.d", "=D", "2.R", "A.a", "=A"}));
  CHECK(fixture.messages.shown.empty());
  CHECK(fixture.state.deck.Cell(2, kChoiceA) == u"a");
}

TEST_CASE("a choice of another letter goes to the stray column") {
  ImportFixture fixture;
  fixture.Extended(Lines({"1.Q", "A.a", "E.e", " .x"}));
  CHECK(fixture.messages.shown == Boxes{kBackwardLetter});
  ImportFixture other;
  other.Extended(Lines({"1.Q", "A.a", "E.e", "=A"}));
  CHECK(other.state.deck.Cell(1, kStray) == u"e");
  CHECK(other.state.deck.Cell(1, kChoiceD).empty());
}

TEST_CASE("card numbers start at 1 and go up by one") {
  struct Case {
    std::string what;
    std::string bytes;
    Boxes boxes;
  };
  const Case cases[] = {
      {"number 0", Lines({"EXT", "0.Q"}), {kBadFirstCard, kNoCards}},
      {"a first number above 1", Lines({"EXT", "2.Q"}), {kBadFirstCard, kNoCards}},
      {"number 0 later", Lines({"1.Q", "=T", "", "0.Q"}), {kBadFirstCard}},
      {"the same again", Lines({"1.Q", "=T", "", "1.R"}), {SequenceError(u"1")}},
      {"one left out", Lines({"1.Q", "=T", "", "3.R"}), {SequenceError(u"1")}},
      {"a step back", Lines({"1.Q", "", "2.R", "", "1.S"}), {SequenceError(u"2")}},
  };
  for (const Case& c : cases) {
    CAPTURE(c.what);
    ImportFixture fixture;
    fixture.Extended(c.bytes);
    CHECK(fixture.messages.shown == c.boxes);
    CHECK(fixture.Dropped());
    CHECK_FALSE(fixture.fileNumber.IsOpen());
  }
}

TEST_CASE("a number may come again before its card is finished") {
  ImportFixture fixture;
  fixture.Extended(Lines({"1.Q", "1.R", "=T"}));
  CHECK(fixture.messages.shown.empty());
  CHECK(RowOf(fixture.state, 1) == TrueFalse(u"R", u"1", u"T"));
}

TEST_CASE("a line without a dot in its second to fourth place ends the reading quietly") {
  for (const char* line :
       {"Answer: T", "a second line of the question", "A", "A)", "1234.x", "00001.x", " ", "\t"}) {
    const std::string text = line;
    CAPTURE(text);
    ImportFixture fixture;
    fixture.Extended(Lines({"EXT", "1.Q", "=T", "", line, "2.R", "=F"}));
    CHECK(fixture.messages.shown.empty());
    CHECK(fixture.shown == std::vector{kExtendedDeck});
    CHECK(fixture.state.deck.cardCount == 1);
    CHECK(fixture.state.deck.cardPresent.At(2) == 0);
  }
}

TEST_CASE("the early dot is the second, third or fourth character") {
  struct Case {
    TextView line;
    bool early;
  };
  const Case cases[] = {{u"", false},     {u".", false},     {u"..", true},   {u".a", false},
                        {u"1.", true},    {u"12.", true},    {u"123.", true}, {u"1234.", false},
                        {u"ab.c.", true}, {u".abcd.", false}};
  for (const Case& c : cases) CHECK(HasEarlyDot(c.line) == c.early);
}

TEST_CASE("a number line that is no number is an unforeseen error, which leaves the file open") {
  struct Case {
    std::string line;
    Text description;
  };
  const Case cases[] = {{"1", u"Type mismatch"},        {"1a.Q", u"Type mismatch"},
                        {"2 apples", u"Type mismatch"}, {"1 2.Q", u"Type mismatch"},
                        {"99999.Q", u"Overflow"},       {"32768.", u"Overflow"}};
  for (const Case& c : cases) {
    CAPTURE(c.line);
    ImportFixture fixture;
    fixture.Extended(Lines({"EXT", "1.Q", "=T", "", c.line}));
    CHECK(fixture.messages.shown == Boxes{UnforeseenError(c.description)});
    CHECK(fixture.Dropped());
    CHECK(fixture.fileNumber.IsOpen());
    CHECK(fixture.state.deck.cardCount == 1);
    CHECK(fixture.state.import.cardNumber == 0);
    CHECK(fixture.state.import.previousCard == 0);
  }
}

TEST_CASE("a number with an exponent is not one: the dot behind it belongs to it") {
  ImportFixture fixture;
  fixture.Extended(Lines({"1e0.Q"}));
  CHECK(fixture.messages.shown == Boxes{UnforeseenError(u"Type mismatch")});
}

TEST_CASE("a text without cards tells so and shows an empty deck") {
  for (const std::string& bytes : {Lines({"EXT"}), Lines({"EXT", "", ""}), Lines({"Hello"})}) {
    ImportFixture fixture;
    fixture.Extended(bytes);
    CHECK(fixture.messages.shown == Boxes{kNoCards});
    CHECK(fixture.shown == std::vector{kExtendedDeck});
    CHECK(fixture.state.deck.cardCount == 0);
    CHECK(fixture.state.deck.changed);
    CHECK_FALSE(fixture.state.deck.HasCards());
  }
}

TEST_CASE("choices and answers before the first card are no error and leave no trace") {
  ImportFixture fixture;
  fixture.Extended(Lines({"EXT", "A.stray", "=B", "", "1.Q", "=T"}));
  CHECK(fixture.messages.shown.empty());
  CHECK(fixture.state.deck.Cell(0, kCardType) == u"I");
  CHECK(fixture.state.deck.Cell(0, kInfoDate) == u"1/5/2026");
  CHECK(fixture.state.deck.Cell(0, kAnswer).empty());
}

TEST_CASE("reading stops at the line behind a full deck of multiple choice cards") {
  for (const char* further : {"201.Q\r\n=T\r\n", "\r\nno card\r\n", ""}) {
    ImportFixture fixture;
    fixture.Extended("EXT\r\n" + ChoiceCards(1, 200) + further);
    CHECK(fixture.messages.shown.empty());
    CHECK(fixture.state.deck.cardCount == 200);
    CHECK(fixture.state.deck.cardPresent.At(200) == 1);
    CHECK(fixture.state.deck.cardPresent.At(201) == 0);
    CHECK(fixture.state.deck.Cell(200, kAnswer) == u"A");
  }
}

TEST_CASE("where the lines do not add up, cards 201 and 202 are read too") {
  ImportFixture fixture;
  fixture.Extended("EXT\r\n" + TrueFalseCards(1, 202));
  CHECK(fixture.messages.shown.empty());
  CHECK(fixture.state.deck.cardCount == 202);
  CHECK(RowOf(fixture.state, 202) == TrueFalse(u"Statement", u"202", u"T"));
}

TEST_CASE("card 203 does not fit: an unforeseen error, and rows 201 and 202 stay") {
  ImportFixture fixture;
  fixture.Extended("EXT\r\n" + TrueFalseCards(1, 203));
  CHECK(fixture.messages.shown == Boxes{UnforeseenError(u"Subscript out of range")});
  CHECK(fixture.shown.empty());
  CHECK(fixture.Empty());
  CHECK(fixture.state.deck.cardPresent.At(201) == 1);
  CHECK(fixture.state.deck.cardPresent.At(202) == 1);
  CHECK(fixture.state.deck.cardCount == 202);
  CHECK(fixture.fileNumber.IsOpen());
}

TEST_CASE("the stop at 200 cards also meets a blank line, which adds nothing to the count") {
  ImportFixture fixture;
  // 1201 lines with text and 199 cards; line 1202 is the number of card 200.
  std::string bytes = "EXT\r\n" + ChoiceCards(1, 199);
  for (int line = 0; line < 6; ++line) bytes += "=A\r\n";
  bytes += "200.Last\r\n\r\n=T\r\n";
  fixture.Extended(bytes);
  CHECK(fixture.state.deck.cardCount == 200);
  CHECK(fixture.state.deck.Cell(200, kCardText) == u"Last");
  CHECK(fixture.state.deck.Cell(200, kAnswer).empty());
}

TEST_CASE("lengths are not checked") {
  ImportFixture fixture;
  const std::string longText(100'000, 'x');
  fixture.Extended(Lines({"EXT", "1." + longText, "A." + longText, "=A"}));
  CHECK(fixture.state.deck.Cell(1, kCardText).size() == longText.size());
  CHECK(fixture.state.deck.Cell(1, kChoiceA).size() == longText.size());
}

TEST_CASE("a question or choice without end is kept up to the bound of an imported text") {
  const std::string text(1'500'000, 'x');
  ImportFixture fixture;
  fixture.Extended(Lines({"1." + text, "A." + text, "=A"}));
  CHECK(fixture.state.deck.Cell(1, kCardText) == Text(kLongestImportedText, u'x'));
  CHECK(fixture.state.deck.Cell(1, kChoiceA) == Text(kLongestImportedText, u'x'));
}

TEST_CASE("an import does not empty the rows that it fills") {
  ImportFixture fixture;
  PutCard(fixture.state, 1, {.text = u"front", .back = u"back"});
  fixture.Extended(Lines({"1.Q", "=T"}));
  CHECK(fixture.state.deck.Cell(1, kBackText) == u"back");
}

TEST_CASE("after a failed import the next one in the same run works") {
  ImportFixture fixture;
  fixture.Extended(Lines({"EXT", "1.Q", "A.a", "2.R", "D.d", "A.a"}));
  CHECK(fixture.messages.Take() == Boxes{kBackwardLetter});
  CHECK(fixture.state.deck.cardCount == 2);
  CHECK(fixture.state.import.lastLetter == u"D");
  fixture.Extended(Lines({"EXT", "1.Q", "A.a", "=A"}));
  CHECK(fixture.messages.shown.empty());
  CHECK(fixture.state.deck.cardCount == 1);
}

TEST_CASE("the count of a failed import hides that the next file has no cards") {
  ImportFixture fixture;
  fixture.Extended(Lines({"EXT", "1.Q", "=x"}));
  fixture.Extended(Lines({"EXT"}));
  CHECK(fixture.messages.shown.empty());
  CHECK(fixture.shown == std::vector{kExtendedDeck});
  CHECK(fixture.state.deck.cardCount == 1);
}

TEST_CASE("an error while the deck is shown is told too, with the file closed") {
  ImportFixture fixture;
  fixture.files.Put(kTextPath, Lines({"EXT", "1.Q", "=T"}));
  ImportContext context = fixture.Context();
  context.showDeck = [](DeckKind) { throw RunTimeError(ErrorNumber::kMinimisedOrMaximised); };
  ImportExtended(kTextPath, context);
  CHECK(fixture.messages.shown ==
        Boxes{UnforeseenError(RunTimeError(ErrorNumber::kMinimisedOrMaximised).Description())});
  CHECK(fixture.Empty());
  CHECK_FALSE(fixture.fileNumber.IsOpen());
}

}  // namespace tessara::test
