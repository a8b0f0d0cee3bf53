#include <doctest/doctest.h>

#include "deck/life/deck_life.h"
#include "tests/unit/deck/life/two_files.h"

namespace tessara::test {

TEST_CASE("clearing empties the deck, its information and the window") {
  TwoFiles fixture;
  fixture.OpenFile(kA);
  fixture.state.deck.testPoints = 2;
  fixture.Clear();
  CHECK(fixture.deck->Caption() == u"New Deck");
  CHECK(fixture.state.deck.cardCount == 0);
  CHECK_FALSE(fixture.state.deck.HasCards());
  CHECK(fixture.state.deck.cardPresent.At(kInfoRow) == 0);
  CHECK(fixture.state.deck.title.empty());
  CHECK(fixture.state.deck.testPoints == 0);
  CHECK(fixture.deck->card.CardText().empty());
  CHECK(fixture.deck->card.CardTotal() == u"0");
  CHECK(fixture.deck->answer.Caption().empty());
  CHECK_FALSE(fixture.deck->arrows[kPreviousCard].Enabled());
  CHECK_FALSE(fixture.deck->arrows[kNextCard].Enabled());
  CHECK_FALSE(fixture.deck->flip.Enabled());
  for (const MenuEntry* entry :
       {&fixture.deck->clearDeck, &fixture.deck->modeMenu, &fixture.deck->goToCard,
        &fixture.deck->deleteCard, &fixture.deck->printDeck}) {
    CHECK_FALSE(entry->Enabled());
  }
  CHECK(fixture.File(kA) == DeckBytes(2));
}

TEST_CASE("a cleared deck has no card on show") {
  TwoFiles fixture;
  fixture.OpenFile(kA);
  fixture.state.deck.currentCard = 2;
  fixture.Clear();
  CHECK(fixture.state.deck.currentCard == 0);
}

TEST_CASE("clearing leaves the focus on the card, wherever it was") {
  for (Button DeckLife::*const button : {&DeckLife::flip, &DeckLife::closeDeck}) {
    DeckFixture fixture;
    fixture.OpenStandardDeck(3);
    fixture.deck->UserFocus(fixture.deck.Loaded().*button);
    fixture.deck->clearDeck.Press();
    CHECK(fixture.deck->FocusedControl() == &fixture.deck->card);
  }
}

TEST_CASE("making the deck anew leaves the card on show to the caller") {
  TwoFiles fixture;
  fixture.OpenFile(kA);
  fixture.state.deck.currentCard = 2;
  fixture.deck->NewTessara();
  CHECK(fixture.state.deck.currentCard == 2);
}

TEST_CASE("clearing a changed deck asks first and goes on whatever the answer") {
  for (const MessageAnswer answer : {MessageAnswer::kYes, MessageAnswer::kNo}) {
    ChangedDeck fixture;
    fixture.Answer(answer);
    fixture.Clear();
    const bool saved = answer == MessageAnswer::kYes;
    CHECK(fixture.TakeBoxes() == (saved ? Boxes{kChangesBox, SavedBox(kA)} : Boxes{kChangesBox}));
    CHECK(fixture.File(kA).size() == (saved ? 3 : 4) * kRecordSize);
    CHECK(fixture.FlagsNow() == DeckFlags{});
  }
}

TEST_CASE("a new deck can be cleared again once the window finds cards in it") {
  TwoFiles fixture;
  fixture.OpenFile(kA);
  fixture.Clear();
  CHECK_FALSE(fixture.deck->clearDeck.Enabled());
  fixture.BuildCard(u"front", u"");
  fixture.deck->Hide();
  fixture.deck->Show();
  CHECK(fixture.deck->clearDeck.Enabled());
}

TEST_CASE("an empty deck window closes without a question") {
  for (const auto close : {&LifeFixture::Exit, &LifeFixture::Close}) {
    LifeFixture fixture;
    fixture.NewDeck();
    fixture.state.deck.changed = true;
    (fixture.*close)();
    CHECK_FALSE(fixture.deck.IsLoaded());
    CHECK(fixture.TakeBoxes().empty());
  }
}

TEST_CASE("a deck with cards closes after a Yes and stays after a No") {
  for (const auto close : {&LifeFixture::Exit, &LifeFixture::Close}) {
    TwoFiles fixture;
    fixture.OpenFile(kA);
    fixture.Answer(MessageAnswer::kNo);
    (fixture.*close)();
    CHECK(fixture.deck.IsLoaded());
    CHECK(fixture.state.deck.cardCount == 2);
    CHECK(fixture.FlagsNow() == DeckFlags{kA, false, false, true});
    fixture.Answer(MessageAnswer::kYes);
    (fixture.*close)();
    CHECK_FALSE(fixture.deck.IsLoaded());
    CHECK(fixture.TakeBoxes() == Boxes{kSureBox, kSureBox});
    CHECK(fixture.FlagsNow() == DeckFlags{});
    CHECK(fixture.state.deck.currentCard == 0);
    CHECK(fixture.state.deck.cardCount == 0);
    CHECK(fixture.state.deck.testPoints == 0);
    CHECK(fixture.state.deck.title.empty());
    CHECK_FALSE(fixture.state.deck.HasCards());
  }
}

TEST_CASE("the close command asks about changes once and forgets them") {
  ChangedDeck fixture;
  fixture.Answer(MessageAnswer::kNo);
  fixture.Answer(MessageAnswer::kNo);
  fixture.Exit();
  CHECK(fixture.TakeBoxes() == Boxes{kChangesBox, kSureBox});
  CHECK(fixture.deck.IsLoaded());
  CHECK_FALSE(fixture.state.deck.changed);
  CHECK(fixture.state.deck.cardCount == 1);
}

TEST_CASE("the close button asks about changes, and a No keeps them flagged") {
  ChangedDeck fixture;
  fixture.Answer(MessageAnswer::kNo);
  fixture.Answer(MessageAnswer::kYes);
  fixture.Close();
  CHECK(fixture.TakeBoxes() == Boxes{kChangesBox, kSureBox});
  CHECK_FALSE(fixture.deck.IsLoaded());
  CHECK(fixture.state.deck.changed);
}

TEST_CASE("a flag left by the close button speaks up when the next deck gets a card") {
  ChangedDeck fixture;
  fixture.Answer(MessageAnswer::kNo);
  fixture.Answer(MessageAnswer::kYes);
  fixture.Close();
  (void)fixture.TakeBoxes();
  fixture.NewDeck();
  fixture.CheckSave();
  CHECK(fixture.TakeBoxes().empty());
  fixture.AddTextCard(u"front", u"");
  fixture.Answer(MessageAnswer::kNo);
  fixture.CheckSave();
  CHECK(fixture.TakeBoxes() == Boxes{kChangesBox});
}

TEST_CASE("a save done while closing stands though the close is refused") {
  ChangedDeck fixture;
  fixture.Answer(MessageAnswer::kYes);
  fixture.Answer(MessageAnswer::kNo);
  fixture.Close();
  CHECK(fixture.TakeBoxes() == Boxes{kChangesBox, SavedBox(kA), kSureBox});
  CHECK(fixture.deck.IsLoaded());
  CHECK(fixture.File(kA).size() == 3 * kRecordSize);
  CHECK(fixture.FlagsNow() == DeckFlags{kA, false, false, true});
}

TEST_CASE("outside study mode the close command asks about changes, refuses, and forgets them") {
  for (const CardMode mode : {kQuizMode, kTestMode}) {
    ChangedDeck fixture;
    fixture.state.deck.mode = mode;
    fixture.Answer(MessageAnswer::kNo);
    fixture.Exit();
    CHECK(fixture.TakeBoxes() == Boxes{kChangesBox, kQuitBox});
    CHECK(fixture.deck.IsLoaded());
    CHECK_FALSE(fixture.state.deck.changed);
    CHECK_FALSE(fixture.state.deck.saveOffered);
    CHECK(fixture.state.deck.cardCount == 1);
  }
}

TEST_CASE("outside study mode the close button refuses at once and forgets nothing") {
  ChangedDeck fixture;
  fixture.Run([&] { fixture.deck->EnterQuizMode(); });
  fixture.Close();
  CHECK(fixture.TakeBoxes() == Boxes{kQuitBox});
  CHECK(fixture.deck.IsLoaded());
  CHECK(fixture.state.deck.changed);
}

TEST_CASE("the close command also closes the question builder") {
  for (const MessageAnswer answer : {MessageAnswer::kYes, MessageAnswer::kNo}) {
    TwoFiles fixture;
    WindowSlot<Form> builder(fixture.windows, [&] {
      return std::make_unique<Form>(fixture.windows, "frmQuestion", FormKind::kChild, u"");
    });
    builder.Instance().EnsureLoaded();
    fixture.deck->SetQuestionBuilder(builder);
    fixture.OpenFile(kA);
    fixture.Answer(answer);
    fixture.Exit();
    CHECK_FALSE(builder.IsLoaded());
  }
}

TEST_CASE("a closed deck window comes back empty") {
  TwoFiles fixture;
  fixture.OpenFile(kA);
  fixture.Answer(MessageAnswer::kYes);
  fixture.Exit();
  fixture.NewDeck();
  CHECK(fixture.deck->Caption() == u"New Deck");
  CHECK(fixture.deck->card.CardText().empty());
  CHECK_FALSE(fixture.deck->saveDeckAs.Enabled());
  CHECK_FALSE(fixture.deck->clearDeck.Enabled());
}

}  // namespace tessara::test
