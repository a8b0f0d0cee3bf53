#include <doctest/doctest.h>

#include "tests/support/deck_desk.h"
#include "viewer/answer_text.h"

namespace tessara::test {

TEST_CASE("a standard deck comes up on the front of card 1") {
  DeckDesk desk;
  desk.OpenStandardDeck(3);
  CHECK(desk.deck->NoteletCtl1.CardText() == u"front 1");
  CHECK(desk.deck->NoteletCtl1.CardNumber() == u"1");
  CHECK(desk.deck->NoteletCtl1.CardTotal() == u"3");
  CHECK(desk.deck->Command3[1].Caption() == u"&Show Back");
  CHECK(desk.deck->Command3[1].Enabled());
  CHECK_FALSE(desk.deck->Picture1.Visible());
  CHECK_FALSE(desk.deck->cmdMove[0].Enabled());
  CHECK(desk.deck->cmdMove[1].Enabled());
}

TEST_CASE("an extended deck comes up with the answer on show") {
  DeckDesk desk;
  desk.OpenExtendedDeck(2);
  CHECK(desk.deck->NoteletCtl1.CardText() == u"question 1");
  CHECK(desk.deck->Label2.Caption() == u"TRUE");
  CHECK(desk.deck->Picture1.Visible());
  CHECK(desk.deck->Command3[1].Caption() == u"&Hide Answer");
  CHECK_FALSE(desk.deck->Command3[1].Enabled());
}

TEST_CASE("paging keeps the side on show") {
  DeckDesk desk;
  desk.OpenStandardDeck(3);
  desk.deck->Command3[1].Press();
  CHECK(desk.deck->NoteletCtl1.CardText() == u"back 1");
  CHECK_FALSE(desk.deck->NoteletCtl1.FrontLines());
  desk.deck->cmdMove[1].Press();
  CHECK(desk.deck->NoteletCtl1.CardText() == u"back 2");
  CHECK(desk.deck->NoteletCtl1.CardNumber() == u"2");
  desk.deck->cmdMove[0].Press();
  desk.deck->Command3[1].Press();
  CHECK(desk.deck->NoteletCtl1.CardText() == u"front 1");
  CHECK(desk.deck->NoteletCtl1.FrontRule());
}

TEST_CASE("the arrows stop at both ends") {
  DeckDesk desk;
  desk.OpenStandardDeck(2);
  desk.deck->cmdMove[1].Press();
  CHECK_FALSE(desk.deck->cmdMove[1].Enabled());
  CHECK(desk.deck->cmdMove[0].Enabled());
  desk.deck->cmdMove[1].Press();
  CHECK(desk.state.CurrentCard == 2);
}

TEST_CASE("one card disables both arrows") {
  DeckDesk desk;
  desk.OpenStandardDeck(1);
  CHECK_FALSE(desk.deck->cmdMove[0].Enabled());
  CHECK_FALSE(desk.deck->cmdMove[1].Enabled());
}

TEST_CASE("a back paged to a card with an empty back shows an empty card without decorations") {
  DeckDesk desk;
  desk.AddTextCard(u"front 1", u"back 1");
  desk.AddTextCard(u"front 2", u"");
  desk.Open(kStandardDeck);
  desk.deck->Command3[1].Press();
  desk.deck->cmdMove[1].Press();
  CHECK(desk.deck->NoteletCtl1.CardText().empty());
  CHECK_FALSE(desk.deck->NoteletCtl1.FrontRule());
  CHECK_FALSE(desk.deck->NoteletCtl1.FrontLines());
}

TEST_CASE("the flip button follows card 1 alone") {
  DeckDesk desk;
  desk.AddTextCard(u"", u"back 1");
  desk.AddTextCard(u"front 2", u"back 2");
  desk.Open(kStandardDeck);
  for (const auto enter :
       {&frmMain::mnuStudy_Click, &frmMain::mnuQuiz_Click, &frmMain::mnuTest_Click}) {
    (desk.deck.Loaded().*enter)();
    CHECK_FALSE(desk.deck->Command3[1].Enabled());
  }
}

TEST_CASE("study entered from study returns to card 1 and to the front") {
  DeckDesk desk;
  desk.OpenStandardDeck(3);
  desk.deck->cmdMove[1].Press();
  desk.deck->Command3[1].Press();
  desk.deck->mnuStudy.Press();
  CHECK(desk.state.CurrentCard == 1);
  CHECK(desk.deck->NoteletCtl1.CardText() == u"front 1");
  CHECK(desk.deck->Command3[1].Caption() == u"&Show Back");
}

TEST_CASE("a deck without a file is titled with two blanks and the mode") {
  DeckDesk desk;
  desk.OpenStandardDeck(1);
  desk.deck->mnuStudy_Click();
  CHECK(desk.deck->Caption() == u"  [STUDY]");
  desk.state.DeckFilePath = u"/decks/birds.tsr";
  desk.deck->mnuStudy_Click();
  CHECK(desk.deck->Caption() == u"birds  [STUDY]");
}

TEST_CASE("ampersands are doubled on their way to the card and to the answer") {
  DeckDesk desk;
  desk.AddChoice(u"bread & butter?", {u"salt & pepper"}, u"A");
  desk.Open(kExtendedDeck);
  CHECK(desk.deck->NoteletCtl1.CardText() == u"bread && butter?");
  CHECK(desk.deck->NoteletCtl1.DisplayedText() == u"bread & butter?");
  CHECK(desk.deck->Label2.Caption() == u"salt && pepper");
  SUBCASE("but not by a change to study mode, until the next move") {
    desk.deck->mnuStudy.Press();
    CHECK(desk.deck->Label2.Caption() == u"salt & pepper");
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
  desk.state.CardGrid.Set(1, kCardText, u"rewritten");
  desk.state.SaveOffered = true;
  desk.state.DeckChanged = true;
  desk.deck->Hide();
  desk.deck->Show();
  CHECK(desk.deck->NoteletCtl1.CardText() == u"rewritten");
  CHECK(desk.deck->mnuSave.Enabled());
  CHECK(desk.deck->mnuMode.Enabled());
  CHECK(desk.deck->mnuNCD.Enabled());
  CHECK(desk.deck->mnuPrint.Enabled());
  CHECK(desk.deck->mnuDelete.Enabled());
}

TEST_CASE("an activation over an empty deck turns the commands off") {
  DeckDesk desk;
  desk.Open(kStandardDeck);
  CHECK_FALSE(desk.deck->mnuMode.Enabled());
  CHECK_FALSE(desk.deck->mnuNCD.Enabled());
  CHECK_FALSE(desk.deck->mnuPrint.Enabled());
  CHECK_FALSE(desk.deck->mnuDelete.Enabled());
  CHECK_FALSE(desk.deck->cmdMove[0].Enabled());
  CHECK_FALSE(desk.deck->cmdMove[1].Enabled());
}

TEST_CASE("the focus is on the button that the next step needs") {
  DeckDesk desk;
  desk.OpenStandardDeck(3);
  desk.deck->cmdMove[1].Press();
  CHECK(desk.deck->FocusedControl() == &desk.deck->cmdMove[1]);
  desk.deck->cmdMove[1].Press();
  CHECK(desk.deck->FocusedControl() == &desk.deck->cmdMove[0]);
}

}  // namespace tessara::test
