#include <doctest/doctest.h>

#include "tests/support/deck_desk.h"
#include "tests/support/sample_deck.h"

namespace tessara::test {

namespace {

/// A desk whose disk holds a deck file, named on the command line.
struct CommandLineDesk : DeckDesk {
  explicit CommandLineDesk(const std::string& bytes) {
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
  CommandLineDesk desk(StandardFile(3));
  desk.Load();
  DeckWindow& deck = desk.deck.Loaded();
  CHECK(deck.Visible());
  CHECK(deck.Caption() == u"sample  [STUDY]");
  CHECK(desk.state.deck.filePath == kSamplePath);
  CHECK(desk.state.deck.currentCard == 1);
  CHECK(desk.state.deck.mode == kStudyMode);
  CHECK(desk.state.deck.testPoints == 0);
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
  CommandLineDesk desk(StandardFile(3));
  desk.state.deck.changed = true;
  desk.state.deck.saveOffered = true;
  desk.Load();
  CHECK(desk.state.start.deckFromCommandLine);
  CHECK(desk.state.start.commandLineFile.empty());
  CHECK_FALSE(desk.state.deck.onFile);
  CHECK_FALSE(desk.state.deck.changed);
  CHECK_FALSE(desk.state.deck.saveOffered);
  CHECK(desk.frame.splashClosed == 1);
  CHECK(desk.fakes.messages.shown.empty());
}

TEST_CASE("a deck from the command line keeps the designed look, whatever the settings say") {
  CommandLineDesk desk(StandardFile(1));
  desk.state.settings.largeCardColor = u"1";
  desk.state.settings.largeCard3D = u"0";
  desk.state.settings.smallCardColor = u"1";
  desk.Load();
  CHECK(desk.deck->card.CardColor() == u"Q");
  CHECK(desk.deck->cardShadow.Visible());
  CHECK(desk.deck->answerCard.PictureOf().file == "skins/white_3d.png");
}

TEST_CASE("an extended deck from the command line comes up with the answer on show") {
  for (const TextView type : {u"M", u"T"}) {
    CommandLineDesk desk(FileOfOneCard(Text(type)));
    desk.Load();
    CHECK(desk.state.deck.kind == kExtendedDeck);
    CHECK(desk.deck->answerCard.Visible());
    CHECK_FALSE(desk.deck->creditPanel.Visible());
    CHECK_FALSE(desk.deck->choicePanel.Visible());
    CHECK(desk.deck->flip.Caption() == u"&Hide Answer");
    CHECK(desk.deck->card.CardText() == u"the text");
  }
}

TEST_CASE("a deck of an unknown kind leaves the type as it was, and comes up as one of that") {
  CommandLineDesk desk(FileOfOneCard(u"Q"));
  desk.state.deck.kind = kExtendedDeck;
  desk.Load();
  CHECK(desk.state.deck.kind == kExtendedDeck);
  CHECK(desk.deck->Visible());
  CHECK(desk.deck->answerCard.Visible());
  CHECK(desk.deck->Caption() == u"sample  [STUDY]");
  CHECK(desk.deck->card.CardText() == u"the text");
  CHECK(desk.deck->card.CardTotal() == u"1");
  CHECK(desk.state.start.deckFromCommandLine);
}

TEST_CASE("a deck on the command line that is not there ends the program with a report") {
  DeckDesk desk;
  desk.state.start.commandLineFile = u"/decks/none.tsr";
  desk.windows.Run([&] { desk.deck.Loaded(); });
  REQUIRE(desk.fakes.messages.shown.size() == 1);
  CHECK(desk.fakes.messages.shown[0].text.starts_with(u"Run-time error '"));
  CHECK(desk.windows.ExitStatus() == 1);
}

TEST_CASE("without a command line the window loads empty, by the settings, and off screen") {
  DeckDesk desk;
  desk.state.settings.largeCardColor = u"1";
  desk.deck.Loaded();
  CHECK_FALSE(desk.deck->Visible());
  CHECK(desk.deck->Caption() == u"New Deck");
  CHECK(desk.deck->card.CardColor() == u"A");
  CHECK(desk.deck->card.CardText().empty());
  CHECK(desk.deck->answer.Caption().empty());
  CHECK_FALSE(desk.deck->creditPanel.Visible());
  CHECK(desk.deck->creditPanel.BoundsOf().left == desk.deck->choicePanel.BoundsOf().left);
  CHECK(desk.deck->creditPanel.BoundsOf().top == desk.deck->choicePanel.BoundsOf().top);
  CHECK_FALSE(desk.deck->deleteCard.Enabled());
  CHECK_FALSE(desk.deck->saveDeckAs.Enabled());
  CHECK_FALSE(desk.state.start.deckFromCommandLine);
  CHECK(desk.frame.splashClosed == 1);
}

TEST_CASE("the mode menu follows the type of card 1, and an unknown type leaves it") {
  struct Case {
    TextView type;
    bool known;
  };
  for (const Case& c :
       {Case{u"E", true}, {u"M", true}, {u"T", true}, {u"e", false}, {u"", false}}) {
    DeckDesk desk;
    DeckWindow& deck = desk.deck.Loaded();
    desk.state.deck.cardGrid.Set(1, kCardType, Text(c.type));
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
  DeckDesk desk;
  DeckWindow& deck = desk.deck.Loaded();
  const std::vector<MenuEntry*> entries = {&deck.study, &deck.quiz, &deck.test};
  for (int mode = 0; mode < 4; ++mode) {
    deck.ConfigModeMenu(mode == 0, mode == 1, mode == 2);
    deck.ChkModeMenu(static_cast<CardMode>(mode));
    for (int entry = 0; entry < 3; ++entry) {
      CHECK(entries[static_cast<std::size_t>(entry)]->Visible() == (entry == mode));
      CHECK(entries[static_cast<std::size_t>(entry)]->Checked() == (entry == mode));
    }
  }
}

TEST_CASE("a repaint keeps the side, and of an unknown deck type shows the numbers alone") {
  DeckDesk desk;
  desk.OpenStandardDeck(2);
  desk.deck->flip.Press();
  desk.state.deck.cardGrid.Set(1, kBackText, u"new back");
  desk.deck->AfterEditShow(kStandardDeck);
  CHECK(desk.deck->card.CardText() == u"new back");
  desk.state.deck.cardGrid.Set(1, kBackText, u"newer back");
  desk.state.deck.currentCard = 2;
  desk.deck->AfterEditShow(static_cast<DeckKind>(7));
  CHECK(desk.deck->card.CardText() == u"new back");
  CHECK(desk.deck->card.CardNumber() == u"2");
}

TEST_CASE("a click on the window's background closes the About box") {
  DeckDesk desk;
  desk.OpenStandardDeck(1);
  desk.deck->UserClick();
  CHECK(desk.frame.aboutClosed == 1);
}

TEST_CASE("the information command opens its window in the middle and locks the deck window") {
  DeckDesk desk;
  desk.OpenStandardDeck(1);
  desk.deck->deckInfo.Press();
  CHECK(desk.info->Visible());
  CHECK(desk.info->Height() == 4650);
  CHECK(desk.info->Width() == 6270);
  CHECK(desk.info->Top() == (9000 - 4650) / 2);
  CHECK_FALSE(desk.deck->Enabled());
  desk.info->Unload();
  CHECK(desk.deck->Enabled());
}

TEST_CASE("every control of the window has something to say to a screen reader") {
  DeckDesk desk;
  for (const Control* control : desk.deck->Controls()) {
    const auto* captioned = dynamic_cast<const CaptionedControl*>(control);
    CAPTURE(control->Name());
    CHECK((!control->AccessibleName().empty() ||
           (captioned != nullptr && !captioned->Caption().empty()) ||
           control == &desk.deck->answer));
  }
}

}  // namespace tessara::test
