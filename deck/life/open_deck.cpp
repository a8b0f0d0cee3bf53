// How a deck comes from its file into the window.

#include <optional>

#include "deck/card_type.h"
#include "deck/file/deck_file.h"
#include "deck/file/deck_file_name.h"
#include "deck/life/ask_file_name.h"
#include "deck/life/deck_life.h"
#include "machine/desktop.h"

namespace tessara {

void DeckLife::OpenDeck() {
  ProgramState& state = State();
  App().machine.desktop.SetMousePointer(MousePointer::kHourglass);
  state.deck.filePath = AskDeckFile(FileDialogMode::kOpen);
  MessageBoxes& messages = App().machine.messages;
  if (NoAnswer(state.deck.filePath)) return;
  if (!IsDeckFileName(state.deck.filePath, state, messages)) return;
  if (DeckAlreadyOpen(state.deck.filePath, Caption(), messages)) return;
  // The path is the new one by now: a Yes here writes the old deck over the chosen file.
  OfferToSave();
  OpenChosenDeck();
}

void DeckLife::OpenDroppedDeck(const Text& path) {
  MessageBoxes& messages = App().machine.messages;
  if (!IsDeckFileName(path, messages)) return;
  if (DeckAlreadyOpen(path, Caption(), messages)) return;
  // A Yes here saves the old deck under its own path, which is still the deck's.
  OfferToSave();
  State().deck.filePath = path;
  OpenChosenDeck();
}

void DeckLife::OpenChosenDeck() {
  ProgramState& state = State();
  ClearAllCards(state.deck);
  LoadAndShowDeck(state.deck.filePath);
  saveDeckAs.SetEnabled(state.deck.cardCount >= 1);
  state.deck.onFile = true;
}

void DeckLife::LoadAndShowDeck(const Text& fileName) {
  ProgramState& state = State();
  LoadDeck(fileName);
  Card().SetCardNumber(u"1");
  state.deck.currentCard = 1;
  OpenViewOfFirstCard();
  Card().SetCardTotal(DecimalText(state.deck.cardCount));
  UpdateMoveButtons();
  ShowTitle(kStudyMode);
  state.deck.changed = false;
  state.deck.saveOffered = false;
  ConfigSaveMenu();
  AutoModeMenu();
  AfterEditShow(state.deck.kind);
  state.deck.mode = kStudyMode;
  state.deck.testPoints = 0;
  Card().SetFrontLines(true);
  Card().SetFrontRule(true);
  clearDeck.SetEnabled(state.deck.HasCards());
}

void DeckLife::LoadDeck(const Text& fileName) {
  App().unsaved.Leave();
  LoadDeckFromFile(fileName, State(), fileNumber_, App().machine.codePage);
  App().unsaved.Follow(UnsavedDeck::Table::kAsInFile);
  printDeck.SetEnabled(true);
}

void DeckLife::OpenViewOfFirstCard() {
  std::optional<DeckKind> kind = DeckKindOf(State().deck.Cell(1, kCardType));
  // A window that is not on screen yet comes up all the same, for the kind of the deck before.
  if (!kind && !Visible())
    kind = State().deck.kind == kExtendedDeck ? kExtendedDeck : kStandardDeck;
  if (kind == kExtendedDeck) {
    OpenExtendedView();
    ShowFirstCard(kExtendedDeck);
    OfferFlip(FlipAction::kHideAnswer);
  } else if (kind == kStandardDeck) {
    OpenStandardView();
    ShowFirstCard(kStandardDeck);
  }
}

}  // namespace tessara
