// A deck or a text dropped on the program.

#include <doctest/doctest.h>

#include "tests/support/program_fixture.h"

namespace tessara::test {

namespace {

const Text kBirds = u"/decks/birds.tsr";
const Text kOther = u"/decks/other.tsr";
const Text kText = u"/texts/one.txt";

struct DropFixture : ProgramFixture {
  DropFixture() {
    fakes.files.Put(kBirds, DeckBytes(2));
    fakes.files.Put(kOther, DeckBytes(3));
    fakes.files.Put(kText, "STD\r\n1.\r\n*>F\r\nfront\r\n*>B\r\nback\r\n");
  }
  void Drop(const Text& path) { Frame().UserDropFile(path); }
  /// The program with nothing but its frame.
  void StartEmpty() {
    Start();
    Deck().Unload();
  }
  void Change() {
    state.deck.cardGrid.Set(1, kCardText, u"changed");
    state.deck.changed = true;
  }
};

}  // namespace

TEST_CASE("a deck dropped on the empty frame opens") {
  DropFixture fixture;
  fixture.StartEmpty();
  fixture.state.deck.cardPresent.Set(7, 1);
  fixture.state.deck.cardGrid.Set(7, kCardText, u"left over");
  fixture.Drop(kOther);
  CHECK(fixture.state.deck.Cell(7, kCardText).empty());
  CHECK(fixture.Deck().Visible());
  CHECK(fixture.Deck().Caption() == u"other  [STUDY]");
  CHECK(fixture.state.deck.filePath == kOther);
  CHECK(fixture.state.deck.cardCount == 3);
  CHECK(fixture.fakes.dialogs.fileRequests.empty());
  CHECK(fixture.fakes.messages.shown.empty());
}

TEST_CASE("a text dropped on the empty frame is imported") {
  DropFixture fixture;
  fixture.StartEmpty();
  fixture.Drop(kText);
  CHECK(fixture.Deck().card.CardText() == u"front");
  CHECK(fixture.state.deck.cardCount == 1);
  CHECK(fixture.state.deck.changed);
}

TEST_CASE("a deck dropped on a deck takes its place, and is where dialogs begin") {
  DropFixture fixture;
  fixture.Start(kBirds);
  fixture.Drop(kOther);
  CHECK(fixture.Deck().Caption() == u"other  [STUDY]");
  CHECK(fixture.Deck().card.CardTotal() == u"3");
  CHECK(fixture.state.deck.onFile);
  CHECK(fixture.state.dialogs.folderUsedLast == u"/decks");
}

TEST_CASE("a Yes before a dropped deck saves the old deck to its own file, never over it") {
  DropFixture fixture;
  fixture.Start(kBirds);
  fixture.Change();
  const std::string other = fixture.fakes.files.Bytes(kOther);
  fixture.fakes.messages.answers = {MessageAnswer::kYes};
  fixture.Drop(kOther);
  CHECK(fixture.fakes.files.Bytes(kOther) == other);
  CHECK(fixture.fakes.files.Bytes(kBirds).find("changed") != std::string::npos);
  CHECK(fixture.state.deck.filePath == kOther);
  CHECK(fixture.Deck().card.CardText() == u"front 1");
}

TEST_CASE("a No before a dropped deck leaves the old deck's file alone") {
  DropFixture fixture;
  fixture.Start(kBirds);
  fixture.Change();
  const std::string birds = fixture.fakes.files.Bytes(kBirds);
  fixture.fakes.messages.answers = {MessageAnswer::kNo};
  fixture.Drop(kOther);
  CHECK(fixture.fakes.files.Bytes(kBirds) == birds);
  CHECK(fixture.state.deck.filePath == kOther);
}

TEST_CASE("a dropped deck is refused before anything is asked, and the open one keeps its path") {
  struct Case {
    Text dropped;
    Text refusal;
  };
  const Case cases[] = {{u"/decks/other.TSR", u"This is not a valid Tessara file"},
                        {u"/elsewhere/birds.tsr", u"birds Tessara is already open"}};
  for (const Case& c : cases) {
    DropFixture fixture;
    fixture.Start(kBirds);
    fixture.Change();
    fixture.Drop(c.dropped);
    REQUIRE(fixture.fakes.messages.shown.size() == 1);
    CHECK(fixture.fakes.messages.shown[0].text == c.refusal);
    CHECK(fixture.state.deck.filePath == kBirds);
    CHECK(fixture.state.deck.Cell(1, kCardText) == u"changed");
    CHECK(fixture.state.deck.changed);
  }
}

TEST_CASE("a deck of another ending is refused on the empty frame too, before the table is empty") {
  DropFixture fixture;
  fixture.StartEmpty();
  fixture.Drop(u"/decks/birds.TSR");
  REQUIRE(fixture.fakes.messages.shown.size() == 1);
  CHECK_FALSE(fixture.program.DeckWindowOf().IsLoaded());
}

TEST_CASE("a file is taken only where its entry is on, on the bar that is on show") {
  struct Case {
    const char* front;
    bool takesDeck, takesText;
    std::function<void(DropFixture&)> bringUp;
  };
  const auto start = [](DropFixture& fixture) { fixture.Start(kBirds); };
  const Case cases[] = {
      {"empty frame", true, true, [](DropFixture& fixture) { fixture.StartEmpty(); }},
      {"empty deck", true, false, [](DropFixture& fixture) { fixture.Start(); }},
      {"deck", true, false, start},
      {"quiz", false, false,
       [&](DropFixture& fixture) {
         start(fixture);
         fixture.Deck().quiz.Press();
       }},
      {"builder", false, false,
       [&](DropFixture& fixture) {
         start(fixture);
         fixture.Deck().createOrEditCard.Press();
       }},
      {"information", false, false,
       [&](DropFixture& fixture) {
         start(fixture);
         fixture.Deck().deckInfo.Press();
       }},
  };
  for (const Case& c : cases) {
    CAPTURE(c.front);
    DropFixture fixture;
    c.bringUp(fixture);
    CHECK(fixture.Frame().TakesFile(kOther) == c.takesDeck);
    CHECK(fixture.Frame().TakesFile(u"/decks/OTHER.TSR") == c.takesDeck);
    CHECK(fixture.Frame().TakesFile(kText) == c.takesText);
    for (const char16_t* foreign : {u"/a/tsr", u"/a/picture.png", u"/a/deck.tsr.bak", u""}) {
      CHECK_FALSE(fixture.Frame().TakesFile(foreign));
    }
    const std::int16_t cards = fixture.state.deck.cardCount;
    if (!c.takesDeck) fixture.Drop(kOther);
    CHECK(fixture.state.deck.cardCount == cards);
  }
}

}  // namespace tessara::test
