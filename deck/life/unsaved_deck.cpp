#include "deck/life/unsaved_deck.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "deck/file/deck_path.h"
#include "machine/desktop.h"
#include "machine/safety_copies.h"

namespace tessara {

namespace {

/// What the deck's file is called; a deck without one has the name that its window has.
Text FileNameOfDeck(const Text& path) {
  const Text name = FileNameOf(path);
  return name.empty() ? Text(kNewDeckName) : name;
}

}  // namespace

UnsavedDeck::UnsavedDeck(const ProgramState& state, const Machine& machine)
    : state_(state),
      copies_(machine.copies),
      desktop_(machine.desktop),
      image_(state, machine.codePage) {}

void UnsavedDeck::BeforeBox() noexcept {
  try {
    if (following_ && !givenUp_) KeepIfChanged();
  } catch (const std::exception&) {
    // The event goes on: nobody is told.
  }
}

void UnsavedDeck::EventEnds() noexcept {
  if (std::exchange(givenUp_, false)) {
    // The deck is still there: its closing was refused.
    unsaved_ = true;
    seen_ = 0;
  }
  BeforeBox();
}

void UnsavedDeck::KeepIfChanged() {
  const std::uint64_t changes = image_.Changes();
  if (changes == seen_) return;
  unsaved_ = unsaved_ || state_.deck.changed;
  // A command can change the table first and tell of it later.
  if (!unsaved_) return;
  seen_ = changes;
  LeaveCardsWrittenOver();
  if (image_.HasCards()) {
    copies_.KeepUnsaved(FileNameOfDeck(state_.deck.filePath), image_.Bytes());
  } else {
    // The user has deleted the last one.
    copies_.DropUnsaved();
    unsaved_ = false;
  }
}

std::vector<UnsavedDeck::LooseCard> UnsavedDeck::LooseCards() const {
  const Deck& deck = state_.deck;
  std::vector<LooseCard> cards;
  for (const int row : CardRows(deck)) {
    const bool present = deck.cardPresent.At(row) != 0;
    if (present && row <= deck.cardCount) continue;
    cards.push_back({row, deck.Cell(row, kCardText), deck.Cell(row, kBackText), present});
  }
  return cards;
}

/// Not where the user has changed its texts, or has deleted it where it was a card of the deck.
bool UnsavedDeck::IsWrittenOver(const LooseCard& card) const {
  const Deck& deck = state_.deck;
  const Text& front = deck.Cell(card.row, kCardText);
  const Text& back = deck.Cell(card.row, kBackText);
  if (front == card.front && back == card.back) return false;
  if (!card.present && front.empty() && back.empty()) return true;
  return deck.cardPresent.At(card.row) != 0 && card.row <= deck.cardCount;
}

/// What is kept is the last place that has them.
void UnsavedDeck::LeaveCardsWrittenOver() {
  const bool left = std::any_of(looseCards_.begin(), looseCards_.end(),
                                [this](const LooseCard& card) { return IsWrittenOver(card); });
  if (left) copies_.LeaveUnsaved();
  looseCards_ = LooseCards();
}

void UnsavedDeck::Saved() {
  copies_.DropUnsaved();
  looseCards_.clear();
  unsaved_ = false;
  seen_ = image_.Changes();
}

void UnsavedDeck::NotSaved(const Text& path) {
  const Text fileName = FileNameOfDeck(path);
  const Text kept = copies_.KeepNotSaved(fileName, image_.Bytes());
  if (kept.empty()) return;
  looseCards_.clear();
  unsaved_ = false;
  seen_ = image_.Changes();
  desktop_.Notify(u"A deck may not have been saved",
                  u"Not all of the deck " + WithoutDeckEnding(fileName) +
                      u" may be in its file. It is kept as " + kept + u" and can be opened there.");
}

void UnsavedDeck::GivenUp() {
  Saved();
  givenUp_ = true;
}

void UnsavedDeck::Leave() {
  if (unsaved_) copies_.LeaveUnsaved();
  looseCards_.clear();
  following_ = false;
  unsaved_ = false;
  givenUp_ = false;
}

void UnsavedDeck::Follow(Table table) {
  following_ = true;
  if (table == Table::kAsInFile) seen_ = image_.Changes();
}

Text TellOfLeftDecks(const Machine& machine, const Text& path) {
  Text newPath = path;
  for (const LeftDeck& deck : machine.copies.TakeLeftDecks()) {
    if (deck.oldPath == path) newPath = deck.path;
    machine.desktop.Notify(u"A deck with unsaved changes was kept",
                           u"The deck " + deck.name +
                               u" had changes that were not saved. It is kept as " + deck.path +
                               u" and can be opened there.");
  }
  return newPath;
}

}  // namespace tessara
