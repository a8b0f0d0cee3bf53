#include <doctest/doctest.h>

#include "tests/support/deck_fixture.h"
#include "tests/support/sample_deck.h"

namespace tessara::test {

namespace {

/// A fixture whose disk holds a deck file, named on the command line.
struct CommandLineFixture : DeckFixture {
  explicit CommandLineFixture(const std::string& bytes) {
    fakes.files.Put(kSamplePath, bytes);
    state.start.commandLineFile = kSamplePath;
  }

  /// Loads the window as the start of the program does.
  void Load() {
    windows.Run([this] { deck.Loaded(); });
  }
};

std::string StandardFile(int cards) {
  ProgramState state;
  FillDeck(state, cards);
  return DeckDisk().Write(state);
}

std::string FileOfOneCard(const Text& type) {
  return RecordBytesOf(type, u"the text", 1) + RecordBytesOf(u"X", u"", 0);
}

}  // namespace

TEST_CASE("a deck named on the command line comes up in study mode on its first card") {
  CommandLineFixture fixture(StandardFile(3));
  fixture.Load();
  DeckWindow& deck = fixture.deck.Loaded();
  CHECK(deck.Visible());
  CHECK(deck.Caption() == u"sample  [STUDY]");
  CHECK(fixture.state.deck.filePath == kSamplePath);
  CHECK(fixture.state.deck.currentCard == 1);
  CHECK(fixture.state.deck.mode == kStudyMode);
  CHECK(fixture.state.deck.testPoints == 0);
  CHECK(deck.card.CardText() == u"front 1");
  CHECK(deck.card.CardNumber() == u"1");
  CHECK(deck.card.CardTotal() == u"3");
  CHECK(deck.card.FrontLines());
  CHECK(deck.card.FrontRule());
  CHECK(deck.flip.Caption() == u"&Show Back");
  CHECK(deck.FocusedControl() == &deck.flip);
  CHECK_FALSE(deck.saveDeck.Enabled());
  for (const MenuEntry* entry : {&deck.clearDeck, &deck.saveDeckAs, &deck.modeMenu, &deck.goToCard,
                                 &deck.deleteCard, &deck.printDeck}) {
    CAPTURE(entry->Name());
    CHECK(entry->Enabled());
  }
  CHECK(deck.study.Checked());
}

TEST_CASE("a deck from the command line says so, is not on file yet, and is named no more") {
  CommandLineFixture fixture(StandardFile(3));
  fixture.state.deck.changed = true;
  fixture.state.deck.saveOffered = true;
  fixture.Load();
  CHECK(fixture.state.start.deckFromCommandLine);
  CHECK(fixture.state.start.commandLineFile.empty());
  CHECK_FALSE(fixture.state.deck.onFile);
  CHECK_FALSE(fixture.state.deck.changed);
  CHECK_FALSE(fixture.state.deck.saveOffered);
  CHECK(fixture.frame.splashClosed == 1);
  CHECK(fixture.fakes.messages.shown.empty());
}

TEST_CASE("a deck from the command line keeps the designed look, whatever the settings say") {
  CommandLineFixture fixture(StandardFile(1));
  fixture.state.settings.largeCardColor = u"1";
  fixture.state.settings.largeCard3D = u"0";
  fixture.state.settings.smallCardColor = u"1";
  fixture.Load();
  CHECK(fixture.deck->card.CardColor() == u"Q");
  CHECK(fixture.deck->cardShadow.Visible());
  CHECK(fixture.deck->answerCard.PictureOf().file == "skins/white_3d.png");
}

TEST_CASE("an extended deck from the command line comes up with the answer on show") {
  for (const TextView type : {u"M", u"T"}) {
    CommandLineFixture fixture(FileOfOneCard(Text(type)));
    fixture.Load();
    CHECK(fixture.state.deck.kind == kExtendedDeck);
    CHECK(fixture.deck->answerCard.Visible());
    CHECK_FALSE(fixture.deck->creditPanel.Visible());
    CHECK_FALSE(fixture.deck->choicePanel.Visible());
    CHECK(fixture.deck->flip.Caption() == u"&Hide Answer");
    CHECK(fixture.deck->card.CardText() == u"the text");
  }
}

TEST_CASE("a deck of an unknown kind leaves the type as it was, and comes up as one of that") {
  CommandLineFixture fixture(FileOfOneCard(u"Q"));
  fixture.state.deck.kind = kExtendedDeck;
  fixture.Load();
  CHECK(fixture.state.deck.kind == kExtendedDeck);
  CHECK(fixture.deck->Visible());
  CHECK(fixture.deck->answerCard.Visible());
  CHECK(fixture.deck->Caption() == u"sample  [STUDY]");
  CHECK(fixture.deck->card.CardText() == u"the text");
  CHECK(fixture.deck->card.CardTotal() == u"1");
  CHECK(fixture.state.start.deckFromCommandLine);
}

TEST_CASE("a deck on the command line that is not there ends the program with a report") {
  DeckFixture fixture;
  fixture.state.start.commandLineFile = u"/decks/none.tsr";
  fixture.windows.Run([&] { fixture.deck.Loaded(); });
  REQUIRE(fixture.fakes.messages.shown.size() == 1);
  CHECK(fixture.fakes.messages.shown[0].text.starts_with(u"Run-time error '"));
  CHECK(fixture.windows.ExitStatus() == 1);
}

TEST_CASE("without a command line the window loads empty, by the settings, and off screen") {
  DeckFixture fixture;
  fixture.state.settings.largeCardColor = u"1";
  fixture.deck.Loaded();
  CHECK_FALSE(fixture.deck->Visible());
  CHECK(fixture.deck->Caption() == u"New Deck");
  CHECK(fixture.deck->card.CardColor() == u"A");
  CHECK(fixture.deck->card.CardText().empty());
  CHECK(fixture.deck->answer.Caption().empty());
  CHECK_FALSE(fixture.deck->creditPanel.Visible());
  CHECK(fixture.deck->creditPanel.BoundsOf().left == fixture.deck->choicePanel.BoundsOf().left);
  CHECK(fixture.deck->creditPanel.BoundsOf().top == fixture.deck->choicePanel.BoundsOf().top);
  CHECK_FALSE(fixture.deck->deleteCard.Enabled());
  CHECK_FALSE(fixture.deck->saveDeckAs.Enabled());
  CHECK_FALSE(fixture.state.start.deckFromCommandLine);
  CHECK(fixture.frame.splashClosed == 1);
}

TEST_CASE("the mode menu follows the type of card 1, and an unknown type leaves it") {
  struct Case {
    TextView type;
    bool known;
  };
  for (const Case& c :
       {Case{u"E", true}, {u"M", true}, {u"T", true}, {u"e", false}, {u"", false}}) {
    DeckFixture fixture;
    DeckWindow& deck = fixture.deck.Loaded();
    fixture.state.deck.cardGrid.Set(1, kCardType, Text(c.type));
    deck.ConfigModeMenu(false, false, false);
    deck.modeMenu.SetEnabled(false);
    deck.goToCard.SetEnabled(false);
    deck.AutoModeMenu();
    for (const MenuEntry* entry : {&deck.study, &deck.quiz, &deck.test}) {
      CHECK(entry->Visible() == c.known);
    }
    CHECK(deck.modeMenu.Enabled() == c.known);
    CHECK(deck.goToCard.Enabled() == c.known);
  }
}

TEST_CASE("each mode entry can be hidden and marked by itself") {
  DeckFixture fixture;
  DeckWindow& deck = fixture.deck.Loaded();
  const std::vector<MenuEntry*> entries = {&deck.study, &deck.quiz, &deck.test};
  for (int mode = 0; mode < 4; ++mode) {
    deck.ConfigModeMenu(mode == 0, mode == 1, mode == 2);
    deck.MarkModeInMenu(static_cast<CardMode>(mode));
    for (int entry = 0; entry < 3; ++entry) {
      CHECK(entries[static_cast<std::size_t>(entry)]->Visible() == (entry == mode));
      CHECK(entries[static_cast<std::size_t>(entry)]->Checked() == (entry == mode));
    }
  }
}

TEST_CASE("a repaint keeps the side, and of an unknown deck type shows the numbers alone") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(2);
  fixture.deck->flip.Press();
  fixture.state.deck.cardGrid.Set(1, kBackText, u"new back");
  fixture.deck->AfterEditShow(kStandardDeck);
  CHECK(fixture.deck->card.CardText() == u"new back");
  fixture.state.deck.cardGrid.Set(1, kBackText, u"newer back");
  fixture.state.deck.currentCard = 2;
  fixture.deck->AfterEditShow(static_cast<DeckKind>(7));
  CHECK(fixture.deck->card.CardText() == u"new back");
  CHECK(fixture.deck->card.CardNumber() == u"2");
}

TEST_CASE("a click on the window's background closes the About box") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(1);
  fixture.deck->UserClick();
  CHECK(fixture.frame.aboutClosed == 1);
}

TEST_CASE("the information command opens its window in the middle and locks the deck window") {
  DeckFixture fixture;
  fixture.OpenStandardDeck(1);
  fixture.deck->deckInfo.Press();
  CHECK(fixture.info->Visible());
  CHECK(fixture.info->Height() == 4650);
  CHECK(fixture.info->Width() == 6270);
  CHECK(fixture.info->Top() == (9000 - 4650) / 2);
  CHECK_FALSE(fixture.deck->Enabled());
  fixture.info->Unload();
  CHECK(fixture.deck->Enabled());
}

TEST_CASE("every control of the window has something to say to a screen reader") {
  DeckFixture fixture;
  for (const Control* control : fixture.deck->Controls()) {
    const auto* captioned = dynamic_cast<const CaptionedControl*>(control);
    CAPTURE(control->Name());
    CHECK((!control->AccessibleName().empty() ||
           (captioned != nullptr && !captioned->Caption().empty()) ||
           control == &fixture.deck->answer));
  }
}

}  // namespace tessara::test
