#include <doctest/doctest.h>

#include "deck/life/deck_life.h"
#include "tests/unit/deck/life/two_files.h"

namespace tessara::test {

TEST_CASE("clearing empties the deck, its information and the window") {
  TwoFiles desk;
  desk.OpenFile(kA);
  desk.state.deck.testPoints = 2;
  desk.Clear();
  CHECK(desk.deck->Caption() == u"New Deck");
  CHECK(desk.state.deck.cardCount == 0);
  CHECK_FALSE(desk.state.deck.HasCards());
  CHECK(desk.state.deck.cardPresent.At(kInfoRow) == 0);
  CHECK(desk.state.deck.title.empty());
  CHECK(desk.state.deck.testPoints == 0);
  CHECK(desk.deck->card.CardText().empty());
  CHECK(desk.deck->card.CardTotal() == u"0");
  CHECK(desk.deck->answer.Caption().empty());
  CHECK_FALSE(desk.deck->arrows[kPreviousCard].Enabled());
  CHECK_FALSE(desk.deck->arrows[kNextCard].Enabled());
  CHECK_FALSE(desk.deck->flip.Enabled());
  for (const MenuEntry* entry : {&desk.deck->clearDeck, &desk.deck->modeMenu, &desk.deck->goToCard,
                                 &desk.deck->deleteCard, &desk.deck->printDeck}) {
    CHECK_FALSE(entry->Enabled());
  }
  CHECK(desk.File(kA) == DeckBytes(2));
}

TEST_CASE("a cleared deck has no card on show") {
  TwoFiles desk;
  desk.OpenFile(kA);
  desk.state.deck.currentCard = 2;
  desk.Clear();
  CHECK(desk.state.deck.currentCard == 0);
}

TEST_CASE("clearing leaves the focus on the card, wherever it was") {
  for (Button DeckLife::*const button : {&DeckLife::flip, &DeckLife::closeDeck}) {
    DeckDesk desk;
    desk.OpenStandardDeck(3);
    desk.deck->UserFocus(desk.deck.Loaded().*button);
    desk.deck->clearDeck.Press();
    CHECK(desk.deck->FocusedControl() == &desk.deck->card);
  }
}

TEST_CASE("making the deck anew leaves the card on show to the caller") {
  TwoFiles desk;
  desk.OpenFile(kA);
  desk.state.deck.currentCard = 2;
  desk.deck->NewTessara();
  CHECK(desk.state.deck.currentCard == 2);
}

TEST_CASE("clearing a changed deck asks first and goes on whatever the answer") {
  for (const MessageAnswer answer : {MessageAnswer::kYes, MessageAnswer::kNo}) {
    ChangedDeck desk;
    desk.Answer(answer);
    desk.Clear();
    const bool saved = answer == MessageAnswer::kYes;
    CHECK(desk.TakeBoxes() == (saved ? Boxes{kChangesBox, SavedBox(kA)} : Boxes{kChangesBox}));
    CHECK(desk.File(kA).size() == (saved ? 3 : 4) * kRecordSize);
    CHECK(desk.FlagsNow() == DeckFlags{});
  }
}

TEST_CASE("a new deck can be cleared again once the window finds cards in it") {
  TwoFiles desk;
  desk.OpenFile(kA);
  desk.Clear();
  CHECK_FALSE(desk.deck->clearDeck.Enabled());
  desk.BuildCard(u"front", u"");
  desk.deck->Hide();
  desk.deck->Show();
  CHECK(desk.deck->clearDeck.Enabled());
}

TEST_CASE("an empty deck window closes without a question") {
  for (const auto close : {&LifeDesk::Exit, &LifeDesk::Close}) {
    LifeDesk desk;
    desk.NewDeck();
    desk.state.deck.changed = true;
    (desk.*close)();
    CHECK_FALSE(desk.deck.IsLoaded());
    CHECK(desk.TakeBoxes().empty());
  }
}

TEST_CASE("a deck with cards closes after a Yes and stays after a No") {
  for (const auto close : {&LifeDesk::Exit, &LifeDesk::Close}) {
    TwoFiles desk;
    desk.OpenFile(kA);
    desk.Answer(MessageAnswer::kNo);
    (desk.*close)();
    CHECK(desk.deck.IsLoaded());
    CHECK(desk.state.deck.cardCount == 2);
    CHECK(desk.FlagsNow() == DeckFlags{kA, false, false, true});
    desk.Answer(MessageAnswer::kYes);
    (desk.*close)();
    CHECK_FALSE(desk.deck.IsLoaded());
    CHECK(desk.TakeBoxes() == Boxes{kSureBox, kSureBox});
    CHECK(desk.FlagsNow() == DeckFlags{});
    CHECK(desk.state.deck.currentCard == 0);
    CHECK(desk.state.deck.cardCount == 0);
    CHECK(desk.state.deck.testPoints == 0);
    CHECK(desk.state.deck.title.empty());
    CHECK_FALSE(desk.state.deck.HasCards());
  }
}

TEST_CASE("the close command asks about changes once and forgets them") {
  ChangedDeck desk;
  desk.Answer(MessageAnswer::kNo);
  desk.Answer(MessageAnswer::kNo);
  desk.Exit();
  CHECK(desk.TakeBoxes() == Boxes{kChangesBox, kSureBox});
  CHECK(desk.deck.IsLoaded());
  CHECK_FALSE(desk.state.deck.changed);
  CHECK(desk.state.deck.cardCount == 1);
}

TEST_CASE("the close button asks about changes, and a No keeps them flagged") {
  ChangedDeck desk;
  desk.Answer(MessageAnswer::kNo);
  desk.Answer(MessageAnswer::kYes);
  desk.Close();
  CHECK(desk.TakeBoxes() == Boxes{kChangesBox, kSureBox});
  CHECK_FALSE(desk.deck.IsLoaded());
  CHECK(desk.state.deck.changed);
}

TEST_CASE("a flag left by the close button speaks up when the next deck gets a card") {
  ChangedDeck desk;
  desk.Answer(MessageAnswer::kNo);
  desk.Answer(MessageAnswer::kYes);
  desk.Close();
  (void)desk.TakeBoxes();
  desk.NewDeck();
  desk.CheckSave();
  CHECK(desk.TakeBoxes().empty());
  desk.AddTextCard(u"front", u"");
  desk.Answer(MessageAnswer::kNo);
  desk.CheckSave();
  CHECK(desk.TakeBoxes() == Boxes{kChangesBox});
}

TEST_CASE("a save done while closing stands though the close is refused") {
  ChangedDeck desk;
  desk.Answer(MessageAnswer::kYes);
  desk.Answer(MessageAnswer::kNo);
  desk.Close();
  CHECK(desk.TakeBoxes() == Boxes{kChangesBox, SavedBox(kA), kSureBox});
  CHECK(desk.deck.IsLoaded());
  CHECK(desk.File(kA).size() == 3 * kRecordSize);
  CHECK(desk.FlagsNow() == DeckFlags{kA, false, false, true});
}

TEST_CASE("outside study mode the close command asks about changes, refuses, and forgets them") {
  for (const CardMode mode : {kQuizMode, kTestMode}) {
    ChangedDeck desk;
    desk.state.deck.mode = mode;
    desk.Answer(MessageAnswer::kNo);
    desk.Exit();
    CHECK(desk.TakeBoxes() == Boxes{kChangesBox, kQuitBox});
    CHECK(desk.deck.IsLoaded());
    CHECK_FALSE(desk.state.deck.changed);
    CHECK_FALSE(desk.state.deck.saveOffered);
    CHECK(desk.state.deck.cardCount == 1);
  }
}

TEST_CASE("outside study mode the close button refuses at once and forgets nothing") {
  ChangedDeck desk;
  desk.Run([&] { desk.deck->EnterQuizMode(); });
  desk.Close();
  CHECK(desk.TakeBoxes() == Boxes{kQuitBox});
  CHECK(desk.deck.IsLoaded());
  CHECK(desk.state.deck.changed);
}

TEST_CASE("the close command also closes the question builder") {
  for (const MessageAnswer answer : {MessageAnswer::kYes, MessageAnswer::kNo}) {
    TwoFiles desk;
    WindowSlot<Form> builder(desk.windows, [&] {
      return std::make_unique<Form>(desk.windows, "frmQuestion", FormKind::kChild, u"");
    });
    builder.Instance().EnsureLoaded();
    desk.deck->SetQuestionBuilder(builder);
    desk.OpenFile(kA);
    desk.Answer(answer);
    desk.Exit();
    CHECK_FALSE(builder.IsLoaded());
  }
}

TEST_CASE("a closed deck window comes back empty") {
  TwoFiles desk;
  desk.OpenFile(kA);
  desk.Answer(MessageAnswer::kYes);
  desk.Exit();
  desk.NewDeck();
  CHECK(desk.deck->Caption() == u"New Deck");
  CHECK(desk.deck->card.CardText().empty());
  CHECK_FALSE(desk.deck->saveDeckAs.Enabled());
  CHECK_FALSE(desk.deck->clearDeck.Enabled());
}

}  // namespace tessara::test
