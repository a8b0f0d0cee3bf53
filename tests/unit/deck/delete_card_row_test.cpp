#include "deck/delete_card_row.h"

#include <doctest/doctest.h>

#include "tests/support/error_of.h"
#include "tests/support/fakes/fake_card_display.h"
#include "tests/support/fakes/fake_messages.h"
#include "tests/support/sample_deck.h"

namespace tessara::test {

namespace {

struct DeleteFixture {
  ProgramState state;
  MoveButtons arrows{"cmdMove"};
  FakeCardFace card;
  FakeMessages messages;

  explicit DeleteFixture(int cards) { FillDeck(state, cards); }

  std::int16_t Delete(std::int16_t row, MessageAnswer answer) {
    messages.answers = {answer};
    state.deck.currentCard = row;
    DeleteCardRow(row, arrows, card, state, messages);
    return row;
  }
};

}  // namespace

TEST_CASE("deleting asks first and names the card in the title") {
  DeleteFixture fixture(3);
  CHECK(fixture.Delete(2, MessageAnswer::kNo) == 2);
  CHECK(fixture.messages.shown ==
        std::vector<FakeMessages::Shown>{
            {u"Deletion is permanent, are you sure?", 4, u"Delete Card # 2"}});
  CHECK(fixture.state.deck.cardCount == 3);
  CHECK(fixture.state.deck.Cell(2, kCardText) == u"front 2");
  CHECK(fixture.card.writes.empty());
}

TEST_CASE("any answer but No deletes") {
  for (const MessageAnswer answer : {MessageAnswer::kYes, MessageAnswer::kCancel}) {
    DeleteFixture fixture(3);
    fixture.Delete(2, answer);
    CHECK(fixture.state.deck.cardCount == 2);
  }
}

TEST_CASE("deleting a middle card moves the later ones up under the same row") {
  DeleteFixture fixture(4);
  CHECK(fixture.Delete(2, MessageAnswer::kYes) == 2);
  CHECK(fixture.state.deck.cardCount == 3);
  CHECK(fixture.state.deck.Cell(2, kCardText) == u"front 3");
  CHECK(fixture.state.deck.Cell(2, kRowNumber) == u"2");
  CHECK(fixture.state.deck.Cell(3, kCardText) == u"front 4");
  CHECK(fixture.state.deck.Cell(4, kCardText).empty());
  CHECK(fixture.state.deck.cardPresent.At(4) == 0);
  CHECK(fixture.card.CardTotal == u"3");
  CHECK(fixture.card.CardNumber.empty());
  CHECK(fixture.arrows[kPreviousCard].Enabled());
  CHECK(fixture.arrows[kNextCard].Enabled());
}

TEST_CASE("deleting the last card lowers the row by one") {
  DeleteFixture fixture(3);
  CHECK(fixture.Delete(3, MessageAnswer::kYes) == 2);
  CHECK(fixture.state.deck.cardCount == 2);
  CHECK(fixture.state.deck.cardPresent.At(3) == 0);
  CHECK(fixture.card.CardNumber == u"2");
  CHECK(fixture.card.CardTotal == u"2");
}

TEST_CASE("deleting the only card leaves no cards, row 0 and both arrows off") {
  DeleteFixture fixture(1);
  CHECK(fixture.Delete(1, MessageAnswer::kYes) == 0);
  CHECK(fixture.state.deck.cardCount == 0);
  CHECK_FALSE(fixture.state.deck.HasCards());
  CHECK(fixture.card.CardNumber == u"0");
  CHECK(fixture.card.CardTotal == u"0");
  CHECK_FALSE(fixture.arrows[kPreviousCard].Enabled());
  CHECK_FALSE(fixture.arrows[kNextCard].Enabled());
}

TEST_CASE("deleting from a deck that was closed behind its builder counts below zero") {
  DeleteFixture fixture(0);
  CHECK(fixture.Delete(1, MessageAnswer::kYes) == 1);
  CHECK(fixture.state.deck.cardCount == -1);
  CHECK(fixture.card.CardTotal == u"-1");
}

TEST_CASE("deleting from a full deck leaves row 200 blank and absent") {
  for (const std::int16_t row : {std::int16_t{200}, std::int16_t{1}}) {
    DeleteFixture fixture(200);
    fixture.Delete(row, MessageAnswer::kYes);
    CHECK(fixture.state.deck.cardCount == 199);
    CHECK(fixture.state.deck.Cell(200, kCardText).empty());
    CHECK(fixture.state.deck.cardPresent.At(200) == 0);
    CHECK(fixture.state.deck.cardPresent.At(199) == 1);
  }
}

TEST_CASE("the arrows follow the place in the deck as the caller has it") {
  DeleteFixture fixture(3);
  std::int16_t& current = fixture.state.deck.currentCard;
  current = 3;
  fixture.messages.answers = {MessageAnswer::kYes};
  DeleteCardRow(current, fixture.arrows, fixture.card, fixture.state, fixture.messages);
  CHECK(current == 2);
  CHECK(fixture.arrows[kPreviousCard].Enabled());
  CHECK_FALSE(fixture.arrows[kNextCard].Enabled());
}

TEST_CASE("deleting a row outside the table is a subscript error and changes nothing") {
  DeleteFixture fixture(2);
  CHECK(ErrorOf([&] { fixture.Delete(203, MessageAnswer::kYes); }) == 9);
  CHECK(fixture.state.deck.cardCount == 2);
}

}  // namespace tessara::test
