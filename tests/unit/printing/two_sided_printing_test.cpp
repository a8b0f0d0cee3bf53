#include <algorithm>
#include <doctest/doctest.h>

#include "base/run_time_error.h"
#include "printing/print_window.h"
#include "tests/unit/printing/print_fixture.h"

namespace tessara {
namespace {

using test::PrintFixture;
using Calls = std::vector<std::string>;
using Cells = test::RecordingSpreadsheet::Cells;
using Shown = test::FakeMessages::Shown;

constexpr TextView kNote = u"ALL SELECTED CARDS PRINTED";

/// Prints the first cards of a deck of that many and returns the sheets.
std::vector<Cells> Print(PrintFixture& fixture, int cards, bool flip) {
  PrintWindow& window = fixture.OpenTicked(cards);
  window.flipPrint.SetTicked(flip);
  fixture.ChoosePrinter();
  window.print.Press();
  return fixture.server.sheets;
}

TEST_CASE("one card makes one sheet of each side, in this order of calls") {
  const Calls frontFonts{"Font A1:C7 Arial", "Size A1:C7 12", "Size C6 10"};
  const Calls backFonts{"Font A1:C7 Courier New", "Size A1:C7 11", "Size C6 10"};
  Calls expected{"Bind /opt/tessara/Notelet.xlt", "ActiveSheet", "Alerts off",
                 "Destination /home/me/cards.pdf", "Box PRINT FRONT"};
  const auto add = [&expected](const Calls& calls) {
    expected.insert(expected.end(), calls.begin(), calls.end());
  };
  add(frontFonts);
  add({"A1 = front 1"});
  add(frontFonts);
  add({"A3 = ALL SELECTED CARDS PRINTED", "C6 = ' Page 1 - Front ^^", "Print"});
  add({"A1 = ", "A3 = ", "A5 = ", "A7 = ", "C1 = ", "C3 = ", "C5 = ", "C7 = ", "Box PRINT BACK"});
  add(backFonts);
  add({"C1 = back 1"});
  add(backFonts);
  add({"C3 = ALL SELECTED CARDS PRINTED", "C6 = ' Page 1 - Back ", "Print", "Finish", "Close",
       "Box PRINT"});

  PrintFixture fixture(1);
  Print(fixture, 1, false);
  CHECK(fixture.server.record.calls == expected);
  CHECK(fixture.surface.record.calls == Calls{"Destination /home/me/cards.pdf", "Copies 1",
                                              "Box PRINT FRONT", "Box PRINT BACK", "Box PRINT"});
}

TEST_CASE("the choice of turning is read at each placement") {
  PrintFixture fixture(1);
  fixture.fakes.messages.whileShown = [&fixture](const Shown& box) {
    if (box.title == u"PRINT BACK") fixture.window->flipPrint.SetTicked(true);
  };
  CHECK(Print(fixture, 1, false).back().contains("A7"));
}

TEST_CASE("the boxes ask for the paper") {
  PrintFixture fixture;
  Print(fixture, 1, false);
  const auto& shown = fixture.fakes.messages.shown;
  REQUIRE(shown.size() == 3);
  CHECK(shown[0] == Shown{u"Insert Sheet for Front Card printing", kOkOnly, u"PRINT FRONT"});
  CHECK(shown[1] == Shown{u"Insert Sheet for Back Card printing", kOkOnly, u"PRINT BACK"});
}

TEST_CASE("the backs of one card and its note lie behind their fronts in both ways of turning") {
  struct Case {
    bool flip;
    Cells front;
    Cells back;
  };
  const Case cases[] = {
      {false,
       {{"A1", u"front 1"}, {"A3", Text(kNote)}, {"C6", u"' Page 1 - Front ^^"}},
       {{"C1", u"back 1"}, {"C3", Text(kNote)}, {"C6", u"' Page 1 - Back "}}},
      {true,
       {{"A1", u"front 1"}, {"A3", Text(kNote)}, {"C6", u"' Page 1 - Front VV"}},
       {{"A7", u"back 1"}, {"A5", Text(kNote)}, {"C6", u"' Page 1 - Back "}}},
  };
  for (const Case& c : cases) {
    CAPTURE(c.flip);
    PrintFixture fixture;
    CHECK(Print(fixture, 1, c.flip) == std::vector<Cells>{c.front, c.back});
  }
}

TEST_CASE("eight cards fill a sheet without a note") {
  PrintFixture fixture(8);
  const std::vector<Cells> sheets = Print(fixture, 8, false);
  REQUIRE(sheets.size() == 2);
  CHECK(sheets[0] == Cells{{"A1", u"front 1"},
                           {"A3", u"front 2"},
                           {"A5", u"front 3"},
                           {"A7", u"front 4"},
                           {"C1", u"front 5"},
                           {"C3", u"front 6"},
                           {"C5", u"front 7"},
                           {"C7", u"front 8"},
                           {"C6", u"' Page 1 - Front ^^"}});
  CHECK(sheets[1] == Cells{{"C1", u"back 1"},
                           {"C3", u"back 2"},
                           {"C5", u"back 3"},
                           {"C7", u"back 4"},
                           {"A1", u"back 5"},
                           {"A3", u"back 6"},
                           {"A5", u"back 7"},
                           {"A7", u"back 8"},
                           {"C6", u"' Page 1 - Back "}});
}

TEST_CASE("the ninth card goes to the second sheet, its note behind it") {
  PrintFixture fixture(9);
  const std::vector<Cells> sheets = Print(fixture, 9, true);
  REQUIRE(sheets.size() == 4);
  CHECK(sheets[0].at("C6") == u"' Page 1 - Front VV");
  CHECK(sheets[1] ==
        Cells{{"A1", u"front 9"}, {"A3", Text(kNote)}, {"C6", u"' Page 2 - Front VV"}});
  CHECK(sheets[3] == Cells{{"A7", u"back 9"}, {"A5", Text(kNote)}, {"C6", u"' Page 2 - Back "}});
}

TEST_CASE("a full sheet gets its page line, is printed, and only then is cleared") {
  PrintFixture fixture(9);
  Print(fixture, 9, false);
  const Calls& calls = fixture.server.record.calls;
  const auto print = std::find(calls.begin(), calls.end(), "Print");
  REQUIRE(print != calls.end());
  CHECK(*(print - 1) == "C6 = ' Page 1 - Front ^^");
  CHECK(Calls(print + 1, print + 10) == Calls{"A1 = ", "A3 = ", "A5 = ", "A7 = ", "C1 = ", "C3 = ",
                                              "C5 = ", "C7 = ", "Font A1:C7 Arial"});
}

TEST_CASE("a pass prints a sheet for each eight cards and its last one tells its number") {
  struct Case {
    int cards;
    std::size_t sheets;
    bool note;
  };
  for (const Case& c : {Case{1, 1, true}, Case{7, 1, true}, Case{8, 1, false}, Case{9, 2, true},
                        Case{16, 2, false}, Case{17, 3, true}, Case{200, 25, false}}) {
    CAPTURE(c.cards);
    PrintFixture fixture(c.cards);
    const std::vector<Cells> sheets = Print(fixture, c.cards, false);
    REQUIRE(sheets.size() == 2 * c.sheets);
    const Text number = DecimalText(static_cast<long>(c.sheets));
    CHECK(sheets[c.sheets - 1].at("C6") == u"' Page " + number + u" - Front ^^");
    CHECK(sheets.back().at("C6") == u"' Page " + number + u" - Back ");
    for (const Cells& sheet : {sheets[c.sheets - 1], sheets.back()}) {
      const bool hasNote = std::any_of(sheet.begin(), sheet.end(),
                                       [](const auto& cell) { return cell.second == kNote; });
      CHECK(hasNote == c.note);
    }
  }
}

TEST_CASE("only the ticked cards are printed, in the order of the list") {
  PrintFixture fixture(6);
  PrintWindow& window = fixture.Open();
  fixture.Tick(5);
  fixture.Tick(2);
  fixture.ChoosePrinter();
  window.print.Press();
  CHECK(fixture.server.sheets[0].at("A1") == u"front 2");
  CHECK(fixture.server.sheets[0].at("A3") == u"front 5");
  CHECK(fixture.server.sheets[0].at("A5") == kNote);
}

TEST_CASE("the server and the print surface go where the dialog says, with one copy each") {
  PrintFixture fixture;
  PrintWindow& window = fixture.OpenTicked(1);
  fixture.fakes.dialogs.printers.emplace_back(PrinterChoice{{u"Office", u""}, 1});
  window.print.Press();
  CHECK(fixture.server.record.Count("Destination Office") == 1);
  CHECK(fixture.surface.record.calls.front() == "Destination Office");
  CHECK(fixture.surface.record.Count("Copies 1") == 1);
}

TEST_CASE("each further copy is asked for, and a No ends the job without a failure") {
  PrintFixture fixture;
  PrintWindow& window = fixture.OpenTicked(1);
  fixture.ChoosePrinter(3);
  fixture.fakes.messages.answers = {MessageAnswer::kYes, MessageAnswer::kNo};
  window.print.Press();
  CHECK(fixture.server.sheets.size() == 4);
  const std::vector<Shown> shown = fixture.fakes.messages.shown;
  REQUIRE(shown.size() == 7);
  constexpr int kFlags = 36;
  CHECK(shown[2] ==
        Shown{u"Perparing to print copy # 2 of 3, do want to continue?", kFlags, u"Print Cards"});
  CHECK(shown[5].text == u"Perparing to print copy # 3 of 3, do want to continue?");
  CHECK(shown[6].text == u"capitals has finished printing.");
  CHECK(fixture.server.record.Count("Finish") == 1);
  CHECK_FALSE(fixture.state.printing.cancelled);
}

TEST_CASE("no copy at all prints nothing and is no failure") {
  PrintFixture fixture;
  PrintWindow& window = fixture.OpenTicked(1);
  fixture.ChoosePrinter(0);
  window.print.Press();
  CHECK(fixture.server.sheets.empty());
  CHECK(fixture.fakes.messages.shown.back().title == u"PRINT");
}

TEST_CASE(
    "the fronts of a second copy carry the first copy's last backs where they write nothing") {
  PrintFixture fixture;
  PrintWindow& window = fixture.OpenTicked(3);
  fixture.ChoosePrinter(2);
  fixture.fakes.messages.answers = {MessageAnswer::kYes};
  window.print.Press();
  REQUIRE(fixture.server.sheets.size() == 4);
  CHECK(fixture.server.sheets[2] == Cells{{"A1", u"front 1"},
                                          {"A3", u"front 2"},
                                          {"A5", u"front 3"},
                                          {"A7", Text(kNote)},
                                          {"C1", u"back 1"},
                                          {"C3", u"back 2"},
                                          {"C5", u"back 3"},
                                          {"C7", Text(kNote)},
                                          {"C6", u"' Page 1 - Front ^^"}});
  CHECK(fixture.server.sheets[3] == fixture.server.sheets[1]);
}

TEST_CASE("a card without an answer takes its slot with an empty back") {
  PrintFixture fixture(2);
  fixture.state.deck.kind = kExtendedDeck;
  fixture.state.deck.cardGrid.Set(1, kAnswer, u"?");
  fixture.state.deck.cardGrid.Set(2, kAnswer, u"T");
  const std::vector<Cells> sheets = Print(fixture, 2, false);
  CHECK(fixture.server.record.Count("C1 = ") == 2);  // the clearing is the other one
  CHECK(sheets[1] == Cells{{"C3", u"TRUE"}, {"C5", Text(kNote)}, {"C6", u"' Page 1 - Back "}});
}

TEST_CASE("a cancelled printer dialog prints nothing, and the job closes") {
  PrintFixture fixture;
  PrintWindow& window = fixture.OpenTicked(1);
  fixture.CancelPrinter();
  window.print.Press();
  CHECK(fixture.server.record.calls == Calls{"Bind /opt/tessara/Notelet.xlt", "ActiveSheet",
                                             "Alerts off", "Box Cancel Printing", "Close"});
  CHECK(fixture.surface.record.calls == Calls{"Box Cancel Printing"});
}

TEST_CASE("an error of any operation ends the printing, keeps its sheets, and the job closes") {
  const char* failures[] = {"Destination", "Font",  "Size A1", "Size C6", "A1 = front",
                            "A3 = ALL",    "C6 = ", "Print",   "A1 = ",   "C1 = back"};
  for (const char* failing : failures) {
    CAPTURE(failing);
    PrintFixture fixture;
    PrintWindow& window = fixture.OpenTicked(1);
    fixture.ChoosePrinter();
    fixture.server.record.FailAt(failing, ErrorNumber::kAutomationError);
    window.print.Press();
    CHECK(fixture.fakes.messages.shown.back() ==
          Shown{u"Printing was cancelled", kOkOnly, u"Cancel Printing"});
    CHECK(fixture.server.record.calls.back() == "Close");
    const bool begun = std::string(failing) != "Destination";
    CHECK(fixture.server.record.Count("Finish") == (begun ? 1 : 0));
    CHECK_FALSE(fixture.state.printing.cancelled);
    CHECK(window.print.Enabled());
  }
}

TEST_CASE("a missing object is told in other words than all other errors") {
  struct Case {
    ErrorNumber number;
    Shown box;
  };
  const Shown cancelled{u"Printing was cancelled", kOkOnly, u"Cancel Printing"};
  const Case cases[] = {
      {ErrorNumber::kObjectRequired,
       {u"An unspecified printing error has occured. Ensure that the printer is ready.", kOkOnly,
        u"Error Printing Cards"}},
      {ErrorNumber::kAutomationClassNotFound, cancelled},
      {ErrorNumber::kAutomationError, cancelled},
      {ErrorNumber::kPrinterError, cancelled},
      {ErrorNumber::kDiskFull, cancelled},
  };
  for (const Case& c : cases) {
    PrintFixture fixture;
    PrintWindow& window = fixture.OpenTicked(1);
    fixture.ChoosePrinter();
    fixture.server.record.FailAt("Print", c.number);
    window.print.Press();
    CHECK(fixture.fakes.messages.shown.back() == c.box);
  }
}

TEST_CASE("an error in sending the sheets off cancels the job, told once") {
  for (const char* failing : {"Finish", "Print"}) {
    CAPTURE(failing);
    PrintFixture fixture;
    PrintWindow& window = fixture.OpenTicked(1);
    fixture.ChoosePrinter();
    fixture.server.record.FailAt(failing, ErrorNumber::kDiskFull);
    window.print.Press();
    CHECK(fixture.server.record.Count("Box Cancel Printing") == 1);
    CHECK(fixture.server.record.Count("Finish") == 1);
    CHECK(fixture.server.record.Count("Box PRINT") == 0);
  }
}

TEST_CASE("a printer that can't be set up cancels the job before its first sheet") {
  PrintFixture fixture;
  PrintWindow& window = fixture.OpenTicked(1);
  fixture.ChoosePrinter();
  fixture.surface.record.FailAt("Copies", ErrorNumber::kPrinterError);
  window.print.Press();
  CHECK(fixture.server.sheets.empty());
  CHECK(fixture.fakes.messages.shown.back().title == u"Cancel Printing");
}

}  // namespace
}  // namespace tessara
