#pragma once

#include <cstdint>

#include "base/run_time_error.h"
#include "deck/app_context.h"
#include "forms/controls/controls.h"
#include "forms/form.h"
#include "forms/window.h"
#include "machine/dialogs.h"
#include "printing/card_sheet.h"
#include "printing/spreadsheet_job.h"

namespace tessara {

/// The print window: picks the cards and one of two ways to print them. While it is open the
/// deck window is hidden and the frame's file menu is off. Without a spreadsheet server only
/// flat sheets can be printed. The check marks of the list are the selection; an item's text is
/// its card's number.
///
/// It is told in several files: print_window.cpp the window and its two ways to print,
/// card_selection.cpp the list and its ticks, print_job.cpp the run of a job,
/// two_sided_printing.cpp and flat_sheet_printing.cpp what a job prints.
class PrintWindow : public Form {
 public:
  PrintWindow(AppContext& app, SpreadsheetJob& job, Window<Form> deck);

  Label heading{"Label1"};
  Label available{"Label6"};
  Label selected{"Label3"};
  ListView cards{"ListView1"};
  Label backHeading{"Label2"};
  TextBox back{"Text1"};
  CheckBox flipPrint{"Check2"};
  CheckBox flatSheet{"Check1"};
  PictureBox turning{"Picture1"};
  Label flatOnly{"Label4"};
  Button toggleAll{"Command1(0)"};
  Button print{"Command1(1)"};
  Button close{"Command1(2)"};
  Line topEdge{"Line1(0)"};
  Line bottomEdge{"Line1(1)"};
  Line leftEdge{"Line2"};
  Line rightEdge{"Line3"};

  [[nodiscard]] bool OccupiesFrame() const override { return true; }

  /// True where every item is ticked.
  [[nodiscard]] bool AllChecked() const;
  /// The number of ticked items.
  [[nodiscard]] std::int16_t TickedCount() const;
  /// Tick and untick every item; for flat sheets the print button follows.
  void SelectAll();
  void DeselectAll();
  /// True where the print button is to be enabled: with a ticked item and a way to print it.
  [[nodiscard]] bool CanPrint() const;
  /// The text of the side "Front" or "Back" of a row; any other side is empty. Raises error 9.
  [[nodiscard]] Text GetCardText(const Text& side, std::int16_t row) const;
  /// Leaves flat sheets as the only way to print.
  void FlatPrintOnly();

  // Two-sided cards.
  /// Asks for printer and copies and prints them. Handles all errors of printing; that it
  /// was cancelled, or failed, stands in the state of printing.
  void PrintCardsDialog();
  /// One pass over all ticked cards, of the side "Front" or "Back". Raises the server's errors.
  void PrintCards(const Text& side);
  /// As the box says now: it is read at each placement.
  [[nodiscard]] SheetTurn Turn() const;

  // Flat sheets.
  /// The same as PrintCardsDialog for flat sheets.
  void PrintFlatSheetDialog();
  /// Writes one whole document. Raises the surface's errors, and error 5 for a run without a
  /// blank that is wider than the page; the document is then not ended.
  void PrintFlatSheets();

 protected:
  void OnLoad() override;
  void OnUnload(bool& cancel) override;
  void OnClick() override;

 private:
  /// The caption of the toggle button while not every card is ticked.
  static constexpr TextView kSelectAll = u"Select All";

  void ChooseFlatSheet();
  /// The server starts while the user still chooses, where cards may be printed on it.
  void ReadyServer();
  void ShowTurning();
  /// Runs the job, and brings the window up to date where it is to be.
  void Print();
  void ToggleTicks();
  void FollowTicks();
  void ShowSelectedCard();
  void ShowCardBelow();

  void PlaceControls();
  void DressControls();
  void WireControls();
  void FillList();
  /// Shows a picture of how the back reads against the front, by its key.
  void ShowPicture(TextView key);

  void SetAllChecks(bool checked);
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
  Window<Form> deck_;
};

/// The command "Print Deck": tells where card printing is disabled, and loads the window.
void OpenPrintWindow(AppContext& app, const Window<PrintWindow>& printCard);

}  // namespace tessara
