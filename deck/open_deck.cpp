// How a deck comes from its file into the window.

#include <optional>

#include "deck/ask_file_name.h"
#include "deck/deck_file.h"
#include "deck/deck_file_name.h"
#include "deck/deck_window.h"
#include "platform/desktop.h"

namespace tessara {

namespace {

/// The type of the decks that have cards of this letter; none for an unknown one.
std::optional<std::int32_t> KindOfCard(TextView letter) {
  if (letter == u"M" || letter == u"T") return kExtendedDeck;
  if (letter == u"E") return kStandardDeck;
  return std::nullopt;
}

}  // namespace

void DeckWindow::mnuOCD_Click() {
  ProgramState& state = State();
  App().machine.desktop.SetMousePointer(MousePointer::kHourglass);
  state.DeckFilePath = AskDeckFile(FileDialogMode::kOpen);
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
  ShowTitle(kStudyMode);
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

void DeckWindow::LoadDeck(const Text& xFilename) {
  App().unsaved.Leave();
  LoadDeckFromFile(xFilename, State(), fileNumber_, App().machine.codePage);
  App().unsaved.Follow(UnsavedDeck::Table::kAsInFile);
  mnuPrint.SetEnabled(true);
}

void DeckWindow::OpenViewOfFirstCard() {
  std::optional<std::int32_t> kind = KindOfCard(State().Cell(1, kCardType));
  // A window that is not on screen yet comes up all the same, for the type of the deck before.
  if (!kind && !Visible()) kind = State().DeckType;
  if (kind == kExtendedDeck) {
    OpenExtendedView();
    ShowFirstCard(kExtendedDeck);
    Command3[kFlip].SetCaption(u"&Hide Answer");
  } else if (kind == kStandardDeck) {
    OpenStandardView();
    ShowFirstCard(kStandardDeck);
  }
}

}  // namespace tessara
