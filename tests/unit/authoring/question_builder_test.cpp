#include <algorithm>
#include <doctest/doctest.h>

#include "tests/unit/authoring/builder_fixture.h"

namespace tessara::test {

namespace {

/// The mark that is set among the options, or -1.
template <class Options>
int Chosen(const Options& options) {
  int chosen = -1;
  for (const OptionButton& option : options) {
    if (option.Selected()) chosen = option.Index();
  }
  return chosen;
}

void FillChoice(QuestionBuilder& window) {
  Type(window.question, u"question");
  Type(window.answers[0], u"one");
  Type(window.answers[1], u"two");
  window.marks[1].Press();
}

}  // namespace

TEST_CASE("the question builder over an empty deck waits for a multiple choice card 1") {
  BuilderFixture fixture;
  const QuestionBuilder& window = fixture.OpenQuestion();
  CHECK(LookOf(window) == ButtonsLook{false, false, false, false, false, kAdd, kCancel});
  CHECK(window.number.Caption() == u"Card: 1");
  CHECK(window.layouts[kMultipleChoice].Selected());
  CHECK(window.layouts[kMultipleChoice].Enabled());
  CHECK(window.layouts[kTrueOrFalse].Enabled());
  CHECK(window.choiceLayout.Visible());
  CHECK_FALSE(window.trueFalseLayout.Visible());
}

TEST_CASE("the question is the first control that the focus comes to") {
  BuilderFixture fixture;
  const QuestionBuilder& window = fixture.OpenQuestion();
  const auto& controls = window.Controls();
  const auto first = std::find_if(controls.begin(), controls.end(), [](const Control* control) {
    return control->TakesFocus() && control->Reachable();
  });
  REQUIRE(first != controls.end());
  CHECK(*first == &window.question);
}

TEST_CASE("the question builder over a deck shows the card that the deck window showed") {
  struct Case {
    std::int16_t card;
    bool previous, next;
    int layout;
  };
  for (const Case& c : {Case{1, false, true, 1}, Case{2, true, true, 0}, Case{3, true, false, 1}}) {
    BuilderFixture fixture;
    fixture.OpenExtendedDeck(3);
    fixture.state.deck.currentCard = c.card;
    fixture.OpenBuilder();
    const QuestionBuilder& window = fixture.question.Loaded();
    CHECK(LookOf(window) == ButtonsLook{true, false, true, c.previous, c.next, kChange, kDelete});
    CHECK(window.question.TextOf() == u"question " + DecimalText(c.card));
    CHECK(window.number.Caption() == u"Card: " + DecimalText(c.card));
    CHECK(Chosen(window.layouts) == c.layout);
    CHECK(window.choiceLayout.Visible() == (c.layout == 0));
    CHECK(window.trueFalseLayout.Visible() == (c.layout == 1));
    CHECK_FALSE(window.layouts[kMultipleChoice].Enabled());
    CHECK_FALSE(window.layouts[kTrueOrFalse].Enabled());
    CHECK_FALSE(fixture.state.building.fillingBoxes);
  }
}

TEST_CASE("each stored mark and type comes back onto the form") {
  struct Case {
    TextView type, key;
    int layout, mark, trueFalse;
  };
  const Case cases[] = {{u"M", u"A", 0, 0, -1}, {u"M", u"B", 0, 1, -1}, {u"M", u"C", 0, 2, -1},
                        {u"M", u"D", 0, 3, -1}, {u"T", u"T", 1, -1, 0}, {u"T", u"F", 1, -1, 1},
                        {u"M", u"", 0, 0, -1},  {u"M", u"b", 0, 0, -1}, {u"T", u"", 1, 0, -1},
                        {u"M", u"F", 0, -1, 1}, {u"E", u"", 0, 0, -1},  {u"t", u"T", 0, -1, 0}};
  for (const Case& c : cases) {
    BuilderFixture fixture;
    fixture.AddChoice(u"q", {u"1", u"2", u"3", u"4"}, Text(c.key));
    fixture.state.deck.cardGrid.Set(1, kCardType, Text(c.type));
    const QuestionBuilder& window = fixture.OpenQuestionOverTable();
    CHECK(Chosen(window.layouts) == c.layout);
    CHECK(Chosen(window.marks) == c.mark);
    CHECK(Chosen(window.trueFalseMarks) == c.trueFalse);
    CHECK_FALSE(window.buttons[kAddButton].Enabled());
  }
}

TEST_CASE("a text card in an extended deck shows as multiple choice with mark A") {
  BuilderFixture fixture;
  fixture.AddTrueFalse(u"q", u"T");
  fixture.AddTextCard(u"front", u"back");
  QuestionBuilder& window = fixture.OpenQuestionOverTable();
  window.arrows[kNextCard].Press();
  CHECK(window.question.TextOf() == u"front");
  CHECK(Chosen(window.layouts) == 0);
  CHECK(Chosen(window.marks) == 0);
  for (const TextBox& line : window.answers) CHECK(line.TextOf().empty());
}

TEST_CASE("the number on a question's form is the one that its row stores") {
  BuilderFixture fixture;
  fixture.AddTrueFalse(u"q", u"T");
  fixture.state.deck.cardGrid.Set(1, kRowNumber, u"7");
  CHECK(fixture.OpenQuestionOverTable().number.Caption() == u"Card: 7");
}

TEST_CASE("switching the type keeps what stands on the hidden layout and goes to the question") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  FillChoice(window);
  window.UserFocus(window.layouts[kTrueOrFalse]);
  window.layouts[kTrueOrFalse].Press();
  CHECK(window.trueFalseLayout.Visible());
  CHECK_FALSE(window.choiceLayout.Visible());
  CHECK(window.FocusedControl() == &window.question);
  window.trueFalseMarks[kTrueMark].Press();
  window.layouts[kMultipleChoice].Press();
  CHECK(window.choiceLayout.Visible());
  CHECK_FALSE(window.trueFalseLayout.Visible());
  CHECK(window.answers[0].TextOf() == u"one");
  CHECK(window.answers[1].TextOf() == u"two");
  CHECK(Chosen(window.marks) == 1);
  CHECK(Chosen(window.trueFalseMarks) == 0);
}

TEST_CASE("the type of a card that is in the deck can't be changed") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion(1);
  window.layouts[kMultipleChoice].Press();
  CHECK(Chosen(window.layouts) == 1);
  window.buttons[kNewButton].Press();
  window.layouts[kMultipleChoice].Press();
  CHECK(Chosen(window.layouts) == 0);
}

TEST_CASE("a new question keeps the type of the card before it, on an empty form") {
  for (const std::int16_t card : {std::int16_t{1}, std::int16_t{2}}) {
    BuilderFixture fixture;
    fixture.OpenExtendedDeck(3);
    fixture.state.deck.currentCard = card;
    fixture.OpenBuilder();
    QuestionBuilder& window = fixture.question.Loaded();
    const int layout = Chosen(window.layouts);
    window.buttons[kNewButton].Press();
    CHECK(Chosen(window.layouts) == layout);
    CHECK(window.choiceLayout.Visible() == (layout == 0));
    CHECK(LookOf(window) == ButtonsLook{false, false, true, false, false, kAdd, kCancel});
    CHECK(window.number.Caption() == u"Card: 4");
    CHECK(window.question.TextOf().empty());
    for (const TextBox& line : window.answers) CHECK(line.TextOf().empty());
    CHECK(Chosen(window.marks) == -1);
    CHECK(Chosen(window.trueFalseMarks) == -1);
    CHECK(window.FocusedControl() == &window.question);
    CHECK(fixture.state.deck.currentCard == 4);
    CHECK_FALSE(fixture.state.building.fillingBoxes);
  }
}

TEST_CASE("a mark set by the program uses up the guard, one that stands already does not") {
  struct Case {
    TextView key;
    int before;
    bool guardAfter;
  };
  const Case cases[] = {
      {u"B", 0, false}, {u"B", 1, true}, {u"", 0, true}, {u"C", -1, false}, {u"T", -1, false}};
  for (const Case& c : cases) {
    BuilderFixture fixture;
    QuestionBuilder& window = fixture.OpenQuestion();
    if (c.before >= 0) window.marks[c.before].SetSelected(true);
    fixture.state.building.fillingBoxes = true;
    window.MarkAnswer(Text(c.key));
    CHECK(fixture.state.building.fillingBoxes == c.guardAfter);
    CHECK_FALSE(window.buttons[kAddButton].Enabled());
  }
}

TEST_CASE("a guard left on by opening the builder twice is used up by the user's next mark") {
  BuilderFixture fixture;
  fixture.AddChoice(u"q", {u"a", u"b"}, u"A");
  QuestionBuilder& window = fixture.OpenQuestionOverTable();
  fixture.OpenBuilder();
  Type(window.question, u"!");
  CHECK_FALSE(window.buttons[kAddButton].Enabled());
  window.marks[1].Press();
  CHECK_FALSE(window.buttons[kAddButton].Enabled());
  CHECK_FALSE(fixture.state.building.fillingBoxes);
  Type(window.question, u"!");
  CHECK(window.buttons[kAddButton].Enabled());
}

TEST_CASE("a move, a cancel and a delete do not count as edits of the question") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion(4);
  for (const int arrow : {1, 1, 0, 1, 1, 0}) {
    window.arrows[arrow].Press();
    CHECK_FALSE(window.buttons[kAddButton].Enabled());
    CHECK_FALSE(fixture.state.building.fillingBoxes);
  }
  window.buttons[kNewButton].Press();
  window.buttons[kCancelButton].Press();
  CHECK_FALSE(window.buttons[kAddButton].Enabled());
  fixture.Answer(MessageAnswer::kYes);
  window.buttons[kCancelButton].Press();
  CHECK_FALSE(window.buttons[kAddButton].Enabled());
  CHECK_FALSE(fixture.state.building.fillingBoxes);
}

TEST_CASE("a move to a question of the other type goes to its text") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion(2);
  window.UserFocus(window.arrows[kNextCard]);
  window.arrows[kNextCard].Press();
  CHECK(window.FocusedControl() == &window.question);
}

TEST_CASE("the arrows of the question builder pass the focus on at the ends of the deck") {
  BuilderFixture fixture;
  fixture.AddTrueFalse(u"1", u"T");
  fixture.AddTrueFalse(u"2", u"T");
  QuestionBuilder& window = fixture.OpenQuestionOverTable();
  window.UserFocus(window.arrows[kNextCard]);
  window.arrows[kNextCard].Press();
  CHECK(window.FocusedControl() == &window.arrows[kPreviousCard]);
}

TEST_CASE("saving an older question through the question of a move adds one to the count") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion(3);
  Type(window.question, u"!");
  fixture.Answer(MessageAnswer::kYes);
  window.arrows[kNextCard].Press();
  CHECK(fixture.TakeBoxes() == std::vector{kChangedCardBox});
  CHECK(fixture.Cell(1, kCardText) == u"question 1!");
  CHECK(fixture.state.deck.cardCount == 4);
  CHECK(fixture.state.deck.cardPresent.At(4) == 0);
  CHECK(fixture.state.deck.currentCard == 2);
  CHECK_FALSE(window.buttons[kAddButton].Enabled());
}

TEST_CASE("No to the question about a changed question leaves the change button on") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion(3);
  Type(window.question, u"!");
  fixture.Answer(MessageAnswer::kNo);
  window.arrows[kNextCard].Press();
  CHECK(window.buttons[kAddButton].Enabled());
  CHECK(fixture.Cell(1, kCardText) == u"question 1");
  CHECK(fixture.state.deck.cardCount == 3);
  fixture.Answer(MessageAnswer::kNo);
  window.arrows[kNextCard].Press();
  CHECK(fixture.TakeBoxes() == std::vector{kChangedCardBox, kChangedCardBox});
}

TEST_CASE("the two builders count differently: one ends the deck at the saved card, one adds") {
  struct Case {
    DeckKind kind;
    std::int16_t count;
  };
  for (const Case& c : {Case{kStandardDeck, 2}, Case{kExtendedDeck, 6}}) {
    BuilderFixture fixture;
    if (c.kind == kStandardDeck) {
      TextCardBuilder& window = fixture.OpenEssay(5);
      window.arrows[kNextCard].Press();
      Type(window.sides[kFrontSide], u"!");
      fixture.Answer(MessageAnswer::kYes);
      window.arrows[kPreviousCard].Press();
    } else {
      QuestionBuilder& window = fixture.OpenQuestion(5);
      window.arrows[kNextCard].Press();
      Type(window.question, u"!");
      fixture.Answer(MessageAnswer::kYes);
      window.arrows[kPreviousCard].Press();
    }
    CHECK(fixture.state.deck.cardCount == c.count);
  }
}

TEST_CASE("cancelling the first question empties the form") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion();
  FillChoice(window);
  window.buttons[kCancelButton].Press();
  CHECK(LookOf(window) == ButtonsLook{false, false, false, false, false, kAdd, kCancel});
  CHECK(window.question.TextOf().empty());
  CHECK(Chosen(window.marks) == -1);
  CHECK(window.FocusedControl() == &window.question);
  CHECK(fixture.state.deck.currentCard == 0);
  CHECK(fixture.TakeBoxes().empty());
}

TEST_CASE("cancelling a new question shows the last one, with the arrows by its place") {
  struct Case {
    int cards;
    bool previous;
  };
  for (const Case& c : {Case{1, false}, Case{2, true}}) {
    BuilderFixture fixture;
    QuestionBuilder& window = fixture.OpenQuestion(c.cards);
    window.buttons[kNewButton].Press();
    Type(window.question, u"never mind");
    window.buttons[kCancelButton].Press();
    CHECK(window.question.TextOf() == u"question " + DecimalText(c.cards));
    CHECK(LookOf(window) == ButtonsLook{true, false, true, c.previous, false, kChange, kDelete});
    CHECK(fixture.state.deck.currentCard == c.cards);
    CHECK_FALSE(fixture.state.deck.changed);
  }
}

TEST_CASE("deleting the only question goes back to a new one") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion(1);
  fixture.Answer(MessageAnswer::kYes);
  window.buttons[kCancelButton].Press();
  CHECK(LookOf(window) == ButtonsLook{false, false, false, false, false, kAdd, kCancel});
  CHECK(fixture.state.deck.cardCount == 0);
  CHECK(fixture.state.deck.currentCard == 0);
  CHECK(window.layouts[kMultipleChoice].Enabled());
  CHECK(window.FocusedControl() == &window.question);
  CHECK_FALSE(fixture.deck->goToCard.Enabled());
}

TEST_CASE("No to the delete question redraws the question and marks the deck as changed") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion(2);
  Replace(window.question, u"typed over");
  fixture.Answer(MessageAnswer::kNo);
  window.buttons[kCancelButton].Press();
  CHECK(window.question.TextOf() == u"question 1");
  CHECK(Chosen(window.trueFalseMarks) == 0);
  CHECK(fixture.state.deck.changed);
  CHECK(fixture.state.deck.cardCount == 2);
  CHECK_FALSE(window.buttons[kAddButton].Enabled());
}

TEST_CASE("at 200 questions there is no new card") {
  BuilderFixture fixture;
  CHECK_FALSE(fixture.OpenQuestion(kMostCards).buttons[kNewButton].Enabled());
  BuilderFixture other;
  CHECK(other.OpenQuestion(kMostCards - 1).buttons[kNewButton].Enabled());
}

TEST_CASE("sizing the question builder writes the number of cards to the deck window") {
  BuilderFixture fixture;
  QuestionBuilder& window = fixture.OpenQuestion(2);
  fixture.deck->card.SetCardTotal(u"");
  window.SetHeight(window.Height() + 15);
  CHECK(fixture.deck->card.CardTotal() == u"2");
}

TEST_CASE("the window of the question builder is laid out as designed") {
  BuilderFixture fixture;
  const QuestionBuilder& window = fixture.OpenQuestion();
  CHECK(window.heading.FontOf() == Font{u"MS Sans Serif", 9.75});
  CHECK(window.heading.ForeColor() == FixedColor(0, 0, 255));
  CHECK(window.number.ForeColor() == FixedColor(128, 0, 0));
  CHECK(window.question.MultiLine());
  CHECK_FALSE(window.question.VerticalScrollBar());
  CHECK(window.question.MaxLength() == 0);
  CHECK(window.choiceLayout.Caption() == u"Enter Answer Choices");
  CHECK(window.choiceLayout.BoundsOf() == Bounds{120, 2760, 5175, 2055});
  CHECK(window.trueFalseLayout.Caption().empty());
  CHECK(window.trueFalseLayout.BoundsOf() == Bounds{120, 2760, 5175, 855});
  const int tops[] = {360, 720, 1080, 1440};
  for (int line = 0; line < 4; ++line) {
    CHECK(window.marks[line].Caption() == Text(1, static_cast<char16_t>(u'A' + line)));
    CHECK(window.marks[line].BoundsOf() == Bounds{480, tops[line], 255, 255});
    CHECK(window.answers[line].BoundsOf() == Bounds{1080, tops[line], 3735, 285});
    CHECK(window.answers[line].MaxLength() == 48);
    CHECK_FALSE(window.answers[line].MultiLine());
  }
}

}  // namespace tessara::test
