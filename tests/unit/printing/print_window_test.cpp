#include "printing/print_window.h"

#include <doctest/doctest.h>

#include "base/run_time_error.h"
#include "tests/unit/printing/print_fixture.h"

namespace tessara {
namespace {

using test::FakeMessages;
using test::PrintFixture;
using Shown = FakeMessages::Shown;

constexpr TextView kDisabledText =
    u"Card printing has been disabled for this computer. Either you have the wrong version of "
    u"Excel [Excel 97 or greater required] or the Notelet.xlt file is missing from the Tessara "
    u"program directory.";

std::string PictureName(const PrintWindow& window) {
  return window.turning.PictureOf().file;
}

/// The print controls: check boxes as "ticked enabled", then picture, note, print button.
struct Controls {
  bool flatTicked, flatEnabled;
  bool flipTicked, flipEnabled;
  std::string picture;
  bool note;
  bool print;
};

void CheckControls(const PrintWindow& window, const Controls& expected) {
  CHECK(window.flatSheet.Ticked() == expected.flatTicked);
  CHECK(window.flatSheet.Enabled() == expected.flatEnabled);
  CHECK(window.flipPrint.Ticked() == expected.flipTicked);
  CHECK(window.flipPrint.Enabled() == expected.flipEnabled);
  CHECK(PictureName(window) == "print/" + expected.picture + ".png");
  CHECK(window.flatOnly.Visible() == expected.note);
  CHECK(window.print.Enabled() == expected.print);
}

TEST_CASE("the window lists the cards and hides the deck window") {
  PrintFixture fixture(12);
  const PrintWindow& window = fixture.Open();
  CHECK(window.Visible());
  CHECK(window.Caption() == u"Print Cards");
  CHECK(window.Width() == 8685);
  CHECK(window.Height() == 5565);
  CHECK(window.Left() == (fixture.frame.width - 8685) / 2);
  CHECK(window.Top() == (fixture.frame.height - 5565) / 2);
  CHECK(window.cards.Count() == 12);
  CHECK(window.cards.Item(12).text == u"12");
  CHECK(window.cards.Item(12).subItems == std::vector<Text>{u"front 12"});
  CHECK(window.cards.ColumnWidth(1) == 1764);
  CHECK(window.cards.ColumnWidth(2) == 8175 - 1764 - 300);
  CHECK(window.flatSheet.ForeColor() == FixedColor(128, 64, 0));
  CHECK(window.available.Caption() == u"Available Cards: 12");
  CHECK(window.selected.Caption() == u"Number of cards selected for print: 0");
  CHECK_FALSE(fixture.deckSlot.Instance().Visible());
}

TEST_CASE("closing shows the deck window") {
  PrintFixture fixture;
  fixture.Open().close.Press();
  CHECK_FALSE(fixture.window.IsLoaded());
  CHECK(fixture.deckSlot.Instance().Visible());
  CHECK(fixture.server.record.calls.empty());
}

TEST_CASE("a click on the window closes the About box") {
  PrintFixture fixture;
  fixture.Open().UserClick();
  CHECK(fixture.frame.aboutClosed == 1);
}

TEST_CASE("the command tells that card printing is disabled, and opens the window all the same") {
  PrintFixture fixture;
  OpenPrintWindow(fixture.app, fixture.window);
  CHECK(fixture.fakes.messages.shown.empty());
  CHECK(fixture.window.IsLoaded());

  PrintFixture without;
  without.state.printing.canPrintCards = false;
  without.fakes.messages.whileShown = [&without](const Shown&) {
    CHECK_FALSE(without.window.IsLoaded());
  };
  OpenPrintWindow(without.app, without.window);
  CHECK(without.fakes.messages.shown ==
        std::vector<Shown>{{Text(kDisabledText), kStopIcon, u"Card Printing Disabled"}});
  CHECK(without.window.IsLoaded());
}

TEST_CASE("the print controls have four states") {
  for (const bool ticked : {false, true}) {
    CAPTURE(ticked);
    PrintFixture fixture;
    PrintWindow& window = fixture.OpenTicked(ticked ? 1 : 0);
    CheckControls(window, {false, true, false, true, "nonflip", false, ticked});
    window.flipPrint.Press();
    CheckControls(window, {false, true, true, true, "flip", false, ticked});
    window.flatSheet.Press();
    CheckControls(window, {true, true, false, false, "flip_disabled", false, ticked});

    PrintFixture without;
    without.state.printing.canPrintCards = false;
    CheckControls(without.OpenTicked(ticked ? 1 : 0),
                  {true, false, false, false, "flip_disabled", true, ticked});
  }
}

TEST_CASE("after a detour through flat mode the flip choice is unticked") {
  PrintFixture fixture;
  PrintWindow& window = fixture.Open();
  window.flipPrint.Press();
  window.flatSheet.Press();
  window.flatSheet.Press();
  CheckControls(window, {false, true, false, true, "nonflip", false, false});
}

TEST_CASE("flat mode can't be left where nothing else can print") {
  PrintFixture fixture;
  fixture.state.printing.canPrintCards = false;
  PrintWindow& window = fixture.Open();
  window.flatSheet.Press();
  window.flipPrint.Press();
  CheckControls(window, {true, false, false, false, "flip_disabled", true, false});
  window.flatSheet.SetTicked(false);
  CheckControls(window, {false, false, false, false, "flip_disabled", true, false});
}

TEST_CASE("the toggle button follows the last tick of a click") {
  PrintFixture fixture;
  PrintWindow& window = fixture.Open();
  const auto toggle = [&window] { return window.toggleAll.Caption(); };
  fixture.Tick(1);
  fixture.Tick(2);
  CHECK(toggle() == u"Select All");
  fixture.Tick(3);
  CHECK(toggle() == u"Deselect All");
  CHECK(window.AllChecked());
  fixture.Tick(2);
  CHECK(toggle() == u"Select All");
  CHECK_FALSE(window.AllChecked());
}

TEST_CASE("Select All ticks every card and turns into Deselect All") {
  for (const bool flat : {false, true}) {
    CAPTURE(flat);
    PrintFixture fixture;
    PrintWindow& window = fixture.Open();
    if (flat) window.flatSheet.Press();
    window.toggleAll.Press();
    CHECK(window.TickedCount() == 3);
    CHECK(window.toggleAll.Caption() == u"Deselect All");
    CHECK(window.selected.Caption() == u"Number of cards selected for print: 3");
    CHECK(window.print.Enabled());
    window.toggleAll.Press();
    CHECK(window.TickedCount() == 0);
    CHECK(window.toggleAll.Caption() == u"Select All");
    CHECK(window.selected.Caption() == u"Number of cards selected for print: 0");
    CHECK_FALSE(window.print.Enabled());
  }
}

TEST_CASE("ticking and unticking all touches the print button in flat mode alone") {
  PrintFixture fixture;
  PrintWindow& window = fixture.Open();
  window.SelectAll();
  CHECK_FALSE(window.print.Enabled());
  window.flatSheet.SetTicked(true);
  window.DeselectAll();
  CHECK_FALSE(window.print.Enabled());
  window.SelectAll();
  CHECK(window.print.Enabled());
}

TEST_CASE("the print button is to be enabled with a tick and a way to print") {
  struct Case {
    bool canPrint, flat, ticked, enabled;
  };
  for (const Case& c : {Case{true, false, true, true}, Case{true, true, true, true},
                        Case{true, false, false, false}, Case{false, true, true, true},
                        Case{false, true, false, false}, Case{false, false, true, false}}) {
    PrintFixture fixture;
    PrintWindow& window = fixture.OpenTicked(c.ticked ? 1 : 0);
    window.flatSheet.SetTicked(c.flat);
    fixture.state.printing.canPrintCards = c.canPrint;
    CHECK(window.CanPrint() == c.enabled);
  }
}

TEST_CASE("a click shows the back of the selected card and the counts") {
  PrintFixture fixture;
  PrintWindow& window = fixture.Open();
  window.cards.UserClick(2, ListView::HitPart::kText);
  CHECK(window.back.TextOf() == u"back 2");
  CHECK(window.selected.Caption() == u"Number of cards selected for print: 0");
  CHECK_FALSE(window.print.Enabled());
  window.cards.UserClick(3, ListView::HitPart::kCheckBox);
  CHECK(window.back.TextOf() == u"back 3");
  CHECK(window.selected.Caption() == u"Number of cards selected for print: 1");
  CHECK(window.available.Caption() == u"Available Cards: 3");
  CHECK(window.print.Enabled());
  window.cards.UserClick(0, ListView::HitPart::kText);
  CHECK(window.back.TextOf() == u"back 3");
}

TEST_CASE("in a list without cards a click and a key do nothing") {
  PrintFixture fixture(0);
  PrintWindow& window = fixture.Open();
  window.cards.UserClick(0, ListView::HitPart::kText);
  window.cards.UserKeyUp();
  CHECK(fixture.fakes.messages.Take().empty());
  CHECK(window.back.TextOf().empty());
  CHECK_FALSE(fixture.windows.ExitStatus());
}

TEST_CASE("a key shows the back of the card below, in other words, and leaves the print button") {
  PrintFixture fixture;
  PrintWindow& window = fixture.Open();
  window.available.SetCaption(u"as it was");
  window.cards.UserToggleByKey();
  window.cards.UserKeyUp();
  CHECK(window.back.TextOf() == u"back 2");
  CHECK(window.selected.Caption() == u"Number of cards to print: 1");
  CHECK(window.available.Caption() == u"as it was");
  CHECK_FALSE(window.print.Enabled());

  window.cards.UserSelectByKey(3);
  window.cards.UserKeyUp();
  CHECK(window.back.TextOf().empty());
  window.cards.UserToggleByKey();
  window.cards.UserSelectByKey(2);
  window.cards.UserToggleByKey();
  window.cards.UserKeyUp();
  CHECK(window.toggleAll.Caption() == u"Deselect All");
}

TEST_CASE("the sides of a card depend on the type of the deck") {
  PrintFixture fixture;
  const PrintWindow& window = fixture.Open();
  fixture.state.deck.cardGrid.Set(1, kChoiceC, u"third");
  const auto back = [&](DeckKind kind, const Text& answer) {
    fixture.state.deck.kind = kind;
    fixture.state.deck.cardGrid.Set(1, kAnswer, answer);
    return window.GetCardText(u"Back", 1);
  };
  CHECK(back(kStandardDeck, u"C") == u"back 1");
  CHECK(back(kExtendedDeck, u"C") == u"third");
  CHECK(back(kExtendedDeck, u"T") == u"TRUE");
  CHECK(back(kExtendedDeck, u"F") == u"FALSE");
  CHECK(back(kExtendedDeck, u"x").empty());
  CHECK(back(static_cast<DeckKind>(2), u"C").empty());
  CHECK(window.GetCardText(u"Front", 1).empty());
  for (const DeckKind kind : {kStandardDeck, kExtendedDeck}) {
    fixture.state.deck.kind = kind;
    CHECK(window.GetCardText(u"Front", 1) == u"front 1");
    CHECK(window.GetCardText(u"front", 1).empty());
    CHECK(window.GetCardText(u"", 1).empty());
  }
}

TEST_CASE("a click on a card of an extended deck shows its answer") {
  PrintFixture fixture;
  fixture.state.deck.kind = kExtendedDeck;
  fixture.state.deck.cardGrid.Set(2, kAnswer, u"T");
  PrintWindow& window = fixture.Open();
  window.cards.UserClick(2, ListView::HitPart::kText);
  CHECK(window.back.TextOf() == u"TRUE");
  window.cards.UserSelectByKey(1);
  window.cards.UserKeyUp();
  CHECK(window.back.TextOf() == u"TRUE");
}

TEST_CASE("the closing box names the deck, whatever the way of printing") {
  for (const bool flat : {false, true}) {
    CAPTURE(flat);
    PrintFixture fixture;
    PrintWindow& window = fixture.OpenTicked(2);
    window.flatSheet.SetTicked(flat);
    fixture.ChoosePrinter();
    window.print.Press();
    CHECK(fixture.fakes.messages.shown.back() ==
          Shown{u"capitals has finished printing.", kInformationIcon, u"PRINT"});
    CHECK_FALSE(fixture.state.printing.cancelled);
    CHECK(window.selected.Caption() == u"Number of cards selected for print: 2");
    CHECK(window.print.Enabled());
  }
}

TEST_CASE("the closing box of a deck without a file begins with a blank") {
  PrintFixture fixture;
  fixture.state.deck.filePath.clear();
  PrintWindow& window = fixture.OpenTicked(1);
  fixture.ChoosePrinter();
  window.print.Press();
  CHECK(fixture.fakes.messages.shown.back().text == u" has finished printing.");
}

TEST_CASE("a cancelled card job has no closing box and clears the flag") {
  PrintFixture fixture;
  PrintWindow& window = fixture.OpenTicked(1);
  window.selected.SetCaption(u"as it was");
  fixture.CancelPrinter();
  window.print.Press();
  CHECK(fixture.fakes.messages.Take() ==
        std::vector<Shown>{{u"Printing was cancelled", kOkOnly, u"Cancel Printing"}});
  CHECK_FALSE(fixture.state.printing.cancelled);
  CHECK(window.selected.Caption() == u"Number of cards selected for print: 1");
  CHECK(window.print.Enabled());
}

TEST_CASE("after a cancelled flat job every flat job ends in silence, until a card job clears it") {
  PrintFixture fixture;
  PrintWindow& window = fixture.OpenTicked(1);
  window.flatSheet.Press();
  window.selected.SetCaption(u"as it was");
  fixture.CancelPrinter();
  window.print.Press();
  CHECK(fixture.fakes.messages.Take() ==
        std::vector<Shown>{{u"Printing was cancelled", kOkOnly, u"Cancel Printing"}});
  CHECK(fixture.state.printing.cancelled);
  CHECK(window.selected.Caption() == u"as it was");

  fixture.ChoosePrinter();
  window.print.Press();
  CHECK(fixture.surface.record.Count("End") == 1);
  CHECK(fixture.fakes.messages.Take().empty());
  CHECK(window.selected.Caption() == u"as it was");

  window.flatSheet.Press();
  fixture.ChoosePrinter();
  window.print.Press();
  CHECK(fixture.fakes.messages.Take().back().title == u"PRINT BACK");
  CHECK_FALSE(fixture.state.printing.cancelled);
  CHECK(window.selected.Caption() == u"Number of cards selected for print: 1");

  window.flatSheet.Press();
  fixture.ChoosePrinter();
  window.print.Press();
  CHECK(fixture.fakes.messages.Take().back().title == u"PRINT");
}

TEST_CASE("a job that can't be opened or closed greys the print button and tells why") {
  struct Case {
    const char* failing;
    ErrorNumber number;
    TextView text;
  };
  constexpr TextView kUnspecified =
      u"An unspecified printing error has occured. Ensure that the printer is ready.";
  const Case cases[] = {
      {"Bind", ErrorNumber::kAutomationClassNotFound, u"Printing requires Excel 97."},
      {"Bind", ErrorNumber::kAutomationError, kUnspecified},
      {"ActiveSheet", ErrorNumber::kAutomationError, kUnspecified},
      {"Alerts", ErrorNumber::kAutomationError, kUnspecified},
      {"Close", ErrorNumber::kAutomationError, kUnspecified},
  };
  for (const Case& c : cases) {
    CAPTURE(c.failing);
    PrintFixture fixture;
    PrintWindow& window = fixture.OpenTicked(1);
    window.selected.SetCaption(u"as it was");
    fixture.ChoosePrinter();
    fixture.server.record.FailAt(c.failing, c.number);
    bool enabledBehindTheBox = true;
    fixture.fakes.messages.whileShown = [&](const Shown&) {
      enabledBehindTheBox = window.print.Enabled();
    };
    window.print.Press();
    CHECK(fixture.fakes.messages.shown.back() ==
          Shown{Text(c.text), kStopIcon, u"Error Printing Cards"});
    CHECK_FALSE(enabledBehindTheBox);
    CHECK_FALSE(window.print.Enabled());
    CHECK(window.selected.Caption() == u"as it was");
    CHECK(fixture.state.printing.canPrintCards);

    window.cards.UserClick(1, ListView::HitPart::kText);
    CHECK(window.print.Enabled());
    fixture.ChoosePrinter();
    window.print.Press();
    CHECK(fixture.fakes.messages.shown.back().title == u"PRINT");
  }
}

TEST_CASE("a job that can't be opened shows no printer dialog") {
  PrintFixture fixture;
  PrintWindow& window = fixture.OpenTicked(1);
  fixture.ChoosePrinter();
  fixture.server.record.FailAt("Bind", ErrorNumber::kAutomationError);
  window.print.Press();
  CHECK(fixture.fakes.dialogs.printers.size() == 1);
}

const std::vector<std::string> kAsked{"/opt/tessara/Notelet.xlt after 300 ms"};

TEST_CASE("while the user chooses the server starts, 300 ms after the window has come up") {
  PrintFixture fixture;
  fixture.Open();
  CHECK(fixture.server.readiness == kAsked);
  CHECK(fixture.server.record.calls.empty());
}

TEST_CASE("no server starts ahead where cards can't be printed") {
  PrintFixture fixture;
  fixture.state.printing.canPrintCards = false;
  fixture.Open();
  fixture.Open().flatSheet.SetTicked(false);
  for (const std::string& asked : fixture.server.readiness) CHECK(asked == "dismissed");
}

TEST_CASE("a server that has started ahead goes when the window does, or flat sheets are chosen") {
  for (const bool closes : {false, true}) {
    CAPTURE(closes);
    PrintFixture fixture;
    PrintWindow& window = fixture.Open();
    fixture.server.readiness.clear();
    closes ? window.close.Press() : window.flatSheet.Press();
    CHECK(fixture.server.readiness == std::vector<std::string>{"dismissed"});
  }
}

TEST_CASE("back from flat sheets the server starts ahead again") {
  PrintFixture fixture;
  PrintWindow& window = fixture.Open();
  window.flatSheet.Press();
  fixture.server.readiness.clear();
  window.flatSheet.Press();
  CHECK(fixture.server.readiness == kAsked);
}

}  // namespace
}  // namespace tessara
