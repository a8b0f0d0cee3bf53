// Whatever a deck or a text to import says is shown, and does nothing else.

#include <doctest/doctest.h>
#include <set>

#include "base/utf8.h"
#include "deck/card_display.h"
#include "tests/support/hostile_texts.h"
#include "tests/support/program_desk.h"
#include "tests/support/window_tour.h"
#include "tests/unit/import/text_file.h"
#include "tests/unit/printing/print_desk.h"

namespace tessara::test {

namespace {

const Text kDeck = u"/decks/birds.tsr";

/// The program, with a note of every path that it has asked the disk about.
struct WatchedDesk : ProgramDesk {
  std::set<Text> paths;
  WindowTour tour{program, fakes, [] {}};

  WatchedDesk() {
    fakes.files.fault = [this](MemoryFiles::Operation, const Text& path) {
      paths.insert(path);
      return std::optional<ErrorNumber>();
    };
  }

  /// Nothing was opened, written or asked for but the file that the user named. Whether the user
  /// can write in the program's folder is asked for each dialog.
  void CheckNothingElse(const Text& path) {
    const std::set<Text> allowed{path, u"/decks", u"/opt/tessara/deck.tsr"};
    for (const Text& touched : paths) CHECK(allowed.contains(touched));
    CHECK(fakes.desktop.opened.empty());
    CHECK(fakes.desktop.helpShown.empty());
    CHECK(fakes.settings.writes.empty());
    CHECK(fakes.documentTypes.declared.empty());
    CHECK_FALSE(program.Windows().ExitStatus());
  }
};

}  // namespace

TEST_CASE("any text of a text card is on the card as it stands, and does nothing else") {
  for (const Text& text : kHostileTexts) {
    CAPTURE(ToUtf8(text));
    WatchedDesk desk;
    desk.fakes.files.Put(kDeck, DeckSaying(text, u"E"));
    desk.Start(kDeck);
    const Text shown = DoubleAmps(text);
    CHECK(desk.Deck().card.CardText() == shown);
    desk.Deck().flip.Press();
    CHECK(desk.Deck().card.CardText() == shown);
    desk.Deck().arrows[kNextCard].Press();
    desk.Deck().quiz.Press();
    desk.Deck().test.Press();
    CHECK(desk.Deck().card.CardText() == shown);
    desk.Deck().study.Press();
    desk.tour.GoRound();
    desk.CheckNothingElse(kDeck);
  }
}

TEST_CASE("any text of a question is on the card, the answer and the choices as it stands") {
  for (const Text& text : kHostileTexts) {
    CAPTURE(ToUtf8(text));
    WatchedDesk desk;
    desk.fakes.files.Put(kDeck, DeckSaying(text, u"M"));
    desk.Start(kDeck);
    CHECK(desk.Deck().card.CardText() == DoubleAmps(text));
    CHECK(desk.Deck().answer.Caption().find(DoubleAmps(text)) != Text::npos);
    desk.Deck().test.Press();
    for (const OptionButton& option : desk.Deck().choices) CHECK(option.Caption() == text);
    desk.Deck().choices[1].Press();
    desk.Deck().nextOrScore.Press();
    desk.CheckNothingElse(kDeck);
  }
}

TEST_CASE("any text of a deck is in the builders and the information window as it stands") {
  for (const Text& text : kHostileTexts) {
    CAPTURE(ToUtf8(text));
    WatchedDesk desk;
    desk.fakes.files.Put(kDeck, DeckSaying(text, u"E"));
    desk.Start(kDeck);
    desk.Deck().deckInfo.Press();
    // A blank stands in front.
    for (const TextBox& box : desk.program.InfoWindow()->fields)
      CHECK(Trimmed(box.TextOf()) == text);
    desk.program.InfoWindow()->UserClose();
    desk.Deck().createOrEditCard.Press();
    CHECK(desk.program.TextBuilder()->sides[kFrontSide].TextOf() == text);
    CHECK(desk.program.TextBuilder()->sides[kBackSide].TextOf() == text);
    desk.CheckNothingElse(kDeck);
  }
}

TEST_CASE("any text comes through a save as it stands") {
  for (const Text& text : kHostileTexts) {
    WatchedDesk desk;
    desk.fakes.files.Put(kDeck, DeckSaying(text, u"E"));
    desk.Start(kDeck);
    desk.program.Windows().Run([&] { desk.Deck().SaveDeck(); });
    CHECK(desk.fakes.messages.shown.back().text == u"This file has been saved to " + kDeck);
    WatchedDesk next;
    next.fakes.files.Put(kDeck, desk.fakes.files.Bytes(kDeck));
    next.Start(kDeck);
    CHECK(next.state.deck.Cell(2, kCardText) == text);
    CHECK(next.state.deck.Cell(2, kBackText) == text);
    CHECK(next.state.deck.title == text);
  }
}

TEST_CASE("any text to import is on the card as it stands, and does nothing else") {
  const Text path = u"/decks/text.txt";
  for (const Text& text : kHostileTexts) {
    CAPTURE(ToUtf8(text));
    const std::string line = ToUtf8(text);
    for (const std::string& bytes : {Lines({"STD", "1.", "*>F", line, "*>B", line, "*END*"}),
                                     Lines({"EXT", "1.Q " + line, "=T"})}) {
      WatchedDesk desk;
      desk.fakes.files.Put(path, bytes);
      desk.Start();
      desk.Deck().UserClose();
      desk.fakes.dialogs.files = {path};
      desk.Frame().importTextFile.Press();
      CHECK(desk.Deck().card.CardText().find(DoubleAmps(text)) != Text::npos);
      desk.CheckNothingElse(path);
    }
  }
}

TEST_CASE("any text goes to the sheet and to the page as it stands") {
  for (const Text& text : kHostileTexts) {
    CAPTURE(ToUtf8(text));
    PrintDesk sheets(1);
    sheets.state.deck.cardGrid.Set(1, kCardText, text);
    sheets.state.deck.cardGrid.Set(1, kBackText, text);
    sheets.ChoosePrinter();
    sheets.OpenTicked(1).print.Press();
    REQUIRE(sheets.server.sheets.size() == 2);
    CHECK(sheets.server.sheets[0].at("A1") == text);
    CHECK(sheets.server.sheets[1].at("C1") == text);

    PrintDesk pages(2);
    pages.surface.pageWidth = 1000000;
    pages.state.deck.title = text;
    // The heading of a card stands above the texts of the next one.
    pages.state.deck.cardGrid.Set(2, kCardText, text);
    PrintWindow& window = pages.OpenTicked(1);
    window.flatSheet.SetTicked(true);
    pages.ChoosePrinter();
    window.print.Press();
    CHECK(pages.surface.record.Count("Line TITLE: " + ToUtf8(text)) == 1);
    CHECK(pages.surface.record.Count("Line " + ToUtf8(text)) == 1);
  }
}

TEST_CASE("any name of a deck is in the title and the boxes as it stands") {
  for (const Text& name : kHostileNames) {
    CAPTURE(ToUtf8(name));
    WatchedDesk desk;
    const Text path = u"/decks/" + name;
    desk.fakes.files.Put(path, ProgramDesk::DeckBytes(1));
    desk.Start(path);
    CHECK(desk.Deck().Caption() == name.substr(0, name.find(u'.')) + u"  [STUDY]");
    desk.program.Windows().Run([&] { desk.Deck().SaveDeck(); });
    CHECK(desk.fakes.messages.shown.back().text == u"This file has been saved to " + path);
    desk.CheckNothingElse(path);
  }
}

}  // namespace tessara::test
