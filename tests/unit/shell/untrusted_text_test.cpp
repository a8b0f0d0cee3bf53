// Whatever a deck or a text to import says is shown, and does nothing else.

#include <doctest/doctest.h>
#include <set>

#include "base/utf8.h"
#include "deck/card_display.h"
#include "tests/support/hostile_texts.h"
#include "tests/support/program_fixture.h"
#include "tests/support/window_tour.h"
#include "tests/unit/import/text_file.h"
#include "tests/unit/printing/print_fixture.h"

namespace tessara::test {

namespace {

const Text kDeck = u"/decks/birds.tsr";

/// The program, with a note of every path that it has asked the disk about.
struct WatchedFixture : ProgramFixture {
  std::set<Text> paths;
  WindowTour tour{program, fakes, [] {}};

  WatchedFixture() {
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
    WatchedFixture fixture;
    fixture.fakes.files.Put(kDeck, DeckSaying(text, u"E"));
    fixture.Start(kDeck);
    const Text shown = DoubleAmps(text);
    CHECK(fixture.Deck().card.CardText() == shown);
    fixture.Deck().flip.Press();
    CHECK(fixture.Deck().card.CardText() == shown);
    fixture.Deck().arrows[kNextCard].Press();
    fixture.Deck().quiz.Press();
    fixture.Deck().test.Press();
    CHECK(fixture.Deck().card.CardText() == shown);
    fixture.Deck().study.Press();
    fixture.tour.GoRound();
    fixture.CheckNothingElse(kDeck);
  }
}

TEST_CASE("any text of a question is on the card, the answer and the choices as it stands") {
  for (const Text& text : kHostileTexts) {
    CAPTURE(ToUtf8(text));
    WatchedFixture fixture;
    fixture.fakes.files.Put(kDeck, DeckSaying(text, u"M"));
    fixture.Start(kDeck);
    CHECK(fixture.Deck().card.CardText() == DoubleAmps(text));
    CHECK(fixture.Deck().answer.Caption().find(DoubleAmps(text)) != Text::npos);
    fixture.Deck().test.Press();
    for (const OptionButton& option : fixture.Deck().choices) CHECK(option.Caption() == text);
    fixture.Deck().choices[1].Press();
    fixture.Deck().nextOrScore.Press();
    fixture.CheckNothingElse(kDeck);
  }
}

TEST_CASE("any text of a deck is in the builders and the information window as it stands") {
  for (const Text& text : kHostileTexts) {
    CAPTURE(ToUtf8(text));
    WatchedFixture fixture;
    fixture.fakes.files.Put(kDeck, DeckSaying(text, u"E"));
    fixture.Start(kDeck);
    fixture.Deck().deckInfo.Press();
    // A blank stands in front.
    for (const TextBox& box : fixture.program.InfoWindow()->fields)
      CHECK(Trimmed(box.TextOf()) == text);
    fixture.program.InfoWindow()->UserClose();
    fixture.Deck().createOrEditCard.Press();
    CHECK(fixture.program.TextBuilder()->sides[kFrontSide].TextOf() == text);
    CHECK(fixture.program.TextBuilder()->sides[kBackSide].TextOf() == text);
    fixture.CheckNothingElse(kDeck);
  }
}

TEST_CASE("any text comes through a save as it stands") {
  for (const Text& text : kHostileTexts) {
    WatchedFixture fixture;
    fixture.fakes.files.Put(kDeck, DeckSaying(text, u"E"));
    fixture.Start(kDeck);
    fixture.program.Windows().Run([&] { fixture.Deck().SaveDeck(); });
    CHECK(fixture.fakes.messages.shown.back().text == u"This file has been saved to " + kDeck);
    WatchedFixture next;
    next.fakes.files.Put(kDeck, fixture.fakes.files.Bytes(kDeck));
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
      WatchedFixture fixture;
      fixture.fakes.files.Put(path, bytes);
      fixture.Start();
      fixture.Deck().UserClose();
      fixture.fakes.dialogs.files = {path};
      fixture.Frame().importTextFile.Press();
      CHECK(fixture.Deck().card.CardText().find(DoubleAmps(text)) != Text::npos);
      fixture.CheckNothingElse(path);
    }
  }
}

TEST_CASE("any text goes to the sheet and to the page as it stands") {
  for (const Text& text : kHostileTexts) {
    CAPTURE(ToUtf8(text));
    PrintFixture sheets(1);
    sheets.state.deck.cardGrid.Set(1, kCardText, text);
    sheets.state.deck.cardGrid.Set(1, kBackText, text);
    sheets.ChoosePrinter();
    sheets.OpenTicked(1).print.Press();
    REQUIRE(sheets.server.sheets.size() == 2);
    CHECK(sheets.server.sheets[0].at("A1") == text);
    CHECK(sheets.server.sheets[1].at("C1") == text);

    PrintFixture pages(2);
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
    WatchedFixture fixture;
    const Text path = u"/decks/" + name;
    fixture.fakes.files.Put(path, ProgramFixture::DeckBytes(1));
    fixture.Start(path);
    CHECK(fixture.Deck().Caption() == name.substr(0, name.find(u'.')) + u"  [STUDY]");
    fixture.program.Windows().Run([&] { fixture.Deck().SaveDeck(); });
    CHECK(fixture.fakes.messages.shown.back().text == u"This file has been saved to " + path);
    fixture.CheckNothingElse(path);
  }
}

}  // namespace tessara::test
