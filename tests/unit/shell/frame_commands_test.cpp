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
  MenuEntry frmMain::*command;
};

constexpr Front kTextBuilder = {"frmEssay", u"E", &frmMain::mnuACTTD};
constexpr Front kQuestionBuilder = {"frmQuestion", u"T", &frmMain::mnuACTTD};
constexpr Front kInformation = {"frmInfo", u"E", &frmMain::mnuCDI};
constexpr Front kPrint = {"PrintCard", u"E", &frmMain::mnuPrint};
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
  desk.Frame().mnuImportFile.Press();
  REQUIRE(desk.program.DeckWindowOf().IsLoaded());
  REQUIRE_FALSE(desk.Deck().Visible());
}

}  // namespace

TEST_CASE(
    "the frame's file menu is off with the deck on screen, and behind what stands in for it") {
  for (const Front& front : kFronts) {
    CAPTURE(front.window);
    FrontDesk desk(front);
    CHECK_FALSE(desk.Frame().mnuFile.Enabled());
    desk.program.Windows().Run([&] { desk.program.Windows().ActiveForm()->Unload(); });
    CHECK(desk.FrontName() == "frmMain");
    CHECK_FALSE(desk.Frame().mnuFile.Enabled());
  }
}

TEST_CASE("no command of the frame's file menu touches the deck behind a window in front") {
  for (const Front& front : kFronts) {
    CAPTURE(front.window);
    FrontDesk desk(front);
    const std::int32_t deckType = desk.state.DeckType;
    for (MenuEntry* command :
         {&desk.Frame().mnuStdTessara, &desk.Frame().mnuExtTessara, &desk.Frame().mnuOPenExisting,
          &desk.Frame().mnuImportFile, &desk.Frame().mnuSetup, &desk.Frame().mnuExit}) {
      command->Press();
      CHECK(desk.FrontName() == front.window);
    }
    CHECK(desk.state.CardCount == 2);
    CHECK(desk.state.Cell(2, kCardText) == u"front 2");
    CHECK(desk.state.DeckType == deckType);
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
      {"About", [](ProgramDesk& desk) { desk.Frame().mnuAbout.Press(); }},
      {"set-up", [](ProgramDesk& desk) { desk.Frame().mnuSetup.Press(); }},
      {"information", [](ProgramDesk& desk) { desk.program.InfoWindow().Loaded(); }},
      {"a deck window that a failed import has loaded", ImportWithoutSecondCard},
  };
  for (const Case& c : cases) {
    CAPTURE(c.name);
    ProgramDesk desk;
    desk.Start();
    CHECK_FALSE(desk.Frame().mnuFile.Enabled());
    desk.Deck().UserClose();
    CHECK(desk.Frame().mnuFile.Enabled());
    c.leave(desk);
    CHECK(desk.Frame().mnuFile.Enabled());
    desk.Frame().mnuStdTessara.Press();
    CHECK_FALSE(desk.Frame().mnuFile.Enabled());
    desk.Deck().UserClose();
    CHECK(desk.Frame().mnuFile.Enabled());
  }
}

TEST_CASE("the frame's file menu stays off in whatever order the windows come to the front") {
  ProgramDesk desk;
  desk.fakes.files.Put(kPath, ProgramDesk::DeckBytes(2));
  desk.Start();
  desk.Deck().UserClose();
  desk.Frame().mnuSetup.Press();
  desk.fakes.dialogs.files = {kPath};
  desk.Frame().mnuOPenExisting.Press();
  desk.Deck().mnuCDI.Press();
  Form& setUp = desk.program.SetUpWindow().Loaded();
  Form& info = desk.program.InfoWindow().Loaded();
  for (Form* front : {&setUp, &info, &setUp}) {
    front->UserActivate();
    CHECK(NameOfFront(desk) == front->Name());
    CHECK_FALSE(desk.Frame().mnuFile.Enabled());
  }
  info.UserClose();
  desk.Deck().UserActivate();
  desk.Deck().mnuPrint.Press();
  for (Form* front : {&setUp, static_cast<Form*>(&desk.program.PrintWindow().Loaded())}) {
    front->UserActivate();
    CHECK_FALSE(desk.Frame().mnuFile.Enabled());
  }
  desk.program.PrintWindow().Unload();
  CHECK_FALSE(desk.Frame().mnuFile.Enabled());
  desk.fakes.messages.answers = {MessageAnswer::kYes};
  desk.Deck().UserClose();
  CHECK(desk.Frame().mnuFile.Enabled());
}

TEST_CASE("help stands in front of any window, and leaves it as it is") {
  for (const Front& front : kFronts) {
    CAPTURE(front.window);
    FrontDesk desk(front);
    SUBCASE("help") {
      desk.Frame().mnuHelpTopics.Press();
      CHECK(desk.fakes.desktop.helpShown == std::vector<Text>{u"/opt/tessara/TessaraHelp.chm"});
    }
    SUBCASE("About") {
      desk.Frame().mnuAbout.Press();
      CHECK(desk.FrontName() == "frmAbout");
      desk.program.AboutBox()->cmdOK.Press();
      CHECK(desk.FrontName() == front.window);
    }
    SUBCASE("separation instructions") {
      std::string inFront;
      desk.renderer.whileModal = [&](Form& form) {
        inFront = form.Name();
        form.Unload();
      };
      desk.Frame().mnuSC.Press();
      CHECK(inFront == "frmInstruct");
      CHECK(desk.FrontName() == front.window);
    }
    CHECK(desk.state.CardCount == 2);
  }
}

}  // namespace tessara::test
