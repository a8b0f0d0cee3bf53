#include <doctest/doctest.h>

#include "tests/support/deck_fixture.h"
#include "viewer/answer_text.h"

namespace tessara::test {

TEST_CASE("a standard deck comes up on the front of card 1") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(3);
  CHECK(fixture.deck->card.CardText() == u"front 1");
  CHECK(fixture.deck->card.CardNumber() == u"1");
  CHECK(fixture.deck->card.CardTotal() == u"3");
  CHECK(fixture.deck->flip.Caption() == u"&Show Back");
  CHECK(fixture.deck->flip.Enabled());
  CHECK_FALSE(fixture.deck->answerCard.Visible());
  CHECK_FALSE(fixture.deck->arrows[kPreviousCard].Enabled());
  CHECK(fixture.deck->arrows[kNextCard].Enabled());
}

TEST_CASE("an extended deck comes up with the answer on show") {
  DeckFixture fixture;
  fixture.OpenExtendedDeck(2);
  CHECK(fixture.deck->card.CardText() == u"question 1");
  CHECK(fixture.deck->answer.Caption() == u"TRUE");
  CHECK(fixture.deck->answerCard.Visible());
  CHECK(fixture.deck->flip.Caption() == u"&Hide Answer");
  CHECK_FALSE(fixture.deck->flip.Enabled());
}

TEST_CASE("paging keeps the side on show") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(3);
  fixture.deck->flip.Press();
  CHECK(fixture.deck->card.CardText() == u"back 1");
  CHECK_FALSE(fixture.deck->card.FrontLines());
  fixture.deck->arrows[kNextCard].Press();
  CHECK(fixture.deck->card.CardText() == u"back 2");
  CHECK(fixture.deck->card.CardNumber() == u"2");
  fixture.deck->arrows[kPreviousCard].Press();
  fixture.deck->flip.Press();
  CHECK(fixture.deck->card.CardText() == u"front 1");
  CHECK(fixture.deck->card.FrontRule());
}

TEST_CASE("the arrows stop at both ends") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(2);
  fixture.deck->arrows[kNextCard].Press();
  CHECK_FALSE(fixture.deck->arrows[kNextCard].Enabled());
  CHECK(fixture.deck->arrows[kPreviousCard].Enabled());
  fixture.deck->arrows[kNextCard].Press();
  CHECK(fixture.state.deck.currentCard == 2);
}

TEST_CASE("one card disables both arrows") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(1);
  CHECK_FALSE(fixture.deck->arrows[kPreviousCard].Enabled());
  CHECK_FALSE(fixture.deck->arrows[kNextCard].Enabled());
}

TEST_CASE("a back paged to a card with an empty back shows an empty card without decorations") {
  DeckFixture fixture;
  fixture.AddTextCard(u"front 1", u"back 1");
  fixture.AddTextCard(u"front 2", u"");
  fixture.Open(kStandardDeck);
  fixture.deck->flip.Press();
  fixture.deck->arrows[kNextCard].Press();
  CHECK(fixture.deck->card.CardText().empty());
  CHECK_FALSE(fixture.deck->card.FrontRule());
  CHECK_FALSE(fixture.deck->card.FrontLines());
}

TEST_CASE("the flip button follows card 1 alone") {
  DeckFixture fixture;
  fixture.AddTextCard(u"", u"back 1");
  fixture.AddTextCard(u"front 2", u"back 2");
  fixture.Open(kStandardDeck);
  for (const auto enter :
       {&DeckWindow::EnterStudyMode, &DeckWindow::EnterQuizMode, &DeckWindow::EnterTestMode}) {
    (fixture.deck.Loaded().*enter)();
    CHECK_FALSE(fixture.deck->flip.Enabled());
  }
}

TEST_CASE("study entered from study returns to card 1 and to the front") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(3);
  fixture.deck->arrows[kNextCard].Press();
  fixture.deck->flip.Press();
  fixture.deck->study.Press();
  CHECK(fixture.state.deck.currentCard == 1);
  CHECK(fixture.deck->card.CardText() == u"front 1");
  CHECK(fixture.deck->flip.Caption() == u"&Show Back");
}

TEST_CASE("a deck without a file is titled with two blanks and the mode") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(1);
  fixture.deck->EnterStudyMode();
  CHECK(fixture.deck->Caption() == u"  [STUDY]");
  fixture.state.deck.filePath = u"/decks/birds.tsr";
  fixture.deck->EnterStudyMode();
  CHECK(fixture.deck->Caption() == u"birds  [STUDY]");
}

TEST_CASE("ampersands are doubled on their way to the card and to the answer") {
  DeckFixture fixture;
  fixture.AddChoice(u"bread & butter?", {u"salt & pepper"}, u"A");
  fixture.Open(kExtendedDeck);
  CHECK(fixture.deck->card.CardText() == u"bread && butter?");
  CHECK(fixture.deck->card.DisplayedText() == u"bread & butter?");
  CHECK(fixture.deck->answer.Caption() == u"salt && pepper");
  SUBCASE("but not by a change to study mode, until the next move") {
    fixture.deck->study.Press();
    CHECK(fixture.deck->answer.Caption() == u"salt & pepper");
  }
}

TEST_CASE("an answer key reads as its choice or its word, exactly") {
  DeckFixture fixture;
  fixture.AddChoice(u"?", {u"one", u"two", u"three", u"four"}, u"A");
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
    CHECK(AnswerText(c.key, 1, fixture.state) == c.text);
    CHECK(AnswerIndex(c.key) == c.index);
  }
}

TEST_CASE("an activation repaints the card from the table and sets the menus") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(2);
  fixture.state.deck.cardGrid.Set(1, kCardText, u"rewritten");
  fixture.state.deck.saveOffered = true;
  fixture.state.deck.changed = true;
  fixture.deck->Hide();
  fixture.deck->Show();
  CHECK(fixture.deck->card.CardText() == u"rewritten");
  CHECK(fixture.deck->saveDeck.Enabled());
  CHECK(fixture.deck->modeMenu.Enabled());
  CHECK(fixture.deck->clearDeck.Enabled());
  CHECK(fixture.deck->printDeck.Enabled());
  CHECK(fixture.deck->deleteCard.Enabled());
}

TEST_CASE("an activation over an empty deck turns the commands off") {
  DeckFixture fixture;
  fixture.Open(kStandardDeck);
  CHECK_FALSE(fixture.deck->modeMenu.Enabled());
  CHECK_FALSE(fixture.deck->clearDeck.Enabled());
  CHECK_FALSE(fixture.deck->printDeck.Enabled());
  CHECK_FALSE(fixture.deck->deleteCard.Enabled());
  CHECK_FALSE(fixture.deck->arrows[kPreviousCard].Enabled());
  CHECK_FALSE(fixture.deck->arrows[kNextCard].Enabled());
}

TEST_CASE("the focus is on the button that the next step needs") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(3);
  fixture.deck->arrows[kNextCard].Press();
  CHECK(fixture.deck->FocusedControl() == &fixture.deck->arrows[kNextCard]);
  fixture.deck->arrows[kNextCard].Press();
  CHECK(fixture.deck->FocusedControl() == &fixture.deck->arrows[kPreviousCard]);
}

}  // namespace tessara::test
