#include <doctest/doctest.h>

#include "tests/support/deck_desk.h"

namespace tessara::test {

namespace {

constexpr std::int32_t kModes[] = {kStudyMode, kQuizMode, kTestMode};

void Enter(DeckDesk& desk, std::int32_t mode) {
  MenuEntry* const entries[] = {&desk.deck->mnuStudy, &desk.deck->mnuQuiz, &desk.deck->mnuTest};
  entries[mode]->Press();
}

/// Leaves traces of a mode: another card or side, a banner, points.
void GoOn(DeckDesk& desk, std::int32_t mode, bool extended) {
  if (mode != kTestMode) {
    desk.deck->cmdMove[1].Press();
    desk.deck->Command3[1].Press();
  } else if (extended) {
    desk.deck->Option1[0].Press();
  } else {
    desk.deck->Command3[1].Press();
    desk.deck->Command1[2].Press();
  }
}

/// What entering a mode comes to, whatever the mode before.
struct Entry {
  bool extended;
  std::int32_t mode;
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

void CheckEntered(DeckDesk& desk, const Entry& entry) {
  const frmMain& deck = desk.deck.Loaded();
  CHECK(desk.state.CardMode == entry.mode);
  CHECK(desk.state.CurrentCard == 1);
  CHECK(desk.state.TestPoints == 0);
  CHECK(deck.NoteletCtl1.CardNumber() == u"1");
  CHECK(deck.NoteletCtl1.CardText() == (entry.extended ? u"question 1" : u"front 1"));
  CHECK(deck.NoteletCtl1.CardBanner().empty());
  CHECK(deck.NoteletCtl1.FrontLines());
  CHECK(deck.NoteletCtl1.FrontRule());
  CHECK(deck.Caption() == entry.title);
  CHECK(deck.mnuStudy.Checked() == (entry.mode == kStudyMode));
  CHECK(deck.mnuQuiz.Checked() == (entry.mode == kQuizMode));
  CHECK(deck.mnuTest.Checked() == (entry.mode == kTestMode));
  CHECK(deck.mnuFile.Enabled() == entry.commands);
  CHECK(deck.mnuUtility.Enabled() == entry.commands);
  CHECK(deck.mnuMode.Enabled());
  CHECK(deck.mnuHelp.Enabled());
  CHECK(deck.cmdMove[0].Enabled() == entry.previous);
  CHECK(deck.cmdMove[1].Enabled() == entry.next);
  CHECK(deck.Command3[0].Caption() == entry.nextStep);
  if (entry.flip != kAsItWas) CHECK(deck.Command3[1].Caption() == entry.flip);
  CHECK(deck.Command3[1].Enabled() == entry.flipEnabled);
  CHECK(deck.Command3[2].Enabled());
  CHECK(deck.Frame1.Visible() == entry.credit);
  CHECK(deck.Frame2.Visible() == entry.choices);
  CHECK(deck.Picture1.Visible() == entry.answer);
}

}  // namespace

TEST_CASE("every mode can be entered from every mode, and starts over on card 1") {
  for (const Entry& entry : kEntries) {
    for (const std::int32_t from : kModes) {
      for (const bool afterSteps : {false, true}) {
        CAPTURE(entry.extended);
        CAPTURE(from);
        CAPTURE(entry.mode);
        CAPTURE(afterSteps);
        DeckDesk desk;
        entry.extended ? desk.OpenExtendedDeck(3) : desk.OpenStandardDeck(3);
        Enter(desk, from);
        if (afterSteps) GoOn(desk, from, entry.extended);
        Enter(desk, entry.mode);
        CheckEntered(desk, entry);
        // The one button that a test does not reset: it is on after an answered question.
        const bool answered = from == kTestMode && afterSteps && entry.extended;
        const bool leftOn = answered && entry.mode == kTestMode;
        CHECK(desk.deck->Command3[0].Enabled() == leftOn);
      }
    }
  }
}

TEST_CASE("a change of mode leaves the deck and its flags alone") {
  for (const std::int32_t mode : kModes) {
    DeckDesk desk;
    desk.OpenStandardDeck(2);
    desk.state.DeckFilePath = u"/decks/birds.tsr";
    desk.state.DeckChanged = true;
    desk.state.SaveOffered = true;
    Enter(desk, mode);
    CHECK(desk.state.DeckFilePath == u"/decks/birds.tsr");
    CHECK(desk.state.DeckChanged);
    CHECK(desk.state.SaveOffered);
    CHECK(desk.state.CardCount == 2);
    CHECK(desk.state.Cell(2, kBackText) == u"back 2");
    CHECK(desk.deck->Caption().starts_with(u"birds  ["));
  }
}

TEST_CASE("the window can't be closed outside study, and says why") {
  for (const std::int32_t mode : {kQuizMode, kTestMode}) {
    DeckDesk desk;
    desk.OpenStandardDeck(2);
    Enter(desk, mode);
    desk.deck->Command3[2].Press();
    desk.deck->UserClose();
    CHECK(desk.deck.IsLoaded());
    CHECK(desk.deck->Visible());
    const FakeMessages::Shown refusal = {u"Tessara must be in study mode before quiting.", 0,
                                         u"Quit"};
    CHECK(desk.fakes.messages.shown == std::vector<FakeMessages::Shown>{refusal, refusal});
  }
}

TEST_CASE("in study the close button closes a deck after a question") {
  DeckDesk desk;
  desk.OpenStandardDeck(2);
  desk.fakes.messages.answers = {MessageAnswer::kYes};
  desk.deck->Command3[2].Press();
  CHECK_FALSE(desk.deck.IsLoaded());
  CHECK(desk.state.CardCount == 0);
}

TEST_CASE("an activation in a quiz or a test sets the arrows by the place in the deck") {
  for (const std::int32_t mode : {kQuizMode, kTestMode}) {
    DeckDesk desk;
    desk.OpenExtendedDeck(3);
    Enter(desk, mode);
    desk.deck->cmdMove[1].Press();
    desk.deck->Hide();
    desk.deck->Show();
    const bool moved = mode == kQuizMode;
    CHECK(desk.state.CurrentCard == (moved ? 2 : 1));
    CHECK(desk.deck->cmdMove[0].Enabled() == moved);
    CHECK(desk.deck->cmdMove[1].Enabled());
    CHECK(desk.state.CardMode == mode);
    CHECK_FALSE(desk.deck->mnuFile.Enabled());
    CHECK(desk.deck->Picture1.Visible() == false);
  }
}

}  // namespace tessara::test
