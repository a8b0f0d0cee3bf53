#include <doctest/doctest.h>

#include "tests/support/deck_desk.h"
#include "tests/support/sample_deck.h"

namespace tessara::test {

namespace {

/// A desk whose disk holds a deck file, named on the command line.
struct CommandLineDesk : DeckDesk {
  explicit CommandLineDesk(const std::string& bytes) {
    fakes.files.Put(kSamplePath, bytes);
    state.CommandLineFile = kSamplePath;
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
  frmMain& deck = desk.deck.Loaded();
  CHECK(deck.Visible());
  CHECK(deck.Caption() == u"sample  [STUDY]");
  CHECK(desk.state.DeckFilePath == kSamplePath);
  CHECK(desk.state.CurrentCard == 1);
  CHECK(desk.state.CardMode == kStudyMode);
  CHECK(desk.state.TestPoints == 0);
  CHECK(deck.NoteletCtl1.CardText() == u"front 1");
  CHECK(deck.NoteletCtl1.CardNumber() == u"1");
  CHECK(deck.NoteletCtl1.CardTotal() == u"3");
  CHECK(deck.NoteletCtl1.FrontLines());
  CHECK(deck.NoteletCtl1.FrontRule());
  CHECK(deck.Command3[1].Caption() == u"&Show Back");
  CHECK(deck.FocusedControl() == &deck.Command3[1]);
  CHECK_FALSE(deck.mnuSave.Enabled());
  for (const MenuEntry* entry : {&deck.mnuNCD, &deck.mnuSaveAs, &deck.mnuMode, &deck.mnuGTP,
                                 &deck.mnuDelete, &deck.mnuPrint}) {
    CAPTURE(entry->Name());
    CHECK(entry->Enabled());
  }
  CHECK(deck.mnuStudy.Checked());
}

TEST_CASE("a deck from the command line says so, is not on file yet, and is named no more") {
  CommandLineDesk desk(StandardFile(3));
  desk.state.DeckChanged = true;
  desk.state.SaveOffered = true;
  desk.Load();
  CHECK(desk.state.DeckFromCommandLine);
  CHECK(desk.state.CommandLineFile.empty());
  CHECK_FALSE(desk.state.DeckOnFile);
  CHECK_FALSE(desk.state.DeckChanged);
  CHECK_FALSE(desk.state.SaveOffered);
  CHECK(desk.frame.splashClosed == 1);
  CHECK(desk.fakes.messages.shown.empty());
}

TEST_CASE("a deck from the command line keeps the designed look, whatever the settings say") {
  CommandLineDesk desk(StandardFile(1));
  desk.state.LargeCardColor = u"1";
  desk.state.LargeCard3D = u"0";
  desk.state.SmallCardColor = u"1";
  desk.Load();
  CHECK(desk.deck->NoteletCtl1.CardColor() == u"Q");
  CHECK(desk.deck->Shape1.Visible());
  CHECK(desk.deck->Picture1.PictureOf().file == "skins/white_3d.png");
}

TEST_CASE("an extended deck from the command line comes up with the answer on show") {
  for (const TextView type : {u"M", u"T"}) {
    CommandLineDesk desk(FileOfOneCard(Text(type)));
    desk.Load();
    CHECK(desk.state.DeckType == kExtendedDeck);
    CHECK(desk.deck->Picture1.Visible());
    CHECK_FALSE(desk.deck->Frame1.Visible());
    CHECK_FALSE(desk.deck->Frame2.Visible());
    CHECK(desk.deck->Command3[1].Caption() == u"&Hide Answer");
    CHECK(desk.deck->NoteletCtl1.CardText() == u"the text");
  }
}

TEST_CASE("a deck of an unknown kind leaves the type as it was, and comes up as one of that") {
  CommandLineDesk desk(FileOfOneCard(u"Q"));
  desk.state.DeckType = kExtendedDeck;
  desk.Load();
  CHECK(desk.state.DeckType == kExtendedDeck);
  CHECK(desk.deck->Visible());
  CHECK(desk.deck->Picture1.Visible());
  CHECK(desk.deck->Caption() == u"sample  [STUDY]");
  CHECK(desk.deck->NoteletCtl1.CardText() == u"the text");
  CHECK(desk.deck->NoteletCtl1.CardTotal() == u"1");
  CHECK(desk.state.DeckFromCommandLine);
}

TEST_CASE("a deck on the command line that is not there ends the program with a report") {
  DeckDesk desk;
  desk.state.CommandLineFile = u"/decks/none.tsr";
  desk.windows.Run([&] { desk.deck.Loaded(); });
  REQUIRE(desk.fakes.messages.shown.size() == 1);
  CHECK(desk.fakes.messages.shown[0].text.starts_with(u"Run-time error '"));
  CHECK(desk.windows.ExitStatus() == 1);
}

TEST_CASE("without a command line the window loads empty, by the settings, and off screen") {
  DeckDesk desk;
  desk.state.LargeCardColor = u"1";
  desk.deck.Loaded();
  CHECK_FALSE(desk.deck->Visible());
  CHECK(desk.deck->Caption() == u"New Deck");
  CHECK(desk.deck->NoteletCtl1.CardColor() == u"A");
  CHECK(desk.deck->NoteletCtl1.CardText().empty());
  CHECK(desk.deck->Label2.Caption().empty());
  CHECK_FALSE(desk.deck->Frame1.Visible());
  CHECK(desk.deck->Frame1.Place().left == desk.deck->Frame2.Place().left);
  CHECK(desk.deck->Frame1.Place().top == desk.deck->Frame2.Place().top);
  CHECK_FALSE(desk.deck->mnuDelete.Enabled());
  CHECK_FALSE(desk.deck->mnuSaveAs.Enabled());
  CHECK_FALSE(desk.state.DeckFromCommandLine);
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
    frmMain& deck = desk.deck.Loaded();
    desk.state.CardGrid.Set(1, kCardType, Text(c.type));
    deck.ConfigModeMenu(false, false, false);
    deck.mnuMode.SetEnabled(false);
    deck.mnuGTP.SetEnabled(false);
    deck.AutoModeMenu();
    for (const MenuEntry* entry : {&deck.mnuStudy, &deck.mnuQuiz, &deck.mnuTest}) {
      CHECK(entry->Visible() == c.known);
    }
    CHECK(deck.mnuMode.Enabled() == c.known);
    CHECK(deck.mnuGTP.Enabled() == c.known);
  }
}

TEST_CASE("each mode entry can be hidden and marked by itself") {
  DeckDesk desk;
  frmMain& deck = desk.deck.Loaded();
  const std::vector<MenuEntry*> entries = {&deck.mnuStudy, &deck.mnuQuiz, &deck.mnuTest};
  for (int mode = 0; mode < 4; ++mode) {
    deck.ConfigModeMenu(mode == 0, mode == 1, mode == 2);
    deck.ChkModeMenu(mode);
    for (int entry = 0; entry < 3; ++entry) {
      CHECK(entries[static_cast<std::size_t>(entry)]->Visible() == (entry == mode));
      CHECK(entries[static_cast<std::size_t>(entry)]->Checked() == (entry == mode));
    }
  }
}

TEST_CASE("a repaint keeps the side, and of an unknown deck type shows the numbers alone") {
  DeckDesk desk;
  desk.OpenStandardDeck(2);
  desk.deck->Command3[1].Press();
  desk.state.CardGrid.Set(1, kBackText, u"new back");
  desk.deck->AfterEditShow(kStandardDeck);
  CHECK(desk.deck->NoteletCtl1.CardText() == u"new back");
  desk.state.CardGrid.Set(1, kBackText, u"newer back");
  desk.state.CurrentCard = 2;
  desk.deck->AfterEditShow(7);
  CHECK(desk.deck->NoteletCtl1.CardText() == u"new back");
  CHECK(desk.deck->NoteletCtl1.CardNumber() == u"2");
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
  desk.deck->mnuCDI.Press();
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
           control == &desk.deck->Label2));
  }
}

}  // namespace tessara::test
