#include <doctest/doctest.h>
#include <optional>

#include "base/utf8.h"
#include "tests/support/deck_fixture.h"

namespace tessara::test {

namespace {

using Shown = FakeMessages::Shown;

void Delete(DeckFixture& fixture, MessageAnswer answer) {
  fixture.fakes.messages.answers = {answer};
  fixture.deck->deleteCard.Press();
}

/// The boxes that an answer to the question for a card number brings.
std::vector<Shown> GoTo(DeckFixture& fixture, const std::optional<Text>& answer) {
  fixture.fakes.dialogs.texts = {answer};
  fixture.deck->AskForCard();
  return fixture.fakes.messages.Take();
}

}  // namespace

TEST_CASE("a delete asks with the card's number in the title") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(3);
  fixture.deck->arrows[kNextCard].Press();
  Delete(fixture, MessageAnswer::kNo);
  CHECK(fixture.fakes.messages.shown ==
        std::vector<Shown>{{u"Deletion is permanent, are you sure?", 4, u"Delete Card # 2"}});
}

TEST_CASE("a delete shows the card that took the place, or the new last one") {
  struct Case {
    int cards;
    int deleted;
    int current;
    TextView text;
  };
  const Case cases[] = {
      {3, 1, 1, u"front 2"}, {3, 2, 2, u"front 3"}, {3, 3, 2, u"front 2"}, {1, 1, 0, u""}};
  for (const Case& c : cases) {
    CAPTURE(c.deleted);
    DeckFixture fixture;
    fixture.OpenStandardDeck(c.cards);
    for (int card = 1; card < c.deleted; ++card) fixture.deck->arrows[kNextCard].Press();
    Delete(fixture, MessageAnswer::kYes);
    CHECK(fixture.state.deck.currentCard == c.current);
    CHECK(fixture.state.deck.cardCount == c.cards - 1);
    CHECK(fixture.deck->card.CardText() == c.text);
    CHECK(fixture.deck->card.CardNumber() == DecimalText(c.current));
    CHECK(fixture.deck->card.CardTotal() == DecimalText(c.cards - 1));
    for (int row = 1; row < c.cards; ++row) {
      CHECK(fixture.state.deck.Cell(row, kRowNumber) == DecimalText(row));
    }
    CHECK(fixture.state.deck.cardPresent.At(c.cards) == 0);
  }
}

TEST_CASE("any answer to the deletion turns the save command on") {
  for (const MessageAnswer answer : {MessageAnswer::kNo, MessageAnswer::kYes}) {
    DeckFixture fixture;
    fixture.OpenStandardDeck(3);
    fixture.deck->saveDeck.SetEnabled(false);
    Delete(fixture, answer);
    CHECK(fixture.state.deck.changed);
    CHECK(fixture.deck->saveDeck.Enabled());
    CHECK(fixture.state.deck.cardCount == (answer == MessageAnswer::kNo ? 3 : 2));
  }
}

TEST_CASE("a deck emptied card by card ends with its front on show and its commands off") {
  for (const bool extended : {false, true}) {
    DeckFixture fixture;
    extended ? fixture.OpenExtendedDeck(1) : fixture.OpenStandardDeck(1);
    fixture.deck->flip.Press();
    Delete(fixture, MessageAnswer::kYes);
    CHECK(fixture.deck->card.CardText().empty());
    CHECK(fixture.deck->card.FrontRule());
    CHECK(fixture.deck->card.FrontLines());
    CHECK(fixture.deck->answer.Caption().empty());
    CHECK_FALSE(fixture.deck->deleteCard.Enabled());
    CHECK_FALSE(fixture.deck->goToCard.Enabled());
    CHECK_FALSE(fixture.deck->printDeck.Enabled());
    CHECK_FALSE(fixture.deck->flip.Enabled());
  }
}

TEST_CASE("a delete down to one card turns go-to off, and leaves printing on") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(3);
  Delete(fixture, MessageAnswer::kYes);
  CHECK(fixture.deck->goToCard.Enabled());
  Delete(fixture, MessageAnswer::kYes);
  CHECK_FALSE(fixture.deck->goToCard.Enabled());
  CHECK(fixture.deck->printDeck.Enabled());
  CHECK(fixture.deck->deleteCard.Enabled());
  CHECK(fixture.deck->flip.Enabled());
}

TEST_CASE("a delete shows the front under either caption, without its decorations on a back") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(3);
  fixture.deck->flip.Press();
  Delete(fixture, MessageAnswer::kYes);
  CHECK(fixture.deck->flip.Caption() == u"&Show Front");
  CHECK(fixture.deck->card.CardText() == u"front 2");
  CHECK_FALSE(fixture.deck->card.FrontLines());
  fixture.deck->arrows[kNextCard].Press();
  CHECK(fixture.deck->card.CardText() == u"back 3");
}

TEST_CASE("a delete in an extended deck shows the next answer, its flip button off in study only") {
  DeckFixture fixture;
  fixture.OpenExtendedDeck(3);
  Delete(fixture, MessageAnswer::kYes);
  CHECK(fixture.deck->card.CardText() == u"question 2");
  CHECK(fixture.deck->answer.Caption() == u"two");
  CHECK_FALSE(fixture.deck->flip.Enabled());
  fixture.deck->quiz.Press();
  fixture.fakes.messages.answers = {MessageAnswer::kYes};
  fixture.deck->DeleteCard();
  CHECK(fixture.deck->flip.Enabled());
}

TEST_CASE("a delete of the card that had the last arrow gives the focus to one that works") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(3);
  fixture.deck->arrows[kNextCard].Press();
  CHECK(fixture.deck->FocusedControl() == &fixture.deck->arrows[kNextCard]);
  Delete(fixture, MessageAnswer::kYes);
  CHECK_FALSE(fixture.deck->arrows[kNextCard].Enabled());
  CHECK(fixture.deck->FocusedControl() == &fixture.deck->arrows[kPreviousCard]);
}

TEST_CASE("the menus follow the number of cards") {
  for (const int cards : {0, 1, 2}) {
    DeckFixture fixture;
    fixture.OpenStandardDeck(cards);
    fixture.deck->ShowCardBack(true);
    fixture.deck->FollowCardCount();
    CHECK(fixture.deck->deleteCard.Enabled() == (cards > 0));
    CHECK(fixture.deck->goToCard.Enabled() == (cards > 0));
    CHECK_FALSE(fixture.deck->flip.Enabled());
    CHECK(fixture.deck->card.FrontLines() == (cards == 0));
    CHECK(fixture.deck->card.FrontRule() == (cards == 0));
  }
}

TEST_CASE("go-to asks with the card on show as the default") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(3);
  fixture.deck->arrows[kNextCard].Press();
  GoTo(fixture, std::nullopt);
  const FakeDialogs::TextRequest& request = fixture.fakes.dialogs.textRequests.back();
  CHECK(request.prompt == u"Please enter a card number.");
  CHECK(request.title == u"Go To Card");
  CHECK(request.defaultText == u"2");
  CHECK(fixture.state.deck.currentCard == 2);
}

TEST_CASE("go-to reads any number that a 16-bit integer can be made of") {
  struct Case {
    TextView answer;
    int card;
  };
  const Case cases[] = {{u"1", 1},   {u"5", 5},    {u" 4", 4},    {u"2.5", 2},  {u"3.5", 4},
                        {u"2.4", 2}, {u"0.51", 1}, {u"30e-1", 3}, {u"4D0", 4},  {u"&H5", 5},
                        {u"&O4", 4}, {u"+2", 2},   {u"5.49", 5},  {u".5E1", 5}, {u"4.0", 4}};
  for (const Case& c : cases) {
    CAPTURE(ToUtf8(c.answer));
    DeckFixture fixture;
    fixture.OpenStandardDeck(5);
    CHECK(GoTo(fixture, Text(c.answer)).empty());
    CHECK(fixture.state.deck.currentCard == c.card);
    CHECK(fixture.deck->card.CardText() == u"front " + DecimalText(c.card));
    CHECK(fixture.deck->card.CardNumber() == DecimalText(c.card));
    CHECK(fixture.deck->card.CardTotal() == u"5");
    CHECK(fixture.deck->arrows[kPreviousCard].Enabled() == (c.card > 1));
    CHECK(fixture.deck->arrows[kNextCard].Enabled() == (c.card < 5));
  }
}

TEST_CASE("go-to answers what is no card of the deck with a box, or with nothing") {
  struct Case {
    int cards;
    TextView answer;
    std::vector<Shown> boxes;
  };
  const Case cases[] = {
      {1,
       u"9",
       {{u"Card # 9 does not exist there is only 1 card in this deck. Please try again", 16,
         u"Go To card # 9"}}},
      {3,
       u"4",
       {{u"Card # 4 does not exist there are only 3 cards in this deck. Please try again", 16,
         u"Go To card # 4"}}},
      {3,
       u" 7",
       {{u"Card #  7 does not exist there are only 3 cards in this deck. Please try "
         u"again",
         16, u"Go To card #  7"}}},
      {3,
       u"3.51",
       {{u"Card # 3.51 does not exist there are only 3 cards in this deck. Please try "
         u"again",
         16, u"Go To card # 3.51"}}},
      {0, u"1", {}},
      {3, u"0", {{u"0 is not a valid card number.", 16, u"Invalid Entry"}}},
      {3, u"-3", {{u"-3 is not a valid card number.", 16, u"Invalid Entry"}}},
      {3, u"0.5", {{u"0.5 is not a valid card number.", 16, u"Invalid Entry"}}},
      {3, u"&HFFFF", {{u"&HFFFF is not a valid card number.", 16, u"Invalid Entry"}}},
      {3, u"abc", {{u"Please enter numbers only!!!", 16, u"Invalid Entry"}}},
      {3, u"2x", {{u"Please enter numbers only!!!", 16, u"Invalid Entry"}}},
      {3, u" ", {{u"Please enter numbers only!!!", 16, u"Invalid Entry"}}},
      {3, u"1,000", {{u"Please enter numbers only!!!", 16, u"Invalid Entry"}}},
      {3, u"99999", {}},
      {3, u"32768", {}},
      {3, u"-32769", {}},
      {3, u"1e9", {}},
      {3, u"", {}},
  };
  for (const Case& c : cases) {
    CAPTURE(ToUtf8(c.answer));
    DeckFixture fixture;
    fixture.OpenStandardDeck(c.cards);
    CHECK(GoTo(fixture, Text(c.answer)) == c.boxes);
    CHECK(fixture.state.deck.currentCard == 1);
  }
}

TEST_CASE("a jump keeps the side on show") {
  DeckFixture standard;
  standard.OpenStandardDeck(3);
  standard.deck->flip.Press();
  GoTo(standard, u"3");
  CHECK(standard.deck->card.CardText() == u"back 3");
  CHECK(standard.deck->flip.Caption() == u"&Show Front");
  DeckFixture extended;
  extended.OpenExtendedDeck(3);
  GoTo(extended, u"2");
  CHECK(extended.deck->answer.Caption() == u"two");
  CHECK(extended.deck->answerCard.Visible());
}

TEST_CASE("a jump to an end of the deck gives the focus to the arrow that works") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(3);
  fixture.deck->arrows[kNextCard].Press();
  GoTo(fixture, u"3");
  CHECK(fixture.deck->FocusedControl() == &fixture.deck->arrows[kPreviousCard]);
}

}  // namespace tessara::test
