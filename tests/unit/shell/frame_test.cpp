#include <doctest/doctest.h>
#include <functional>
#include <vector>

#include "shell/documents.h"
#include "tests/support/program_desk.h"

namespace tessara::test {

namespace {

/// The frame alone, its deck window closed.
void CloseDeckWindow(ProgramDesk& desk) {
  desk.Deck().closeDeck.Press();
  REQUIRE_FALSE(desk.program.DeckWindowOf().IsLoaded());
}

/// Set-up is of the empty frame: the deck has to go for it and come back.
void OpenSetUpInFront(ProgramDesk& desk) {
  desk.fakes.messages.answers = {MessageAnswer::kYes};
  CloseDeckWindow(desk);
  desk.Frame().setUp.Press();
  desk.fakes.dialogs.files = {u"/decks/birds.tsr"};
  desk.Frame().openExistingDeck.Press();
  desk.program.SetUpWindowOf()->UserActivate();
}

std::vector<Text> CaptionsOf(const MenuEntry& menu) {
  std::vector<Text> captions;
  for (const MenuEntry* entry : menu.Entries()) captions.push_back(entry->Caption());
  return captions;
}

}  // namespace

TEST_CASE("the backdrop is painted once over the screen, both far edges included") {
  ProgramDesk desk;
  desk.fakes.desktop.screenWidth = 128;
  desk.fakes.desktop.screenHeight = 96;
  desk.fakes.settings.values[u"BackDrop"] = u"GRANITE";  // 64 by 64
  desk.Start();
  const auto& painted = desk.Frame().Painted();
  REQUIRE(painted.size() == 6);
  CHECK(painted.front() == PaintedPicture{{"backdrops/GRANITE.gif", 64, 64}, 0, 0});
  CHECK(painted.back() == PaintedPicture{{"backdrops/GRANITE.gif", 64, 64}, 128, 64});
}

TEST_CASE("a tile larger than the screen is painted once") {
  ProgramDesk desk;
  desk.fakes.desktop.screenWidth = 60;
  desk.fakes.desktop.screenHeight = 60;
  desk.fakes.settings.values[u"BackDrop"] = u"DESERT";
  desk.Start();
  CHECK(desk.Frame().Painted().size() == 1);
}

TEST_CASE("the frame's menus hold their commands in their order") {
  ProgramDesk desk;
  desk.Start();
  const ProgramFrame& frame = desk.Frame();
  CHECK(CaptionsOf(frame.fileMenu) == std::vector<Text>{u"&New", u"&Open Existing Deck", u"Set &Up",
                                                        u"Import Text File", u"-", u"&Exit"});
  CHECK(CaptionsOf(frame.newMenu) == std::vector<Text>{u"&Standard Tessara", u"E&xtended Tessara"});
  CHECK(CaptionsOf(frame.helpMenu) ==
        std::vector<Text>{u"&Tessara Help Topics", u"&About", u"Separating the cards"});
}

TEST_CASE("the tiles stand under their twenty keys, in their order") {
  ProgramDesk desk;
  desk.Start();
  desk.program.SetUpWindowOf().Loaded();
  const TextView keys[] = {
      u"<NONE>",   u"DEFAULT",  u"DIGITAL", u"DESERT",   u"STUCCO",  u"BARS",     u"BLUESPH",
      u"CCURTIAN", u"CH_LINK",  u"GRANITE", u"NEONGRID", u"NETWORK", u"OHIOSTAR", u"OLDBLUE",
      u"P_GRID",   u"REDBRICK", u"S_NOISE", u"STRIPES",  u"THREADS", u"WD_FLOOR", u"SOFTGRID"};
  ComboBox& combo = desk.program.SetUpWindowOf()->backdrops;
  REQUIRE(combo.Count() == 21);
  for (int index = 0; index < 21; ++index) CHECK(combo.Item(index) == keys[index]);
}

TEST_CASE("new decks come up in their view with the frame's own caption of the flip button") {
  ProgramDesk desk;
  desk.Start();
  CloseDeckWindow(desk);
  SUBCASE("standard") {
    desk.Frame().newStandardDeck.Press();
    CHECK(desk.state.deck.kind == kStandardDeck);
    CHECK(desk.Deck().flip.Caption() == u"&Show Back");
  }
  SUBCASE("extended") {
    desk.Frame().newExtendedDeck.Press();
    CHECK(desk.state.deck.kind == kExtendedDeck);
    CHECK(desk.Deck().flip.Caption() == u"&Hide Answer");
    CHECK(desk.Deck().answerCard.Visible());
  }
  CHECK(desk.Deck().Visible());
  CHECK(desk.Deck().Caption() == u"New Deck");
  CHECK_FALSE(desk.Deck().goToCard.Enabled());
}

TEST_CASE("an existing deck is opened from the frame and is not on file") {
  ProgramDesk desk;
  desk.fakes.files.Put(u"/decks/birds.tsr", ProgramDesk::DeckBytes(2));
  desk.Start();
  CloseDeckWindow(desk);
  desk.fakes.dialogs.files = {u"/decks/birds.tsr"};
  desk.Frame().openExistingDeck.Press();
  CHECK(desk.Deck().Caption() == u"birds  [STUDY]");
  CHECK(desk.Deck().card.CardText() == u"front 1");
  CHECK_FALSE(desk.state.deck.onFile);
  CHECK(desk.fakes.dialogs.fileRequests.back().filter == u"Study Cards|*.tsr");
  CHECK(desk.fakes.dialogs.fileRequests.back().flags == 4100);
  CHECK(desk.fakes.dialogs.fileRequests.back().initialFolder == desk.fakes.desktop.documentsFolder);
}

TEST_CASE("a deck opened from the frame can be saved under another name") {
  ProgramDesk desk;
  desk.fakes.files.Put(u"/decks/birds.tsr", ProgramDesk::DeckBytes(2));
  desk.fakes.files.Put(u"/decks/none.tsr", ProgramDesk::DeckBytes(0));
  desk.fakes.messages.answers = {MessageAnswer::kYes};
  desk.Start();
  for (const TextView path : {u"/decks/birds.tsr", u"/decks/none.tsr"}) {
    CloseDeckWindow(desk);
    desk.fakes.dialogs.files = {Text(path)};
    desk.Frame().openExistingDeck.Press();
    CHECK(desk.Deck().saveDeckAs.Enabled() == (desk.state.deck.cardCount > 0));
  }
}

TEST_CASE("a deck opened from the frame is written over in place once, then deleted first") {
  const Text path = u"/decks/birds.tsr";
  ProgramDesk desk;
  desk.fakes.files.Put(path, ProgramDesk::DeckBytes(2));
  desk.Start();
  CloseDeckWindow(desk);
  desk.fakes.dialogs.files = {path};
  desk.Frame().openExistingDeck.Press();
  desk.fakes.messages.answers = {MessageAnswer::kYes};
  desk.Deck().deleteCard.Press();
  desk.program.Windows().Run([&] { desk.Deck().SaveDeck(); });
  CHECK(desk.fakes.files.Bytes(path).size() == 4 * kRecordSize);
  CHECK(desk.state.deck.onFile);
  desk.program.Windows().Run([&] { desk.Deck().SaveDeck(); });
  CHECK(desk.fakes.files.Bytes(path).size() == 3 * kRecordSize);
}

TEST_CASE("a path in capitals is refused by both open commands") {
  ProgramDesk desk;
  desk.Start();
  desk.fakes.dialogs.files = {u"/decks/BIRDS.TSR", u"/decks/BIRDS.TSR"};
  desk.Deck().openDeck.Press();
  CloseDeckWindow(desk);
  desk.Frame().openExistingDeck.Press();
  const FakeMessages::Shown refusal{u"This is not a valid Tessara file", 16, u"Error Opening File"};
  CHECK(desk.fakes.messages.shown == std::vector{refusal, refusal});
  CHECK_FALSE(desk.program.DeckWindowOf().IsLoaded());
}

TEST_CASE("help opens the help file of the program's folder from both menus") {
  ProgramDesk desk;
  desk.Start();
  desk.Frame().helpTopics.Press();
  desk.Deck().helpTopics.Press();
  const Text path = u"/opt/tessara/TessaraHelp.chm";
  CHECK(desk.fakes.desktop.helpShown == std::vector{path, path});
}

TEST_CASE("the About box closes by its button, a click, the loss of the focus and its link") {
  ProgramDesk desk;
  desk.Start();
  desk.Deck().about.Press();
  REQUIRE(desk.program.AboutBoxOf().IsLoaded());
  AboutBox& about = desk.program.AboutBoxOf().Loaded();
  CHECK(desk.program.Windows().ActiveForm() == &about);
  SUBCASE("button") {
    about.ok.Press();
  }
  SUBCASE("Return") {
    CHECK(about.UserReturn());
  }
  SUBCASE("Return on the link") {
    about.mailLink.SetFocus();
    CHECK(about.UserReturn());
    CHECK(desk.fakes.desktop.opened.size() == 1);
  }
  SUBCASE("Escape") {
    CHECK(about.UserEscape());
  }
  SUBCASE("click on itself") {
    about.UserClick();
  }
  SUBCASE("loss of the focus") {
    desk.Deck().UserActivate();
  }
  SUBCASE("click on the frame") {
    desk.Frame().UserClick();
  }
  SUBCASE("click on the deck window") {
    desk.Deck().UserClick();
  }
  SUBCASE("link") {
    about.mailLink.UserClick();
    REQUIRE(desk.fakes.desktop.opened.size() == 1);
    const Text target = desk.fakes.desktop.opened[0];
    CHECK(target.starts_with(u"mailto:"));
    CHECK(target.ends_with(u"?SUBJECT=Re: Tessara 1.0"));
  }
  CHECK_FALSE(desk.program.AboutBoxOf().IsLoaded());
}

TEST_CASE("a second About brings the same box forward") {
  ProgramDesk desk;
  desk.Start();
  desk.Deck().about.Press();
  AboutBox& about = desk.program.AboutBoxOf().Loaded();
  desk.Frame().about.Press();
  CHECK(&about == &desk.program.AboutBoxOf().Loaded());
  CHECK(desk.program.Windows().ActiveForm() == &about);
}

TEST_CASE("an information window that outlives its deck leaves no trace of one when it goes") {
  ProgramDesk desk;
  desk.fakes.files.Put(u"/decks/birds.tsr", ProgramDesk::DeckBytes(2));
  desk.Start(u"/decks/birds.tsr");
  desk.program.Windows().Run([&] { desk.Deck().SaveDeck(); });
  REQUIRE(desk.program.InfoWindow().IsLoaded());
  desk.fakes.messages.answers = {MessageAnswer::kYes};
  desk.Deck().closeDeck.Press();
  REQUIRE_FALSE(desk.program.DeckWindowOf().IsLoaded());
  CHECK(desk.program.InfoWindow()->Visible());
  CHECK(desk.program.InfoWindow()->fields[kTitleField].TextOf() == u" Birds");
  // Loading a deck window would end the program.
  desk.state.settings.largeCardColor = u"x";
  desk.program.InfoWindow()->close.Press();
  CHECK_FALSE(desk.program.DeckWindowOf().IsLoaded());
  CHECK(desk.program.Windows().ActiveForm() == nullptr);
  CHECK_FALSE(desk.program.Windows().ExitStatus());
  desk.state.settings.largeCardColor = u"0";
  desk.Frame().newStandardDeck.Press();
  CHECK(desk.Deck().Visible());
  CHECK(desk.Deck().Caption() == u"New Deck");
}

TEST_CASE("hovering the link shows the icon until the pointer is on the window again") {
  ProgramDesk desk;
  desk.Start();
  desk.Deck().about.Press();
  AboutBox& about = desk.program.AboutBoxOf().Loaded();
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
  ProgramDesk desk;
  desk.fakes.desktop.openResult = kOpenFileNotFound;
  CHECK(OpenTearingSheet(desk.machine) == kOpenFileNotFound);
  CHECK(desk.fakes.messages.Take() ==
        std::vector<FakeMessages::Shown>{
            {u"/opt/tessara/Tearing Sheet.bmp was not found in the Tessara program directory.", 0,
             u"File Not Found"}});
  desk.fakes.desktop.openResult = 31;
  CHECK(OpenQuickStart(desk.machine) == 31);
  CHECK(desk.fakes.messages.shown.empty());
  CHECK(desk.fakes.desktop.opened.back() == u"/opt/tessara/QuickStartDocument.wri");
}

TEST_CASE("closing the frame ends the program, unless the deck window refuses") {
  ProgramDesk desk;
  desk.fakes.files.Put(u"/decks/birds.tsr", ProgramDesk::DeckBytes(2));
  desk.Start(u"/decks/birds.tsr");
  SUBCASE("during a quiz everything stays open") {
    desk.Deck().quiz.Press();
    desk.Frame().UserClose();
    CHECK(desk.fakes.messages.shown.back().text ==
          u"Tessara must be in study mode before quiting.");
    CHECK(desk.Deck().Visible());
    CHECK(desk.Frame().Visible());
    CHECK(desk.renderer.exitStatus == -1);
  }
  SUBCASE("No to the question keeps all") {
    desk.fakes.messages.answers = {MessageAnswer::kNo};
    desk.Frame().UserClose();
    CHECK(desk.fakes.messages.shown.back().text == u"ARE YOU SURE?");
    CHECK(desk.renderer.exitStatus == -1);
  }
  SUBCASE("Yes ends it") {
    desk.fakes.messages.answers = {MessageAnswer::kYes};
    desk.Frame().UserClose();
    CHECK(desk.renderer.exitStatus == 0);
  }
}

TEST_CASE("the frame closes with each child window open, and none comes back on screen") {
  struct Case {
    const char* window;
    TextView deckType;
    std::function<void(ProgramDesk&)> open;
  };
  const Case cases[] = {
      {"frmEssay", u"E", [](ProgramDesk& desk) { desk.Deck().createOrEditCard.Press(); }},
      {"frmQuestion", u"T", [](ProgramDesk& desk) { desk.Deck().createOrEditCard.Press(); }},
      {"PrintCard", u"E", [](ProgramDesk& desk) { desk.Deck().printDeck.Press(); }},
      {"frmInfo", u"E", [](ProgramDesk& desk) { desk.Deck().deckInfo.Press(); }},
      {"FrmSetUp", u"E", OpenSetUpInFront},
      {"frmAbout", u"E", [](ProgramDesk& desk) { desk.Deck().about.Press(); }},
  };
  for (const Case& c : cases) {
    CAPTURE(c.window);
    ProgramDesk desk;
    desk.fakes.files.Put(u"/decks/birds.tsr", ProgramDesk::DeckBytes(2, c.deckType));
    desk.Start(u"/decks/birds.tsr");
    c.open(desk);
    REQUIRE(desk.program.Windows().ActiveForm() != nullptr);
    CHECK(desk.program.Windows().ActiveForm()->Name() == c.window);
    desk.fakes.messages.shown.clear();
    desk.fakes.messages.answers = {MessageAnswer::kYes};
    desk.Frame().UserClose();
    CHECK(desk.renderer.exitStatus == 0);
    CHECK(desk.fakes.messages.shown.size() == 1);
    CHECK(desk.program.Windows().ActiveForm() == nullptr);
  }
}

TEST_CASE("the frame that saves a changed deck on its way takes the information window with it") {
  struct Case {
    const char* name;
    std::function<void(ProgramDesk&)> open;
    std::function<void(ProgramDesk&)> close;
  };
  const auto changeAlone = [](ProgramDesk&) {};
  const auto builder = [](ProgramDesk& desk) { desk.Deck().createOrEditCard.Press(); };
  const auto closeBox = [](ProgramDesk& desk) { desk.Frame().UserClose(); };
  const auto exit = [](ProgramDesk& desk) {
    desk.program.Windows().Run([&] { desk.Frame().Unload(); });
  };
  const Case cases[] = {{"close box", changeAlone, closeBox},
                        {"exit", changeAlone, exit},
                        {"close box behind a builder", builder, closeBox},
                        {"exit behind a builder", builder, exit}};
  for (const Case& c : cases) {
    CAPTURE(c.name);
    ProgramDesk desk;
    desk.fakes.files.Put(u"/decks/birds.tsr", ProgramDesk::DeckBytes(2));
    desk.Start(u"/decks/birds.tsr");
    desk.state.deck.cardGrid.Set(1, kCardText, u"changed");
    desk.state.deck.changed = true;
    c.open(desk);
    desk.fakes.messages.answers = {MessageAnswer::kYes, MessageAnswer::kYes};
    c.close(desk);
    CHECK(desk.fakes.messages.shown.size() == 3);
    CHECK(desk.program.Windows().ActiveForm() == nullptr);
    CHECK_FALSE(desk.program.InfoWindow().IsLoaded());
    CHECK(desk.renderer.exitStatus == 0);
  }
}

}  // namespace tessara::test
