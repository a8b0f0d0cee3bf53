#pragma once

#include <cstdint>

#include "deck/app_context.h"
#include "forms/controls.h"
#include "forms/form.h"
#include "forms/window.h"
#include "platform/dialogs.h"
#include "platform/run_time_error.h"
#include "printing/spreadsheet_job.h"

namespace tessara {

/// The print window: picks the cards and one of two ways to print them. While it is open the
/// deck window is hidden and the frame's file menu is off. Without a spreadsheet server only
/// flat sheets can be printed. The check marks of the list are the selection; an item's text is
/// its card's number.
///
/// It is told in several files: PrintCard.cpp the window and its two ways to print,
/// card_selection.cpp the list and its ticks, print_job.cpp the run of a job,
/// two_sided_printing.cpp and flat_sheet_printing.cpp what a job prints.
class PrintCard : public Form {
 public:
  PrintCard(AppContext& app, SpreadsheetJob& job, Window<Form> frmMain);

  Label Label1, Label6, Label3;
  ListView ListView1;
  Label Label2;
  TextBox Text1;
  CheckBox Check2, Check1;
  PictureBox Picture1;
  Label Label4;
  ControlArray<Button, 3> Command1;
  ControlArray<Line, 2> Line1;
  Line Line2, Line3;

  [[nodiscard]] bool OccupiesFrame() const override { return true; }

  /// True where every item is ticked.
  [[nodiscard]] bool AllChecked() const;
  /// The number of ticked items.
  [[nodiscard]] std::int16_t CountChecks() const;
  /// Tick and untick every item; for flat sheets the print button follows.
  void SelectAll();
  void DeselectAll();
  /// True where the print button is to be enabled: with a ticked item and a way to print it.
  [[nodiscard]] bool PrnButEn() const;
  /// The text of the side "Front" or "Back" of a row; any other side is empty. Raises error 9.
  [[nodiscard]] Text GetCardText(const Text& CardSide, std::int16_t Lcnt) const;
  /// Leaves flat sheets as the only way to print.
  void FlatPrintOnly();

  // Two-sided cards.
  /// Asks for printer and copies and prints them. Handles all errors of printing: `PrintCancelled`
  /// tells of a cancel or a failure.
  void PrintCardsDialog();
  /// One pass over all ticked cards, of the side "Front" or "Back". Raises the server's errors.
  void PrintCards(const Text& xSide);

  // Flat sheets.
  /// The same as PrintCardsDialog for flat sheets.
  void PrintFlatSheetDialog();
  /// Writes one whole document. Raises the surface's errors, and error 5 for a run without a
  /// blank that is wider than the page; the document is then not ended.
  void PrnFlatSheet();

 protected:
  void Form_Load() override;
  void Form_Unload(bool& cancel) override;
  void Form_Click() override;

 private:
  /// The members of Command1.
  enum CommandButton : int { kToggleButton = 0, kPrintButton = 1, kLeaveButton = 2 };
  /// The caption of the toggle button while not every card is ticked.
  static constexpr TextView kSelectAll = u"Select All";

  void Check1_Click();
  void Check2_Click();
  void Command1_Click(int Index);
  void ListView1_Click();
  void ListView1_KeyUp();

  void PlaceControls();
  void DressControls();
  void WireControls();
  void FillList();
  /// Puts a picture of `imgWallPaper` into Picture1.
  void ShowPicture(TextView key);

  void SetAllChecks(bool checked);
  void ToggleAll();
  void ShowBack(std::int16_t row);
  void ShowToggleCaption();
  void ShowCountForPrint();
  void ShowAvailable();

  /// False where the window is not to be brought up to date after the job.
  bool RunJob();
  bool RunFlatJob();
  bool RunCardJob();
  void AnnounceEnd();
  void ReportJobFailure(const RunTimeError& error);

  void PrintCardCopies(const PrinterChoice& choice);
  void PrintFlatHeader();
  void PrintFlatCard(int item);
  void PrintBlock(const Text& text);

  AppContext& app_;
  SpreadsheetJob& job_;
  Window<Form> frmMain_;
};

/// The command "Print Deck": tells where card printing is disabled, and loads the window.
void mnuPrint_Click(AppContext& app, const Window<PrintCard>& printCard);

}  // namespace tessara
