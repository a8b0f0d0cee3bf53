// Which cards are ticked for printing, and what the window tells of them.

#include "platform/conversion.h"
#include "printing/PrintCard.h"
#include "printing/card_sheet.h"
#include "viewer/answer_text.h"

namespace tessara {

namespace {

constexpr TextView kDeselectAll = u"Deselect All";

}  // namespace

void PrintCard::ListView1_Click() {
  if (ListView1.Count() == 0) return;
  ShowBack(IntegerOf(ListView1.SelectedItem().text));
  ShowToggleCaption();
  ShowCountForPrint();
  ShowAvailable();
  Command1[kPrintButton].SetEnabled(PrnButEn());
}

/// After a key the box shows the card below, and the print button stays as it is.
void PrintCard::ListView1_KeyUp() {
  if (ListView1.Count() == 0) return;
  ShowBack(static_cast<std::int16_t>(IntegerOf(ListView1.SelectedItem().text) + 1));
  ShowToggleCaption();
  Label3.SetCaption(u"Number of cards to print: " + DecimalText(CountChecks()));
}

void PrintCard::ToggleAll() {
  Button& toggle = Command1[kToggleButton];
  if (toggle.Caption() == kSelectAll) {
    SelectAll();
    toggle.SetCaption(Text(kDeselectAll));
  } else {
    DeselectAll();
    toggle.SetCaption(Text(kSelectAll));
  }
}

void PrintCard::SelectAll() {
  SetAllChecks(true);
}

void PrintCard::DeselectAll() {
  SetAllChecks(false);
}

void PrintCard::SetAllChecks(bool checked) {
  for (int item = 1; item <= ListView1.Count(); ++item) ListView1.SetChecked(item, checked);
  if (Check1.Ticked()) Command1[kPrintButton].SetEnabled(checked);
}

bool PrintCard::AllChecked() const {
  return CountChecks() == ListView1.Count();
}

std::int16_t PrintCard::CountChecks() const {
  std::int16_t ticked = 0;
  for (int item = 1; item <= ListView1.Count(); ++item) {
    if (ListView1.Item(item).checked) ++ticked;
  }
  return ticked;
}

bool PrintCard::PrnButEn() const {
  const bool canPrint = Check1.Ticked() || app_.state.CanPrintCards;
  return canPrint && CountChecks() > 0;
}

void PrintCard::ShowBack(std::int16_t row) {
  Text1.SetText(GetCardText(Text(kBack), row));
}

void PrintCard::ShowToggleCaption() {
  Command1[kToggleButton].SetCaption(Text(AllChecked() ? kDeselectAll : kSelectAll));
}

void PrintCard::ShowCountForPrint() {
  Label3.SetCaption(u"Number of cards selected for print: " + DecimalText(CountChecks()));
}

void PrintCard::ShowAvailable() {
  Label6.SetCaption(u"Available Cards: " + DecimalText(ListView1.Count()));
}

Text PrintCard::GetCardText(const Text& CardSide, std::int16_t Lcnt) const {
  const ProgramState& state = app_.state;
  const bool standard = state.DeckType == kStandardDeck;
  if (!standard && state.DeckType != kExtendedDeck) return {};
  if (CardSide == kFront) return state.Cell(Lcnt, kCardText);
  if (CardSide != kBack) return {};
  return standard ? state.Cell(Lcnt, kBackText)
                  : AnswerText(state.Cell(Lcnt, kAnswer), Lcnt, state);
}

}  // namespace tessara
