#include "authoring/frmQuestion.h"

#include "authoring/save_edited_card.h"
#include "deck/double_amps.h"
#include "platform/skip_errors.h"
#include "viewer/answer_text.h"

namespace tessara {

namespace {

constexpr int kChoiceLayout = 0;
constexpr Color kBlue = FixedColor(0, 0, 255);
constexpr Color kDarkRed = FixedColor(128, 0, 0);

}  // namespace

frmQuestion::frmQuestion(AppContext& app, Window<frmMain> deck)
    : BuilderWindow(app, "frmQuestion", deck) {
  SetHeight(kHeight);
  SetWidth(kWidth);
  PlaceControls();
  DressControls();
  WireControls();
}

void frmQuestion::PlaceControls() {
  Frame* choices = &Frame1;
  Frame* trueFalse = &Frame2;
  Place({
      {&Label1, "Label1", kNoIndex, nullptr, u"Card Builder:", {120, 120, 2655, 375}, u""},
      {&Label2[0], "Label2", 0, nullptr, u"QUESTION", {120, 720, 1095, 255}, u""},
      {&Label2[1], "Label2", 1, nullptr, u"Card:", {3600, 120, 1695, 255}, u""},
      {&Text2, "Text2", kNoIndex, nullptr, u"", {120, 1080, 5175, 1575}, u"Question"},
      {choices, "Frame1", kNoIndex, nullptr, u"Enter Answer Choices", {120, 2760, 5175, 2055}, u""},
      {&Option1[0], "Option1", 0, choices, u"A", {480, 360, 255, 255}, u"A is correct"},
      {&Text1[0], "Text1", 0, choices, u"", {1080, 360, 3735, 285}, u"Answer A"},
      {&Option1[1], "Option1", 1, choices, u"B", {480, 720, 255, 255}, u"B is correct"},
      {&Text1[1], "Text1", 1, choices, u"", {1080, 720, 3735, 285}, u"Answer B"},
      {&Option1[2], "Option1", 2, choices, u"C", {480, 1080, 255, 255}, u"C is correct"},
      {&Text1[2], "Text1", 2, choices, u"", {1080, 1080, 3735, 285}, u"Answer C"},
      {&Option1[3], "Option1", 3, choices, u"D", {480, 1440, 255, 255}, u"D is correct"},
      {&Text1[3], "Text1", 3, choices, u"", {1080, 1440, 3735, 285}, u"Answer D"},
      {trueFalse, "Frame2", kNoIndex, nullptr, u"", {120, 2760, 5175, 855}, u"Answer"},
      {&Option2[0], "Option2", 0, trueFalse, u"True", {720, 360, 855, 255}, u""},
      {&Option2[1], "Option2", 1, trueFalse, u"False", {3360, 360, 855, 255}, u""},
      {&Command2[0], "Command2", 0, nullptr, u"&New", {120, 4920, 1215, 495}, u""},
      {&Command2[1], "Command2", 1, nullptr, u"&Add to deck", {1320, 4920, 1215, 495}, u""},
      {&Command2[2], "Command2", 2, nullptr, u"&Delete from deck", {2520, 4920, 1455, 495}, u""},
      {&Command2[3], "Command2", 3, nullptr, u"&Close", {4080, 4920, 1215, 495}, u""},
      {&Option3[0], "Option3", 0, nullptr, u"Multiple Choice", {1560, 600, 1095, 375}, u""},
      {&Option3[1], "Option3", 1, nullptr, u"True/False", {2520, 600, 735, 375}, u""},
      {&cmdMove[0], "cmdMove", 0, nullptr, u"<<", {3600, 480, 855, 375}, u"Previous card"},
      {&cmdMove[1], "cmdMove", 1, nullptr, u">>", {4440, 480, 855, 375}, u"Next card"},
  });
}

void frmQuestion::DressControls() {
  Label1.SetFont({u"MS Sans Serif", 9.75});
  Label1.SetForeColor(kBlue);
  Label2[1].SetForeColor(kDarkRed);
  Text2.SetMultiLine(true);
  for (std::size_t line = 0; line < State().AnswerLineLimit.size(); ++line) {
    Text1[static_cast<int>(line)].SetMaxLength(State().AnswerLineLimit[line]);
  }
  Command2[kAddButton].SetEnabled(false);
  Command2[kCancelButton].SetEnabled(false);
}

void frmQuestion::WireControls() {
  Option1.Wire(&OptionButton::onClick, [this](int Index) { Option1_Click(Index); });
  Option2.Wire(&OptionButton::onClick, [this](int Index) { Option2_Click(Index); });
  Option3.Wire(&OptionButton::onClick, [this](int Index) { Option3_Click(Index); });
  Text1.Wire(&TextBox::onChange, [this](int Index) { Text1_Change(Index); });
  Text1.Wire(&TextBox::onGotFocus, [this](int Index) { Text1_GotFocus(Index); });
  for (TextBox& line : Text1) {
    line.onKeyPress = [this, &line](char16_t KeyAscii) { Text1_KeyPress(line.Index(), KeyAscii); };
  }
  Text2.onChange = [this] { Text2_Change(); };
  Command2.Wire(&Button::onClick, [this](int Index) { Command2_Click(Index); });
}

void frmQuestion::Form_Load() {
  ClrForm();
  if (State().HasCards()) {
    ShowBuilderCard(State().CurrentCard);
    SetBuilderState(BuilderState::kOld);
  } else {
    Option3[kChoiceLayout].SetSelected(true);
    SetBuilderState(BuilderState::kNew);
    ShowNextNumber();
    Command2[kCancelButton].SetEnabled(false);
  }
  ResetAnswerLines();
  SyncAnswerLines();
  State().CardChanged = false;
  Deck()->Hide();
}

void frmQuestion::Form_Resize() {
  Deck()->NoteletCtl1.SetCardTotal(DecimalText(State().CardCount));
}

void frmQuestion::TrueFalseForm() {
  Frame2.SetVisible(true);
  Frame1.SetVisible(false);
  Option3[1].SetSelected(true);
}

void frmQuestion::ChoiceForm() {
  Frame1.SetVisible(true);
  Frame2.SetVisible(false);
  Option3[kChoiceLayout].SetSelected(true);
}

void frmQuestion::Option3_Click(int Index) {
  // The focus can't go anywhere while the window is not on screen yet.
  SkipErrors([&] {
    if (Index == kChoiceLayout) {
      ChoiceForm();
    } else {
      TrueFalseForm();
    }
    Text2.SetFocus();
  });
}

void frmQuestion::ClrForm() {
  for (TextBox& line : Text1) {
    line.SetText(u"");
    Option1[line.Index()].SetSelected(false);
  }
  Text2.SetText(u"");
  for (OptionButton& option : Option2) option.SetSelected(false);
}

void frmQuestion::ShowBuilderCard(int xRec) {
  const ProgramState& state = State();
  MarkQuestType(state.Cell(xRec, kCardType));
  Text2.SetText(state.Cell(xRec, kCardText));
  for (TextBox& line : Text1) line.SetText(state.Cell(xRec, kChoiceA + line.Index()));
  MarkCorrAns(state.Cell(xRec, kAnswer));
  ShowNumber(state.Cell(xRec, kRowNumber));
  SetMoveButtons(cmdMove, state);
}

void frmQuestion::SetBuilderState(BuilderState xState) {
  const bool fresh = xState == BuilderState::kNew;
  BuilderWindow::SetBuilderState(xState);
  if (fresh) Command2[kCancelButton].SetEnabled(true);
  // A card's type can be chosen only while it is new.
  for (OptionButton& option : Option3) option.SetEnabled(fresh);
}

void frmQuestion::AskSaveChanged() {
  if (!Command2[kAddButton].Enabled() || !AskAboutChangedCard()) return;
  SaveCard_Gen();
  Command2[kAddButton].SetEnabled(false);
}

void frmQuestion::PrepareNewCard() {
  BuilderWindow::PrepareNewCard();
  // A new card keeps the type of the card before it.
  if (Option3[kChoiceLayout].Selected()) {
    ChoiceForm();
  } else {
    TrueFalseForm();
  }
}

void frmQuestion::StartNewCard() {
  BuilderWindow::StartNewCard();
  ResetAnswerLines();
}

void frmQuestion::Cancel() {
  ProgramState& state = State();
  state.CurrentCard = state.CardCount;
  if (state.CurrentCard < 1) {
    PrepareNewCard();
    WaitForFirstCard();
    ResetAnswerLines();
  } else {
    UnderGuard([&] {
      ShowBuilderCard(state.CardCount);
      SetBuilderState(BuilderState::kOld);
      ResetAnswerLines();
      SyncAnswerLines();
    });
  }
}

void frmQuestion::AddOrChange() {
  bool refused = false;
  CheckAnswerLines(refused);
  if (!refused) BuilderWindow::AddOrChange();
}

void frmQuestion::AddCard() {
  SaveCard_Gen();
}

void frmQuestion::ChangeCard() {
  ChangeCurrentCard(State().CurrentCard, ChosenType());
}

void frmQuestion::Close() {
  ProgramState& state = State();
  if (Command2[kAddButton].Enabled()) {
    if (!SaveEditedQuestion(*this, App())) state.CurrentCard = state.CardCount;
    const int row = state.CurrentCard;
    Deck()->NoteletCtl1.SetCardTotal(DecimalText(state.CardCount));
    Deck()->NoteletCtl1.SetCardText(DoubleAmps(state.Cell(row, kCardText)));
    Deck()->Label2.SetCaption(DoubleAmps(AnswerText(state.Cell(row, kAnswer), row, state)));
  } else {
    state.CurrentCard = state.CardCount;
  }
  EnablePrinting();
  Unload();
}

}  // namespace tessara
