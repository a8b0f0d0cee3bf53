#include <algorithm>
#include <doctest/doctest.h>

#include "base/run_time_error.h"
#include "printing/print_window.h"
#include "tests/unit/printing/print_desk.h"

namespace tessara {
namespace {

using test::PrintDesk;
using Calls = std::vector<std::string>;
using Shown = test::FakeMessages::Shown;

/// A print window in flat mode.
PrintWindow& OpenFlat(PrintDesk& desk, int ticked) {
  PrintWindow& window = desk.OpenTicked(ticked);
  window.flatSheet.SetTicked(true);
  return window;
}

Calls PrintFlat(PrintDesk& desk, int ticked) {
  PrintWindow& window = OpenFlat(desk, ticked);
  desk.ChoosePrinter();
  window.print.Press();
  return desk.surface.record.Take();
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
  PrintDesk desk;
  DescribeDeck(desk.state);
  Calls expected = kHeader;
  const Calls body{"Font Arial", "Size 10",      "Bold on",     "Rule 0 1600 4000 1600",
                   "Line ",      "Line Card #1", "Bold off",    "Line front 2",
                   "Line ",      "Italic on",    "Line back 2", "Line ",
                   "Italic off", "Italic off",   "Italic off",  "End",
                   "Box PRINT"};
  expected.insert(expected.end(), body.begin(), body.end());
  CHECK(PrintFlat(desk, 1) == expected);
  CHECK(desk.server.record.calls == Calls{"Box PRINT"});
}

TEST_CASE("the block of the last card is empty and the texts of card 1 are never printed") {
  PrintDesk desk;
  const Calls calls = PrintFlat(desk, 3);
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
  PrintDesk desk(5);
  desk.Open();
  const Calls calls = PrintFlat(desk, 1);
  CHECK(std::find(calls.begin(), calls.end(), "Line Total Cards: 5") != calls.end());
}

TEST_CASE("an extended deck has its answers for backs") {
  PrintDesk desk;
  desk.state.deck.kind = kExtendedDeck;
  desk.state.deck.cardGrid.Set(2, kAnswer, u"T");
  const Calls calls = PrintFlat(desk, 1);
  const auto italic = std::find(calls.begin(), calls.end(), "Italic on");
  REQUIRE(italic != calls.end());
  CHECK(*(italic + 1) == "Line TRUE");
}

TEST_CASE("a document leaves the number of the last ticked card and no position behind") {
  PrintDesk desk(4);
  desk.state.printing.flatLastY = 77;
  PrintFlat(desk, 2);
  CHECK(desk.state.deck.currentCard == 2);
  CHECK(desk.state.printing.flatLastY == 0);
}

TEST_CASE("each further flat copy is asked for and is a whole document") {
  for (const bool wanted : {true, false}) {
    CAPTURE(wanted);
    PrintDesk desk;
    PrintWindow& window = OpenFlat(desk, 1);
    desk.ChoosePrinter(2);
    desk.fakes.messages.answers = {wanted ? MessageAnswer::kYes : MessageAnswer::kNo};
    window.print.Press();
    const auto& shown = desk.fakes.messages.shown;
    REQUIRE(shown.size() == 2);
    constexpr int kFlags = 36;
    CHECK(shown[0] ==
          Shown{u"Perparing to print copy # 2 of 2, do want to continue?", kFlags, u"Print Cards"});
    CHECK(shown[1].title == u"PRINT");
    CHECK(desk.surface.record.Count("End") == (wanted ? 2 : 1));
    CHECK(desk.surface.record.Count("Copies 1") == (wanted ? 3 : 2));
    CHECK_FALSE(desk.state.printing.cancelled);
  }
}

TEST_CASE("a word wider than the page drops the document, and the next one starts afresh") {
  PrintDesk desk;
  desk.state.deck.cardGrid.Set(2, kCardText, Text(41, u'x'));
  PrintWindow& window = OpenFlat(desk, 1);
  desk.ChoosePrinter();
  bool flagBehindTheBox = true;
  desk.fakes.messages.whileShown = [&](const Shown&) {
    flagBehindTheBox = desk.state.printing.cancelled;
  };
  window.print.Press();
  CHECK(desk.fakes.messages.Take() ==
        std::vector<Shown>{{u"Printing was cancelled", kOkOnly, u"Cancel Printing"}});
  CHECK_FALSE(flagBehindTheBox);
  CHECK(desk.state.printing.cancelled);
  CHECK(desk.surface.record.Count("End") == 0);
  CHECK(desk.surface.record.calls.back() == "Drop");
  CHECK(desk.state.printing.flatLastY == 1000);

  desk.state.deck.cardGrid.Set(2, kCardText, u"short");
  desk.ChoosePrinter();
  window.print.Press();
  CHECK(desk.surface.record.Count("End") == 1);
  CHECK(desk.state.printing.flatLastY == 0);
}

TEST_CASE("an error of any operation of the surface cancels the flat job") {
  const char* failures[] = {"Destination", "Copies",      "Font",       "Size",
                            "Line TITLE",  "Rule",        "Bold on",    "Line front 2",
                            "Italic on",   "Line back 2", "Italic off", "End"};
  for (const char* failing : failures) {
    CAPTURE(failing);
    PrintDesk desk;
    PrintWindow& window = OpenFlat(desk, 1);
    desk.ChoosePrinter();
    desk.surface.record.FailAt(failing, ErrorNumber::kPrinterError);
    window.print.Press();
    CHECK(desk.fakes.messages.shown ==
          std::vector<Shown>{{u"Printing was cancelled", kOkOnly, u"Cancel Printing"}});
    CHECK(desk.surface.record.Count("Drop") == 1);
    CHECK(desk.state.printing.cancelled);
  }
}

TEST_CASE("flat sheets need no spreadsheet server") {
  PrintDesk desk;
  desk.state.printing.canPrintCards = false;
  PrintWindow& window = desk.OpenTicked(1);
  desk.ChoosePrinter();
  window.print.Press();
  CHECK(desk.surface.record.Count("End") == 1);
  CHECK(desk.server.record.calls == Calls{"Box PRINT"});
}

}  // namespace
}  // namespace tessara
