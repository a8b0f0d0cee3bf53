// The frame's own commands while another window stands in front of a loaded deck.

#include <doctest/doctest.h>

#include "tests/support/program_desk.h"

namespace tessara::test {

namespace {

const Text kPath = u"/decks/birds.tsr";

struct Front {
  const char* window;
  TextView deckType;
  MenuEntry DeckWindow::*command;
};

constexpr Front kTextBuilder = {"frmEssay", u"E", &DeckWindow::createOrEditCard};
constexpr Front kQuestionBuilder = {"frmQuestion", u"T", &DeckWindow::createOrEditCard};
constexpr Front kInformation = {"frmInfo", u"E", &DeckWindow::deckInfo};
constexpr Front kPrint = {"PrintCard", u"E", &DeckWindow::printDeck};
/// Windows that leave the frame's file menu alone.
constexpr Front kFileMenuFronts[] = {kTextBuilder, kQuestionBuilder, kInformation};

/// The program with two cards and the window in front.
struct FrontDesk : ProgramDesk {
  explicit FrontDesk(const Front& front) {
    fakes.files.Put(kPath, ProgramDesk::DeckBytes(2, front.deckType));
    Start(kPath);
    (Deck().*front.command).Press();
    REQUIRE(FrontName() == front.window);
  }
  std::string FrontName() {
    const Form* form = program.Windows().ActiveForm();
    return form == nullptr ? "" : form->Name();
  }
};

}  // namespace

TEST_CASE("a new deck with a window in front brings up the deck that is there, in the other view") {
  for (const Front& front : kFileMenuFronts) {
    CAPTURE(front.window);
    FrontDesk desk(front);
    SUBCASE("standard") {
      desk.Frame().newStandardDeck.Press();
      CHECK(desk.state.deck.kind == kStandardDeck);
      CHECK(desk.Deck().flip.Caption() == u"&Show Back");
      CHECK_FALSE(desk.Deck().answerCard.Visible());
    }
    SUBCASE("extended") {
      desk.Frame().newExtendedDeck.Press();
      CHECK(desk.state.deck.kind == kExtendedDeck);
      CHECK(desk.Deck().flip.Caption() == u"&Hide Answer");
      CHECK(desk.Deck().answerCard.Visible());
    }
    CHECK(desk.FrontName() == "frmMain");
    CHECK(desk.state.deck.cardCount == 2);
    CHECK(desk.Deck().Caption() == u"birds  [STUDY]");
    CHECK(desk.Deck().goToCard.Enabled());
  }
}

TEST_CASE("opening from the frame empties the table before it asks, and a cancel leaves it so") {
  for (const Front& front : kFileMenuFronts) {
    CAPTURE(front.window);
    FrontDesk desk(front);
    desk.fakes.dialogs.files = {u""};
    desk.Frame().openExistingDeck.Press();
    CHECK_FALSE(desk.state.deck.HasCards());
    CHECK(desk.state.deck.cardCount == 2);
    CHECK(desk.state.deck.filePath == kPath);
    CHECK(desk.FrontName() == front.window);
  }
}

TEST_CASE("a deck opened from the frame takes the place of the one behind the window in front") {
  for (const Front& front : kFileMenuFronts) {
    CAPTURE(front.window);
    FrontDesk desk(front);
    desk.state.deck.onFile = true;
    desk.fakes.files.Put(u"/decks/fish.tsr", ProgramDesk::DeckBytes(3));
    desk.fakes.dialogs.files = {u"/decks/fish.tsr"};
    desk.Frame().openExistingDeck.Press();
    CHECK(desk.FrontName() == "frmMain");
    CHECK(desk.Deck().Caption() == u"fish  [STUDY]");
    CHECK(desk.Deck().card.CardTotal() == u"3");
    CHECK(desk.state.deck.kind == kStandardDeck);
    CHECK(desk.state.deck.onFile);
    CHECK(desk.fakes.messages.shown.empty());
  }
}

TEST_CASE("an import with a window in front makes its deck in the place of the one behind it") {
  for (const Front& front : kFileMenuFronts) {
    CAPTURE(front.window);
    FrontDesk desk(front);
    desk.fakes.files.Put(u"/texts/sea.txt", "STD\r\n1.\r\n*>F\r\nsea\r\n*>B\r\nmer\r\n\r\n");
    desk.fakes.dialogs.files = {u"/texts/sea.txt"};
    desk.Frame().importTextFile.Press();
    CHECK(desk.FrontName() == "frmMain");
    CHECK(desk.Deck().card.CardText() == u"sea");
    CHECK(desk.state.deck.cardCount == 1);
    CHECK(desk.state.deck.saveOffered);
    CHECK(desk.fakes.messages.shown.empty());
    CHECK(desk.fakes.dialogs.fileRequests.back().filter == u"Text File|*.txt");
  }
}

TEST_CASE("set-up and help stand in front of any window, and leave it as it is") {
  for (const Front& front : {kTextBuilder, kQuestionBuilder, kInformation, kPrint}) {
    CAPTURE(front.window);
    FrontDesk desk(front);
    SUBCASE("set-up, unless the file menu is off") {
      desk.Frame().setUp.Press();
      const bool printing = desk.program.PrintWindowOf().IsLoaded();
      CHECK(desk.FrontName() == (printing ? "PrintCard" : "FrmSetUp"));
    }
    SUBCASE("help") {
      desk.Frame().helpTopics.Press();
      CHECK(desk.fakes.desktop.helpShown == std::vector<Text>{u"/opt/tessara/TessaraHelp.chm"});
    }
    SUBCASE("About") {
      desk.Frame().about.Press();
      CHECK(desk.FrontName() == "frmAbout");
      desk.program.AboutBoxOf()->ok.Press();
      CHECK(desk.FrontName() == front.window);
    }
    SUBCASE("separation instructions") {
      std::string inFront;
      desk.renderer.whileModal = [&](Form& form) {
        inFront = form.Name();
        form.Unload();
      };
      desk.Frame().separatingCards.Press();
      CHECK(inFront == "frmInstruct");
      CHECK(desk.FrontName() == front.window);
    }
    CHECK(desk.state.deck.cardCount == 2);
  }
}

TEST_CASE("while the print window is open the frame's file menu is off, and on again behind it") {
  FrontDesk desk(kPrint);
  desk.Frame().newExtendedDeck.Press();
  desk.Frame().openExistingDeck.Press();
  desk.Frame().exit.Press();
  CHECK(desk.FrontName() == "PrintCard");
  CHECK(desk.state.deck.HasCards());
  desk.program.PrintWindowOf().Unload();
  CHECK(desk.Frame().fileMenu.Enabled());
}

}  // namespace tessara::test
