#include <doctest/doctest.h>

#include "tests/unit/authoring/builder_fixture.h"

namespace tessara::test {

namespace {

/// What the user does on a new card before adding it.
struct Sheet {
  bool trueFalse = false;
  Text question;
  std::vector<Text> lines;
  int mark = -1;
};

void FillIn(QuestionBuilder& window, const Sheet& sheet) {
  Type(window.question, sheet.question);
  for (std::size_t at = 0; at < sheet.lines.size(); ++at) {
    Replace(window.answers[static_cast<int>(at)], sheet.lines[at]);
  }
  if (sheet.trueFalse) {
    window.layouts[kTrueOrFalse].Press();
    window.trueFalseMarks[sheet.mark].Press();
  } else {
    window.marks[sheet.mark].Press();
  }
}

std::vector<Text> Row(const BuilderFixture& fixture, int row) {
  std::vector<Text> cells;
  cells.reserve(kColumns);
  for (int column = 0; column < kColumns; ++column) cells.push_back(fixture.Cell(row, column));
  return cells;
}

FakeMessages::Shown Refusal(int line) {
  return {u"Unable to save card, PROGRAM text must be replaced on answer line # " +
              DecimalText(line) + u".",
          16, u"Error: Unable To Save Card"};
}

}  // namespace

TEST_CASE("adding a question writes its row") {
  struct Case {
    Sheet sheet;
    std::vector<Text> row;
  };
  const Case cases[] = {
      {{false, u"q", {u"one", u"two", u"three", u"four"}, 3},
       {u"", u"M", u"q", u"1", u"one", u"two", u"three", u"four", u"D", u""}},
      {{false, u"q", {u"one"}, 0}, {u"", u"M", u"q", u"1", u"one", u"", u"", u"", u"A", u""}},
      {{true, u"q", {}, 0}, {u"", u"T", u"q", u"1", u"", u"", u"", u"", u"T", u""}},
      {{true, u"q", {}, 1}, {u"", u"T", u"q", u"1", u"", u"", u"", u"", u"F", u""}},
      // What stands on the hidden lines goes along.
      {{true, u"q", {u"one", u"two"}, 1},
       {u"", u"T", u"q", u"1", u"one", u"two", u"", u"", u"F", u""}},
  };
  for (const Case& c : cases) {
    BuilderFixture fixture;
    QuestionBuilder& window = fixture.OpenQuestion();
    FillIn(window, c.sheet);
    window.buttons[kAddButton].Press();
    CHECK(Row(fixture, 1) == c.row);
    CHECK(fixture.state.deck.cardPresent.At(1) == 1);
    CHECK(fixture.state.deck.currentCard == 1);
    CHECK(fixture.state.deck.cardCount == 1);
    CHECK(fixture.state.deck.changed);
    CHECK(fixture.state.deck.saveOffered);
    CHECK(LookOf(window) == ButtonsLook{true, false, true, false, false, kChange, kDelete});
    CHECK_FALSE(window.layouts[kMultipleChoice].Enabled());
    CHECK(window.number.Caption() == u"Card: 1");
    CHECK(fixture.TakeBoxes().empty());
  }
}

TEST_CASE("a gap among the answer lines is a gap in the row") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  FillIn(window, {false, u"q", {u"a", u"b", u"c"}, 2});
  Replace(window.answers[1], u"");
  window.buttons[kAddButton].Press();
  CHECK(Row(fixture, 1) ==
        std::vector<Text>{u"", u"M", u"q", u"1", u"a", u"", u"c", u"", u"C", u""});
  CHECK(fixture.TakeBoxes().empty());
}

TEST_CASE("a card added without a mark is stored without one and comes back with mark A") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  FillIn(window, {false, u"q", {u"a", u"b"}, 1});
  window.layouts[kTrueOrFalse].Press();  // the add button stays on
  window.buttons[kAddButton].Press();
  CHECK(fixture.Cell(1, kCardType) == u"T");
  CHECK(fixture.Cell(1, kAnswer).empty());
  CHECK(window.marks[0].Selected());
}

TEST_CASE("a change of an older question keeps the count and the other state") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion(3);
  window.arrows[kNextCard].Press();
  Type(window.answers[3], u"!");
  fixture.state.deck.cardPresent.Set(2, 0);
  fixture.state.deck.cardGrid.Set(2, kBackText, u"left over");
  window.buttons[kAddButton].Press();
  CHECK(Row(fixture, 2) == std::vector<Text>{u"", u"M", u"question 2", u"2", u"one", u"two",
                                             u"three", u"four!", u"B", u""});
  CHECK(fixture.state.deck.cardPresent.At(2) == 1);
  CHECK(fixture.state.deck.cardCount == 3);
  CHECK(fixture.state.deck.currentCard == 2);
  CHECK(fixture.state.deck.changed);
  CHECK(fixture.state.deck.saveOffered);
  CHECK_FALSE(window.buttons[kAddButton].Enabled());
}

TEST_CASE("the go-to command comes on with the second question") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  FillIn(window, {true, u"1", {}, 0});
  window.buttons[kAddButton].Press();
  CHECK_FALSE(fixture.deck->goToCard.Enabled());
  window.buttons[kNewButton].Press();
  Type(window.question, u"2");
  window.trueFalseMarks[kFalseMark].Press();
  window.buttons[kAddButton].Press();
  CHECK(fixture.deck->goToCard.Enabled());
  CHECK(fixture.state.deck.cardCount == 2);
}

TEST_CASE("the placeholder on an answer line refuses the add and the change") {
  struct Case {
    std::vector<Text> lines;
    int line;  ///< that the message names; 0 for none
  };
  const Case cases[] = {
      {{u"[TEXT MISSING HERE]"}, 1},
      {{u"a", u"b", u"c", u"[TEXT MISSING HERE]"}, 4},
      {{u"a", u"[TEXT MISSING HERE]", u"[TEXT MISSING HERE]"}, 2},
      {{u"a", u"[text missing here]"}, 0},
      {{u"a", u"[TEXT MISSING HERE]."}, 0},
  };
  for (const Case& c : cases) {
    BuilderFixture fixture;
    QuestionBuilder& window = fixture.OpenQuestion();
    FillIn(window, {false, u"q", c.lines, 0});
    window.buttons[kAddButton].Press();
    const bool refused = c.line != 0;
    CHECK(fixture.TakeBoxes() == std::vector(refused ? 1 : 0, Refusal(c.line)));
    CHECK(fixture.state.deck.cardCount == (refused ? 0 : 1));
    CHECK(window.buttons[kAddButton].Enabled() == refused);
    CHECK(window.buttons[kAddButton].Caption() == (refused ? kAdd : kChange));
    CHECK(fixture.state.deck.changed == !refused);
  }
}

TEST_CASE("a refused change leaves the row as it was") {
  BuilderFixture fixture;
  fixture.AddChoice(u"q", {u"a", u"b"}, u"A");
  QuestionBuilder& window = fixture.OpenQuestionOverTable();
  Replace(window.answers[1], u"[TEXT MISSING HERE]");
  window.buttons[kAddButton].Press();
  CHECK(fixture.TakeBoxes() == std::vector{Refusal(2)});
  CHECK(fixture.Cell(1, kChoiceB) == u"b");
  CHECK_FALSE(fixture.state.deck.saveOffered);
  CHECK(window.buttons[kAddButton].Enabled());
  window.UserFocus(window.answers[1]);
  Type(window.answers[1], u"c");
  window.buttons[kAddButton].Press();
  CHECK(fixture.Cell(1, kChoiceB) == u"c");
}

TEST_CASE("text on a closed line puts the placeholder on the line before and refuses") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  FillIn(window, {false, u"q", {u"a", u"b", u"c"}, 0});
  Replace(window.answers[1], u"");
  window.answers[2].SetEnabled(false);
  window.buttons[kAddButton].Press();
  CHECK(fixture.TakeBoxes() ==
        std::vector<FakeMessages::Shown>{{u"Answer line # 2 must have text.", 16,
                                          u"Error: Incomplete Question Builder Information!"}});
  CHECK(window.answers[1].TextOf() == u"[TEXT MISSING HERE]");
  CHECK(fixture.state.deck.cardCount == 0);
  CHECK(fixture.Cell(1, kCardType).empty());
}

TEST_CASE("the key of the marked answer follows the layout") {
  struct Case {
    int layout, choice, trueFalse;
    TextView key;
    bool hasAnswer;  // no line of a multiple choice has a text here
  };
  const Case cases[] = {{0, 2, 1, u"C", false}, {1, 2, 1, u"F", true},  {1, 2, 0, u"T", true},
                        {0, -1, 0, u"", false}, {1, 3, -1, u"", false}, {-1, 3, 1, u"", false}};
  for (const Case& c : cases) {
    BuilderFixture fixture;
    QuestionBuilder& window = fixture.OpenQuestion();
    if (c.choice >= 0) window.marks[c.choice].SetSelected(true);
    if (c.trueFalse >= 0) window.trueFalseMarks[c.trueFalse].SetSelected(true);
    window.layouts[kMultipleChoice].SetSelected(false);
    if (c.layout >= 0) window.layouts[c.layout].SetSelected(true);
    CHECK(window.MarkedKey() == c.key);
    CHECK(window.HasAnswer() == c.hasAnswer);
  }
}

TEST_CASE("saving without a chosen type writes nothing, yet counts") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  window.layouts[kMultipleChoice].SetSelected(false);
  window.SaveAsNewCard();
  CHECK(fixture.state.deck.cardCount == 1);
  CHECK(fixture.Cell(1, kCardType).empty());
}

TEST_CASE("closing the question builder without a change goes to the last card") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion(3);
  window.buttons[kCloseButton].Press();
  CHECK(fixture.state.deck.currentCard == 3);
  CHECK(fixture.deck->card.CardText() == u"question 3");
  CHECK(fixture.deck->card.CardNumber() == u"3");
  CHECK(fixture.deck->answer.Caption() == u"TRUE");
  CHECK(fixture.deck->printDeck.Enabled());
  CHECK(fixture.deck->Visible());
  CHECK_FALSE(fixture.question.IsLoaded());
  CHECK(fixture.TakeBoxes().empty());
}

TEST_CASE("the close of a changed question saves on Yes and goes to the last card on No") {
  struct Case {
    bool isNew;
    MessageAnswer answer;
    std::int16_t count, current;
    Text question2;
  };
  const Case cases[] = {{false, MessageAnswer::kYes, 3, 2, u"edited"},
                        {false, MessageAnswer::kNo, 3, 3, u"question 2"},
                        {true, MessageAnswer::kYes, 4, 4, u"question 2"},
                        {true, MessageAnswer::kNo, 3, 3, u"question 2"}};
  for (const Case& c : cases) {
    BuilderFixture fixture;
    QuestionBuilder& window = fixture.OpenQuestion(3);
    window.arrows[kNextCard].Press();
    if (c.isNew) window.buttons[kNewButton].Press();
    Replace(window.answers[0], u"A & B");
    window.marks[0].Press();
    Replace(window.question, u"edited");
    fixture.Answer(c.answer);
    window.buttons[kCloseButton].Press();
    std::vector<FakeMessages::Shown> boxes = {
        {u"This card has been changed. Do you want to save these changes?", 4, u"Tessara"}};
    const bool saved = c.answer == MessageAnswer::kYes;
    if (saved) boxes.push_back({u"Changes Saved!", 0, u"Tessara"});
    CHECK(fixture.TakeBoxes() == boxes);
    CHECK(fixture.state.deck.cardCount == c.count);
    CHECK(fixture.state.deck.currentCard == c.current);
    CHECK(fixture.state.deck.changed == saved);
    CHECK(fixture.state.deck.saveOffered == saved);
    CHECK(fixture.Cell(2, kCardText) == c.question2);
    CHECK(fixture.deck->card.CardTotal() == DecimalText(c.count));
    CHECK(fixture.deck->card.CardText() == (saved ? u"edited" : u"question 3"));
    CHECK(fixture.deck->answer.Caption() == (saved ? u"A && B" : u"TRUE"));
  }
}

TEST_CASE("a question saved at the close of a new deck is card 1, and not checked") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  fixture.state.deck.currentCard = 0;
  FillIn(window, {false, u"q", {u"[TEXT MISSING HERE]"}, 0});
  fixture.Answer(MessageAnswer::kYes);
  window.buttons[kCloseButton].Press();
  CHECK(fixture.state.deck.currentCard == 1);
  CHECK(fixture.state.deck.cardCount == 1);
  CHECK(fixture.Cell(1, kChoiceA) == u"[TEXT MISSING HERE]");
}

TEST_CASE("the question builder's close box drops what is on the form without a question") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion(2);
  Type(window.question, u"!");
  window.UserClose();
  CHECK(fixture.TakeBoxes().empty());
  CHECK(fixture.Cell(1, kCardText) == u"question 1");
  CHECK(fixture.deck->Visible());
  CHECK(fixture.state.deck.currentCard == 1);
}

TEST_CASE("a true or false question shows its word on the answer card, not the letter") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  FillIn(window, {true, u"q", {}, 1});
  window.buttons[kAddButton].Press();
  window.buttons[kCloseButton].Press();
  CHECK(fixture.deck->answer.Caption() == u"FALSE");
}

}  // namespace tessara::test
