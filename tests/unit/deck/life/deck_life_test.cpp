#include "deck/life/deck_life.h"

#include <doctest/doctest.h>

#include "tests/unit/deck/life/two_files.h"

namespace tessara::test {

TEST_CASE("the flags tell the states of the deck window apart") {
  struct Case {
    const char* state;
    std::function<void(LifeDesk&)> reach;
    DeckFlags flags;
  };
  const Case cases[] = {
      {"no deck window, after a close",
       [](LifeDesk& desk) {
         desk.OpenFile(kA);
         desk.Answer(MessageAnswer::kYes);
         desk.Exit();
       },
       {u"", false, false, false}},
      {"new and empty", [](LifeDesk&) {}, {u"", false, false, false}},
      {"cleared",
       [](LifeDesk& desk) {
         desk.OpenFile(kA);
         desk.Clear();
       },
       {u"", false, false, false}},
      {"new with cards", [](LifeDesk& desk) { desk.BuildDeck(1); }, {u"", true, true, false}},
      {"opened", [](LifeDesk& desk) { desk.OpenFile(kA); }, {kA, false, false, true}},
      {"saved for the first time",
       [](LifeDesk& desk) {
         desk.BuildDeck(1);
         desk.Choose(kB);
         desk.Save();
       },
       {kB, false, false, true}},
      {"saved again",
       [](LifeDesk& desk) {
         desk.OpenFile(kA);
         desk.BuildCard(u"more", u"");
         desk.Save();
       },
       // A builder's card offers a save, and a save that needs no name leaves the offer.
       {kA, false, true, true}},
      {"saved under a name, new",
       [](LifeDesk& desk) {
         desk.BuildDeck(1);
         desk.SaveAs(kB);
       },
       {kB, false, false, false}},
      {"saved under a name, opened",
       [](LifeDesk& desk) {
         desk.OpenFile(kA);
         desk.SaveAs(kB);
       },
       {kB, false, false, true}},
      {"changed by a deletion",
       [](LifeDesk& desk) {
         desk.OpenFile(kA);
         desk.DeleteCard();
       },
       {kA, true, false, true}},
      {"changed by a builder",
       [](LifeDesk& desk) {
         desk.OpenFile(kA);
         desk.BuildCard(u"more", u"");
       },
       {kA, true, true, true}},
  };
  for (const Case& c : cases) {
    CAPTURE(c.state);
    TwoFiles desk;
    c.reach(desk);
    CHECK(desk.FlagsNow() == c.flags);
  }
}

TEST_CASE("a deck from the command line is not on file until it is saved") {
  LifeDesk desk;
  desk.PutDeck(kA, 2);
  desk.OpenFromCommandLine(kA);
  CHECK(desk.FlagsNow() == DeckFlags{kA, false, false, false});
  CHECK(desk.deck->Caption() == u"a  [STUDY]");
  desk.DeleteCard();
  desk.Save();
  CHECK(desk.FlagsNow() == DeckFlags{kA, false, false, true});
  CHECK(desk.File(kA).size() == 4 * kRecordSize);
  desk.Save();
  CHECK(desk.File(kA).size() == 3 * kRecordSize);
}

TEST_CASE("the arrows of the deck window look at the ends of the deck") {
  struct Case {
    std::int16_t current;
    std::int16_t count;
    bool back;
    bool on;
  };
  const Case cases[] = {{1, 0, false, false}, {1, 1, false, false}, {1, 2, false, true},
                        {2, 2, true, false},  {0, 2, true, true},   {3, 2, true, true}};
  for (const Case& c : cases) {
    LifeDesk desk;
    desk.state.deck.currentCard = c.current;
    desk.state.deck.cardCount = c.count;
    desk.deck->UpdateMoveButtons();
    CHECK(desk.deck->arrows[kPreviousCard].Enabled() == c.back);
    CHECK(desk.deck->arrows[kNextCard].Enabled() == c.on);
  }
}

TEST_CASE("going to a card needs more than one") {
  LifeDesk desk;
  for (const std::int16_t count : {std::int16_t{0}, std::int16_t{1}, std::int16_t{2}}) {
    desk.state.deck.cardCount = count;
    desk.deck->SetGoToMenu();
    CHECK(desk.deck->goToCard.Enabled() == (count > 1));
  }
}

TEST_CASE("the first of two texts is taken unless it is empty") {
  CHECK(DeckLife::SaveThisorThat(u"this", u"that") == u"this");
  CHECK(DeckLife::SaveThisorThat(u"", u"that") == u"that");
  CHECK(DeckLife::SaveThisorThat(u" ", u"that") == u" ");
}

TEST_CASE("the delete command is switched on and off") {
  LifeDesk desk;
  for (const bool on : {true, false}) {
    desk.deck->MenuOp(on);
    CHECK(desk.deck->deleteCard.Enabled() == on);
  }
}

}  // namespace tessara::test
