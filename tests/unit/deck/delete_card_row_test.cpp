#include "deck/delete_card_row.h"

#include <doctest/doctest.h>

#include "tests/support/error_of.h"
#include "tests/support/fakes/fake_card_display.h"
#include "tests/support/fakes/fake_messages.h"
#include "tests/support/sample_deck.h"

namespace tessara::test {

namespace {

struct DeleteDesk {
  ProgramState state;
  MoveButtons arrows{"cmdMove"};
  FakeCardFace card;
  FakeMessages messages;

  explicit DeleteDesk(int cards) { FillDeck(state, cards); }

  std::int16_t Delete(std::int16_t row, MessageAnswer answer) {
    messages.answers = {answer};
    state.deck.currentCard = row;
    DeleteCardRow(row, arrows, card, state, messages);
    return row;
  }
};

}  // namespace

TEST_CASE("deleting asks first and names the card in the title") {
  DeleteDesk desk(3);
  CHECK(desk.Delete(2, MessageAnswer::kNo) == 2);
  CHECK(desk.messages.shown ==
        std::vector<FakeMessages::Shown>{
            {u"Deletion is permanent, are you sure?", 4, u"Delete Card # 2"}});
  CHECK(desk.state.deck.cardCount == 3);
  CHECK(desk.state.deck.Cell(2, kCardText) == u"front 2");
  CHECK(desk.card.writes.empty());
}

TEST_CASE("any answer but No deletes") {
  for (const MessageAnswer answer : {MessageAnswer::kYes, MessageAnswer::kCancel}) {
    DeleteDesk desk(3);
    desk.Delete(2, answer);
    CHECK(desk.state.deck.cardCount == 2);
  }
}

TEST_CASE("deleting a middle card moves the later ones up under the same row") {
  DeleteDesk desk(4);
  CHECK(desk.Delete(2, MessageAnswer::kYes) == 2);
  CHECK(desk.state.deck.cardCount == 3);
  CHECK(desk.state.deck.Cell(2, kCardText) == u"front 3");
  CHECK(desk.state.deck.Cell(2, kRowNumber) == u"2");
  CHECK(desk.state.deck.Cell(3, kCardText) == u"front 4");
  CHECK(desk.state.deck.Cell(4, kCardText).empty());
  CHECK(desk.state.deck.cardPresent.At(4) == 0);
  CHECK(desk.card.CardTotal == u"3");
  CHECK(desk.card.CardNumber.empty());
  CHECK(desk.arrows[kPreviousCard].Enabled());
  CHECK(desk.arrows[kNextCard].Enabled());
}

TEST_CASE("deleting the last card lowers the row by one") {
  DeleteDesk desk(3);
  CHECK(desk.Delete(3, MessageAnswer::kYes) == 2);
  CHECK(desk.state.deck.cardCount == 2);
  CHECK(desk.state.deck.cardPresent.At(3) == 0);
  CHECK(desk.card.CardNumber == u"2");
  CHECK(desk.card.CardTotal == u"2");
}

TEST_CASE("deleting the only card leaves no cards, row 0 and both arrows off") {
  DeleteDesk desk(1);
  CHECK(desk.Delete(1, MessageAnswer::kYes) == 0);
  CHECK(desk.state.deck.cardCount == 0);
  CHECK_FALSE(desk.state.deck.HasCards());
  CHECK(desk.card.CardNumber == u"0");
  CHECK(desk.card.CardTotal == u"0");
  CHECK_FALSE(desk.arrows[kPreviousCard].Enabled());
  CHECK_FALSE(desk.arrows[kNextCard].Enabled());
}

TEST_CASE("deleting from a deck that was closed behind its builder counts below zero") {
  DeleteDesk desk(0);
  CHECK(desk.Delete(1, MessageAnswer::kYes) == 1);
  CHECK(desk.state.deck.cardCount == -1);
  CHECK(desk.card.CardTotal == u"-1");
}

TEST_CASE("deleting from a full deck leaves row 200 blank and absent") {
  for (const std::int16_t row : {std::int16_t{200}, std::int16_t{1}}) {
    DeleteDesk desk(200);
    desk.Delete(row, MessageAnswer::kYes);
    CHECK(desk.state.deck.cardCount == 199);
    CHECK(desk.state.deck.Cell(200, kCardText).empty());
    CHECK(desk.state.deck.cardPresent.At(200) == 0);
    CHECK(desk.state.deck.cardPresent.At(199) == 1);
  }
}

TEST_CASE("the arrows follow the place in the deck as the caller has it") {
  DeleteDesk desk(3);
  std::int16_t& current = desk.state.deck.currentCard;
  current = 3;
  desk.messages.answers = {MessageAnswer::kYes};
  DeleteCardRow(current, desk.arrows, desk.card, desk.state, desk.messages);
  CHECK(current == 2);
  CHECK(desk.arrows[kPreviousCard].Enabled());
  CHECK_FALSE(desk.arrows[kNextCard].Enabled());
}

TEST_CASE("deleting a row outside the table is a subscript error and changes nothing") {
  DeleteDesk desk(2);
  CHECK(ErrorOf([&] { desk.Delete(203, MessageAnswer::kYes); }) == 9);
  CHECK(desk.state.deck.cardCount == 2);
}

}  // namespace tessara::test
