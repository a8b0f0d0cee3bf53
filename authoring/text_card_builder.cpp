#include "authoring/text_card_builder.h"

#include "base/skip_errors.h"
#include "deck/card_display.h"
#include "deck/card_type.h"
#include "deck/file/field_widths.h"
#include "deck/file/stored_text.h"
#include "machine/message_box.h"

namespace tessara {

namespace {

/// Lines of a back from which on the user is told that a card shows no more.
constexpr int kMostLines = 10;
constexpr Color kRed = FixedColor(255, 0, 0);
const Text kTextCard(LetterOf(CardType::kText));

}  // namespace

TextCardBuilder::TextCardBuilder(AppContext& app, Window<DeckWindow> deck)
    : BuilderWindow(app, "frmEssay", deck) {
  SetHeight(kHeight);
  SetWidth(kWidth);
  PlaceControls();
  sides.Wire(&TextBox::onChange, [this](int side) { FollowText(side); });
  buttons.Wire(&Button::onClick, [this](int button) { PressButton(button); });
}

void TextCardBuilder::PlaceControls() {
  AddControls({
      {&heading, nullptr, u"Card Builder:", {120, 120, 2970, 375}, u""},
      {&frontHeading, nullptr, u"FRONT", {120, 480, 1095, 255}, u""},
      {&number, nullptr, u"", {1440, 420, 1785, 240}, u""},
      {&sides[kFrontSide], nullptr, u"", {120, 720, 5175, 1695}, u"Front"},
      {&backHeading, nullptr, u"BACK", {120, 2520, 975, 255}, u""},
      {&sides[kBackSide], nullptr, u"", {120, 2760, 5175, 1695}, u"Back"},
      {&buttons[kNewButton], nullptr, u"&New", {120, 4680, 1215, 495}, u""},
      {&buttons[kAddButton], nullptr, u"&Add to deck", {1320, 4680, 1215, 495}, u""},
      {&buttons[kCancelButton], nullptr, u"&Delete from deck", {2520, 4680, 1455, 495}, u""},
      {&buttons[kCloseButton], nullptr, u"&Close", {4080, 4680, 1215, 495}, u""},
      {&arrows[kPreviousCard], nullptr, u"<<", {3360, 120, 975, 375}, u"Previous card"},
      {&arrows[kNextCard], nullptr, u">>", {4320, 120, 975, 375}, u"Next card"},
  });
  number.SetForeColor(kRed);
  for (TextBox& box : sides) {
    box.SetMultiLine(true);
    box.SetVerticalScrollBar(true);
    box.charactersCut = CutIn(kTextWidth, App().machine.codePage);
  }
}

void TextCardBuilder::OnLoad() {
  ClearForm();
  if (State().deck.HasCards()) {
    ShowBuilderCard(State().deck.currentCard);
    SetBuilderState(BuilderState::kOld);
  } else {
    SetBuilderState(BuilderState::kNew);
    ShowNextNumber();
  }
  State().building.fillingBoxes = false;
  Deck()->Hide();
}

std::vector<std::pair<const TextBox*, int>> TextCardBuilder::Boxes() const {
  return {{&sides[kFrontSide], kCardText}, {&sides[kBackSide], kBackText}};
}

void TextCardBuilder::ClearForm() {
  for (TextBox& box : sides) box.SetText(u"");
}

void TextCardBuilder::EnableCardButtons() {
  const bool front = !sides[kFrontSide].TextOf().empty();
  const bool back = !sides[kBackSide].TextOf().empty();
  buttons[kAddButton].SetEnabled(front && back);
  buttons[kCancelButton].SetEnabled(front || back);
}

void TextCardBuilder::ShowBuilderCard(int row) {
  sides[kFrontSide].SetText(State().deck.Cell(row, kCardText));
  sides[kBackSide].SetText(State().deck.Cell(row, kBackText));
  ShowNumber(DecimalText(row));
  SetMoveButtons(arrows, State());
}

void TextCardBuilder::SaveCard(const Text& cardType) {
  ProgramState& state = State();
  EnsureCurrentCard();
  const int row = state.deck.currentCard;
  state.deck.cardGrid.Set(row, kCardType, cardType);
  state.deck.cardGrid.Set(row, kCardText, sides[kFrontSide].TextOf());
  state.deck.cardGrid.Set(row, kRowNumber, DecimalText(row));
  for (int column = kChoiceA; column <= kAnswer; ++column)
    state.deck.cardGrid.Set(row, column, u"");
  state.deck.cardGrid.Set(row, kBackText, sides[kBackSide].TextOf());
  state.deck.cardPresent.Set(row, 1);
  state.deck.changed = true;
  // Not a count: saving an older card ends the deck there.
  state.deck.cardCount = state.deck.currentCard;
}

void TextCardBuilder::ChangeCurrentCard(int row, const Text& cardType) {
  State().deck.cardGrid.Set(row, kCardType, cardType);
  State().deck.cardGrid.Set(row, kCardText, sides[kFrontSide].TextOf());
  State().deck.cardGrid.Set(row, kBackText, sides[kBackSide].TextOf());
}

void TextCardBuilder::AskSaveChanged() {
  if (buttons[kAddButton].Enabled() && AskAboutChangedCard()) SaveCard(kTextCard);
  buttons[kAddButton].SetEnabled(false);
}

void TextCardBuilder::FollowText(int side) {
  if (side == kBackSide) SkipErrors([this] { WarnAboutLines(); });
  if (!State().building.fillingBoxes) EnableCardButtons();
}

void TextCardBuilder::WarnAboutLines() {
  if (sides[kBackSide].LineCount() < kMostLines) return;
  App().machine.messages.Show(
      u"You have reached the maximum number of lines that a card will show. Any further lines "
      u"which are added will not be seen.",
      kInformationIcon, u"Maximum Lines Reached!");
}

void TextCardBuilder::AddCard() {
  SaveCard(kTextCard);
}

void TextCardBuilder::ChangeCard() {
  ChangeCurrentCard(State().deck.currentCard, kTextCard);
}

void TextCardBuilder::Cancel() {
  ProgramState& state = State();
  // First, so that the arrows are set for the card that comes on show.
  state.deck.currentCard = state.deck.cardCount;
  if (state.deck.cardCount < 1) {
    PrepareNewCard();
    WaitForFirstCard();
    Deck()->goToCard.SetEnabled(false);
  } else {
    ShowBuilderCard(state.deck.cardCount);
    SetBuilderState(BuilderState::kOld);
    Deck()->SetGoToMenu();
  }
}

void TextCardBuilder::Close() {
  ProgramState& state = State();
  if (buttons[kAddButton].Enabled()) SaveBeforeClose();
  Deck()->card.SetCardTotal(DecimalText(state.deck.cardCount));
  if (state.deck.currentCard > state.deck.cardCount) state.deck.currentCard = state.deck.cardCount;
  Deck()->card.SetCardNumber(DecimalText(state.deck.currentCard));
  Deck()->flip.SetEnabled(state.deck.HasCards());
  Deck()->card.SetCardText(DoubleAmps(state.deck.Cell(state.deck.currentCard, kBackText)));
  EnablePrinting();
  SetBuilderState(BuilderState::kOld);
  Unload();
}

void TextCardBuilder::SaveBeforeClose() {
  const bool save = AskYesNo(
      u"The last card added or changed was not saved. Would you like to return and save your "
      u"changes before closing this window?",
      u"Unsaved Card");
  if (save) {
    SaveCard(kTextCard);
    State().deck.saveOffered = true;
    App().machine.messages.Show(u"Card is saved", kOkOnly, u"Save");
  } else {
    State().deck.currentCard = State().deck.cardCount;
  }
}

}  // namespace tessara
