#include "printing/PrintCard.h"

#include <doctest/doctest.h>

#include "platform/run_time_error.h"
#include "tests/unit/printing/print_desk.h"

namespace tessara {
namespace {

using test::FakeMessages;
using test::PrintDesk;
using Shown = FakeMessages::Shown;

constexpr TextView kDisabledText =
    u"Card printing has been disabled for this computer. Either you have the wrong version of "
    u"Excel [Excel 97 or greater required] or the Notelet.xlt file is missing from the Tessara "
    u"program directory.";

std::string PictureName(const PrintCard& window) {
  return window.Picture1.PictureOf().file;
}

/// The print controls: check boxes as "ticked enabled", then picture, note, print button.
struct Controls {
  bool flatTicked, flatEnabled;
  bool flipTicked, flipEnabled;
  std::string picture;
  bool note;
  bool print;
};

void CheckControls(const PrintCard& window, const Controls& expected) {
  CHECK(window.Check1.Ticked() == expected.flatTicked);
  CHECK(window.Check1.Enabled() == expected.flatEnabled);
  CHECK(window.Check2.Ticked() == expected.flipTicked);
  CHECK(window.Check2.Enabled() == expected.flipEnabled);
  CHECK(PictureName(window) == "print/" + expected.picture + ".png");
  CHECK(window.Label4.Visible() == expected.note);
  CHECK(window.Command1[1].Enabled() == expected.print);
}

TEST_CASE("the window lists the cards and hides the deck window") {
  PrintDesk desk(12);
  const PrintCard& window = desk.Open();
  CHECK(window.Visible());
  CHECK(window.Caption() == u"Print Cards");
  CHECK(window.Width() == 8685);
  CHECK(window.Height() == 5565);
  CHECK(window.Left() == (desk.frame.width - 8685) / 2);
  CHECK(window.Top() == (desk.frame.height - 5565) / 2);
  CHECK(window.ListView1.Count() == 12);
  CHECK(window.ListView1.Item(12).text == u"12");
  CHECK(window.ListView1.Item(12).subItems == std::vector<Text>{u"front 12"});
  CHECK(window.ListView1.ColumnWidth(1) == 1764);
  CHECK(window.ListView1.ColumnWidth(2) == 8175 - 1764 - 300);
  CHECK(window.Label6.Caption() == u"Available Cards: 12");
  CHECK(window.Label3.Caption() == u"Number of cards selected for print: 0");
  CHECK_FALSE(desk.deckSlot.Instance().Visible());
}

TEST_CASE("closing shows the deck window") {
  PrintDesk desk;
  desk.Open().Command1[2].Press();
  CHECK_FALSE(desk.window.IsLoaded());
  CHECK(desk.deckSlot.Instance().Visible());
  CHECK(desk.server.record.calls.empty());
}

TEST_CASE("a click on the window closes the About box") {
  PrintDesk desk;
  desk.Open().UserClick();
  CHECK(desk.frame.aboutClosed == 1);
}

TEST_CASE("the command tells that card printing is disabled, and opens the window all the same") {
  PrintDesk desk;
  mnuPrint_Click(desk.app, desk.window);
  CHECK(desk.fakes.messages.shown.empty());
  CHECK(desk.window.IsLoaded());

  PrintDesk without;
  without.state.CanPrintCards = false;
  without.fakes.messages.whileShown = [&without](const Shown&) {
    CHECK_FALSE(without.window.IsLoaded());
  };
  mnuPrint_Click(without.app, without.window);
  CHECK(without.fakes.messages.shown ==
        std::vector<Shown>{{Text(kDisabledText), kStopIcon, u"Card Printing Disabled"}});
  CHECK(without.window.IsLoaded());
}

TEST_CASE("the print controls have four states") {
  for (const bool ticked : {false, true}) {
    CAPTURE(ticked);
    PrintDesk desk;
    PrintCard& window = desk.OpenTicked(ticked ? 1 : 0);
    CheckControls(window, {false, true, false, true, "nonflip", false, ticked});
    window.Check2.Press();
    CheckControls(window, {false, true, true, true, "flip", false, ticked});
    window.Check1.Press();
    CheckControls(window, {true, true, false, false, "flip_disabled", false, ticked});

    PrintDesk without;
    without.state.CanPrintCards = false;
    CheckControls(without.OpenTicked(ticked ? 1 : 0),
                  {true, false, false, false, "flip_disabled", true, ticked});
  }
}

TEST_CASE("after a detour through flat mode the flip choice is unticked") {
  PrintDesk desk;
  PrintCard& window = desk.Open();
  window.Check2.Press();
  window.Check1.Press();
  window.Check1.Press();
  CheckControls(window, {false, true, false, true, "nonflip", false, false});
}

TEST_CASE("flat mode can't be left where nothing else can print") {
  PrintDesk desk;
  desk.state.CanPrintCards = false;
  PrintCard& window = desk.Open();
  window.Check1.Press();
  window.Check2.Press();
  CheckControls(window, {true, false, false, false, "flip_disabled", true, false});
  window.Check1.SetTicked(false);
  CheckControls(window, {false, false, false, false, "flip_disabled", true, false});
}

TEST_CASE("the toggle button follows the last tick of a click") {
  PrintDesk desk;
  PrintCard& window = desk.Open();
  const auto toggle = [&window] { return window.Command1[0].Caption(); };
  desk.Tick(1);
  desk.Tick(2);
  CHECK(toggle() == u"Select All");
  desk.Tick(3);
  CHECK(toggle() == u"Deselect All");
  CHECK(window.AllChecked());
  desk.Tick(2);
  CHECK(toggle() == u"Select All");
  CHECK_FALSE(window.AllChecked());
}

TEST_CASE("Select All ticks every card and turns into Deselect All") {
  for (const bool flat : {false, true}) {
    CAPTURE(flat);
    PrintDesk desk;
    PrintCard& window = desk.Open();
    if (flat) window.Check1.Press();
    window.Command1[0].Press();
    CHECK(window.CountChecks() == 3);
    CHECK(window.Command1[0].Caption() == u"Deselect All");
    CHECK(window.Label3.Caption() == u"Number of cards selected for print: 3");
    CHECK(window.Command1[1].Enabled());
    window.Command1[0].Press();
    CHECK(window.CountChecks() == 0);
    CHECK(window.Command1[0].Caption() == u"Select All");
    CHECK(window.Label3.Caption() == u"Number of cards selected for print: 0");
    CHECK_FALSE(window.Command1[1].Enabled());
  }
}

TEST_CASE("ticking and unticking all touches the print button in flat mode alone") {
  PrintDesk desk;
  PrintCard& window = desk.Open();
  window.SelectAll();
  CHECK_FALSE(window.Command1[1].Enabled());
  window.Check1.SetTicked(true);
  window.DeselectAll();
  CHECK_FALSE(window.Command1[1].Enabled());
  window.SelectAll();
  CHECK(window.Command1[1].Enabled());
}

TEST_CASE("the print button is to be enabled with a tick and a way to print") {
  struct Case {
    bool canPrint, flat, ticked, enabled;
  };
  for (const Case& c : {Case{true, false, true, true}, Case{true, true, true, true},
                        Case{true, false, false, false}, Case{false, true, true, true},
                        Case{false, true, false, false}, Case{false, false, true, false}}) {
    PrintDesk desk;
    PrintCard& window = desk.OpenTicked(c.ticked ? 1 : 0);
    window.Check1.SetTicked(c.flat);
    desk.state.CanPrintCards = c.canPrint;
    CHECK(window.PrnButEn() == c.enabled);
  }
}

TEST_CASE("a click shows the back of the selected card and the counts") {
  PrintDesk desk;
  PrintCard& window = desk.Open();
  window.ListView1.UserClick(2, ListView::HitPart::kText);
  CHECK(window.Text1.TextOf() == u"back 2");
  CHECK(window.Label3.Caption() == u"Number of cards selected for print: 0");
  CHECK_FALSE(window.Command1[1].Enabled());
  window.ListView1.UserClick(3, ListView::HitPart::kCheckBox);
  CHECK(window.Text1.TextOf() == u"back 3");
  CHECK(window.Label3.Caption() == u"Number of cards selected for print: 1");
  CHECK(window.Label6.Caption() == u"Available Cards: 3");
  CHECK(window.Command1[1].Enabled());
  window.ListView1.UserClick(0, ListView::HitPart::kText);
  CHECK(window.Text1.TextOf() == u"back 3");
}

TEST_CASE("in a list without cards a click and a key do nothing") {
  PrintDesk desk(0);
  PrintCard& window = desk.Open();
  window.ListView1.UserClick(0, ListView::HitPart::kText);
  window.ListView1.UserKeyUp();
  CHECK(desk.fakes.messages.Take().empty());
  CHECK(window.Text1.TextOf().empty());
  CHECK_FALSE(desk.windows.ExitStatus());
}

TEST_CASE("a key shows the back of the card below, in other words, and leaves the print button") {
  PrintDesk desk;
  PrintCard& window = desk.Open();
  window.Label6.SetCaption(u"as it was");
  window.ListView1.UserToggleByKey();
  window.ListView1.UserKeyUp();
  CHECK(window.Text1.TextOf() == u"back 2");
  CHECK(window.Label3.Caption() == u"Number of cards to print: 1");
  CHECK(window.Label6.Caption() == u"as it was");
  CHECK_FALSE(window.Command1[1].Enabled());

  window.ListView1.UserSelectByKey(3);
  window.ListView1.UserKeyUp();
  CHECK(window.Text1.TextOf().empty());
  window.ListView1.UserToggleByKey();
  window.ListView1.UserSelectByKey(2);
  window.ListView1.UserToggleByKey();
  window.ListView1.UserKeyUp();
  CHECK(window.Command1[0].Caption() == u"Deselect All");
}

TEST_CASE("the sides of a card depend on the type of the deck") {
  PrintDesk desk;
  const PrintCard& window = desk.Open();
  desk.state.CardGrid.Set(1, kChoiceC, u"third");
  const auto back = [&](std::int32_t type, const Text& answer) {
    desk.state.DeckType = type;
    desk.state.CardGrid.Set(1, kAnswer, answer);
    return window.GetCardText(u"Back", 1);
  };
  CHECK(back(kStandardDeck, u"C") == u"back 1");
  CHECK(back(kExtendedDeck, u"C") == u"third");
  CHECK(back(kExtendedDeck, u"T") == u"TRUE");
  CHECK(back(kExtendedDeck, u"F") == u"FALSE");
  CHECK(back(kExtendedDeck, u"x").empty());
  CHECK(back(2, u"C").empty());
  CHECK(window.GetCardText(u"Front", 1).empty());
  for (const std::int32_t type : {kStandardDeck, kExtendedDeck}) {
    desk.state.DeckType = type;
    CHECK(window.GetCardText(u"Front", 1) == u"front 1");
    CHECK(window.GetCardText(u"front", 1).empty());
    CHECK(window.GetCardText(u"", 1).empty());
  }
}

TEST_CASE("a click on a card of an extended deck shows its answer") {
  PrintDesk desk;
  desk.state.DeckType = kExtendedDeck;
  desk.state.CardGrid.Set(2, kAnswer, u"T");
  PrintCard& window = desk.Open();
  window.ListView1.UserClick(2, ListView::HitPart::kText);
  CHECK(window.Text1.TextOf() == u"TRUE");
  window.ListView1.UserSelectByKey(1);
  window.ListView1.UserKeyUp();
  CHECK(window.Text1.TextOf() == u"TRUE");
}

TEST_CASE("the closing box names the deck, whatever the way of printing") {
  for (const bool flat : {false, true}) {
    CAPTURE(flat);
    PrintDesk desk;
    PrintCard& window = desk.OpenTicked(2);
    window.Check1.SetTicked(flat);
    desk.ChoosePrinter();
    window.Command1[1].Press();
    CHECK(desk.fakes.messages.shown.back() ==
          Shown{u"capitals has finished printing.", kInformationIcon, u"PRINT"});
    CHECK_FALSE(desk.state.PrintCancelled);
    CHECK(window.Label3.Caption() == u"Number of cards selected for print: 2");
    CHECK(window.Command1[1].Enabled());
  }
}

TEST_CASE("the closing box of a deck without a file begins with a blank") {
  PrintDesk desk;
  desk.state.DeckFilePath.clear();
  PrintCard& window = desk.OpenTicked(1);
  desk.ChoosePrinter();
  window.Command1[1].Press();
  CHECK(desk.fakes.messages.shown.back().text == u" has finished printing.");
}

TEST_CASE("a cancelled card job has no closing box and clears the flag") {
  PrintDesk desk;
  PrintCard& window = desk.OpenTicked(1);
  window.Label3.SetCaption(u"as it was");
  desk.CancelPrinter();
  window.Command1[1].Press();
  CHECK(desk.fakes.messages.Take() ==
        std::vector<Shown>{{u"Printing was cancelled", kOkOnly, u"Cancel Printing"}});
  CHECK_FALSE(desk.state.PrintCancelled);
  CHECK(window.Label3.Caption() == u"Number of cards selected for print: 1");
  CHECK(window.Command1[1].Enabled());
}

TEST_CASE("after a cancelled flat job every flat job ends in silence, until a card job clears it") {
  PrintDesk desk;
  PrintCard& window = desk.OpenTicked(1);
  window.Check1.Press();
  window.Label3.SetCaption(u"as it was");
  desk.CancelPrinter();
  window.Command1[1].Press();
  CHECK(desk.fakes.messages.Take() ==
        std::vector<Shown>{{u"Printing was cancelled", kOkOnly, u"Cancel Printing"}});
  CHECK(desk.state.PrintCancelled);
  CHECK(window.Label3.Caption() == u"as it was");

  desk.ChoosePrinter();
  window.Command1[1].Press();
  CHECK(desk.surface.record.Count("End") == 1);
  CHECK(desk.fakes.messages.Take().empty());
  CHECK(window.Label3.Caption() == u"as it was");

  window.Check1.Press();
  desk.ChoosePrinter();
  window.Command1[1].Press();
  CHECK(desk.fakes.messages.Take().back().title == u"PRINT BACK");
  CHECK_FALSE(desk.state.PrintCancelled);
  CHECK(window.Label3.Caption() == u"Number of cards selected for print: 1");

  window.Check1.Press();
  desk.ChoosePrinter();
  window.Command1[1].Press();
  CHECK(desk.fakes.messages.Take().back().title == u"PRINT");
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
    PrintDesk desk;
    PrintCard& window = desk.OpenTicked(1);
    window.Label3.SetCaption(u"as it was");
    desk.ChoosePrinter();
    desk.server.record.FailAt(c.failing, c.number);
    bool enabledBehindTheBox = true;
    desk.fakes.messages.whileShown = [&](const Shown&) {
      enabledBehindTheBox = window.Command1[1].Enabled();
    };
    window.Command1[1].Press();
    CHECK(desk.fakes.messages.shown.back() ==
          Shown{Text(c.text), kStopIcon, u"Error Printing Cards"});
    CHECK_FALSE(enabledBehindTheBox);
    CHECK_FALSE(window.Command1[1].Enabled());
    CHECK(window.Label3.Caption() == u"as it was");
    CHECK(desk.state.CanPrintCards);

    window.ListView1.UserClick(1, ListView::HitPart::kText);
    CHECK(window.Command1[1].Enabled());
    desk.ChoosePrinter();
    window.Command1[1].Press();
    CHECK(desk.fakes.messages.shown.back().title == u"PRINT");
  }
}

TEST_CASE("a job that can't be opened shows no printer dialog") {
  PrintDesk desk;
  PrintCard& window = desk.OpenTicked(1);
  desk.ChoosePrinter();
  desk.server.record.FailAt("Bind", ErrorNumber::kAutomationError);
  window.Command1[1].Press();
  CHECK(desk.fakes.dialogs.printers.size() == 1);
}

}  // namespace
}  // namespace tessara
