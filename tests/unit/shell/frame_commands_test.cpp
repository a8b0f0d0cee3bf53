// The frame's own commands: which of them are there while which windows are on screen.

#include <doctest/doctest.h>
#include <functional>

#include "tests/support/program_fixture.h"

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
constexpr Front kFronts[] = {kTextBuilder, kQuestionBuilder, kInformation, kPrint};

std::string NameOfFront(ProgramFixture& fixture) {
  const Form* form = fixture.program.Windows().ActiveForm();
  return form == nullptr ? "" : form->Name();
}

/// The program with two cards and the window in front.
struct FrontFixture : ProgramFixture {
  explicit FrontFixture(const Front& front) {
    fakes.files.Put(kPath, ProgramFixture::DeckBytes(2, front.deckType));
    Start(kPath);
    (Deck().*front.command).Press();
    REQUIRE(FrontName() == front.window);
    // The print window tells that it can print no cards.
    fakes.messages.shown.clear();
  }
  std::string FrontName() { return NameOfFront(*this); }
};

/// The import has told the deck window of its first card when it meets the error.
void ImportWithoutSecondCard(ProgramFixture& fixture) {
  fixture.fakes.files.Put(u"/texts/gap.txt", "STD\r\n1.\r\n*>F\r\na\r\n*>B\r\nb\r\n\r\n3.\r\n");
  fixture.fakes.dialogs.files = {u"/texts/gap.txt"};
  fixture.Frame().importTextFile.Press();
  REQUIRE(fixture.program.DeckWindowOf().IsLoaded());
  REQUIRE_FALSE(fixture.Deck().Visible());
}

}  // namespace

TEST_CASE(
    "the frame's file menu is off with the deck on screen, and behind what stands in for it") {
  for (const Front& front : kFronts) {
    CAPTURE(front.window);
    FrontFixture fixture(front);
    CHECK_FALSE(fixture.Frame().fileMenu.Enabled());
    fixture.program.Windows().Run([&] { fixture.program.Windows().ActiveForm()->Unload(); });
    CHECK(fixture.FrontName() == "frmMain");
    CHECK_FALSE(fixture.Frame().fileMenu.Enabled());
  }
}

TEST_CASE("no command of the frame's file menu touches the deck behind a window in front") {
  for (const Front& front : kFronts) {
    CAPTURE(front.window);
    FrontFixture fixture(front);
    const DeckKind deckType = fixture.state.deck.kind;
    for (MenuEntry* command : {&fixture.Frame().newStandardDeck, &fixture.Frame().newExtendedDeck,
                               &fixture.Frame().openExistingDeck, &fixture.Frame().importTextFile,
                               &fixture.Frame().setUp, &fixture.Frame().exit}) {
      command->Press();
      CHECK(fixture.FrontName() == front.window);
    }
    CHECK(fixture.state.deck.cardCount == 2);
    CHECK(fixture.state.deck.Cell(2, kCardText) == u"front 2");
    CHECK(fixture.state.deck.kind == deckType);
    CHECK(fixture.fakes.dialogs.fileRequests.empty());
    CHECK(fixture.fakes.messages.shown.empty());
  }
}

TEST_CASE("the frame's file menu is on while no deck is on screen, whatever else is") {
  struct Case {
    const char* name;
    std::function<void(ProgramFixture&)> leave;
  };
  const Case cases[] = {
      {"nothing", [](ProgramFixture&) {}},
      {"About", [](ProgramFixture& fixture) { fixture.Frame().about.Press(); }},
      {"set-up", [](ProgramFixture& fixture) { fixture.Frame().setUp.Press(); }},
      {"information", [](ProgramFixture& fixture) { fixture.program.InfoWindow().Loaded(); }},
      {"a deck window that a failed import has loaded", ImportWithoutSecondCard},
  };
  for (const Case& c : cases) {
    CAPTURE(c.name);
    ProgramFixture fixture;
    fixture.Start();
    CHECK_FALSE(fixture.Frame().fileMenu.Enabled());
    fixture.Deck().UserClose();
    CHECK(fixture.Frame().fileMenu.Enabled());
    c.leave(fixture);
    CHECK(fixture.Frame().fileMenu.Enabled());
    fixture.Frame().newStandardDeck.Press();
    CHECK_FALSE(fixture.Frame().fileMenu.Enabled());
    fixture.Deck().UserClose();
    CHECK(fixture.Frame().fileMenu.Enabled());
  }
}

TEST_CASE("the frame's file menu stays off in whatever order the windows come to the front") {
  ProgramFixture fixture;
  fixture.fakes.files.Put(kPath, ProgramFixture::DeckBytes(2));
  fixture.Start();
  fixture.Deck().UserClose();
  fixture.Frame().setUp.Press();
  fixture.fakes.dialogs.files = {kPath};
  fixture.Frame().openExistingDeck.Press();
  fixture.Deck().deckInfo.Press();
  Form& setUp = fixture.program.SetUpWindowOf().Loaded();
  Form& info = fixture.program.InfoWindow().Loaded();
  for (Form* front : {&setUp, &info, &setUp}) {
    front->UserActivate();
    CHECK(NameOfFront(fixture) == front->Name());
    CHECK_FALSE(fixture.Frame().fileMenu.Enabled());
  }
  info.UserClose();
  fixture.Deck().UserActivate();
  fixture.Deck().printDeck.Press();
  for (Form* front : {&setUp, static_cast<Form*>(&fixture.program.PrintWindowOf().Loaded())}) {
    front->UserActivate();
    CHECK_FALSE(fixture.Frame().fileMenu.Enabled());
  }
  fixture.program.PrintWindowOf().Unload();
  CHECK_FALSE(fixture.Frame().fileMenu.Enabled());
  fixture.fakes.messages.answers = {MessageAnswer::kYes};
  fixture.Deck().UserClose();
  CHECK(fixture.Frame().fileMenu.Enabled());
}

TEST_CASE("help stands in front of any window, and leaves it as it is") {
  for (const Front& front : kFronts) {
    CAPTURE(front.window);
    FrontFixture fixture(front);
    SUBCASE("help") {
      fixture.Frame().helpTopics.Press();
      CHECK(fixture.fakes.desktop.helpShown == std::vector<Text>{u"/opt/tessara/TessaraHelp.chm"});
    }
    SUBCASE("About") {
      fixture.Frame().about.Press();
      CHECK(fixture.FrontName() == "frmAbout");
      fixture.program.AboutBoxOf()->ok.Press();
      CHECK(fixture.FrontName() == front.window);
    }
    SUBCASE("separation instructions") {
      std::string inFront;
      fixture.renderer.whileModal = [&](Form& form) {
        inFront = form.Name();
        form.Unload();
      };
      fixture.Frame().separatingCards.Press();
      CHECK(inFront == "frmInstruct");
      CHECK(fixture.FrontName() == front.window);
    }
    CHECK(fixture.state.deck.cardCount == 2);
  }
}

}  // namespace tessara::test
