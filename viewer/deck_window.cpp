#include "viewer/deck_window.h"

#include <algorithm>

#include "deck/card_display.h"
#include "deck/deck_info_window.h"
#include "deck/file/deck_path.h"
#include "forms/place_in_frame.h"
#include "viewer/answer_text.h"

namespace tessara {

namespace {

constexpr int kWindowHeight = 6315;
constexpr int kWindowWidth = 7230;
/// Both captions that the button takes in a test; it starts without one.
constexpr TextView kNextOrScoreName = u"Next Question, Show Score";
constexpr Bounds kUnderTheCard = {120, 3855, 4860, 1635};

/// True where the focus can stay: on something in reach, and not where a blank closes the deck.
bool FocusMayStay(const DeckWindow& window) {
  const Control* focused = window.FocusedControl();
  return focused != nullptr && focused->Reachable() && focused != &window.closeDeck;
}

}  // namespace

DeckWindow::DeckWindow(AppContext& app, FileNumber& fileNumber, Window<DeckInfoWindow> info)
    : DeckLife(app, fileNumber, info) {
  SetHeight(kWindowHeight);
  SetWidth(kWindowWidth);
  PlaceControls();
  PlaceMenuEntries();
  WireControls();
  WireMenus();
}

void DeckWindow::PlaceControls() {
  AddControls({
      {&cardShadow, nullptr, u"", {210, 240, 6840, 3570}, u"Shadow of the card"},
      {&card, nullptr, u"", {120, 120, 6855, 3615}, u"Card"},
      {&answerCard, nullptr, u"", {120, 3855, 4950, 1740}, u"Answer card"},
      {&answer, &answerCard, u"LABEL2", {120, 360, 4575, 255}, u""},
      {&creditPanel, nullptr, u"CREDIT", kUnderTheCard, u""},
      {&credits[kFullCredit], &creditPanel, u"Full Credit", {300, 420, 4335, 465}, u""},
      {&credits[kPartialCredit], &creditPanel, u"Partial Credit", {300, 870, 2730, 465}, u""},
      {&credits[kNoCredit], &creditPanel, u"No Credit", {3015, 870, 1620, 465}, u""},
      {&choicePanel, nullptr, u"ANSWER", kUnderTheCard, u""},
      {&choices[0], &choicePanel, u"Option1", {150, 360, 4545, 255}, u""},
      {&choices[1], &choicePanel, u"Option1", {150, 600, 4545, 255}, u""},
      {&choices[2], &choicePanel, u"Option1", {150, 870, 4545, 255}, u""},
      {&choices[3], &choicePanel, u"Option1", {150, 1140, 4545, 255}, u""},
      {&buttonPanel, nullptr, u"", {5085, 3840, 1905, 1965}, u"Buttons"},
      {&arrows[kPreviousCard], &buttonPanel, u"<<", {135, 240, 780, 390}, u"Previous card"},
      {&arrows[kNextCard], &buttonPanel, u">>", {975, 240, 780, 390}, u"Next card"},
      {&nextOrScore, &buttonPanel, u"", {135, 720, 1620, 375}, kNextOrScoreName},
      {&flip, &buttonPanel, CaptionOf(FlipAction::kShowAnswer), {135, 1080, 1620, 375}, u""},
      {&closeDeck, &buttonPanel, u"&Close Deck", {135, 1440, 1620, 375}, u""},
  });
  cardShadow.SetBackColor({Color::Role::kInactiveTitle});
  nextOrScore.SetEnabled(false);
  // A choice is an answer: going past it gives none.
  for (OptionButton& choice : choices) choice.SetArrowsSelect(false);
  answer.SetFont({u"MS Sans Serif", 9.75});
  answer.SetForeColor(FixedColor(29, 49, 82));
  answerCard.SetPicture(App().frame.CardPictures().At(u"White 3D").picture);
}

void DeckWindow::PlaceMenuEntries() {
  AddMenus({
      {&fileMenu, nullptr, u"&File"},
      {&clearDeck, &fileMenu, u"&Clear Tessara"},
      {&openDeck, &fileMenu, u"&Open Tessara", u"Ctrl+O"},
      {&deleteCard, &fileMenu, u"&Delete Card"},
      {&belowDelete, &fileMenu, u"-"},
      {&saveDeck, &fileMenu, u"&Save", u"Ctrl+S"},
      {&saveDeckAs, &fileMenu, u"Save &As", u"Ctrl+Shift+S"},
      {&createOrEditCard, &fileMenu, u"&Create/Edit Card", u"Ctrl+E"},
      {&printDeck, &fileMenu, u"Print Deck", u"Ctrl+P"},
      {&aboveClose, &fileMenu, u"-"},
      {&closeTessara, &fileMenu, u"&Close Tessara", u"Ctrl+W"},
      {&modeMenu, nullptr, u"Mode"},
      {&study, &modeMenu, u"&Study"},
      {&quiz, &modeMenu, u"&Quiz"},
      {&test, &modeMenu, u"&Test"},
      {&utilityMenu, nullptr, u"&Utility"},
      {&goToCard, &utilityMenu, u"<Go To Card >", u"Ctrl+G"},
      {&belowGoTo, &utilityMenu, u"-"},
      {&deckInfo, &utilityMenu, u"Tessara Information"},
      {&helpMenu, nullptr, u"&Help"},
      {&helpTopics, &helpMenu, u"&Tessara Help Topics", u"F1"},
      {&about, &helpMenu, u"&About"},
      {&separatingCards, &helpMenu, u"Separating the cards"},
  });
  SetHelpEntry(helpTopics);
  saveDeck.SetEnabled(false);
  card.SetHint(u"No cards yet: " + PlainCaption(fileMenu.Caption()) + u" > " +
               PlainCaption(createOrEditCard.Caption()) + u" writes the first one.");
}

void DeckWindow::WireControls() {
  arrows.Wire(&Button::onClick, [this](int arrow) { Page(arrow); });
  SetPageButtons(arrows[kPreviousCard], arrows[kNextCard]);
  nextOrScore.onClick = [this] { NextQuestionOrScore(); };
  flip.onClick = [this] { FlipCard(); };
  closeDeck.onClick = [this] { Unload(); };
  credits.Wire(&Button::onClick, [this](int credit) { GiveCredit(credit); });
  choices.Wire(&OptionButton::onClick, [this](int choice) { JudgeChoice(choice); });
}

void DeckWindow::WireMenus() {
  clearDeck.onClick = [this] {
    ClearDeck();
    KeepFocusInReach();
  };
  openDeck.onClick = [this] { OpenDeck(); };
  deleteCard.onClick = [this] { DeleteCard(); };
  saveDeck.onClick = [this] { SaveDeck(); };
  saveDeckAs.onClick = [this] { SaveDeckAs(); };
  closeTessara.onClick = [this] { CloseTessara(); };
  study.onClick = [this] { EnterStudyMode(); };
  quiz.onClick = [this] { EnterQuizMode(); };
  test.onClick = [this] { EnterTestMode(); };
  goToCard.onClick = [this] { AskForCard(); };
  deckInfo.onClick = [this] { ShowDeckInfo(); };
}

void DeckWindow::OnLoad() {
  ProgramState& state = State();
  if (!state.start.commandLineFile.empty()) {
    state.deck.filePath = LongPathOf(state.start.commandLineFile, App().machine.files);
    CommandLineLoad(state.deck.filePath);
    state.start.deckFromCommandLine = true;
  } else {
    SetUpDeck();
    card.SetCardText(u"");
    answer.SetCaption(u"");
    creditPanel.SetTop(choicePanel.BoundsOf().top);
    creditPanel.SetLeft(choicePanel.BoundsOf().left);
    creditPanel.SetVisible(false);
    EnableDelete(false);
  }
  App().frame.CloseSplash();
  saveDeckAs.SetEnabled(state.deck.cardCount >= 1);
  state.start.commandLineFile.clear();
}

void DeckWindow::OnActivate() {
  ProgramState& state = State();
  AfterEditShow(state.deck.kind);
  ConfigSaveMenu();
  UpdateMoveButtons();
  modeMenu.SetEnabled(state.deck.HasCards());
  clearDeck.SetEnabled(state.deck.HasCards());
  printDeck.SetEnabled(state.deck.cardCount >= 1);
  if (!FocusMayStay(*this)) OfferNext({&arrows[kNextCard], &card});
}

void DeckWindow::OnResize() {
  HoldWindowSize(kWindowHeight, kWindowWidth, *this);
}

void DeckWindow::OnClick() {
  App().frame.CloseAbout();
}

bool DeckWindow::KeysAreFree() const {
  const Control* focused = FocusedControl();
  const std::initializer_list<const Control*> pagers = {nullptr, &card, &flip,
                                                        &arrows[kPreviousCard], &arrows[kNextCard]};
  return std::find(pagers.begin(), pagers.end(), focused) != pagers.end();
}

bool DeckWindow::OnKey(WindowKey key) {
  if (!KeysAreFree()) return false;
  switch (key) {
    case WindowKey::kLeft:
      arrows[kPreviousCard].Press();
      return true;
    case WindowKey::kRight:
      arrows[kNextCard].Press();
      return true;
    case WindowKey::kSpace: {
      // With the focus on it, the button takes the blank itself.
      const bool turns = flip.Reachable() && FocusedControl() != &flip;
      if (turns) flip.Press();
      return turns;
    }
    case WindowKey::kKeep:
      break;
  }
  return false;
}

void DeckWindow::ShowDeckInfo() {
  PlaceInFrame(Info().Slot(), DeckInfoWindow::kHeight, DeckInfoWindow::kWidth);
  SetEnabled(false);
}

void DeckWindow::ShowCardText(int row, int column) {
  card.SetCardText(DoubleAmps(State().deck.Cell(row, column)));
}

void DeckWindow::ShowAnswer(int row) {
  answer.SetCaption(DoubleAmps(AnswerText(State().deck.Cell(row, kAnswer), row, State())));
}

void DeckWindow::ShowCardNumber() {
  card.SetCardNumber(DecimalText(State().deck.currentCard));
}

void DeckWindow::OfferNext(std::initializer_list<Control*> controls) {
  const auto* const found =
      std::find_if(controls.begin(), controls.end(), [](Control* c) { return c->Reachable(); });
  if (found != controls.end()) (*found)->SetFocus();
}

void DeckWindow::KeepFocusInReach() {
  if (!FocusMayStay(*this)) OfferNext({&arrows[kNextCard], &arrows[kPreviousCard], &card});
}

}  // namespace tessara
