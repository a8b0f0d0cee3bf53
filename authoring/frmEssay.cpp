#include "authoring/frmEssay.h"

#include "deck/double_amps.h"
#include "platform/message_box.h"
#include "platform/skip_errors.h"

namespace tessara {

namespace {

constexpr int kFront = 0;
constexpr int kBack = 1;
/// Lines of a back from which on the user is told that a card shows no more.
constexpr int kMostLines = 10;
constexpr Color kBlue = FixedColor(0, 0, 255);
constexpr Color kRed = FixedColor(255, 0, 0);
const Text kTextCard = u"E";

}  // namespace

frmEssay::frmEssay(AppContext& app, Window<frmMain> deck) : BuilderWindow(app, "frmEssay", deck) {
  SetHeight(kHeight);
  SetWidth(kWidth);
  PlaceControls();
  Text1.Wire(&TextBox::onChange, [this](int Index) { Text1_Change(Index); });
  Command1.Wire(&Button::onClick, [this](int Index) { Command1_Click(Index); });
}

void frmEssay::PlaceControls() {
  Place({
      {&Label1, "Label1", kNoIndex, nullptr, u"Card Builder:", {120, 120, 2970, 375}, u""},
      {&Label2[0], "Label2", 0, nullptr, u"FRONT", {120, 480, 1095, 255}, u""},
      {&Label2[2], "Label2", 2, nullptr, u"", {1440, 420, 1785, 240}, u""},
      {&Text1[kFront], "Text1", kFront, nullptr, u"", {120, 720, 5175, 1695}, u"Front"},
      {&Label2[1], "Label2", 1, nullptr, u"BACK", {120, 2520, 975, 255}, u""},
      {&Text1[kBack], "Text1", kBack, nullptr, u"", {120, 2760, 5175, 1695}, u"Back"},
      {&Command1[0], "Command1", 0, nullptr, u"&New", {120, 4680, 1215, 495}, u""},
      {&Command1[1], "Command1", 1, nullptr, u"&Add to deck", {1320, 4680, 1215, 495}, u""},
      {&Command1[2], "Command1", 2, nullptr, u"&Delete from deck", {2520, 4680, 1455, 495}, u""},
      {&Command1[3], "Command1", 3, nullptr, u"&Close", {4080, 4680, 1215, 495}, u""},
      {&cmdMove[0], "cmdMove", 0, nullptr, u"<<", {3360, 120, 975, 375}, u"Previous card"},
      {&cmdMove[1], "cmdMove", 1, nullptr, u">>", {4320, 120, 975, 375}, u"Next card"},
  });
  Label1.SetFont({u"MS Sans Serif", 9.75});
  Label1.SetForeColor(kBlue);
  Label2[2].SetForeColor(kRed);
  for (TextBox& box : Text1) {
    box.SetMultiLine(true);
    box.SetVerticalScrollBar(true);
  }
}

void frmEssay::Form_Load() {
  ClrFrm();
  if (State().HasCards()) {
    ShowBuilderCard(State().CurrentCard);
    SetBuilderState(BuilderState::kOld);
  } else {
    SetBuilderState(BuilderState::kNew);
    ShowNextNumber();
  }
  State().CardChanged = false;
  Deck()->Hide();
}

void frmEssay::ClrFrm() {
  for (TextBox& box : Text1) box.SetText(u"");
}

void frmEssay::EnableCardButtons() {
  const bool front = !Text1[kFront].TextOf().empty();
  const bool back = !Text1[kBack].TextOf().empty();
  Command1[kAddButton].SetEnabled(front && back);
  Command1[kCancelButton].SetEnabled(front || back);
}

void frmEssay::ShowBuilderCard(int xRec) {
  Text1[kFront].SetText(State().Cell(xRec, kCardText));
  Text1[kBack].SetText(State().Cell(xRec, kBackText));
  ShowNumber(DecimalText(xRec));
  SetMoveButtons(cmdMove, State());
}

void frmEssay::SaveCard(const Text& xQuestType) {
  ProgramState& state = State();
  EnsureCurrentCard();
  const int row = state.CurrentCard;
  state.CardGrid.Set(row, kCardType, xQuestType);
  state.CardGrid.Set(row, kCardText, Text1[kFront].TextOf());
  state.CardGrid.Set(row, kRowNumber, DecimalText(row));
  for (int column = kChoiceA; column <= kAnswer; ++column) state.CardGrid.Set(row, column, u"");
  state.CardGrid.Set(row, kBackText, Text1[kBack].TextOf());
  state.CardPresent.Set(row, 1);
  state.DeckChanged = true;
  // Not a count: saving an older card ends the deck there.
  state.CardCount = state.CurrentCard;
}

void frmEssay::ChangeCurrentCard(int xRecNbr, const Text& QuestType) {
  State().CardGrid.Set(xRecNbr, kCardType, QuestType);
  State().CardGrid.Set(xRecNbr, kCardText, Text1[kFront].TextOf());
  State().CardGrid.Set(xRecNbr, kBackText, Text1[kBack].TextOf());
}

void frmEssay::AskSaveChanged() {
  if (Command1[kAddButton].Enabled() && AskAboutChangedCard()) SaveCard(kTextCard);
  Command1[kAddButton].SetEnabled(false);
}

void frmEssay::Text1_Change(int Index) {
  if (Index == kBack) SkipErrors([this] { WarnAboutLines(); });
  if (!State().CardChanged) EnableCardButtons();
}

void frmEssay::WarnAboutLines() {
  if (Text1[kBack].LineCount() < kMostLines) return;
  App().machine.messages.Show(
      u"You have reached the maximum number of lines that a card will show. Any further lines "
      u"which are added will not be seen.",
      kInformationIcon, u"Maximum Lines Reached!");
}

void frmEssay::AddCard() {
  SaveCard(kTextCard);
}

void frmEssay::ChangeCard() {
  ChangeCurrentCard(State().CurrentCard, kTextCard);
}

void frmEssay::Cancel() {
  ProgramState& state = State();
  // First, so that the arrows are set for the card that comes on show.
  state.CurrentCard = state.CardCount;
  if (state.CardCount < 1) {
    PrepareNewCard();
    WaitForFirstCard();
    Deck()->mnuGTP.SetEnabled(false);
  } else {
    ShowBuilderCard(state.CardCount);
    SetBuilderState(BuilderState::kOld);
    Deck()->SetGoToMenu();
  }
}

void frmEssay::Close() {
  ProgramState& state = State();
  if (Command1[kAddButton].Enabled()) SaveBeforeClose();
  Deck()->NoteletCtl1.SetCardTotal(DecimalText(state.CardCount));
  if (state.CurrentCard > state.CardCount) state.CurrentCard = state.CardCount;
  Deck()->NoteletCtl1.SetCardNumber(DecimalText(state.CurrentCard));
  Deck()->Command3[frmMain::kFlip].SetEnabled(state.HasCards());
  Deck()->NoteletCtl1.SetCardText(DoubleAmps(state.Cell(state.CurrentCard, kBackText)));
  EnablePrinting();
  SetBuilderState(BuilderState::kOld);
  Unload();
}

void frmEssay::SaveBeforeClose() {
  const bool save = AskYesNo(
      u"The last card added or changed was not saved. Would you like to return and save your "
      u"changes before closing this window?",
      u"Unsaved Card");
  if (save) {
    SaveCard(kTextCard);
    State().SaveOffered = true;
    App().machine.messages.Show(u"Card is saved", kOkOnly, u"Save");
  } else {
    State().CurrentCard = State().CardCount;
  }
}

}  // namespace tessara
