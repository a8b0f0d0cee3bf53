#include "deck/deck_window.h"

#include "deck/ask_file_name.h"
#include "deck/deck_file.h"
#include "deck/deck_file_name.h"
#include "deck/deck_name.h"
#include "platform/desktop.h"
#include "platform/message_box.h"

namespace tessara {

namespace {

constexpr TextView kNewDeck = u"New Deck";

}  // namespace

DeckWindow::DeckWindow(AppContext& app, FileNumber& fileNumber, Window<frmInfo> info)
    : Form(app.windows, "frmMain", FormKind::kChild, Text(kNewDeck)),
      app_(app),
      fileNumber_(fileNumber),
      info_(info) {}

void DeckWindow::ChkSave() {
  ProgramState& state = State();
  if (!state.DeckChanged || !state.HasCards()) return;
  const MessageAnswer answer = App().machine.messages.Show(
      u"There have been changes to this Tessara.Do you want to save them?", kQuestionIcon + kYesNo,
      u"Unsaved Changes: ");
  if (answer != MessageAnswer::kYes) return;
  if (state.DeckFilePath.empty()) {
    state.DeckFilePath = AskFileName(FileDialogMode::kSave, kDeckFilter, App());
    if (NoAnswer(state.DeckFilePath)) {
      App().machine.messages.Show(u"This file was not saved", kInformationIcon, u"File Not Saved");
    } else {
      SaveTessaraToFile(state.DeckFilePath);
    }
  } else {
    SaveTessaraToFile(state.DeckFilePath);
  }
  state.DeckChanged = false;
}

void DeckWindow::NewTessara() {
  ProgramState& state = State();
  ClearAllCards(state);
  Card().SetCardTotal(u"0");
  Card().SetCardText(u"");
  Label2.SetCaption(u"");
  SetCaption(Text(kNewDeck));
  state.CardCount = 0;
  state.DeckFilePath.clear();
  state.SaveOffered = false;
  state.TestPoints = 0;
  UpdateMoveButtons();
  mnuPrint.SetEnabled(false);
  Command3[1].SetEnabled(false);
}

void DeckWindow::mnuNCD_Click() {
  ChkSave();
  NewTessara();
  ClearDeckInfo(State());
  MenuOp(false);
  State().DeckChanged = false;
  State().TestPoints = 0;
  State().DeckOnFile = false;
  mnuNCD.SetEnabled(false);
  mnuMode.SetEnabled(false);
  mnuGTP.SetEnabled(false);
}

void DeckWindow::mnuOCD_Click() {
  ProgramState& state = State();
  App().machine.desktop.SetMousePointer(MousePointer::kHourglass);
  state.DeckFilePath = AskFileName(FileDialogMode::kOpen, kDeckFilter, App());
  MessageBoxes& messages = App().machine.messages;
  if (NoAnswer(state.DeckFilePath)) return;
  if (!IsDeckFileName(state.DeckFilePath, state, messages)) return;
  if (DeckAlreadyOpen(state.DeckFilePath, Caption(), messages)) return;
  // The path is the new one by now: a Yes here writes the old deck over the chosen file.
  ChkSave();
  ClearAllCards(state);
  LoadAndShowDeck(state.DeckFilePath);
  mnuSaveAs.SetEnabled(state.CardCount >= 1);
  state.DeckOnFile = true;
}

void DeckWindow::LoadAndShowDeck(const Text& xFilename) {
  ProgramState& state = State();
  LoadDeck(xFilename);
  Card().SetCardNumber(u"1");
  state.CurrentCard = 1;
  OpenViewOfFirstCard();
  Card().SetCardTotal(DecimalText(state.CardCount));
  UpdateMoveButtons();
  ShowTitle(u"[STUDY]");
  state.DeckChanged = false;
  state.SaveOffered = false;
  ConfigSaveMenu();
  AutoModeMenu();
  AfterEditShow(state.DeckType);
  state.CardMode = kStudyMode;
  state.TestPoints = 0;
  Card().SetFrontLines(true);
  Card().SetFrontRule(true);
  mnuNCD.SetEnabled(state.HasCards());
}

void DeckWindow::mnuSave_Click() {
  ProgramState& state = State();
  if (Caption().starts_with(u"New") && state.SaveOffered) {
    const Text path = AskFileName(FileDialogMode::kSave, kDeckFilter, App());
    if (RefusedAnswer(path)) return;
    state.DeckFilePath = path;
    state.SaveOffered = false;
  }
  SaveTessaraToFile(state.DeckFilePath);
  state.DeckOnFile = true;
  state.DeckChanged = false;
}

void DeckWindow::mnuSaveAs_Click() {
  ProgramState& state = State();
  const Text path = AskFileName(FileDialogMode::kSave, kDeckFilter, App());
  if (RefusedAnswer(path)) return;
  state.DeckFilePath = path;
  SaveTessaraToFile(state.DeckFilePath);
  state.DeckChanged = false;
  state.SaveOffered = false;
}

bool DeckWindow::RefusedAnswer(const Text& path) {
  if (!NoAnswer(path)) return false;
  App().machine.messages.Show(u"This file was not saved.", kInformationIcon, u"File Not Saved");
  return true;
}

void DeckWindow::mnuExit_Click() {
  if (State().HasCards()) ChkSave();
  State().DeckChanged = false;
  State().SaveOffered = false;
  Unload();
  if (questionBuilder_ != nullptr) questionBuilder_->Unload();
}

void DeckWindow::Form_Unload(bool& cancel) {
  ProgramState& state = State();
  MessageBoxes& messages = App().machine.messages;
  if (state.CardMode != kStudyMode) {
    messages.Show(u"Tessara must be in study mode before quiting.", kOkOnly, u"Quit");
    cancel = true;
    return;
  }
  ChkSave();
  if (state.HasCards()) {
    const MessageAnswer answer =
        messages.Show(u"ARE YOU SURE?", kQuestionIcon + kYesNo, u"Close Tessara");
    cancel = answer == MessageAnswer::kNo;
    if (cancel) return;
  }
  NewTessara();
  ClearDeckInfo(state);
  state.CurrentCard = 0;
  state.CardCount = 0;
  state.TestPoints = 0;
  state.DeckOnFile = false;
}

void DeckWindow::MenuOp(bool xState) {
  mnuDelete.SetEnabled(xState);
}

Text DeckWindow::SaveThisorThat(const Text& xStr1, const Text& xStr2) {
  return xStr1.empty() ? xStr2 : xStr1;
}

void DeckWindow::LoadDeck(const Text& xFilename) {
  LoadDeckFromFile(xFilename, State(), fileNumber_, App().machine.codePage);
  mnuPrint.SetEnabled(true);
}

void DeckWindow::OpenViewOfFirstCard() {
  const Text& cardType = State().Cell(1, kCardType);
  if (cardType == u"M" || cardType == u"T") {
    OpenExtendedView();
    ShowFirstCard(kExtendedDeck);
    Command3[1].SetCaption(u"&Hide Answer");
  } else if (cardType == u"E") {
    OpenStandardView();
    ShowFirstCard(kStandardDeck);
  }
}

void DeckWindow::ShowTitle(TextView mode) {
  SetCaption(DeckNameOf(State().DeckFilePath) + u"  " + Text(mode));
}

void DeckWindow::UpdateMoveButtons() {
  const ProgramState& state = State();
  const bool hasCards = state.CardCount != 0;
  cmdMove[0].SetEnabled(hasCards && state.CurrentCard != 1);
  cmdMove[1].SetEnabled(hasCards && state.CurrentCard != state.CardCount);
}

void DeckWindow::SetGoToMenu() {
  mnuGTP.SetEnabled(State().CardCount > 1);
}

}  // namespace tessara
