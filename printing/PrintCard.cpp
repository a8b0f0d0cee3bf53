#include "printing/PrintCard.h"

#include "platform/message_box.h"

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

PrintCard::PrintCard(AppContext& app, SpreadsheetJob& job, Window<Form> frmMain)
    : Form(app.windows, "PrintCard", FormKind::kChild, u"Print Cards"),
      app_(app),
      job_(job),
      frmMain_(frmMain) {
  PlaceControls();
  DressControls();
  WireControls();
}

void PrintCard::PlaceControls() {
  constexpr TextView kSelect = u"Select cards to be printed";
  constexpr TextView kSelected = u"Number of cards selected for print: 0";
  constexpr TextView kFlatOnly = u"FLAT SHEET PRINTING ONLY";
  constexpr TextView kListName = u"Cards to be printed";
  constexpr TextView kPictureName = u"How the back reads against the front";
  Place({
      {&Label1, "Label1", kNoIndex, nullptr, kSelect, {120, 120, 2175, 255}, u""},
      {&Label6, "Label6", kNoIndex, nullptr, u"Available Cards:", {3240, 120, 1695, 255}, u""},
      {&Label3, "Label3", kNoIndex, nullptr, kSelected, {5160, 120, 3015, 255}, u""},
      {&ListView1, "ListView1", kNoIndex, nullptr, u"", {120, 360, 8175, 2655}, kListName},
      {&Label2, "Label2", kNoIndex, nullptr, u"BACK  OF CARD", {120, 3480, 1815, 255}, u""},
      {&Text1, "Text1", kNoIndex, nullptr, u"", {120, 3840, 3495, 1215}, u"Back of card"},
      {&Check2, "Check2", kNoIndex, nullptr, u"FLIP PRINT CARD", {4080, 3360, 2055, 255}, u""},
      {&Check1, "Check1", kNoIndex, nullptr, u"PRINT FLAT SHEET", {4080, 3600, 2295, 375}, u""},
      {&Picture1, "Picture1", kNoIndex, nullptr, u"", {6360, 3375, 1815, 615}, kPictureName},
      {&Label4, "Label4", kNoIndex, nullptr, kFlatOnly, {4110, 4155, 3870, 255}, u""},
      {&Command1[0], "Command1", 0, nullptr, kSelectAll, {3825, 4455, 1455, 615}, u""},
      {&Command1[1], "Command1", 1, nullptr, u"&Print", {5400, 4440, 1455, 615}, u""},
      {&Command1[2], "Command1", 2, nullptr, u"&Close", {6975, 4440, 1335, 615}, u""},
      {&Line1[0], "Line1", 0, nullptr, u"", {3960, 3240, 4335, 0}, u""},
      {&Line1[1], "Line1", 1, nullptr, u"", {3960, 4425, 4335, 0}, u""},
      {&Line2, "Line2", kNoIndex, nullptr, u"", {3960, 3240, 0, 1185}, u""},
      {&Line3, "Line3", kNoIndex, nullptr, u"", {8295, 3240, 0, 1185}, u""},
  });
}

void PrintCard::DressControls() {
  Label1.SetForeColor(kMagenta);
  Label3.SetAlignment(Alignment::kRight);
  ListView1.AddColumn(u"CARD #", 1764);
  ListView1.AddColumn(u"FRONT TEXT", 5292);
  Label2.SetBold(true);
  Text1.SetMultiLine(true);
  Text1.SetVerticalScrollBar(true);
  Text1.SetLocked(true);
  Check2.SetBold(true);
  Check2.SetForeColor(kBlue);
  Check1.SetBold(true);
  Check1.SetForeColor(kBrown);
  ShowPicture(u"NonFlip");
  Label4.SetAlignment(Alignment::kCenter);
  Label4.SetForeColor(kMagenta);
  Command1[kPrintButton].SetEnabled(false);
}

void PrintCard::WireControls() {
  Check1.onClick = [this] { Check1_Click(); };
  Check2.onClick = [this] { Check2_Click(); };
  Command1.Wire(&Button::onClick, [this](int Index) { Command1_Click(Index); });
  ListView1.onClick = [this] { ListView1_Click(); };
  ListView1.onKeyUp = [this] { ListView1_KeyUp(); };
}

void PrintCard::Form_Load() {
  SetWidth(kWidth);
  SetHeight(kHeight);
  SetLeft((app_.frame.Width() - Width()) / 2);
  SetTop((app_.frame.Height() - Height()) / 2);
  const int besideNumbers = ListView1.Place().width - ListView1.ColumnWidth(kNumberColumn);
  ListView1.SetColumnWidth(kTextColumn, besideNumbers);
  FillList();
  ListView1.SetColumnWidth(kTextColumn, besideNumbers - kScrollBarWidth);
  SetCaption(u"Print Cards");
  frmMain_->Hide();
  ShowAvailable();
  Label4.SetVisible(!app_.state.CanPrintCards);
  if (!app_.state.CanPrintCards) FlatPrintOnly();
  Show();
}

void PrintCard::Form_Unload(bool& /*cancel*/) {
  frmMain_->Show();
}

void PrintCard::Form_Click() {
  app_.frame.CloseAbout();
}

void PrintCard::FillList() {
  for (int row = 1; row <= app_.state.CardCount; ++row) {
    ListView1.AddItem(DecimalText(row), {app_.state.Cell(row, kCardText)});
  }
}

void PrintCard::ShowPicture(TextView key) {
  Picture1.SetPicture(app_.frame.imgWallPaper().At(key).picture);
}

void PrintCard::FlatPrintOnly() {
  Check2.SetEnabled(false);
  ShowPicture(u"FlipDisabled");
  Check1.SetTicked(true);
  Check1.SetEnabled(false);
}

void PrintCard::Check1_Click() {
  const bool canPrintCards = app_.state.CanPrintCards;
  if (Check1.Ticked()) {
    Check2.SetTicked(false);
    Check2.SetEnabled(false);
    ShowPicture(u"FlipDisabled");
    Command1[kPrintButton].SetEnabled(CountChecks() != 0);
    if (canPrintCards) Label4.SetVisible(false);
  } else if (canPrintCards) {
    Check2.SetEnabled(true);
    ShowPicture(u"NonFlip");
    Label4.SetVisible(false);
    Command1[kPrintButton].SetEnabled(CountChecks() != 0);
  }
}

void PrintCard::Check2_Click() {
  ShowPicture(Check2.Ticked() ? u"Flip" : u"NonFlip");
}

void PrintCard::Command1_Click(int Index) {
  if (Index == kLeaveButton) {
    Unload();
    return;
  }
  if (Index == kToggleButton) ToggleAll();
  if (Index == kPrintButton && !RunJob()) return;
  ShowCountForPrint();
  Command1[kPrintButton].SetEnabled(PrnButEn());
}

void mnuPrint_Click(AppContext& app, const Window<PrintCard>& printCard) {
  if (!app.state.CanPrintCards) {
    app.machine.messages.Show(
        u"Card printing has been disabled for this computer. Either you have the wrong version of "
        u"Excel [Excel 97 or greater required] or the Notelet.xlt file is missing from the Tessara "
        u"program directory.",
        kStopIcon, u"Card Printing Disabled");
  }
  printCard.Instance().EnsureLoaded();
}

}  // namespace tessara
