#include <doctest/doctest.h>
#include <optional>

#include "base/utf8.h"
#include "tests/support/deck_desk.h"

namespace tessara::test {

namespace {

using Shown = FakeMessages::Shown;

void Delete(DeckDesk& desk, MessageAnswer answer) {
  desk.fakes.messages.answers = {answer};
  desk.deck->deleteCard.Press();
}

/// The boxes that an answer to the question for a card number brings.
std::vector<Shown> GoTo(DeckDesk& desk, const std::optional<Text>& answer) {
  desk.fakes.dialogs.texts = {answer};
  desk.deck->AskForCard();
  return desk.fakes.messages.Take();
}

}  // namespace

TEST_CASE("a delete asks with the card's number in the title") {
  DeckDesk desk;
  desk.OpenStandardDeck(3);
  desk.deck->arrows[kNextCard].Press();
  Delete(desk, MessageAnswer::kNo);
  CHECK(desk.fakes.messages.shown ==
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
    DeckDesk desk;
    desk.OpenStandardDeck(c.cards);
    for (int card = 1; card < c.deleted; ++card) desk.deck->arrows[kNextCard].Press();
    Delete(desk, MessageAnswer::kYes);
    CHECK(desk.state.deck.currentCard == c.current);
    CHECK(desk.state.deck.cardCount == c.cards - 1);
    CHECK(desk.deck->card.CardText() == c.text);
    CHECK(desk.deck->card.CardNumber() == DecimalText(c.current));
    CHECK(desk.deck->card.CardTotal() == DecimalText(c.cards - 1));
    for (int row = 1; row < c.cards; ++row) {
      CHECK(desk.state.deck.Cell(row, kRowNumber) == DecimalText(row));
    }
    CHECK(desk.state.deck.cardPresent.At(c.cards) == 0);
  }
}

TEST_CASE("any answer to the deletion turns the save command on") {
  for (const MessageAnswer answer : {MessageAnswer::kNo, MessageAnswer::kYes}) {
    DeckDesk desk;
    desk.OpenStandardDeck(3);
    desk.deck->saveDeck.SetEnabled(false);
    Delete(desk, answer);
    CHECK(desk.state.deck.changed);
    CHECK(desk.deck->saveDeck.Enabled());
    CHECK(desk.state.deck.cardCount == (answer == MessageAnswer::kNo ? 3 : 2));
  }
}

TEST_CASE("a deck emptied card by card ends with its front on show and its commands off") {
  for (const bool extended : {false, true}) {
    DeckDesk desk;
    extended ? desk.OpenExtendedDeck(1) : desk.OpenStandardDeck(1);
    desk.deck->flip.Press();
    Delete(desk, MessageAnswer::kYes);
    CHECK(desk.deck->card.CardText().empty());
    CHECK(desk.deck->card.FrontRule());
    CHECK(desk.deck->card.FrontLines());
    CHECK(desk.deck->answer.Caption().empty());
    CHECK_FALSE(desk.deck->deleteCard.Enabled());
    CHECK_FALSE(desk.deck->goToCard.Enabled());
    CHECK_FALSE(desk.deck->printDeck.Enabled());
    CHECK_FALSE(desk.deck->flip.Enabled());
  }
}

TEST_CASE("a delete down to one card turns go-to off, and leaves printing on") {
  DeckDesk desk;
  desk.OpenStandardDeck(3);
  Delete(desk, MessageAnswer::kYes);
  CHECK(desk.deck->goToCard.Enabled());
  Delete(desk, MessageAnswer::kYes);
  CHECK_FALSE(desk.deck->goToCard.Enabled());
  CHECK(desk.deck->printDeck.Enabled());
  CHECK(desk.deck->deleteCard.Enabled());
  CHECK(desk.deck->flip.Enabled());
}

TEST_CASE("a delete shows the front under either caption, without its decorations on a back") {
  DeckDesk desk;
  desk.OpenStandardDeck(3);
  desk.deck->flip.Press();
  Delete(desk, MessageAnswer::kYes);
  CHECK(desk.deck->flip.Caption() == u"&Show Front");
  CHECK(desk.deck->card.CardText() == u"front 2");
  CHECK_FALSE(desk.deck->card.FrontLines());
  desk.deck->arrows[kNextCard].Press();
  CHECK(desk.deck->card.CardText() == u"back 3");
}

TEST_CASE("a delete in an extended deck shows the next answer, its flip button off in study only") {
  DeckDesk desk;
  desk.OpenExtendedDeck(3);
  Delete(desk, MessageAnswer::kYes);
  CHECK(desk.deck->card.CardText() == u"question 2");
  CHECK(desk.deck->answer.Caption() == u"two");
  CHECK_FALSE(desk.deck->flip.Enabled());
  desk.deck->quiz.Press();
  desk.fakes.messages.answers = {MessageAnswer::kYes};
  desk.deck->DeleteCard();
  CHECK(desk.deck->flip.Enabled());
}

TEST_CASE("a delete of the card that had the last arrow gives the focus to one that works") {
  DeckDesk desk;
  desk.OpenStandardDeck(3);
  desk.deck->arrows[kNextCard].Press();
  CHECK(desk.deck->FocusedControl() == &desk.deck->arrows[kNextCard]);
  Delete(desk, MessageAnswer::kYes);
  CHECK_FALSE(desk.deck->arrows[kNextCard].Enabled());
  CHECK(desk.deck->FocusedControl() == &desk.deck->arrows[kPreviousCard]);
}

TEST_CASE("the menus follow the number of cards") {
  for (const int cards : {0, 1, 2}) {
    DeckDesk desk;
    desk.OpenStandardDeck(cards);
    desk.deck->ShowCardBack(true);
    desk.deck->CardDel_Std();
    CHECK(desk.deck->deleteCard.Enabled() == (cards > 0));
    CHECK(desk.deck->goToCard.Enabled() == (cards > 0));
    CHECK_FALSE(desk.deck->flip.Enabled());
    CHECK(desk.deck->card.FrontLines() == (cards == 0));
    CHECK(desk.deck->card.FrontRule() == (cards == 0));
  }
}

TEST_CASE("go-to asks with the card on show as the default") {
  DeckDesk desk;
  desk.OpenStandardDeck(3);
  desk.deck->arrows[kNextCard].Press();
  GoTo(desk, std::nullopt);
  const FakeDialogs::TextRequest& request = desk.fakes.dialogs.textRequests.back();
  CHECK(request.prompt == u"Please enter a card number.");
  CHECK(request.title == u"Go To Card");
  CHECK(request.defaultText == u"2");
  CHECK(desk.state.deck.currentCard == 2);
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
    DeckDesk desk;
    desk.OpenStandardDeck(5);
    CHECK(GoTo(desk, Text(c.answer)).empty());
    CHECK(desk.state.deck.currentCard == c.card);
    CHECK(desk.deck->card.CardText() == u"front " + DecimalText(c.card));
    CHECK(desk.deck->card.CardNumber() == DecimalText(c.card));
    CHECK(desk.deck->card.CardTotal() == u"5");
    CHECK(desk.deck->arrows[kPreviousCard].Enabled() == (c.card > 1));
    CHECK(desk.deck->arrows[kNextCard].Enabled() == (c.card < 5));
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
    DeckDesk desk;
    desk.OpenStandardDeck(c.cards);
    CHECK(GoTo(desk, Text(c.answer)) == c.boxes);
    CHECK(desk.state.deck.currentCard == 1);
  }
}

TEST_CASE("a jump keeps the side on show") {
  DeckDesk standard;
  standard.OpenStandardDeck(3);
  standard.deck->flip.Press();
  GoTo(standard, u"3");
  CHECK(standard.deck->card.CardText() == u"back 3");
  CHECK(standard.deck->flip.Caption() == u"&Show Front");
  DeckDesk extended;
  extended.OpenExtendedDeck(3);
  GoTo(extended, u"2");
  CHECK(extended.deck->answer.Caption() == u"two");
  CHECK(extended.deck->answerCard.Visible());
}

TEST_CASE("a jump to an end of the deck gives the focus to the arrow that works") {
  DeckDesk desk;
  desk.OpenStandardDeck(3);
  desk.deck->arrows[kNextCard].Press();
  GoTo(desk, u"3");
  CHECK(desk.deck->FocusedControl() == &desk.deck->arrows[kPreviousCard]);
}

}  // namespace tessara::test
