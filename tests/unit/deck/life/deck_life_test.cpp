#include "deck/life/deck_life.h"

#include <doctest/doctest.h>

#include "tests/unit/deck/life/two_files.h"

namespace tessara::test {

TEST_CASE("the flags tell the states of the deck window apart") {
  struct Case {
    const char* state;
    std::function<void(LifeFixture&)> reach;
    DeckFlags flags;
  };
  const Case cases[] = {
      {"no deck window, after a close",
       [](LifeFixture& fixture) {
         fixture.OpenFile(kA);
         fixture.Answer(MessageAnswer::kYes);
         fixture.Exit();
       },
       {u"", false, false, false}},
      {"new and empty", [](LifeFixture&) {}, {u"", false, false, false}},
      {"cleared",
       [](LifeFixture& fixture) {
         fixture.OpenFile(kA);
         fixture.Clear();
       },
       {u"", false, false, false}},
      {"new with cards",
       [](LifeFixture& fixture) { fixture.BuildDeck(1); },
       {u"", true, true, false}},
      {"opened", [](LifeFixture& fixture) { fixture.OpenFile(kA); }, {kA, false, false, true}},
      {"saved for the first time",
       [](LifeFixture& fixture) {
         fixture.BuildDeck(1);
         fixture.Choose(kB);
         fixture.Save();
       },
       {kB, false, false, true}},
      {"saved again",
       [](LifeFixture& fixture) {
         fixture.OpenFile(kA);
         fixture.BuildCard(u"more", u"");
         fixture.Save();
       },
       // A builder's card offers a save, and a save that needs no name leaves the offer.
       {kA, false, true, true}},
      {"saved under a name, new",
       [](LifeFixture& fixture) {
         fixture.BuildDeck(1);
         fixture.SaveAs(kB);
       },
       {kB, false, false, false}},
      {"saved under a name, opened",
       [](LifeFixture& fixture) {
         fixture.OpenFile(kA);
         fixture.SaveAs(kB);
       },
       {kB, false, false, true}},
      {"changed by a deletion",
       [](LifeFixture& fixture) {
         fixture.OpenFile(kA);
         fixture.DeleteCard();
       },
       {kA, true, false, true}},
      {"changed by a builder",
       [](LifeFixture& fixture) {
         fixture.OpenFile(kA);
         fixture.BuildCard(u"more", u"");
       },
       {kA, true, true, true}},
  };
  for (const Case& c : cases) {
    CAPTURE(c.state);
    TwoFiles fixture;
    c.reach(fixture);
    CHECK(fixture.FlagsNow() == c.flags);
  }
}

TEST_CASE("a deck from the command line is not on file until it is saved") {
  LifeFixture fixture;
  fixture.PutDeck(kA, 2);
  fixture.OpenFromCommandLine(kA);
  CHECK(fixture.FlagsNow() == DeckFlags{kA, false, false, false});
  CHECK(fixture.deck->Caption() == u"a  [STUDY]");
  fixture.DeleteCard();
  fixture.Save();
  CHECK(fixture.FlagsNow() == DeckFlags{kA, false, false, true});
  CHECK(fixture.File(kA).size() == 4 * kRecordSize);
  fixture.Save();
  CHECK(fixture.File(kA).size() == 3 * kRecordSize);
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
    LifeFixture fixture;
    fixture.state.deck.currentCard = c.current;
    fixture.state.deck.cardCount = c.count;
    fixture.deck->UpdateMoveButtons();
    CHECK(fixture.deck->arrows[kPreviousCard].Enabled() == c.back);
    CHECK(fixture.deck->arrows[kNextCard].Enabled() == c.on);
  }
}

TEST_CASE("going to a card needs more than one") {
  LifeFixture fixture;
  for (const std::int16_t count : {std::int16_t{0}, std::int16_t{1}, std::int16_t{2}}) {
    fixture.state.deck.cardCount = count;
    fixture.deck->SetGoToMenu();
    CHECK(fixture.deck->goToCard.Enabled() == (count > 1));
  }
}

TEST_CASE("the first of two texts is taken unless it is empty") {
  CHECK(DeckLife::SaveThisorThat(u"this", u"that") == u"this");
  CHECK(DeckLife::SaveThisorThat(u"", u"that") == u"that");
  CHECK(DeckLife::SaveThisorThat(u" ", u"that") == u" ");
}

TEST_CASE("the delete command is switched on and off") {
  LifeFixture fixture;
  for (const bool on : {true, false}) {
    fixture.deck->EnableDelete(on);
    CHECK(fixture.deck->deleteCard.Enabled() == on);
  }
}

}  // namespace tessara::test
