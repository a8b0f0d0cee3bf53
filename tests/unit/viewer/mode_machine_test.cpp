#include <doctest/doctest.h>

#include "tests/support/deck_fixture.h"

namespace tessara::test {

namespace {

constexpr CardMode kModes[] = {kStudyMode, kQuizMode, kTestMode};

void Enter(DeckFixture& fixture, CardMode mode) {
  MenuEntry* const entries[] = {&fixture.deck->study, &fixture.deck->quiz, &fixture.deck->test};
  entries[static_cast<std::size_t>(mode)]->Press();
}

/// Leaves traces of a mode: another card or side, a banner, points.
void GoOn(DeckFixture& fixture, CardMode mode, bool extended) {
  if (mode != kTestMode) {
    fixture.deck->arrows[kNextCard].Press();
    fixture.deck->flip.Press();
  } else if (extended) {
    fixture.deck->choices[0].Press();
  } else {
    fixture.deck->flip.Press();
    fixture.deck->credits[kPartialCredit].Press();
  }
}

/// What entering a mode comes to, whatever the mode before.
struct Entry {
  bool extended;
  CardMode mode;
  bool previous, next;  ///< the arrows
  TextView title;
  TextView flip;
  bool flipEnabled;
  bool credit, choices, answer;  ///< the panels
  TextView nextStep;
  bool commands;  ///< the file and the utility menu
};

/// The answer of an extended card that a test hides keeps its caption.
constexpr TextView kAsItWas = u"as it was";

constexpr Entry kEntries[] = {
    {false, kStudyMode, false, true, u"  [STUDY]", u"&Show Back", true, false, false, false, u"",
     true},
    {false, kQuizMode, false, true, u"  [QUIZ]", u"&Show Back", true, false, false, false, u"",
     false},
    {false, kTestMode, false, false, u"  [TEST]", u"&Show Back", true, true, false, false, u"",
     false},
    {true, kStudyMode, false, true, u"  [STUDY]", u"&Hide Answer", false, false, false, true, u"",
     true},
    {true, kQuizMode, false, true, u"  [QUIZ]", u"&Show Answer", true, false, false, false, u"",
     false},
    {true, kTestMode, false, false, u"  [TEST]", kAsItWas, false, false, true, false,
     u"Next Question", false},
};

void CheckEntered(DeckFixture& fixture, const Entry& entry) {
  const DeckWindow& deck = fixture.deck.Loaded();
  CHECK(fixture.state.deck.mode == entry.mode);
  CHECK(fixture.state.deck.currentCard == 1);
  CHECK(fixture.state.deck.testPoints == 0);
  CHECK(deck.card.CardNumber() == u"1");
  CHECK(deck.card.CardText() == (entry.extended ? u"question 1" : u"front 1"));
  CHECK(deck.card.CardBanner().empty());
  CHECK(deck.card.FrontLines());
  CHECK(deck.card.FrontRule());
  CHECK(deck.Caption() == entry.title);
  CHECK(deck.study.Checked() == (entry.mode == kStudyMode));
  CHECK(deck.quiz.Checked() == (entry.mode == kQuizMode));
  CHECK(deck.test.Checked() == (entry.mode == kTestMode));
  CHECK(deck.fileMenu.Enabled() == entry.commands);
  CHECK(deck.utilityMenu.Enabled() == entry.commands);
  CHECK(deck.modeMenu.Enabled());
  CHECK(deck.helpMenu.Enabled());
  CHECK(deck.arrows[kPreviousCard].Enabled() == entry.previous);
  CHECK(deck.arrows[kNextCard].Enabled() == entry.next);
  CHECK(deck.nextOrScore.Caption() == entry.nextStep);
  if (entry.flip != kAsItWas) CHECK(deck.flip.Caption() == entry.flip);
  CHECK(deck.flip.Enabled() == entry.flipEnabled);
  CHECK(deck.closeDeck.Enabled());
  CHECK(deck.creditPanel.Visible() == entry.credit);
  CHECK(deck.choicePanel.Visible() == entry.choices);
  CHECK(deck.answerCard.Visible() == entry.answer);
}

}  // namespace

TEST_CASE("every mode can be entered from every mode, and starts over on card 1") {
  for (const Entry& entry : kEntries) {
    for (const CardMode from : kModes) {
      for (const bool afterSteps : {false, true}) {
        CAPTURE(entry.extended);
        CAPTURE(from);
        CAPTURE(entry.mode);
        CAPTURE(afterSteps);
        DeckFixture fixture;
        entry.extended ? fixture.OpenExtendedDeck(3) : fixture.OpenStandardDeck(3);
        Enter(fixture, from);
        if (afterSteps) GoOn(fixture, from, entry.extended);
        Enter(fixture, entry.mode);
        CheckEntered(fixture, entry);
        // The one button that a test does not reset: it is on after an answered question.
        const bool answered = from == kTestMode && afterSteps && entry.extended;
        const bool leftOn = answered && entry.mode == kTestMode;
        CHECK(fixture.deck->nextOrScore.Enabled() == leftOn);
      }
    }
  }
}

TEST_CASE("a change of mode leaves the deck and its flags alone") {
  for (const CardMode mode : kModes) {
    DeckFixture fixture;
    fixture.OpenStandardDeck(2);
    fixture.state.deck.filePath = u"/decks/birds.tsr";
    fixture.state.deck.changed = true;
    fixture.state.deck.saveOffered = true;
    Enter(fixture, mode);
    CHECK(fixture.state.deck.filePath == u"/decks/birds.tsr");
    CHECK(fixture.state.deck.changed);
    CHECK(fixture.state.deck.saveOffered);
    CHECK(fixture.state.deck.cardCount == 2);
    CHECK(fixture.state.deck.Cell(2, kBackText) == u"back 2");
    CHECK(fixture.deck->Caption().starts_with(u"birds  ["));
  }
}

TEST_CASE("the window can't be closed outside study, and says why") {
  for (const CardMode mode : {kQuizMode, kTestMode}) {
    DeckFixture fixture;
    fixture.OpenStandardDeck(2);
    Enter(fixture, mode);
    fixture.deck->closeDeck.Press();
    fixture.deck->UserClose();
    CHECK(fixture.deck.IsLoaded());
    CHECK(fixture.deck->Visible());
    const FakeMessages::Shown refusal = {u"Tessara must be in study mode before quiting.", 0,
                                         u"Quit"};
    CHECK(fixture.fakes.messages.shown == std::vector<FakeMessages::Shown>{refusal, refusal});
  }
}

TEST_CASE("in study the close button closes a deck after a question") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(2);
  fixture.fakes.messages.answers = {MessageAnswer::kYes};
  fixture.deck->closeDeck.Press();
  CHECK_FALSE(fixture.deck.IsLoaded());
  CHECK(fixture.state.deck.cardCount == 0);
}

TEST_CASE("an activation in a quiz or a test sets the arrows by the place in the deck") {
  for (const CardMode mode : {kQuizMode, kTestMode}) {
    DeckFixture fixture;
    fixture.OpenExtendedDeck(3);
    Enter(fixture, mode);
    fixture.deck->arrows[kNextCard].Press();
    fixture.deck->Hide();
    fixture.deck->Show();
    const bool moved = mode == kQuizMode;
    CHECK(fixture.state.deck.currentCard == (moved ? 2 : 1));
    CHECK(fixture.deck->arrows[kPreviousCard].Enabled() == moved);
    CHECK(fixture.deck->arrows[kNextCard].Enabled());
    CHECK(fixture.state.deck.mode == mode);
    CHECK_FALSE(fixture.deck->fileMenu.Enabled());
    CHECK(fixture.deck->answerCard.Visible() == false);
  }
}

}  // namespace tessara::test
