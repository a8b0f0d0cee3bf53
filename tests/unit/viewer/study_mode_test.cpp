#include <doctest/doctest.h>

#include "tests/support/deck_desk.h"
#include "viewer/answer_text.h"

namespace tessara::test {

TEST_CASE("a standard deck comes up on the front of card 1") {
  DeckDesk desk;
  desk.OpenStandardDeck(3);
  CHECK(desk.deck->card.CardText() == u"front 1");
  CHECK(desk.deck->card.CardNumber() == u"1");
  CHECK(desk.deck->card.CardTotal() == u"3");
  CHECK(desk.deck->flip.Caption() == u"&Show Back");
  CHECK(desk.deck->flip.Enabled());
  CHECK_FALSE(desk.deck->answerCard.Visible());
  CHECK_FALSE(desk.deck->arrows[kPreviousCard].Enabled());
  CHECK(desk.deck->arrows[kNextCard].Enabled());
}

TEST_CASE("an extended deck comes up with the answer on show") {
  DeckDesk desk;
  desk.OpenExtendedDeck(2);
  CHECK(desk.deck->card.CardText() == u"question 1");
  CHECK(desk.deck->answer.Caption() == u"TRUE");
  CHECK(desk.deck->answerCard.Visible());
  CHECK(desk.deck->flip.Caption() == u"&Hide Answer");
  CHECK_FALSE(desk.deck->flip.Enabled());
}

TEST_CASE("paging keeps the side on show") {
  DeckDesk desk;
  desk.OpenStandardDeck(3);
  desk.deck->flip.Press();
  CHECK(desk.deck->card.CardText() == u"back 1");
  CHECK_FALSE(desk.deck->card.FrontLines());
  desk.deck->arrows[kNextCard].Press();
  CHECK(desk.deck->card.CardText() == u"back 2");
  CHECK(desk.deck->card.CardNumber() == u"2");
  desk.deck->arrows[kPreviousCard].Press();
  desk.deck->flip.Press();
  CHECK(desk.deck->card.CardText() == u"front 1");
  CHECK(desk.deck->card.FrontRule());
}

TEST_CASE("the arrows stop at both ends") {
  DeckDesk desk;
  desk.OpenStandardDeck(2);
  desk.deck->arrows[kNextCard].Press();
  CHECK_FALSE(desk.deck->arrows[kNextCard].Enabled());
  CHECK(desk.deck->arrows[kPreviousCard].Enabled());
  desk.deck->arrows[kNextCard].Press();
  CHECK(desk.state.deck.currentCard == 2);
}

TEST_CASE("one card disables both arrows") {
  DeckDesk desk;
  desk.OpenStandardDeck(1);
  CHECK_FALSE(desk.deck->arrows[kPreviousCard].Enabled());
  CHECK_FALSE(desk.deck->arrows[kNextCard].Enabled());
}

TEST_CASE("a back paged to a card with an empty back shows an empty card without decorations") {
  DeckDesk desk;
  desk.AddTextCard(u"front 1", u"back 1");
  desk.AddTextCard(u"front 2", u"");
  desk.Open(kStandardDeck);
  desk.deck->flip.Press();
  desk.deck->arrows[kNextCard].Press();
  CHECK(desk.deck->card.CardText().empty());
  CHECK_FALSE(desk.deck->card.FrontRule());
  CHECK_FALSE(desk.deck->card.FrontLines());
}

TEST_CASE("the flip button follows card 1 alone") {
  DeckDesk desk;
  desk.AddTextCard(u"", u"back 1");
  desk.AddTextCard(u"front 2", u"back 2");
  desk.Open(kStandardDeck);
  for (const auto enter :
       {&DeckWindow::EnterStudyMode, &DeckWindow::EnterQuizMode, &DeckWindow::EnterTestMode}) {
    (desk.deck.Loaded().*enter)();
    CHECK_FALSE(desk.deck->flip.Enabled());
  }
}

TEST_CASE("study entered from study returns to card 1 and to the front") {
  DeckDesk desk;
  desk.OpenStandardDeck(3);
  desk.deck->arrows[kNextCard].Press();
  desk.deck->flip.Press();
  desk.deck->study.Press();
  CHECK(desk.state.deck.currentCard == 1);
  CHECK(desk.deck->card.CardText() == u"front 1");
  CHECK(desk.deck->flip.Caption() == u"&Show Back");
}

TEST_CASE("a deck without a file is titled with two blanks and the mode") {
  DeckDesk desk;
  desk.OpenStandardDeck(1);
  desk.deck->EnterStudyMode();
  CHECK(desk.deck->Caption() == u"  [STUDY]");
  desk.state.deck.filePath = u"/decks/birds.tsr";
  desk.deck->EnterStudyMode();
  CHECK(desk.deck->Caption() == u"birds  [STUDY]");
}

TEST_CASE("ampersands are doubled on their way to the card and to the answer") {
  DeckDesk desk;
  desk.AddChoice(u"bread & butter?", {u"salt & pepper"}, u"A");
  desk.Open(kExtendedDeck);
  CHECK(desk.deck->card.CardText() == u"bread && butter?");
  CHECK(desk.deck->card.DisplayedText() == u"bread & butter?");
  CHECK(desk.deck->answer.Caption() == u"salt && pepper");
  SUBCASE("but not by a change to study mode, until the next move") {
    desk.deck->study.Press();
    CHECK(desk.deck->answer.Caption() == u"salt & pepper");
  }
}

TEST_CASE("an answer key reads as its choice or its word, exactly") {
  DeckDesk desk;
  desk.AddChoice(u"?", {u"one", u"two", u"three", u"four"}, u"A");
  struct Case {
    TextView key;
    TextView text;
    int index;
  };
  const Case cases[] = {{u"A", u"one", 0},  {u"B", u"two", 1},  {u"C", u"three", 2},
                        {u"D", u"four", 3}, {u"T", u"TRUE", 0}, {u"F", u"FALSE", 1},
                        {u"a", u"", 0},     {u"", u"", 0},      {u" A", u"", 0},
                        {u"AB", u"", 0},    {u"E", u"", 0}};
  for (const Case& c : cases) {
    CHECK(AnswerText(c.key, 1, desk.state) == c.text);
    CHECK(AnswerIndex(c.key) == c.index);
  }
}

TEST_CASE("an activation repaints the card from the table and sets the menus") {
  DeckDesk desk;
  desk.OpenStandardDeck(2);
  desk.state.deck.cardGrid.Set(1, kCardText, u"rewritten");
  desk.state.deck.saveOffered = true;
  desk.state.deck.changed = true;
  desk.deck->Hide();
  desk.deck->Show();
  CHECK(desk.deck->card.CardText() == u"rewritten");
  CHECK(desk.deck->saveDeck.Enabled());
  CHECK(desk.deck->modeMenu.Enabled());
  CHECK(desk.deck->clearDeck.Enabled());
  CHECK(desk.deck->printDeck.Enabled());
  CHECK(desk.deck->deleteCard.Enabled());
}

TEST_CASE("an activation over an empty deck turns the commands off") {
  DeckDesk desk;
  desk.Open(kStandardDeck);
  CHECK_FALSE(desk.deck->modeMenu.Enabled());
  CHECK_FALSE(desk.deck->clearDeck.Enabled());
  CHECK_FALSE(desk.deck->printDeck.Enabled());
  CHECK_FALSE(desk.deck->deleteCard.Enabled());
  CHECK_FALSE(desk.deck->arrows[kPreviousCard].Enabled());
  CHECK_FALSE(desk.deck->arrows[kNextCard].Enabled());
}

TEST_CASE("the focus is on the button that the next step needs") {
  DeckDesk desk;
  desk.OpenStandardDeck(3);
  desk.deck->arrows[kNextCard].Press();
  CHECK(desk.deck->FocusedControl() == &desk.deck->arrows[kNextCard]);
  desk.deck->arrows[kNextCard].Press();
  CHECK(desk.deck->FocusedControl() == &desk.deck->arrows[kPreviousCard]);
}

}  // namespace tessara::test
