#include <doctest/doctest.h>

#include "tests/unit/authoring/builder_desk.h"

namespace tessara::test {

namespace {

/// What the user does on a new card before adding it.
struct Sheet {
  bool trueFalse = false;
  Text question;
  std::vector<Text> lines;
  int mark = -1;
};

void FillIn(frmQuestion& window, const Sheet& sheet) {
  Type(window.Text2, sheet.question);
  for (std::size_t at = 0; at < sheet.lines.size(); ++at) {
    Replace(window.Text1[static_cast<int>(at)], sheet.lines[at]);
  }
  if (sheet.trueFalse) {
    window.Option3[1].Press();
    window.Option2[sheet.mark].Press();
  } else {
    window.Option1[sheet.mark].Press();
  }
}

std::vector<Text> Row(const BuilderDesk& desk, int row) {
  std::vector<Text> cells;
  cells.reserve(kColumns);
  for (int column = 0; column < kColumns; ++column) cells.push_back(desk.Cell(row, column));
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
    BuilderDesk desk;
    frmQuestion& window = desk.OpenQuestion();
    FillIn(window, c.sheet);
    window.Command2[kAddButton].Press();
    CHECK(Row(desk, 1) == c.row);
    CHECK(desk.state.CardPresent.At(1) == 1);
    CHECK(desk.state.CurrentCard == 1);
    CHECK(desk.state.CardCount == 1);
    CHECK(desk.state.DeckChanged);
    CHECK(desk.state.SaveOffered);
    CHECK(LookOf(window) == ButtonsLook{true, false, true, false, false, kChange, kDelete});
    CHECK_FALSE(window.Option3[0].Enabled());
    CHECK(window.Label2[1].Caption() == u"Card: 1");
    CHECK(desk.TakeBoxes().empty());
  }
}

TEST_CASE("a gap among the answer lines is a gap in the row") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion();
  FillIn(window, {false, u"q", {u"a", u"b", u"c"}, 2});
  Replace(window.Text1[1], u"");
  window.Command2[kAddButton].Press();
  CHECK(Row(desk, 1) == std::vector<Text>{u"", u"M", u"q", u"1", u"a", u"", u"c", u"", u"C", u""});
  CHECK(desk.TakeBoxes().empty());
}

TEST_CASE("a card added without a mark is stored without one and comes back with mark A") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion();
  FillIn(window, {false, u"q", {u"a", u"b"}, 1});
  window.Option3[1].Press();  // the add button stays on
  window.Command2[kAddButton].Press();
  CHECK(desk.Cell(1, kCardType) == u"T");
  CHECK(desk.Cell(1, kAnswer).empty());
  CHECK(window.Option1[0].Selected());
}

TEST_CASE("a change of an older question keeps the count and the other state") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion(3);
  window.cmdMove[1].Press();
  Type(window.Text1[3], u"!");
  desk.state.CardPresent.Set(2, 0);
  window.Command2[kAddButton].Press();
  CHECK(Row(desk, 2) == std::vector<Text>{u"", u"M", u"question 2", u"2", u"one", u"two", u"three",
                                          u"four!", u"B", u""});
  CHECK(desk.state.CardPresent.At(2) == 1);
  CHECK(desk.state.CardCount == 3);
  CHECK(desk.state.CurrentCard == 2);
  CHECK(desk.state.DeckChanged);
  CHECK(desk.state.SaveOffered);
  CHECK_FALSE(window.Command2[kAddButton].Enabled());
}

TEST_CASE("the go-to command comes on with the second question") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion();
  FillIn(window, {true, u"1", {}, 0});
  window.Command2[kAddButton].Press();
  CHECK_FALSE(desk.deck->mnuGTP.Enabled());
  window.Command2[kNewButton].Press();
  Type(window.Text2, u"2");
  window.Option2[1].Press();
  window.Command2[kAddButton].Press();
  CHECK(desk.deck->mnuGTP.Enabled());
  CHECK(desk.state.CardCount == 2);
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
    BuilderDesk desk;
    frmQuestion& window = desk.OpenQuestion();
    FillIn(window, {false, u"q", c.lines, 0});
    window.Command2[kAddButton].Press();
    const bool refused = c.line != 0;
    CHECK(desk.TakeBoxes() == std::vector(refused ? 1 : 0, Refusal(c.line)));
    CHECK(desk.state.CardCount == (refused ? 0 : 1));
    CHECK(window.Command2[kAddButton].Enabled() == refused);
    CHECK(window.Command2[kAddButton].Caption() == (refused ? kAdd : kChange));
    CHECK(desk.state.DeckChanged == !refused);
  }
}

TEST_CASE("a refused change leaves the row as it was") {
  BuilderDesk desk;
  desk.AddChoice(u"q", {u"a", u"b"}, u"A");
  frmQuestion& window = desk.OpenQuestionOverTable();
  Replace(window.Text1[1], u"[TEXT MISSING HERE]");
  window.Command2[kAddButton].Press();
  CHECK(desk.TakeBoxes() == std::vector{Refusal(2)});
  CHECK(desk.Cell(1, kChoiceB) == u"b");
  CHECK_FALSE(desk.state.SaveOffered);
  CHECK(window.Command2[kAddButton].Enabled());
  window.UserFocus(window.Text1[1]);
  Type(window.Text1[1], u"c");
  window.Command2[kAddButton].Press();
  CHECK(desk.Cell(1, kChoiceB) == u"c");
}

TEST_CASE("text on a closed line puts the placeholder on the line before and refuses") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion();
  FillIn(window, {false, u"q", {u"a", u"b", u"c"}, 0});
  Replace(window.Text1[1], u"");
  window.Text1[2].SetEnabled(false);
  window.Command2[kAddButton].Press();
  CHECK(desk.TakeBoxes() ==
        std::vector<FakeMessages::Shown>{{u"Answer line # 2 must have text.", 16,
                                          u"Error: Incomplete Question Builder Information!"}});
  CHECK(window.Text1[1].TextOf() == u"[TEXT MISSING HERE]");
  CHECK(desk.state.CardCount == 0);
  CHECK(desk.Cell(1, kCardType).empty());
}

TEST_CASE("the mark of the form follows the layout") {
  struct Case {
    int layout, choice, trueFalse;
    TextView mark, trueFalseMark;
  };
  const Case cases[] = {{0, 2, 1, u"C", u"F"}, {1, 2, 1, u"F", u"F"}, {1, 2, 0, u"T", u"T"},
                        {0, -1, 0, u"", u"T"}, {1, 3, -1, u"", u""},  {-1, 3, 1, u"", u"F"}};
  for (const Case& c : cases) {
    BuilderDesk desk;
    frmQuestion& window = desk.OpenQuestion();
    if (c.choice >= 0) window.Option1[c.choice].SetSelected(true);
    if (c.trueFalse >= 0) window.Option2[c.trueFalse].SetSelected(true);
    window.Option3[0].SetSelected(false);
    if (c.layout >= 0) window.Option3[c.layout].SetSelected(true);
    Text mark = u"before";
    window.SelChoice(mark);
    CHECK(mark == c.mark);
    window.SelTF(mark);
    CHECK(mark == c.trueFalseMark);
    bool enough = true;
    window.ChkOptions(enough);
    CHECK_FALSE((enough && c.layout == -1));
  }
}

TEST_CASE("saving without a chosen type writes nothing, yet counts") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion();
  window.Option3[0].SetSelected(false);
  window.SaveTrueFalse();
  CHECK(desk.state.CardCount == 0);
  window.SaveCard_Gen();
  CHECK(desk.state.CardCount == 1);
  CHECK(desk.Cell(1, kCardType).empty());
}

TEST_CASE("closing the question builder without a change goes to the last card") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion(3);
  window.Command2[kCloseButton].Press();
  CHECK(desk.state.CurrentCard == 3);
  CHECK(desk.deck->NoteletCtl1.CardText() == u"question 3");
  CHECK(desk.deck->NoteletCtl1.CardNumber() == u"3");
  CHECK(desk.deck->Label2.Caption() == u"TRUE");
  CHECK(desk.deck->mnuPrint.Enabled());
  CHECK(desk.deck->Visible());
  CHECK_FALSE(desk.question.IsLoaded());
  CHECK(desk.TakeBoxes().empty());
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
    BuilderDesk desk;
    frmQuestion& window = desk.OpenQuestion(3);
    window.cmdMove[1].Press();
    if (c.isNew) window.Command2[kNewButton].Press();
    Replace(window.Text1[0], u"A & B");
    window.Option1[0].Press();
    Replace(window.Text2, u"edited");
    desk.Answer(c.answer);
    window.Command2[kCloseButton].Press();
    std::vector<FakeMessages::Shown> boxes = {
        {u"This card has been changed. Do you want to save these changes?", 4, u"Tessara"}};
    const bool saved = c.answer == MessageAnswer::kYes;
    if (saved) boxes.push_back({u"Changes Saved!", 0, u"Tessara"});
    CHECK(desk.TakeBoxes() == boxes);
    CHECK(desk.state.CardCount == c.count);
    CHECK(desk.state.CurrentCard == c.current);
    CHECK(desk.state.DeckChanged == saved);
    CHECK(desk.state.SaveOffered == saved);
    CHECK(desk.Cell(2, kCardText) == c.question2);
    CHECK(desk.deck->NoteletCtl1.CardTotal() == DecimalText(c.count));
    CHECK(desk.deck->NoteletCtl1.CardText() == (saved ? u"edited" : u"question 3"));
    CHECK(desk.deck->Label2.Caption() == (saved ? u"A && B" : u"TRUE"));
  }
}

TEST_CASE("a question saved at the close of a new deck is card 1, and not checked") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion();
  desk.state.CurrentCard = 0;
  FillIn(window, {false, u"q", {u"[TEXT MISSING HERE]"}, 0});
  desk.Answer(MessageAnswer::kYes);
  window.Command2[kCloseButton].Press();
  CHECK(desk.state.CurrentCard == 1);
  CHECK(desk.state.CardCount == 1);
  CHECK(desk.Cell(1, kChoiceA) == u"[TEXT MISSING HERE]");
}

TEST_CASE("the question builder's close box drops what is on the form without a question") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion(2);
  Type(window.Text2, u"!");
  window.UserClose();
  CHECK(desk.TakeBoxes().empty());
  CHECK(desk.Cell(1, kCardText) == u"question 1");
  CHECK(desk.deck->Visible());
  CHECK(desk.state.CurrentCard == 1);
}

TEST_CASE("a true or false question shows its word on the answer card, not the letter") {
  BuilderDesk desk;
  frmQuestion& window = desk.OpenQuestion();
  FillIn(window, {true, u"q", {}, 1});
  window.Command2[kAddButton].Press();
  window.Command2[kCloseButton].Press();
  CHECK(desk.deck->Label2.Caption() == u"FALSE");
}

}  // namespace tessara::test
