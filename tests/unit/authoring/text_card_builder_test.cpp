#include <doctest/doctest.h>
#include <string>

#include "base/code_page.h"
#include "tests/unit/authoring/builder_fixture.h"

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

void AddCard(TextCardBuilder& window, const Text& front, const Text& back) {
  Type(window.sides[kFrontSide], front);
  Type(window.sides[kBackSide], back);
  window.buttons[kAddButton].Press();
}

}  // namespace

TEST_CASE("the text builder over an empty deck waits for card 1") {
  BuilderFixture fixture;
  const TextCardBuilder& window = fixture.OpenEssay();
  CHECK(LookOf(window) == ButtonsLook{false, false, true, false, false, kAdd, kCancel});
  CHECK(window.number.Caption() == u"Card: 1");
  CHECK(window.sides[kFrontSide].TextOf().empty());
  CHECK(window.sides[kBackSide].TextOf().empty());
}

TEST_CASE("the text builder over a deck shows the card that the deck window showed") {
  struct Case {
    std::int16_t card;
    bool previous, next;
  };
  for (const Case& c : {Case{1, false, true}, Case{2, true, true}, Case{3, true, false}}) {
    BuilderFixture fixture;
    fixture.OpenStandardDeck(3);
    fixture.state.deck.currentCard = c.card;
    fixture.OpenBuilder();
    const TextCardBuilder& window = fixture.essay.Loaded();
    CHECK(LookOf(window) == ButtonsLook{true, false, true, c.previous, c.next, kChange, kDelete});
    CHECK(window.sides[kFrontSide].TextOf() == u"front " + DecimalText(c.card));
    CHECK(window.sides[kBackSide].TextOf() == u"back " + DecimalText(c.card));
    CHECK(window.number.Caption() == u"Card: " + DecimalText(c.card));
    CHECK(fixture.TakeBoxes().empty());
  }
}

TEST_CASE("the page keys turn to the card before and the card behind") {
  BuilderFixture fixture;
  fixture.OpenStandardDeck(3);
  fixture.OpenBuilder();
  TextCardBuilder& window = fixture.essay.Loaded();
  CHECK(window.UserPage(PageKey::kDown));
  CHECK(window.number.Caption() == u"Card: 2");
  CHECK(window.UserPage(PageKey::kUp));
  CHECK(window.number.Caption() == u"Card: 1");
}

TEST_CASE("a text card needs a front and a back, a cancel any text") {
  struct Case {
    TextView front, back;
    bool add, cancel;
  };
  const Case cases[] = {
      {u"f", u"", false, true}, {u"", u"b", false, true}, {u"f", u"b", true, true}};
  for (const Case& c : cases) {
    BuilderFixture fixture;
    TextCardBuilder& window = fixture.OpenEssay();
    Type(window.sides[kFrontSide], Text(c.front));
    Type(window.sides[kBackSide], Text(c.back));
    CHECK(window.buttons[kAddButton].Enabled() == c.add);
    CHECK(window.buttons[kCancelButton].Enabled() == c.cancel);
    Replace(window.sides[kFrontSide], u"");
    Replace(window.sides[kBackSide], u"");
    CHECK_FALSE(window.buttons[kAddButton].Enabled());
    CHECK_FALSE(window.buttons[kCancelButton].Enabled());
  }
}

TEST_CASE("adding the first text card makes it card 1 of the deck") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay();
  fixture.state.deck.currentCard = 0;
  AddCard(window, u"front", u"back");
  CHECK(fixture.state.deck.currentCard == 1);
  CHECK(fixture.state.deck.cardCount == 1);
  CHECK(fixture.state.deck.cardPresent.At(1) == 1);
  CHECK(fixture.state.deck.changed);
  CHECK(fixture.state.deck.saveOffered);
  CHECK(LookOf(window) == ButtonsLook{true, false, true, false, false, kChange, kDelete});
  const Text expected[] = {u"", u"E", u"front", u"1", u"", u"", u"", u"", u"", u"back"};
  for (int column = 0; column < kColumns; ++column)
    CHECK(fixture.Cell(1, column) == expected[column]);
}

TEST_CASE("the go-to command comes on with the second text card") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay();
  AddCard(window, u"1", u"1");
  CHECK_FALSE(fixture.deck->goToCard.Enabled());
  window.buttons[kNewButton].Press();
  AddCard(window, u"2", u"2");
  CHECK(fixture.deck->goToCard.Enabled());
}

TEST_CASE("a card's text goes into the deck as typed, line ends and blanks included") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay();
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) {
    if (byte != '\r' && byte != '\n') bytes += static_cast<char>(byte);
  }
  const Text allBytes = fixture.machine.codePage.Decode(bytes);
  Replace(window.sides[kFrontSide], u"  one\r\n\r\ntwo  ");
  Replace(window.sides[kBackSide], allBytes);
  window.buttons[kAddButton].Press();
  CHECK(fixture.Cell(1, kCardText) == u"  one\r\n\r\ntwo  ");
  CHECK(fixture.Cell(1, kBackText) == allBytes);
}

TEST_CASE("a new text card has an empty form, the next number and the focus on its front") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay(3);
  window.UserFocus(window.buttons[kNewButton]);
  window.buttons[kNewButton].Press();
  CHECK(LookOf(window) == ButtonsLook{false, false, true, false, false, kAdd, kCancel});
  CHECK(window.number.Caption() == u"Card: 4");
  CHECK(window.sides[kFrontSide].TextOf().empty());
  CHECK(window.sides[kBackSide].TextOf().empty());
  CHECK(window.FocusedControl() == &window.sides[kFrontSide]);
  CHECK(fixture.state.deck.currentCard == 4);
  CHECK(fixture.state.deck.cardCount == 3);
  CHECK_FALSE(fixture.state.building.fillingBoxes);
}

TEST_CASE("a change writes the two boxes and leaves the rest of the row and the count") {
  BuilderFixture fixture;
  fixture.AddTextCard(u"front 1", u"back 1");
  fixture.AddChoice(u"question", {u"one", u"two"}, u"B");
  fixture.Open(kStandardDeck);
  fixture.state.deck.currentCard = 2;
  fixture.OpenBuilder();
  TextCardBuilder& window = fixture.essay.Loaded();
  CHECK(window.sides[kFrontSide].TextOf() == u"question");
  Replace(window.sides[kBackSide], u"now a back");
  fixture.state.deck.cardPresent.Set(2, 0);
  window.buttons[kAddButton].Press();
  const Text expected[] = {u"",    u"E", u"question", u"2", u"one",
                           u"two", u"",  u"",         u"B", u"now a back"};
  for (int column = 0; column < kColumns; ++column)
    CHECK(fixture.Cell(2, column) == expected[column]);
  CHECK(fixture.state.deck.cardPresent.At(2) == 0);
  CHECK(fixture.state.deck.cardCount == 2);
  CHECK(fixture.state.deck.changed);
  CHECK(fixture.state.deck.saveOffered);
  CHECK_FALSE(window.buttons[kAddButton].Enabled());
}

TEST_CASE("the arrows walk the text cards without a question where nothing was typed") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay(3);
  window.arrows[kNextCard].Press();
  CHECK(window.sides[kBackSide].TextOf() == u"back 2");
  window.arrows[kNextCard].Press();
  CHECK(LookOf(window) == ButtonsLook{true, false, true, true, false, kChange, kDelete});
  window.arrows[kNextCard].Press();
  CHECK(fixture.state.deck.currentCard == 3);
  window.arrows[kPreviousCard].Press();
  CHECK(window.number.Caption() == u"Card: 2");
  CHECK(fixture.TakeBoxes().empty());
  CHECK_FALSE(fixture.state.deck.changed);
}

TEST_CASE("the focus goes to the other arrow when the one just pressed goes off") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay(2);
  window.UserFocus(window.arrows[kNextCard]);
  window.arrows[kNextCard].Press();
  CHECK(window.FocusedControl() == &window.arrows[kPreviousCard]);
  window.UserFocus(window.sides[kBackSide]);
  window.arrows[kPreviousCard].Press();
  CHECK(window.FocusedControl() == &window.sides[kBackSide]);
}

TEST_CASE("the focus goes to the new button when the add button was pressed with the focus on it") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay();
  Type(window.sides[kFrontSide], u"f");
  Type(window.sides[kBackSide], u"b");
  window.UserFocus(window.buttons[kAddButton]);
  window.buttons[kAddButton].Press();
  CHECK(window.FocusedControl() == &window.buttons[kNewButton]);
}

TEST_CASE("saving an older text card through the question ends the deck there") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay(5);
  window.arrows[kNextCard].Press();
  Replace(window.sides[kFrontSide], u"edited");
  fixture.Answer(MessageAnswer::kYes);
  window.arrows[kNextCard].Press();
  CHECK(fixture.TakeBoxes() == std::vector{kChangedCardBox});
  CHECK(fixture.Cell(2, kCardText) == u"edited");
  CHECK(fixture.state.deck.cardCount == 2);
  CHECK(fixture.state.deck.currentCard == 3);
  CHECK(window.sides[kFrontSide].TextOf() == u"front 3");
  CHECK_FALSE(window.arrows[kNextCard].Enabled());
  CHECK(window.arrows[kPreviousCard].Enabled());
  CHECK(fixture.state.deck.cardPresent.At(5) == 1);
  CHECK(fixture.Cell(5, kCardText) == u"front 5");
}

TEST_CASE("No to the question about a changed text card drops the change and the question") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay(3);
  Replace(window.sides[kFrontSide], u"edited");
  fixture.Answer(MessageAnswer::kNo);
  window.arrows[kNextCard].Press();
  CHECK(fixture.Cell(1, kCardText) == u"front 1");
  CHECK(fixture.state.deck.cardCount == 3);
  CHECK_FALSE(window.buttons[kAddButton].Enabled());
  CHECK_FALSE(fixture.state.deck.changed);
  CHECK_FALSE(fixture.state.building.fillingBoxes);
}

TEST_CASE("the back's tenth line brings the notice at every further change, the ninth never") {
  struct Case {
    int box, lines;
    bool warned;
  };
  for (const Case& c :
       {Case{1, 9, false}, Case{1, 10, true}, Case{1, 11, true}, Case{0, 20, false}}) {
    BuilderFixture fixture;
    TextCardBuilder& window = fixture.OpenEssay();
    Replace(window.sides[c.box], Lines(c.lines));
    const std::vector<FakeMessages::Shown> once(c.warned ? 1 : 0, kLinesBox);
    CHECK(fixture.TakeBoxes() == once);
    Type(window.sides[c.box], u"x");
    CHECK(fixture.TakeBoxes() == once);
    CHECK(window.sides[c.box].TextOf() == Lines(c.lines) + u"x");
  }
}

TEST_CASE("a long line that wraps counts as several lines") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay();
  Replace(window.sides[kBackSide], Text(2000, u'x'));
  CHECK(fixture.TakeBoxes() == std::vector{kLinesBox});
}

TEST_CASE("a card with a long back brings the notice as it comes onto the form") {
  BuilderFixture fixture;
  fixture.AddTextCard(u"front", Lines(10));
  fixture.Open(kStandardDeck);
  fixture.OpenBuilder();
  CHECK(fixture.TakeBoxes() == std::vector{kLinesBox});
  CHECK_FALSE(fixture.essay->buttons[kAddButton].Enabled());
}

TEST_CASE("at 200 text cards there is no new card, but card 200 can be changed and deleted") {
  BuilderFixture fixture;
  fixture.OpenStandardDeck(kMostCards);
  fixture.state.deck.currentCard = kMostCards;
  fixture.OpenBuilder();
  TextCardBuilder& window = fixture.essay.Loaded();
  CHECK_FALSE(window.buttons[kNewButton].Enabled());
  Replace(window.sides[kFrontSide], u"edited");
  window.buttons[kAddButton].Press();
  CHECK(fixture.Cell(200, kCardText) == u"edited");
  fixture.Answer(MessageAnswer::kYes);
  window.buttons[kCancelButton].Press();
  CHECK(fixture.state.deck.cardCount == 199);
  CHECK(window.buttons[kNewButton].Enabled());
  CHECK(window.sides[kFrontSide].TextOf() == u"front 199");
}

TEST_CASE("the card that fills the deck leaves the new button off") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay(kMostCards - 1);
  window.buttons[kNewButton].Press();
  AddCard(window, u"f", u"b");
  CHECK(fixture.state.deck.cardCount == kMostCards);
  CHECK_FALSE(window.buttons[kNewButton].Enabled());
}

TEST_CASE("deleting the only text card goes back to a new one") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay(1);
  fixture.Answer(MessageAnswer::kYes);
  window.buttons[kCancelButton].Press();
  CHECK(fixture.TakeBoxes() ==
        std::vector<FakeMessages::Shown>{
            {u"Deletion is permanent, are you sure?", 4, u"Delete Card # 1"}});
  CHECK(LookOf(window) == ButtonsLook{false, false, false, false, false, kAdd, kCancel});
  CHECK(fixture.state.deck.cardCount == 0);
  CHECK(fixture.state.deck.currentCard == 0);
  CHECK(window.FocusedControl() == &window.sides[kFrontSide]);
  CHECK_FALSE(fixture.deck->goToCard.Enabled());
}

TEST_CASE("deleting a text card in the middle shows the one that followed") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay(3);
  window.arrows[kNextCard].Press();
  fixture.Answer(MessageAnswer::kYes);
  window.buttons[kCancelButton].Press();
  CHECK(fixture.state.deck.currentCard == 2);
  CHECK(window.sides[kFrontSide].TextOf() == u"front 3");
  CHECK(LookOf(window) == ButtonsLook{true, false, true, true, false, kChange, kDelete});
}

TEST_CASE("No to the delete question redraws the card and marks the deck as changed all the same") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay(2);
  Replace(window.sides[kFrontSide], u"typed over");
  fixture.Answer(MessageAnswer::kNo);
  window.buttons[kCancelButton].Press();
  CHECK(window.sides[kFrontSide].TextOf() == u"front 1");
  CHECK(window.sides[kBackSide].TextOf() == u"back 1");
  CHECK(fixture.state.deck.cardCount == 2);
  CHECK(fixture.state.deck.changed);
  CHECK_FALSE(window.buttons[kAddButton].Enabled());
}

TEST_CASE("cancelling a new text card shows the last one, with the arrows by its place") {
  struct Case {
    int cards;
    bool previous;
  };
  for (const Case& c : {Case{1, false}, Case{2, true}}) {
    BuilderFixture fixture;
    TextCardBuilder& window = fixture.OpenEssay(c.cards);
    window.buttons[kNewButton].Press();
    Type(window.sides[kFrontSide], u"never mind");
    window.buttons[kCancelButton].Press();
    CHECK(window.sides[kFrontSide].TextOf() == u"front " + DecimalText(c.cards));
    CHECK(LookOf(window) == ButtonsLook{true, false, true, c.previous, false, kChange, kDelete});
    CHECK(fixture.state.deck.currentCard == c.cards);
    CHECK_FALSE(fixture.state.deck.changed);
    CHECK(fixture.TakeBoxes().empty());
  }
}

TEST_CASE("on the only text card the way back does nothing, after a cancel too") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay(1);
  window.buttons[kNewButton].Press();
  window.buttons[kCancelButton].Press();
  for (int press = 0; press < 2; ++press) window.arrows[kPreviousCard].Press();
  CHECK(window.number.Caption() == u"Card: 1");
  CHECK(window.sides[kBackSide].TextOf() == u"back 1");
  CHECK(fixture.state.deck.currentCard == 1);
}

TEST_CASE("cancelling the first text card empties the form") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay();
  Type(window.sides[kFrontSide], u"f");
  Type(window.sides[kBackSide], u"b");
  fixture.deck->goToCard.SetEnabled(true);
  window.buttons[kCancelButton].Press();
  CHECK(LookOf(window) == ButtonsLook{false, false, false, false, false, kAdd, kCancel});
  CHECK(window.sides[kFrontSide].TextOf().empty());
  CHECK(window.sides[kBackSide].TextOf().empty());
  CHECK(window.FocusedControl() == &window.sides[kFrontSide]);
  CHECK_FALSE(fixture.deck->goToCard.Enabled());
  CHECK(fixture.state.deck.currentCard == 0);
}

TEST_CASE("closing the text builder brings the deck window up to date") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay();
  CHECK_FALSE(fixture.deck->flip.Enabled());
  AddCard(window, u"salt & pepper", u"back");
  window.buttons[kCloseButton].Press();
  CHECK_FALSE(fixture.essay.IsLoaded());
  const DeckWindow& deck = fixture.deck.Loaded();
  CHECK(deck.Visible());
  CHECK(deck.card.CardTotal() == u"1");
  CHECK(deck.card.CardNumber() == u"1");
  CHECK(deck.card.CardText() == u"salt && pepper");
  CHECK(deck.flip.Enabled());
  CHECK(deck.printDeck.Enabled());
  CHECK(deck.saveDeck.Enabled());
  CHECK(fixture.TakeBoxes().empty());
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
    BuilderFixture fixture;
    TextCardBuilder& window = fixture.OpenEssay(3);
    window.arrows[kNextCard].Press();
    if (c.isNew) window.buttons[kNewButton].Press();
    Replace(window.sides[kFrontSide], u"edited");
    Replace(window.sides[kBackSide], u"back");
    fixture.Answer(c.answer);
    window.buttons[kCloseButton].Press();
    std::vector boxes = {kUnsavedBox};
    if (c.answer == MessageAnswer::kYes) boxes.push_back({u"Card is saved", 0, u"Save"});
    CHECK(fixture.TakeBoxes() == boxes);
    CHECK(fixture.state.deck.cardCount == c.count);
    CHECK(fixture.state.deck.currentCard == c.current);
    CHECK(fixture.Cell(2, kCardText) == c.front);
    CHECK(fixture.deck->card.CardTotal() == DecimalText(c.count));
    CHECK(fixture.deck->card.CardNumber() == DecimalText(c.current));
    CHECK(fixture.deck->Visible());
    CHECK(fixture.state.deck.saveOffered == (c.answer == MessageAnswer::kYes));
  }
}

TEST_CASE("a deck whose only card was saved at the close is saved under the name chosen") {
  BuilderFixture fixture;
  fixture.deck->ClearDeck();
  fixture.OpenBuilder();
  TextCardBuilder& window = fixture.essay.Loaded();
  Type(window.sides[kFrontSide], u"front");
  Type(window.sides[kBackSide], u"back");
  fixture.Answer(MessageAnswer::kYes);
  window.buttons[kCloseButton].Press();
  fixture.fakes.files.Put(u"/decks/other.tsr", "");
  fixture.fakes.dialogs.files.emplace_back(u"/decks/one.tsr");
  fixture.deck->SaveDeck();
  CHECK(fixture.fakes.files.Has(u"/decks/one.tsr"));
}

TEST_CASE("the first card built after a deck was cleared at a later card is card 1") {
  BuilderFixture fixture;
  fixture.OpenStandardDeck(3);
  fixture.state.deck.currentCard = 3;
  fixture.deck->ClearDeck();
  fixture.OpenBuilder();
  AddCard(fixture.essay.Loaded(), u"front", u"back");
  CHECK(fixture.state.deck.cardCount == 1);
  CHECK(fixture.Cell(1, kCardText) == u"front");
}

TEST_CASE("closing from an empty new card goes back to the last card") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay(3);
  window.buttons[kNewButton].Press();
  window.buttons[kCloseButton].Press();
  CHECK(fixture.state.deck.currentCard == 3);
  CHECK(fixture.deck->card.CardText() == u"front 3");
}

TEST_CASE("the text builder's close box drops what is on the form without a question") {
  BuilderFixture fixture;
  TextCardBuilder& window = fixture.OpenEssay(2);
  Replace(window.sides[kFrontSide], u"edited");
  window.UserClose();
  CHECK(fixture.TakeBoxes().empty());
  CHECK(fixture.Cell(1, kCardText) == u"front 1");
  CHECK(fixture.deck->Visible());
  CHECK(fixture.deck->card.CardText() == u"front 1");
}

TEST_CASE("a text card looked at, moved over and saved stays the same to the last character") {
  BuilderFixture fixture;
  const Text odd = Text(u"a\u0000b\r\rc\n\nd\u00A0 \t", 12);
  fixture.AddTextCard(odd, odd);
  fixture.AddTextCard(u"2", u"2");
  fixture.Open(kStandardDeck);
  fixture.OpenBuilder();
  TextCardBuilder& window = fixture.essay.Loaded();
  window.arrows[kNextCard].Press();
  window.arrows[kPreviousCard].Press();
  Type(window.sides[kBackSide], u"x");
  window.buttons[kAddButton].Press();
  CHECK(fixture.Cell(1, kCardText) == odd);
  CHECK(fixture.Cell(1, kBackText) == odd + u"x");
}

TEST_CASE("the window of the text builder is laid out as designed") {
  BuilderFixture fixture;
  const TextCardBuilder& window = fixture.OpenEssay();
  CHECK(window.heading.Caption() == u"Card Builder:");
  CHECK(window.heading.FontOf() == Font{u"MS Sans Serif", 9.75});
  CHECK(window.heading.ForeColor() == FixedColor(0, 0, 255));
  CHECK(window.number.ForeColor() == FixedColor(255, 0, 0));
  for (const TextBox& box : window.sides) {
    CHECK(box.MultiLine());
    CHECK(box.VerticalScrollBar());
    CHECK(box.MaxLength() == 0);
  }
  CHECK(window.sides[kFrontSide].BoundsOf() == Bounds{120, 720, 5175, 1695});
  CHECK(window.sides[kBackSide].BoundsOf() == Bounds{120, 2760, 5175, 1695});
}

}  // namespace tessara::test
