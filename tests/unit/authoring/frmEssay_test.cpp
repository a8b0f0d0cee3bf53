#include <doctest/doctest.h>
#include <string>

#include "platform/code_page.h"
#include "tests/unit/authoring/builder_desk.h"

namespace tessara::test {

namespace {

const FakeMessages::Shown kLinesBox = {
    u"You have reached the maximum number of lines that a card will show. Any further lines which "
    u"are added will not be seen.",
    64, u"Maximum Lines Reached!"};

const FakeMessages::Shown kUnsavedBox = {
    u"The last card added or changed was not saved. Would you like to return and save your changes "
    u"before closing this window?",
    36, u"Unsaved Card"};

void AddCard(frmEssay& window, const Text& front, const Text& back) {
  Type(window.Text1[0], front);
  Type(window.Text1[1], back);
  window.Command1[kAddButton].Press();
}

}  // namespace

TEST_CASE("the text builder over an empty deck waits for card 1") {
  BuilderDesk desk;
  const frmEssay& window = desk.OpenEssay();
  CHECK(LookOf(window) == ButtonsLook{false, false, true, false, false, kAdd, kCancel});
  CHECK(window.Label2[2].Caption() == u"Card: 1");
  CHECK(window.Text1[0].TextOf().empty());
  CHECK(window.Text1[1].TextOf().empty());
}

TEST_CASE("the text builder over a deck shows the card that the deck window showed") {
  struct Case {
    std::int16_t card;
    bool previous, next;
  };
  for (const Case& c : {Case{1, false, true}, Case{2, true, true}, Case{3, true, false}}) {
    BuilderDesk desk;
    desk.OpenStandardDeck(3);
    desk.state.CurrentCard = c.card;
    desk.OpenBuilder();
    const frmEssay& window = desk.essay.Loaded();
    CHECK(LookOf(window) == ButtonsLook{true, false, true, c.previous, c.next, kChange, kDelete});
    CHECK(window.Text1[0].TextOf() == u"front " + DecimalText(c.card));
    CHECK(window.Text1[1].TextOf() == u"back " + DecimalText(c.card));
    CHECK(window.Label2[2].Caption() == u"Card: " + DecimalText(c.card));
    CHECK(desk.TakeBoxes().empty());
  }
}

TEST_CASE("a text card needs a front and a back, a cancel any text") {
  struct Case {
    TextView front, back;
    bool add, cancel;
  };
  const Case cases[] = {
      {u"f", u"", false, true}, {u"", u"b", false, true}, {u"f", u"b", true, true}};
  for (const Case& c : cases) {
    BuilderDesk desk;
    frmEssay& window = desk.OpenEssay();
    Type(window.Text1[0], Text(c.front));
    Type(window.Text1[1], Text(c.back));
    CHECK(window.Command1[kAddButton].Enabled() == c.add);
    CHECK(window.Command1[kCancelButton].Enabled() == c.cancel);
    Replace(window.Text1[0], u"");
    Replace(window.Text1[1], u"");
    CHECK_FALSE(window.Command1[kAddButton].Enabled());
    CHECK_FALSE(window.Command1[kCancelButton].Enabled());
  }
}

TEST_CASE("adding the first text card makes it card 1 of the deck") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay();
  desk.state.CurrentCard = 0;
  AddCard(window, u"front", u"back");
  CHECK(desk.state.CurrentCard == 1);
  CHECK(desk.state.CardCount == 1);
  CHECK(desk.state.CardPresent.At(1) == 1);
  CHECK(desk.state.DeckChanged);
  CHECK(desk.state.SaveOffered);
  CHECK(LookOf(window) == ButtonsLook{true, false, true, false, false, kChange, kDelete});
  const Text expected[] = {u"", u"E", u"front", u"1", u"", u"", u"", u"", u"", u"back"};
  for (int column = 0; column < kColumns; ++column) CHECK(desk.Cell(1, column) == expected[column]);
}

TEST_CASE("the go-to command comes on with the second text card") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay();
  AddCard(window, u"1", u"1");
  CHECK_FALSE(desk.deck->mnuGTP.Enabled());
  window.Command1[kNewButton].Press();
  AddCard(window, u"2", u"2");
  CHECK(desk.deck->mnuGTP.Enabled());
}

TEST_CASE("a card's text goes into the deck as typed, line ends and blanks included") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay();
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != '\r' && byte != '\n') bytes += static_cast<char>(byte);
  }
  const Text allBytes = desk.machine.codePage.Decode(bytes);
  Replace(window.Text1[0], u"  one\r\n\r\ntwo  ");
  Replace(window.Text1[1], allBytes);
  window.Command1[kAddButton].Press();
  CHECK(desk.Cell(1, kCardText) == u"  one\r\n\r\ntwo  ");
  CHECK(desk.Cell(1, kBackText) == allBytes);
}

TEST_CASE("a new text card has an empty form, the next number and the focus on its front") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay(3);
  window.UserFocus(window.Command1[kNewButton]);
  window.Command1[kNewButton].Press();
  CHECK(LookOf(window) == ButtonsLook{false, false, true, false, false, kAdd, kCancel});
  CHECK(window.Label2[2].Caption() == u"Card: 4");
  CHECK(window.Text1[0].TextOf().empty());
  CHECK(window.Text1[1].TextOf().empty());
  CHECK(window.FocusedControl() == &window.Text1[0]);
  CHECK(desk.state.CurrentCard == 4);
  CHECK(desk.state.CardCount == 3);
  CHECK_FALSE(desk.state.CardChanged);
}

TEST_CASE("a change writes the two boxes and leaves the rest of the row and the count") {
  BuilderDesk desk;
  desk.AddTextCard(u"front 1", u"back 1");
  desk.AddChoice(u"question", {u"one", u"two"}, u"B");
  desk.Open(kStandardDeck);
  desk.state.CurrentCard = 2;
  desk.OpenBuilder();
  frmEssay& window = desk.essay.Loaded();
  CHECK(window.Text1[0].TextOf() == u"question");
  Replace(window.Text1[1], u"now a back");
  desk.state.CardPresent.Set(2, 0);
  window.Command1[kAddButton].Press();
  const Text expected[] = {u"",    u"E", u"question", u"2", u"one",
                           u"two", u"",  u"",         u"B", u"now a back"};
  for (int column = 0; column < kColumns; ++column) CHECK(desk.Cell(2, column) == expected[column]);
  CHECK(desk.state.CardPresent.At(2) == 0);
  CHECK(desk.state.CardCount == 2);
  CHECK(desk.state.DeckChanged);
  CHECK(desk.state.SaveOffered);
  CHECK_FALSE(window.Command1[kAddButton].Enabled());
}

TEST_CASE("the arrows walk the text cards without a question where nothing was typed") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay(3);
  window.cmdMove[1].Press();
  CHECK(window.Text1[1].TextOf() == u"back 2");
  window.cmdMove[1].Press();
  CHECK(LookOf(window) == ButtonsLook{true, false, true, true, false, kChange, kDelete});
  window.cmdMove[1].Press();
  CHECK(desk.state.CurrentCard == 3);
  window.cmdMove[0].Press();
  CHECK(window.Label2[2].Caption() == u"Card: 2");
  CHECK(desk.TakeBoxes().empty());
  CHECK_FALSE(desk.state.DeckChanged);
}

TEST_CASE("the focus goes to the other arrow when the one just pressed goes off") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay(2);
  window.UserFocus(window.cmdMove[1]);
  window.cmdMove[1].Press();
  CHECK(window.FocusedControl() == &window.cmdMove[0]);
  window.UserFocus(window.Text1[1]);
  window.cmdMove[0].Press();
  CHECK(window.FocusedControl() == &window.Text1[1]);
}

TEST_CASE("the focus goes to the new button when the add button was pressed with the focus on it") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay();
  Type(window.Text1[0], u"f");
  Type(window.Text1[1], u"b");
  window.UserFocus(window.Command1[kAddButton]);
  window.Command1[kAddButton].Press();
  CHECK(window.FocusedControl() == &window.Command1[kNewButton]);
}

TEST_CASE("saving an older text card through the question ends the deck there") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay(5);
  window.cmdMove[1].Press();
  Replace(window.Text1[0], u"edited");
  desk.Answer(MessageAnswer::kYes);
  window.cmdMove[1].Press();
  CHECK(desk.TakeBoxes() == std::vector{kChangedCardBox});
  CHECK(desk.Cell(2, kCardText) == u"edited");
  CHECK(desk.state.CardCount == 2);
  CHECK(desk.state.CurrentCard == 3);
  CHECK(window.Text1[0].TextOf() == u"front 3");
  CHECK_FALSE(window.cmdMove[1].Enabled());
  CHECK(window.cmdMove[0].Enabled());
  CHECK(desk.state.CardPresent.At(5) == 1);
  CHECK(desk.Cell(5, kCardText) == u"front 5");
}

TEST_CASE("No to the question about a changed text card drops the change and the question") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay(3);
  Replace(window.Text1[0], u"edited");
  desk.Answer(MessageAnswer::kNo);
  window.cmdMove[1].Press();
  CHECK(desk.Cell(1, kCardText) == u"front 1");
  CHECK(desk.state.CardCount == 3);
  CHECK_FALSE(window.Command1[kAddButton].Enabled());
  CHECK_FALSE(desk.state.DeckChanged);
  CHECK_FALSE(desk.state.CardChanged);
}

TEST_CASE("the back's tenth line brings the notice at every further change, the ninth never") {
  struct Case {
    int box, lines;
    bool warned;
  };
  for (const Case& c :
       {Case{1, 9, false}, Case{1, 10, true}, Case{1, 11, true}, Case{0, 20, false}}) {
    BuilderDesk desk;
    frmEssay& window = desk.OpenEssay();
    Replace(window.Text1[c.box], Lines(c.lines));
    const std::vector<FakeMessages::Shown> once(c.warned ? 1 : 0, kLinesBox);
    CHECK(desk.TakeBoxes() == once);
    Type(window.Text1[c.box], u"x");
    CHECK(desk.TakeBoxes() == once);
    CHECK(window.Text1[c.box].TextOf() == Lines(c.lines) + u"x");
  }
}

TEST_CASE("a long line that wraps counts as several lines") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay();
  Replace(window.Text1[1], Text(2000, u'x'));
  CHECK(desk.TakeBoxes() == std::vector{kLinesBox});
}

TEST_CASE("a card with a long back brings the notice as it comes onto the form") {
  BuilderDesk desk;
  desk.AddTextCard(u"front", Lines(10));
  desk.Open(kStandardDeck);
  desk.OpenBuilder();
  CHECK(desk.TakeBoxes() == std::vector{kLinesBox});
  CHECK_FALSE(desk.essay->Command1[kAddButton].Enabled());
}

TEST_CASE("at 200 text cards there is no new card, but card 200 can be changed and deleted") {
  BuilderDesk desk;
  desk.OpenStandardDeck(kMostCards);
  desk.state.CurrentCard = kMostCards;
  desk.OpenBuilder();
  frmEssay& window = desk.essay.Loaded();
  CHECK_FALSE(window.Command1[kNewButton].Enabled());
  Replace(window.Text1[0], u"edited");
  window.Command1[kAddButton].Press();
  CHECK(desk.Cell(200, kCardText) == u"edited");
  desk.Answer(MessageAnswer::kYes);
  window.Command1[kCancelButton].Press();
  CHECK(desk.state.CardCount == 199);
  CHECK(window.Command1[kNewButton].Enabled());
  CHECK(window.Text1[0].TextOf() == u"front 199");
}

TEST_CASE("the card that fills the deck leaves the new button off") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay(kMostCards - 1);
  window.Command1[kNewButton].Press();
  AddCard(window, u"f", u"b");
  CHECK(desk.state.CardCount == kMostCards);
  CHECK_FALSE(window.Command1[kNewButton].Enabled());
}

TEST_CASE("deleting the only text card goes back to a new one") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay(1);
  desk.Answer(MessageAnswer::kYes);
  window.Command1[kCancelButton].Press();
  CHECK(desk.TakeBoxes() == std::vector<FakeMessages::Shown>{
                                {u"Deletion is permanent, are you sure?", 4, u"Delete Card # 1"}});
  CHECK(LookOf(window) == ButtonsLook{false, false, false, false, false, kAdd, kCancel});
  CHECK(desk.state.CardCount == 0);
  CHECK(desk.state.CurrentCard == 0);
  CHECK(window.FocusedControl() == &window.Text1[0]);
  CHECK_FALSE(desk.deck->mnuGTP.Enabled());
}

TEST_CASE("deleting a text card in the middle shows the one that followed") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay(3);
  window.cmdMove[1].Press();
  desk.Answer(MessageAnswer::kYes);
  window.Command1[kCancelButton].Press();
  CHECK(desk.state.CurrentCard == 2);
  CHECK(window.Text1[0].TextOf() == u"front 3");
  CHECK(LookOf(window) == ButtonsLook{true, false, true, true, false, kChange, kDelete});
}

TEST_CASE("No to the delete question redraws the card and marks the deck as changed all the same") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay(2);
  Replace(window.Text1[0], u"typed over");
  desk.Answer(MessageAnswer::kNo);
  window.Command1[kCancelButton].Press();
  CHECK(window.Text1[0].TextOf() == u"front 1");
  CHECK(window.Text1[1].TextOf() == u"back 1");
  CHECK(desk.state.CardCount == 2);
  CHECK(desk.state.DeckChanged);
  CHECK_FALSE(window.Command1[kAddButton].Enabled());
}

TEST_CASE("cancelling a new text card shows the last one, with the arrows by its place") {
  struct Case {
    int cards;
    bool previous;
  };
  for (const Case& c : {Case{1, false}, Case{2, true}}) {
    BuilderDesk desk;
    frmEssay& window = desk.OpenEssay(c.cards);
    window.Command1[kNewButton].Press();
    Type(window.Text1[0], u"never mind");
    window.Command1[kCancelButton].Press();
    CHECK(window.Text1[0].TextOf() == u"front " + DecimalText(c.cards));
    CHECK(LookOf(window) == ButtonsLook{true, false, true, c.previous, false, kChange, kDelete});
    CHECK(desk.state.CurrentCard == c.cards);
    CHECK_FALSE(desk.state.DeckChanged);
    CHECK(desk.TakeBoxes().empty());
  }
}

TEST_CASE("on the only text card the way back does nothing, after a cancel too") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay(1);
  window.Command1[kNewButton].Press();
  window.Command1[kCancelButton].Press();
  for (int press = 0; press < 2; ++press) window.cmdMove[0].Press();
  CHECK(window.Label2[2].Caption() == u"Card: 1");
  CHECK(window.Text1[1].TextOf() == u"back 1");
  CHECK(desk.state.CurrentCard == 1);
}

TEST_CASE("cancelling the first text card empties the form") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay();
  Type(window.Text1[0], u"f");
  Type(window.Text1[1], u"b");
  desk.deck->mnuGTP.SetEnabled(true);
  window.Command1[kCancelButton].Press();
  CHECK(LookOf(window) == ButtonsLook{false, false, false, false, false, kAdd, kCancel});
  CHECK(window.Text1[0].TextOf().empty());
  CHECK(window.Text1[1].TextOf().empty());
  CHECK(window.FocusedControl() == &window.Text1[0]);
  CHECK_FALSE(desk.deck->mnuGTP.Enabled());
  CHECK(desk.state.CurrentCard == 0);
}

TEST_CASE("closing the text builder brings the deck window up to date") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay();
  CHECK_FALSE(desk.deck->Command3[1].Enabled());
  AddCard(window, u"salt & pepper", u"back");
  window.Command1[kCloseButton].Press();
  CHECK_FALSE(desk.essay.IsLoaded());
  const frmMain& deck = desk.deck.Loaded();
  CHECK(deck.Visible());
  CHECK(deck.NoteletCtl1.CardTotal() == u"1");
  CHECK(deck.NoteletCtl1.CardNumber() == u"1");
  CHECK(deck.NoteletCtl1.CardText() == u"salt && pepper");
  CHECK(deck.Command3[1].Enabled());
  CHECK(deck.mnuPrint.Enabled());
  CHECK(deck.mnuSave.Enabled());
  CHECK(desk.TakeBoxes().empty());
}

TEST_CASE("the text builder asks about an unsaved card as it closes") {
  struct Case {
    MessageAnswer answer;
    bool isNew;
    std::int16_t count, current;
    Text front;
  };
  const Case cases[] = {{MessageAnswer::kYes, false, 2, 2, u"edited"},  // the deck ends there
                        {MessageAnswer::kNo, false, 3, 3, u"front 2"},
                        {MessageAnswer::kYes, true, 4, 4, u"front 2"},
                        {MessageAnswer::kNo, true, 3, 3, u"front 2"}};
  for (const Case& c : cases) {
    BuilderDesk desk;
    frmEssay& window = desk.OpenEssay(3);
    window.cmdMove[1].Press();
    if (c.isNew) window.Command1[kNewButton].Press();
    Replace(window.Text1[0], u"edited");
    Replace(window.Text1[1], u"back");
    desk.Answer(c.answer);
    window.Command1[kCloseButton].Press();
    std::vector boxes = {kUnsavedBox};
    if (c.answer == MessageAnswer::kYes) boxes.push_back({u"Card is saved", 0, u"Save"});
    CHECK(desk.TakeBoxes() == boxes);
    CHECK(desk.state.CardCount == c.count);
    CHECK(desk.state.CurrentCard == c.current);
    CHECK(desk.Cell(2, kCardText) == c.front);
    CHECK(desk.deck->NoteletCtl1.CardTotal() == DecimalText(c.count));
    CHECK(desk.deck->NoteletCtl1.CardNumber() == DecimalText(c.current));
    CHECK(desk.deck->Visible());
    CHECK(desk.state.SaveOffered == (c.answer == MessageAnswer::kYes));
  }
}

TEST_CASE("a deck whose only card was saved at the close is saved under the name chosen") {
  BuilderDesk desk;
  desk.deck->mnuNCD_Click();
  desk.OpenBuilder();
  frmEssay& window = desk.essay.Loaded();
  Type(window.Text1[0], u"front");
  Type(window.Text1[1], u"back");
  desk.Answer(MessageAnswer::kYes);
  window.Command1[kCloseButton].Press();
  desk.fakes.files.Put(u"/decks/other.tsr", "");
  desk.fakes.dialogs.files.emplace_back(u"/decks/one.tsr");
  desk.deck->mnuSave_Click();
  CHECK(desk.fakes.files.Has(u"/decks/one.tsr"));
}

TEST_CASE("the first card built after a deck was cleared at a later card is card 1") {
  BuilderDesk desk;
  desk.OpenStandardDeck(3);
  desk.state.CurrentCard = 3;
  desk.deck->mnuNCD_Click();
  desk.OpenBuilder();
  AddCard(desk.essay.Loaded(), u"front", u"back");
  CHECK(desk.state.CardCount == 1);
  CHECK(desk.Cell(1, kCardText) == u"front");
}

TEST_CASE("closing from an empty new card goes back to the last card") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay(3);
  window.Command1[kNewButton].Press();
  window.Command1[kCloseButton].Press();
  CHECK(desk.state.CurrentCard == 3);
  CHECK(desk.deck->NoteletCtl1.CardText() == u"front 3");
}

TEST_CASE("the text builder's close box drops what is on the form without a question") {
  BuilderDesk desk;
  frmEssay& window = desk.OpenEssay(2);
  Replace(window.Text1[0], u"edited");
  window.UserClose();
  CHECK(desk.TakeBoxes().empty());
  CHECK(desk.Cell(1, kCardText) == u"front 1");
  CHECK(desk.deck->Visible());
  CHECK(desk.deck->NoteletCtl1.CardText() == u"front 1");
}

TEST_CASE("a text card looked at, moved over and saved stays the same to the last character") {
  BuilderDesk desk;
  const Text odd = Text(u"a\u0000b\r\rc\n\nd\u00A0 \t", 12);
  desk.AddTextCard(odd, odd);
  desk.AddTextCard(u"2", u"2");
  desk.Open(kStandardDeck);
  desk.OpenBuilder();
  frmEssay& window = desk.essay.Loaded();
  window.cmdMove[1].Press();
  window.cmdMove[0].Press();
  Type(window.Text1[1], u"x");
  window.Command1[kAddButton].Press();
  CHECK(desk.Cell(1, kCardText) == odd);
  CHECK(desk.Cell(1, kBackText) == odd + u"x");
}

TEST_CASE("the window of the text builder is laid out as designed") {
  BuilderDesk desk;
  const frmEssay& window = desk.OpenEssay();
  CHECK(window.Label1.Caption() == u"Card Builder:");
  CHECK(window.Label1.FontOf() == Font{u"MS Sans Serif", 9.75});
  CHECK(window.Label1.ForeColor() == FixedColor(0, 0, 255));
  CHECK(window.Label2[2].ForeColor() == FixedColor(255, 0, 0));
  for (const TextBox& box : window.Text1) {
    CHECK(box.MultiLine());
    CHECK(box.VerticalScrollBar());
    CHECK(box.MaxLength() == 0);
  }
  CHECK(window.Text1[0].Place() == Bounds{120, 720, 5175, 1695});
  CHECK(window.Text1[1].Place() == Bounds{120, 2760, 5175, 1695});
}

}  // namespace tessara::test
