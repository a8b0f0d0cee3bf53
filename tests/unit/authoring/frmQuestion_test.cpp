#include <algorithm>
#include <doctest/doctest.h>

#include "tests/unit/authoring/builder_desk.h"

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

void FillChoice(frmQuestion& window) {
  Type(window.Text2, u"question");
  Type(window.Text1[0], u"one");
  Type(window.Text1[1], u"two");
  window.Option1[1].Press();
}

}  // namespace

TEST_CASE("the question builder over an empty deck waits for a multiple choice card 1") {
  BuilderDesk desk;
  const frmQuestion& window = desk.OpenQuestion();
  CHECK(LookOf(window) == ButtonsLook{false, false, false, false, false, kAdd, kCancel});
  CHECK(window.Label2[1].Caption() == u"Card: 1");
  CHECK(window.Option3[0].Selected());
  CHECK(window.Option3[0].Enabled());
  CHECK(window.Option3[1].Enabled());
  CHECK(window.Frame1.Visible());
  CHECK_FALSE(window.Frame2.Visible());
}

TEST_CASE("the question is the first control that the focus comes to") {
  BuilderDesk desk;
  const frmQuestion& window = desk.OpenQuestion();
  const auto& controls = window.Controls();
  const auto first = std::find_if(controls.begin(), controls.end(), [](const Control* control) {
    return control->TakesFocus() && control->Reachable();
  });
  REQUIRE(first != controls.end());
  CHECK(*first == &window.Text2);
}

TEST_CASE("the question builder over a deck shows the card that the deck window showed") {
  struct Case {
    std::int16_t card;
    bool previous, next;
    int layout;
  };
  for (const Case& c : {Case{1, false, true, 1}, Case{2, true, true, 0}, Case{3, true, false, 1}}) {
    BuilderDesk desk;
    desk.OpenExtendedDeck(3);
    desk.state.CurrentCard = c.card;
    desk.OpenBuilder();
    const frmQuestion& window = desk.question.Loaded();
    CHECK(LookOf(window) == ButtonsLook{true, false, true, c.previous, c.next, kChange, kDelete});
    CHECK(window.Text2.TextOf() == u"question " + DecimalText(c.card));
    CHECK(window.Label2[1].Caption() == u"Card: " + DecimalText(c.card));
    CHECK(Chosen(window.Option3) == c.layout);
    CHECK(window.Frame1.Visible() == (c.layout == 0));
    CHECK(window.Frame2.Visible() == (c.layout == 1));
    CHECK_FALSE(window.Option3[0].Enabled());
    CHECK_FALSE(window.Option3[1].Enabled());
    CHECK_FALSE(desk.state.CardChanged);
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
    BuilderDesk desk;
    desk.AddChoice(u"q", {u"1", u"2", u"3", u"4"}, Text(c.key));
    desk.state.CardGrid.Set(1, kCardType, Text(c.type));
    const frmQuestion& window = desk.OpenQuestionOverTable();
    CHECK(Chosen(window.Option3) == c.layout);
    CHECK(Chosen(window.Option1) == c.mark);
    CHECK(Chosen(window.Option2) == c.trueFalse);
    CHECK_FALSE(window.Command2[kAddButton].Enabled());
  }
}

TEST_CASE("a text card in an extended deck shows as multiple choice with mark A") {
  BuilderDesk desk;
  desk.AddTrueFalse(u"q", u"T");
  desk.AddTextCard(u"front", u"back");
  frmQuestion& window = desk.OpenQuestionOverTable();
  window.cmdMove[1].Press();
  CHECK(window.Text2.TextOf() == u"front");
  CHECK(Chosen(window.Option3) == 0);
  CHECK(Chosen(window.Option1) == 0);
  for (const TextBox& line : window.Text1) CHECK(line.TextOf().empty());
}

TEST_CASE("the number on a question's form is the one that its row stores") {
  BuilderDesk desk;
  desk.AddTrueFalse(u"q", u"T");
  desk.state.CardGrid.Set(1, kRowNumber, u"7");
  CHECK(desk.OpenQuestionOverTable().Label2[1].Caption() == u"Card: 7");
}

TEST_CASE("switching the type keeps what stands on the hidden layout and goes to the question") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion();
  FillChoice(window);
  window.UserFocus(window.Option3[1]);
  window.Option3[1].Press();
  CHECK(window.Frame2.Visible());
  CHECK_FALSE(window.Frame1.Visible());
  CHECK(window.FocusedControl() == &window.Text2);
  window.Option2[0].Press();
  window.Option3[0].Press();
  CHECK(window.Frame1.Visible());
  CHECK_FALSE(window.Frame2.Visible());
  CHECK(window.Text1[0].TextOf() == u"one");
  CHECK(window.Text1[1].TextOf() == u"two");
  CHECK(Chosen(window.Option1) == 1);
  CHECK(Chosen(window.Option2) == 0);
}

TEST_CASE("the type of a card that is in the deck can't be changed") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion(1);
  window.Option3[0].Press();
  CHECK(Chosen(window.Option3) == 1);
  window.Command2[kNewButton].Press();
  window.Option3[0].Press();
  CHECK(Chosen(window.Option3) == 0);
}

TEST_CASE("a new question keeps the type of the card before it, on an empty form") {
  for (const std::int16_t card : {std::int16_t{1}, std::int16_t{2}}) {
    BuilderDesk desk;
    desk.OpenExtendedDeck(3);
    desk.state.CurrentCard = card;
    desk.OpenBuilder();
    frmQuestion& window = desk.question.Loaded();
    const int layout = Chosen(window.Option3);
    window.Command2[kNewButton].Press();
    CHECK(Chosen(window.Option3) == layout);
    CHECK(window.Frame1.Visible() == (layout == 0));
    CHECK(LookOf(window) == ButtonsLook{false, false, true, false, false, kAdd, kCancel});
    CHECK(window.Label2[1].Caption() == u"Card: 4");
    CHECK(window.Text2.TextOf().empty());
    for (const TextBox& line : window.Text1) CHECK(line.TextOf().empty());
    CHECK(Chosen(window.Option1) == -1);
    CHECK(Chosen(window.Option2) == -1);
    CHECK(window.FocusedControl() == &window.Text2);
    CHECK(desk.state.CurrentCard == 4);
    CHECK_FALSE(desk.state.CardChanged);
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
    BuilderDesk desk;
    frmQuestion& window = desk.OpenQuestion();
    if (c.before >= 0) window.Option1[c.before].SetSelected(true);
    desk.state.CardChanged = true;
    window.MarkCorrAns(Text(c.key));
    CHECK(desk.state.CardChanged == c.guardAfter);
    CHECK_FALSE(window.Command2[kAddButton].Enabled());
  }
}

TEST_CASE("a guard left on by opening the builder twice is used up by the user's next mark") {
  BuilderDesk desk;
  desk.AddChoice(u"q", {u"a", u"b"}, u"A");
  frmQuestion& window = desk.OpenQuestionOverTable();
  desk.OpenBuilder();
  Type(window.Text2, u"!");
  CHECK_FALSE(window.Command2[kAddButton].Enabled());
  window.Option1[1].Press();
  CHECK_FALSE(window.Command2[kAddButton].Enabled());
  CHECK_FALSE(desk.state.CardChanged);
  Type(window.Text2, u"!");
  CHECK(window.Command2[kAddButton].Enabled());
}

TEST_CASE("a move, a cancel and a delete do not count as edits of the question") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion(4);
  for (const int arrow : {1, 1, 0, 1, 1, 0}) {
    window.cmdMove[arrow].Press();
    CHECK_FALSE(window.Command2[kAddButton].Enabled());
    CHECK_FALSE(desk.state.CardChanged);
  }
  window.Command2[kNewButton].Press();
  window.Command2[kCancelButton].Press();
  CHECK_FALSE(window.Command2[kAddButton].Enabled());
  desk.Answer(MessageAnswer::kYes);
  window.Command2[kCancelButton].Press();
  CHECK_FALSE(window.Command2[kAddButton].Enabled());
  CHECK_FALSE(desk.state.CardChanged);
}

TEST_CASE("a move to a question of the other type goes to its text") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion(2);
  window.UserFocus(window.cmdMove[1]);
  window.cmdMove[1].Press();
  CHECK(window.FocusedControl() == &window.Text2);
}

TEST_CASE("the arrows of the question builder pass the focus on at the ends of the deck") {
  BuilderDesk desk;
  desk.AddTrueFalse(u"1", u"T");
  desk.AddTrueFalse(u"2", u"T");
  frmQuestion& window = desk.OpenQuestionOverTable();
  window.UserFocus(window.cmdMove[1]);
  window.cmdMove[1].Press();
  CHECK(window.FocusedControl() == &window.cmdMove[0]);
}

TEST_CASE("saving an older question through the question of a move adds one to the count") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion(3);
  Type(window.Text2, u"!");
  desk.Answer(MessageAnswer::kYes);
  window.cmdMove[1].Press();
  CHECK(desk.TakeBoxes() == std::vector{kChangedCardBox});
  CHECK(desk.Cell(1, kCardText) == u"question 1!");
  CHECK(desk.state.CardCount == 4);
  CHECK(desk.state.CardPresent.At(4) == 0);
  CHECK(desk.state.CurrentCard == 2);
  CHECK_FALSE(window.Command2[kAddButton].Enabled());
}

TEST_CASE("No to the question about a changed question leaves the change button on") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion(3);
  Type(window.Text2, u"!");
  desk.Answer(MessageAnswer::kNo);
  window.cmdMove[1].Press();
  CHECK(window.Command2[kAddButton].Enabled());
  CHECK(desk.Cell(1, kCardText) == u"question 1");
  CHECK(desk.state.CardCount == 3);
  desk.Answer(MessageAnswer::kNo);
  window.cmdMove[1].Press();
  CHECK(desk.TakeBoxes() == std::vector{kChangedCardBox, kChangedCardBox});
}

TEST_CASE("the two builders count differently: one ends the deck at the saved card, one adds") {
  struct Case {
    DeckKind kind;
    std::int16_t count;
  };
  for (const Case& c : {Case{kStandardDeck, 2}, Case{kExtendedDeck, 6}}) {
    BuilderDesk desk;
    if (c.kind == kStandardDeck) {
      frmEssay& window = desk.OpenEssay(5);
      window.cmdMove[1].Press();
      Type(window.Text1[0], u"!");
      desk.Answer(MessageAnswer::kYes);
      window.cmdMove[0].Press();
    } else {
      frmQuestion& window = desk.OpenQuestion(5);
      window.cmdMove[1].Press();
      Type(window.Text2, u"!");
      desk.Answer(MessageAnswer::kYes);
      window.cmdMove[0].Press();
    }
    CHECK(desk.state.CardCount == c.count);
  }
}

TEST_CASE("cancelling the first question empties the form") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion();
  FillChoice(window);
  window.Command2[kCancelButton].Press();
  CHECK(LookOf(window) == ButtonsLook{false, false, false, false, false, kAdd, kCancel});
  CHECK(window.Text2.TextOf().empty());
  CHECK(Chosen(window.Option1) == -1);
  CHECK(window.FocusedControl() == &window.Text2);
  CHECK(desk.state.CurrentCard == 0);
  CHECK(desk.TakeBoxes().empty());
}

TEST_CASE("cancelling a new question shows the last one, with the arrows by its place") {
  struct Case {
    int cards;
    bool previous;
  };
  for (const Case& c : {Case{1, false}, Case{2, true}}) {
    BuilderDesk desk;
    frmQuestion& window = desk.OpenQuestion(c.cards);
    window.Command2[kNewButton].Press();
    Type(window.Text2, u"never mind");
    window.Command2[kCancelButton].Press();
    CHECK(window.Text2.TextOf() == u"question " + DecimalText(c.cards));
    CHECK(LookOf(window) == ButtonsLook{true, false, true, c.previous, false, kChange, kDelete});
    CHECK(desk.state.CurrentCard == c.cards);
    CHECK_FALSE(desk.state.DeckChanged);
  }
}

TEST_CASE("deleting the only question goes back to a new one") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion(1);
  desk.Answer(MessageAnswer::kYes);
  window.Command2[kCancelButton].Press();
  CHECK(LookOf(window) == ButtonsLook{false, false, false, false, false, kAdd, kCancel});
  CHECK(desk.state.CardCount == 0);
  CHECK(desk.state.CurrentCard == 0);
  CHECK(window.Option3[0].Enabled());
  CHECK(window.FocusedControl() == &window.Text2);
  CHECK_FALSE(desk.deck->mnuGTP.Enabled());
}

TEST_CASE("No to the delete question redraws the question and marks the deck as changed") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion(2);
  Replace(window.Text2, u"typed over");
  desk.Answer(MessageAnswer::kNo);
  window.Command2[kCancelButton].Press();
  CHECK(window.Text2.TextOf() == u"question 1");
  CHECK(Chosen(window.Option2) == 0);
  CHECK(desk.state.DeckChanged);
  CHECK(desk.state.CardCount == 2);
  CHECK_FALSE(window.Command2[kAddButton].Enabled());
}

TEST_CASE("at 200 questions there is no new card") {
  BuilderDesk desk;
  CHECK_FALSE(desk.OpenQuestion(kMostCards).Command2[kNewButton].Enabled());
  BuilderDesk other;
  CHECK(other.OpenQuestion(kMostCards - 1).Command2[kNewButton].Enabled());
}

TEST_CASE("sizing the question builder writes the number of cards to the deck window") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion(2);
  desk.deck->NoteletCtl1.SetCardTotal(u"");
  window.SetHeight(window.Height() + 15);
  CHECK(desk.deck->NoteletCtl1.CardTotal() == u"2");
}

TEST_CASE("the window of the question builder is laid out as designed") {
  BuilderDesk desk;
  const frmQuestion& window = desk.OpenQuestion();
  CHECK(window.Label1.FontOf() == Font{u"MS Sans Serif", 9.75});
  CHECK(window.Label1.ForeColor() == FixedColor(0, 0, 255));
  CHECK(window.Label2[1].ForeColor() == FixedColor(128, 0, 0));
  CHECK(window.Text2.MultiLine());
  CHECK_FALSE(window.Text2.VerticalScrollBar());
  CHECK(window.Text2.MaxLength() == 0);
  CHECK(window.Frame1.Caption() == u"Enter Answer Choices");
  CHECK(window.Frame1.Place() == Bounds{120, 2760, 5175, 2055});
  CHECK(window.Frame2.Caption().empty());
  CHECK(window.Frame2.Place() == Bounds{120, 2760, 5175, 855});
  const int tops[] = {360, 720, 1080, 1440};
  for (int line = 0; line < 4; ++line) {
    CHECK(window.Option1[line].Caption() == Text(1, static_cast<char16_t>(u'A' + line)));
    CHECK(window.Option1[line].Place() == Bounds{480, tops[line], 255, 255});
    CHECK(window.Text1[line].Place() == Bounds{1080, tops[line], 3735, 285});
    CHECK(window.Text1[line].MaxLength() == 48);
    CHECK_FALSE(window.Text1[line].MultiLine());
  }
}

}  // namespace tessara::test
