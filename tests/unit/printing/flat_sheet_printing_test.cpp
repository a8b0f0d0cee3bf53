#include <algorithm>
#include <doctest/doctest.h>

#include "base/run_time_error.h"
#include "printing/print_window.h"
#include "tests/unit/printing/print_fixture.h"

namespace tessara {
namespace {

using test::PrintFixture;
using Calls = std::vector<std::string>;
using Shown = test::FakeMessages::Shown;

/// A print window in flat mode.
PrintWindow& OpenFlat(PrintFixture& fixture, int ticked) {
  PrintWindow& window = fixture.OpenTicked(ticked);
  window.flatSheet.SetTicked(true);
  return window;
}

Calls PrintFlat(PrintFixture& fixture, int ticked) {
  PrintWindow& window = OpenFlat(fixture, ticked);
  fixture.ChoosePrinter();
  window.print.Press();
  return fixture.surface.record.Take();
}

void DescribeDeck(ProgramState& state) {
  state.deck.title = u"Capitals";
  state.deck.author = u"Ada";
  state.deck.date = u"1/5/2026";
  state.deck.description = u"of Europe";
  state.deck.typeName = u"Standard";
}

const Calls kHeader{"Destination /home/me/cards.pdf",
                    "Copies 1",
                    "Copies 1",
                    "Font Arial",
                    "Size 9",
                    "Line TITLE: Capitals",
                    "Line CREATED BY: Ada",
                    "Line DATE: 1/5/2026",
                    "Line DESCRIPTION: of Europe\r\nDECK TYPE: Standard",
                    "Line ",
                    "Line Total Cards: 3",
                    "Line "};

TEST_CASE("a flat document lists the ticked cards below a header, texts one row too far") {
  PrintFixture fixture;
  DescribeDeck(fixture.state);
  Calls expected = kHeader;
  const Calls body{"Font Arial", "Size 10",      "Bold on",     "Rule 0 1600 4000 1600",
                   "Line ",      "Line Card #1", "Bold off",    "Line front 2",
                   "Line ",      "Italic on",    "Line back 2", "Line ",
                   "Italic off", "Italic off",   "Italic off",  "End",
                   "Box PRINT"};
  expected.insert(expected.end(), body.begin(), body.end());
  CHECK(PrintFlat(fixture, 1) == expected);
  CHECK(fixture.server.record.calls == Calls{"Box PRINT"});
}

TEST_CASE("the block of the last card is empty and the texts of card 1 are never printed") {
  PrintFixture fixture;
  const Calls calls = PrintFlat(fixture, 3);
  const auto has = [&calls](const char* line) {
    return std::find(calls.begin(), calls.end(), line) != calls.end();
  };
  CHECK_FALSE(has("Line front 1"));
  CHECK_FALSE(has("Line back 1"));
  const auto last = std::find(calls.begin(), calls.end(), "Line Card #3");
  REQUIRE(last != calls.end());
  CHECK(Calls(last + 1, calls.end()) == Calls{"Bold off", "Line ", "Line ", "Italic on", "Line ",
                                              "Line ", "Italic off", "End", "Box PRINT"});
}

TEST_CASE("the header counts all cards of the deck") {
  PrintFixture fixture(5);
  fixture.Open();
  const Calls calls = PrintFlat(fixture, 1);
  CHECK(std::find(calls.begin(), calls.end(), "Line Total Cards: 5") != calls.end());
}

TEST_CASE("an extended deck has its answers for backs") {
  PrintFixture fixture;
  fixture.state.deck.kind = kExtendedDeck;
  fixture.state.deck.cardGrid.Set(2, kAnswer, u"T");
  const Calls calls = PrintFlat(fixture, 1);
  const auto italic = std::find(calls.begin(), calls.end(), "Italic on");
  REQUIRE(italic != calls.end());
  CHECK(*(italic + 1) == "Line TRUE");
}

TEST_CASE("a document leaves the number of the last ticked card and no position behind") {
  PrintFixture fixture(4);
  fixture.state.printing.flatLastY = 77;
  PrintFlat(fixture, 2);
  CHECK(fixture.state.deck.currentCard == 2);
  CHECK(fixture.state.printing.flatLastY == 0);
}

TEST_CASE("each further flat copy is asked for and is a whole document") {
  for (const bool wanted : {true, false}) {
    CAPTURE(wanted);
    PrintFixture fixture;
    PrintWindow& window = OpenFlat(fixture, 1);
    fixture.ChoosePrinter(2);
    fixture.fakes.messages.answers = {wanted ? MessageAnswer::kYes : MessageAnswer::kNo};
    window.print.Press();
    const auto& shown = fixture.fakes.messages.shown;
    REQUIRE(shown.size() == 2);
    constexpr int kFlags = 36;
    CHECK(shown[0] ==
          Shown{u"Perparing to print copy # 2 of 2, do want to continue?", kFlags, u"Print Cards"});
    CHECK(shown[1].title == u"PRINT");
    CHECK(fixture.surface.record.Count("End") == (wanted ? 2 : 1));
    CHECK(fixture.surface.record.Count("Copies 1") == (wanted ? 3 : 2));
    CHECK_FALSE(fixture.state.printing.cancelled);
  }
}

TEST_CASE("a word wider than the page drops the document, and the next one starts afresh") {
  PrintFixture fixture;
  fixture.state.deck.cardGrid.Set(2, kCardText, Text(41, u'x'));
  PrintWindow& window = OpenFlat(fixture, 1);
  fixture.ChoosePrinter();
  bool flagBehindTheBox = true;
  fixture.fakes.messages.whileShown = [&](const Shown&) {
    flagBehindTheBox = fixture.state.printing.cancelled;
  };
  window.print.Press();
  CHECK(fixture.fakes.messages.Take() ==
        std::vector<Shown>{{u"Printing was cancelled", kOkOnly, u"Cancel Printing"}});
  CHECK_FALSE(flagBehindTheBox);
  CHECK(fixture.state.printing.cancelled);
  CHECK(fixture.surface.record.Count("End") == 0);
  CHECK(fixture.surface.record.calls.back() == "Drop");
  CHECK(fixture.state.printing.flatLastY == 1000);

  fixture.state.deck.cardGrid.Set(2, kCardText, u"short");
  fixture.ChoosePrinter();
  window.print.Press();
  CHECK(fixture.surface.record.Count("End") == 1);
  CHECK(fixture.state.printing.flatLastY == 0);
}

TEST_CASE("an error of any operation of the surface cancels the flat job") {
  const char* failures[] = {"Destination", "Copies",      "Font",       "Size",
                            "Line TITLE",  "Rule",        "Bold on",    "Line front 2",
                            "Italic on",   "Line back 2", "Italic off", "End"};
  for (const char* failing : failures) {
    CAPTURE(failing);
    PrintFixture fixture;
    PrintWindow& window = OpenFlat(fixture, 1);
    fixture.ChoosePrinter();
    fixture.surface.record.FailAt(failing, ErrorNumber::kPrinterError);
    window.print.Press();
    CHECK(fixture.fakes.messages.shown ==
          std::vector<Shown>{{u"Printing was cancelled", kOkOnly, u"Cancel Printing"}});
    CHECK(fixture.surface.record.Count("Drop") == 1);
    CHECK(fixture.state.printing.cancelled);
  }
}

TEST_CASE("flat sheets need no spreadsheet server") {
  PrintFixture fixture;
  fixture.state.printing.canPrintCards = false;
  PrintWindow& window = fixture.OpenTicked(1);
  fixture.ChoosePrinter();
  window.print.Press();
  CHECK(fixture.surface.record.Count("End") == 1);
  CHECK(fixture.server.record.calls == Calls{"Box PRINT"});
}

}  // namespace
}  // namespace tessara
