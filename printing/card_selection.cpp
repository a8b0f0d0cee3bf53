// Which cards are ticked for printing, and what the window tells of them.

#include "base/conversion.h"
#include "printing/card_sheet.h"
#include "printing/print_window.h"
#include "viewer/answer_text.h"

namespace tessara {

namespace {

constexpr TextView kDeselectAll = u"Deselect All";

}  // namespace

void PrintWindow::ShowSelectedCard() {
  if (cards.Count() == 0) return;
  ShowBack(IntegerOf(cards.SelectedItem().text));
  ShowToggleCaption();
  ShowCountForPrint();
  ShowAvailable();
  print.SetEnabled(CanPrint());
}

/// After a key the box shows the card below, and the print button stays as it is.
void PrintWindow::ShowCardBelow() {
  if (cards.Count() == 0) return;
  ShowBack(static_cast<std::int16_t>(IntegerOf(cards.SelectedItem().text) + 1));
  ShowToggleCaption();
  selected.SetCaption(u"Number of cards to print: " + DecimalText(TickedCount()));
}

void PrintWindow::ToggleTicks() {
  if (toggleAll.Caption() == kSelectAll) {
    SelectAll();
    toggleAll.SetCaption(Text(kDeselectAll));
  } else {
    DeselectAll();
    toggleAll.SetCaption(Text(kSelectAll));
  }
  FollowTicks();
}

void PrintWindow::SelectAll() {
  SetAllChecks(true);
}

void PrintWindow::DeselectAll() {
  SetAllChecks(false);
}

void PrintWindow::SetAllChecks(bool checked) {
  for (int item = 1; item <= cards.Count(); ++item) cards.SetChecked(item, checked);
  if (flatSheet.Ticked()) print.SetEnabled(checked);
}

bool PrintWindow::AllChecked() const {
  return TickedCount() == cards.Count();
}

std::int16_t PrintWindow::TickedCount() const {
  std::int16_t ticked = 0;
  for (int item = 1; item <= cards.Count(); ++item) {
    if (cards.Item(item).checked) ++ticked;
  }
  return ticked;
}

bool PrintWindow::CanPrint() const {
  const bool canPrint = flatSheet.Ticked() || app_.state.printing.canPrintCards;
  return canPrint && TickedCount() > 0;
}

void PrintWindow::ShowBack(std::int16_t row) {
  back.SetText(GetCardText(Text(kBack), row));
}

void PrintWindow::ShowToggleCaption() {
  toggleAll.SetCaption(Text(AllChecked() ? kDeselectAll : kSelectAll));
}

void PrintWindow::ShowCountForPrint() {
  selected.SetCaption(u"Number of cards selected for print: " + DecimalText(TickedCount()));
}

void PrintWindow::ShowAvailable() {
  available.SetCaption(u"Available Cards: " + DecimalText(cards.Count()));
}

Text PrintWindow::GetCardText(const Text& side, std::int16_t row) const {
  const ProgramState& state = app_.state;
  const bool standard = state.deck.kind == kStandardDeck;
  if (!standard && state.deck.kind != kExtendedDeck) return {};
  if (side == kFront) return state.deck.Cell(row, kCardText);
  if (side != kBack) return {};
  return standard ? state.deck.Cell(row, kBackText)
                  : AnswerText(state.deck.Cell(row, kAnswer), row, state);
}

}  // namespace tessara
