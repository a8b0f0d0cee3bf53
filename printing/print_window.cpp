#include "printing/print_window.h"

#include <chrono>

#include "machine/message_box.h"

namespace tessara {

namespace {

// Twips.
constexpr int kWidth = 8685;
constexpr int kHeight = 5565;
constexpr int kScrollBarWidth = 300;

// Columns of the list.
constexpr int kNumberColumn = 1;
constexpr int kTextColumn = 2;

constexpr Color kMagenta = FixedColor(192, 0, 192);
constexpr Color kBlue = FixedColor(0, 0, 255);
constexpr Color kBrown = FixedColor(128, 64, 0);

}  // namespace

PrintWindow::PrintWindow(AppContext& app, SpreadsheetJob& job, Window<Form> deck)
    : Form(app.windows, "PrintCard", FormKind::kChild, u"Print Cards"),
      app_(app),
      job_(job),
      deck_(deck) {
  PlaceControls();
  DressControls();
  WireControls();
}

void PrintWindow::PlaceControls() {
  constexpr TextView kSelect = u"Select cards to be printed";
  constexpr TextView kSelected = u"Number of cards selected for print: 0";
  constexpr TextView kFlatOnly = u"FLAT SHEET PRINTING ONLY";
  constexpr TextView kListName = u"Cards to be printed";
  constexpr TextView kPictureName = u"How the back reads against the front";
  AddControls({
      {&heading, nullptr, kSelect, {120, 120, 2175, 255}, u""},
      {&available, nullptr, u"Available Cards:", {3240, 120, 1695, 255}, u""},
      {&selected, nullptr, kSelected, {5160, 120, 3015, 255}, u""},
      {&cards, nullptr, u"", {120, 360, 8175, 2655}, kListName},
      {&backHeading, nullptr, u"BACK  OF CARD", {120, 3480, 1815, 255}, u""},
      {&back, nullptr, u"", {120, 3840, 3495, 1215}, u"Back of card"},
      {&flipPrint, nullptr, u"FLIP PRINT CARD", {4080, 3360, 2055, 255}, u""},
      {&flatSheet, nullptr, u"PRINT FLAT SHEET", {4080, 3600, 2295, 375}, u""},
      {&turning, nullptr, u"", {6360, 3375, 1815, 615}, kPictureName},
      {&flatOnly, nullptr, kFlatOnly, {4110, 4155, 3870, 255}, u""},
      {&toggleAll, nullptr, kSelectAll, {3825, 4455, 1455, 615}, u""},
      {&print, nullptr, u"&Print", {5400, 4440, 1455, 615}, u""},
      {&close, nullptr, u"&Close", {6975, 4440, 1335, 615}, u""},
      {&topEdge, nullptr, u"", {3960, 3240, 4335, 0}, u""},
      {&bottomEdge, nullptr, u"", {3960, 4425, 4335, 0}, u""},
      {&leftEdge, nullptr, u"", {3960, 3240, 0, 1185}, u""},
      {&rightEdge, nullptr, u"", {8295, 3240, 0, 1185}, u""},
  });
}

void PrintWindow::DressControls() {
  heading.SetForeColor(kMagenta);
  selected.SetAlignment(Alignment::kRight);
  cards.AddColumn(u"CARD #", 1764);
  cards.AddColumn(u"FRONT TEXT", 5292);
  backHeading.SetBold(true);
  back.SetMultiLine(true);
  back.SetVerticalScrollBar(true);
  back.SetLocked(true);
  flipPrint.SetBold(true);
  flipPrint.SetForeColor(kBlue);
  flatSheet.SetBold(true);
  flatSheet.SetForeColor(kBrown);
  ShowPicture(u"NonFlip");
  flatOnly.SetAlignment(Alignment::kCenter);
  flatOnly.SetForeColor(kMagenta);
  print.SetEnabled(false);
}

void PrintWindow::WireControls() {
  flatSheet.onClick = [this] { ChooseFlatSheet(); };
  flipPrint.onClick = [this] { ShowTurning(); };
  toggleAll.onClick = [this] { ToggleTicks(); };
  print.onClick = [this] { Print(); };
  close.onClick = [this] { Unload(); };
  cards.onClick = [this] { ShowSelectedCard(); };
  cards.onKeyUp = [this] { ShowCardBelow(); };
}

void PrintWindow::OnLoad() {
  SetWidth(kWidth);
  SetHeight(kHeight);
  SetLeft((app_.frame.Width() - Width()) / 2);
  SetTop((app_.frame.Height() - Height()) / 2);
  const int besideNumbers = cards.BoundsOf().width - cards.ColumnWidth(kNumberColumn);
  cards.SetColumnWidth(kTextColumn, besideNumbers);
  FillList();
  cards.SetColumnWidth(kTextColumn, besideNumbers - kScrollBarWidth);
  deck_->Hide();
  ShowAvailable();
  flatOnly.SetVisible(!app_.state.printing.canPrintCards);
  if (!app_.state.printing.canPrintCards) FlatPrintOnly();
  Show();
  ReadyServer();
}

void PrintWindow::OnUnload(bool& /*cancel*/) {
  job_.Dismiss();
  deck_->Show();
}

void PrintWindow::OnClick() {
  app_.frame.CloseAbout();
}

void PrintWindow::FillList() {
  for (int row = 1; row <= app_.state.deck.cardCount; ++row) {
    cards.AddItem(DecimalText(row), {app_.state.deck.Cell(row, kCardText)});
  }
}

void PrintWindow::ShowPicture(TextView key) {
  turning.SetPicture(app_.frame.CardPictures().At(key).picture);
}

void PrintWindow::FlatPrintOnly() {
  flipPrint.SetEnabled(false);
  ShowPicture(u"FlipDisabled");
  flatSheet.SetTicked(true);
  flatSheet.SetEnabled(false);
}

void PrintWindow::ChooseFlatSheet() {
  const bool canPrintCards = app_.state.printing.canPrintCards;
  if (flatSheet.Ticked()) {
    flipPrint.SetTicked(false);
    flipPrint.SetEnabled(false);
    ShowPicture(u"FlipDisabled");
    print.SetEnabled(TickedCount() != 0);
    if (canPrintCards) flatOnly.SetVisible(false);
  } else if (canPrintCards) {
    flipPrint.SetEnabled(true);
    ShowPicture(u"NonFlip");
    flatOnly.SetVisible(false);
    print.SetEnabled(TickedCount() != 0);
  }
  ReadyServer();
}

void PrintWindow::ReadyServer() {
  // Who opens the window by mistake has closed it by then.
  constexpr std::chrono::milliseconds kBeforeStart{300};
  const bool wanted = app_.state.printing.canPrintCards && !flatSheet.Ticked();
  wanted ? job_.Prepare(kBeforeStart) : job_.Dismiss();
}

void PrintWindow::ShowTurning() {
  ShowPicture(flipPrint.Ticked() ? u"Flip" : u"NonFlip");
}

void PrintWindow::Print() {
  if (RunJob()) FollowTicks();
}

void PrintWindow::FollowTicks() {
  ShowCountForPrint();
  print.SetEnabled(CanPrint());
}

void OpenPrintWindow(AppContext& app, const Window<PrintWindow>& printCard) {
  if (!app.state.printing.canPrintCards) {
    app.machine.messages.Show(
        u"Card printing has been disabled for this computer. Either you have the wrong version of "
        u"Excel [Excel 97 or greater required] or the Notelet.xlt file is missing from the Tessara "
        u"program directory.",
        kStopIcon, u"Card Printing Disabled");
  }
  printCard.Instance().EnsureLoaded();
}

}  // namespace tessara
