// A deck or a text dropped on the program.

#include <doctest/doctest.h>

#include "tests/support/program_desk.h"

namespace tessara::test {

namespace {

const Text kBirds = u"/decks/birds.tsr";
const Text kOther = u"/decks/other.tsr";
const Text kText = u"/texts/one.txt";

struct DropDesk : ProgramDesk {
  DropDesk() {
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
  DropDesk desk;
  desk.StartEmpty();
  desk.Drop(kOther);
  CHECK(desk.Deck().Visible());
  CHECK(desk.Deck().Caption() == u"other  [STUDY]");
  CHECK(desk.state.deck.filePath == kOther);
  CHECK(desk.state.deck.cardCount == 3);
  CHECK(desk.fakes.dialogs.fileRequests.empty());
  CHECK(desk.fakes.messages.shown.empty());
}

TEST_CASE("a text dropped on the empty frame is imported") {
  DropDesk desk;
  desk.StartEmpty();
  desk.Drop(kText);
  CHECK(desk.Deck().card.CardText() == u"front");
  CHECK(desk.state.deck.cardCount == 1);
  CHECK(desk.state.deck.changed);
}

TEST_CASE("a deck dropped on a deck takes its place, and is where dialogs begin") {
  DropDesk desk;
  desk.Start(kBirds);
  desk.Drop(kOther);
  CHECK(desk.Deck().Caption() == u"other  [STUDY]");
  CHECK(desk.Deck().card.CardTotal() == u"3");
  CHECK(desk.state.deck.onFile);
  CHECK(desk.state.dialogs.folderUsedLast == u"/decks");
}

TEST_CASE("a Yes before a dropped deck saves the old deck to its own file, never over it") {
  DropDesk desk;
  desk.Start(kBirds);
  desk.Change();
  const std::string other = desk.fakes.files.Bytes(kOther);
  desk.fakes.messages.answers = {MessageAnswer::kYes};
  desk.Drop(kOther);
  CHECK(desk.fakes.files.Bytes(kOther) == other);
  CHECK(desk.fakes.files.Bytes(kBirds).find("changed") != std::string::npos);
  CHECK(desk.state.deck.filePath == kOther);
  CHECK(desk.Deck().card.CardText() == u"front 1");
}

TEST_CASE("a No before a dropped deck leaves the old deck's file alone") {
  DropDesk desk;
  desk.Start(kBirds);
  desk.Change();
  const std::string birds = desk.fakes.files.Bytes(kBirds);
  desk.fakes.messages.answers = {MessageAnswer::kNo};
  desk.Drop(kOther);
  CHECK(desk.fakes.files.Bytes(kBirds) == birds);
  CHECK(desk.state.deck.filePath == kOther);
}

TEST_CASE("a dropped deck is refused before anything is asked, and the open one keeps its path") {
  struct Case {
    Text dropped;
    Text refusal;
  };
  const Case cases[] = {{u"/decks/other.TSR", u"This is not a valid Tessara file"},
                        {u"/elsewhere/birds.tsr", u"birds Tessara is already open"}};
  for (const Case& c : cases) {
    DropDesk desk;
    desk.Start(kBirds);
    desk.Change();
    desk.Drop(c.dropped);
    REQUIRE(desk.fakes.messages.shown.size() == 1);
    CHECK(desk.fakes.messages.shown[0].text == c.refusal);
    CHECK(desk.state.deck.filePath == kBirds);
    CHECK(desk.state.deck.Cell(1, kCardText) == u"changed");
    CHECK(desk.state.deck.changed);
  }
}

TEST_CASE("a deck of another ending is refused on the empty frame too, before the table is empty") {
  DropDesk desk;
  desk.StartEmpty();
  desk.Drop(u"/decks/birds.TSR");
  REQUIRE(desk.fakes.messages.shown.size() == 1);
  CHECK_FALSE(desk.program.DeckWindowOf().IsLoaded());
}

TEST_CASE("a file is taken only where its entry is on, on the bar that is on show") {
  struct Case {
    const char* front;
    bool takesDeck, takesText;
    std::function<void(DropDesk&)> bringUp;
  };
  const auto start = [](DropDesk& desk) { desk.Start(kBirds); };
  const Case cases[] = {
      {"empty frame", true, true, [](DropDesk& desk) { desk.StartEmpty(); }},
      {"empty deck", true, false, [](DropDesk& desk) { desk.Start(); }},
      {"deck", true, false, start},
      {"quiz", false, false,
       [&](DropDesk& desk) {
         start(desk);
         desk.Deck().quiz.Press();
       }},
      {"builder", false, false,
       [&](DropDesk& desk) {
         start(desk);
         desk.Deck().createOrEditCard.Press();
       }},
      {"information", false, false,
       [&](DropDesk& desk) {
         start(desk);
         desk.Deck().deckInfo.Press();
       }},
  };
  for (const Case& c : cases) {
    CAPTURE(c.front);
    DropDesk desk;
    c.bringUp(desk);
    CHECK(desk.Frame().TakesFile(kOther) == c.takesDeck);
    CHECK(desk.Frame().TakesFile(u"/decks/OTHER.TSR") == c.takesDeck);
    CHECK(desk.Frame().TakesFile(kText) == c.takesText);
    for (const char16_t* foreign : {u"/a/tsr", u"/a/picture.png", u"/a/deck.tsr.bak", u""}) {
      CHECK_FALSE(desk.Frame().TakesFile(foreign));
    }
    const std::int16_t cards = desk.state.deck.cardCount;
    if (!c.takesDeck) desk.Drop(kOther);
    CHECK(desk.state.deck.cardCount == cards);
  }
}

}  // namespace tessara::test
