#include "authoring/question_builder.h"

#include "authoring/save_edited_card.h"
#include "base/skip_errors.h"
#include "deck/card_display.h"
#include "deck/file/field_widths.h"
#include "deck/file/stored_text.h"
#include "viewer/answer_text.h"

namespace tessara {

namespace {

constexpr Color kDarkRed = FixedColor(128, 0, 0);

}  // namespace

QuestionBuilder::QuestionBuilder(AppContext& app, Window<DeckWindow> deck)
    : BuilderWindow(app, "frmQuestion", deck) {
  SetHeight(kHeight);
  SetWidth(kWidth);
  PlaceControls();
  DressControls();
  WireControls();
}

void QuestionBuilder::PlaceControls() {
  AddControls({
      {&heading, nullptr, u"Card Builder:", {120, 120, 2655, 375}, u""},
      {&questionHeading, nullptr, u"QUESTION", {120, 720, 1095, 255}, u""},
      {&number, nullptr, u"Card:", {3600, 120, 1695, 255}, u""},
      {&question, nullptr, u"", {120, 1080, 5175, 1575}, u"Question"},
      {&choiceLayout, nullptr, u"Enter Answer Choices", {120, 2760, 5175, 2055}, u""},
      {&marks[0], &choiceLayout, u"A", {480, 360, 255, 255}, u"A is correct"},
      {&answers[0], &choiceLayout, u"", {1080, 360, 3735, 285}, u"Answer A"},
      {&marks[1], &choiceLayout, u"B", {480, 720, 255, 255}, u"B is correct"},
      {&answers[1], &choiceLayout, u"", {1080, 720, 3735, 285}, u"Answer B"},
      {&marks[2], &choiceLayout, u"C", {480, 1080, 255, 255}, u"C is correct"},
      {&answers[2], &choiceLayout, u"", {1080, 1080, 3735, 285}, u"Answer C"},
      {&marks[3], &choiceLayout, u"D", {480, 1440, 255, 255}, u"D is correct"},
      {&answers[3], &choiceLayout, u"", {1080, 1440, 3735, 285}, u"Answer D"},
      {&trueFalseLayout, nullptr, u"", {120, 2760, 5175, 855}, u"Answer"},
      {&trueFalseMarks[kTrueMark], &trueFalseLayout, u"True", {720, 360, 855, 255}, u""},
      {&trueFalseMarks[kFalseMark], &trueFalseLayout, u"False", {3360, 360, 855, 255}, u""},
      {&buttons[kNewButton], nullptr, u"&New", {120, 4920, 1215, 495}, u""},
      {&buttons[kAddButton], nullptr, u"&Add to deck", {1320, 4920, 1215, 495}, u""},
      {&buttons[kCancelButton], nullptr, u"&Delete from deck", {2520, 4920, 1455, 495}, u""},
      {&buttons[kCloseButton], nullptr, u"&Close", {4080, 4920, 1215, 495}, u""},
      {&layouts[kMultipleChoice], nullptr, u"Multiple Choice", {1560, 600, 1095, 375}, u""},
      {&layouts[kTrueOrFalse], nullptr, u"True/False", {2520, 600, 735, 375}, u""},
      {&arrows[kPreviousCard], nullptr, u"<<", {3600, 480, 855, 375}, u"Previous card"},
      {&arrows[kNextCard], nullptr, u">>", {4440, 480, 855, 375}, u"Next card"},
  });
}

void QuestionBuilder::DressControls() {
  number.SetForeColor(kDarkRed);
  question.SetMultiLine(true);
  question.charactersCut = CutIn(kTextWidth, App().machine.codePage);
  for (TextBox& line : answers) line.charactersCut = CutIn(kShortWidth, App().machine.codePage);
  for (std::size_t line = 0; line < State().building.answerLineLimit.size(); ++line) {
    answers[static_cast<int>(line)].SetMaxLength(State().building.answerLineLimit[line]);
  }
  buttons[kAddButton].SetEnabled(false);
  buttons[kCancelButton].SetEnabled(false);
}

void QuestionBuilder::WireControls() {
  marks.Wire(&OptionButton::onClick, [this](int) { FollowMark(); });
  trueFalseMarks.Wire(&OptionButton::onClick, [this](int) { FollowTrueFalseMark(); });
  layouts.Wire(&OptionButton::onClick, [this](int layout) { SwitchLayout(layout); });
  answers.Wire(&TextBox::onChange, [this](int line) { FollowAnswer(line); });
  answers.Wire(&TextBox::onGotFocus, [this](int line) { ClearPlaceholder(line); });
  for (TextBox& line : answers) {
    line.onKeyPress = [this, &line](char16_t character) { CountCapitals(line.Index(), character); };
  }
  question.onChange = [this] { FollowQuestion(); };
  buttons.Wire(&Button::onClick, [this](int button) { PressButton(button); });
}

void QuestionBuilder::OnLoad() {
  ClearForm();
  if (State().deck.HasCards()) {
    ShowBuilderCard(State().deck.currentCard);
    SetBuilderState(BuilderState::kOld);
  } else {
    layouts[kMultipleChoice].SetSelected(true);
    SetBuilderState(BuilderState::kNew);
    ShowNextNumber();
    buttons[kCancelButton].SetEnabled(false);
  }
  ResetAnswerLines();
  SyncAnswerLines();
  State().building.fillingBoxes = false;
  Deck()->Hide();
}

void QuestionBuilder::OnResize() {
  Deck()->card.SetCardTotal(DecimalText(State().deck.cardCount));
}

std::vector<std::pair<const TextBox*, int>> QuestionBuilder::Boxes() const {
  std::vector<std::pair<const TextBox*, int>> boxes = {{&question, kCardText}};
  for (const TextBox& line : answers) boxes.emplace_back(&line, kChoiceA + line.Index());
  return boxes;
}

void QuestionBuilder::TrueFalseForm() {
  trueFalseLayout.SetVisible(true);
  choiceLayout.SetVisible(false);
  layouts[kTrueOrFalse].SetSelected(true);
}

void QuestionBuilder::ChoiceForm() {
  choiceLayout.SetVisible(true);
  trueFalseLayout.SetVisible(false);
  layouts[kMultipleChoice].SetSelected(true);
}

void QuestionBuilder::SwitchLayout(int layout) {
  // The focus can't go anywhere while the window is not on screen yet.
  SkipErrors([&] {
    if (layout == kMultipleChoice) {
      ChoiceForm();
    } else {
      TrueFalseForm();
    }
    question.SetFocus();
  });
}

void QuestionBuilder::ClearForm() {
  for (TextBox& line : answers) {
    line.SetText(u"");
    marks[line.Index()].SetSelected(false);
  }
  question.SetText(u"");
  for (OptionButton& option : trueFalseMarks) option.SetSelected(false);
}

void QuestionBuilder::ShowBuilderCard(int row) {
  const ProgramState& state = State();
  MarkLayout(state.deck.Cell(row, kCardType));
  question.SetText(state.deck.Cell(row, kCardText));
  for (TextBox& line : answers) line.SetText(state.deck.Cell(row, kChoiceA + line.Index()));
  MarkAnswer(state.deck.Cell(row, kAnswer));
  ShowNumber(state.deck.Cell(row, kRowNumber));
  SetMoveButtons(arrows, state);
}

void QuestionBuilder::SetBuilderState(BuilderState state) {
  const bool fresh = state == BuilderState::kNew;
  BuilderWindow::SetBuilderState(state);
  if (fresh) buttons[kCancelButton].SetEnabled(true);
  // A card's type can be chosen only while it is new.
  for (OptionButton& option : layouts) option.SetEnabled(fresh);
}

void QuestionBuilder::AskSaveChanged() {
  if (!buttons[kAddButton].Enabled() || !AskAboutChangedCard()) return;
  SaveAsNewCard();
  buttons[kAddButton].SetEnabled(false);
}

void QuestionBuilder::PrepareNewCard() {
  BuilderWindow::PrepareNewCard();
  // A new card keeps the type of the card before it.
  if (layouts[kMultipleChoice].Selected()) {
    ChoiceForm();
  } else {
    TrueFalseForm();
  }
}

void QuestionBuilder::StartNewCard() {
  BuilderWindow::StartNewCard();
  ResetAnswerLines();
}

void QuestionBuilder::Cancel() {
  ProgramState& state = State();
  state.deck.currentCard = state.deck.cardCount;
  if (state.deck.currentCard < 1) {
    PrepareNewCard();
    WaitForFirstCard();
    ResetAnswerLines();
  } else {
    UnderGuard([&] {
      ShowBuilderCard(state.deck.cardCount);
      SetBuilderState(BuilderState::kOld);
      ResetAnswerLines();
      SyncAnswerLines();
    });
  }
}

void QuestionBuilder::AddOrChange() {
  if (!RefusesAnswerLines()) BuilderWindow::AddOrChange();
}

void QuestionBuilder::AddCard() {
  SaveAsNewCard();
}

void QuestionBuilder::ChangeCard() {
  ChangeCurrentCard(State().deck.currentCard, ChosenType());
}

void QuestionBuilder::Close() {
  ProgramState& state = State();
  if (buttons[kAddButton].Enabled()) {
    if (!SaveEditedQuestion(*this, App())) state.deck.currentCard = state.deck.cardCount;
    const int row = state.deck.currentCard;
    Deck()->card.SetCardTotal(DecimalText(state.deck.cardCount));
    Deck()->card.SetCardText(DoubleAmps(state.deck.Cell(row, kCardText)));
    Deck()->answer.SetCaption(DoubleAmps(AnswerText(state.deck.Cell(row, kAnswer), row, state)));
  } else {
    state.deck.currentCard = state.deck.cardCount;
  }
  EnablePrinting();
  Unload();
}

}  // namespace tessara
