// The frame's own commands: which of them are there while which windows are on screen.

#include <doctest/doctest.h>
#include <functional>

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
constexpr Front kFronts[] = {kTextBuilder, kQuestionBuilder, kInformation, kPrint};

std::string NameOfFront(ProgramDesk& desk) {
  const Form* form = desk.program.Windows().ActiveForm();
  return form == nullptr ? "" : form->Name();
}

/// The program with two cards and the window in front.
struct FrontDesk : ProgramDesk {
  explicit FrontDesk(const Front& front) {
    fakes.files.Put(kPath, ProgramDesk::DeckBytes(2, front.deckType));
    Start(kPath);
    (Deck().*front.command).Press();
    REQUIRE(FrontName() == front.window);
    // The print window tells that it can print no cards.
    fakes.messages.shown.clear();
  }
  std::string FrontName() { return NameOfFront(*this); }
};

/// The import has told the deck window of its first card when it meets the error.
void ImportWithoutSecondCard(ProgramDesk& desk) {
  desk.fakes.files.Put(u"/texts/gap.txt", "STD\r\n1.\r\n*>F\r\na\r\n*>B\r\nb\r\n\r\n3.\r\n");
  desk.fakes.dialogs.files = {u"/texts/gap.txt"};
  desk.Frame().importTextFile.Press();
  REQUIRE(desk.program.DeckWindowOf().IsLoaded());
  REQUIRE_FALSE(desk.Deck().Visible());
}

}  // namespace

TEST_CASE(
    "the frame's file menu is off with the deck on screen, and behind what stands in for it") {
  for (const Front& front : kFronts) {
    CAPTURE(front.window);
    FrontDesk desk(front);
    CHECK_FALSE(desk.Frame().fileMenu.Enabled());
    desk.program.Windows().Run([&] { desk.program.Windows().ActiveForm()->Unload(); });
    CHECK(desk.FrontName() == "frmMain");
    CHECK_FALSE(desk.Frame().fileMenu.Enabled());
  }
}

TEST_CASE("no command of the frame's file menu touches the deck behind a window in front") {
  for (const Front& front : kFronts) {
    CAPTURE(front.window);
    FrontDesk desk(front);
    const DeckKind deckType = desk.state.deck.kind;
    for (MenuEntry* command : {&desk.Frame().newStandardDeck, &desk.Frame().newExtendedDeck,
                               &desk.Frame().openExistingDeck, &desk.Frame().importTextFile,
                               &desk.Frame().setUp, &desk.Frame().exit}) {
      command->Press();
      CHECK(desk.FrontName() == front.window);
    }
    CHECK(desk.state.deck.cardCount == 2);
    CHECK(desk.state.deck.Cell(2, kCardText) == u"front 2");
    CHECK(desk.state.deck.kind == deckType);
    CHECK(desk.fakes.dialogs.fileRequests.empty());
    CHECK(desk.fakes.messages.shown.empty());
  }
}

TEST_CASE("the frame's file menu is on while no deck is on screen, whatever else is") {
  struct Case {
    const char* name;
    std::function<void(ProgramDesk&)> leave;
  };
  const Case cases[] = {
      {"nothing", [](ProgramDesk&) {}},
      {"About", [](ProgramDesk& desk) { desk.Frame().about.Press(); }},
      {"set-up", [](ProgramDesk& desk) { desk.Frame().setUp.Press(); }},
      {"information", [](ProgramDesk& desk) { desk.program.InfoWindow().Loaded(); }},
      {"a deck window that a failed import has loaded", ImportWithoutSecondCard},
  };
  for (const Case& c : cases) {
    CAPTURE(c.name);
    ProgramDesk desk;
    desk.Start();
    CHECK_FALSE(desk.Frame().fileMenu.Enabled());
    desk.Deck().UserClose();
    CHECK(desk.Frame().fileMenu.Enabled());
    c.leave(desk);
    CHECK(desk.Frame().fileMenu.Enabled());
    desk.Frame().newStandardDeck.Press();
    CHECK_FALSE(desk.Frame().fileMenu.Enabled());
    desk.Deck().UserClose();
    CHECK(desk.Frame().fileMenu.Enabled());
  }
}

TEST_CASE("the frame's file menu stays off in whatever order the windows come to the front") {
  ProgramDesk desk;
  desk.fakes.files.Put(kPath, ProgramDesk::DeckBytes(2));
  desk.Start();
  desk.Deck().UserClose();
  desk.Frame().setUp.Press();
  desk.fakes.dialogs.files = {kPath};
  desk.Frame().openExistingDeck.Press();
  desk.Deck().deckInfo.Press();
  Form& setUp = desk.program.SetUpWindowOf().Loaded();
  Form& info = desk.program.InfoWindow().Loaded();
  for (Form* front : {&setUp, &info, &setUp}) {
    front->UserActivate();
    CHECK(NameOfFront(desk) == front->Name());
    CHECK_FALSE(desk.Frame().fileMenu.Enabled());
  }
  info.UserClose();
  desk.Deck().UserActivate();
  desk.Deck().printDeck.Press();
  for (Form* front : {&setUp, static_cast<Form*>(&desk.program.PrintWindowOf().Loaded())}) {
    front->UserActivate();
    CHECK_FALSE(desk.Frame().fileMenu.Enabled());
  }
  desk.program.PrintWindowOf().Unload();
  CHECK_FALSE(desk.Frame().fileMenu.Enabled());
  desk.fakes.messages.answers = {MessageAnswer::kYes};
  desk.Deck().UserClose();
  CHECK(desk.Frame().fileMenu.Enabled());
}

TEST_CASE("help stands in front of any window, and leaves it as it is") {
  for (const Front& front : kFronts) {
    CAPTURE(front.window);
    FrontDesk desk(front);
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

}  // namespace tessara::test
