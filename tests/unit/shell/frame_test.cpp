#include <doctest/doctest.h>
#include <functional>
#include <vector>

#include "shell/documents.h"
#include "tests/support/program_fixture.h"

namespace tessara::test {

namespace {

/// The frame alone, its deck window closed.
void CloseDeckWindow(ProgramFixture& fixture) {
  fixture.Deck().closeDeck.Press();
  REQUIRE_FALSE(fixture.program.DeckWindowOf().IsLoaded());
}

/// Set-up is of the empty frame: the deck has to go for it and come back.
void OpenSetUpInFront(ProgramFixture& fixture) {
  fixture.fakes.messages.answers = {MessageAnswer::kYes};
  CloseDeckWindow(fixture);
  fixture.Frame().setUp.Press();
  fixture.fakes.dialogs.files = {u"/decks/birds.tsr"};
  fixture.Frame().openExistingDeck.Press();
  fixture.program.SetUpWindowOf()->UserActivate();
}

std::vector<Text> CaptionsOf(const MenuEntry& menu) {
  std::vector<Text> captions;
  for (const MenuEntry* entry : menu.Entries()) captions.push_back(entry->Caption());
  return captions;
}

}  // namespace

TEST_CASE("the backdrop is painted once over the screen, both far edges included") {
  ProgramFixture fixture;
  fixture.fakes.desktop.screenWidth = 128;
  fixture.fakes.desktop.screenHeight = 96;
  fixture.fakes.settings.values[u"BackDrop"] = u"GRANITE";  // 64 by 64
  fixture.Start();
  const auto& painted = fixture.Frame().Painted();
  REQUIRE(painted.size() == 6);
  CHECK(painted.front() == PaintedPicture{{"backdrops/GRANITE.gif", 64, 64}, 0, 0});
  CHECK(painted.back() == PaintedPicture{{"backdrops/GRANITE.gif", 64, 64}, 128, 64});
}

TEST_CASE("a tile larger than the screen is painted once") {
  ProgramFixture fixture;
  fixture.fakes.desktop.screenWidth = 60;
  fixture.fakes.desktop.screenHeight = 60;
  fixture.fakes.settings.values[u"BackDrop"] = u"DESERT";
  fixture.Start();
  CHECK(fixture.Frame().Painted().size() == 1);
}

TEST_CASE("the frame's menus hold their commands in their order") {
  ProgramFixture fixture;
  fixture.Start();
  const ProgramFrame& frame = fixture.Frame();
  CHECK(CaptionsOf(frame.fileMenu) == std::vector<Text>{u"&New", u"&Open Existing Deck", u"Set &Up",
                                                        u"Import Text File", u"-", u"&Exit"});
  CHECK(CaptionsOf(frame.newMenu) == std::vector<Text>{u"&Standard Tessara", u"E&xtended Tessara"});
  CHECK(CaptionsOf(frame.helpMenu) ==
        std::vector<Text>{u"&Tessara Help Topics", u"&About", u"Separating the cards"});
}

TEST_CASE("the tiles stand under their twenty keys, in their order") {
  ProgramFixture fixture;
  fixture.Start();
  fixture.program.SetUpWindowOf().Loaded();
  const TextView keys[] = {
      u"<NONE>",   u"DEFAULT",  u"DIGITAL", u"DESERT",   u"STUCCO",  u"BARS",     u"BLUESPH",
      u"CCURTIAN", u"CH_LINK",  u"GRANITE", u"NEONGRID", u"NETWORK", u"OHIOSTAR", u"OLDBLUE",
      u"P_GRID",   u"REDBRICK", u"S_NOISE", u"STRIPES",  u"THREADS", u"WD_FLOOR", u"SOFTGRID"};
  ComboBox& combo = fixture.program.SetUpWindowOf()->backdrops;
  REQUIRE(combo.Count() == 21);
  for (int index = 0; index < 21; ++index) CHECK(combo.Item(index) == keys[index]);
}

TEST_CASE("new decks come up in their view with the frame's own caption of the flip button") {
  ProgramFixture fixture;
  fixture.Start();
  CloseDeckWindow(fixture);
  SUBCASE("standard") {
    fixture.Frame().newStandardDeck.Press();
    CHECK(fixture.state.deck.kind == kStandardDeck);
    CHECK(fixture.Deck().flip.Caption() == u"&Show Back");
  }
  SUBCASE("extended") {
    fixture.Frame().newExtendedDeck.Press();
    CHECK(fixture.state.deck.kind == kExtendedDeck);
    CHECK(fixture.Deck().flip.Caption() == u"&Hide Answer");
    CHECK(fixture.Deck().answerCard.Visible());
  }
  CHECK(fixture.Deck().Visible());
  CHECK(fixture.Deck().Caption() == u"New Deck");
  CHECK_FALSE(fixture.Deck().goToCard.Enabled());
}

TEST_CASE("an existing deck is opened from the frame and is not on file") {
  ProgramFixture fixture;
  fixture.fakes.files.Put(u"/decks/birds.tsr", ProgramFixture::DeckBytes(2));
  fixture.Start();
  CloseDeckWindow(fixture);
  fixture.fakes.dialogs.files = {u"/decks/birds.tsr"};
  fixture.Frame().openExistingDeck.Press();
  CHECK(fixture.Deck().Caption() == u"birds  [STUDY]");
  CHECK(fixture.Deck().card.CardText() == u"front 1");
  CHECK_FALSE(fixture.state.deck.onFile);
  CHECK(fixture.fakes.dialogs.fileRequests.back().filter == u"Study Cards|*.tsr");
  CHECK(fixture.fakes.dialogs.fileRequests.back().flags == 4100);
  CHECK(fixture.fakes.dialogs.fileRequests.back().initialFolder ==
        fixture.fakes.desktop.documentsFolder);
}

TEST_CASE("a deck opened from the frame can be saved under another name") {
  ProgramFixture fixture;
  fixture.fakes.files.Put(u"/decks/birds.tsr", ProgramFixture::DeckBytes(2));
  fixture.fakes.files.Put(u"/decks/none.tsr", ProgramFixture::DeckBytes(0));
  fixture.fakes.messages.answers = {MessageAnswer::kYes};
  fixture.Start();
  for (const TextView path : {u"/decks/birds.tsr", u"/decks/none.tsr"}) {
    CloseDeckWindow(fixture);
    fixture.fakes.dialogs.files = {Text(path)};
    fixture.Frame().openExistingDeck.Press();
    CHECK(fixture.Deck().saveDeckAs.Enabled() == (fixture.state.deck.cardCount > 0));
  }
}

TEST_CASE("a deck opened from the frame is written over in place once, then deleted first") {
  const Text path = u"/decks/birds.tsr";
  ProgramFixture fixture;
  fixture.fakes.files.Put(path, ProgramFixture::DeckBytes(2));
  fixture.Start();
  CloseDeckWindow(fixture);
  fixture.fakes.dialogs.files = {path};
  fixture.Frame().openExistingDeck.Press();
  fixture.fakes.messages.answers = {MessageAnswer::kYes};
  fixture.Deck().deleteCard.Press();
  fixture.program.Windows().Run([&] { fixture.Deck().SaveDeck(); });
  CHECK(fixture.fakes.files.Bytes(path).size() == 4 * kRecordSize);
  CHECK(fixture.state.deck.onFile);
  fixture.program.Windows().Run([&] { fixture.Deck().SaveDeck(); });
  CHECK(fixture.fakes.files.Bytes(path).size() == 3 * kRecordSize);
}

TEST_CASE("a path in capitals is refused by both open commands") {
  ProgramFixture fixture;
  fixture.Start();
  fixture.fakes.dialogs.files = {u"/decks/BIRDS.TSR", u"/decks/BIRDS.TSR"};
  fixture.Deck().openDeck.Press();
  CloseDeckWindow(fixture);
  fixture.Frame().openExistingDeck.Press();
  const FakeMessages::Shown refusal{u"This is not a valid Tessara file", 16, u"Error Opening File"};
  CHECK(fixture.fakes.messages.shown == std::vector{refusal, refusal});
  CHECK_FALSE(fixture.program.DeckWindowOf().IsLoaded());
}

TEST_CASE("the frame's open command empties the table before it asks for a file") {
  ProgramFixture fixture;
  fixture.Start();
  CloseDeckWindow(fixture);
  fixture.state.deck.cardPresent.Set(7, 1);
  fixture.state.deck.cardGrid.Set(7, kCardText, u"left over");
  fixture.fakes.dialogs.files = {u""};
  fixture.Frame().openExistingDeck.Press();
  CHECK(fixture.state.deck.cardPresent.At(7) == 0);
  CHECK(fixture.state.deck.Cell(7, kCardText).empty());
}

TEST_CASE("help opens the help file of the program's folder from both menus") {
  ProgramFixture fixture;
  fixture.Start();
  fixture.Frame().helpTopics.Press();
  fixture.Deck().helpTopics.Press();
  CHECK(fixture.Frame().UserHelp());
  const Text path = u"/opt/tessara/TessaraHelp.chm";
  CHECK(fixture.fakes.desktop.helpShown == std::vector{path, path, path});
}

TEST_CASE("the About box closes by its button, a click, the loss of the focus and its link") {
  ProgramFixture fixture;
  fixture.Start();
  fixture.Deck().about.Press();
  REQUIRE(fixture.program.AboutBoxOf().IsLoaded());
  AboutBox& about = fixture.program.AboutBoxOf().Loaded();
  CHECK(fixture.program.Windows().ActiveForm() == &about);
  CHECK(about.Width() == 5220);
  CHECK(about.Height() == 3690);
  // In the frame as it stands on the screen, its border and caption included.
  CHECK(about.Left() == (fixture.renderer.frameScaleWidth + 120 - about.Width()) / 2);
  CHECK(about.Top() == (fixture.renderer.frameScaleHeight + 390 - about.Height()) / 2);
  SUBCASE("button") {
    about.ok.Press();
  }
  SUBCASE("Return") {
    CHECK(about.UserReturn());
  }
  SUBCASE("Return on the link") {
    about.mailLink.SetFocus();
    CHECK(about.UserReturn());
    CHECK(fixture.fakes.desktop.opened.size() == 1);
  }
  SUBCASE("Escape") {
    CHECK(about.UserEscape());
  }
  SUBCASE("click on itself") {
    about.UserClick();
  }
  SUBCASE("loss of the focus") {
    fixture.Deck().UserActivate();
  }
  SUBCASE("click on the frame") {
    fixture.Frame().UserClick();
  }
  SUBCASE("click on the deck window") {
    fixture.Deck().UserClick();
  }
  SUBCASE("link") {
    about.mailLink.UserClick();
    REQUIRE(fixture.fakes.desktop.opened.size() == 1);
    const Text target = fixture.fakes.desktop.opened[0];
    CHECK(target.starts_with(u"mailto:"));
    CHECK(target.ends_with(u"?SUBJECT=Re: Tessara 1.0"));
  }
  CHECK_FALSE(fixture.program.AboutBoxOf().IsLoaded());
}

TEST_CASE("a second About brings the same box forward") {
  ProgramFixture fixture;
  fixture.Start();
  fixture.Deck().about.Press();
  AboutBox& about = fixture.program.AboutBoxOf().Loaded();
  fixture.Frame().about.Press();
  CHECK(&about == &fixture.program.AboutBoxOf().Loaded());
  CHECK(fixture.program.Windows().ActiveForm() == &about);
}

TEST_CASE("an information window that outlives its deck leaves no trace of one when it goes") {
  ProgramFixture fixture;
  fixture.fakes.files.Put(u"/decks/birds.tsr", ProgramFixture::DeckBytes(2));
  fixture.Start(u"/decks/birds.tsr");
  fixture.program.Windows().Run([&] { fixture.Deck().SaveDeck(); });
  REQUIRE(fixture.program.InfoWindow().IsLoaded());
  fixture.fakes.messages.answers = {MessageAnswer::kYes};
  fixture.Deck().closeDeck.Press();
  REQUIRE_FALSE(fixture.program.DeckWindowOf().IsLoaded());
  CHECK(fixture.program.InfoWindow()->Visible());
  CHECK(fixture.program.InfoWindow()->fields[kTitleField].TextOf() == u" Birds");
  // Loading a deck window would end the program.
  fixture.state.settings.largeCardColor = u"x";
  fixture.program.InfoWindow()->close.Press();
  CHECK_FALSE(fixture.program.DeckWindowOf().IsLoaded());
  CHECK(fixture.program.Windows().ActiveForm() == nullptr);
  CHECK_FALSE(fixture.program.Windows().ExitStatus());
  fixture.state.settings.largeCardColor = u"0";
  fixture.Frame().newStandardDeck.Press();
  CHECK(fixture.Deck().Visible());
  CHECK(fixture.Deck().Caption() == u"New Deck");
}

TEST_CASE("hovering the link shows the icon until the pointer is on the window again") {
  ProgramFixture fixture;
  fixture.Start();
  fixture.Deck().about.Press();
  AboutBox& about = fixture.program.AboutBoxOf().Loaded();
  CHECK_FALSE(about.envelope.Visible());
  about.mailLink.UserMouseMove();
  CHECK(about.envelope.Visible());
  CHECK(about.mailLink.FontOf().bold);
  about.ok.UserMouseMove();
  CHECK(about.envelope.Visible());
  about.UserMouseMove();
  CHECK_FALSE(about.envelope.Visible());
  CHECK_FALSE(about.mailLink.FontOf().bold);
}

TEST_CASE("a document that is missing is reported, other failures are not") {
  ProgramFixture fixture;
  fixture.fakes.desktop.openResult = kOpenFileNotFound;
  CHECK(OpenTearingSheet(fixture.machine) == kOpenFileNotFound);
  CHECK(fixture.fakes.messages.Take() ==
        std::vector<FakeMessages::Shown>{
            {u"/opt/tessara/Tearing Sheet.bmp was not found in the Tessara program directory.", 0,
             u"File Not Found"}});
  fixture.fakes.desktop.openResult = 31;
  CHECK(OpenQuickStart(fixture.machine) == 31);
  CHECK(fixture.fakes.messages.shown.empty());
  CHECK(fixture.fakes.desktop.opened.back() == u"/opt/tessara/QuickStartDocument.wri");
}

TEST_CASE("closing the frame ends the program, unless the deck window refuses") {
  ProgramFixture fixture;
  fixture.fakes.files.Put(u"/decks/birds.tsr", ProgramFixture::DeckBytes(2));
  fixture.Start(u"/decks/birds.tsr");
  SUBCASE("during a quiz everything stays open") {
    fixture.Deck().quiz.Press();
    fixture.Frame().UserClose();
    CHECK(fixture.fakes.messages.shown.back().text ==
          u"Tessara must be in study mode before quiting.");
    CHECK(fixture.Deck().Visible());
    CHECK(fixture.Frame().Visible());
    CHECK(fixture.renderer.exitStatus == -1);
  }
  SUBCASE("No to the question keeps all") {
    fixture.fakes.messages.answers = {MessageAnswer::kNo};
    fixture.Frame().UserClose();
    CHECK(fixture.fakes.messages.shown.back().text == u"ARE YOU SURE?");
    CHECK(fixture.renderer.exitStatus == -1);
  }
  SUBCASE("Yes ends it") {
    fixture.fakes.messages.answers = {MessageAnswer::kYes};
    fixture.Frame().UserClose();
    CHECK(fixture.renderer.exitStatus == 0);
  }
}

TEST_CASE("the frame closes with each child window open, and none comes back on screen") {
  struct Case {
    const char* window;
    TextView deckType;
    std::function<void(ProgramFixture&)> open;
  };
  const Case cases[] = {
      {"frmEssay", u"E", [](ProgramFixture& fixture) { fixture.Deck().createOrEditCard.Press(); }},
      {"frmQuestion", u"T",
       [](ProgramFixture& fixture) { fixture.Deck().createOrEditCard.Press(); }},
      {"PrintCard", u"E", [](ProgramFixture& fixture) { fixture.Deck().printDeck.Press(); }},
      {"frmInfo", u"E", [](ProgramFixture& fixture) { fixture.Deck().deckInfo.Press(); }},
      {"FrmSetUp", u"E", OpenSetUpInFront},
      {"frmAbout", u"E", [](ProgramFixture& fixture) { fixture.Deck().about.Press(); }},
  };
  for (const Case& c : cases) {
    CAPTURE(c.window);
    ProgramFixture fixture;
    fixture.fakes.files.Put(u"/decks/birds.tsr", ProgramFixture::DeckBytes(2, c.deckType));
    fixture.Start(u"/decks/birds.tsr");
    c.open(fixture);
    REQUIRE(fixture.program.Windows().ActiveForm() != nullptr);
    CHECK(fixture.program.Windows().ActiveForm()->Name() == c.window);
    fixture.fakes.messages.shown.clear();
    fixture.fakes.messages.answers = {MessageAnswer::kYes};
    fixture.Frame().UserClose();
    CHECK(fixture.renderer.exitStatus == 0);
    CHECK(fixture.fakes.messages.shown.size() == 1);
    CHECK(fixture.program.Windows().ActiveForm() == nullptr);
  }
}

TEST_CASE("the frame that saves a changed deck on its way takes the information window with it") {
  struct Case {
    const char* name;
    std::function<void(ProgramFixture&)> open;
    std::function<void(ProgramFixture&)> close;
  };
  const auto changeAlone = [](ProgramFixture&) {};
  const auto builder = [](ProgramFixture& fixture) { fixture.Deck().createOrEditCard.Press(); };
  const auto closeBox = [](ProgramFixture& fixture) { fixture.Frame().UserClose(); };
  const auto exit = [](ProgramFixture& fixture) {
    fixture.program.Windows().Run([&] { fixture.Frame().Unload(); });
  };
  const Case cases[] = {{"close box", changeAlone, closeBox},
                        {"exit", changeAlone, exit},
                        {"close box behind a builder", builder, closeBox},
                        {"exit behind a builder", builder, exit}};
  for (const Case& c : cases) {
    CAPTURE(c.name);
    ProgramFixture fixture;
    fixture.fakes.files.Put(u"/decks/birds.tsr", ProgramFixture::DeckBytes(2));
    fixture.Start(u"/decks/birds.tsr");
    fixture.state.deck.cardGrid.Set(1, kCardText, u"changed");
    fixture.state.deck.changed = true;
    c.open(fixture);
    fixture.fakes.messages.answers = {MessageAnswer::kYes, MessageAnswer::kYes};
    c.close(fixture);
    CHECK(fixture.fakes.messages.shown.size() == 3);
    CHECK(fixture.program.Windows().ActiveForm() == nullptr);
    CHECK_FALSE(fixture.program.InfoWindow().IsLoaded());
    CHECK(fixture.renderer.exitStatus == 0);
  }
}

}  // namespace tessara::test
